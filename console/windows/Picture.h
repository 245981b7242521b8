// A picture of a window, as a file.
#pragma once

#include <windows.h>

#include <filesystem>

namespace quorvel::console {

// Writes what the window shows, with its frame, as a PNG file. Error 75 when it cannot be written.
void WritePicture(HWND window, const std::filesystem::path& file);

}  // namespace quorvel::console
