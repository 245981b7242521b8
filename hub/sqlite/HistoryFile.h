// Opening a history file, and nothing but a history file.
#pragma once

#include <filesystem>
#include <memory>

#include "hub/sqlite/Database.h"

namespace quorvel::hub {

// Opens an existing history. The errors are those of RecordHub::OpenConnection.
std::unique_ptr<Database> OpenHistory(const std::filesystem::path& file, Access access);

}  // namespace quorvel::hub
