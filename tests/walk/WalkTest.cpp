// A long random walk leaves no trace: what is shown at its end is what a new viewer shows.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "walk/Walker.h"

namespace quorvel::test {
namespace {

constexpr std::size_t kGestures = 100'000;
constexpr std::size_t kBetweenLooks = 1'000;

// Another number for another walk, or for one that is to be looked into.
std::uint64_t NumberFrom(const char* variable, std::uint64_t otherwise) {
  const char* const text = std::getenv(variable);
  return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

TEST(WalkTest, LeavesNoTrace) {
  const std::uint64_t seed = NumberFrom("QUORVEL_WALK_SEED", 20261120);
  const std::size_t gestures = NumberFrom("QUORVEL_WALK_GESTURES", kGestures);
  Walker walker(seed);
  for (std::size_t step = 1; step <= gestures; ++step) {
    std::string wrong = walker.Step();
    if (wrong.empty() && (step % kBetweenLooks == 0 || step == gestures)) wrong = walker.CompareWithNew();
    ASSERT_EQ(wrong, "") << "seed " << seed << ", step " << step << ", after\n" << walker.Trail();
  }
  const Walker::Seen& seen = walker.seen();
  std::cout << "random walk: seed " << seed << ", " << gestures << " gestures, " << seen.views.size() << " views, "
            << seen.nodes / gestures << " nodes and " << seen.rows / gestures << " rows on an average\n";
  EXPECT_EQ(seen.views.size(), 7);
  EXPECT_GT(seen.nodes, 4 * gestures);
  EXPECT_GT(seen.rows, gestures / 2);
}

}  // namespace
}  // namespace quorvel::test
