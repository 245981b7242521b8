// Keeping the place: from one build to the next, from view to view, and from a row of the list to its node.
#include <string>

#include "control/ucProcessLog.h"
#include "datasource/Contract.h"
#include "list/Classification.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using widgets::NodeId;

tree::Place ucProcessLog::SelectedPlace() const {
  const widgets::TreeView& tree = controls_.tvMotherList;
  if (tree.Selected() != NodeId::kNone) return tree::PlaceOf(tree, tree.Selected());
  return tree.Count() > 0 ? tree::PlaceOf(tree, tree.Child(NodeId::kNone, 0)) : placeToReturnTo_;
}

std::string ucProcessLog::SelectedKey() const {
  std::string key;
  for (const tree::PlaceStep& step : SelectedPlace()) {
    if (!step.fields.starts_with(util::kKeySeparator)) key.clear();
    key.append(step.fields);
  }
  return key;
}

void ucProcessLog::SelectAfterBuild(const tree::Place& place) {
  widgets::TreeView& tree = controls_.tvMotherList;
  if (tree.Count() == 0) return;
  NodeId node = DescendTo(place);
  if (node == NodeId::kNone) node = tree.Child(NodeId::kNone, 0);
  OpenWayTo(node);
  HandleNodeClick(node);
}

NodeId ucProcessLog::DescendTo(const tree::Place& place) {
  const widgets::TreeView& tree = controls_.tvMotherList;
  NodeId node = NodeId::kNone;
  for (std::size_t i = 0; i < place.size(); ++i) {
    if (node != NodeId::kNone) LoadNode(node);
    NodeId next = tree::ChildAt(tree, node, place[i]);
    if (next == NodeId::kNone && node != NodeId::kNone) {
      // The station may be in another state by now, or the state be derived: its run knows.
      const ClickRoutine kind = RouteOf(tree.Key(node)).click;
      if (kind == ClickRoutine::kNodeCurrentProcess && i + 1 < place.size()) next = FindInGroups(node, place[++i]);
      if (kind == ClickRoutine::kNodeState) next = FindInGroups(tree.Parent(node), place[i]);
    }
    if (next == NodeId::kNone) break;
    node = next;
  }
  return node;
}

NodeId ucProcessLog::FindInGroups(NodeId run, const tree::PlaceStep& station) {
  const widgets::TreeView& tree = controls_.tvMotherList;
  for (std::size_t row = 0; row < tree.ChildCount(run); ++row) {
    const NodeId group = tree.Child(run, row);
    LoadNode(group);
    const NodeId found = tree::ChildAt(tree, group, station);
    if (found != NodeId::kNone) return found;
  }
  return NodeId::kNone;
}

void ucProcessLog::OpenWayTo(NodeId node) {
  widgets::TreeView& tree = controls_.tvMotherList;
  tree.InBatch([&] {
    for (NodeId parent = tree.Parent(node); parent != NodeId::kNone; parent = tree.Parent(parent)) {
      tree.SetExpanded(parent, true);
    }
  });
}

NodeId ucProcessLog::NodeOfRow(NodeId node, std::string_view rowKey) {
  const widgets::TreeView& tree = controls_.tvMotherList;
  LoadNode(node);
  const std::string nodeKey(tree.Key(node));
  const std::string above = std::string(util::kKeySeparator) + nodeKey;
  // A row carries the key of its node, or its own number before that of the node that the list stands for.
  tree::PlaceStep step{std::string(rowKey)};
  if (rowKey.ends_with(above)) {
    step.fields = std::string(util::kKeySeparator) + std::string(rowKey.substr(0, rowKey.size() - above.size()));
  }
  const NodeId child = tree::ChildAt(tree, node, step);
  if (child != NodeId::kNone) return child;
  return list::IsCurrentProcessName(nodeKey) ? FindInGroups(node, step) : NodeId::kNone;
}

std::string ucProcessLog::GetNextContextKeyInLogs(std::string_view key, std::string_view view) {
  return datasource::Logging(errors_, "Quorvel: ucProcessLog.GetNextContextKeyInLogs", std::string(), [&] {
    if (key.empty()) return std::string();
    context_.SaveContextLog(key, controls_.tvMotherList);
    if (view == "Processes") return context_.ProcessesKey();
    if (view == "Users") return context_.UsersKey();
    return view == "Connections" ? ConnectionsContextKey() : std::string();
  });
}

std::string ucProcessLog::ConnectionsContextKey() {
  if (context_.ContextStepLog.empty()) return {};
  const std::int32_t stepLog = util::IdentifiantNumber(context_.ContextStepLog, 1);
  if (stepLog == 0) return {};
  datasource::CommandLog& source = CommandLogSource();
  std::int32_t status = 0;
  source.GetCommandLogByStepLog(f_lngConnect, stepLog, status);
  std::string key;
  if (status == 0 && source.lngCount() > 0) {
    const auto& rows = source.Records();
    datasource::RequireColumns("GetCommandLogByStepLog", rows, static_cast<std::size_t>(source.lngCount()));
    key = context_.ConnectionsKey(rows.dtCommunicationDate[0], rows.lngCommunicationId[0]);
  }
  source.CloseCommandLogByStepLog(f_lngConnect);
  return key;
}

}  // namespace quorvel
