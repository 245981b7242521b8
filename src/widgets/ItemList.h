// Combo boxes and list boxes: captions with a number each, one of them selected.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "widgets/Control.h"

namespace quorvel::widgets {

struct Item {
  std::string text;
  std::int32_t data = 0;
  friend bool operator==(const Item&, const Item&) = default;
};

// Rows are counted from 0; a row that does not exist is error 9.
class ItemList : public Control {
 public:
  using Control::Control;

  const std::vector<Item>& items() const { return items_; }
  // Replaces all rows; none is selected then.
  void SetItems(std::vector<Item> items);

  // The selected row, if any.
  std::optional<std::size_t> selected() const { return selected_; }
  void Select(std::size_t row);
  // Text of the selected row, "" when none is.
  const std::string& selectedText() const;

  // The row of that text, of that number; nothing when there is none. The first one counts.
  std::optional<std::size_t> RowOfText(std::string_view text) const;
  std::optional<std::size_t> RowOfData(std::int32_t data) const;

  // Exchanges two rows; the selection stays with its row.
  void Exchange(std::size_t row, std::size_t other);

 private:
  void RequireRow(std::size_t row) const;

  std::vector<Item> items_;
  std::optional<std::size_t> selected_;
};

class ComboBox : public ItemList {
 public:
  using ItemList::ItemList;
};
class ListBox : public ItemList {
 public:
  using ItemList::ItemList;
};

}  // namespace quorvel::widgets
