#include "scenario/HeadlessPanes.h"

#include <algorithm>
#include <utility>

#include "util/TypeAhead.h"

namespace quorvel::scenario {

using widgets::NodeId;
using widgets::RowRanges;

// A press on one of several selected rows makes it the selected item; that the others go is the end of the press, and
// that all go where there is no row.
void HeadlessPanes::PressRow(std::optional<std::size_t> row, Held held) {
  const bool keeps = held == Held::kNothing && row && list_.Selection().Contains(*row);
  if (keeps) SetSelection(list_.Selection(), row);
  if (row && !keeps) Select(*row, held);
  viewer_.lvMotherList_MouseDown(MouseButton::kLeft, row);
  if (keeps) Select(*row, held);
  if (!row && held == Held::kNothing) SetSelection({}, std::nullopt);
}

void HeadlessPanes::Select(std::size_t row, Held held) {
  RowRanges rows;
  if (held == Held::kShift) {
    const std::size_t from = anchor_.value_or(list_.SelectedItem().value_or(0));
    rows.Add({std::min(from, row), std::max(from, row) + 1});
  } else {
    if (held == Held::kCtrl) rows = list_.Selection();
    rows.Contains(row) ? rows.Remove({row, row + 1}) : rows.Add({row, row + 1});
    anchor_ = row;
  }
  const bool selected = rows.Contains(row);
  SetSelection(std::move(rows), selected ? std::optional(row) : std::nullopt);
}

void HeadlessPanes::SetSelection(RowRanges rows, std::optional<std::size_t> item) {
  const RowRanges rowsBefore = list_.Selection();
  const auto itemBefore = list_.SelectedItem();
  list_.SetSelection(std::move(rows), item);
  if (list_.Selection() != rowsBefore || list_.SelectedItem() != itemBefore) viewer_.lvMotherList_SelectionChanged();
}

void HeadlessPanes::PressKeyInList(const Key& key) {
  if (IsMenuKey(key)) return viewer_.lvMotherList_MouseDown(MouseButton::kRight, list_.SelectedItem());
  if (key == Key{.code = KeyCode::kEnter}) return viewer_.lvMotherList_KeyDown(13);
  if (key == Key{.code = KeyCode::kC, .ctrl = true}) return viewer_.mnu_copy_Click();
  if (key == Key{.code = KeyCode::kA, .ctrl = true}) return viewer_.mnu_select_all_Click();
  if (!key.ctrl) MoveInList(key.code, key.shift);
}

void HeadlessPanes::MoveInList(KeyCode code, bool extend) {
  if (list_.Count() == 0) return;
  const std::size_t last = list_.Count() - 1;
  const auto item = list_.SelectedItem();
  std::size_t row = item.value_or(0);
  switch (code) {
    case KeyCode::kUp:
      if (row > 0) --row;
      break;
    case KeyCode::kDown:
      if (item) row = std::min(row + 1, last);
      break;
    case KeyCode::kHome:
    case KeyCode::kPageUp:
      row = 0;
      break;
    case KeyCode::kEnd:
    case KeyCode::kPageDown:
      row = last;
      break;
    default:
      return;
  }
  Select(row, extend ? Held::kShift : Held::kNothing);
}

void HeadlessPanes::TypeInList(std::string_view text) {
  util::TypeAhead typed;
  for (std::size_t i = 0; i < text.size(); ++i) {
    typed.Type(text.substr(i, 1), i == 0);
    if (const auto row = typed.FindRow(list_, list_.SelectedItem())) Select(*row, Held::kNothing);
  }
}

void HeadlessPanes::TypeInTree(std::string_view text) {
  util::TypeAhead typed;
  for (std::size_t i = 0; i < text.size(); ++i) {
    typed.Type(text.substr(i, 1), i == 0);
    const NodeId node = typed.FindNode(tree_, tree_.Selected());
    if (node != NodeId::kNone) GoTo(node);
  }
}

void HeadlessPanes::GoTo(NodeId node) {
  if (node != tree_.Selected()) viewer_.tvMotherList_NodeClick(node);
}

void HeadlessPanes::PressKeyInTree(const Key& key) {
  if (IsMenuKey(key)) return viewer_.tvMotherList_MouseUp(MouseButton::kRight, NodeId::kNone);
  const NodeId node = tree_.Selected();
  if (node == NodeId::kNone || key.ctrl || key.shift) return;
  const std::vector<NodeId> shown = ShownNodes();
  const auto place = std::ranges::find(shown, node);
  if (place == shown.end()) return;
  switch (key.code) {
    case KeyCode::kUp:
      return GoTo(place == shown.begin() ? node : *std::prev(place));
    case KeyCode::kDown:
      return GoTo(std::next(place) == shown.end() ? node : *std::next(place));
    case KeyCode::kHome:
    case KeyCode::kPageUp:
      return GoTo(shown.front());
    case KeyCode::kEnd:
    case KeyCode::kPageDown:
      return GoTo(shown.back());
    case KeyCode::kLeft:
      return tree_.IsExpanded(node) ? viewer_.tvMotherList_Collapse(node) : GoToParentOf(node);
    case KeyCode::kRight:
      return OpenOrGoDown(node);
    default:
      return;
  }
}

void HeadlessPanes::GoToParentOf(NodeId node) {
  if (tree_.Parent(node) != NodeId::kNone) GoTo(tree_.Parent(node));
}

void HeadlessPanes::OpenOrGoDown(NodeId node) {
  if (tree_.IsExpandable(node) && !tree_.IsExpanded(node)) return viewer_.tvMotherList_Expand(node);
  if (tree_.ChildCount(node) > 0) GoTo(tree_.Child(node, 0));
}

std::vector<NodeId> HeadlessPanes::ShownNodes() const {
  std::vector<NodeId> shown;
  std::vector<NodeId> next(tree_.Children(NodeId::kNone).rbegin(), tree_.Children(NodeId::kNone).rend());
  while (!next.empty()) {
    const NodeId node = next.back();
    next.pop_back();
    shown.push_back(node);
    if (!tree_.IsExpanded(node)) continue;
    next.insert(next.end(), tree_.Children(node).rbegin(), tree_.Children(node).rend());
  }
  return shown;
}

}  // namespace quorvel::scenario
