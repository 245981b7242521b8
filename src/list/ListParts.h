// What the lists are put together from: column headers, and rows over the columns of a record source.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "datasource/Contract.h"
#include "list/TextPieces.h"
#include "platform/Platform.h"
#include "util/ListViewSort.h"
#include "util/PublicFunctions.h"
#include "util/PublicOstrana.h"
#include "widgets/ListView.h"

namespace quorvel::list {

// A list for one kind of node: its headers, of which the first caption tells it from every other list, and its rows.
using Headers = std::vector<widgets::ColumnHeader>;
using Rows = std::shared_ptr<const widgets::RowSource>;

inline constexpr widgets::Twips kReportWidth = 5000;
inline constexpr widgets::Twips kDateWidth = 2250;
inline constexpr widgets::Twips kNameWidth = 2400;  // of stations, people and accounts
inline constexpr widgets::Twips kWideNumber = 1300;

inline widgets::ColumnHeader TextHeader(std::string_view caption, widgets::Twips width = widgets::kDefaultColumnWidth) {
  return {.caption = std::string(caption), .width = width};
}
inline widgets::ColumnHeader DateHeader(std::string_view caption) {
  return {.caption = std::string(caption), .width = kDateWidth, .tag = widgets::ColumnTag::kDates};
}
// Of a list's first column, where the icon stands before the date.
inline widgets::ColumnHeader DateWithIconHeader(std::string_view caption) {
  constexpr widgets::Twips kIcon = 330;
  return {.caption = std::string(caption), .width = kDateWidth + kIcon, .tag = widgets::ColumnTag::kDates};
}
// The longest regional dates have four characters more than the fixed form: "11/19/2026 11:06:42 AM".
inline void MakeRoomForRegionalDates(Headers& headers) {
  constexpr widgets::Twips kMore = 600;
  for (widgets::ColumnHeader& header : headers) {
    if (header.tag == widgets::ColumnTag::kDates) header.width += kMore;
  }
}
inline widgets::ColumnHeader NumberHeader(std::string_view caption, widgets::Twips width = 1000) {
  return {.caption = std::string(caption),
          .width = width,
          .alignment = widgets::Alignment::kRight,
          .tag = widgets::ColumnTag::kNumbers};
}
// Texts that sort as what they tell, see DurationText.
inline widgets::ColumnHeader DurationHeader() {
  return {.caption = "Duration", .width = 1350, .alignment = widgets::Alignment::kRight};
}

// The look of a row, which stands out when it failed.
inline widgets::RowLook ErrorLook(bool failed) {
  return failed ? util::FullRowLook(true, true) : widgets::RowLook{};
}

// What a cell holds: a text as a column has it, a date (0 = none), a number, or a text made for the cell.
using CellValue = std::variant<std::string_view, DateValue, std::int32_t, std::string>;

// Rows over the columns of `Records`, which are shared with the source and live as long as the list shows them. The
// platform, which formats the dates, must outlive the rows.
template <class Records>
class RecordRows : public widgets::RowSource {
 public:
  RecordRows(Records records, std::int32_t count, std::string nodeKey, const Platform& platform)
      : records_(std::move(records)),
        count_(static_cast<std::size_t>(count)),
        nodeKey_(std::move(nodeKey)),
        platform_(platform),
        hasFixedDates_(platform.HasFixedDates()) {}

  std::size_t Count() const final { return count_; }

  void AppendCell(std::size_t row, std::size_t column, std::string& out) const final {
    AppendValue(CellOf(row, column), out);
  }
  std::optional<std::string_view> TextOf(std::size_t row, std::size_t column) const final {
    return Held<std::string_view>(CellOf(row, column));
  }
  std::optional<DateValue> DateOf(std::size_t row, std::size_t column) const final {
    return Held<DateValue>(CellOf(row, column));
  }
  std::optional<std::int32_t> NumberOf(std::size_t row, std::size_t column) const final {
    return Held<std::int32_t>(CellOf(row, column));
  }

 protected:
  // Every list says what its cells hold here; how that is shown and sorted follows from it.
  virtual CellValue CellOf(std::size_t row, std::size_t column) const = 0;

  const Records& records() const { return records_; }
  // The key of the node that the list stands for.
  const std::string& nodeKey() const { return nodeKey_; }
  const Platform& platform() const { return platform_; }

  // "id|NODE"
  void AppendIdKey(std::int32_t id, std::string& out) const {
    out.append(std::to_string(id)).append(util::kKeySeparator).append(nodeKey_);
  }

  // `Out`: a text, or pieces of one.
  template <class Out>
  void AppendValue(const CellValue& cell, Out& out) const {
    std::visit([&](const auto& value) { Append(value, out); }, cell);
  }

 private:
  template <class Value>
  static std::optional<Value> Held(const CellValue& cell) {
    const Value* const value = std::get_if<Value>(&cell);
    return value == nullptr ? std::nullopt : std::optional(*value);
  }

  template <class Out>
  static void Append(std::string_view text, Out& out) {
    out.append(text);
  }
  static void Append(std::int32_t number, std::string& out) { out.append(std::to_string(number)); }
  static void Append(std::int32_t number, TextPieces& out) { out.append(number); }
  template <class Out>
  void Append(DateValue date, Out& out) const {
    if (!hasFixedDates_) {
      out.append(util::strFormatDateTime(platform_, date, util::kDateAndTime));
    } else if (DateTimeBuffer buffer; date != 0 && !FormatFixedDateTime(date, buffer).empty()) {
      // All of the buffer, whose size is known beforehand.
      out.append(std::string_view(buffer.data(), buffer.size()));
    }
  }

  Records records_;
  std::size_t count_;
  std::string nodeKey_;
  const Platform& platform_;
  bool hasFixedDates_;  // asked once, not for each cell
};

// `Kind`, a RecordRows, that writes a row without a virtual call for each cell: a million rows are copied at once.
template <class Kind>
class WholeRows final : public Kind {
 public:
  using Kind::Kind;

  void AppendRow(std::size_t row, std::size_t columns, std::string& out) const override {
    TextPieces pieces(out);
    for (std::size_t column = 0; column < columns; ++column) {
      if (column > 0) pieces.push_back(widgets::kCellSeparator);
      Kind::AppendValue(Kind::CellOf(row, column), pieces);
    }
    pieces.Flush();
  }
};

// The rows of a query's result as `Kind`, a RecordRows; none for a count below 1. `more`: what else its constructor
// takes. Error 9 when a column that the query promises lacks rows.
template <class Kind, class Records, class... More>
Rows MakeRows(std::string_view query, const Records& records, std::int32_t count, std::string_view nodeKey,
              const Platform& platform, const More&... more) {
  if (count < 1) return nullptr;
  datasource::RequireColumns(query, records, static_cast<std::size_t>(count));
  return std::make_shared<WholeRows<Kind>>(records, count, std::string(nodeKey), platform, more...);
}

}  // namespace quorvel::list
