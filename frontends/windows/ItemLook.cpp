#include "windows/ItemLook.h"

#include <algorithm>
#include <cstddef>
#include <cwctype>

#include "windows/Handles.h"

namespace quorvel::windows {
namespace {

constexpr std::ptrdiff_t kMostShown = 1000;

bool EndsLine(wchar_t c) {
  return c == L'\n' || c == L'\r' || c == L'\x2028' || c == L'\x2029';
}

COLORREF Blend(COLORREF under, COLORREF over, int percent) {
  const auto mix = [percent](int a, int b) { return static_cast<BYTE>(a + (b - a) * percent / 100); };
  return RGB(mix(GetRValue(under), GetRValue(over)), mix(GetGValue(under), GetGValue(over)),
             mix(GetBValue(under), GetBValue(over)));
}

}  // namespace

std::wstring LineOf(std::wstring_view text) {
  const auto first = std::find_if_not(text.begin(), text.end(), EndsLine);
  const auto last = std::find_if(first, text.end(), EndsLine);
  const bool moreFollows = !std::all_of(last, text.end(), [](wchar_t c) { return std::iswspace(c) != 0; });
  std::wstring line(first, first + std::min(last - first, kMostShown));
  std::ranges::replace_if(
      line, [](wchar_t c) { return c < L' '; }, L' ');
  if (moreFollows || last - first > kMostShown) line.append(L"\x2026");
  return line;
}

void CopyText(std::wstring_view text, wchar_t* buffer, int room) {
  if (buffer == nullptr || room <= 0) return;
  const std::wstring_view held = text.substr(0, static_cast<std::size_t>(room) - 1);
  std::ranges::replace_copy(held, buffer, L'\0', L' ');
  buffer[held.size()] = L'\0';
}

ItemColours ColoursOf(widgets::SystemColour colour, bool selected, bool focused) {
  constexpr int kShareOfHighlight = 28;
  if (selected && focused) return {GetSysColor(COLOR_HIGHLIGHTTEXT), GetSysColor(COLOR_HIGHLIGHT)};
  const COLORREF window = GetSysColor(COLOR_WINDOW);
  const COLORREF background = selected ? Blend(window, GetSysColor(COLOR_HIGHLIGHT), kShareOfHighlight) : window;
  return {GetSysColor(colour == widgets::SystemColour::kGrayText ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT), background};
}

int ItemHeight(HFONT font, int iconPixels, const Scale& scale) {
  constexpr int kAroundText = 6;
  constexpr int kAroundIcon = 6;
  const ScreenDc screen;
  const HGDIOBJ before = SelectObject(screen.get(), font);
  TEXTMETRICW text{};
  GetTextMetricsW(screen.get(), &text);
  SelectObject(screen.get(), before);
  return std::max(static_cast<int>(text.tmHeight) + scale.Of96(kAroundText), iconPixels + scale.Of96(kAroundIcon));
}

HFONT FontOf(HWND window) {
  const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  return font != nullptr ? font : static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

bool ConcernsContent(UINT message) {
  switch (message) {
    case WM_PAINT:
    case WM_PRINTCLIENT:
    case WM_GETOBJECT:
    case WM_CONTEXTMENU:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_SETFOCUS:
      return true;
    default:
      return message >= WM_USER || (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
             (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
  }
}

DrawnAfterwards::DrawnAfterwards(HWND window)
    : window_(window), visible_((GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0) {
  // A hidden window would be shown by being allowed to draw again.
  if (visible_) SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
}

DrawnAfterwards::~DrawnAfterwards() {
  if (!visible_) return;
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_ALLCHILDREN);
}

}  // namespace quorvel::windows
