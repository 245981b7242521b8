// The list that shows the children of a tree node as they stand.
#pragma once

#include <memory>

#include "widgets/ListView.h"
#include "widgets/TreeView.h"

namespace quorvel::list {

// A row for each child of `node`: its text, key and image. The texts are taken over, so the rows stay when the tree
// changes.
std::shared_ptr<const widgets::RowSource> ChildRows(const widgets::TreeView& tree, widgets::NodeId node);

}  // namespace quorvel::list
