// Record sources over COM against the same read from SQLite direct: 1,000,000 rows of GetProcessLogs. The argument is
// the folder that the history is written to.
#include <objbase.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "Histories.h"
#include "Measure.h"
#include "datasource/Contract.h"
#include "datasource/ProcessLog.h"
#include "hub/RecordHub.h"
#include "hub_com/ColumnReader.h"
#include "hub_com/ComHub.h"
#include "platform/windows/ComError.h"

namespace {

using namespace quorvel;
using bench::Compare;
using bench::Report;
using bench::Seconds;
using datasource::ProcessLog;
using datasource::ProcessLogRecords;
using windows::LateBound;
using windows::Variant;

constexpr std::int32_t kRows = 1'000'000;
constexpr std::int32_t kAny = -1;
// A period that holds every run with a date.
constexpr double kFrom = 1;
constexpr double kTo = 100'000;
constexpr std::string_view kQuery = "GetProcessLogs";

constexpr double kNumbersLimit = 1.5;
constexpr double kAllLimit = 5;
constexpr double kOutOfProcessLimit = 10;

// The component beside this program, registered meanwhile.
class Registration {
 public:
  Registration() : library_(LoadLibraryW(L"clRecordHub.dll")) {
    windows::Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), "COM cannot be started");
    windows::Check(Ask("DllRegisterServer"), "clRecordHub.dll cannot be registered");
  }
  ~Registration() {
    Ask("DllUnregisterServer");
    CoUninitialize();
    FreeLibrary(library_);
  }
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;

 private:
  HRESULT Ask(const char* function) const {
    const auto found = reinterpret_cast<void*>(GetProcAddress(library_, function));
    return found == nullptr ? E_FAIL : reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(found)();
  }

  HMODULE library_;
};

// Seconds to query and read all columns, as the viewer does.
double ReadAll(ProcessLog& source, std::int32_t connection) {
  const double seconds = Seconds([&] {
    std::int32_t status = -1;
    source.GetProcessLogs(connection, kFrom, kTo, 0, kAny, kAny, kAny, 0, 0, status);
  });
  if (source.lngCount() < kRows - 1) throw std::runtime_error("Rows are missing");
  source.CloseProcessLogs(connection);
  return seconds;
}

// Seconds to query and to read the columns as plain arrays, as any component gives them; those of texts on demand.
double ReadArrays(hub_com::SourceLink& link, std::int32_t connection, bool texts) {
  const double seconds = Seconds([&] {
    std::int32_t status = -1;
    link.Call(kQuery, {Variant(connection), Variant::Date(kFrom), Variant::Date(kTo), Variant(0), Variant(kAny),
                       Variant(kAny), Variant(kAny), Variant(0), Variant(0), Variant::ByReference(status)});
    const auto rows = static_cast<std::size_t>(link.Get("lngCount").ToInt32());
    const auto promised = datasource::ContractOf(kQuery).columns;
    ProcessLogRecords records;
    ProcessLogRecords::ForEachColumn(records, [&](std::string_view name, auto& column) {
      if (std::ranges::find(promised, name) == promised.end()) return;
      if (std::is_same_v<decltype(column), datasource::TextColumn&> && !texts) return;
      hub_com::ReadColumn(link.Get(name), rows, name, column);
    });
  });
  link.Call("CloseProcessLogs", {Variant(connection)});
  return seconds;
}

// A component in one place, with a connection of its own.
class Component {
 public:
  Component(DWORD context, std::string_view url)
      : hub_(hub_com::MakeSystemActivator(context)),
        connection_(hub_.OpenConnection(url)),
        link_(hub_com::MakeSystemActivator(context), ProcessLog::kClassIdentifier, "",
              std::make_shared<hub_com::MemberNumbers>()),
        source_(datasource::CreateRecordSource<ProcessLog>(hub_, "")) {}

  double ReadAll() { return ::ReadAll(*source_, connection_); }
  double ReadArrays(bool texts) { return ::ReadArrays(link_, connection_, texts); }

 private:
  hub_com::ComHub hub_;
  std::int32_t connection_;
  hub_com::SourceLink link_;
  std::unique_ptr<ProcessLog> source_;
};

bool Measure(const std::filesystem::path& folder) {
  const std::string url = "sqlite:" + bench::MakeHistory(folder, kRows).string();
  hub::RecordHub hub;
  const std::int32_t connection = hub.OpenConnection(url);
  const auto direct = datasource::CreateRecordSource<ProcessLog>(hub, "");
  const auto readDirect = [&] { return ReadAll(*direct, connection); };
  const Registration registration;
  Component inProcess(CLSCTX_INPROC_SERVER, url);
  Component outOfProcess(CLSCTX_LOCAL_SERVER, url);

  bool kept = Report("1,000,000 rows over COM, numbers and dates / direct",
                     Compare([&] { return inProcess.ReadArrays(false); }, readDirect), kNumbersLimit);
  kept &= Report("1,000,000 rows over COM, all 13 columns as plain arrays / direct",
                 Compare([&] { return inProcess.ReadArrays(true); }, readDirect), kAllLimit);
  kept &= Report("1,000,000 rows over COM, all 13 columns / direct",
                 Compare([&] { return inProcess.ReadAll(); }, readDirect), kAllLimit);
  kept &= Report("1,000,000 rows over COM from another process / direct",
                 Compare([&] { return outOfProcess.ReadAll(); }, readDirect), kOutOfProcessLimit);
  return kept;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Use: quorvel_bench_com FOLDER\n");
    return 2;
  }
  try {
    return Measure(argv[1]) ? 0 : 1;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "%s\n", problem.what());
    return 1;
  }
}
