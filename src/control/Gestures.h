// What the user asks of the tree and of the list, as a front end tells it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>

#include "control/Enumerations.h"
#include "widgets/TreeView.h"

namespace quorvel {

// The owner of the tree opens, closes or selects the node, or does not; the view follows.
struct TreeGestures {
  std::function<void(widgets::NodeId)> expand;
  std::function<void(widgets::NodeId)> collapse;
  std::function<void(widgets::NodeId)> click;  // once a gesture, by mouse or keyboard; also on the node selected before
  // The right button came up over a node, which it has not selected yet, or over none. The keys for a menu are the
  // right button over none.
  std::function<void(MouseButton, widgets::NodeId)> mouseUp = {};
};

// The owner of the list does it. An empty one means that nobody cares.
struct ListGestures {
  std::function<void(std::size_t)> columnClick = {};  // on a header, counted from 1
  std::function<void()> doubleClick = {};             // on the row that is selected now
  std::function<void(std::int32_t)> keyDown = {};     // Enter, as key code 13; other keys are the list's own
  std::function<void()> selectionChanged = {};        // once a gesture, when it has changed the selection
  // After the left button has selected, before the right one selects anything. Without a row: on empty space. The keys
  // for a menu are the right button on the selected row.
  std::function<void(MouseButton, std::optional<std::size_t>)> mouseDown = {};
  std::function<void()> copy = {};       // the keys for it
  std::function<void()> selectAll = {};  // the same
};

// Calls a handler that may be missing.
template <class Handler, class... Values>
void Tell(const Handler& handler, Values... values) {
  if (handler) handler(values...);
}

}  // namespace quorvel
