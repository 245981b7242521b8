// Named settings of the installation, and the notification of a stop request.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

class Labels : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.Labels";

  // Reads one setting into strLabelValue. Status 1: there is none of that name.
  virtual void GetLabel(std::int32_t connection, std::string_view name, std::int32_t& status) = 0;
  // Valid until the next call that is not const.
  virtual const std::string& strLabelValue() const = 0;

  // Tells the server that a stop was asked for. result 0 = done.
  virtual void NotifyStopRequest(std::int32_t connection, std::string_view serverName, std::int32_t processLogId,
                                 std::int32_t& result) = 0;
};

}  // namespace quorvel::datasource
