#include "com/ExpectedText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quorvel::test {

std::string SourceFolder() {
  return std::filesystem::absolute(QUORVEL_COM_TESTS).string();
}

void ExpectText(const std::string& name, const std::string& text) {
  std::ifstream file(std::filesystem::path(SourceFolder()) / (name + ".expected"), std::ios::binary);
  const std::string expected{std::istreambuf_iterator<char>(file), {}};
  if (expected == text && !text.empty()) return;
  std::ofstream(name + ".actual", std::ios::binary) << text;
  EXPECT_EQ(text, expected) << "see " << std::filesystem::absolute(name + ".actual");
}

}  // namespace quorvel::test
