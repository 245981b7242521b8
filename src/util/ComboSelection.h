// Selecting an entry of a combo box by what it stands for.
#pragma once

#include <cstdint>
#include <string_view>

#include "widgets/ItemList.h"

namespace quorvel::util {

// Select the first entry with exactly this text, or this number, and tell whether there is one. Without one the
// selection stays as it was, so that a caller can go on to its second choice.
bool SelectStringIn(widgets::ComboBox& combo, std::string_view text);
bool SelectDataIn(widgets::ComboBox& combo, std::int32_t data);

}  // namespace quorvel::util
