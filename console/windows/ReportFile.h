// An execution report as a file.
#pragma once

#include <filesystem>

#include "console_core/ReportHtml.h"

namespace quorvel::console {

// Writes the report as HTML; what stood there before stays until the new one is whole. Error 75, which names the file
// and says why, when it cannot be written.
void SaveReport(const ReportText& report, const std::filesystem::path& file);

}  // namespace quorvel::console
