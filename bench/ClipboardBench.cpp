// The text of 1,000,000 selected rows for the clipboard, against copying the same bytes into fresh memory.
#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "BarePlatform.h"
#include "Measure.h"
#include "datasource/Column.h"
#include "datasource/CommandLog.h"
#include "datasource/ProcessLog.h"
#include "list/CommandList.h"
#include "list/RunList.h"
#include "list/StateList.h"
#include "util/ClipboardText.h"
#include "widgets/ListView.h"

namespace {

using namespace quorvel;
using datasource::Column;
using datasource::Flag;

constexpr int kRows = 1'000'000;
constexpr double kLimit = 4;
constexpr DateValue kNow = 46'346.5;

// Columns of kRows values.
template <class Make>
auto Values(Make make) {
  std::mt19937 random(1);
  std::vector<decltype(make(random, 0))> values;
  values.reserve(kRows);
  for (int row = 0; row < kRows; ++row) values.push_back(make(random, row));
  return Column(std::move(values));
}
template <class Make>
datasource::TextColumn Texts(Make make) {
  std::mt19937 random(1);
  datasource::TextColumnBuilder texts;
  for (int row = 0; row < kRows; ++row) texts.Append(make(random, row));
  return texts.Take();
}
Column<Flag> Flags(Flag flag) {
  return Column(std::vector(kRows, flag));
}
Column<std::int32_t> Numbers(unsigned below) {
  return Values([below](std::mt19937& random, int) { return static_cast<std::int32_t>(random() % below); });
}

constexpr double kSeconds = 1 / 86'400.0;

// Rows that begin one after the other, so many seconds apart, and each end within three hours.
Column<DateValue> Starts(int apart) {
  return Values([apart](std::mt19937&, int row) { return kNow - row * apart * kSeconds; });
}
Column<DateValue> Ends(int apart) {
  return Values([apart](std::mt19937& random, int row) {
    return kNow + (static_cast<int>(random() % 10'800) - row * apart) * kSeconds;
  });
}

// The stations of a run on a night, each with a name and a report of its own.
list::Rows StationRows(const Platform& platform) {
  constexpr int kAtOnce = 0;
  datasource::ProcessLogRecords records;
  records.lngUserId = Values([](std::mt19937&, int row) { return row + 1; });
  records.strUserName =
      Texts([](std::mt19937&, int row) { return "Lyon Part-Dieu " + std::to_string(1'000'000 + row); });
  records.strIdentifier = Texts([](std::mt19937&, int row) { return "ST-" + std::to_string(1'000'000 + row); });
  records.strCompany = Texts([](std::mt19937& random, int) { return "Region " + std::to_string(random() % 40); });
  records.strReport = Texts([](std::mt19937& random, int) {
    return "Copied " + std::to_string(random() % 4096) + " files in " + std::to_string(random()) + " ms";
  });
  records.dtStartDate = Starts(kAtOnce);
  records.dtEndDate = Ends(kAtOnce);
  records.bInProgress = records.bResultNotOk = records.bResultUnknown = Flags(datasource::kFalse);
  records.bResultOk = records.bExecuted = Flags(datasource::kTrue);
  records.strWaitState = Texts([](std::mt19937&, int) { return std::string(); });
  return list::StateListRows(records, kRows, "LPROC|12|0|345|1", platform);
}

// A run a minute, most of them all OK.
list::Rows RunRows(const Platform& platform) {
  constexpr int kMinute = 60;
  datasource::ProcessLogRecords records;
  records.lngProcessLogId = Values([](std::mt19937&, int row) { return kRows - row; });
  records.lngProcessId = Column(std::vector<std::int32_t>(kRows, 12));
  records.strProcessName = Texts([](std::mt19937&, int) { return std::string("Nightly price update"); });
  records.dtStartDate = Starts(kMinute);
  records.dtEndDate = Ends(kMinute);
  records.bRunOnStation = Flags(datasource::kFalse);
  records.lngStations = Column(std::vector<std::int32_t>(kRows, 3'000));
  records.lngNotOk = Values([](std::mt19937& random, int) { return random() % 4 == 0 ? 17 : 0; });
  records.lngOk = Values([](std::mt19937& random, int) { return random() % 4 == 0 ? 2'983 : 3'000; });
  records.lngInProgress = records.lngNotExecuted = records.lngUnknown = Column(std::vector<std::int32_t>(kRows, 0));
  records.dtStopRequested = Column(std::vector<DateValue>(kRows, 0));
  return list::RunListRows(records, kRows, "LPROC|12", platform, kNow);
}

// Commands whose reports name files.
list::Rows CommandRows(const Platform& platform) {
  constexpr int kSecond = 1;
  datasource::CommandLogRecords records;
  records.lngCommunicationId = Numbers(1);
  records.dtCommunicationDate = Starts(kSecond);
  records.lngCommandLogId = Values([](std::mt19937&, int row) { return row; });
  records.strText =
      Texts([](std::mt19937& random, int) { return "put prices" + std::to_string(random() % 500) + ".csv"; });
  records.lngKind = Numbers(120);
  records.lngResult = Numbers(2);
  records.strReport = Texts([](std::mt19937& random, int) {
    return "/data/out/" + std::to_string(random()) + ".csv sent, " + std::to_string(random() % 100'000) + " bytes";
  });
  records.dtStartDate = Starts(kSecond);
  records.dtEndDate = Ends(kSecond);
  records.bInProgress = records.bResultNotOk = Flags(datasource::kFalse);
  records.bResultOk = Flags(datasource::kTrue);
  return list::CommandListRows(records, kRows, "LPROC|12|0|345|1|7|3", platform);
}

bool Measure(const std::string& what, list::Headers headers, list::Rows rows) {
  widgets::ListView list("lvMotherList");
  list.SetHeaders(std::move(headers));
  list.SetRows(std::move(rows));
  list.SetSelection(widgets::RowRanges(widgets::RowRange{0, list.Count()}));
  const std::string finished = util::SelectedRowsText(list);
  // Neither side finds memory that the round before has touched: the system takes blocks of this size back.
  const auto make = [&] {
    std::string text;
    const double seconds = bench::Seconds([&] { text = util::SelectedRowsText(list); });
    return text == finished ? seconds : 0;
  };
  const auto copy = [&] {
    std::unique_ptr<char[]> fresh;
    return bench::Seconds([&] {
      fresh = std::make_unique_for_overwrite<char[]>(finished.size());
      std::memcpy(fresh.get(), finished.data(), finished.size());
    });
  };
  return bench::Report(what, bench::Compare(make, copy), kLimit);
}

}  // namespace

int main() {
  const bench::BarePlatform platform;
  bool kept = Measure("1,000,000 stations as clipboard text / the same bytes copied", list::StateListHeaders(),
                      StationRows(platform));
  kept &=
      Measure("1,000,000 runs as clipboard text / the same bytes copied", list::RunListHeaders(), RunRows(platform));
  kept &= Measure("1,000,000 commands as clipboard text / the same bytes copied", list::CommandListHeaders(),
                  CommandRows(platform));
  return kept ? 0 : 1;
}
