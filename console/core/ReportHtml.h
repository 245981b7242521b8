// An execution report as HTML, which the report window shows, printers get as pages and browsers read as a file.
#pragma once

#include <string>

#include "console_core/ReportData.h"

namespace quorvel::console {

struct ReportText {
  std::string html;
  std::string footer;  // what stands at the foot of every page besides its number
};

// A whole document that needs no other file. It keeps to what a QTextDocument understands; each run begins on a page of
// its own. Names and reports are shown as they are, whatever characters they hold.
ReportText WriteReport(const ReportData& data, const Platform& platform);

}  // namespace quorvel::console
