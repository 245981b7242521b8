// Connections between server and stations, and the commands of connections and of steps.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct CommandLogRecords {
  Column<std::int32_t> lngCommunicationId;
  Column<DateValue> dtCommunicationDate;  // start of the connection; in GetCommunicationsByMonth its day
  Column<DateValue> dtCommunicationEnd;
  Column<std::int32_t> lngUserId;
  TextColumn strUserName;
  Column<Flag> bFromStation;  // non-zero: the station called the server
  Column<std::int32_t> lngSizeKb;
  Column<std::int32_t> lngCommunications;  // connections of the day
  Column<std::int32_t> lngCommandLogId;
  Column<std::int32_t> lngKind;    // kind code, see IsFilesTransferLogError
  Column<std::int32_t> lngResult;  // result code, 0 = done
  TextColumn strText;              // the command as it was given
  TextColumn strReport;
  Column<DateValue> dtStartDate;
  Column<DateValue> dtEndDate;
  Column<Flag> bInProgress;
  Column<Flag> bResultOk;
  Column<Flag> bResultNotOk;

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("lngCommunicationId", self.lngCommunicationId);
    visit("dtCommunicationDate", self.dtCommunicationDate);
    visit("dtCommunicationEnd", self.dtCommunicationEnd);
    visit("lngUserId", self.lngUserId);
    visit("strUserName", self.strUserName);
    visit("bFromStation", self.bFromStation);
    visit("lngSizeKb", self.lngSizeKb);
    visit("lngCommunications", self.lngCommunications);
    visit("lngCommandLogId", self.lngCommandLogId);
    visit("lngKind", self.lngKind);
    visit("lngResult", self.lngResult);
    visit("strText", self.strText);
    visit("strReport", self.strReport);
    visit("dtStartDate", self.dtStartDate);
    visit("dtEndDate", self.dtEndDate);
    visit("bInProgress", self.bInProgress);
    visit("bResultOk", self.bResultOk);
    visit("bResultNotOk", self.bResultNotOk);
  }
};

class CommandLog : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.CommandLog";

  // Connections that began in dateFrom <= start < dateTo, newest first. stateCode: 0 all, 1 OK, 2 error, 3 in progress,
  // 5 unknown, 4 the newest of each station, as far as it is in the period and passes failedOnly; 0 and 0 are then any
  // time. failedOnly non-zero: failed ones alone. Status 2: the period is none.
  virtual void GetCommunications(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                                 std::int32_t userId, std::int32_t failedOnly, std::int32_t& status) = 0;
  virtual void CloseCommunications(std::int32_t connection) = 0;

  // The days that have connections, newest first, with their number; the filters as above. Status 2: the period is
  // none.
  virtual void GetCommunicationsByMonth(std::int32_t connection, DateValue dateFrom, DateValue dateTo,
                                        std::int32_t stateCode, std::int32_t userId, std::int32_t& status) = 0;
  virtual void CloseCommunicationsByMonth(std::int32_t connection) = 0;

  // The commands of one connection, in order. Status 1: it does not exist.
  virtual void GetCommandLogByCommunication(std::int32_t connection, std::int32_t communicationId,
                                            std::int32_t& status) = 0;
  virtual void CloseCommandLogByCommunication(std::int32_t connection) = 0;

  // The commands of one step, in order, each with the connection that carried it (0 = none). Status 1: the step does
  // not exist.
  virtual void GetCommandLogByStepLog(std::int32_t connection, std::int32_t stepLogId, std::int32_t& status) = 0;
  virtual void CloseCommandLogByStepLog(std::int32_t connection) = 0;

  // Valid until the next call that is not const.
  virtual const CommandLogRecords& Records() const = 0;
};

}  // namespace quorvel::datasource
