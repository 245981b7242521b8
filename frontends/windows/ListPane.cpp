#include "windows/ListPane.h"

#include <windowsx.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "windows/Guard.h"
#include "windows/ItemLook.h"
#include "windows/TemporaryValue.h"
#include "windows/Window.h"

namespace quorvel::windows {
namespace {

using widgets::RowRange;
using widgets::RowRanges;

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_TABSTOP | LVS_REPORT |
                         LVS_OWNERDATA | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
constexpr DWORD kExtendedStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;

// Pixels at 96 dots per inch.
constexpr int kLeastColumn = 24;
constexpr int kTipWidth = 600;  // before its lines break

bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

bool IsAlone() {
  return !IsDown(VK_CONTROL) && !IsDown(VK_SHIFT) && !IsDown(VK_MENU);
}

// Calls a handler that may be missing.
template <class Handler, class... Values>
void Tell(const Handler& handler, Values... values) {
  if (handler) handler(values...);
}

int FormatOf(widgets::Alignment alignment) {
  switch (alignment) {
    case widgets::Alignment::kRight:
      return LVCFMT_RIGHT;
    case widgets::Alignment::kCentre:
      return LVCFMT_CENTER;
    case widgets::Alignment::kLeft:
      break;
  }
  return LVCFMT_LEFT;
}

POINT PointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}  // namespace

ListPane::ListPane(widgets::ListView& list, ListGestures gestures, HWND parent, Icons& icons)
    : list_(list), gestures_(std::move(gestures)), icons_(icons), painter_(list, icons) {
  window_.reset(
      CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"", kStyle, 0, 0, 0, 0, parent, nullptr, Module(), nullptr));
  if (!window_) throw Error(SystemError::kOutOfMemory, "No window for the list");
  header_ = ListView_GetHeader(window());
  ListView_SetUnicodeFormat(window(), TRUE);
  tip_.emplace(window(),
               [this](const CellTip::Cell& cell) { return painter_.TextIfCut(cell.row, cell.column, header_); });
  ListView_SetExtendedListViewStyle(window(), kExtendedStyle);
  SendMessageW(window(), WM_SETFONT, reinterpret_cast<WPARAM>(FontOf(parent)), FALSE);
  DpiChanged();
  headerKeys_.emplace(header_, window(),
                      [this](int column) { Tell(gestures_.columnClick, static_cast<std::size_t>(column) + 1); });
  ear_.emplace(window(), [this](UINT message, WPARAM wParam, LPARAM lParam) { return Hear(message, wParam, lParam); });
  headerEar_.emplace(header_, [this](UINT message, WPARAM, LPARAM) {
    if (ConcernsContent(message)) CatchUp();
    return std::optional<LRESULT>();
  });
  list_.ObserveList(this);
  ListPane::ListReset();
}

ListPane::~ListPane() {
  Leave();
}

// Once: another pane may show the list already when this one goes.
void ListPane::Leave() {
  if (std::exchange(left_, true)) return;
  list_.ObserveList(nullptr);
}

void ListPane::DpiChanged() {
  const Scale scale = ScaleOf(window());
  const HFONT font = FontOf(window());
  painter_.Prepare(font, scale);
  tip_->SetLook(font, scale.Of96(kTipWidth));
  // A list in report view is as high a row as its font or its small images; rows paint their icons themselves.
  UniqueImageList height(ImageList_Create(1, ItemHeight(font, icons_.pixels(), scale), ILC_COLOR, 1, 1));
  ListView_SetImageList(window(), height.get(), LVSIL_SMALL);
  rowHeight_ = std::move(height);
  Header_SetImageList(header_, icons_.list());
  FollowWidths();
  InvalidateRect(window(), nullptr, TRUE);
}

// --- What the list says

void ListPane::ListReset() {
  FallBehind();
  behindRows_ = true;
}

void ListPane::HeadersChanged() {
  if (following_) return;
  FallBehind();
  behindHeaders_ = true;
}

void ListPane::FallBehind() {
  if (!behindRows_ && !behindHeaders_) InvalidateRect(window(), nullptr, FALSE);
}

