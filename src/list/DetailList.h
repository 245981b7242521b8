// The list of one run alone, which a host asks for to show it as a page.
#pragma once

#include <string_view>

#include "datasource/ProcessLog.h"
#include "list/ListParts.h"

namespace quorvel::list {

// Whether the run's user and station stand before its place.
enum class DetailLayout { kStandard, kWithUser };

Headers DetailListHeaders(DetailLayout layout);

// One row; its key is "ALR|PCS|" and the run.
Rows DetailListRows(const datasource::ProcessLogDetail& run, DetailLayout layout, const Platform& platform);

// Whether the key is that of such a row, for which no node stands.
bool IsDetailKey(std::string_view key);

}  // namespace quorvel::list
