// Sorting a list by a click on a header, against std::sort of the same values when they are read and parsed already.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "BarePlatform.h"
#include "Measure.h"
#include "platform/Dates.h"
#include "util/ListViewSort.h"
#include "widgets/ListView.h"

namespace {

using namespace quorvel;
using bench::Comparison;
using widgets::ColumnTag;

constexpr double kDateLimit = 0.9;
constexpr double kNumberLimit = 0.9;
constexpr double kTextLimit = 1.5;

// A list of one column.
template <class Value>
class ColumnRows : public widgets::RowSource {
 public:
  explicit ColumnRows(std::vector<Value> values) : values_(std::move(values)) {}
  std::size_t Count() const override { return values_.size(); }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(row); }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    if (const auto date = DateOf(row, column)) out += *date == 0 ? "" : FormatFixedDateTime(*date);
    if (const auto number = NumberOf(row, column)) out += std::to_string(*number);
    if (const auto text = TextOf(row, column)) out += *text;
  }
  std::string_view Icon(std::size_t /*row*/) const override { return {}; }
  std::optional<std::string_view> TextOf(std::size_t row, std::size_t /*column*/) const override {
    return As<std::string_view>(row);
  }
  std::optional<DateValue> DateOf(std::size_t row, std::size_t /*column*/) const override { return As<DateValue>(row); }
  std::optional<std::int32_t> NumberOf(std::size_t row, std::size_t /*column*/) const override {
    return As<std::int32_t>(row);
  }

 private:
  template <class Wanted>
  std::optional<Wanted> As(std::size_t row) const {
    if constexpr (std::is_same_v<Wanted, Value>) return values_[row];
    return std::nullopt;
  }
  std::vector<Value> values_;
};

template <class Value>
Comparison CompareSorts(std::vector<Value> values, ColumnTag tag) {
  const bench::BarePlatform platform;
  const auto rows = std::make_shared<ColumnRows<Value>>(values);
  return bench::Compare(
      [&] {
        widgets::ListView list("lvMotherList");
        list.SetHeaders({{.caption = "Column", .tag = tag}});
        list.SetSortKey(-1);
        list.SetRows(rows);
        return bench::Seconds([&] { util::ListViewSortColumn(platform, list, 1); });
      },
      [&] {
        std::vector<Value> plain = values;
        return bench::Seconds([&] { std::ranges::sort(plain); });
      });
}

template <class Make>
auto Values(int count, Make make) {
  std::mt19937 random(1);
  std::vector<decltype(make(random))> values;
  values.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) values.push_back(make(random));
  return values;
}

// Ends of runs in five years; one in fifty is still running.
DateValue AnyDate(std::mt19937& random) {
  constexpr double kFirstDay = 44'520;
  constexpr unsigned kSeconds = 5U * 365 * 86'400;
  return random() % 50 == 0 ? 0 : kFirstDay + static_cast<double>(random() % kSeconds) / 86'400.0;
}

std::int32_t AnyNumber(std::mt19937& random) {
  return static_cast<std::int32_t>(random() % 2'000'000) - 1'000'000;
}

// The texts that a column is made from.
std::vector<std::string> StationNames() {
  const char* const towns[] = {"Lyon Part-Dieu ", "Lyon Perrache ", "Paris Gare du Nord ", "Nantes ", "Besançon "};
  constexpr int kStations = 3'000;
  std::vector<std::string> names;
  names.reserve(kStations);
  for (int i = 0; i < kStations; ++i) names.push_back(towns[i % 5] + std::to_string(i));
  return names;
}

std::vector<std::string> Reports(int count) {
  return Values(count, [](std::mt19937& random) {
    return "Copied " + std::to_string(random() % 4096) + " files in " + std::to_string(random()) + " ms";
  });
}

bool MeasureRows(int count, const std::string& rows) {
  const std::vector<std::string> names = StationNames();
  const std::vector<std::string> reports = Reports(count);
  const auto oneOf = [](const std::vector<std::string>& texts) {
    return [&](std::mt19937& random) { return std::string_view(texts[random() % texts.size()]); };
  };
  bool kept =
      bench::Report(rows + " dates sorted", CompareSorts(Values(count, AnyDate), ColumnTag::kDates), kDateLimit);
  kept &= bench::Report(rows + " numbers sorted", CompareSorts(Values(count, AnyNumber), ColumnTag::kNumbers),
                        kNumberLimit);
  kept &= bench::Report(rows + " texts sorted, 3,000 names",
                        CompareSorts(Values(count, oneOf(names)), ColumnTag::kText), kTextLimit);
  kept &= bench::Report(rows + " texts sorted, reports that differ",
                        CompareSorts(Values(count, oneOf(reports)), ColumnTag::kText), kTextLimit);
  return kept;
}

}  // namespace

int main() {
  bool kept = MeasureRows(10'000, "10,000");
  kept &= MeasureRows(100'000, "100,000");
  kept &= MeasureRows(1'000'000, "1,000,000");
  return kept ? 0 : 1;
}