void ListPane::CatchUp() {
  const bool rows = std::exchange(behindRows_, false);
  const bool headers = std::exchange(behindHeaders_, false) || rows;
  if (!headers) return;
  Guarded([&] {
    {
      const TemporaryValue following(following_, true);
      std::optional<DrawnAfterwards> quietly;
      if (list_.headers() != shownHeaders_) quietly.emplace(window());
      FollowHeaders();
      if (rows) FollowRows();
    }
    if (rows) FollowSelection(true);
  });
}

// Seen from their beginning, without a current one. The native list takes as long for a number of rows that it has
// already as for another one.
void ListPane::FollowRows() {
  const auto rows = static_cast<int>(list_.Count());
  GoTo(std::nullopt);
  ScrollTo({});
  if (ListView_GetItemCount(window()) != rows) ListView_SetItemCountEx(window(), rows, 0);
}

void ListPane::RowsReordered() {
  CatchUp();
  Guarded([&] {
    // A selected row that the user sees stays in sight; else the list stays where it was scrolled to.
    const auto before = CurrentRow();
    const bool wasInSight = before && IsInSight(*before);
    const widgets::ListCorner corner = CornerInSight();
    FollowSelection(false);
    // Some versions of the native list go along with the current row.
    ListScrolled(corner);
    if (const auto item = list_.SelectedItem(); item && wasInSight) {
      ListView_EnsureVisible(window(), static_cast<int>(*item), FALSE);
    }
  });
}

void ListPane::RowsChanged(RowRange rows) {
  if (behindRows_) return;
  ListView_RedrawItems(window(), static_cast<int>(rows.first), static_cast<int>(rows.last) - 1);
}

void ListPane::ListSelectionChanged() {
  if (following_ || behindRows_) return;
  Guarded([&] { FollowSelection(true); });
}

void ListPane::ListScrolled(const widgets::ListCorner& corner) {
  CatchUp();
  Guarded([&] {
    if (corner.row < list_.Count()) ScrollTo(corner);
  });
}

void ListPane::ScrollTo(const widgets::ListCorner& corner) {
  const int down = static_cast<int>(corner.row) - ListView_GetTopIndex(window());
  const int right = ScaleOf(window()).ToPixels(corner.left) - GetScrollPos(window(), SB_HORZ);
  if (down == 0 && right == 0) return;
  const RECT row = PlaceOf(corner.row);
  ListView_Scroll(window(), right, down * static_cast<int>(row.bottom - row.top));
}

// Other rows are seen from their beginning.
widgets::ListCorner ListPane::CornerInSight() const {
  if (behindRows_) return {};
  return {static_cast<std::size_t>(std::max(ListView_GetTopIndex(window()), 0)),
          ScaleOf(window()).ToTwips(GetScrollPos(window(), SB_HORZ))};
}

void ListPane::FollowHeaders() {
  const TemporaryValue following(following_, true);
  const auto& headers = list_.headers();
  for (std::size_t surplus = shownHeaders_.size(); surplus > headers.size(); --surplus) {
    ListView_DeleteColumn(window(), static_cast<int>(surplus) - 1);
    shownHeaders_.pop_back();
  }
  for (std::size_t column = 0; column < headers.size(); ++column) {
    if (column >= shownHeaders_.size() || headers[column] != shownHeaders_[column]) FollowHeader(column);
  }
  shownHeaders_ = headers;
  if (FillsTheList()) FollowWidths();
}

void ListPane::FollowHeader(std::size_t column) {
  const widgets::ColumnHeader& model = list_.headers()[column];
  std::wstring caption = ToWide(model.caption);
  LVCOLUMNW shown{};
  shown.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
  shown.pszText = caption.data();
  shown.fmt = FormatOf(model.alignment);
  shown.cx = WidthOf(column);
  shown.iSubItem = static_cast<int>(column);
  const auto number = static_cast<WPARAM>(column);
  const bool exists = column < shownHeaders_.size();
  SendMessageW(window(), exists ? LVM_SETCOLUMNW : LVM_INSERTCOLUMNW, number, reinterpret_cast<LPARAM>(&shown));
  // The native list gives its header no images, and its first column no alignment.
  HDITEMW item{};
  item.mask = HDI_FORMAT | HDI_IMAGE;
  item.iImage = icons_.IndexOf(model.icon);
  item.fmt = HDF_STRING | shown.fmt;
  // On the side where the caption leaves room, so that it stays in line with the cells.
  if (item.iImage != I_IMAGENONE) item.fmt |= HDF_IMAGE | (shown.fmt == LVCFMT_RIGHT ? 0 : HDF_BITMAP_ON_RIGHT);
  SendMessageW(header_, HDM_SETITEMW, number, reinterpret_cast<LPARAM>(&item));
}

