// What tree and list have in common in the look of their items.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "widgets/TreeView.h"
#include "windows/Convert.h"

namespace quorvel::windows {

// The first line that is not blank, tabs and other control codes as blanks, with an ellipsis where more follows. What
// no column is wide enough for is left out.
std::wstring LineOf(std::wstring_view text);

// The text as far as `room` units with the closing zero hold it, zeros in it as blanks.
void CopyText(std::wstring_view text, wchar_t* buffer, int room);

// Without the focus a pane shows its selection quietly, so that one sees where the keys go.
struct ItemColours {
  COLORREF text;
  COLORREF background;
};
ItemColours ColoursOf(widgets::SystemColour colour, bool selected, bool focused);

// The height of a line of text or of an icon, whichever is more, with air around it.
int ItemHeight(HFONT font, int iconPixels, const Scale& scale);

// The font that a window was given, else the one that dialogs have.
HFONT FontOf(HWND window);

// Whether a message to a pane is about what is in it, so that what is not up to date there must become so before:
// painting, input, questions and orders that native controls know. Others are about the window.
bool ConcernsContent(UINT message);

// Nothing of a window is drawn while one lives, and all of it afterwards. For batches: to draw after each of many
// changes is what makes native controls slow.
class DrawnAfterwards {
 public:
  explicit DrawnAfterwards(HWND window);
  ~DrawnAfterwards();
  DrawnAfterwards(const DrawnAfterwards&) = delete;
  DrawnAfterwards& operator=(const DrawnAfterwards&) = delete;

 private:
  HWND window_;
  bool visible_;
};

}  // namespace quorvel::windows
