#include "util/ListViewSort.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "datasource/ErrorsProcess.h"
#include "platform/Error.h"
#include "util/StableOrder.h"
#include "util/TextOrder.h"
#include "widgets/TextArena.h"

namespace quorvel::util {
namespace {

using datasource::Propagating;
using widgets::ColumnTag;
using widgets::ListView;
using widgets::SortOrder;

// What the compare routines go by; hosts of the list see the same for all lists of a thread.
struct SortState {
  const Platform* platform = nullptr;
  const ListView* list = nullptr;  // null = nothing is being sorted
  SortOrder order = SortOrder::kAscending;
};
thread_local SortState g_sort;

// A cell is converted by what fits a buffer of this many characters.
constexpr std::size_t kReadCharacters = 21;

std::string_view FirstCharacters(std::string_view text) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool begins = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
    if (begins && characters++ == kReadCharacters) return text.substr(0, i);
  }
  return text;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::int32_t ToWholeNumber(std::string_view text) {
  const std::string_view digits = Trimmed(text);
  std::int32_t number = 0;
  const auto [end, code] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (code == std::errc::result_out_of_range) {
    throw Error(SystemError::kOverflow, "Number too large: \"" + std::string(text) + "\"");
  }
  if (code != std::errc() || end != digits.data() + digits.size()) {
    throw Error(SystemError::kTypeMismatch, "Not a whole number: \"" + std::string(text) + "\"");
  }
  return number;
}

DateValue ToDate(const Platform& platform, std::string_view text) {
  const std::optional<DateValue> date = platform.ParseDate(text);
  if (!date) throw Error(SystemError::kTypeMismatch, "Not a date: \"" + std::string(text) + "\"");
  return *date;
}

// `convert`: what makes a value of a text that is not empty. A value without a text is 0.
template <class Convert>
auto CellValue(const ListView& list, std::size_t row, std::int32_t column, Convert convert) {
  using Value = decltype(convert(std::string_view()));
  if (column < 1) return Value{0};
  const std::string cell = list.Cell(row, static_cast<std::size_t>(column - 1));
  const std::string_view text = FirstCharacters(cell);
  return text.empty() ? Value{0} : convert(text);
}

// Dates compare at the second, as they are shown, and in the order of time on both sides of day zero.
std::int64_t SortValue(DateValue date) {
  return SecondsBetween(0, date).value_or(0);
}

template <class Value>
std::int32_t CompareResult(Value a, Value b) {
  if (a == b) return 1;
  const bool ascending = g_sort.order == SortOrder::kAscending;
  return (a > b) == ascending ? 0 : 2;
}

// The values that the compare routine of a column would make of its rows, in the order in which these are shown.
std::vector<std::int64_t> DateValues(std::int32_t column) {
  return Propagating("ListViewSort.CompareDates", [&] {
    const ListView& list = *g_sort.list;
    const bool textTellsTheSame = g_sort.platform->HasFixedDates();
    std::vector<std::int64_t> values(list.Count());
    for (std::size_t row = 0; row < values.size(); ++row) {
      const auto date =
          textTellsTheSame ? list.DateOf(row, static_cast<std::size_t>(column - 1)) : std::optional<DateValue>();
      values[row] = SortValue(date ? *date : ListView_GetItemDate(*g_sort.platform, list, row, column));
    }
    return values;
  });
}

std::vector<std::int64_t> NumberValues(std::int32_t column) {
  return Propagating("ListViewSort.CompareNumbers", [&] {
    const ListView& list = *g_sort.list;
    std::vector<std::int64_t> values(list.Count());
    for (std::size_t row = 0; row < values.size(); ++row) {
      const auto number = list.NumberOf(row, static_cast<std::size_t>(column - 1));
      values[row] = number ? *number : ListView_GetItemNumber(list, row, column);
    }
    return values;
  });
}

std::vector<std::int64_t> TextValues(const ListView& list, std::int32_t column) {
  const auto cellColumn = static_cast<std::size_t>(column - 1);
  widgets::TextArena arena;  // texts that lie nowhere else
  std::string cell;
  std::vector<std::string_view> texts(list.Count());
  for (std::size_t row = 0; row < texts.size(); ++row) {
    if (const auto text = list.TextOf(row, cellColumn)) {
      texts[row] = *text;
      continue;
    }
    cell.clear();
    list.AppendCell(row, cellColumn, cell);
    texts[row] = row > 0 && cell == texts[row - 1] ? texts[row - 1] : arena.View(arena.Append(cell));
  }
  return RankTexts(texts);
}

bool IsCustom(ColumnTag tag) {
  return tag == ColumnTag::kDates || tag == ColumnTag::kNumbers;
}

void Negate(std::vector<std::int64_t>& values) {
  std::ranges::transform(values, values.begin(), std::negate<>());
}

// The rows shown now, as the merge sort leaves them. It keeps the left one of two where their result is 0 or less,
// which CompareResult says of the greater or of the less; for equal ones it says 1, so that of these the right one
// always comes first. That is the stable order backwards.
std::vector<std::uint32_t> CustomOrder(const Platform& platform, const ListView& list, std::int32_t column,
                                       ColumnTag tag, SortOrder order) {
  const CustomSort custom(platform, list, order);
  std::vector<std::int64_t> values = tag == ColumnTag::kDates ? DateValues(column) : NumberValues(column);
  const bool greatestFirst = CompareResult(1, 0) <= 0;
  if (!greatestFirst) Negate(values);
  std::vector<std::uint32_t> rows = StableOrder(std::move(values));
  std::ranges::reverse(rows);
  return rows;
}

std::vector<std::uint32_t> TextOrder(const ListView& list, std::int32_t column, SortOrder order) {
  std::vector<std::int64_t> values = TextValues(list, column);
  if (order == SortOrder::kDescending) Negate(values);
  return StableOrder(std::move(values));
}

}  // namespace

