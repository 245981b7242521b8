// People of a sample: who works with the history, and who is imported.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tools/SampleRandom.h"

namespace quorvel::tools {

// Users of the console, qualified by their domain.
std::span<const std::string_view> Operators();

// "Zoë Lindqvist".
std::string AnyPerson(SampleRandom& random);

}  // namespace quorvel::tools
