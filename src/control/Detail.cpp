// The page of one row: the dialog over the list, and the run that a host asks for.
#include <string>

#include "control/Entry.h"
#include "list/DetailList.h"

namespace quorvel {

using widgets::NodeId;

void ucProcessLog::OpenRow() {
  widgets::TreeView& tree = controls_.tvMotherList;
  const std::size_t row = controls_.lvMotherList.SelectedItem().value();
  const bool inTree = tree.Selected() != NodeId::kNone && !list::IsDetailKey(controls_.lvMotherList.Key(row));
  const NodeId node = inTree ? NodeOfRow(tree.Selected(), row) : NodeId::kNone;
  if (node == NodeId::kNone) return OpenDetail();
  LoadNode(node);
  OpenWayTo(node);
  tree.SetExpanded(node, true);
  GoTo(node);
}

void ucProcessLog::OpenDetail() {
  widgets::ListView& list = controls_.lvMotherList;
  if (!list.SelectedItem()) return;
  widgets::Twips left = list.bounds().left;
  widgets::Twips top = list.bounds().top;
  for (const widgets::Frame* const frame : {&controls_.fraList, &controls_.fraProcessLog}) {
    left += frame->bounds().left;
    top += frame->bounds().top;
  }
  const bool shown = detail_.ShowLVDetail(list, left, top, list.bounds().width, list.bounds().height);
  if (!shown && !detail_.failed()) ShowNotice("This row has no further details");
}

void ucProcessLog::CloseDetail() {
  if (detail_.controls().form.shown()) detail_.cmdClose_Click();
}

void ucProcessLog::m_GetDetail() {
  constexpr std::string_view kLabel = "Quorvel: ucProcessLog.m_GetDetail";
  Build(kLabel, [&] {
    datasource::Propagating(kLabel, [&] {
      const Hourglass hourglass(platform_);
      widgets::ListView& list = controls_.lvMotherList;
      CloseDetail();
      InitListView();
      selectionMoved_ = true;
      const list::DetailLayout layout =
          p_blnShowUserInfo() ? list::DetailLayout::kWithUser : list::DetailLayout::kStandard;
      PrepareList(list::DetailListHeaders(layout));
      const auto run = AskRunDetail(f_lngIdAppLog);
      if (!run) return MajStatusBarInfrmMain();
      list.SetRows(list::DetailListRows(*run, layout, platform_));
      MajStatusBarInfrmMain();
      list.SetSelection(widgets::RowRanges(widgets::RowRange{0, 1}));
      datasource::Reporting(errors_, "Quorvel: ucProcessLog.lvMotherList_DblClick", [&] { OpenRow(); });
    });
  });
}

}  // namespace quorvel
