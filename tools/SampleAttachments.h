// Files that the scheduler's log of a sample refers to: some are there, some were deleted since.
#pragma once

#include <filesystem>
#include <string>

#include "tools/SampleRandom.h"

namespace quorvel::tools {

class SampleAttachments {
 public:
  // Writes the files that are there into `folder`, which is made; without a folder all are gone. Error 75 when that
  // cannot be done.
  explicit SampleAttachments(const std::filesystem::path& folder);

  // The full path of one of them.
  std::string Any(SampleRandom& random) const;

 private:
  std::string prefix_;  // the folder with its separator
};

}  // namespace quorvel::tools
