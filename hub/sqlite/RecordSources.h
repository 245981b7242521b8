// Makes each record source over SQLite.
#pragma once

#include <memory>

#include "datasource/RecordSource.h"
#include "hub/sqlite/Connections.h"

namespace quorvel::hub {

std::unique_ptr<datasource::RecordSource> CreateProcessLog(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateTaskRuns(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateStepLog(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateCommandLog(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateAlarmsLog(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateSaves(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateUsersImport(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateTaskSchedulerLog(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateLabels(std::shared_ptr<const Connections> connections);
std::unique_ptr<datasource::RecordSource> CreateCurrent(std::shared_ptr<const Connections> connections);

}  // namespace quorvel::hub
