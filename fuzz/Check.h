// What every fuzz target is made of: statements that must hold for whatever comes in, and the input as text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "platform/Error.h"

namespace quorvel::fuzz {

// Ends the program, by which the fuzzer keeps the input.
inline void Check(bool holds, const char* statement) {
  if (holds) return;
  std::fprintf(stderr, "Does not hold: %s\n", statement);
  std::abort();
}

// Runs what may refuse its input in the way that the library refuses things; anything else that it throws is a fault.
template <class Body>
void MayRefuse(Body&& body) {
  try {
    body();
  } catch (const Error& error) {
    Check(error.number() != 0 && !error.description().empty(), "an error has a number and a description");
  }
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// The text up to the next line feed, which is taken off.
inline std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

inline std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) lines.push_back(TakeLine(text));
  return lines;
}

}  // namespace quorvel::fuzz

// What the fuzzer calls.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
