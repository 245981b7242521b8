#include "dialogs/DetailPage.h"

#include "platform/Error.h"
#include "util/PublicOstrana.h"

namespace quorvel {
namespace {

std::string DateText(const Platform& platform, const std::string& cell) {
  const std::optional<DateValue> date = platform.ParseDate(cell);
  if (!date) throw Error(SystemError::kTypeMismatch, "This is no date: " + cell);
  return util::strFormatDateTime(platform, *date, util::kDateAndTime);
}

}  // namespace

DetailPage ReadDetailPage(const Platform& platform, const widgets::ListView& list, std::size_t row) {
  DetailPage page;
  const auto& headers = list.headers();
  if (!headers.empty()) page.title = headers.front().caption + ": " + list.Cell(row, 0);
  for (std::size_t column = 1; column < headers.size(); ++column) {
    const std::string& header = headers[column].caption;
    const std::string cell = list.Cell(row, column);
    if (cell.empty()) continue;
    if (header == "Start") {
      page.start = DateText(platform, cell);
    } else if (header == "End") {
      page.end = DateText(platform, cell);
    } else {
      page.detail.append("- ").append(header).append(": ").append(cell).append("\r\n\r\n");
    }
  }
  return page;
}

}  // namespace quorvel
