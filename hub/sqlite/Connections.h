// The open connections of a hub, which its record sources share with it.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>

#include "hub/sqlite/Database.h"
#include "hub/sqlite/ProgressTeller.h"

namespace quorvel::hub {

class Connections {
 public:
  // Keeps the database under a new index, from 1.
  std::int32_t Add(std::unique_ptr<Database> database);

  // Error 5 when the index is not open.
  void Close(std::int32_t connection);
  const Database& At(std::int32_t connection) const;

  void CloseAll() { open_.clear(); }

  // See RecordHub::SetProgress.
  void SetProgress(ProgressCallback callback, std::chrono::milliseconds interval);
  // What hears of each query that begins.
  ProgressTeller& progress() const { return *progress_; }

 private:
  std::unique_ptr<ProgressTeller> progress_ = std::make_unique<ProgressTeller>();
  std::map<std::int32_t, std::unique_ptr<Database>> open_;
  std::int32_t last_ = 0;
};

}  // namespace quorvel::hub
