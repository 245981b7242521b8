// What mouse and keyboard do to tree and list where no widgets are: the same as a front end's.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "control/ucProcessLog.h"
#include "scenario/Keys.h"
#include "scenario/ScenarioPort.h"

namespace quorvel::scenario {

class HeadlessPanes {
 public:
  // Which must outlive it.
  explicit HeadlessPanes(ucProcessLog& viewer) : viewer_(viewer) {}

  // Presses and releases the left button on a row, or on the space below the rows.
  void PressRow(std::optional<std::size_t> row, Held held);

  // Keys with a meaning of the pane's own; others do nothing. A page is all that there is.
  void PressKeyInTree(const Key& key);
  void PressKeyInList(const Key& key);
  void TypeInTree(std::string_view text);
  void TypeInList(std::string_view text);

 private:
  void GoTo(widgets::NodeId node);
  void GoToParentOf(widgets::NodeId node);
  void OpenOrGoDown(widgets::NodeId node);
  std::vector<widgets::NodeId> ShownNodes() const;

  void MoveInList(KeyCode code, bool extend);
  void Select(std::size_t row, Held held);
  // As a user: the viewer hears of it when it is another one.
  void SetSelection(widgets::RowRanges rows, std::optional<std::size_t> item);

  ucProcessLog& viewer_;
  widgets::TreeView& tree_ = viewer_.controls().tvMotherList;
  widgets::ListView& list_ = viewer_.controls().lvMotherList;
  std::optional<std::size_t> anchor_;  // where a selection by Shift begins
};

}  // namespace quorvel::scenario
