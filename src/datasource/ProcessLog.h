// Runs of processes and the stations that took part in them.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

// The column properties, in member order. docs/record-sources.md says which query fills which.
struct ProcessLogRecords {
  Column<std::int32_t> lngProcessLogId;  // the run, shown as "Batch No."
  Column<std::int32_t> lngProcessId;
  TextColumn strProcessName;
  Column<Flag> bProcessOnServer;   // the process is meant to run on the server
  Column<Flag> bProcessOnStation;  // ... on stations by themselves
  Column<DateValue> dtStartDate;   // of the run; of the station's part in GetProcessLogByTask
  Column<DateValue> dtEndDate;     // the same; of the station's part in GetProcessLogByUser too
  Column<Flag> bRunOnStation;      // non-zero: the run is on a station; 0: on the server
  Column<std::int32_t> lngUserId;  // the station; 0 = run without a population, -1 = no station took part yet
  TextColumn strUserName;
  TextColumn strIdentifier;
  TextColumn strCompany;
  TextColumn strReport;
  Column<Flag> bInProgress;
  Column<Flag> bResultOk;
  Column<Flag> bResultNotOk;
  Column<Flag> bResultUnknown;
  Column<Flag> bExecuted;  // 0: the station never ran it
  TextColumn strWaitState;
  Column<std::int32_t> lngStations;  // stations of the run, and how many of them are in each state
  Column<std::int32_t> lngOk;
  Column<std::int32_t> lngNotOk;
  Column<std::int32_t> lngInProgress;
  Column<std::int32_t> lngNotExecuted;
  Column<std::int32_t> lngUnknown;
  Column<DateValue> dtStopRequested;  // when somebody asked for the run to be stopped last, 0 = nobody did

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("lngProcessLogId", self.lngProcessLogId);
    visit("lngProcessId", self.lngProcessId);
    visit("strProcessName", self.strProcessName);
    visit("bProcessOnServer", self.bProcessOnServer);
    visit("bProcessOnStation", self.bProcessOnStation);
    visit("dtStartDate", self.dtStartDate);
    visit("dtEndDate", self.dtEndDate);
    visit("bRunOnStation", self.bRunOnStation);
    visit("lngUserId", self.lngUserId);
    visit("strUserName", self.strUserName);
    visit("strIdentifier", self.strIdentifier);
    visit("strCompany", self.strCompany);
    visit("strReport", self.strReport);
    visit("bInProgress", self.bInProgress);
    visit("bResultOk", self.bResultOk);
    visit("bResultNotOk", self.bResultNotOk);
    visit("bResultUnknown", self.bResultUnknown);
    visit("bExecuted", self.bExecuted);
    visit("strWaitState", self.strWaitState);
    visit("lngStations", self.lngStations);
    visit("lngOk", self.lngOk);
    visit("lngNotOk", self.lngNotOk);
    visit("lngInProgress", self.lngInProgress);
    visit("lngNotExecuted", self.lngNotExecuted);
    visit("lngUnknown", self.lngUnknown);
    visit("dtStopRequested", self.dtStopRequested);
  }
};

// The scalar properties of one run, filled by GetProcessLogDetail.
struct ProcessLogDetail {
  std::int32_t lngProcessLogId = 0;
  std::string strProcessName;
  DateValue dtStartDate = 0;
  DateValue dtEndDate = 0;
  Flag bInProgress = kFalse;
  Flag bResultOk = kFalse;
  Flag bOnServer = kFalse;
  std::string strUserName;     // name of the run's one station; empty when it had none or several
  std::string strStationName;  // identifier of that station
};

class ProcessLog : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.ProcessLog";

  // Stations of runs, a row each: processes by name, runs newest first, the stations of a run together. A run in which
  // no station took part yet gives one row with station -1.
  // The period is dateFrom <= start of the run < dateTo. stateCode selects runs by their own outcome: 0 all, 1 OK,
  // 2 NOT OK, 3 in progress, 5 unknown; 4 takes each process's newest run that the other filters leave, whatever its
  // date. A run that is selected comes with all its stations. userId, companyId: runs in which that station, a station
  // of that company, took part.
  // Status 1: the process does not exist; 2: the period is none (an end before its start, or no date).
  virtual void GetProcessLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                              std::int32_t processId, std::int32_t userId, std::int32_t companyId,
                              std::int32_t reserved1, std::int32_t reserved2, std::int32_t& status) = 0;
  virtual void CloseProcessLogs(std::int32_t connection) = 0;

  // All runs of one process, newest first, with the number of their stations in each state. Released by
  // CloseProcessLogs. Status 1: the process does not exist.
  virtual void GetProcessLogByProcess(std::int32_t connection, std::int32_t processId, std::int32_t reserved1,
                                      std::int32_t reserved2, std::int32_t& status) = 0;

  // Runs by station: stations by name, processes by name, runs newest first; a row is a station's part in a run, with
  // its own outcome. The first period is that of runs on the server, the second of runs on stations. stateCode as
  // above, by the station's own outcome; 4 takes the newest run of each station and process. onStation: 0 runs on the
  // server, 1 on stations, -1 all. Status 1: the station or process does not exist; 2: a period is none.
  virtual void GetProcessLogByUser(std::int32_t connection, DateValue serverFrom, DateValue serverTo,
                                   DateValue stationFrom, DateValue stationTo, std::int32_t stateCode,
                                   std::int32_t processId, std::int32_t userId, std::int32_t companyId,
                                   std::int32_t onStation, std::int32_t& status) = 0;
  virtual void CloseProcessLogByUser(std::int32_t connection) = 0;

  // Runs, a row each, of the processes of that name ("" = all): by name, newest first, with their numbers of stations.
  // Status 2: the period is none.
  virtual void GetProcessLogsByName(std::int32_t connection, DateValue dateFrom, DateValue dateTo,
                                    std::string_view processName, std::int32_t& status) = 0;
  virtual void CloseProcessLogsByName(std::int32_t connection) = 0;

  // The stations of a run that are in one state group (1 OK, 2 NOT OK, 3 in progress, 4 not executed, 5 unknown), by
  // name. Status 1: the run does not exist.
  virtual void GetProcessLogByTask(std::int32_t connection, std::int32_t processLogId, std::int32_t state,
                                   std::int32_t& status) = 0;
  virtual void CloseProcessLogByTask(std::int32_t connection) = 0;

  // One run, into Detail(). Status 1: it does not exist.
  virtual void GetProcessLogDetail(std::int32_t connection, std::int32_t processLogId, std::int32_t reserved1,
                                   std::int32_t reserved2, std::int32_t& status) = 0;

  // Both are valid until the next call that is not const.
  virtual const ProcessLogRecords& Records() const = 0;
  virtual const ProcessLogDetail& Detail() const = 0;
};

}  // namespace quorvel::datasource
