// What the user does on the list.
#include <algorithm>
#include <utility>

#include "windows/Input.h"
#include "windows/ItemLook.h"
#include "windows/ListPane.h"
#include "windows/TemporaryValue.h"

namespace quorvel::windows {
namespace {

using widgets::RowRanges;

bool IsAlone() {
  return !IsDown(VK_CONTROL) && !IsDown(VK_SHIFT) && !IsDown(VK_MENU);
}

}  // namespace

std::optional<LRESULT> ListPane::Hear(UINT message, WPARAM wParam, LPARAM lParam) {
  if (ConcernsContent(message)) CatchUp();
  switch (message) {
    case WM_DESTROY:
      Leave();
      return std::nullopt;
    case WM_SETFONT: {
      const LRESULT answer = ear_->Pass(message, wParam, lParam);
      DpiChanged();
      return answer;
    }
    case WM_SIZE: {
      const LRESULT answer = ear_->Pass(message, wParam, lParam);
      // Others keep their width, which may be the very one that brings a scroll bar just now.
      if (FillsTheList()) FollowWidths();
      return answer;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      InvalidateRect(window(), nullptr, FALSE);
      return std::nullopt;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      if (tip_->Notify(header)) return 0;
      if (header.hwndFrom != header_) return std::nullopt;
      const LRESULT answer = ear_->Pass(message, wParam, lParam);
      if (header.code == HDN_ITEMCHANGEDW) HeaderChanged(reinterpret_cast<const NMHEADERW&>(header));
      return answer;
    }
    default:
      break;
  }
  if (const auto handled = HearOfStates(message, wParam, lParam)) return handled;
  if (const auto handled = HearMouse(message, wParam, lParam)) return handled;
  return HearKeys(message, wParam, lParam);
}

// The native list handles no press: some versions wait for the button to come up, in a loop of their own.
std::optional<LRESULT> ListPane::HearMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_MOUSEMOVE) PointAt(PointOf(lParam));
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) tip_->Relay(message, wParam, lParam);
  switch (message) {
    case WM_LBUTTONDOWN:
      PressLeft(PointOf(lParam), (wParam & MK_CONTROL) != 0, (wParam & MK_SHIFT) != 0);
      return 0;
    case WM_LBUTTONDBLCLK:
      DoubleClick(PointOf(lParam));
      return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      // The second press of a quick pair is a press like any other there.
      PressRight(PointOf(lParam));
      return 0;
    case WM_RBUTTONUP:
      return 0;
    case WM_LBUTTONUP:
      ReleaseLeft();
      return 0;
    case WM_MOUSEMOVE:
      if (GetCapture() != window()) return std::nullopt;
      DragOver(PointOf(lParam));
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> ListPane::HearKeys(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KEYDOWN:
      if (PressKey(wParam) || MoveByKey(wParam)) return 0;
      return std::nullopt;
    case WM_KEYUP:
      if (wParam != VK_APPS) return std::nullopt;
      OpenMenuByKey();
      return 0;
    case WM_CHAR:
      TypeLetter(static_cast<wchar_t>(wParam));
      return 0;
    case WM_CONTEXTMENU:
      if (lParam == -1) OpenMenuByKey();
      return 0;
    case WM_GETDLGCODE: {
      // Enter is the list's in a dialog too.
      const bool enter = lParam != 0 && reinterpret_cast<const MSG*>(lParam)->wParam == VK_RETURN;
      return ear_->Pass(message, wParam, lParam) | (enter ? DLGC_WANTMESSAGE : 0);
    }
    default:
      return std::nullopt;
  }
}

void ListPane::NotePlace(POINT place) {
  menuPlace_ = place;
  ClientToScreen(window(), &menuPlace_);
}

void ListPane::PointAt(POINT place) {
  LVHITTESTINFO hit{};
  hit.pt = place;
  RECT cell{};
  if (ListView_SubItemHitTest(window(), &hit) < 0 || static_cast<std::size_t>(hit.iItem) >= list_.Count() ||
      Header_GetItemRect(header_, hit.iSubItem, &cell) == FALSE) {
    return tip_->PointAt({}, cell);
  }
  const RECT row = PlaceOf(static_cast<std::size_t>(hit.iItem));
  tip_->PointAt(CellTip::Cell{static_cast<std::size_t>(hit.iItem), static_cast<std::size_t>(hit.iSubItem)},
                {cell.left + row.left, row.top, cell.right + row.left, row.bottom});
}

// A press on one of several selected rows makes it the current one; that the others go is the end of the press.
void ListPane::PressLeft(POINT place, bool control, bool shift) {
  SetFocus(window());
  NotePlace(place);
  const auto row = RowAt(place);
  const bool keeps = row && !control && !shift && list_.Selection().Contains(*row);
  if (keeps) {
    anchor_ = row;
    Select(list_.Selection(), row);
    pressed_ = Pressed::kSelectedRow;
  } else {
    if (row) Reach(*row, control, shift);
    pressed_ = row ? Pressed::kRow : control || shift ? Pressed::kNothing : Pressed::kEmptySpace;
  }
  SetCapture(window());
  Tell(gestures_.mouseDown, MouseButton::kLeft, row);
}

// Over rows, and beside them: the list scrolls on then.
void ListPane::DragOver(POINT place) {
  const bool onRow = pressed_ == Pressed::kRow || pressed_ == Pressed::kSelectedRow;
  if (!onRow || !anchor_ || *anchor_ >= list_.Count()) return;
  RECT room{};
  RECT top{};
  GetClientRect(window(), &room);
  GetClientRect(header_, &top);
  auto row = RowAt({room.left + 1, place.y});
  const auto first = static_cast<std::size_t>(ListView_GetTopIndex(window()));
  if (place.y < top.bottom) row = first > 0 ? first - 1 : 0;
  if (!row && place.y >= top.bottom) row = first + static_cast<std::size_t>(ListView_GetCountPerPage(window()));
  row = std::min(*row, list_.Count() - 1);
  if (row == CurrentRow()) return;
  pressed_ = Pressed::kRow;
  Reach(*row, false, true);
}

