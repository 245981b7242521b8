#include "scenario/ScenarioHeadless.h"

#include <algorithm>
#include <array>
#include <utility>

#include "scenario/Values.h"
#include "scenario/ViewerControls.h"

namespace quorvel::scenario {
namespace {

using widgets::NodeId;

// What a control is set to, as a script sets it; nothing for controls that cannot be set.
std::optional<std::string> ValueOf(const widgets::Control& control) {
  if (const auto* list = dynamic_cast<const widgets::ItemList*>(&control)) return list->selectedText();
  if (const auto* box = dynamic_cast<const widgets::TextBox*>(&control)) return box->text();
  if (const auto* check = dynamic_cast<const widgets::CheckBox*>(&control)) return check->checked() ? "1" : "0";
  if (const auto* bar = dynamic_cast<const widgets::ScrollBar*>(&control)) return std::to_string(bar->value());
  if (const auto* picker = dynamic_cast<const widgets::DateTimePicker*>(&control)) {
    return picker->name() == "dtpHour" ? TimeText(picker->value()) : FormatFixedDate(picker->value());
  }
  return std::nullopt;
}

// The caption that is drawn on or beside a control.
std::string CaptionOf(const widgets::Control& control) {
  return dynamic_cast<const widgets::TextBox*>(&control) != nullptr ? std::string() : control.text();
}

class HeadlessViewer : public ViewerPort {
 public:
  HeadlessViewer(Platform& platform, datasource::RecordSourceFactory& factory) : viewer_(platform, factory) {}

  ucProcessLog& viewer() override { return viewer_; }

  SeenControl Look(const widgets::Control& control) const override {
    SeenControl seen{IsShown(control), control.enabled(), control.bounds(), CaptionOf(control), ValueOf(control), {}};
    if (const auto* list = dynamic_cast<const widgets::ItemList*>(&control)) {
      for (const widgets::Item& item : list->items()) seen.items.push_back(item.text);
    }
    return seen;
  }

  std::vector<SeenTab> Tabs() const override {
    std::vector<SeenTab> seen;
    const widgets::TabStrip& strip = c_.sstProcessLog;
    for (std::size_t i = 0; i < strip.tabs().size(); ++i) {
      const widgets::Tab& tab = strip.tabs()[i];
      if (tab.visible) seen.push_back({tab.caption, tab.enabled, i == strip.current()});
    }
    return seen;
  }

  std::vector<SeenNode> Nodes() const override {
    std::vector<SeenNode> seen;
    AppendChildren(NodeId::kNone, 0, seen);
    return seen;
  }

  NodeId TopNode() const override {
    const widgets::TreeView& tree = c_.tvMotherList;
    if (tree.Count() == 0 || tree.Top() != NodeId::kNone) return tree.Top();
    return tree.Child(NodeId::kNone, 0);
  }

  std::optional<std::size_t> TopRow() const override {
    return c_.lvMotherList.Count() == 0 ? std::nullopt : std::optional(c_.lvMotherList.Corner().row);
  }

  bool HasFocus(const widgets::Control& control) const override { return focus_ == &control; }

  bool IsOpen(NodeId node) const override { return c_.tvMotherList.IsExpanded(node); }

  std::vector<SeenHeader> Headers() const override {
    std::vector<SeenHeader> seen;
    for (const widgets::ColumnHeader& header : c_.lvMotherList.headers()) {
      seen.push_back({header.caption, header.width, header.alignment});
    }
    return seen;
  }

  std::vector<SeenRow> Rows() const override {
    const widgets::ListView& list = c_.lvMotherList;
    std::vector<SeenRow> seen(list.Count());
    for (std::size_t row = 0; row < seen.size(); ++row) {
      for (std::size_t column = 0; column < list.headers().size(); ++column) {
        seen[row].cells.push_back(list.Cell(row, column));
      }
      seen[row].bold = list.Look(row).bold;
      seen[row].selected = list.Selection().Contains(row);
    }
    return seen;
  }

  void Resize(int width, int height) override {
    viewer_.UserControl_Resize(width * widgets::kTwipsPerPixel, height * widgets::kTwipsPerPixel);
  }

  void ClickTab(std::string_view caption) override {
    // A click on the tab that is shown already is none: strips of tabs tell of changes alone.
    if (c_.sstProcessLog.currentCaption() == caption) return;
    const auto& tabs = c_.sstProcessLog.tabs();
    const auto clicked =
        std::ranges::find_if(tabs, [&](const widgets::Tab& tab) { return tab.visible && tab.caption == caption; });
    c_.sstProcessLog.SetCurrent(static_cast<std::size_t>(clicked - tabs.begin()));
    viewer_.sstProcessLog_Click();
  }

  void Choose(widgets::ComboBox& combo, std::size_t row) override {
    combo.Select(row);
    if (&combo == &c_.cboState) viewer_.cboState_Click();
    if (&combo == &c_.cboDuringUnit) viewer_.cboDuringUnit_Click();
  }

