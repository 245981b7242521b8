// The rows of a list as items, for hosts that read them one by one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "widgets/ListView.h"

namespace quorvel::widgets {

// One row, by where it stands: valid until the list gets other rows or is sorted. The list must outlive it.
class ListItem {
 public:
  ListItem(const ListView& list, std::size_t row) : list_(&list), row_(row) {}

  // Counted from 1.
  std::size_t Index() const { return row_ + 1; }
  std::string Key() const { return list_->Key(row_); }
  // The cell of the first column.
  std::string Text() const { return list_->headers().empty() ? std::string() : list_->Cell(row_, 0); }
  // The cells after it, counted from 1. Error 9 for one that does not exist.
  std::string SubItem(std::size_t number) const { return list_->Cell(row_, number); }
  std::string_view SmallIcon() const { return list_->Icon(row_); }
  bool Selected() const { return list_->Selection().Contains(row_); }

 private:
  const ListView* list_;
  std::size_t row_;
};

// All rows. The list must outlive it.
class ListItems {
 public:
  explicit ListItems(const ListView& list) : list_(&list) {}

  std::size_t Count() const { return list_->Count(); }
  // By number, counted from 1; error 9 for one that does not exist.
  ListItem Item(std::size_t index) const {
    if (index < 1 || index > Count()) throw Error(SystemError::kIndexOutOfRange, list_->name() + " has no such item");
    return {*list_, index - 1};
  }
  // By key; error 35601 when there is none.
  ListItem Item(std::string_view key) const {
    const auto row = list_->RowOfKey(key);
    if (!row) throw Error(SystemError::kElementNotFound, list_->name() + " has no item of the key " + std::string(key));
    return {*list_, *row};
  }

 private:
  const ListView* list_;
};

}  // namespace quorvel::widgets
