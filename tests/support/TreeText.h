// A tree as indented text, a node a line: "text [key] image".
#pragma once

#include <string>

#include "widgets/TreeView.h"

namespace quorvel::test {

inline std::string TreeText(const widgets::TreeView& tree, widgets::NodeId parent = widgets::NodeId::kNone,
                            int level = 0) {
  std::string text;
  for (const widgets::NodeId node : tree.Children(parent)) {
    text.append(static_cast<std::size_t>(2 * level), ' ');
    text.append(tree.Text(node)).append(" [").append(tree.Key(node)).append("] ").append(tree.Image(node));
    text.append(tree.HasPlaceholder(node) ? " +\n" : "\n");
    text += TreeText(tree, node, level + 1);
  }
  return text;
}

}  // namespace quorvel::test
