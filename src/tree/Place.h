// A place in a tree that outlives the tree: where to go back to when the same view, or another, was built anew.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/TreeView.h"

namespace quorvel::tree {

// One level on the way from the root.
struct PlaceStep {
  std::string fields;       // what the node's key adds to that of the node above, "|12"; else the whole key
  std::size_t ordinal = 0;  // among the nodes beside it with that key, from 0
};

// The way from a root to a node; empty = nowhere.
using Place = std::vector<PlaceStep>;

// Where a node stands, in all the levels that its key names, whether the tree shows each of them or not; nowhere for
// kNone.
Place PlaceOf(const widgets::TreeView& tree, widgets::NodeId node);

// Where a node of that key would stand: at each length that keys of its view have. Keys of other views are one step.
Place PlaceOfKey(std::string_view key);

// The same for a key that stands for the node `leftKey` in another view. Such a key carries fields of earlier, deeper
// selections; the place goes no deeper than the node that was left.
Place EquivalentPlace(std::string_view leftKey, std::string_view key);

// The key that a step has under `parent` (kNone = the root).
std::string KeyAt(const widgets::TreeView& tree, widgets::NodeId parent, const PlaceStep& step);

// The child of `parent` (kNone = the root) at a step; kNone when there is none. Looks through the children.
widgets::NodeId ChildAt(const widgets::TreeView& tree, widgets::NodeId parent, const PlaceStep& step);

// The child of `parent` (kNone = the root) on a way of which step `index` comes next: at that step, or at it and those
// that follow as one, where the tree leaves levels out. Sets `index` to the last step taken. kNone when there is none.
widgets::NodeId ChildOnWay(const widgets::TreeView& tree, widgets::NodeId parent, const Place& place,
                           std::size_t& index);

}  // namespace quorvel::tree
