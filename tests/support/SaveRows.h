// Answers about backups and their files, row by row.
#pragma once

#include <string>
#include <vector>

#include "datasource/Saves.h"
#include "support/ColumnsOfRows.h"

namespace quorvel::test {

// A backup, or, with a path, a file of one.
struct SaveRow {
  std::int32_t id;
  std::int32_t user;
  std::string name;
  CivilTime date;
  std::int16_t ok = -1;
  std::string path = {};
};

// Of GetSaves and GetSaveFiles alike. Each has as many KB as its number; station N is called "Lyon N".
inline datasource::SavesRecords SavesOf(const std::vector<SaveRow>& rows) {
  datasource::SavesRecords records;
  records.lngSaveId = records.lngSizeKb = ColumnOf(rows, &SaveRow::id);
  records.lngUserId = ColumnOf(rows, &SaveRow::user);
  records.strUserName = ColumnOf(rows, [](const SaveRow& row) { return "Lyon " + std::to_string(row.user); });
  records.strName = ColumnOf(rows, &SaveRow::name);
  records.dtDate = ColumnOf(rows, [](const SaveRow& row) { return DateFromCivil(row.date); });
  records.strPath = ColumnOf(rows, &SaveRow::path);
  records.bResultOk = ColumnOf(rows, &SaveRow::ok);
  return records;
}

}  // namespace quorvel::test
