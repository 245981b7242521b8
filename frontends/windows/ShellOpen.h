// Files that the user's desktop opens.
#pragma once

#include <windows.h>

#include <filesystem>

namespace quorvel::windows {

// `owner`: of what the shell may have to ask; may be null. A name that is not absolute is one of the working folder.
// Both raise 53 for a file that does not exist, 5 with the system's text when it is not opened.

// With the program that the desktop knows for it.
void OpenInShell(HWND owner, const std::filesystem::path& file);
// With one that the user chooses. Returns as soon as the user is asked.
void OpenWithChosenProgram(const std::filesystem::path& file);

}  // namespace quorvel::windows
