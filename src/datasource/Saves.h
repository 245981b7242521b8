// Backups and the files in them.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct SavesRecords {
  Column<std::int32_t> lngSaveId;
  Column<std::int32_t> lngUserId;  // the station, 0 = the server
  TextColumn strUserName;
  TextColumn strName;  // of the backup; of the file in GetSaveFiles
  Column<DateValue> dtDate;
  Column<std::int32_t> lngSizeKb;
  TextColumn strPath;  // the folder that the file was taken from
  Column<Flag> bResultOk;

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("lngSaveId", self.lngSaveId);
    visit("lngUserId", self.lngUserId);
    visit("strUserName", self.strUserName);
    visit("strName", self.strName);
    visit("dtDate", self.dtDate);
    visit("lngSizeKb", self.lngSizeKb);
    visit("strPath", self.strPath);
    visit("bResultOk", self.bResultOk);
  }
};

class Saves : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.Saves";

  // Backups of dateFrom <= date < dateTo by station name, newest first. onStation: 0 of the server, 1 of stations.
  // Status 2: the period is none.
  virtual void GetSaves(std::int32_t connection, std::int32_t onStation, std::int32_t userId, DateValue dateFrom,
                        DateValue dateTo, std::int32_t& status) = 0;
  virtual void CloseSaves(std::int32_t connection) = 0;

  // The files of one backup by name; failedOnly non-zero: those whose result is not true alone; nameFilter "" = all,
  // else a part of the name, without regard to the case of A to Z. Status 1: the backup does not exist.
  virtual void GetSaveFiles(std::int32_t connection, std::int32_t saveId, std::int32_t failedOnly,
                            std::string_view nameFilter, std::int32_t& status) = 0;
  virtual void CloseSaveFiles(std::int32_t connection) = 0;

  // Valid until the next call that is not const.
  virtual const SavesRecords& Records() const = 0;
};

}  // namespace quorvel::datasource
