// What is done to a whole tree at once: opening, closing, emptying it.
#pragma once

#include "widgets/TreeView.h"

namespace quorvel::util {

// Open every node that has children, close every node. Only what is loaded: a node that has nothing but a placeholder
// stays closed, for loading is the business of the tree's owner. The selection stays where it is, in a closed node too.
// The observer hears of all nodes once all are open or closed.
void ExpandAll(widgets::TreeView& tree);
void CollapseAll(widgets::TreeView& tree);

// The same for what stands under `parent`, at any depth and without `parent` itself (kNone = everything).
void ExpandAllRecurse(widgets::TreeView& tree, widgets::NodeId parent);
void CollapseAllRecurse(widgets::TreeView& tree, widgets::NodeId parent);

// Removes all nodes.
void ClearTreeview(widgets::TreeView& tree);

}  // namespace quorvel::util
