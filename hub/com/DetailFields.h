// The fields of one run's detail by name: properties of the class that share their names with columns.
#pragma once

#include "datasource/ProcessLog.h"

namespace quorvel::hub_com {

// Calls visit(name, field) for each field.
template <class Detail, class Visit>
void ForEachDetailField(Detail& detail, Visit visit) {
  visit("lngProcessLogId", detail.lngProcessLogId);
  visit("strProcessName", detail.strProcessName);
  visit("dtStartDate", detail.dtStartDate);
  visit("dtEndDate", detail.dtEndDate);
  visit("bInProgress", detail.bInProgress);
  visit("bResultOk", detail.bResultOk);
  visit("bOnServer", detail.bOnServer);
  visit("strUserName", detail.strUserName);
  visit("strStationName", detail.strStationName);
}

}  // namespace quorvel::hub_com