void ListViewSortColumn(const Platform& platform, ListView& list, std::size_t column) {
  // A list that was filled anew is sorted by no column, whatever its sort key was before.
  const bool isKey = std::cmp_equal(column, list.sortKey() + 1) && column <= list.headers().size() &&
                     !list.headers()[column - 1].icon.empty();
  const bool turned = isKey && list.sortOrder() == SortOrder::kAscending;
  SortListViewBy(platform, list, column, turned ? SortOrder::kDescending : SortOrder::kAscending);
}

void SortListViewBy(const Platform& platform, ListView& list, std::size_t column, SortOrder order) {
  Propagating("ListViewSort.ListViewSortColumn", [&] {
    if (column < 1 || column > list.headers().size()) {
      throw Error(SystemError::kIndexOutOfRange, list.name() + " has no such column");
    }
    const auto key = static_cast<std::int32_t>(column - 1);
    const ColumnTag tag = list.headers()[column - 1].tag;
    std::vector<std::uint32_t> rows;
    if (list.Count() > 1) {
      rows = IsCustom(tag) ? CustomOrder(platform, list, key + 1, tag, order) : TextOrder(list, key + 1, order);
    }
    list.InBatch([&] {
      list.SetSortKey(key);
      list.SetSortOrder(order);
      list.SetSorted(!IsCustom(tag));
      SortListView(list);
      if (!rows.empty()) list.Reorder(std::move(rows));
    });
  });
}

void SortListView(ListView& list) {
  Propagating("ListViewSort.SortListView", [&] {
    const bool ascending = list.sortOrder() == SortOrder::kAscending;
    std::vector<widgets::ColumnHeader> headers = list.headers();
    for (std::size_t i = 0; i < headers.size(); ++i) {
      const bool sorted = std::cmp_equal(i, list.sortKey());
      const bool custom = IsCustom(headers[i].tag);
      headers[i].icon = !sorted  ? ""
                        : custom ? (ascending ? "descendingD" : "ascendingD")
                                 : (ascending ? "ascending" : "descending");
    }
    list.SetHeaders(std::move(headers));
  });
}

CustomSort::CustomSort(const Platform& platform, const ListView& list, SortOrder order) {
  g_sort = {&platform, &list, order};
}

CustomSort::~CustomSort() {
  g_sort = {};
}

std::int32_t CompareDates(std::size_t first, std::size_t second, std::int32_t column) {
  return Propagating("ListViewSort.CompareDates", [&] {
    if (g_sort.list == nullptr) return 0;
    const auto value = [&](std::size_t row) {
      return SortValue(ListView_GetItemDate(*g_sort.platform, *g_sort.list, row, column));
    };
    return CompareResult(value(first), value(second));
  });
}

std::int32_t CompareNumbers(std::size_t first, std::size_t second, std::int32_t column) {
  return Propagating("ListViewSort.CompareNumbers", [&] {
    if (g_sort.list == nullptr) return 0;
    const auto value = [&](std::size_t row) { return ListView_GetItemNumber(*g_sort.list, row, column); };
    return CompareResult(value(first), value(second));
  });
}

DateValue ListView_GetItemDate(const Platform& platform, const ListView& list, std::size_t row, std::int32_t column) {
  return Propagating("ListViewSort.ListView_GetItemDate", [&] {
    return CellValue(list, row, column, [&](std::string_view text) { return ToDate(platform, text); });
  });
}

std::int32_t ListView_GetItemNumber(const ListView& list, std::size_t row, std::int32_t column) {
  return Propagating("ListViewSort.ListView_GetItemNumber",
                     [&] { return CellValue(list, row, column, ToWholeNumber); });
}

void SetListViewFullRowState(ListView& list, std::size_t row, bool colour, bool bold) {
  Propagating("ListViewSort.SetListViewFullRowState", [&] { list.SetLook(row, FullRowLook(colour, bold)); });
}

}  // namespace quorvel::util
