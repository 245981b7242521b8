// Going to an item by typing how it begins.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "widgets/ListView.h"
#include "widgets/TreeView.h"

namespace quorvel::util {

// What is typed in one go belongs together: "l", "o" looks for "lo". The first letter, and a letter typed again and
// again, leave the item where one is for the next one; every other letter stays at it while it fits. Letter case does
// not count; behind the last item comes the first.
class TypeAhead {
 public:
  // `afresh`: after a pause, or in another place.
  void Type(std::string_view letter, bool afresh);

  // The row to go to, by the text of the first column; nothing when none begins so. `current`: where one is.
  std::optional<std::size_t> FindRow(const widgets::ListView& list, std::optional<std::size_t> current) const;
  // The node to go to among those that no closed node hides; kNone when none begins so.
  widgets::NodeId FindNode(const widgets::TreeView& tree, widgets::NodeId current) const;

 private:
  bool Fits(std::string_view text) const;

  std::string typed_;
  std::string letter_;  // the one that all of `typed_` is, else ""
  bool leavesCurrent_ = true;
};

}  // namespace quorvel::util
