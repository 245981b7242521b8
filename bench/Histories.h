// The histories that the benchmarks read.
#pragma once

#include <cstdint>
#include <filesystem>

namespace quorvel::bench {

// A history of so many station rows, 50 a run, of 200 processes and 3,000 stations within a year.
std::filesystem::path MakeHistory(const std::filesystem::path& folder, std::int32_t rows);

// A history of one run, 1, with 1,000,000 stations, all of them OK. Name, identifier and report of each are its own.
std::filesystem::path MakeLongRunHistory(const std::filesystem::path& folder);

// Adds the same rows to any history: a process with 15 runs on 500 stations of its own, all OK. In the newest run each
// station has 20 tasks, the first task 20 steps, the first step 20 commands. Process and stations come first by name.
void AddProbe(const std::filesystem::path& history);

}  // namespace quorvel::bench
