#include "windows/RowPainter.h"

#include <commctrl.h>

#include <algorithm>

#include "windows/Fonts.h"
#include "windows/ItemLook.h"

namespace quorvel::windows {
namespace {

// As much of a text as is ever painted: a cell may hold a report of a megabyte.
constexpr std::size_t kPaintedBytes = 4000;

// Pixels at 96 dots per inch from a column's edges to its text. Numbers end further from the text that begins beside
// them.
constexpr int kBeforeText = 6;
constexpr int kAfterText = 6;
constexpr int kAfterNumbers = 9;
constexpr int kBeforeIcon = 4;

UINT FormatOf(widgets::Alignment alignment) {
  switch (alignment) {
    case widgets::Alignment::kRight:
      return DT_RIGHT;
    case widgets::Alignment::kCentre:
      return DT_CENTER;
    case widgets::Alignment::kLeft:
      break;
  }
  return DT_LEFT;
}

void Fill(HDC dc, const RECT& place, COLORREF colour) {
  const UniqueBrush brush(CreateSolidBrush(colour));
  FillRect(dc, &place, brush.get());
}

}  // namespace

void RowPainter::Prepare(HFONT font, const Scale& scale) {
  scale_ = scale;
  plain_ = font;
  LOGFONTW heavier{};
  GetObjectW(font, sizeof(heavier), &heavier);
  heavier.lfWeight = FW_BOLD;
  bold_.reset(CreateFontIndirectW(&heavier));
}

void RowPainter::Paint(HDC dc, const Row& row, HWND header) {
  const widgets::RowLook look = list_.Look(row.number);
  const ItemColours colours = ColoursOf(look.colour, row.selected, row.listHasFocus);
  Fill(dc, row.place, colours.background);
  SetTextColor(dc, colours.text);
  SetBkMode(dc, TRANSPARENT);
  const FontOn font(dc, look.bold ? bold_.get() : plain_);
  RECT drawn{};
  GetClipBox(dc, &drawn);
  for (std::size_t column = 0; column < list_.headers().size(); ++column) {
    RECT place{};
    if (Header_GetItemRect(header, static_cast<int>(column), &place) == FALSE) break;
    place = {place.left + row.place.left, row.place.top, place.right + row.place.left, row.place.bottom};
    if (place.right <= drawn.left || place.left >= drawn.right) continue;
    if (column == 0) PaintIcon(dc, row, place);
    PaintCell(dc, row.number, column, place);
  }
  // The selection says where one is, but where Ctrl goes along without selecting.
  if (row.current && row.listHasFocus && !row.selected) DrawFocusRect(dc, &row.place);
}

// Takes the room of the icon from the cell.
void RowPainter::PaintIcon(HDC dc, const Row& row, RECT& place) {
  const bool highlighted = row.selected && row.listHasFocus;
  const std::string_view key = list_.Icon(row.number);
  const int image = highlighted ? icons_.OnHighlight(key) : icons_.IndexOf(key);
  if (image == I_IMAGENONE) return;
  const int side = icons_.pixels();
  place.left += scale_.Of96(kBeforeIcon);
  const int shown = std::min<int>(side, place.right - place.left);
  const int top = place.top + (place.bottom - place.top - side) / 2;
  if (shown > 0)
    ImageList_DrawEx(icons_.list(), image, dc, place.left, top, shown, side, CLR_NONE, CLR_NONE, ILD_NORMAL);
  place.left += side;
}

RECT RowPainter::TextIn(std::size_t column, RECT place) const {
  const bool right = list_.headers()[column].alignment == widgets::Alignment::kRight;
  place.left += scale_.Of96(kBeforeText);
  place.right -= scale_.Of96(right ? kAfterNumbers : kAfterText);
  return place;
}

void RowPainter::PaintCell(HDC dc, std::size_t row, std::size_t column, RECT place) {
  RECT text = TextIn(column, place);
  if (text.left >= text.right) return;
  const std::wstring line = LineOf(ToWide(CellText(row, column).substr(0, kPaintedBytes)));
  DrawTextW(dc, line.c_str(), static_cast<int>(line.size()), &text,
            FormatOf(list_.headers()[column].alignment) | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

std::wstring RowPainter::TextIfCut(std::size_t row, std::size_t column, HWND header) {
  if (row >= list_.Count() || column >= list_.headers().size()) return {};
  RECT place{};
  Header_GetItemRect(header, static_cast<int>(column), &place);
  if (column == 0 && icons_.IndexOf(list_.Icon(row)) != I_IMAGENONE) {
    place.left += scale_.Of96(kBeforeIcon) + icons_.pixels();
  }
  place = TextIn(column, place);
  std::wstring text = ToWide(CellText(row, column).substr(0, kPaintedBytes));
  const std::wstring line = LineOf(text);
  const ScreenDc screen;
  const FontOn font(screen.get(), list_.Look(row).bold ? bold_.get() : plain_);
  SIZE size{};
  GetTextExtentPoint32W(screen.get(), line.c_str(), static_cast<int>(line.size()), &size);
  return line == text && size.cx <= place.right - place.left ? std::wstring() : text;
}

std::string_view RowPainter::CellText(std::size_t row, std::size_t column) {
  if (const auto text = list_.TextOf(row, column)) return *text;
  cell_.clear();
  list_.AppendCell(row, column, cell_);
  return cell_;
}

}  // namespace quorvel::windows
