// The control's event handlers: what a gesture does. Each shows and logs its own errors.
#include <string>
#include <utility>

#include "control/Hourglass.h"
#include "control/Layout.h"
#include "control/Working.h"
#include "control/ucProcessLog.h"
#include "list/Classification.h"
#include "util/ListViewSort.h"

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

template <class Body>
void ucProcessLog::Handle(std::string_view label, Body&& body) {
  if (f_blnClickNode) return;
  Reporting(errors_, label, [&] {
    const Working working(f_blnClickNode);
    const Hourglass hourglass(platform_);
    std::forward<Body>(body)();
  });
}

void ucProcessLog::sstProcessLog_Click() {
  Handle("Quorvel: ucProcessLog.sstProcessLog_Click", [&] {
    const View view = ViewOfTab(f_tlFromType, controls_.sstProcessLog.currentCaption());
    // The key needs the tree that is about to go.
    const std::string left = SelectedKey();
    const tree::Place place = tree::EquivalentPlace(left, GetNextContextKeyInLogs(left, NameOf(view)));
    shown_ = {};
    ClearPanes();
    InitStateListByTab();
    ControlsVisible(static_cast<std::int32_t>(StateFilterOf(controls_.cboState.selectedText()).value()));
    BuildView(view, place);
  });
}

void ucProcessLog::cmdRefresh_Click() {
  Handle("Quorvel: ucProcessLog.cmdRefresh_Click", [&] {
    if (f_tlFromType == tlFromType::tlOneProcess) {
      BuildAll(StateFilterOf(controls_.cboState.selectedText()).value_or(StateFilter::kAll));
    } else {
      // The host's whole log list is the alarms view here, though its tab click builds nothing.
      const bool logs = f_tlFromType == tlFromType::tlLogs;
      BuildView(logs ? View::kAlarms : ViewOfTab(f_tlFromType, controls_.sstProcessLog.currentCaption()),
                SelectedPlace());
    }
  });
}

void ucProcessLog::cboState_Click() {
  Reporting(errors_, "Quorvel: ucProcessLog.cboState_Click", [&] {
    const auto state = StateFilterOf(controls_.cboState.selectedText());
    if (state) ControlsVisible(static_cast<std::int32_t>(*state));
  });
}

void ucProcessLog::cboDuringUnit_Click() {
  Reporting(errors_, "Quorvel: ucProcessLog.cboDuringUnit_Click", [&] { LimitPeriod(controls_); });
}

void ucProcessLog::updDuring_UpClick() {
  Reporting(errors_, "Quorvel: ucProcessLog.updDuring_UpClick", [&] { StepPeriod(controls_, 1); });
}

void ucProcessLog::updDuring_DownClick() {
  Reporting(errors_, "Quorvel: ucProcessLog.updDuring_DownClick", [&] { StepPeriod(controls_, -1); });
}

void ucProcessLog::tvMotherList_Expand(NodeId node) {
  Handle("Quorvel: ucProcessLog.tvMotherList_Expand", [&] {
    LoadNode(node);
    controls_.tvMotherList.SetExpanded(node, true);
  });
}

void ucProcessLog::tvMotherList_Collapse(NodeId node) {
  Reporting(errors_, "Quorvel: ucProcessLog.tvMotherList_Collapse",
            [&] { controls_.tvMotherList.SetExpanded(node, false); });
}

void ucProcessLog::tvMotherList_NodeClick(NodeId node) {
  Handle("Quorvel: ucProcessLog.tvMotherList_NodeClick", [&] { HandleNodeClick(node); });
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
    widgets::TreeView& tree = controls_.tvMotherList;
    const auto row = controls_.lvMotherList.SelectedItem();
    if (!row || tree.Selected() == NodeId::kNone) return;
    const NodeId node = NodeOfRow(tree.Selected(), *row);
    if (node == NodeId::kNone) return;
    LoadNode(node);
    OpenWayTo(node);
    tree.SetExpanded(node, true);
    HandleNodeClick(node);
  });
}

void ucProcessLog::lvMotherList_KeyDown(std::int32_t keyCode) {
  constexpr std::int32_t kEnter = 13;
  if (keyCode == kEnter) lvMotherList_DblClick();
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
