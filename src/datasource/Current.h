// The executions that are running now.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

class Current : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.Current";

  // Asks for a run to be stopped. result 0 = asked, 1 = there is no such run, or nothing of it is in progress. The
  // reserved text is "".
  virtual void StopExecution(std::int32_t connection, bool onStation, std::int32_t processLogId,
                             std::string_view reserved, std::int32_t& result) = 0;
};

}  // namespace quorvel::datasource
