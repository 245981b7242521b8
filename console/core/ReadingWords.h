// What a query of the contract reads, in words for whoever waits for it.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quorvel::console {

struct Reading {
  std::string_view query;
  std::string_view what;
};
std::span<const Reading> Readings();

// "Reading runs..."; empty for a query that reads no rows.
std::string WordsFor(std::string_view query);

}  // namespace quorvel::console
