#include "com/Sketch.h"

#include <algorithm>
#include <string>

#include "platform/windows/WideText.h"
#include "windows/Convert.h"
#include "windows/Handles.h"

namespace quorvel::windows {
namespace {

using widgets::NodeId;

// Restores what drawing changes on the canvas of somebody else.
class SavedCanvas {
 public:
  explicit SavedCanvas(HDC canvas) : canvas_(canvas), saved_(SaveDC(canvas)) {}
  ~SavedCanvas() { RestoreDC(canvas_, saved_); }
  SavedCanvas(const SavedCanvas&) = delete;
  SavedCanvas& operator=(const SavedCanvas&) = delete;

 private:
  HDC canvas_;
  int saved_;
};

UniqueFont MessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  return UniqueFont(CreateFontIndirectW(&metrics.lfMessageFont));
}

class Sketcher {
 public:
  Sketcher(HDC canvas, const RECT& place) : canvas_(canvas), saved_(canvas), place_(place) {
    SelectObject(canvas_, font_.get());
    SetBkMode(canvas_, TRANSPARENT);
    TEXTMETRICW metrics{};
    GetTextMetricsW(canvas_, &metrics);
    line_ = metrics.tmHeight + metrics.tmHeight / 3;
    em_ = metrics.tmAveCharWidth;
    IntersectClipRect(canvas_, place_.left, place_.top, place_.right, place_.bottom);
    FillRect(canvas_, &place_, GetSysColorBrush(COLOR_BTNFACE));
    DrawEdge(canvas_, &place_, EDGE_SUNKEN, BF_RECT);
    InflateRect(&place_, -em_, -em_);
  }

  void Tabs(const widgets::TabStrip& strip) {
    RECT cell = Line(place_, 0);
    for (std::size_t tab = 0; tab < strip.tabs().size(); ++tab) {
      if (!strip.tabs()[tab].visible) continue;
      SIZE size{};
      const std::wstring caption = ToWide(strip.tabs()[tab].caption);
      GetTextExtentPoint32W(canvas_, caption.c_str(), static_cast<int>(caption.size()), &size);
      cell.right = cell.left + size.cx + 2 * em_;
      if (tab == strip.current()) FillRect(canvas_, &cell, GetSysColorBrush(COLOR_WINDOW));
      Text(caption, cell, COLOR_BTNTEXT);
      cell.left = cell.right;
    }
    place_.top += line_;
  }

  void Tree(const widgets::TreeView& tree) {
    RECT pane = place_;
    pane.right = pane.left + (place_.right - place_.left) * 2 / 5;
    Pane(pane);
    NodeId node = tree.Count() == 0 ? NodeId::kNone : tree.Child(NodeId::kNone, 0);
    for (int line = 0; node != NodeId::kNone && line < LinesIn(pane); ++line, node = tree.NextLine(node)) {
      RECT cell = Line(pane, line);
      for (NodeId above = tree.Parent(node); above != NodeId::kNone; above = tree.Parent(above)) cell.left += 2 * em_;
      Text(ToWide(tree.Text(node)), cell, COLOR_WINDOWTEXT);
    }
    place_.left = pane.right + em_;
  }

  void List(const widgets::ListView& list) {
    Pane(place_);
    if (list.headers().empty()) return;
    const RECT captions = Line(place_, 0);
    FillRect(canvas_, &captions, GetSysColorBrush(COLOR_BTNFACE));
    const int rows = std::min(static_cast<int>(std::min<std::size_t>(list.Count(), 10000)), LinesIn(place_) - 1);
    const Scale scale(static_cast<UINT>(GetDeviceCaps(canvas_, LOGPIXELSX)));
    LONG left = place_.left;
    for (std::size_t column = 0; column < list.headers().size() && left < place_.right; ++column) {
      const LONG right = left + scale.ToPixels(list.headers()[column].width);
      Text(ToWide(list.headers()[column].caption), Cell(0, left, right), COLOR_BTNTEXT);
      for (int row = 0; row < rows; ++row) {
        Text(ToWide(list.Cell(static_cast<std::size_t>(row), column)), Cell(row + 1, left, right), COLOR_WINDOWTEXT);
      }
      left = right;
    }
  }

 private:
  RECT Line(const RECT& pane, int line) const {
    return {pane.left, pane.top + line * line_, pane.right, pane.top + (line + 1) * line_};
  }
  RECT Cell(int line, LONG left, LONG right) const {
    RECT cell = Line(place_, line);
    cell.left = left;
    cell.right = std::min(right, place_.right);
    return cell;
  }
  int LinesIn(const RECT& pane) const { return (pane.bottom - pane.top) / line_; }

  void Pane(const RECT& pane) { FillRect(canvas_, &pane, GetSysColorBrush(COLOR_WINDOW)); }

  void Text(const std::wstring& text, RECT cell, int colour) {
    InflateRect(&cell, -em_ / 2, 0);
    SetTextColor(canvas_, GetSysColor(colour));
    DrawTextW(canvas_, text.c_str(), static_cast<int>(text.size()), &cell,
              DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
  }

  HDC canvas_;
  UniqueFont font_ = MessageFont();
  SavedCanvas saved_;  // ends first: the font must not be in use when it goes
  RECT place_;
  int line_ = 1;
  int em_ = 1;
};

}  // namespace

void DrawSketch(const ProcessLogControls& controls, HDC canvas, const RECT& place) {
  Sketcher sketcher(canvas, place);
  sketcher.Tabs(controls.sstProcessLog);
  sketcher.Tree(controls.tvMotherList);
  sketcher.List(controls.lvMotherList);
}

}  // namespace quorvel::windows
