// The tree of connections between server and stations: months, their days when asked for, and the connections.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/CommandLog.h"
#include "platform/Platform.h"
#include "util/KeyDates.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

using DayAnswer = datasource::Answer<datasource::CommandLogRecords>;

// Appends months, with `byDay` their days too, for the answer of GetCommunicationsByMonth, in its order; what has no
// date belongs to none. What shows the connections next, the day or else the month, gets a placeholder for them.
// `failedDays` is the answer to the same question about failed connections alone; days and months with such stand out.
// Without it nothing is known to have failed. `platform` formats the days. Error 9 when a column lacks rows.
void AppendMonthNodes(const DayAnswer& days, const DayAnswer& failedDays, bool byDay, const Platform& platform,
                      widgets::TreeView& tree);

// The answer of GetCommunications, newest first, as days with their number.
DayAnswer CountByDay(const DayAnswer& connections);

// Appends a node for each row of GetCommunications under `parent`, a day or a month. Error 9 as above.
void AppendConnectionNodes(const datasource::CommandLogRecords& rows, std::int32_t count, const Platform& platform,
                           widgets::NodeId parent, widgets::TreeView& tree);

// The period of a month's or day's node, as far as it lies within `filter`, the one that the tree was built for. Errors
// 13 and 6 for a key that names neither.
util::Period PeriodOfConnections(std::string_view key, const util::Period& filter);

// The connection that a connection's key stands for. Errors 13 and 6 for a field that is no number.
std::int32_t CommunicationOfKey(std::string_view key);

}  // namespace quorvel::tree
