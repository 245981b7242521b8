#include "scenario_windows/NativeControls.h"

#include <optional>
#include <string_view>
#include <utility>

#include "platform/windows/WideText.h"
#include "scenario_windows/Painting.h"

namespace quorvel::scenario {

namespace {

using windows::FromWide;

// Texts without a message for their length are asked for again until they fit.
template <class Ask>
std::string AskText(Ask ask) {
  for (std::wstring text(512, L'\0');; text.assign(2 * text.size(), L'\0')) {
    ask(text.data(), static_cast<int>(text.size()));
    const std::size_t length = text.find(L'\0');
    if (length + 1 < text.size()) return FromWide({text.data(), length});
  }
}

struct RowMessages {
  UINT count;
  UINT length;
  UINT text;
};

std::vector<std::string> RowsOf(HWND window, const RowMessages& ask) {
  std::vector<std::string> rows;
  const auto count = static_cast<WPARAM>(Send(window, ask.count));
  for (WPARAM row = 0; row < count; ++row) {
    std::wstring text(static_cast<std::size_t>(Send(window, ask.length, row)), L'\0');
    Send(window, ask.text, row, text.data());
    rows.push_back(FromWide(text));
  }
  return rows;
}

// The caption that is drawn on or beside a control. One with a picture instead has a text for screen readers alone.
std::string CaptionOf(const widgets::Control& control, HWND window) {
  const auto* const button = dynamic_cast<const widgets::Button*>(&control);
  if (button != nullptr && (GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW) return {};
  const bool caption = button != nullptr || dynamic_cast<const widgets::Label*>(&control) != nullptr ||
                       dynamic_cast<const widgets::CheckBox*>(&control) != nullptr ||
                       dynamic_cast<const widgets::Frame*>(&control) != nullptr;
  return caption ? TextOf(window) : std::string();
}

std::vector<std::string> ItemsOf(const widgets::Control& control, HWND window) {
  if (dynamic_cast<const widgets::ComboBox*>(&control) != nullptr)
    return RowsOf(window, {CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT});
  if (dynamic_cast<const widgets::ListBox*>(&control) != nullptr)
    return RowsOf(window, {LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT});
  return {};
}

std::optional<std::string> ValueOf(const widgets::Control& control, HWND window,
                                   const std::vector<std::string>& items) {
  if (dynamic_cast<const widgets::ListBox*>(&control) != nullptr) {
    const LRESULT row = Send(window, LB_GETCURSEL);
    return row == LB_ERR ? std::string() : items.at(static_cast<std::size_t>(row));
  }
  if (dynamic_cast<const widgets::CheckBox*>(&control) != nullptr) {
    return Send(window, BM_GETCHECK) == BST_CHECKED ? "1" : "0";
  }
  if (dynamic_cast<const widgets::ScrollBar*>(&control) != nullptr) {
    return std::to_string(GetScrollPos(window, SB_CTL));
  }
  const bool text = dynamic_cast<const widgets::ComboBox*>(&control) != nullptr ||
                    dynamic_cast<const widgets::TextBox*>(&control) != nullptr ||
                    dynamic_cast<const widgets::RichTextBox*>(&control) != nullptr ||
                    dynamic_cast<const widgets::DateTimePicker*>(&control) != nullptr;
  return text ? std::optional(TextOf(window)) : std::nullopt;
}

// Asks the parent of a control what it makes of an item, as the control does while it paints.
template <class Draw>
Draw CustomDraw(HWND control, HDC dc, DWORD_PTR item, LPARAM data, const RECT& place) {
  Draw draw{};
  draw.nmcd.hdr = {control, static_cast<UINT_PTR>(GetDlgCtrlID(control)), static_cast<UINT>(NM_CUSTOMDRAW)};
  draw.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
  draw.nmcd.hdc = dc;
  draw.nmcd.rc = place;
  draw.nmcd.dwItemSpec = item;
  draw.nmcd.lItemlParam = data;
  draw.clrText = GetSysColor(COLOR_WINDOWTEXT);
  draw.clrTextBk = GetSysColor(COLOR_WINDOW);
  Send(GetParent(control), WM_NOTIFY, draw.nmcd.hdr.idFrom, &draw);
  return draw;
}

std::string CellText(HWND list, std::size_t row, std::size_t column) {
  return AskText([&](wchar_t* text, int size) {
    LVITEMW item{};
    item.iSubItem = static_cast<int>(column);
    item.pszText = text;
    item.cchTextMax = size;
    Send(list, LVM_GETITEMTEXTW, row, &item);
  });
}

widgets::Alignment AlignmentOf(int format) {
  switch (format & HDF_JUSTIFYMASK) {
    case HDF_RIGHT:
      return widgets::Alignment::kRight;
    case HDF_CENTER:
      return widgets::Alignment::kCentre;
    default:
      return widgets::Alignment::kLeft;
  }
}

std::string ItemText(HWND tree, HTREEITEM item) {
  return AskText([&](wchar_t* text, int size) {
    TVITEMW native{};
    native.mask = TVIF_HANDLE | TVIF_TEXT;
    native.hItem = item;
    native.pszText = text;
    native.cchTextMax = size;
    Send(tree, TVM_GETITEMW, 0, &native);
  });
}

// Fonts of rows are no state of a list: its parent paints them.
bool IsRowBold(HWND list, std::size_t row) {
  const auto paint = [&](HDC dc) { CustomDraw<NMLVCUSTOMDRAW>(list, dc, row, 0, RowPlace(list, row)); };
  return PaintedBy(paint).bold;
}

// Nor are colours of items a state of a tree: its parent names them.
bool IsItemGray(HWND tree, HTREEITEM item, LPARAM data) {
  const auto draw =
      CustomDraw<NMTVCUSTOMDRAW>(tree, nullptr, reinterpret_cast<DWORD_PTR>(item), data, ItemPlace(tree, item));
  return draw.clrText == GetSysColor(COLOR_GRAYTEXT);
}

}  // namespace

std::string TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return FromWide(text);
}

SeenControl SeeControl(const widgets::Control& control, HWND window) {
  std::vector<std::string> items = ItemsOf(control, window);
  std::optional<std::string> value = ValueOf(control, window, items);
  return {IsWindowVisible(window) != FALSE,
          IsWindowEnabled(window) != FALSE,
          {},
          CaptionOf(control, window),
          std::move(value),
          std::move(items)};
}

std::string PanelText(HWND statusBar) {
  std::wstring text(LOWORD(Send(statusBar, SB_GETTEXTLENGTHW)), L'\0');
  Send(statusBar, SB_GETTEXTW, 0, text.data());
  return FromWide(text);
}

std::string TabCaption(HWND tabs, int tab) {
  return AskText([&](wchar_t* text, int size) {
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = size;
    Send(tabs, TCM_GETITEMW, static_cast<WPARAM>(tab), &item);
  });
}

// The native control knows no disabled tabs: its parent paints the heads, those gray.
bool IsTabGray(HWND tabs, int tab) {
  if ((GetWindowLongPtrW(tabs, GWL_STYLE) & TCS_OWNERDRAWFIXED) == 0) return false;
  const Painted painted = PaintedBy([&](HDC dc) {
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_TAB;
    item.itemID = static_cast<UINT>(tab);
    item.itemAction = ODA_DRAWENTIRE;
    item.hwndItem = tabs;
    item.hDC = dc;
    Send(tabs, TCM_GETITEMRECT, item.itemID, &item.rcItem);
    Send(GetParent(tabs), WM_DRAWITEM, 0, &item);
  });
  return painted.colour == GetSysColor(COLOR_GRAYTEXT);
}

HTREEITEM NextItem(HWND tree, WPARAM relation, HTREEITEM item) {
  return reinterpret_cast<HTREEITEM>(Send(tree, TVM_GETNEXTITEM, relation, item));
}

bool IsItemOpen(HWND tree, HTREEITEM item) {
  return (Send(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_EXPANDED) & TVIS_EXPANDED) != 0;
}

SeenNode SeeItem(HWND tree, HTREEITEM item) {
  TVITEMW native{};
  native.mask = TVIF_HANDLE | TVIF_STATE | TVIF_CHILDREN | TVIF_PARAM;
  native.hItem = item;
  native.stateMask = TVIS_EXPANDED | TVIS_SELECTED | TVIS_BOLD;
  Send(tree, TVM_GETITEMW, 0, &native);
  SeenNode seen;
  seen.text = ItemText(tree, item);
  if (IsItemGray(tree, item, native.lParam)) seen.colour = widgets::SystemColour::kGrayText;
  seen.bold = (native.state & TVIS_BOLD) != 0;
  seen.expandable = native.cChildren != 0;
  seen.open = (native.state & TVIS_EXPANDED) != 0;
  seen.selected = (native.state & TVIS_SELECTED) != 0;
  return seen;
}

// The message takes the item at the place of its answer.
RECT ItemPlace(HWND tree, HTREEITEM item) {
  union {
    HTREEITEM item;
    RECT place;
  } ask{};
  ask.item = item;
  return Send(tree, TVM_GETITEMRECT, TRUE, &ask) != FALSE ? ask.place : RECT{};
}

std::vector<NativeHeader> HeadersOf(HWND header) {
  std::vector<NativeHeader> seen(static_cast<std::size_t>(Send(header, HDM_GETITEMCOUNT)));
  for (std::size_t column = 0; column < seen.size(); ++column) {
    HDITEMW item{};
    item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    seen[column].caption = AskText([&](wchar_t* text, int size) {
      item.pszText = text;
      item.cchTextMax = size;
      Send(header, HDM_GETITEMW, column, &item);
    });
    seen[column].width = item.cxy;
    seen[column].alignment = AlignmentOf(item.fmt);
  }
  return seen;
}

SeenRow SeeRow(HWND list, std::size_t row, std::size_t columns) {
  SeenRow seen;
  for (std::size_t column = 0; column < columns; ++column) seen.cells.push_back(CellText(list, row, column));
  seen.bold = IsRowBold(list, row);
  seen.selected = Send(list, LVM_GETITEMSTATE, row, LVIS_SELECTED) != 0;
  return seen;
}

RECT RowPlace(HWND list, std::size_t row) {
  RECT place{};
  place.left = LVIR_BOUNDS;
  Send(list, LVM_GETITEMRECT, row, &place);
  return place;
}

void SeeEntry(HMENU menu, UINT id, SeenMenuEntry& entry) {
  MENUITEMINFOW item{};
  item.cbSize = sizeof(item);
  item.fMask = MIIM_FTYPE | MIIM_STATE;
  entry.visible = GetMenuItemInfoW(menu, id, FALSE, &item) != FALSE;
  if (!entry.visible) return;
  entry.enabled = (item.fState & MFS_DISABLED) == 0;
  const auto ask = [&](wchar_t* text, int size) { GetMenuStringW(menu, id, text, size, MF_BYCOMMAND); };
  entry.caption = (item.fType & MFT_SEPARATOR) != 0 ? "-" : AskText(ask);
}

bool IsHighlighted(HMENU menu, UINT id) {
  const UINT state = GetMenuState(menu, id, MF_BYCOMMAND);
  return state != static_cast<UINT>(-1) && (state & MF_HILITE) != 0;
}

RECT ClientOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return client;
}

RECT PlaceIn(HWND container, HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, container, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

POINT CentreOf(const RECT& place) {
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

}  // namespace quorvel::scenario
