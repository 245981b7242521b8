#include "walk/Walker.h"

#include <algorithm>
#include <array>
#include <utility>

#include "control/Routing.h"
#include "platform/Dates.h"
#include "walk/Hostilities.h"

namespace quorvel::test {

using widgets::NodeId;

Walker::Walker(std::uint64_t seed) : random_(seed) {
  history_.Sql(kHostileRows);
  scenario_.Open(history_.url());
  viewer().p_FromType(tlFromType::tlOneProcess);
  viewer().p_ConsoleLoginUserRight(kAlarmRight);
  viewer().m_GetLogByProcess();
}

std::size_t Walker::Any(std::size_t count) {
  // Not a standard distribution: those differ from library to library, and a seed should not.
  return static_cast<std::size_t>(random_() % count);
}

void Walker::Note(std::string gesture) {
  constexpr std::size_t kRemembered = 25;
  trail_.push_back(std::move(gesture));
  if (trail_.size() > kRemembered) trail_.pop_front();
}

std::string Walker::Trail() const {
  std::string text;
  for (const std::string& gesture : trail_) text.append("  ").append(gesture).append("\n");
  return text;
}

std::string Walker::Print(std::string_view what) {
  std::ostringstream out;
  scenario_.Do("print " + std::string(what), out);
  return std::move(out).str();
}

std::string Walker::Step() {
  using Gesture = void (Walker::*)();
  // As often as it stands here.
  static constexpr Gesture kGestures[] = {&Walker::InTree, &Walker::InTree, &Walker::InTree,    &Walker::InTree,
                                          &Walker::InTree, &Walker::InList, &Walker::InList,    &Walker::InList,
                                          &Walker::OnTabs, &Walker::OnForm, &Walker::InOptions, &Walker::InOptions,
                                          &Walker::ByMenu};
  constexpr std::size_t kHostCallsOneIn = 40;
  constexpr std::size_t kChangesOneIn = 200;
  if (Once(kChangesOneIn)) {
    InHistory();
  } else if (Once(kHostCallsOneIn)) {
    AsHost();
  } else {
    (this->*OneOf(kGestures))();
  }
  const widgets::TreeView& tree = controls().tvMotherList;
  seen_.nodes += tree.Count();
  seen_.rows += controls().lvMotherList.Count();
  const std::string& caption = controls().fraList.text();
  seen_.views.insert(caption.substr(0, caption.find(" (")));
  std::string wrong = WhatIsWrong();
  if (periodWrong_ && Once(5)) {
    periodWrong_ = false;
    port().Type(controls().txtDuring, kPeriods.back());
  }
  return wrong;
}

// A period that the user mistyped is told at each request; nothing else goes wrong on this walk.
std::string Walker::WhatIsWrong() {
  if (viewer().AtWork()) return "still at work";
  const std::vector<MousePointer> pointers = session().platform().TakePointers();
  if (!pointers.empty() && pointers.back() != MousePointer::kDefault) return "the pointer is an hourglass";
  session().calls().Take();
  session().TakeEvents();
  for (const scenario::ShownMessage& message : session().platform().TakeMessages()) {
    if (message.title == "Error - Vendrix Ostrana" && !periodWrong_) return "shows " + message.text;
  }
  return {};
}

NodeId Walker::AnyNode() {
  const widgets::TreeView& tree = controls().tvMotherList;
  if (tree.Count() == 0) return NodeId::kNone;
  NodeId node = NodeId::kNone;
  do {
    node = tree.Child(node, Any(tree.ChildCount(node)));
  } while (tree.IsExpanded(node) && tree.ChildCount(node) > 0 && !Once(3));
  return node;
}

void Walker::InTree() {
  const widgets::TreeView& tree = controls().tvMotherList;
  const NodeId node = AnyNode();
  if (node == NodeId::kNone) return;
  const std::string key(tree.Key(node));
  if (Once(10)) {
    Note("rightclick " + key);
    viewer().tvMotherList_MouseUp(MouseButton::kRight, node);
    controls().mnu_PopupTV.Close();
  } else if (Once(2)) {
    Note("click " + key);
    port().ClickNode(node);
  } else if (tree.IsExpandable(node)) {
    // Closing is rarer, or one would never get anywhere.
    const bool open = !tree.IsExpanded(node);
    if (!open && !Once(3)) return;
    Note((open ? "expand " : "collapse ") + key);
    port().SetOpen(node, open);
  } else {
    Note("scroll tree " + key);
    port().ScrollTree(node);
  }
}

void Walker::InList() {
  const widgets::ListView& list = controls().lvMotherList;
  if (list.Count() == 0) return;
  const std::size_t row = Any(list.Count());
  switch (Any(7)) {
    case 0:
    case 1:
      Note("select " + list.Key(row));
      return port().SelectRows(std::array{row, Any(list.Count())});
    case 2:
    case 3:
      Note("doubleclick " + list.Key(row));
      port().DoubleClickRow(row);
      return InDialog();
    case 4:
      Note("mousedown " + list.Key(row) + " right");
      viewer().lvMotherList_MouseDown(MouseButton::kRight, row);
      return controls().mnu_Popup.Close();
    case 5: {
      const std::size_t column = Any(list.headers().size());
      Note("column " + std::to_string(column + 1));
      return port().ClickHeader(column);
    }
    default:
      Note("scroll list " + list.Key(row));
      return port().ScrollList(row);
  }
}

void Walker::InOptions() {
  ProcessLogControls& c = controls();
  switch (Any(9)) {
    case 0: {
      // "All" most often: the others hide most of what there is.
      const std::size_t row = Once(2) ? Any(c.cboState.items().size()) : 0;
      Note("option cboState " + c.cboState.items()[row].text);
      return port().Choose(c.cboState, row);
    }
    case 1: {
      periodWrong_ = Once(10);
      const std::string& text = periodWrong_ ? OneOf(kNoPeriods) : OneOf(kPeriods);
      Note("option txtDuring " + text);
      return port().Type(c.txtDuring, text);
    }
    case 2:
      Note("option cboDuringUnit");
      return port().Choose(c.cboDuringUnit, Once(4) ? Any(3) : 1);
    case 3:
      Note("option dtpDate");
      return port().Pick(c.dtpDate, kEarlyDay + static_cast<double>(Any(22)));
    case 4:
      Note("option dtpHour");
      return port().Pick(c.dtpHour, static_cast<double>(Any(24)) / 24);
    case 5: {
      auto& box = *std::array{&c.chkCommunicationsFilter, &c.chkAlarmFilter, &c.chkGroupByDay}[Any(3)];
      Note("option " + box.name());
      return port().Check(box, !box.checked());
    }
    case 6:
      Note("group");
      port().ChooseItem(c.lstGroupBy, Any(c.lstGroupBy.items().size()));
      return port().Spin(c.updGroupBy, Once(2));
    case 7:
      Note("press updDuring");
      return port().Spin(c.updDuring, Once(2));
    default:
      Note("refresh");
      return port().Press(c.cmdRefresh);
  }
}

void Walker::OnTabs() {
  const std::vector<scenario::SeenTab> tabs = port().Tabs();
  const std::string& caption = tabs[Any(tabs.size())].caption;
  Note("tab " + caption);
  port().ClickTab(caption);
}

void Walker::OnForm() {
  ProcessLogControls& c = controls();
  switch (Any(4)) {
    case 0:
      Note("size");
      return port().Resize(static_cast<int>(Any(1400)), static_cast<int>(Any(900)));
    case 1:
      Note("drag");
      port().PressGrip();
      port().MoveGrip(static_cast<int>(Any(800)) - 400);
      return port().ReleaseGrip();
    case 2:
      Note("focus");
      return port().MoveFocus(Once(2) ? static_cast<const widgets::Control*>(&c.tvMotherList) : &c.lvMotherList);
    default:
      Note("size at first");
      return port().Resize(900, 600);
  }
}

void Walker::ByMenu() {
  std::int32_t command = OneOf(kMenuCommands);
  // Expanding everything at every turn would leave nothing to expand.
  if (command == kExpandAll && !Once(4)) return;
  Note("menu " + std::to_string(command));
  viewer().m_MenuCall(command);
  InDialog();
}

// Its form keeps everything else from being used until it is closed.
void Walker::InDialog() {
  dlgLVDetail& dialog = viewer().detail();
  while (dialog.controls().form.shown()) {
    constexpr std::int32_t kPageDown = 34;
    switch (Any(6)) {
      case 0:
        dialog.cmdPrevious_Click();
        break;
      case 1:
        dialog.cmdNext_Click();
        break;
      case 2:
        dialog.cmdCopytoClipboard_Click();
        break;
      case 3:
        dialog.Form_Resize(static_cast<int>(Any(20'000)), static_cast<int>(Any(20'000)));
        break;
      case 4:
        dialog.Form_KeyDown(kPageDown);
        break;
      default:
        dialog.cmdClose_Click();
    }
  }
}

void Walker::AsHost() {
  std::int32_t zero = 0;
  std::int32_t import = 1;
  StateFilter state = StateFilter::kError;
  const bool again = Once(2);
  const std::size_t call = Any(10);
  Note("host call " + std::to_string(call) + (again ? " again" : ""));
  try {
    switch (call) {
      case 0:
        return viewer().m_GetLogByProcess(again);
      case 1:
        return viewer().m_GetLogByUser(again);
      case 2:
        return viewer().m_GetLogByCommunication(again);
      case 3:
        return viewer().m_GetLogByAlarms(again);
      case 4:
        return viewer().m_GetLogByBackup(again);
      case 5:
        return viewer().m_GetLogByImports(zero, import, zero);
      case 6:
        return viewer().m_GetLogAll(state);
      case 7:
        return viewer().p_Key(OneOf(kKeys));
      case 8:
        return viewer().p_ProcessId(OneOf(kProcesses));
      default:
        return viewer().p_FromType(OneOf(kFromTypes));
    }
  } catch (const Error& error) {
    if (!periodWrong_) throw;
  }
}

void Walker::InHistory() {
  const std::string_view sql = OneOf(kChanges);
  Note("sql " + std::string(sql));
  session().Execute(sql);
  session().platform().SetNow(kNoon + static_cast<double>(Any(1000)) / 10000);
}

std::string Walker::CompareWithNew() {
  ProcessLogControls& c = controls();
  if (periodWrong_) port().Type(c.txtDuring, "30");
  periodWrong_ = false;
  Refresh();
  // After imports a viewer shows another system log, which a new one does not.
  if (c.fraList.text().starts_with(NameOf(View::kSystem))) {
    viewer().m_GetLogByProcess();
    port().ClickTab(NameOf(View::kSystem));
  }
  // Nobody selected rows in the new viewer.
  c.lvMotherList.SetSelection({});
  ucProcessLog& walked = viewer();
  const std::string walkedTree = Print("tree");
  const std::string walkedList = Print("list");
  const std::string walkedCaption = Print("caption");
  session().ChooseViewer(kNew);
  BuildAsWalked(walked);
  OpenAs(walked.controls().tvMotherList, NodeId::kNone, NodeId::kNone);
  SelectAs(walked.controls().tvMotherList);
  SortAs(walked.controls().lvMotherList);
  controls().lvMotherList.SetSelection({});
  std::string difference;
  const auto compare = [&](const std::string& there, const std::string& here) {
    if (there != here) difference.append("walked:\n" + there + "new:\n" + here);
  };
  compare(walkedTree, Print("tree"));
  compare(walkedList, Print("list"));
  compare(walkedCaption, Print("caption"));
  session().EndViewer();
  session().ChooseViewer(kWalked);
  std::string wrong = WhatIsWrong();
  return difference.empty() ? wrong : difference;
}

void Walker::BuildAsWalked(ucProcessLog& walked) {
  ucProcessLog& made = viewer();
  made.p_FromType(walked.p_FromType());
  made.p_ProcessId(walked.p_ProcessId());
  ProcessLogControls& from = walked.controls();
  ProcessLogControls& to = made.controls();
  std::int32_t zero = 0;
  std::int32_t import = 1;
  // Before the view: a check builds or lists something, and the host's views would give way.
  port().Check(to.chkCommunicationsFilter, from.chkCommunicationsFilter.checked());
  port().Check(to.chkAlarmFilter, from.chkAlarmFilter.checked());
  port().Check(to.chkGroupByDay, from.chkGroupByDay.checked());
  const std::string& caption = from.fraList.text();
  if (caption.starts_with(NameOf(View::kProcesses))) made.m_GetLogByProcess();
  if (caption.starts_with(NameOf(View::kUsers))) made.m_GetLogByUser();
  if (caption.starts_with(NameOf(View::kConnections))) made.m_GetLogByCommunication();
  if (caption.starts_with(NameOf(View::kAlarms))) made.m_GetLogByAlarms();
  if (caption.starts_with(NameOf(View::kBackups))) made.m_GetLogByBackup();
  if (caption.starts_with(NameOf(View::kImports))) made.m_GetLogByImports(zero, import, zero);
  const std::vector<scenario::SeenTab> tabs = port().Tabs();
  const std::string tab(from.sstProcessLog.currentCaption());
  if (std::ranges::find(tabs, tab, &scenario::SeenTab::caption) != tabs.end()) port().ClickTab(tab);
  if (const auto row = to.cboState.RowOfText(from.cboState.selectedText())) port().Choose(to.cboState, *row);
  port().Pick(to.dtpDate, from.dtpDate.value());
  port().Pick(to.dtpHour, from.dtpHour.value());
  // The unit first: choosing it cuts a longer period that was typed.
  if (const auto row = to.cboDuringUnit.RowOfText(from.cboDuringUnit.selectedText())) {
    port().Choose(to.cboDuringUnit, *row);
  }
  port().Type(to.txtDuring, from.txtDuring.text());
  ArrangeGroups(from.lstGroupBy);
  Refresh();
}

// Imports are the host's: under their name no tab builds them again.
void Walker::Refresh() {
  std::int32_t zero = 0;
  std::int32_t import = 1;
  if (controls().sstProcessLog.currentCaption() == NameOf(View::kImports)) {
    viewer().m_GetLogByImports(zero, import, zero);
  } else {
    port().Press(controls().cmdRefresh);
  }
}

void Walker::ArrangeGroups(const widgets::ListBox& wanted) {
  ProcessLogControls& c = controls();
  for (std::size_t place = 0; place < wanted.items().size(); ++place) {
    std::size_t row = place;
    while (c.lstGroupBy.items()[row].text != wanted.items()[place].text) ++row;
    for (; row > place; --row) {
      port().ChooseItem(c.lstGroupBy, row);
      port().Spin(c.updGroupBy, true);
    }
  }
}

void Walker::OpenAs(const widgets::TreeView& walked, NodeId walkedParent, NodeId parent) {
  const widgets::TreeView& tree = controls().tvMotherList;
  for (std::size_t row = 0; row < std::min(walked.ChildCount(walkedParent), tree.ChildCount(parent)); ++row) {
    const NodeId wanted = walked.Child(walkedParent, row);
    const NodeId node = tree.Child(parent, row);
    if (walked.IsExpanded(wanted) != tree.IsExpanded(node)) port().SetOpen(node, walked.IsExpanded(wanted));
    OpenAs(walked, wanted, node);
  }
}

void Walker::SelectAs(const widgets::TreeView& walked) {
  if (walked.Selected() == NodeId::kNone) return;
  std::vector<std::size_t> way;
  for (NodeId node = walked.Selected(); node != NodeId::kNone; node = walked.Parent(node)) {
    way.push_back(walked.RowOf(node));
  }
  const widgets::TreeView& tree = controls().tvMotherList;
  NodeId node = NodeId::kNone;
  for (auto row = way.rbegin(); row != way.rend() && *row < tree.ChildCount(node); ++row) node = tree.Child(node, *row);
  if (node != NodeId::kNone) port().ClickNode(node);
}

// The arrow on a header says that the user sorted by it.
void Walker::SortAs(const widgets::ListView& walked) {
  const auto arrow = std::ranges::find_if(walked.headers(), [](const auto& header) { return !header.icon.empty(); });
  if (arrow == walked.headers().end()) return;
  const widgets::ListView& list = controls().lvMotherList;
  const auto column = static_cast<std::size_t>(arrow - walked.headers().begin());
  constexpr int kBothOrders = 2;
  for (int click = 0; click < kBothOrders && column < list.headers().size(); ++click) {
    if (list.headers()[column].icon == arrow->icon) return;
    port().ClickHeader(column);
  }
}

}  // namespace quorvel::test
