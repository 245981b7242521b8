#include "control/Routing.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel {
namespace {

using Expand = ExpandRoutine;
using Click = ClickRoutine;

constexpr NodeRoute kRoutes[] = {
    {util::kProcessPrefix, 2, Expand::kNone, Click::kNodeAllProcess},      // process
    {util::kProcessPrefix, 4, Expand::kNone, Click::kNodeCurrentProcess},  // run
    {util::kProcessPrefix, 5, Expand::kStateGroup, Click::kNodeState},     // state group
    {util::kProcessPrefix, 6, Expand::kExpandUser, Click::kNodeUser},      // station
    {util::kProcessPrefix, 7, Expand::kExpandTask, Click::kNodeTask},      // task
    {util::kProcessPrefix, 9, Expand::kNone, Click::kNodeStep},            // step
    {util::kUserPrefix, 2, Expand::kNone, Click::kNodeProcess},            // station
    {util::kUserPrefix, 3, Expand::kExpandProcess, Click::kNodeAllProcess},
    {util::kUserPrefix, 5, Expand::kExpandUser, Click::kNodeUserRun},
    {util::kUserPrefix, 6, Expand::kExpandTask, Click::kNodeTask},
    {util::kUserPrefix, 8, Expand::kNone, Click::kNodeStep},
    {util::kCommunicationPrefix, 2, Expand::kNodeMonthCommunications, Click::kNodeMonthCommunications},  // month
    {util::kCommunicationPrefix, 3, Expand::kExpandCommunications, Click::kNodeCommunications},          // day
    {util::kCommunicationPrefix, 4, Expand::kNone, Click::kNodeCommunications},                          // connection
    {util::kAlarmDayPrefix, 3, Expand::kNone, Click::kNodeDayDateInAlarms},
    {util::kAlarmUserPrefix, 2, Expand::kNone, Click::kNodeUserNameInAlarms},
    {util::kAlarmUserPrefix, 4, Expand::kNone, Click::kNodeDayDateInAlarms},
    {util::kAlarmOneUserPrefix, 2, Expand::kNone, Click::kNodeUserNameInAlarms},
    {util::kAlarmOneUserPrefix, 4, Expand::kNone, Click::kNodeDayDateInAlarms},
    {util::kAlarmAllPrefix, 2, Expand::kNone, Click::kNodeUserNameInAlarms},
    {util::kAlarmAllPrefix, 4, Expand::kNone, Click::kNodeDayDateInAlarms},
    {util::kImportPrefix, 3, Expand::kNone, Click::kNodeProcess},                        // import
    {util::kImportPrefix, 4, Expand::kExpandImports, Click::kNodeProcessNameInImports},  // process of an import
    {util::kImportPrefix, 5, Expand::kNone, Click::kNodeProcessNameInImports},           // run of that process
    {util::kServerBackupPrefix, 3, Expand::kExpandBackupLevel1, Click::kListAllSubNodes},
    {util::kServerBackupPrefix, 4, Expand::kExpandBackupLevel2, Click::kListAllSubNodes},
    {util::kServerBackupPrefix, 5, Expand::kExpandBackupLevel3, Click::kListAllSubNodes},
    {util::kServerBackupPrefix, 6, Expand::kExpandBackupLevel4, Click::kListAllSubNodes},
    {util::kServerBackupPrefix, 7, Expand::kNone, Click::kListAllSubNodes},
    {util::kServerBackupPrefix, 10, Expand::kExpandBackupLevel5, Click::kNodeBackupFiles},
    {util::kServerBackupPrefix, 11, Expand::kNone, Click::kNodeBackupFiles},  // folder of a backup
    {util::kStationBackupPrefix, 3, Expand::kExpandBackupLevel1, Click::kListAllSubNodes},
    {util::kStationBackupPrefix, 4, Expand::kExpandBackupLevel2, Click::kListAllSubNodes},
    {util::kStationBackupPrefix, 5, Expand::kExpandBackupLevel3, Click::kListAllSubNodes},
    {util::kStationBackupPrefix, 6, Expand::kExpandBackupLevel4, Click::kListAllSubNodes},
    {util::kStationBackupPrefix, 7, Expand::kNone, Click::kListAllSubNodes},
    {util::kStationBackupPrefix, 10, Expand::kExpandBackupLevel5, Click::kNodeBackupFiles},
    {util::kStationBackupPrefix, 11, Expand::kNone, Click::kNodeBackupFiles},
    {"List", 1, Expand::kNone, Click::kListAllSubNodes},  // system log
};
constexpr NodeRoute kNoRoute{"", 0, ExpandRoutine::kNone, ClickRoutine::kNone};

struct TabView {
  tlFromType fromType;
  std::string_view tab;  // "" = any other tab
  View view;
};

constexpr TabView kTabViews[] = {
    {tlFromType::tlAllOnStation, "Backups", View::kBackups},
    {tlFromType::tlAllOnStation, "Alarms", View::kAlarms},
    {tlFromType::tlAllOnStation, "Connections", View::kConnections},
    {tlFromType::tlAllOnStation, "", View::kUsers},
    {tlFromType::tlOneUser, "", View::kUsers},
    {tlFromType::tlOneCompany, "Users", View::kUsers},
    {tlFromType::tlOneCompany, "", View::kProcesses},
    {tlFromType::tlAllProcess, "Users", View::kUsers},
    {tlFromType::tlAllProcess, "", View::kProcesses},
    {tlFromType::tlOneProcess, "Processes", View::kProcesses},
    {tlFromType::tlOneProcess, "Users", View::kUsers},
    {tlFromType::tlOneProcess, "Connections", View::kConnections},
    {tlFromType::tlOneProcess, "System", View::kSystem},
    {tlFromType::tlOneProcess, "Alarms", View::kAlarms},
    {tlFromType::tlOneProcess, "Backups", View::kBackups},
    {tlFromType::tlAllAlarms, "", View::kAlarms},
};

}  // namespace

std::span<const NodeRoute> NodeRoutes() {
  return kRoutes;
}

const NodeRoute& RouteOf(std::string_view key) {
  const std::vector<std::string_view> parts = util::SplitKey(key);
  const auto* const found = std::ranges::find_if(kRoutes, [&](const NodeRoute& route) {
    std::vector<std::string_view> pattern(route.fields, "?");
    pattern.front() = route.prefix;
    return util::IsKeyNode(parts, pattern);
  });
  return found == std::end(kRoutes) ? kNoRoute : *found;
}

std::string_view NameOf(View view) {
  static constexpr std::string_view kNames[] = {"",       "Processes", "Users",   "Connections",
                                                "System", "Alarms",    "Backups", "User imports"};
  return kNames[static_cast<std::size_t>(view)];
}

View ViewOfTab(tlFromType fromType, std::string_view tabCaption) {
  const auto* const found = std::ranges::find_if(kTabViews, [&](const TabView& row) {
    return row.fromType == fromType && (row.tab.empty() || row.tab == tabCaption);
  });
  return found == std::end(kTabViews) ? View::kNone : found->view;
}

}  // namespace quorvel
