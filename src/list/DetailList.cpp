#include "list/DetailList.h"

#include <array>
#include <string>

#include "list/Classification.h"
#include "list/RunOutcome.h"

namespace quorvel::list {
namespace {

constexpr std::string_view kKeyStart = "ALR|PCS|";

class DetailRow final : public widgets::RowSource {
 public:
  DetailRow(const datasource::ProcessLogDetail& run, DetailLayout layout, const Platform& platform)
      : key_(std::string(kKeyStart) + std::to_string(run.lngProcessLogId)) {
    const auto date = [&](DateValue value) { return util::strFormatDateTime(platform, value, util::kDateAndTime); };
    const std::string place(run.bOnServer != 0 ? "Server" : "Station");
    cells_ = {run.strProcessName, std::string(StateOf(run)), date(run.dtStartDate), date(run.dtEndDate), place};
    if (layout == DetailLayout::kWithUser) {
      cells_[4] = run.strUserName;
      cells_[5] = run.strStationName;
      cells_[6] = place;
    }
  }

  std::size_t Count() const override { return 1; }
  void AppendKey(std::size_t /*row*/, std::string& out) const override { out.append(key_); }
  void AppendCell(std::size_t /*row*/, std::size_t column, std::string& out) const override {
    out.append(cells_[column]);
  }
  std::string_view Icon(std::size_t /*row*/) const override { return kPlainProcessImage; }

 private:
  static constexpr std::size_t kCells = 7;

  // A run that is neither running nor OK is not OK, whatever else it may be.
  static std::string_view StateOf(const datasource::ProcessLogDetail& run) {
    if (run.bInProgress != 0) return kInProgressCaption;
    return run.bResultOk != 0 ? kUserOkCaption : kUserNotOkCaption;
  }

  std::string key_;
  std::array<std::string, kCells> cells_;
};

}  // namespace

Headers DetailListHeaders(DetailLayout layout) {
  Headers headers{TextHeader("Process", kReportWidth), TextHeader("State"), DateHeader("Start"), DateHeader("End")};
  if (layout == DetailLayout::kWithUser) {
    headers.push_back(TextHeader("User", kNameWidth));
    headers.push_back(TextHeader("Station", kNameWidth));
  }
  headers.push_back(TextHeader("Place"));
  return headers;
}

Rows DetailListRows(const datasource::ProcessLogDetail& run, DetailLayout layout, const Platform& platform) {
  return std::make_shared<DetailRow>(run, layout, platform);
}

bool IsDetailKey(std::string_view key) {
  return key.starts_with(kKeyStart);
}

}  // namespace quorvel::list
