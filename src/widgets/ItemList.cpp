#include "widgets/ItemList.h"

#include <algorithm>
#include <utility>

#include "platform/Error.h"

namespace quorvel::widgets {
namespace {

template <class Member, class Value>
std::optional<std::size_t> RowOf(const std::vector<Item>& items, Member member, const Value& value) {
  const auto found = std::ranges::find(items, value, member);
  if (found == items.end()) return std::nullopt;
  return static_cast<std::size_t>(found - items.begin());
}

}  // namespace

void ItemList::RequireRow(std::size_t row) const {
  if (row >= items_.size()) throw Error(SystemError::kIndexOutOfRange, name() + " has no such row");
}

void ItemList::SetItems(std::vector<Item> items) {
  items_ = std::move(items);
  selected_.reset();
  Changed();
}

void ItemList::Select(std::size_t row) {
  RequireRow(row);
  Set(selected_, std::optional(row));
}

const std::string& ItemList::selectedText() const {
  static const std::string kNone;
  return selected_ ? items_[*selected_].text : kNone;
}

std::optional<std::size_t> ItemList::RowOfText(std::string_view text) const {
  return RowOf(items_, &Item::text, text);
}

std::optional<std::size_t> ItemList::RowOfData(std::int32_t data) const {
  return RowOf(items_, &Item::data, data);
}

void ItemList::Exchange(std::size_t row, std::size_t other) {
  RequireRow(row);
  RequireRow(other);
  if (row == other) return;
  std::swap(items_[row], items_[other]);
  if (selected_ == row) {
    selected_ = other;
  } else if (selected_ == other) {
    selected_ = row;
  }
  Changed();
}

}  // namespace quorvel::widgets
