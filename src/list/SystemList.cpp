#include "list/SystemList.h"

#include <vector>

#include "util/KeyPrefixes.h"

namespace quorvel::list {
namespace {

class SystemRows : public RecordRows<datasource::TaskSchedulerLogRecords> {
 public:
  using RecordRows::RecordRows;

  void AppendKey(std::size_t row, std::string& out) const override {
    out.append(nodeKey()).append(util::kKeySeparator).append(std::to_string(records().lngLogId[row]));
  }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case 0:
        return records().strDate[row];
      case 1:
        return records().strMachine[row];
      case 2:
        return records().strLabel[row];
      case 3:
        return records().strCompany[row];
      case 4:
        return records().strUserName[row];
      default:
        return Attachment(row);
    }
  }

  std::string_view Icon(std::size_t row) const override {
    constexpr std::int32_t kInformation = 1;
    constexpr std::int32_t kError = 2;
    switch (records().lngLevel[row]) {
      case kInformation:
        return "NoAlarm";
      case kError:
        return "Alarm";
      default:
        return "AlarmInfos";
    }
  }

 private:
  enum class File : std::uint8_t { kNotLookedUp, kThere, kGone };

  std::string_view Attachment(std::size_t row) const {
    const std::string_view path = records().strAttachment[row];
    if (path.find_first_not_of(' ') == std::string_view::npos) return path;
    const std::uint32_t text = records().strAttachment.rows()[row];
    if (text >= files_.size()) files_.resize(text + 1);
    File& file = files_[text];
    if (file == File::kNotLookedUp) {
      file = platform().FileExists(std::u8string(path.begin(), path.end())) ? File::kThere : File::kGone;
    }
    return file == File::kGone ? kNonexistentFile : path;
  }

  mutable std::vector<File> files_;  // by number of the stored text: what was seen stays, as the rows do
};

}  // namespace

Headers SystemListHeaders() {
  return {DateHeader("Date"),
          TextHeader("Machine"),
          TextHeader("Label", kReportWidth),
          TextHeader("Company", kNameWidth),
          TextHeader("User", kNameWidth),
          TextHeader(kAttachmentCaption, kNameWidth)};
}

Rows SystemListRows(const datasource::TaskSchedulerLogRecords& records, std::int32_t count, const Platform& platform) {
  return MakeRows<SystemRows>("GetTaskSchedulerLogs", records, count, util::kSystemPrefix, platform);
}

}  // namespace quorvel::list
