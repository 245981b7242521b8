#include "windows/ListPane.h"

#include <algorithm>
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

}  // namespace quorvel::windows
