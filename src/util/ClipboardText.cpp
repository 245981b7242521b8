#include "util/ClipboardText.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace quorvel::util {
namespace {

using widgets::ListView;
using widgets::RowRange;

constexpr char kQuote = '"';
constexpr std::string_view kLineEnd = "\r\n";
// So many rows are looked over at once, while the processor still has them at hand.
constexpr std::size_t kRowsAtOnce = 64;

// Characters below the blank: tabs, line breaks, and others that hardly occur.
std::size_t CountControls(std::string_view text) {
  // Counted in bytes, of which the processor adds many at once; a sum of so few fits.
  constexpr std::size_t kAtOnce = 240;
  std::size_t count = 0;
  for (; !text.empty(); text.remove_prefix(std::min(kAtOnce, text.size()))) {
    std::uint8_t sum = 0;
    for (const char c : text.substr(0, kAtOnce)) {
      sum = static_cast<std::uint8_t>(sum + (static_cast<unsigned char>(c) < ' ' ? 1 : 0));
    }
    count += sum;
  }
  return count;
}

// Whether a cell begins with a quote in what stands from `start` on, which is behind a line.
bool HasCellThatBeginsWithQuote(std::string_view text, std::size_t start) {
  for (std::size_t at = text.find(kQuote, start); at != std::string_view::npos; at = text.find(kQuote, at + 1)) {
    if (text[at - 1] == widgets::kCellSeparator || text[at - 1] == kLineEnd.back()) return true;
  }
  return false;
}

void QuoteIfNeeded(std::string& text, std::size_t start) {
  const std::string_view cell = std::string_view(text).substr(start);
  if (!cell.starts_with(kQuote) && cell.find_first_of("\t\r\n") == std::string_view::npos) return;
  std::string quoted(1, kQuote);
  for (const char c : cell) quoted.append(c == kQuote ? 2 : 1, c);
  quoted.push_back(kQuote);
  text.replace(start, std::string::npos, quoted);
}

void AppendQuotedRow(const ListView& list, std::size_t row, std::string& text) {
  for (std::size_t column = 0; column < list.headers().size(); ++column) {
    if (column > 0) text.push_back(widgets::kCellSeparator);
    const std::size_t start = text.size();
    list.AppendCell(row, column, text);
    QuoteIfNeeded(text, start);
  }
}

template <class AppendRow>
void AppendLines(RowRange rows, std::string& text, AppendRow appendRow) {
  for (std::size_t row = rows.first; row < rows.last; ++row) {
    appendRow(row);
    text.append(kLineEnd);
  }
}

// Next to no cell needs quotes: rows are written as they are, and again when they turn out to hold one that does.
void AppendRows(const ListView& list, RowRange rows, std::string& text) {
  const std::size_t start = text.size();
  AppendLines(rows, text, [&](std::size_t row) { list.AppendRow(row, text); });
  const std::size_t separators = list.headers().empty() ? 0 : list.headers().size() - 1;
  const std::size_t controls = (rows.last - rows.first) * (separators + kLineEnd.size());
  if (CountControls(std::string_view(text).substr(start)) == controls && !HasCellThatBeginsWithQuote(text, start)) {
    return;
  }
  text.resize(start);
  AppendLines(rows, text, [&](std::size_t row) { AppendQuotedRow(list, row, text); });
}

void AppendHeaders(const ListView& list, std::string& text) {
  for (const widgets::ColumnHeader& header : list.headers()) {
    if (&header != &list.headers().front()) text.push_back(widgets::kCellSeparator);
    text.append(header.caption);
  }
  text.append(kLineEnd);
}

}  // namespace

std::string SelectedRowsText(const ListView& list) {
  const std::size_t count = list.Selection().Count();
  std::string text;
  AppendHeaders(list, text);
  std::size_t done = 0;
  std::size_t next = 1;  // so many rows tell how much room they need
  for (const RowRange range : list.Selection().ranges()) {
    for (std::size_t first = range.first; first < range.last; first += kRowsAtOnce) {
      const RowRange rows{first, std::min(first + kRowsAtOnce, range.last)};
      AppendRows(list, rows, text);
      done += rows.last - rows.first;
      // Room for all, as far as the rows so far tell; asked anew as they become twice as many, since a text that grows
      // without is copied again and again.
      if (done >= next) {
        text.reserve(text.size() / done * count / 8 * 9);
        next = 2 * done;
      }
    }
  }
  return text;
}

}  // namespace quorvel::util
