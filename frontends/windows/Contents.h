// What controls hold beside their place: the model's side drawn on the native control that stands for it.
#pragma once

#include <windows.h>

#include <string>

#include "widgets/Control.h"
#include "widgets/ItemList.h"
#include "widgets/Ranges.h"
#include "windows/Convert.h"
#include "windows/Fonts.h"

namespace quorvel::windows {

// Whatever the window shows as its text; one that is there already is not set again.
void ShowText(std::string_view text, HWND window);
std::wstring TextOf(HWND window);

void DrawContent(const widgets::Label& label, HWND window, const Fonts& fonts);
void DrawContent(const widgets::CheckBox& box, HWND window);
// `height`: of the closed box, in pixels.
void DrawContent(const widgets::ComboBox& combo, HWND window, int height);
// The rows share the height, in pixels, unless that would cut them.
void DrawContent(const widgets::ListBox& list, HWND window, int height, const Fonts& fonts);
void DrawContent(const widgets::DateTimePicker& picker, HWND window);
void DrawContent(const widgets::ScrollBar& bar, HWND window);

// What a date and time picker shows now.
DateValue ValueOf(HWND picker);

}  // namespace quorvel::windows