void ListPane::ReleaseLeft() {
  if (GetCapture() == window()) ReleaseCapture();
  const Pressed pressed = std::exchange(pressed_, Pressed::kNothing);
  if (pressed == Pressed::kEmptySpace) Select({}, CurrentRow());
  const bool alone = pressed == Pressed::kSelectedRow && anchor_ && list_.Selection().Contains(*anchor_);
  if (alone) Reach(*anchor_, false, false);
}

// The owner selects what the right button is pressed on.
void ListPane::PressRight(POINT place) {
  SetFocus(window());
  NotePlace(place);
  Tell(gestures_.mouseDown, MouseButton::kRight, RowAt(place));
}

// The button that is still down means nothing to whatever the list shows now.
void ListPane::DoubleClick(POINT place) {
  SetFocus(window());
  const auto row = RowAt(place);
  if (!row) return;
  Reach(*row, false, false);
  Tell(gestures_.doubleClick);
}

bool ListPane::PressKey(WPARAM key) {
  constexpr std::int32_t kEnter = 13;
  const bool control = IsDown(VK_CONTROL) && !IsDown(VK_SHIFT) && !IsDown(VK_MENU);
  if (key == VK_RETURN && IsAlone()) {
    Tell(gestures_.keyDown, kEnter);
    return true;
  }
  if (!control) return false;
  switch (key) {
    case 'C':
    case VK_INSERT:
      Tell(gestures_.copy);
      return true;
    case 'A':
      Tell(gestures_.selectAll);
      return true;
    case VK_ADD:
      return true;  // natively it fits all columns to their texts
    default:
      return false;
  }
}

std::optional<std::size_t> ListPane::TargetOf(WPARAM key, std::size_t from) const {
  const std::size_t last = list_.Count() - 1;
  const auto page = static_cast<std::size_t>(std::max(ListView_GetCountPerPage(window()) - 1, 1));
  switch (key) {
    case VK_UP:
      return from - std::min<std::size_t>(from, 1);
    case VK_DOWN:
      return std::min(from + 1, last);
    case VK_PRIOR:
      return from - std::min(from, page);
    case VK_NEXT:
      return std::min(from + page, last);
    case VK_HOME:
      return 0;
    case VK_END:
      return last;
    case VK_SPACE:
      return from;
    default:
      return std::nullopt;
  }
}

bool ListPane::MoveByKey(WPARAM key) {
  if (list_.Count() == 0 || IsDown(VK_MENU)) return false;
  const auto current = CurrentRow();
  // With the focus the first row may become the current one without being selected; going down would pass it over.
  const bool begins = !list_.SelectedItem() && current.value_or(0) == 0 && key != VK_END;
  const auto target = TargetOf(key, current.value_or(0));
  if (!target) return false;
  const bool control = IsDown(VK_CONTROL);
  const bool shift = IsDown(VK_SHIFT);
  if (control && !shift && key != VK_SPACE) {
    GoTo(target);
    ListView_EnsureVisible(window(), static_cast<int>(*target), FALSE);
  } else {
    Reach(begins && !shift ? 0 : *target, control, shift);
  }
  return true;
}

void ListPane::TypeLetter(wchar_t unit) {
  if (!typed_.Type(unit)) return;
  if (const auto row = typed_.typed().FindRow(list_, list_.SelectedItem())) Reach(*row, false, false);
}

void ListPane::OpenMenuByKey() {
  const auto item = list_.SelectedItem();
  menuPlace_ = {};
  if (item) {
    ListView_EnsureVisible(window(), static_cast<int>(*item), FALSE);
    RECT seen{};
    GetClientRect(window(), &seen);
    const RECT row = PlaceOf(*item);
    menuPlace_ = {std::clamp(row.left, seen.left, seen.right), std::clamp(row.bottom, seen.top, seen.bottom)};
  }
  ClientToScreen(window(), &menuPlace_);
  Tell(gestures_.mouseDown, MouseButton::kRight, item);
}

// The row alone; with Ctrl it changes sides, with Shift all from where the last gesture without Shift was, with both
// they come to what is selected.
void ListPane::Reach(std::size_t row, bool control, bool shift) {
  RowRanges rows = control ? list_.Selection() : RowRanges();
  if (!shift || !anchor_ || *anchor_ >= list_.Count()) anchor_ = row;
  if (shift || !control) {
    rows.Add({std::min(row, *anchor_), std::max(row, *anchor_) + 1});
  } else {
    rows.Contains(row) ? rows.Remove({row, row + 1}) : rows.Add({row, row + 1});
  }
  ListView_EnsureVisible(window(), static_cast<int>(row), FALSE);
  Select(std::move(rows), row);
}

void ListPane::Select(RowRanges rows, std::optional<std::size_t> current) {
  const RowRanges rowsBefore = list_.Selection();
  const auto itemBefore = list_.SelectedItem();
  const auto item = current && rows.Contains(*current) ? current : std::nullopt;
  GoTo(current);
  {
    const TemporaryValue following(following_, true);
    list_.SetSelection(std::move(rows), item);
  }
  ShowSelection();
  if (list_.Selection() != rowsBefore || list_.SelectedItem() != itemBefore) Tell(gestures_.selectionChanged);
}

}  // namespace quorvel::windows
