// Commands for what a user does. What a user could not reach is refused here, the same for every front end.
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "scenario/Commands.h"
#include "scenario/DetailCommands.h"
#include "scenario/Values.h"
#include "scenario/ViewerControls.h"

namespace quorvel::scenario {
namespace {

using widgets::NodeId;

ProcessLogControls& Controls(Session& session) {
  return session.viewer().viewer().controls();
}

// The popup menu that is up, else nullptr.
widgets::Menu* OpenMenu(Session& session) {
  for (widgets::Menu* const menu : {&Controls(session).mnu_Popup, &Controls(session).mnu_PopupTV}) {
    if (session.viewer().Look(*menu).open) return menu;
  }
  return nullptr;
}

void RequireUsable(Session& session, const widgets::Control& control) {
  RequireNoDialog(session);
  if (OpenMenu(session) != nullptr) throw ScriptError("A menu is open: pick an entry, or press Escape");
  const SeenControl seen = session.viewer().Look(control);
  if (!seen.visible) throw ScriptError("Nobody can see " + control.name());
  if (!seen.enabled) throw ScriptError("Nobody can use " + control.name() + ", it is disabled");
}

// The control of that name as a `Kind`, in a state in which a user can use it.
template <class Kind>
Kind& UsableControl(Session& session, std::string_view name, std::string_view kind) {
  auto* const control = dynamic_cast<Kind*>(ControlNamed(session.viewer().viewer().controls(), name).control);
  if (control == nullptr) throw ScriptError(std::string(name) + " is no " + std::string(kind));
  RequireUsable(session, *control);
  return *control;
}

// The node of that key, at a place where it is not hidden below a closed one.
NodeId ShownNode(Session& session, const std::string& key) {
  const widgets::TreeView& tree = Controls(session).tvMotherList;
  RequireUsable(session, tree);
  const NodeId node = tree.Find(key);
  if (node == NodeId::kNone) throw ScriptError("No such node: " + key);
  for (NodeId parent = tree.Parent(node); parent != NodeId::kNone; parent = tree.Parent(parent)) {
    if (!session.viewer().IsOpen(parent)) throw ScriptError("The node is below a closed one: " + key);
  }
  return node;
}

void ClickTab(Session& session, Arguments arguments, std::ostream& /*out*/) {
  RequireUsable(session, Controls(session).sstProcessLog);
  const std::vector<SeenTab> tabs = session.viewer().Tabs();
  const auto found = std::ranges::find(tabs, arguments[0], &SeenTab::caption);
  if (found == tabs.end()) throw ScriptError("No such tab: " + arguments[0]);
  if (!found->enabled) throw ScriptError("The tab is disabled: " + arguments[0]);
  session.viewer().ClickTab(arguments[0]);
}

void ChooseRow(Session& session, widgets::ComboBox& combo, const std::string& text) {
  const std::optional<std::size_t> row = combo.RowOfText(text);
  if (!row) throw ScriptError(combo.name() + " has no row " + text);
  session.viewer().Choose(combo, *row);
}

void SetOption(Session& session, Arguments arguments, std::ostream& /*out*/) {
  auto& control = UsableControl<widgets::Control>(session, arguments[0], "control");
  const std::string& value = arguments[1];
  if (auto* combo = dynamic_cast<widgets::ComboBox*>(&control)) {
    ChooseRow(session, *combo, value);
  } else if (auto* box = dynamic_cast<widgets::TextBox*>(&control)) {
    session.viewer().Type(*box, value);
  } else if (auto* check = dynamic_cast<widgets::CheckBox*>(&control)) {
    session.viewer().Check(*check, FlagOf(value));
  } else if (auto* picker = dynamic_cast<widgets::DateTimePicker*>(&control)) {
    const bool hour = picker == &Controls(session).dtpHour;
    session.viewer().Pick(*picker, hour ? TimeOf(value) : DatePart(DateOf(value)));
  } else {
    throw ScriptError(arguments[0] + " is no option");
  }
}

void Refresh(Session& session, Arguments /*arguments*/, std::ostream& /*out*/) {
  session.viewer().Press(UsableControl<widgets::Button>(session, "cmdRefresh", "button"));
}

void Spin(Session& session, const std::string& name, const std::string& way) {
  auto& upDown = UsableControl<widgets::UpDown>(session, name, "up-down");
  if (way != "up" && way != "down") throw ScriptError("Neither up nor down: " + way);
  session.viewer().Spin(upDown, way == "up");
}

void Press(Session& session, Arguments arguments, std::ostream& /*out*/) {
  if (arguments.size() == 2) return Spin(session, arguments[0], arguments[1]);
  if (IsDialogOpen(session)) return PressInDialog(session, arguments[0]);
  session.viewer().Press(UsableControl<widgets::Button>(session, arguments[0], "button"));
}

// What is open already, or closed already, stays as it is.
void SetOpen(Session& session, const std::string& key, bool open) {
  const NodeId node = ShownNode(session, key);
  if (!Controls(session).tvMotherList.IsExpandable(node)) throw ScriptError("The node has nothing below it: " + key);
  if (session.viewer().IsOpen(node) != open) session.viewer().SetOpen(node, open);
}

void Expand(Session& session, Arguments arguments, std::ostream& /*out*/) {
  SetOpen(session, arguments[0], true);
}

void Collapse(Session& session, Arguments arguments, std::ostream& /*out*/) {
  SetOpen(session, arguments[0], false);
}

void Click(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.viewer().ClickNode(ShownNode(session, arguments[0]));
}

std::size_t RowOf(const widgets::ListView& list, const std::string& key) {
  const std::optional<std::size_t> row = list.RowOfKey(key);
  if (!row) throw ScriptError("No such row: " + key);
  return *row;
}

std::size_t ShownRow(Session& session, const std::string& key) {
  const widgets::ListView& list = Controls(session).lvMotherList;
  RequireUsable(session, list);
  return RowOf(list, key);
}

void DoubleClick(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.viewer().DoubleClickRow(ShownRow(session, arguments[0]));
}

// A key, or "-" for the empty space.
bool IsEmptySpace(const std::string& key) {
  return key == "-";
}

void RightClick(Session& session, Arguments arguments, std::ostream& /*out*/) {
  RequireUsable(session, Controls(session).tvMotherList);
  session.viewer().RightClickNode(IsEmptySpace(arguments[0]) ? NodeId::kNone : ShownNode(session, arguments[0]));
}

Held HeldOf(Arguments names) {
  if (names.empty()) return Held::kNothing;
  if (names[0] == "ctrl") return Held::kCtrl;
  if (names[0] == "shift") return Held::kShift;
  throw ScriptError("Neither ctrl nor shift: " + names[0]);
}

void MouseDown(Session& session, Arguments arguments, std::ostream& /*out*/) {
  RequireUsable(session, Controls(session).lvMotherList);
  const std::string& button = arguments[1];
  if (button != "left" && button != "right") throw ScriptError("Neither left nor right: " + button);
  const auto row = IsEmptySpace(arguments[0]) ? std::nullopt : std::optional(ShownRow(session, arguments[0]));
  session.viewer().PressRow(row, button == "left" ? MouseButton::kLeft : MouseButton::kRight,
                            HeldOf(arguments.subspan(2)));
}

void PickEntry(Session& session, Arguments arguments, std::ostream& /*out*/) {
  widgets::Menu* const menu = OpenMenu(session);
  if (menu == nullptr) throw ScriptError("No menu is open");
  const std::vector<SeenMenuEntry> entries = session.viewer().Look(*menu).entries;
  const auto entry = std::ranges::find(entries, arguments[0], &SeenMenuEntry::name);
  if (entry == entries.end()) throw ScriptError(menu->name() + " has no entry " + arguments[0]);
  if (!entry->visible) throw ScriptError("Nobody can see " + arguments[0]);
  if (!entry->enabled) throw ScriptError("Nobody can use " + arguments[0] + ", it is disabled");
  session.viewer().PickEntry(*menu, static_cast<std::size_t>(entry - entries.begin()));
}

// Columns are counted from 1 in scripts.
std::size_t ColumnOf(Session& session, const std::string& number) {
  const widgets::ListView& list = Controls(session).lvMotherList;
  RequireUsable(session, list);
  const std::int32_t column = NumberOf(number);
  if (column < 1 || column > static_cast<std::int32_t>(list.headers().size())) {
    throw ScriptError("No such column: " + number);
  }
  return static_cast<std::size_t>(column) - 1;
}

void ClickColumn(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.viewer().ClickHeader(ColumnOf(session, arguments[0]));
}

void Widen(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.viewer().WidenColumn(ColumnOf(session, arguments[0]), NumberOf(arguments[1]));
}

void Select(Session& session, Arguments arguments, std::ostream& /*out*/) {
  const widgets::ListView& list = Controls(session).lvMotherList;
  RequireUsable(session, list);
  std::vector<std::size_t> rows;
  for (const std::string& key : arguments) rows.push_back(RowOf(list, key));
  session.viewer().SelectRows(rows);
}

// A pointer stands on whole pixels, so the bar goes to the pixel next to the position.
void Drag(Session& session, Arguments arguments, std::ostream& /*out*/) {
  if (arguments.size() == 2 && arguments[1] != "hold") throw ScriptError("Use: drag TWIPS [hold]");
  const widgets::Grip& grip = Controls(session).imgSplitter;
  RequireUsable(session, grip);
  const int way = NumberOf(arguments[0]) - session.viewer().Look(grip).bounds.left;
  if (!session.gripHeld()) session.viewer().PressGrip();
  session.viewer().MoveGrip(static_cast<int>(std::lround(static_cast<double>(way) / widgets::kTwipsPerPixel)));
  session.SetGripHeld(arguments.size() == 2);
  if (!session.gripHeld()) session.viewer().ReleaseGrip();
}

void Drop(Session& session, Arguments /*arguments*/, std::ostream& /*out*/) {
  if (!session.gripHeld()) throw ScriptError("Nothing is held");
  session.SetGripHeld(false);
  session.viewer().ReleaseGrip();
}

// Lets the scroll timer tick until it stops.
void Tick(Session& session, Arguments /*arguments*/, std::ostream& /*out*/) {
  ucProcessLog& viewer = session.viewer().viewer();
  while (viewer.controls().Timer_ScrollDown_TV.enabled()) viewer.Timer_ScrollDown_TV_Timer();
}

// Chooses a row of the group order, counted from 0, and moves it.
void MoveGroup(Session& session, Arguments arguments, std::ostream& /*out*/) {
  auto& list = UsableControl<widgets::ListBox>(session, "lstGroupBy", "list");
  const std::int32_t row = NumberOf(arguments[0]);
  if (row < 0 || row >= static_cast<std::int32_t>(list.items().size()))
    throw ScriptError("No such row: " + arguments[0]);
  session.viewer().ChooseItem(list, static_cast<std::size_t>(row));
  Spin(session, "updGroupBy", arguments[1]);
}

void Focus(Session& session, Arguments arguments, std::ostream& /*out*/) {
  RequireNoDialog(session);
  if (arguments[0] == "none") return session.viewer().MoveFocus(nullptr);
  const widgets::Control& pane = *PaneNamed(Controls(session), arguments[0]);
  RequireUsable(session, pane);
  session.viewer().MoveFocus(&pane);
}

// What the keys of a pane do is its front end's; how far Tab goes beyond both of them is the form's.
void RequireInPanes(Session& session, const Key& key) {
  const bool inTree = session.viewer().HasFocus(Controls(session).tvMotherList);
  const bool inList = session.viewer().HasFocus(Controls(session).lvMotherList);
  if (!inTree && !inList) throw ScriptError("Neither tree nor list has the focus");
  if (key.code == KeyCode::kTab && !key.ctrl && inTree == key.shift)
    throw ScriptError("The focus would leave the panes");
}

void PressKey(Session& session, Arguments arguments, std::ostream& /*out*/) {
  const Key key = KeyOf(arguments[0]);
  if (IsDialogOpen(session)) return PressKeyInDialog(session, key);
  if (OpenMenu(session) == nullptr) {
    RequireInPanes(session, key);
  } else if (key.code != KeyCode::kEscape) {
    throw ScriptError("A menu is open: pick an entry, or press Escape");
  }
  session.viewer().Press(key);
}

void TypeAhead(Session& session, Arguments arguments, std::ostream& /*out*/) {
  RequireNoDialog(session);
  if (OpenMenu(session) != nullptr) throw ScriptError("A menu is open: pick an entry, or press Escape");
  RequireInPanes(session, {});
  session.viewer().TypeAhead(arguments[0]);
}

void Size(Session& session, Arguments arguments, std::ostream& /*out*/) {
  if (arguments.size() == 3 && arguments[0] == "dialog") return SizeDialog(session, arguments.subspan(1));
  if (arguments.size() != 2) throw ScriptError("Use: size [dialog] WIDTH HEIGHT");
  RequireNoDialog(session);
  session.viewer().Resize(NumberOf(arguments[0]), NumberOf(arguments[1]));
}

// The tree, to a node; the list, to a row; or a scroll bar.
void Scroll(Session& session, Arguments arguments, std::ostream& /*out*/) {
  if (arguments[0] == "tree") return session.viewer().ScrollTree(ShownNode(session, arguments[1]));
  if (arguments[0] == "list") return session.viewer().ScrollList(ShownRow(session, arguments[1]));
  auto& bar = UsableControl<widgets::ScrollBar>(session, arguments[0], "scroll bar");
  session.viewer().Scroll(bar, NumberOf(arguments[1]));
}

constexpr CommandEntry kCommands[] = {
    {"tab", "CAPTION", 1, 1, ClickTab},
    {"option", "CONTROL VALUE", 2, 2, SetOption},
    {"refresh", "", 0, 0, Refresh},
    {"press", "BUTTON | UPDOWN up|down", 1, 2, Press},
    {"expand", "KEY", 1, 1, Expand},
    {"collapse", "KEY", 1, 1, Collapse},
    {"click", "KEY", 1, 1, Click},
    {"rightclick", "KEY|-", 1, 1, RightClick},
    {"mousedown", "KEY|- left|right [ctrl|shift]", 2, 3, MouseDown},
    {"pick", "ENTRY", 1, 1, PickEntry},
    {"key", "KEY", 1, 1, PressKey},
    {"type", "TEXT", 1, 1, TypeAhead},
    {"select", "KEY [KEY ...]", 1, kAnyNumber, Select},
    {"doubleclick", "KEY", 1, 1, DoubleClick},
    {"column", "NUMBER", 1, 1, ClickColumn},
    {"widen", "COLUMN TWIPS", 2, 2, Widen},
    {"drag", "TWIPS [hold]", 1, 2, Drag},
    {"drop", "", 0, 0, Drop},
    {"tick", "", 0, 0, Tick},
    {"group", "ROW up|down", 2, 2, MoveGroup},
    {"focus", "tree|list|none", 1, 1, Focus},
    {"size", "[dialog] WIDTH HEIGHT", 2, 3, Size},
    {"scroll", "SCROLLBAR VALUE | tree KEY | list KEY", 2, 2, Scroll},
};

}  // namespace

std::span<const CommandEntry> GestureCommands() {
  return kCommands;
}

}  // namespace quorvel::scenario
