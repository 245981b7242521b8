// Writes the histories that the scripts open into a folder: small.db, the hand-made one of the other tests, empty.db,
// sample.db, a month of a chain of shops, and packages.db, what apt and dpkg did to a machine.
#include <exception>
#include <filesystem>
#include <iostream>

#include "hub/RecordHub.h"
#include "support/SmallHistory.h"
#include "tools/AptImport.h"
#include "tools/SampleHistory.h"

namespace {

using quorvel::tools::Existing;

// The seed is one with a bad night: one of the thirty stations missed last night's prices.
const quorvel::tools::SampleOptions kSample{.stations = 30, .runs = 60, .processes = 14, .detailRuns = 14, .seed = 54};

void WriteHistories(const std::filesystem::path& folder, const std::filesystem::path& packageLogs) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  quorvel::hub::CreateHistory(folder / "empty.db");
  std::filesystem::copy_file(quorvel::test::SmallHistory().file(), folder / "small.db");
  quorvel::tools::WriteSampleHistory(kSample, folder / "sample.db", Existing::kKeep);
  const quorvel::DateValue dayAfter = quorvel::DateFromCivil({2026, 11, 21, 12, 0, 0});
  quorvel::tools::ImportAptHistory({packageLogs, "workbench", dayAfter}, folder / "packages.db", Existing::kKeep);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "Use: quorvel_make_histories FOLDER PACKAGE_LOGS\n";
    return 2;
  }
  try {
    WriteHistories(argv[1], argv[2]);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << '\n';
    return 1;
  }
  return 0;
}
