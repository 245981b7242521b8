#include "scenario/PrivateFolder.h"

#include <random>
#include <string>
#include <system_error>

namespace quorvel::scenario {

PrivateFolder::PrivateFolder() {
  std::random_device random;
  do {
    path_ = std::filesystem::temp_directory_path() / ("quorvel-scenario-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(path_));
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace quorvel::scenario
