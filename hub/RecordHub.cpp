#include "hub/RecordHub.h"

#include <algorithm>
#include <string>
#include <utility>

#include "datasource/AlarmsLog.h"
#include "datasource/CommandLog.h"
#include "datasource/Current.h"
#include "datasource/Labels.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/Saves.h"
#include "datasource/StepLog.h"
#include "datasource/TaskSchedulerLog.h"
#include "datasource/UsersImport.h"
#include "hub/sqlite/Connections.h"
#include "hub/sqlite/HistoryFile.h"
#include "hub/sqlite/RecordSources.h"

namespace quorvel::hub {
namespace {

constexpr std::string_view kScheme = "sqlite:";
constexpr std::string_view kReadOnlyMode = "?mode=ro";

struct SourceClass {
  std::string_view identifier;
  std::unique_ptr<datasource::RecordSource> (*create)(std::shared_ptr<const Connections>);
};

constexpr SourceClass kClasses[] = {
    {datasource::ProcessLog::kClassIdentifier, CreateProcessLog},
    {datasource::Quorvel::kClassIdentifier, CreateTaskRuns},
    {datasource::StepLog::kClassIdentifier, CreateStepLog},
    {datasource::CommandLog::kClassIdentifier, CreateCommandLog},
    {datasource::AlarmsLog::kClassIdentifier, CreateAlarmsLog},
    {datasource::Saves::kClassIdentifier, CreateSaves},
    {datasource::UsersImport::kClassIdentifier, CreateUsersImport},
    {datasource::TaskSchedulerLog::kClassIdentifier, CreateTaskSchedulerLog},
    {datasource::Labels::kClassIdentifier, CreateLabels},
    {datasource::Current::kClassIdentifier, CreateCurrent},
};

}  // namespace

RecordHub::RecordHub() : connections_(std::make_shared<Connections>()) {}

RecordHub::~RecordHub() {
  connections_->CloseAll();
}

std::int32_t RecordHub::OpenConnection(std::string_view url) {
  if (!url.starts_with(kScheme) || url == kScheme) {
    throw HubError(SystemError::kInvalidCall,
                   "\"" + std::string(url) + "\" is no history: a URL sqlite:PATH is expected");
  }
  url.remove_prefix(kScheme.size());
  const bool readOnly = url.ends_with(kReadOnlyMode);
  if (readOnly) url.remove_suffix(kReadOnlyMode.size());
  const std::filesystem::path file(std::u8string(url.begin(), url.end()));
  return connections_->Add(OpenHistory(file, readOnly ? Access::kReadOnly : Access::kReadWrite));
}

void RecordHub::CloseConnection(std::int32_t connection) {
  connections_->Close(connection);
}

void RecordHub::SetProgress(ProgressCallback callback, std::chrono::milliseconds interval) {
  connections_->SetProgress(std::move(callback), interval);
}

std::unique_ptr<datasource::RecordSource> RecordHub::Create(std::string_view classIdentifier,
                                                            std::string_view serverName) {
  const auto* const found = std::ranges::find(kClasses, classIdentifier, &SourceClass::identifier);
  if (found == std::end(kClasses)) {
    throw HubError(SystemError::kCannotCreateComponent, "Class \"" + std::string(classIdentifier) +
                                                            "\" cannot be created on server \"" +
                                                            std::string(serverName) + "\": this hub does not have it");
  }
  return found->create(connections_);
}

}  // namespace quorvel::hub
