// The lists that show the children of a tree node as they stand.
#pragma once

#include <string_view>

#include "list/ListParts.h"
#include "widgets/TreeView.h"

namespace quorvel::list {

// A row for each child of `node`: its text, key, image, colour and weight. The texts are taken over, so the rows stay
// when the tree changes.
Rows ChildRows(const widgets::TreeView& tree, widgets::NodeId node);

// The one column of ListAllSubNodes, in a list so wide, which leaves room to read on beside short texts.
Headers SubNodeHeaders(std::string_view caption, widgets::Twips listWidth);

}  // namespace quorvel::list
