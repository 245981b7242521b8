// The rows of the list as hosts read them one by one.
#pragma once

#include <memory>

#include "Quorvel.h"
#include "com/Viewer.h"
#include "platform/windows/ComPtr.h"

namespace quorvel::windows {

// All rows, whichever the list has when it is asked.
ComPtr<IListItems> MakeListItems(std::shared_ptr<Viewer> viewer);

// The row that stands there now; it stays that row when the list is sorted. Error 35601 of its members once the list
// does not have it any more.
ComPtr<IListItem> MakeListItem(std::shared_ptr<Viewer> viewer, std::size_t row);

// The row that a host names, by its place, counted from 1, or by its key. Error 9 for a place that does not exist,
// 35601 for a key, 13 for what is neither.
std::size_t RowNamed(const widgets::ListView& list, VARIANT indexOrKey);

}  // namespace quorvel::windows
