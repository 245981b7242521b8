// Writes the histories that the scripts open into a folder: small.db, the hand-made one of the other tests, and
// empty.db.
#include <exception>
#include <filesystem>
#include <iostream>

#include "hub/RecordHub.h"
#include "support/SmallHistory.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Use: quorvel_make_histories FOLDER\n";
    return 2;
  }
  try {
    const std::filesystem::path folder(argv[1]);
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    quorvel::hub::CreateHistory(folder / "empty.db");
    std::filesystem::copy_file(quorvel::test::SmallHistory().file(), folder / "small.db");
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << '\n';
    return 1;
  }
  return 0;
}
