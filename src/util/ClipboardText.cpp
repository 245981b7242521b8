#include "util/ClipboardText.h"

#include <string_view>

namespace quorvel::util {
namespace {

constexpr char kQuote = '"';

// Counts without branches: this goes over every character of every row that is copied, and next to none needs quotes.
bool MayNeedQuotes(std::string_view row, std::size_t columns) {
  std::size_t tabs = 0;
  std::size_t others = 0;
  for (const char c : row) {
    tabs += c == '\t' ? 1 : 0;
    others += c == '\r' || c == '\n' || c == kQuote ? 1 : 0;
  }
  return others > 0 || tabs >= columns;
}

void QuoteIfNeeded(std::string& text, std::size_t start) {
  const std::string_view cell = std::string_view(text).substr(start);
  if (!cell.starts_with(kQuote) && cell.find_first_of("\t\r\n") == std::string_view::npos) return;
  std::string quoted(1, kQuote);
  for (const char c : cell) quoted.append(c == kQuote ? 2 : 1, c);
  quoted.push_back(kQuote);
  text.replace(start, std::string::npos, quoted);
}

// Calls finish(start) behind each cell.
template <class Finish>
void AppendCells(const widgets::ListView& list, std::size_t row, std::string& text, Finish finish) {
  for (std::size_t column = 0; column < list.headers().size(); ++column) {
    if (column > 0) text.push_back('\t');
    const std::size_t start = text.size();
    list.AppendCell(row, column, text);
    finish(start);
  }
}

void AppendRow(const widgets::ListView& list, std::size_t row, std::string& text) {
  const std::size_t rowStart = text.size();
  AppendCells(list, row, text, [](std::size_t) {});
  if (MayNeedQuotes(std::string_view(text).substr(rowStart), list.headers().size())) {
    text.resize(rowStart);
    AppendCells(list, row, text, [&text](std::size_t cell) { QuoteIfNeeded(text, cell); });
  }
  text.append("\r\n");
}

}  // namespace

std::string SelectedRowsText(const widgets::ListView& list) {
  std::string text;
  for (const widgets::ColumnHeader& header : list.headers()) {
    if (&header != &list.headers().front()) text.push_back('\t');
    text.append(header.caption);
  }
  text.append("\r\n");
  for (const widgets::RowRange range : list.Selection().ranges()) {
    for (std::size_t row = range.first; row < range.last; ++row) AppendRow(list, row, text);
  }
  return text;
}

}  // namespace quorvel::util
