// A folder of its own for temporary files, gone with the object.
#pragma once

#include <filesystem>

namespace quorvel::scenario {

class PrivateFolder {
 public:
  // Makes a new folder in the system's folder for temporary files. std::filesystem::filesystem_error when it cannot.
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace quorvel::scenario
