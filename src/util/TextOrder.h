// The order in which people look texts up: letter case counts last.
#pragma once

#include <compare>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace quorvel::util {

// Compares by code points, without regard to letter case in the Latin, Greek and Cyrillic alphabets; texts that are
// then alike, by code points as they stand. Any bytes will do.
std::strong_ordering CompareTexts(std::string_view a, std::string_view b);

// Whether a text begins so, without regard to letter case in the same alphabets: what typing ahead looks for. Every
// text begins with the empty one.
bool BeginsWith(std::string_view text, std::string_view beginning);

// A number for each text that orders as the texts do: equal texts have equal numbers. Of texts that repeat, each is
// compared once.
std::vector<std::int64_t> RankTexts(std::span<const std::string_view> texts);

}  // namespace quorvel::util
