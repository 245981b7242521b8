// The command `print`: what a user sees, as text.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <vector>

#include "scenario/Commands.h"
#include "scenario/DetailCommands.h"
#include "scenario/Values.h"
#include "scenario/ViewerControls.h"

namespace quorvel::scenario {
namespace {

using widgets::NodeId;

constexpr std::string_view kNodeIndent = "  ";
constexpr std::string_view kSeparatorCaption = "-";
constexpr std::string_view kAlignments[] = {"left", "right", "centre"};

// Closed, open, or without anything below it.
char ExpanderOf(const SeenNode& node) {
  if (!node.expandable) return ' ';
  return node.open ? '-' : '+';
}

std::string ImagesOf(const widgets::TreeView& tree, NodeId node) {
  const std::string& image = tree.Image(node);
  if (tree.SelectedImage(node) == image && tree.ExpandedImage(node) == image) return image;
  return image + "/" + tree.SelectedImage(node) + "/" + tree.ExpandedImage(node);
}

void PrintNode(const SeenNode& node, const widgets::TreeView& tree, std::ostream& out) {
  for (std::size_t level = 0; level < node.depth; ++level) out << kNodeIndent;
  out << ExpanderOf(node) << Escaped(node.text) << '\t' << Escaped(tree.Key(node.node)) << '\t'
      << ImagesOf(tree, node.node);
  if (node.colour == widgets::SystemColour::kGrayText) out << "\tgray";
  if (node.bold) out << "\tbold";
  if (node.selected) out << "\t*";
  out << '\n';
}

void PrintTree(Session& session, bool all, std::ostream& out) {
  const widgets::TreeView& tree = session.viewer().viewer().controls().tvMotherList;
  if (!session.viewer().Look(tree).visible) return;
  std::size_t shownDepth = 0;  // nodes deeper than this are below a closed one
  for (const SeenNode& node : session.viewer().Nodes()) {
    if (!all && node.depth > shownDepth) continue;
    PrintNode(node, tree, out);
    shownDepth = node.depth + (node.open ? 1 : 0);
  }
}

// Prints texts joined by tabs, and a line end.
template <class Texts>
void PrintJoined(const Texts& texts, std::ostream& out) {
  std::string_view separator;
  for (const std::string& text : texts) {
    out << separator << Escaped(text);
    separator = "\t";
  }
  out << '\n';
}

void PrintList(Session& session, std::ostream& out) {
  const widgets::ListView& list = session.viewer().viewer().controls().lvMotherList;
  if (!session.viewer().Look(list).visible) return;
  std::vector<std::string> captions;
  for (const SeenHeader& header : session.viewer().Headers()) captions.push_back(header.caption);
  PrintJoined(captions, out);
  const std::vector<SeenRow> rows = session.viewer().Rows();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    out << (rows[row].selected ? '*' : ' ') << (rows[row].bold ? '!' : ' ') << list.Icon(row) << '\t'
        << Escaped(list.Key(row)) << '\t';
    PrintJoined(rows[row].cells, out);
  }
}

// A cell that may be too long to print: its bytes, and how it begins and ends.
void PrintCell(Session& session, Arguments place, std::ostream& out) {
  constexpr std::size_t kShown = 40;
  const widgets::ListView& list = session.viewer().viewer().controls().lvMotherList;
  const auto row = list.RowOfKey(place[0]);
  if (!row) throw ScriptError("No such row: " + place[0]);
  const std::vector<std::string> cells = session.viewer().Rows().at(*row).cells;
  const std::int32_t column = NumberOf(place[1]);
  if (column < 1 || column > static_cast<std::int32_t>(cells.size())) throw ScriptError("No such column: " + place[1]);
  const std::string& cell = cells[static_cast<std::size_t>(column) - 1];
  out << cell.size() << " bytes\t" << Escaped(cell.substr(0, kShown));
  if (cell.size() > kShown) out << '\t' << Escaped(cell.substr(std::max(kShown, cell.size() - kShown)));
  out << '\n';
}

void PrintColumns(Session& session, std::ostream& out) {
  const widgets::ListView& list = session.viewer().viewer().controls().lvMotherList;
  const std::vector<SeenHeader> headers = session.viewer().Headers();
  for (std::size_t i = 0; i < headers.size(); ++i) {
    const widgets::ColumnHeader& header = list.headers().at(i);
    out << Escaped(headers[i].caption) << '\t' << headers[i].width << '\t'
        << kAlignments[static_cast<std::size_t>(headers[i].alignment)] << '\t' << static_cast<int>(header.tag) << '\t'
        << header.icon << '\n';
  }
  const bool descending = list.sortOrder() == widgets::SortOrder::kDescending;
  out << "sort\t" << list.sortKey() << '\t' << (descending ? "descending" : "ascending") << '\n';
}

void PrintOptions(Session& session, std::ostream& out) {
  ProcessLogControls& controls = session.viewer().viewer().controls();
  for (const PlacedControl& placed : PlacedControls(controls)) {
    if (placed.container != &controls.fraOption) continue;
    const SeenControl seen = session.viewer().Look(*placed.control);
    if (!seen.visible) continue;
    out << placed.control->name() << (seen.enabled ? "" : " (disabled)");
    if (seen.value) out << '\t' << Escaped(*seen.value);
    if (!seen.text.empty()) out << '\t' << Escaped(seen.text);
    for (const std::string& item : seen.items) out << '\t' << Escaped(item);
    out << '\n';
  }
}

void PrintTabs(Session& session, std::ostream& out) {
  if (!session.viewer().Look(session.viewer().viewer().controls().sstProcessLog).visible) return;
  for (const SeenTab& tab : session.viewer().Tabs()) {
    out << (tab.current ? '*' : ' ') << Escaped(tab.caption) << (tab.enabled ? "" : " (disabled)") << '\n';
  }
}

void PrintMenu(Session& session, const widgets::Menu& menu, std::ostream& out) {
  const SeenMenu seen = session.viewer().Look(menu);
  out << menu.name() << '\t' << menu.text() << (seen.open ? " (open)" : "") << '\n';
  for (const SeenMenuEntry& entry : seen.entries) {
    out << kNodeIndent << entry.name << '\t' << entry.caption << '\t' << (entry.visible ? "visible" : "hidden");
    if (entry.caption != kSeparatorCaption) out << '\t' << (entry.enabled ? "enabled" : "disabled");
    out << '\n';
  }
}

struct MenuFlag {
  std::string_view name;
  bool MenuState::*flag;
};

constexpr MenuFlag kMenuFlags[] = {
    {"f_blnMenuVisible", &MenuState::f_blnMenuVisible},
    {"f_blnOpenEnabled", &MenuState::f_blnOpenEnabled},
    {"f_blnCopyNoteBookEnabled", &MenuState::f_blnCopyNoteBookEnabled},
    {"f_blnOpenJoinFileVisible", &MenuState::f_blnOpenJoinFileVisible},
    {"f_blnExecutionReportEnabled", &MenuState::f_blnExecutionReportEnabled},
    {"f_blnSelectAllEnabled", &MenuState::f_blnSelectAllEnabled},
    {"f_blnStopExecutionEnabled", &MenuState::f_blnStopExecutionEnabled},
    {"f_blnAcquittedAlarmEnabled", &MenuState::f_blnAcquittedAlarmEnabled},
    {"f_blnActivatedAlarmEnabled", &MenuState::f_blnActivatedAlarmEnabled},
    {"f_blnGotoProcessEnabled", &MenuState::f_blnGotoProcessEnabled},
    {"f_blnTVExpandAllEnabled", &MenuState::f_blnTVExpandAllEnabled},
    {"f_blnTVCollapseAllEnabled", &MenuState::f_blnTVCollapseAllEnabled},
    {"f_blnOpenJoinFileEnabled", &MenuState::f_blnOpenJoinFileEnabled},
};

void PrintMenus(Session& session, std::ostream& out) {
  ucProcessLog& viewer = session.viewer().viewer();
  PrintMenu(session, viewer.controls().mnu_Popup, out);
  PrintMenu(session, viewer.controls().mnu_PopupTV, out);
  for (const MenuFlag& each : kMenuFlags) out << each.name << '\t' << (viewer.menuState().*each.flag ? 1 : 0) << '\n';
}

void PrintMessages(Session& session, std::ostream& out) {
  for (const ShownMessage& message : session.platform().TakeMessages()) {
    out << '[' << Escaped(message.title) << "]\n" << EscapedLines(message.text);
  }
}

void PrintStatusBar(Session& session, std::ostream& out) {
  out << Escaped(session.port().StatusText()) << '\n';
}

void PrintLog(Session& session, std::ostream& out) {
  std::ifstream log(session.logFile(), std::ios::binary);
  out << EscapedLines(std::string(std::istreambuf_iterator<char>(log), {}));
}

void PrintPlace(Session& session, const widgets::Control& control, std::ostream& out) {
  const SeenControl seen = session.viewer().Look(control);
  if (!seen.visible) return;
  out << control.name() << '\t' << seen.bounds.left << '\t' << seen.bounds.top << '\t' << seen.bounds.width << '\t'
      << seen.bounds.height << '\n';
}

// Of the named controls, or of all.
void PrintLayout(Session& session, Arguments names, std::ostream& out) {
  ProcessLogControls& controls = session.viewer().viewer().controls();
  for (const std::string& name : names) PrintPlace(session, *ControlNamed(controls, name).control, out);
  if (!names.empty()) return;
  for (const PlacedControl& placed : PlacedControls(controls)) PrintPlace(session, *placed.control, out);
}

void PrintPointer(Session& session, std::ostream& out) {
  std::vector<std::string> values;
  for (const MousePointer pointer : session.platform().TakePointers()) {
    values.push_back(std::to_string(static_cast<int>(pointer)));
  }
  PrintJoined(values, out);
}

void PrintContext(Session& session, std::ostream& out) {
  const tree::NavigationContext& context = session.viewer().viewer().context();
  out << "ContextProcess\t" << Escaped(context.ContextProcess) << '\n'
      << "ContextFlag\t" << Escaped(context.ContextFlag) << '\n'
      << "ContextRun\t" << Escaped(context.ContextRun) << '\n'
      << "ContextState\t" << Escaped(context.ContextState) << '\n'
      << "ContextUser\t" << Escaped(context.ContextUser) << '\n'
      << "ContextTask\t" << Escaped(context.ContextTask) << '\n'
      << "ContextStepLog\t" << Escaped(context.ContextStepLog) << '\n'
      << "ContextStep\t" << Escaped(context.ContextStep) << '\n'
      << "ContextExtra\t" << Escaped(context.ContextExtra) << '\n'
      << "ContextCommunication\t" << Escaped(context.ContextCommunication) << '\n';
}

void PrintCalls(Session& session, std::ostream& out) {
  for (const std::string& line : session.calls().Take()) out << line << '\n';
}

void PrintCaption(Session& session, std::ostream& out) {
  const SeenControl seen = session.viewer().Look(session.viewer().viewer().controls().fraList);
  if (seen.visible) out << Escaped(seen.text) << '\n';
}

// Where the panes are scrolled to, and which of them has the focus.
void PrintPlaceInSight(Session& session, std::ostream& out) {
  const ViewerPort& port = session.viewer();
  const ProcessLogControls& controls = session.viewer().viewer().controls();
  const NodeId node = port.TopNode();
  const auto row = port.TopRow();
  out << "tree\t" << (node == NodeId::kNone ? std::string() : Escaped(controls.tvMotherList.Key(node))) << '\n'
      << "list\t" << (row ? Escaped(controls.lvMotherList.Key(*row)) : std::string()) << '\n'
      << "focus\t";
  for (const std::string_view pane : {"tree", "list"}) {
    if (port.HasFocus(*PaneNamed(controls, pane))) out << pane;
  }
  out << '\n';
}

void PrintShell(Session& session, std::ostream& out) {
  for (const std::string& call : session.platform().TakeShellCalls()) out << Escaped(call) << '\n';
}

void PrintEvents(Session& session, std::ostream& out) {
  for (const std::string& event : session.TakeEvents()) out << Escaped(event) << '\n';
}

void PrintClipboard(Session& session, std::ostream& out) {
  out << EscapedLines(session.platform().clipboard());
}

struct PrintEntry {
  std::string_view name;
  void (*print)(Session& session, std::ostream& out);
};

constexpr PrintEntry kPrints[] = {
    {"tree", [](Session& session, std::ostream& out) { PrintTree(session, false, out); }},
    {"list", PrintList},
    {"columns", PrintColumns},
    {"options", PrintOptions},
    {"tabs", PrintTabs},
    {"menus", PrintMenus},
    {"messages", PrintMessages},
    {"statusbar", PrintStatusBar},
    {"log", PrintLog},
    {"pointer", PrintPointer},
    {"context", PrintContext},
    {"calls", PrintCalls},
    {"caption", PrintCaption},
    {"clipboard", PrintClipboard},
    {"place", PrintPlaceInSight},
    {"events", PrintEvents},
    {"shell", PrintShell},
};

void Print(Session& session, Arguments arguments, std::ostream& out) {
  const Arguments rest = arguments.subspan(1);
  if (arguments[0] == "layout") {
    PrintLayout(session, rest, out);
  } else if (arguments[0] == "tree" && rest.size() == 1 && rest[0] == "all") {
    PrintTree(session, true, out);
  } else if (arguments[0] == "detail") {
    PrintDetail(session, rest, out);
  } else if (arguments[0] == "cell" && rest.size() == 2) {
    PrintCell(session, rest, out);
  } else if (rest.empty()) {
    Named(kPrints, arguments[0], "print").print(session, out);
  } else {
    throw ScriptError("No such print: " + arguments[0] + " " + rest[0]);
  }
}

constexpr CommandEntry kCommands[] = {{"print", "WHAT", 1, kAnyNumber, Print, true}};

}  // namespace

std::span<const CommandEntry> PrintCommands() {
  return kCommands;
}

}  // namespace quorvel::scenario