void ListPane::FollowWidths() {
  const TemporaryValue following(following_, true);
  const auto shown = static_cast<std::size_t>(Header_GetItemCount(header_));
  for (std::size_t column = 0; column < std::min(shown, list_.headers().size()); ++column) {
    const int width = WidthOf(column);
    if (ListView_GetColumnWidth(window(), static_cast<int>(column)) == width) continue;
    ListView_SetColumnWidth(window(), static_cast<int>(column), width);
  }
}

// A single column as wide as the list stands a frame and a scroll bar over; scrolling would bring nothing to light.
bool ListPane::FillsTheList() const {
  return list_.headers().size() == 1 && list_.headers().front().width <= list_.bounds().width;
}

int ListPane::WidthOf(std::size_t column) const {
  if (!FillsTheList()) return ScaleOf(window()).ToPixels(list_.headers()[column].width);
  RECT room{};
  GetClientRect(window(), &room);
  return room.right;
}

void ListPane::FollowSelection(bool scroll) {
  const auto item = list_.SelectedItem();
  const auto before = CurrentRow();
  anchor_ = item;
  GoTo(item);
  if (scroll && item && item != before) ListView_EnsureVisible(window(), static_cast<int>(*item), FALSE);
  ShowSelection();
}

// A screen reader hears that the selection is another one, and asks for what it wants to know.
void ListPane::ShowSelection() {
  InvalidateRect(window(), nullptr, FALSE);
  NotifyWinEvent(EVENT_OBJECT_SELECTIONWITHIN, window(), OBJID_CLIENT, CHILDID_SELF);
}

// The current row, where the keys are, is the native list's.
void ListPane::GoTo(std::optional<std::size_t> row) {
  const auto before = CurrentRow();
  if (row == before) return;
  LVITEMW set{};
  set.state = row ? LVIS_FOCUSED : 0U;
  set.stateMask = LVIS_FOCUSED;
  SendMessageW(window(), LVM_SETITEMSTATE, row ? *row : *before, reinterpret_cast<LPARAM>(&set));
}

// --- What the native list says

std::optional<std::size_t> ListPane::CurrentRow() const {
  const int row = ListView_GetNextItem(window(), -1, LVNI_FOCUSED);
  return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

std::optional<std::size_t> ListPane::RowAt(POINT place) const {
  LVHITTESTINFO hit{};
  hit.pt = place;
  const int row = ListView_SubItemHitTest(window(), &hit);
  return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

RECT ListPane::PlaceOf(std::size_t row) const {
  RECT place{};
  ListView_GetItemRect(window(), static_cast<int>(row), &place, LVIR_BOUNDS);
  return place;
}

bool ListPane::IsInSight(std::size_t row) const {
  const int top = ListView_GetTopIndex(window());
  const auto number = static_cast<int>(row);
  return number >= top && number < top + ListView_GetCountPerPage(window());
}

// --- What the native list asks and tells

LRESULT ListPane::Notify(NMHDR& header) {
  return GuardedOr(LRESULT{0}, [&]() -> LRESULT {
    switch (header.code) {
      case LVN_GETDISPINFOW:
        Describe(reinterpret_cast<NMLVDISPINFOW&>(header).item);
        return 0;
      case NM_CUSTOMDRAW:
        return Draw(reinterpret_cast<const NMLVCUSTOMDRAW&>(header));
      case LVN_COLUMNCLICK:
        Tell(gestures_.columnClick, static_cast<std::size_t>(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem) + 1);
        return 0;
      default:
        return 0;
    }
  });
}

void ListPane::Describe(LVITEMW& item) const {
  const auto row = static_cast<std::size_t>(item.iItem);
  const auto column = static_cast<std::size_t>(item.iSubItem);
  if (item.iItem < 0 || row >= list_.Count() || column >= list_.headers().size()) return;
  if ((item.mask & LVIF_TEXT) != 0) {
    const auto text = list_.TextOf(row, column);
    CopyText(ToWide(text ? *text : list_.Cell(row, column)), item.pszText, item.cchTextMax);
  }
  if ((item.mask & LVIF_IMAGE) != 0) item.iImage = column == 0 ? icons_.IndexOf(list_.Icon(row)) : I_IMAGENONE;
}

LRESULT ListPane::Draw(const NMLVCUSTOMDRAW& draw) {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) {
    focused_ = GetFocus() == window();
    return CDRF_NOTIFYITEMDRAW;
  }
  const auto row = static_cast<std::size_t>(draw.nmcd.dwItemSpec);
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || row >= list_.Count()) return CDRF_DODEFAULT;
  painter_.Paint(draw.nmcd.hdc,
                 {.number = row,
                  .place = PlaceOf(row),
                  .selected = list_.Selection().Contains(row),
                  .current = CurrentRow() == row,
                  .listHasFocus = focused_},
                 header_);
  return CDRF_SKIPDEFAULT;
}

