// The open connections of a hub, which its record sources share with it.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "hub/sqlite/Database.h"

namespace quorvel::hub {

class Connections {
 public:
  // Keeps the database under a new index, from 1.
  std::int32_t Add(std::unique_ptr<Database> database);

  // Error 5 when the index is not open.
  void Close(std::int32_t connection);
  const Database& At(std::int32_t connection) const;

  void CloseAll() { open_.clear(); }

 private:
  std::map<std::int32_t, std::unique_ptr<Database>> open_;
  std::int32_t last_ = 0;
};

}  // namespace quorvel::hub