  void ChooseItem(widgets::ListBox& list, std::size_t row) override { list.Select(row); }

  void Type(widgets::TextBox& box, std::string_view text) override {
    box.SetText(text);
    viewer_.txtDuring_Change();
  }

  void Pick(widgets::DateTimePicker& picker, DateValue value) override {
    picker.SetValue(value);
    &picker == &c_.dtpDate ? viewer_.dtpDate_Change() : viewer_.dtpHour_Change();
  }

  void Check(widgets::CheckBox& box, bool checked) override {
    if (box.checked() == checked) return;
    box.SetChecked(checked);
    if (&box == &c_.chkCommunicationsFilter) viewer_.chkCommunicationsFilter_Click();
    if (&box == &c_.chkGroupByDay) viewer_.chkGroupByDay_Click();
    if (&box == &c_.chkAlarmFilter) viewer_.chkAlarmFilter_Click();
  }

  void Press(widgets::Button& button) override {
    if (&button == &c_.cmdRefresh) viewer_.cmdRefresh_Click();
  }

  void Spin(widgets::UpDown& upDown, bool up) override {
    if (&upDown == &c_.updDuring) up ? viewer_.updDuring_UpClick() : viewer_.updDuring_DownClick();
    if (&upDown == &c_.updGroupBy) up ? viewer_.updGroupBy_UpClick() : viewer_.updGroupBy_DownClick();
  }

  void SetOpen(NodeId node, bool open) override {
    open ? viewer_.tvMotherList_Expand(node) : viewer_.tvMotherList_Collapse(node);
  }

  void ClickNode(NodeId node) override { viewer_.tvMotherList_NodeClick(node); }

  void SelectRows(std::span<const std::size_t> rows) override {
    widgets::RowRanges selection;
    for (const std::size_t row : rows) selection.Add({row, row + 1});
    // The row clicked last is the one that commands act on.
    c_.lvMotherList.SetSelection(std::move(selection), rows.empty() ? std::nullopt : std::optional(rows.back()));
  }

  void DoubleClickRow(std::size_t row) override {
    SelectRows(std::array{row});
    viewer_.lvMotherList_DblClick();
  }

  void ClickHeader(std::size_t column) override { viewer_.lvMotherList_ColumnClick(column + 1); }
  void WidenColumn(std::size_t column, widgets::Twips width) override { c_.lvMotherList.SetHeaderWidth(column, width); }

  void PressGrip() override { viewer_.imgSplitter_MouseDown(); }
  void MoveGrip(int pixels) override { viewer_.imgSplitter_MouseMove(pixels * widgets::kTwipsPerPixel); }
  void ReleaseGrip() override { viewer_.imgSplitter_MouseUp(); }

  void Scroll(widgets::ScrollBar& bar, std::int32_t value) override {
    bar.SetValue(value);
    &bar == &c_.HScroll ? viewer_.HScroll_Change() : viewer_.VScroll_Change();
  }

  void ScrollTree(NodeId top) override { c_.tvMotherList.ScrollTo(top); }
  void ScrollList(std::size_t top) override { c_.lvMotherList.ScrollTo({top, 0}); }

  void MoveFocus(const widgets::Control* control) override {
    const widgets::Control* const before = std::exchange(focus_, control);
    if (before == control) return;
    if (before == &c_.tvMotherList) viewer_.tvMotherList_LostFocus();
    if (before == &c_.lvMotherList) viewer_.lvMotherList_LostFocus();
    if (control == &c_.tvMotherList) viewer_.tvMotherList_GotFocus();
    if (control == &c_.lvMotherList) viewer_.lvMotherList_GotFocus();
  }

 private:
  bool IsShown(const widgets::Control& control) const {
    const widgets::Rect& place = control.bounds();
    if (!control.visible() || place.width <= 0 || place.height <= 0) return false;
    const PlacedControl placed = ControlNamed(c_, control.name());
    return placed.container == nullptr || IsShown(*placed.container);
  }

  void AppendChildren(NodeId parent, std::size_t depth, std::vector<SeenNode>& seen) const {
    const widgets::TreeView& tree = c_.tvMotherList;
    for (const NodeId node : tree.Children(parent)) {
      seen.push_back({node, depth, std::string(tree.Text(node)), tree.ForeColour(node), tree.IsBold(node),
                      tree.IsExpandable(node), tree.IsExpanded(node), tree.Selected() == node});
      AppendChildren(node, depth + 1, seen);
    }
  }

  ucProcessLog viewer_;
  ProcessLogControls& c_ = viewer_.controls();
  const widgets::Control* focus_ = nullptr;
};

}  // namespace

std::unique_ptr<ViewerPort> ScenarioHeadless::PlaceViewer(Platform& platform,
                                                          datasource::RecordSourceFactory& factory) {
  return std::make_unique<HeadlessViewer>(platform, factory);
}

}  // namespace quorvel::scenario
