#include "hub/sqlite/Connections.h"

#include <string>
#include <utility>

namespace quorvel::hub {
namespace {

[[noreturn]] void RaiseNotOpen(std::int32_t connection) {
  throw HubError(SystemError::kInvalidCall, "Connection " + std::to_string(connection) + " is not open");
}

}  // namespace

std::int32_t Connections::Add(std::unique_ptr<Database> database) {
  progress_->Watch(*database);
  open_.emplace(++last_, std::move(database));
  return last_;
}

void Connections::Close(std::int32_t connection) {
  if (open_.erase(connection) == 0) RaiseNotOpen(connection);
}

void Connections::SetProgress(ProgressCallback callback, std::chrono::milliseconds interval) {
  progress_->SetCallback(std::move(callback), interval);
  for (const auto& [connection, database] : open_) progress_->Watch(*database);
}

const Database& Connections::At(std::int32_t connection) const {
  const auto found = open_.find(connection);
  if (found == open_.end()) RaiseNotOpen(connection);
  return *found->second;
}

}  // namespace quorvel::hub
