#include "tree/Place.h"

#include <algorithm>
#include <iterator>

#include "tree/NodeKey.h"

namespace quorvel::tree {
namespace {

using widgets::NodeId;
using widgets::TreeView;

// How deep a kind of node lies, in terms that the views share: 1 process, 2 run, 3 station of a run, 4 task, 5 step.
// Leaving a node and arriving at one differ where a view names more, or less, than the other at that level.
struct Level {
  std::string_view prefix;
  std::size_t fields;
  int left;     // what is known when such a node was left
  int arrived;  // what must be known to go to such a node
};

constexpr int kDeepest = 5;

// Months, days and connections say nothing of processes: who leaves one goes back to where the other view was left. A
// connection is known by the step that it carried, so a step must be known to go to one, and to its day and month too:
// those of another step would mislead. Backups and imports have no equivalent anywhere; they are here for keys that a
// host gives.
constexpr Level kLevels[] = {
    {kProcessPrefix, 2, 1, 1},
    {kProcessPrefix, 4, 2, 2},
    {kProcessPrefix, 5, 2, 3},
    {kProcessPrefix, 6, 3, 3},
    {kProcessPrefix, 7, 4, 4},
    {kProcessPrefix, 9, 5, 5},
    {kUserPrefix, 2, 0, 1},
    {kUserPrefix, 3, 1, 1},
    {kUserPrefix, 5, 3, 2},
    {kUserPrefix, 6, 4, 4},
    {kUserPrefix, 8, 5, 5},
    {kCommunicationPrefix, 2, kDeepest, 5},
    {kCommunicationPrefix, 3, kDeepest, 5},
    {kCommunicationPrefix, 4, kDeepest, 5},
    {kServerBackupPrefix, 3, kDeepest, 0},
    {kServerBackupPrefix, 4, kDeepest, 0},
    {kServerBackupPrefix, 5, kDeepest, 0},
    {kServerBackupPrefix, 6, kDeepest, 0},
    {kServerBackupPrefix, 7, kDeepest, 0},
    {kServerBackupPrefix, 10, kDeepest, 0},
    {kServerBackupPrefix, 11, kDeepest, 0},
    {kStationBackupPrefix, 3, kDeepest, 0},
    {kStationBackupPrefix, 4, kDeepest, 0},
    {kStationBackupPrefix, 5, kDeepest, 0},
    {kStationBackupPrefix, 6, kDeepest, 0},
    {kStationBackupPrefix, 7, kDeepest, 0},
    {kStationBackupPrefix, 10, kDeepest, 0},
    {kStationBackupPrefix, 11, kDeepest, 0},
    {util::kImportPrefix, 3, kDeepest, 0},
    {util::kImportPrefix, 4, kDeepest, 0},
    {util::kImportPrefix, 5, kDeepest, 0},
};

int LevelLeft(std::string_view key) {
  const std::size_t fields = util::SplitKey(key).size();
  const std::string_view prefix = util::Identifiant(key, 1);
  const auto* const found = std::ranges::find_if(
      kLevels, [&](const Level& level) { return level.prefix == prefix && level.fields == fields; });
  return found == std::end(kLevels) ? kDeepest : found->left;
}

// The part of a key that lies before its field `fields`, counted from 0.
std::size_t LengthOfFields(std::string_view key, std::size_t fields) {
  std::size_t end = 0;
  for (std::size_t field = 0; field < fields; ++field) {
    end = key.find(util::kKeySeparator, field == 0 ? 0 : end + 1);
    if (end == std::string_view::npos) return key.size();
  }
  return end;
}

constexpr int kAnyDepth = 9;

// Appends a step for each level, down to `deepest`, that a key names behind its first `from` characters. Gives where
// the last of them ends.
std::size_t AppendSteps(std::string_view key, std::size_t from, int deepest, Place& place) {
  const std::size_t fields = util::SplitKey(key).size();
  const std::string_view prefix = util::Identifiant(key, 1);
  for (const Level& level : kLevels) {
    if (level.prefix != prefix) continue;
    if (level.fields > fields || level.arrived > deepest) break;
    const std::size_t end = LengthOfFields(key, level.fields);
    if (end <= from) continue;
    place.push_back({std::string(key.substr(from, end - from))});
    from = end;
  }
  return from;
}

Place PlaceDownTo(std::string_view key, int deepest) {
  Place place;
  AppendSteps(key, 0, deepest, place);
  const bool known = std::ranges::find(kLevels, util::Identifiant(key, 1), &Level::prefix) != std::end(kLevels);
  if (!known && !key.empty()) place.push_back({std::string(key)});
  return place;
}

std::size_t OrdinalOf(const TreeView& tree, NodeId node) {
  const auto siblings = tree.Children(tree.Parent(node)).first(tree.RowOf(node));
  const std::string_view key = tree.Key(node);
  return static_cast<std::size_t>(
      std::ranges::count_if(siblings, [&](NodeId sibling) { return tree.Key(sibling) == key; }));
}

}  // namespace

Place PlaceOf(const TreeView& tree, NodeId node) {
  if (node == NodeId::kNone) return {};
  const NodeId parent = tree.Parent(node);
  Place place = PlaceOf(tree, parent);
  const std::string_view above = parent == NodeId::kNone ? std::string_view() : tree.Key(parent);
  const std::string_view key = tree.Key(node);
  const std::size_t from = key.starts_with(above) ? above.size() : 0;
  const std::size_t levels = place.size();
  const std::size_t end = AppendSteps(key, from, kAnyDepth, place);
  if (end < key.size() || place.size() == levels) place.push_back({std::string(key.substr(end))});
  place.back().ordinal = OrdinalOf(tree, node);
  return place;
}

Place PlaceOfKey(std::string_view key) {
  return PlaceDownTo(key, kAnyDepth);
}

Place EquivalentPlace(std::string_view leftKey, std::string_view key) {
  // Back in the view that was left, its own levels tell.
  if (util::Identifiant(leftKey, 1) == util::Identifiant(key, 1)) {
    return PlaceOfKey(key.substr(0, LengthOfFields(key, util::SplitKey(leftKey).size())));
  }
  return PlaceDownTo(key, LevelLeft(leftKey));
}

std::string KeyAt(const TreeView& tree, NodeId parent, const PlaceStep& step) {
  const bool extends = parent != NodeId::kNone && step.fields.starts_with(util::kKeySeparator);
  return std::string(extends ? tree.Key(parent) : std::string_view()).append(step.fields);
}

NodeId ChildAt(const TreeView& tree, NodeId parent, const PlaceStep& step) {
  const std::string key = KeyAt(tree, parent, step);
  std::size_t before = 0;
  NodeId found = NodeId::kNone;
  for (const NodeId child : tree.Children(parent)) {
    if (tree.Key(child) != key) continue;
    found = child;
    if (before++ == step.ordinal) break;
  }
  return found;
}

NodeId ChildOnWay(const TreeView& tree, NodeId parent, const Place& place, std::size_t& index) {
  if (index >= place.size()) return NodeId::kNone;
  PlaceStep step = place[index];
  for (std::size_t last = index;;) {
    const NodeId child = ChildAt(tree, parent, step);
    if (child != NodeId::kNone) {
      index = last;
      return child;
    }
    if (++last == place.size() || !place[last].fields.starts_with(util::kKeySeparator)) return NodeId::kNone;
    step.fields.append(place[last].fields);
    step.ordinal = place[last].ordinal;
  }
}

}  // namespace quorvel::tree
