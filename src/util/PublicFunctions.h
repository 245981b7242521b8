// Node keys read and matched, and rows copied to the clipboard.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "widgets/ListView.h"

namespace quorvel::util {

inline constexpr std::string_view kKeySeparator = "|";

// The field at `position`, counted from 1, of a key whose fields are parted by `separator`, which is found whatever its
// letter case. Empty for a position below 1 or behind the last field, and for an empty key or separator. The view lies
// in `key`.
std::string_view Identifiant(std::string_view key, std::int32_t position, std::string_view separator = kKeySeparator);

// The fields of a key; none of an empty key. The views lie in `key`.
std::vector<std::string_view> SplitKey(std::string_view key);

// Whether the fields of a key are as many as those of `pattern` and equal to them, letter for letter; "?" in the
// pattern stands for any field.
bool IsKeyNode(std::span<const std::string_view> parts, std::span<const std::string_view> pattern);

// The field at `position` as a 32-bit number. Error 13 when it is missing or no whole number, 6 when it does not fit.
std::int32_t IdentifiantNumber(std::string_view key, std::int32_t position);

// Replaces the clipboard with the header captions and the selected rows, see ClipboardText.h. Without selected rows the
// header line stands alone. Errors are those of the clipboard.
void m_CopyListView(Platform& platform, const widgets::ListView& list);

}  // namespace quorvel::util