// The native list holds no selection: ranges of a million rows are nothing that each of its versions is fit for.
// Whoever asks it is answered here, and whoever selects by a message does so in the list.
std::optional<LRESULT> ListPane::HearOfStates(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case LVM_GETSELECTEDCOUNT:
      return static_cast<LRESULT>(list_.Selection().Count());
    case LVM_GETITEMSTATE:
      return ear_->Pass(message, wParam, lParam) | StateOf(wParam, static_cast<UINT>(lParam));
    case LVM_GETITEMA:
    case LVM_GETITEMW: {
      const LRESULT answer = ear_->Pass(message, wParam, lParam);
      auto& item = *reinterpret_cast<LVITEMW*>(lParam);
      if ((item.mask & LVIF_STATE) != 0) item.state |= StateOf(static_cast<std::size_t>(item.iItem), item.stateMask);
      return answer;
    }
    case LVM_GETNEXTITEM:
      if (LOWORD(lParam) != LVNI_SELECTED) return std::nullopt;
      return NextSelected(static_cast<std::ptrdiff_t>(wParam) + 1);
    case LVM_SETITEMSTATE: {
      const LVITEMW& item = *reinterpret_cast<const LVITEMW*>(lParam);
      if ((item.stateMask & LVIS_SELECTED) == 0) return std::nullopt;
      SelectedFromOutside(static_cast<std::ptrdiff_t>(wParam), (item.state & LVIS_SELECTED) != 0);
      LVITEMW rest = item;
      rest.stateMask &= ~static_cast<UINT>(LVIS_SELECTED);
      return ear_->Pass(message, wParam, reinterpret_cast<LPARAM>(&rest));
    }
    default:
      return std::nullopt;
  }
}

UINT ListPane::StateOf(std::size_t row, UINT mask) const {
  return list_.Selection().Contains(row) ? mask & LVIS_SELECTED : 0U;
}

int ListPane::NextSelected(std::ptrdiff_t from) const {
  const auto first = static_cast<std::size_t>(std::max<std::ptrdiff_t>(from, 0));
  const auto ranges = list_.Selection().ranges();
  const auto range = std::ranges::find_if(ranges, [first](const RowRange& r) { return r.last > first; });
  return range == ranges.end() ? -1 : static_cast<int>(std::max(range->first, first));
}

// Row -1 stands for all.
void ListPane::SelectedFromOutside(std::ptrdiff_t row, bool selected) {
  if (row >= static_cast<std::ptrdiff_t>(list_.Count())) return;
  const auto number = static_cast<std::size_t>(row);
  const RowRange changed = row < 0 ? RowRange{0, list_.Count()} : RowRange{number, number + 1};
  RowRanges rows = list_.Selection();
  selected ? rows.Add(changed) : rows.Remove(changed);
  Select(std::move(rows), selected && row >= 0 ? std::optional(number) : CurrentRow());
}

void ListPane::HeaderChanged(const NMHEADERW& change) {
  if (following_ || change.pitem == nullptr || (change.pitem->mask & HDI_WIDTH) == 0) return;
  const TemporaryValue following(following_, true);
  const Scale scale = ScaleOf(window());
  const int least = scale.Of96(kLeastColumn);
  int width = ListView_GetColumnWidth(window(), change.iItem);
  if (width < least) ListView_SetColumnWidth(window(), change.iItem, width = least);
  list_.SetHeaderWidth(static_cast<std::size_t>(change.iItem), scale.ToTwips(width));
  shownHeaders_ = list_.headers();
}

// --- What the user did

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
      PointAt(PointOf(lParam));
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
