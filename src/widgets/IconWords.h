// What an icon shows, in words, for those who do not see it.
#pragma once

#include <string>
#include <string_view>

namespace quorvel::widgets {

// How it went, where it runs, what set it off, as the badges of the key's picture say: "Not OK", "Active, server". What
// the picture is of is left out, for the item that carries it says so itself. "" for a plain picture and for a key that
// has none.
std::string IconWords(std::string_view key);

}  // namespace quorvel::widgets
