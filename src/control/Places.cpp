// Keeping the place: from one build to the next, from view to view, and from a row of the list to its node.
#include <string>

#include "control/ucProcessLog.h"
#include "datasource/Contract.h"
#include "list/Classification.h"
#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using widgets::NodeId;

tree::Place ucProcessLog::SelectedPlace() const {
  if (toReturnTo_) return toReturnTo_->node;
  const widgets::TreeView& tree = controls_.tvMotherList;
  if (tree.Selected() != NodeId::kNone) return tree::PlaceOf(tree, tree.Selected());
  return tree.Count() > 0 ? tree::PlaceOf(tree, tree.Child(NodeId::kNone, 0)) : tree::Place{};
}

Standing ucProcessLog::StandingNow() const {
  if (toReturnTo_) return *toReturnTo_;
  const widgets::TreeView& tree = controls_.tvMotherList;
  Standing standing{.node = SelectedPlace(), .open = OpenNodesUnder(tree, NodeId::kNone)};
  standing.tops = PlacesInSight(tree);
  standing.taken = true;
  if (tree.Selected() != NodeId::kNone) standing.listOf = tree.Key(tree.Selected());
  if (shown_.view == View::kSystem) standing.listOf = util::kSystemPrefix;
  standing.list = StandingIn(controls_.lvMotherList);
  return standing;
}

Standing ucProcessLog::StandingFor(bool refresh) const {
  const bool stands = toReturnTo_ || controls_.tvMotherList.Count() > 0;
  return refresh && stands ? StandingNow() : Standing{.node = tree::PlaceOfKey(f_strKey)};
}

std::string ucProcessLog::SelectedKey() const {
  std::string key;
  for (const tree::PlaceStep& step : SelectedPlace()) {
    if (!step.fields.starts_with(util::kKeySeparator)) key.clear();
    key.append(step.fields);
  }
  return key;
}

void ucProcessLog::SelectAfterBuild(const Standing& standing) {
  widgets::TreeView& tree = controls_.tvMotherList;
  if (tree.Count() == 0) return;
  NodeId node = NodeId::kNone;
  try {
    DescendTo(standing.node, node);
  } catch (...) {
    if (node != NodeId::kNone) {
      OpenWayTo(node);
      tree.Select(node);
    }
    throw;
  }
  // Keys of alarms do not say under which owner; their tree is there whole.
  if (node == NodeId::kNone && standing.node.size() == 1) node = tree.Find(standing.node.front().fields);
  choseNode_ = node != NodeId::kNone;
  if (node == NodeId::kNone) node = tree.Child(NodeId::kNone, 0);
  OpenWayTo(node);
  HandleNodeClick(node);
  if (standing.taken && tree.Key(node) == standing.listOf) Restore(standing.list, platform_, controls_.lvMotherList);
  OpenAgain(NodeId::kNone, standing.open);
  if (standing.taken) ScrollBack(standing.tops);
  toReturnTo_.reset();
}

void ucProcessLog::OpenAgain(NodeId parent, const std::vector<OpenNode>& open) {
  widgets::TreeView& tree = controls_.tvMotherList;
  for (const auto& [again, node] : FindNodes(tree, parent, open)) {
    LoadNode(node);
    OpenAgain(node, again->below);
    tree.SetExpanded(node, true);
  }
}

// To the first of these that is there; where none is, to what is left of the way to the first.
void ucProcessLog::ScrollBack(const std::vector<tree::Place>& tops) {
  widgets::TreeView& tree = controls_.tvMotherList;
  NodeId nearest = NodeId::kNone;
  for (const tree::Place& place : tops) {
    NodeId node = NodeId::kNone;
    std::size_t next = 0;
    for (; next < place.size(); ++next) {
      const NodeId child = tree::ChildOnWay(tree, node, place, next);
      if (child == NodeId::kNone) break;
      node = child;
    }
    if (next == place.size()) return tree.ScrollTo(node);
    if (nearest == NodeId::kNone) nearest = node;
  }
  tree.ScrollTo(nearest);
}

void ucProcessLog::DescendTo(const tree::Place& place, NodeId& reached) {
  const widgets::TreeView& tree = controls_.tvMotherList;
  for (std::size_t i = 0; i < place.size(); ++i) {
    if (reached != NodeId::kNone) LoadNode(reached);
    NodeId next = tree::ChildOnWay(tree, reached, place, i);
    if (next == NodeId::kNone && reached != NodeId::kNone) {
      // The station may be in another state by now, or the state be derived: its run knows.
      const ClickRoutine kind = RouteOf(tree.Key(reached)).click;
      if (kind == ClickRoutine::kNodeCurrentProcess && i + 1 < place.size()) next = FindInGroups(reached, place[++i]);
      if (kind == ClickRoutine::kNodeState) next = FindInGroups(tree.Parent(reached), place[i]);
    }
    if (next == NodeId::kNone) return;
    reached = next;
  }
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

// The row's key tells, so a step is found whatever its icon.
NodeId ucProcessLog::NodeOfRow(NodeId node, std::size_t row) {
  const widgets::TreeView& tree = controls_.tvMotherList;
  LoadNode(node);
  const std::string nodeKey(tree.Key(node));
  const ClickRoutine kind = RouteOf(nodeKey).click;
  if (kind == ClickRoutine::kNodeBackupFiles) return NodeId::kNone;  // files are numbered, folders are not files
  if (kind == ClickRoutine::kNodeProcessNameInImports) {
    const std::string rowKey = controls_.lvMotherList.Key(row);
    return tree::ChildAt(tree, node, {std::string(util::kKeySeparator).append(util::Identifiant(rowKey, 1))});
  }
  const std::string above = std::string(util::kKeySeparator) + nodeKey;
  // A row carries the key of its node, or its own number before that of the node that the list stands for.
  tree::PlaceStep step{controls_.lvMotherList.Key(row)};
  if (step.fields.ends_with(above)) {
    step.fields.resize(step.fields.size() - above.size());
    step.fields.insert(0, util::kKeySeparator);
    if (list::IsCurrentProcessName(nodeKey)) return FindInGroups(node, step);
  }
  // Rows and children come in the same order: where keys repeat, the place tells them apart.
  const std::size_t place = controls_.lvMotherList.SourceRow(row);
  if (place < tree.ChildCount(node) && tree::KeyAt(tree, node, step) == tree.Key(tree.Child(node, place))) {
    return tree.Child(node, place);
  }
  const NodeId child = tree::ChildAt(tree, node, step);
  return child == NodeId::kNone ? NodeBelow(node, controls_.lvMotherList.Key(row)) : child;
}

// The list of a month names connections, which may stand under their days.
NodeId ucProcessLog::NodeBelow(NodeId node, std::string_view key) {
  const widgets::TreeView& tree = controls_.tvMotherList;
  if (!key.starts_with(std::string(tree.Key(node)).append(util::kKeySeparator))) return NodeId::kNone;
  NodeId reached = NodeId::kNone;
  DescendTo(tree::PlaceOfKey(key), reached);
  return reached != NodeId::kNone && tree.Key(reached) == key ? reached : NodeId::kNone;
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
  const auto commands = AskCommands(stepLog);
  if (commands.count <= 0) return {};
  datasource::RequireColumns("GetCommandLogByStepLog", commands.records, static_cast<std::size_t>(commands.count));
  return context_.ConnectionsKey(commands.records.dtCommunicationDate[0], commands.records.lngCommunicationId[0]);
}

}  // namespace quorvel
