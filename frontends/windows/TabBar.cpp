#include "windows/TabBar.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "windows/Window.h"

namespace quorvel::windows {
namespace {

constexpr int kCaptionMargin = 12;  // beside a caption, at 96 dots per inch
constexpr int kRaised = 2;          // by how much the current head is higher than the others

}  // namespace

TabBar::TabBar(widgets::TabStrip& tabs, Surface& surface, HWND parent, std::function<void(std::size_t)> chosen)
    : tabs_(tabs),
      surface_(surface),
      chosen_(std::move(chosen)),
      window_(surface.Make(
          tabs, WC_TABCONTROLW, WS_TABSTOP | TCS_SINGLELINE, NameNext(parent, L"Views"),
          [this](HWND window) { Draw(window); }, Fit::kFill)),
      ear_(window_, [this](UINT message, WPARAM wParam, LPARAM lParam) { return Hear(message, wParam, lParam); }) {
  surface_.notices().Listen(window_, {.notify = [this](const NMHDR& header) { return Notify(header); },
                                      .draw = [this](const DRAWITEMSTRUCT& item) { DrawTab(item); }});
}

bool TabBar::CanChoose(std::size_t tab) const {
  return tabs_.tabs()[tab].visible && tabs_.tabs()[tab].enabled;
}

std::size_t TabBar::TabAt(int index) const {
  std::size_t tab = 0;
  for (; tab < tabs_.tabs().size(); ++tab) {
    if (tabs_.tabs()[tab].visible && index-- == 0) break;
  }
  return tab;
}

int TabBar::IndexOf(std::size_t tab) const {
  const auto& tabs = tabs_.tabs();
  if (tab >= tabs.size() || !tabs[tab].visible) return -1;
  return static_cast<int>(std::count_if(tabs.begin(), tabs.begin() + static_cast<std::ptrdiff_t>(tab),
                                        [](const widgets::Tab& before) { return before.visible; }));
}

void TabBar::Draw(HWND window) {
  const int height = surface_.scale().ToPixels(tabs_.bounds().height);
  SendMessageW(window, TCM_SETPADDING, 0, MAKELPARAM(surface_.scale().Of96(kCaptionMargin), 3));
  // The heads take all of the strip, so that of the page below its upper edge alone is left.
  SendMessageW(window, TCM_SETITEMSIZE, 0, MAKELPARAM(0, std::max(height - 2 * kRaised, 1)));
  if (drawn_ != tabs_.tabs()) DrawTabs(window);
  const int current = IndexOf(tabs_.current());
  if (SendMessageW(window, TCM_GETCURSEL, 0, 0) != current) {
    SendMessageW(window, TCM_SETCURSEL, static_cast<WPARAM>(current), 0);
  }
}

void TabBar::DrawTabs(HWND window) {
  drawn_ = tabs_.tabs();
  SendMessageW(window, WM_SETREDRAW, FALSE, 0);
  SendMessageW(window, TCM_DELETEALLITEMS, 0, 0);
  int index = 0;
  for (const widgets::Tab& tab : drawn_) {
    if (!tab.visible) continue;
    std::wstring caption = ToWide(tab.caption);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    SendMessageW(window, TCM_INSERTITEMW, static_cast<WPARAM>(index++), reinterpret_cast<LPARAM>(&item));
  }
  // The native control knows no disabled tabs.
  const bool own = !std::ranges::all_of(drawn_, &widgets::Tab::enabled);
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE) & ~static_cast<LONG_PTR>(TCS_OWNERDRAWFIXED);
  SetWindowLongPtrW(window, GWL_STYLE, own ? style | TCS_OWNERDRAWFIXED : style);
  SendMessageW(window, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(window, nullptr, TRUE);
}

void TabBar::DrawTab(const DRAWITEMSTRUCT& item) const {
  const std::size_t tab = TabAt(static_cast<int>(item.itemID));
  if (tab >= tabs_.tabs().size()) return;
  const std::wstring caption = ToWide(tabs_.tabs()[tab].caption);
  RECT place = item.rcItem;
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(CanChoose(tab) ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
  DrawTextW(item.hDC, caption.c_str(), -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

LRESULT TabBar::Notify(const NMHDR& header) {
  if (header.code != TCN_SELCHANGE) return 0;
  const std::size_t tab = TabAt(static_cast<int>(SendMessageW(window_, TCM_GETCURSEL, 0, 0)));
  // Back first: the strip may have other plans.
  SendMessageW(window_, TCM_SETCURSEL, static_cast<WPARAM>(IndexOf(tabs_.current())), 0);
  if (tab < tabs_.tabs().size() && CanChoose(tab)) chosen_(tab);
  return 0;
}

std::optional<LRESULT> TabBar::Hear(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN && (wParam == VK_LEFT || wParam == VK_RIGHT)) {
    ChooseNeighbour(wParam == VK_RIGHT ? +1 : -1, false);
    return 0;
  }
  if (message == WM_LBUTTONDOWN) {
    TCHITTESTINFO hit{{static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))}, 0};
    const auto index = static_cast<int>(SendMessageW(window_, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (index >= 0 && TabAt(index) < tabs_.tabs().size() && !CanChoose(TabAt(index))) return 0;
  }
  return std::nullopt;
}

void TabBar::ChooseNeighbour(int by, bool circle) {
  const auto count = static_cast<std::ptrdiff_t>(tabs_.tabs().size());
  auto tab = static_cast<std::ptrdiff_t>(tabs_.current());
  for (std::ptrdiff_t seen = 1; seen < count; ++seen) {
    tab += by;
    if (!circle && (tab < 0 || tab >= count)) return;
    tab = (tab + count) % count;
    if (CanChoose(static_cast<std::size_t>(tab))) return chosen_(static_cast<std::size_t>(tab));
  }
}

}  // namespace quorvel::windows
