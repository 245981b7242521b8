#include "BenchPlatform.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace quorvel::bench {

void BenchPlatform::ShowMessage(std::string_view text, std::string_view title) {
  std::fprintf(stderr, "%s: %s\n", std::string(title).c_str(), std::string(text).c_str());
  std::exit(2);
}

}  // namespace quorvel::bench
