// A row of a list as a page that is read from top to bottom.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/Platform.h"
#include "widgets/ListView.h"

namespace quorvel {

struct DetailPage {
  std::string title;                 // first header and cell; "" for a list without columns
  std::optional<std::string> start;  // nothing when the row has none
  std::optional<std::string> end;
  std::string detail;  // every other cell that is not empty, a paragraph each
};

// `row` must exist. Columns are told apart by caption, "Start" and "End" in that letter case; their cells are read as
// dates and written as the platform writes dates. Error 13 for such a cell that is no date.
DetailPage ReadDetailPage(const Platform& platform, const widgets::ListView& list, std::size_t row);

}  // namespace quorvel
