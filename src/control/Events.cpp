// The control's event handlers: what a gesture does. Each shows and logs its own errors.
#include <algorithm>
#include <string>

#include "control/Entry.h"
#include "control/Layout.h"
#include "list/Classification.h"
#include "util/KeyPrefixes.h"
#include "util/ListViewSort.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using datasource::Reporting;
using widgets::NodeId;
using widgets::Twips;

void ucProcessLog::UserControl_Resize(Twips width, Twips height) {
  Reporting(errors_, "Quorvel: ucProcessLog.UserControl_Resize", [&] {
    width_ = width;
    height_ = height;
    LayOut();
  });
}

void ucProcessLog::sstProcessLog_Click() {
  Handle("Quorvel: ucProcessLog.sstProcessLog_Click", [&] {
    tabChosen_ = true;
    if (tabRenamed_ && tabRenamed_->tab != controls_.sstProcessLog.current()) RestoreTabName();
    const View view = ViewOfTab(f_tlFromType, controls_.sstProcessLog.currentCaption());
    // The key needs the tree that is about to go.
    // A view without nodes, and one in which nobody chose one, say nothing of where the user was.
    const std::string selected = SelectedKey();
    const bool unsaid = selected.empty() || (!choseNode_ && !processKeyLeft_.empty());
    const std::string left = unsaid ? processKeyLeft_ : selected;
    const std::string next = GetNextContextKeyInLogs(left, NameOf(view));
    // Other views do not say how deep one was; the process view left last does.
    const std::string_view prefix = util::Identifiant(left, 1);
    if (prefix == util::kProcessPrefix || prefix == util::kUserPrefix) processKeyLeft_ = left;
    const tree::Place place = tree::EquivalentPlace(processKeyLeft_, next);
    shown_ = {};
    toReturnTo_ = Standing{.node = place};
    ModifyMotherListSize(false);
    ClearPanes();
    ShowOptionsOfTab();
    BuildView(view, {.node = place});
  });
}

void ucProcessLog::tvMotherList_Expand(NodeId node) {
  Handle("Quorvel: ucProcessLog.tvMotherList_Expand", [&] {
    LoadNode(node);
    controls_.tvMotherList.SetExpanded(node, true);
    Reveal(node);
  });
}

void ucProcessLog::Reveal(NodeId node) {
  const auto children = controls_.tvMotherList.Children(node);
  revealed_ = node;
  revealedFrom_ = controls_.tvMotherList.Top();
  controls_.Timer_ScrollDown_TV.SetEnabled(!children.empty() && !controls_.tvMotherList.IsInSight(children.back()));
}

void ucProcessLog::Timer_ScrollDown_TV_Timer() {
  if (!controls_.Timer_ScrollDown_TV.enabled()) return;
  Reporting(errors_, "Quorvel: ucProcessLog.Timer_ScrollDown_TV_Timer", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const auto children = tree.Children(revealed_);
    const NodeId top = tree.Top();
    const NodeId first = top == NodeId::kNone ? tree.Child(NodeId::kNone, 0) : top;
    const bool goesOn = tree.IsExpanded(revealed_) && !children.empty() && !tree.IsInSight(children.back()) &&
                        first != revealed_ && top == revealedFrom_;
    if (goesOn) tree.ScrollTo(tree.NextLine(first));
    revealedFrom_ = tree.Top();
    // Where there is nothing left to scroll, nothing moved.
    controls_.Timer_ScrollDown_TV.SetEnabled(goesOn && revealedFrom_ != top);
  });
}

void ucProcessLog::tvMotherList_Collapse(NodeId node) {
  Reporting(errors_, "Quorvel: ucProcessLog.tvMotherList_Collapse",
            [&] { controls_.tvMotherList.SetExpanded(node, false); });
}

void ucProcessLog::tvMotherList_NodeClick(NodeId node) {
  Handle("Quorvel: ucProcessLog.tvMotherList_NodeClick", [&] { GoTo(node); });
}

// Rows are not sorted by columns of these captions.
void ucProcessLog::lvMotherList_ColumnClick(std::size_t column) {
  Handle("Quorvel: ucProcessLog.lvMotherList_ColumnClick", [&] {
    widgets::ListView& list = controls_.lvMotherList;
    if (column >= 1 && column <= list.headers().size()) {
      const std::string& caption = list.headers()[column - 1].caption;
      if (caption == list::kUserOkCaption || caption == list::kNotOkCaption) return;
    }
    util::ListViewSortColumn(platform_, list, column);
  });
}

void ucProcessLog::lvMotherList_DblClick() {
  Handle("Quorvel: ucProcessLog.lvMotherList_DblClick", [&] {
    if (controls_.lvMotherList.SelectedItem()) OpenRow();
  });
}

void ucProcessLog::lvMotherList_KeyDown(std::int32_t keyCode) {
  constexpr std::int32_t kEnter = 13;
  if (keyCode == kEnter) lvMotherList_DblClick();
}

void ucProcessLog::FocusMoved(std::string_view label) {
  selectionMoved_ = true;
  TellHost(label);
}

void ucProcessLog::lvMotherList_GotFocus() {
  FocusMoved("Quorvel: ucProcessLog.lvMotherList_GotFocus");
}

void ucProcessLog::lvMotherList_LostFocus() {
  FocusMoved("Quorvel: ucProcessLog.lvMotherList_LostFocus");
}

void ucProcessLog::tvMotherList_GotFocus() {
  FocusMoved("Quorvel: ucProcessLog.tvMotherList_GotFocus");
}

void ucProcessLog::tvMotherList_LostFocus() {
  FocusMoved("Quorvel: ucProcessLog.tvMotherList_LostFocus");
}

void ucProcessLog::imgSplitter_MouseDown() {
  Reporting(errors_, "Quorvel: ucProcessLog.imgSplitter_MouseDown", [&] {
    BeginSplitterDrag(controls_);
    splitterMoving_ = true;
    splitterMoved_ = false;
  });
}

void ucProcessLog::imgSplitter_MouseMove(Twips x) {
  if (!splitterMoving_) return;
  Reporting(errors_, "Quorvel: ucProcessLog.imgSplitter_MouseMove", [&] {
    MoveSplitterBar(controls_, x, width_);
    splitterMoved_ = true;
  });
}

void ucProcessLog::imgSplitter_MouseUp() {
  if (!splitterMoving_) return;
  Reporting(errors_, "Quorvel: ucProcessLog.imgSplitter_MouseUp", [&] {
    float treeWidth = EndSplitterDrag(controls_);
    splitterMoving_ = false;
    if (splitterMoved_) SizeControls(treeWidth);
  });
}

void ucProcessLog::HScroll_Change() {
  Reporting(errors_, "Quorvel: ucProcessLog.HScroll_Change", [&] { LayOut(); });
}

void ucProcessLog::VScroll_Change() {
  Reporting(errors_, "Quorvel: ucProcessLog.VScroll_Change", [&] { LayOut(); });
}

}  // namespace quorvel
