// The histories that the benchmarks read.
#pragma once

#include <cstdint>
#include <filesystem>

namespace quorvel::bench {

// A history of so many station rows, 50 a run, of 200 processes and 3,000 stations within a year.
std::filesystem::path MakeHistory(const std::filesystem::path& folder, std::int32_t rows);

// A history of one run, 1, with 1,000,000 stations, all of them OK. Name, identifier and report of each are its own.
std::filesystem::path MakeLongRunHistory(const std::filesystem::path& folder);

// A history of so many connections, alarms, backups, users of imports and rows of the scheduler's log each, of 3,000
// stations within a year.
std::filesystem::path MakeViewsHistory(const std::filesystem::path& folder, std::int32_t rows);

// A history with 1,000,000 connections on one day, a backup of the server, 1, with 1,000,000 files, and an import, 1,
// that imported 1,000,000 users in one run by hand.
std::filesystem::path MakeLongPartsHistory(const std::filesystem::path& folder);

// Adds the same rows to any history: a process with 15 runs on 500 stations of its own, all OK. In the newest run each
// station has 20 tasks, the first task 20 steps, the first step 20 commands. Process and stations come first by name.
void AddProbe(const std::filesystem::path& history);

// The same for what lies beside the runs, of 500 stations that come first by name: in the newest month 20 days with 500
// connections each, 20 commands in each first one; 20 alarms of each station, one a day; of each station 20 backups on
// one day, with 20 files each in 4 folders; and an import, kProbe, of 20 processes, each with one run of 20 users.
void AddViewsProbe(const std::filesystem::path& history);
inline constexpr std::int32_t kProbe = 10'000'000;

}  // namespace quorvel::bench
