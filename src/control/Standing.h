// Where a user stands in a view, so that the view can be built again without moving anything.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "tree/Place.h"
#include "widgets/ListView.h"
#include "widgets/TreeView.h"

namespace quorvel {

// An open node, and the open ones among its children.
struct OpenNode {
  std::string key;
  std::size_t ordinal = 0;  // among the nodes beside it with that key, from 0
  std::vector<OpenNode> below = {};
};

// A row that a user would miss.
struct KnownRow {
  std::string key;
  std::size_t ordinal = 0;  // among the rows of that key, from 0
  bool selected = false;
};

// What the user made of a list.
struct ListStanding {
  std::vector<widgets::ColumnHeader> headers = {};
  std::int32_t sortKey = 0;
  widgets::SortOrder sortOrder = widgets::SortOrder::kAscending;
  bool allSelected = false;
  std::vector<KnownRow> rows = {};       // those selected, unless all are, and those below
  std::optional<std::size_t> item = {};  // of these, the one that commands act on
  std::vector<std::size_t> tops = {};    // and, where the list is scrolled, the first ones in sight
  widgets::Twips left = 0;               // how far it is scrolled sideways
};

struct Standing {
  tree::Place node = {};            // the selected one
  std::vector<OpenNode> open = {};  // those at the root
  // The rest only where it was taken down; else the way is all there is, and what is in sight is left alone.
  bool taken = false;
  std::vector<tree::Place> tops = {};  // where the tree is scrolled, the first nodes in sight
  std::string listOf = {};             // key of the node that the list shows, "" = of none
  ListStanding list = {};
};

// The nodes that are open under `parent` (kNone = the root) and what is open below them.
std::vector<OpenNode> OpenNodesUnder(const widgets::TreeView& tree, widgets::NodeId parent);

// Each of these that stands under `parent` now, with its node.
struct FoundNode {
  const OpenNode* open = nullptr;
  widgets::NodeId node = widgets::NodeId::kNone;
};
std::vector<FoundNode> FindNodes(const widgets::TreeView& tree, widgets::NodeId parent,
                                 const std::vector<OpenNode>& open);

// The first nodes in sight, of which one will do when others are gone; none where the tree is not scrolled.
std::vector<tree::Place> PlacesInSight(const widgets::TreeView& tree);

ListStanding StandingIn(const widgets::ListView& list);

// Makes a list that was filled anew look as it did: where the columns are the same, their widths and the order that the
// user sorted by; the selection and what was in sight, as far as the rows are there. Errors are those of the sort.
void Restore(const ListStanding& standing, const Platform& platform, widgets::ListView& list);

}  // namespace quorvel
