#include "scenario/ScenarioHeadless.h"

#include <algorithm>
#include <array>
#include <utility>

#include "scenario/HeadlessDetail.h"
#include "scenario/HeadlessPanes.h"
#include "scenario/Values.h"
#include "scenario/ViewerControls.h"

namespace quorvel::scenario {
namespace {

using widgets::NodeId;

// As a text box shows it, whichever way its lines end.
std::string LinesOf(std::string_view text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool lineEnd = text[i] == '\r' || text[i] == '\n';
    if (text.substr(i).starts_with("\r\n")) ++i;
    lineEnd ? lines.append("\r\n") : lines.append(1, text[i]);
  }
  return lines;
}

// What a control is set to, as a script sets it; nothing for controls that cannot be set.
std::optional<std::string> ValueOf(const widgets::Control& control) {
  if (const auto* list = dynamic_cast<const widgets::ItemList*>(&control)) return list->selectedText();
  if (const auto* box = dynamic_cast<const widgets::TextBox*>(&control)) return box->text();
  if (const auto* text = dynamic_cast<const widgets::RichTextBox*>(&control)) return LinesOf(text->text());
  if (const auto* check = dynamic_cast<const widgets::CheckBox*>(&control)) return check->checked() ? "1" : "0";
  if (const auto* bar = dynamic_cast<const widgets::ScrollBar*>(&control)) return std::to_string(bar->value());
  if (const auto* picker = dynamic_cast<const widgets::DateTimePicker*>(&control)) {
    return picker->name() == "dtpHour" ? TimeText(picker->value()) : FormatFixedDate(picker->value());
  }
  return std::nullopt;
}

// The caption that is drawn on or beside a control.
std::string CaptionOf(const widgets::Control& control) {
  const bool holdsText = dynamic_cast<const widgets::TextBox*>(&control) != nullptr ||
                         dynamic_cast<const widgets::RichTextBox*>(&control) != nullptr;
  return holdsText ? std::string() : control.text();
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
    detail_.Press(button);
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
    Held held = Held::kNothing;
    for (const std::size_t row : rows) {
      panes_.PressRow(row, held);
      held = Held::kCtrl;
    }
  }

  void DoubleClickRow(std::size_t row) override {
    panes_.PressRow(row, Held::kNothing);
    viewer_.lvMotherList_DblClick();
  }

  void PressRow(std::optional<std::size_t> row, MouseButton button, Held held) override {
    if (button == MouseButton::kLeft) return panes_.PressRow(row, held);
    viewer_.lvMotherList_MouseDown(button, row);
  }

  void RightClickNode(NodeId node) override { viewer_.tvMotherList_MouseUp(MouseButton::kRight, node); }

  SeenMenu Look(const widgets::Menu& menu) const override {
    SeenMenu seen{menu.open(), {}};
    for (const widgets::MenuEntry& entry : menu.entries()) {
      seen.entries.push_back({entry.name, entry.caption, entry.visible, entry.enabled});
    }
    return seen;
  }

  void PickEntry(widgets::Menu& menu, std::size_t entry) override {
    std::int32_t command = menu.entries().at(entry).command;
    menu.Close();
    viewer_.m_MenuCall(command);
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

  void Press(const Key& key) override {
    for (widgets::Menu* const menu : {&c_.mnu_Popup, &c_.mnu_PopupTV}) {
      if (menu->open()) return menu->Close();
    }
    if (detail_.open()) return detail_.Press(key);
    if (key.code == KeyCode::kTab) return PressTab(key);
    if (key == Key{.code = KeyCode::kF5}) {
      if (c_.cmdRefresh.enabled()) viewer_.cmdRefresh_Click();
    } else if (focus_ == &c_.tvMotherList) {
      panes_.PressKeyInTree(key);
    } else {
      panes_.PressKeyInList(key);
    }
  }

  std::optional<std::string> DialogCaption() const override {
    return detail_.open() ? std::optional(detail_.caption()) : std::nullopt;
  }

  void ResizeDialog(int width, int height) override { detail_.Resize(width, height); }

  void TypeAhead(std::string_view text) override {
    focus_ == &c_.tvMotherList ? panes_.TypeInTree(text) : panes_.TypeInList(text);
  }

 private:
  // From pane to pane, or with Ctrl from tab to tab in their circle.
  void PressTab(const Key& key) {
    if (!key.ctrl)
      return MoveFocus(key.shift ? static_cast<const widgets::Control*>(&c_.tvMotherList) : &c_.lvMotherList);
    const std::vector<SeenTab> tabs = Tabs();
    const auto current = std::ranges::find(tabs, true, &SeenTab::current);
    const std::size_t step = key.shift ? tabs.size() - 1 : 1;
    auto tab = static_cast<std::size_t>(current - tabs.begin());
    do {
      tab = (tab + step) % tabs.size();
    } while (!tabs[tab].current && !tabs[tab].enabled);
    ClickTab(tabs[tab].caption);
  }

  bool IsShown(const widgets::Control& control) const {
    const widgets::Rect& place = control.bounds();
    if (!control.visible() || place.width <= 0 || place.height <= 0) return false;
    if (detail_.Has(control)) return detail_.open();
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
  HeadlessPanes panes_{viewer_};
  HeadlessDetail detail_{viewer_.detail()};
  const widgets::Control* focus_ = nullptr;
};

}  // namespace

std::unique_ptr<ViewerPort> ScenarioHeadless::PlaceViewer(Platform& platform,
                                                          datasource::RecordSourceFactory& factory) {
  return std::make_unique<HeadlessViewer>(platform, factory);
}

}  // namespace quorvel::scenario
