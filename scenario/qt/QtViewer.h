// One viewer of a scenario as a widget of Qt.
#pragma once

#include <QPointer>

#include "qt/ProcessLogWidget.h"
#include "scenario/ScenarioPort.h"

class QAbstractItemView;

namespace quorvel::scenario {

class QtViewer final : public ViewerPort {
 public:
  explicit QtViewer(qt::ProcessLogWidget& widget);
  // Takes the widget off its form.
  ~QtViewer() override { delete widget_; }
  QtViewer(const QtViewer&) = delete;
  QtViewer& operator=(const QtViewer&) = delete;

  ucProcessLog& viewer() override { return widget_->control(); }

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
  // The widget that draws a control.
  template <class Widget = QWidget>
  Widget& Of(const widgets::Control& control) const;
  // A point on the text of an item, scrolled into view.
  QPoint PointOn(QAbstractItemView& view, const QModelIndex& index) const;
  // A point on the space below all items. ScriptError when they fill the pane.
  QPoint EmptyPoint(QAbstractItemView& view) const;
  // The focus is somewhere in the viewer, or in a menu over it.
  QWidget& WidgetWithKeys() const;
  void AppendChildren(const QModelIndex& parent, std::size_t depth, std::vector<SeenNode>& seen) const;

  QPointer<qt::ProcessLogWidget> widget_;
};

}  // namespace quorvel::scenario
