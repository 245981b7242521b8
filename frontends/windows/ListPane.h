// Draws a list view as the native one: a table of whole rows that shows a million of them as fast as ten.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <optional>
#include <vector>

#include "control/Gestures.h"
#include "widgets/ListView.h"
#include "windows/CellTip.h"
#include "windows/Ear.h"
#include "windows/Handles.h"
#include "windows/HeaderKeys.h"
#include "windows/Icons.h"
#include "windows/RowPainter.h"
#include "windows/TypedLetters.h"

namespace quorvel::windows {

// Which rows are selected is the list's to say; what the user selects is written to it as ranges. The native list holds
// neither rows nor the selection: it asks for cells, and whoever asks it for the selection is answered by the list.
// Other rows and headers are taken over when somebody looks: a request may change them several times.
//
// Its parent passes WM_NOTIFY of it on to `Notify`, and gives it its place, visibility and font as to any control.
class ListPane final : public widgets::ListObserver {
 public:
  // `list` and `icons` must outlive the pane.
  ListPane(widgets::ListView& list, ListGestures gestures, HWND parent, Icons& icons);
  ~ListPane() override;
  ListPane(const ListPane&) = delete;
  ListPane& operator=(const ListPane&) = delete;

  // The native list view, and its header, which takes the focus as a field of its own.
  HWND window() const { return window_.get(); }
  HWND header() const { return header_; }
  LRESULT Notify(NMHDR& header);
  // Where on the screen the menu belongs that was asked for last.
  POINT menuPlace() const { return menuPlace_; }
  // After the icons were redrawn for another scale, or the font or the colours of the system changed.
  void DpiChanged();

  void ListReset() override;
  void HeadersChanged() override;
  void RowsReordered() override;
  void RowsChanged(widgets::RowRange rows) override;
  void ListSelectionChanged() override;
  void ListScrolled(const widgets::ListCorner& corner) override;
  widgets::ListCorner CornerInSight() const override;

 private:
  enum class Pressed { kNothing, kRow, kSelectedRow, kEmptySpace };

  // The window ends: the list is not heard any more.
  void Leave();

  // What the list says.
  void FallBehind();
  void CatchUp();
  void FollowHeaders();
  void FollowRows();
  void FollowHeader(std::size_t column);
  void FollowWidths();
  bool FillsTheList() const;
  int WidthOf(std::size_t column) const;
  void FollowSelection(bool scroll);
  void ShowSelection();
  void GoTo(std::optional<std::size_t> row);
  void ScrollTo(const widgets::ListCorner& corner);

  // What the native list says.
  std::optional<std::size_t> CurrentRow() const;
  std::optional<std::size_t> RowAt(POINT place) const;
  RECT PlaceOf(std::size_t row) const;
  bool IsInSight(std::size_t row) const;

  // What the native list asks and tells, and is asked and told.
  void Describe(LVITEMW& item) const;
  LRESULT Draw(const NMLVCUSTOMDRAW& draw);
  void HeaderChanged(const NMHEADERW& change);
  std::optional<LRESULT> HearOfStates(UINT message, WPARAM wParam, LPARAM lParam);
  UINT StateOf(std::size_t row, UINT mask) const;
  int NextSelected(std::ptrdiff_t from) const;
  void SelectedFromOutside(std::ptrdiff_t row, bool selected);

  // What the user did.
  std::optional<LRESULT> Hear(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HearMouse(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HearKeys(UINT message, WPARAM wParam, LPARAM lParam);
  void NotePlace(POINT place);
  void PointAt(POINT place);
  void PressLeft(POINT place, bool control, bool shift);
  void DragOver(POINT place);
  void ReleaseLeft();
  void PressRight(POINT place);
  void DoubleClick(POINT place);
  bool PressKey(WPARAM key);
  std::optional<std::size_t> TargetOf(WPARAM key, std::size_t from) const;
  bool MoveByKey(WPARAM key);
  void TypeLetter(wchar_t unit);
  void OpenMenuByKey();
  void Reach(std::size_t row, bool control, bool shift);
  void Select(widgets::RowRanges rows, std::optional<std::size_t> current);

  widgets::ListView& list_;
  ListGestures gestures_;
  Icons& icons_;
  UniqueImageList rowHeight_;  // one empty image, as high as rows are to be
  UniqueWindow window_;
  HWND header_ = nullptr;
  RowPainter painter_;
  std::optional<CellTip> tip_;
  std::vector<widgets::ColumnHeader> shownHeaders_;
  std::optional<HeaderKeys> headerKeys_;
  std::optional<std::size_t> anchor_;  // where Shift begins
  Pressed pressed_ = Pressed::kNothing;
  bool left_ = false;
  bool behindRows_ = false;     // the list has others, and may have other headers
  bool behindHeaders_ = false;  // the list has other headers
  bool focused_ = false;        // while it paints
  bool following_ = false;      // what happens now comes from the list, not from the user
  POINT menuPlace_{};
  TypedLetters typed_;
  std::optional<Ear> ear_;
  std::optional<Ear> headerEar_;
};

}  // namespace quorvel::windows
