// A history of a few rows, made by hand, that holds each special case once.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "support/TemporaryFolder.h"

namespace quorvel::test {

// Noon of the newest day in the history: 2026-11-20.
inline constexpr double kNoon = 46346.5;
// A period that holds every run with a date.
inline constexpr double kEarly = 46000;
inline constexpr double kLate = 47000;

inline constexpr std::int32_t kAcme = 1, kBolt = 2;
// Ordered by name: 0 (no population), alpha, Beta, gamma ("aardvark" at the time of kDeployWithAll), Été.
inline constexpr std::int32_t kAlpha = 1, kBeta = 2, kGamma = 3, kEte = 4;
// Ordered by name: Archive|x, backup, Deploy, Empty.
inline constexpr std::int32_t kBackup = 10, kDeploy = 11, kEmpty = 12, kArchive = 13;

inline constexpr std::int32_t kDeployWithAll = 100;       // NOT OK: one station in each finished state, one with both
inline constexpr std::int32_t kDeployRunning = 101;       // in progress; not executed; OK flag of value 1
inline constexpr std::int32_t kBackupNoPopulation = 102;  // OK on station 0
inline constexpr std::int32_t kDeployNoStation = 103;     // no station took part
inline constexpr std::int32_t kArchiveUnknown = 104;      // unknown, a run on a station
inline constexpr std::int32_t kArchiveNoDate = 105;       // OK, start date 0, a run on a station
inline constexpr std::int32_t kBackupOld = 106;           // NOT OK

// Of the run kDeployWithAll: Copy (alpha and Beta each), Prepare (once for all stations), Check (alpha).
inline constexpr std::int32_t kCopy = 21, kPrepare = 22, kCheck = 23;
inline constexpr std::int32_t kCopyOnAlpha = 201, kPrepareOnce = 202, kCheckOnAlpha = 203, kCopyOnBeta = 204;
inline constexpr std::int32_t kFirstStep = 301, kSecondStep = 302;  // of kCopyOnAlpha

class SmallHistory {
 public:
  SmallHistory();

  const std::filesystem::path& file() const { return file_; }
  // For a connection to it.
  std::string url() const { return "sqlite:" + file_.string(); }

  // Changes the history underneath whoever reads it, in one transaction.
  void Sql(std::string_view script) const;

 private:
  TemporaryFolder folder_;
  std::filesystem::path file_;
};

}  // namespace quorvel::test
