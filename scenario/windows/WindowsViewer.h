// One viewer of a scenario as a window of Windows.
#pragma once

#include <functional>

#include "control/ucProcessLog.h"
#include "scenario/ScenarioPort.h"
#include "scenario_windows/Input.h"
#include "windows/Convert.h"
#include "windows/ProcessLogWindow.h"

namespace quorvel::scenario {

// A form that lays its viewer out, and so gives it its size through its own: told of each viewer that is placed on it,
// and before one goes. Without these the form only holds its viewers.
struct FormLayout {
  std::function<void(windows::ProcessLogWindow&)> placed = {};
  std::function<void()> leaving = {};
};

class WindowsViewer final : public ViewerPort {
 public:
  // A child of `form`. `pump` outlives the viewer.
  WindowsViewer(HWND form, Platform& platform, datasource::RecordSourceFactory& factory, MessagePump& pump,
                FormLayout layout);
  ~WindowsViewer() override;
  WindowsViewer(const WindowsViewer&) = delete;
  WindowsViewer& operator=(const WindowsViewer&) = delete;

  ucProcessLog& viewer() override { return control_; }

  SeenControl Look(const widgets::Control& control) const override;
  std::vector<SeenTab> Tabs() const override;
  std::vector<SeenNode> Nodes() const override;
  bool IsOpen(widgets::NodeId node) const override;
  std::vector<SeenHeader> Headers() const override;
  std::vector<SeenRow> Rows() const override;
  widgets::NodeId TopNode() const override;
  std::optional<std::size_t> TopRow() const override;
  bool HasFocus(const widgets::Control& control) const override;
  SeenMenu Look(const widgets::Menu& menu) const override;

  void Resize(int width, int height) override;
  void ClickTab(std::string_view caption) override;
  void Choose(widgets::ComboBox& combo, std::size_t row) override;
  void ChooseItem(widgets::ListBox& list, std::size_t row) override;
  void Type(widgets::TextBox& box, std::string_view text) override;
  void Pick(widgets::DateTimePicker& picker, DateValue value) override;
  void Check(widgets::CheckBox& box, bool checked) override;
  void Press(widgets::Button& button) override;
  void Spin(widgets::UpDown& upDown, bool up) override;
  void SetOpen(widgets::NodeId node, bool open) override;
  void ClickNode(widgets::NodeId node) override;
  void SelectRows(std::span<const std::size_t> rows) override;
  void DoubleClickRow(std::size_t row) override;
  void PressRow(std::optional<std::size_t> row, MouseButton button, Held held) override;
  void RightClickNode(widgets::NodeId node) override;
  void PickEntry(widgets::Menu& menu, std::size_t entry) override;
  void ClickHeader(std::size_t column) override;
  void WidenColumn(std::size_t column, widgets::Twips width) override;
  void PressGrip() override;
  void MoveGrip(int pixels) override;
  void ReleaseGrip() override;
  void Scroll(widgets::ScrollBar& bar, std::int32_t value) override;
  void ScrollTree(widgets::NodeId top) override;
  void ScrollList(std::size_t top) override;
  void MoveFocus(const widgets::Control* control) override;
  void Press(const Key& key) override;
  std::optional<std::string> DialogCaption() const override;
  void ResizeDialog(int width, int height) override;
  void TypeAhead(std::string_view text) override;

 private:
  // The window that draws a control; null where none does.
  HWND WindowOf(const widgets::Control& control) const;
  // The same, for a gesture on it.
  HWND Of(const widgets::Control& control) const;
  windows::PopupMenu& PopupOf(const widgets::Menu& menu) const;
  HWND TreeWindow() const;
  HWND ListWindow() const;
  HWND HeaderWindow() const;
  HWND WindowWithKeys() const;

  void TypeParts(HWND edit, std::string_view text, char separator);
  widgets::Rect BoundsOf(HWND window, const widgets::Control& control) const;
  void AppendChildren(widgets::NodeId parent, std::size_t depth, std::vector<SeenNode>& seen) const;
  void AppendUnopened(widgets::NodeId parent, std::size_t depth, std::vector<SeenNode>& seen) const;
  // The text of an item, scrolled into view.
  RECT NodePlace(widgets::NodeId node);
  POINT PointOnRow(std::size_t row);
  // On the space below all items. ScriptError when they fill the pane.
  POINT EmptyPointOfTree() const;
  POINT EmptyPointOfList() const;
  // Scrolled into view sideways.
  RECT HeaderPlace(std::size_t column);

  HWND form_;
  MessagePump& pump_;
  FormLayout layout_;
  Input input_;
  POINT gripAt_{};  // where the pointer holds the splitter, within its grip
  ucProcessLog control_;
  ProcessLogControls& c_ = control_.controls();
  mutable windows::ProcessLogWindow window_;
};

}  // namespace quorvel::scenario
