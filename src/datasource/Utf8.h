// Texts that come from outside are made valid UTF-8 once, where they enter.
#pragma once

#include <string>
#include <string_view>

namespace quorvel::datasource {

// True when `text` is well-formed UTF-8: no overlong form, no surrogate, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view text);

// The text with U+FFFD for each byte that does not belong to a well-formed sequence; nothing is dropped.
std::string ReplaceInvalidUtf8(std::string_view text);

}  // namespace quorvel::datasource
