// One row of GetCommunications as a connection with a station, read the same way by list and tree.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "datasource/CommandLog.h"
#include "list/Classification.h"

namespace quorvel::list {

// Icon and caption of a connection; without any flag its outcome is unknown.
Classified ClassifyConnection(const datasource::CommandLogRecords& rows, std::size_t row);

// Who called whom; lives forever.
std::string_view DirectionName(const datasource::CommandLogRecords& rows, std::size_t row);

// Appends the key of the day that a connection of `date` belongs to, where `parentKey` is that of its month or its day.
void AppendDayKey(DateValue date, std::string_view parentKey, std::string& out);

// Appends the key of a connection's node, whose day has the key `dayKey`.
void AppendConnectionKey(const datasource::CommandLogRecords& rows, std::size_t row, std::string_view dayKey,
                         std::string& out);

}  // namespace quorvel::list
