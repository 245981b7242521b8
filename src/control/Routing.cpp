#include "control/Routing.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "tree/NodeKey.h"
#include "util/PublicFunctions.h"

namespace quorvel {
namespace {

constexpr NodeRoute kRoutes[] = {
    {tree::kProcessPrefix, 2, ExpandRoutine::kNone, ClickRoutine::kNodeProcess},        // process
    {tree::kProcessPrefix, 4, ExpandRoutine::kNone, ClickRoutine::kNodeProcess},        // run
    {tree::kProcessPrefix, 5, ExpandRoutine::kStateGroup, ClickRoutine::kNodeProcess},  // state group
    {tree::kProcessPrefix, 6, ExpandRoutine::kNone, ClickRoutine::kNodeProcess},        // station
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

const NodeRoute& RouteOf(std::string_view key) {
  const std::vector<std::string_view> parts = util::SplitKey(key);
  const auto* const found = std::ranges::find_if(kRoutes, [&](const NodeRoute& route) {
    std::vector<std::string_view> pattern(route.fields, "?");
    pattern.front() = route.prefix;
    return util::IsKeyNode(parts, pattern);
  });
  return found == std::end(kRoutes) ? kNoRoute : *found;
}

View ViewOfTab(tlFromType fromType, std::string_view tabCaption) {
  const auto* const found = std::ranges::find_if(kTabViews, [&](const TabView& row) {
    return row.fromType == fromType && (row.tab.empty() || row.tab == tabCaption);
  });
  return found == std::end(kTabViews) ? View::kNone : found->view;
}

}  // namespace quorvel
