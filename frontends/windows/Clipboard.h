// The clipboard of Windows, plain text.
#pragma once

#include <windows.h>

#include <string_view>

namespace quorvel::windows {

// `owner` may be null. Error 70, with what the system says, when another program does not let go of the clipboard or
// the system does not take the text; 7 without memory for it.
void EmptyClipboardOf(HWND owner);
void SetClipboardTextOf(HWND owner, std::string_view text);

}  // namespace quorvel::windows
