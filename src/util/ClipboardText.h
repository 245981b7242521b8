// The rows of a list as text that a spreadsheet takes.
#pragma once

#include <string>

#include "widgets/ListView.h"

namespace quorvel::util {

// The captions of `list` and, a line each, the cells of its selected rows in list order: cells parted by tabs, lines
// ended by CR LF. A cell with a tab or a line break, or that begins with a double quote, stands in double quotes with
// its own doubled, so that it stays one cell where it is pasted; every other cell stands as it is shown.
std::string SelectedRowsText(const widgets::ListView& list);

}  // namespace quorvel::util
