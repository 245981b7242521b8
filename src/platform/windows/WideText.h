// Texts on their way between the library, UTF-8, and Windows, UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace quorvel::windows {

// Bytes that are not UTF-8 become the replacement character.
std::wstring ToWide(std::string_view text);
// Halves of surrogate pairs that stand alone become the replacement character.
std::string FromWide(std::wstring_view text);

}  // namespace quorvel::windows
