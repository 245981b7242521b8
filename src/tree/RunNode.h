// How processes and their runs look in a tree, whichever way round it is built.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "datasource/ProcessLog.h"
#include "list/RunOutcome.h"
#include "platform/Platform.h"
#include "tree/NodeKey.h"
#include "util/PublicOstrana.h"

namespace quorvel::tree {

// Image of the process of a row: meant for stations by themselves, or not.
inline std::string_view ProcessImage(const datasource::ProcessLogRecords& rows, std::size_t row) {
  const bool onStationsAlone = rows.bProcessOnStation[row] != 0 && rows.bProcessOnServer[row] == 0;
  return onStationsAlone ? "ProcessStation" : list::kPlainProcessImage;
}

// Key of the run of a row: that of the node above it, where the run is, and its number.
inline std::string RunKey(std::string_view parentKey, const datasource::ProcessLogRecords& rows, std::size_t row) {
  return MakeKey(parentKey, rows.bRunOnStation[row] != 0 ? "1" : "0", rows.lngProcessLogId[row]);
}

// "2026-11-20 23:05:07 (Batch No.345)": people know the number without a blank before it.
inline std::string BatchText(const Platform& platform, DateValue date, std::int32_t batch) {
  return util::strFormatDateTime(platform, date, util::kDateAndTime) + " (Batch No." + std::to_string(batch) + ")";
}
inline std::string RunText(const Platform& platform, const datasource::ProcessLogRecords& rows, std::size_t row) {
  return BatchText(platform, rows.dtStartDate[row], rows.lngProcessLogId[row]);
}

}  // namespace quorvel::tree
