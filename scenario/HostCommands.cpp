// Commands for what a host programmer does: properties and methods.
#include <array>
#include <charconv>
#include <tuple>

#include "platform/Error.h"
#include "scenario/Commands.h"
#include "scenario/Values.h"

namespace quorvel::scenario {
namespace {

std::string FlagText(bool value) {
  return value ? "1" : "0";
}

struct Property {
  std::string_view name;
  std::string (*get)(const ucProcessLog& viewer);  // nullptr: cannot be read
  void (*set)(ucProcessLog& viewer, std::string_view value);
};

constexpr Property kProperties[] = {
    {"p_Connect", [](const ucProcessLog& viewer) { return std::to_string(viewer.p_Connect()); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_Connect(NumberOf(value)); }},
    {"p_ProcessId", [](const ucProcessLog& viewer) { return std::to_string(viewer.p_ProcessId()); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_ProcessId(NumberOf(value)); }},
    {"p_FromType",
     [](const ucProcessLog& viewer) { return std::to_string(static_cast<std::int32_t>(viewer.p_FromType())); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_FromType(static_cast<tlFromType>(NumberOf(value))); }},
    {"p_IdAppLog", [](const ucProcessLog& viewer) { return std::to_string(viewer.p_IdAppLog()); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_IdAppLog(NumberOf(value)); }},
    {"p_Key", [](const ucProcessLog& viewer) { return viewer.p_Key(); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_Key(value); }},
    {"p_TabStripVisible", nullptr,
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_TabStripVisible(FlagOf(value)); }},
    {"p_blnShowUserInfo", [](const ucProcessLog& viewer) { return FlagText(viewer.p_blnShowUserInfo()); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_blnShowUserInfo(FlagOf(value)); }},
    {"p_blnShowProcessAlarm", [](const ucProcessLog& viewer) { return FlagText(viewer.p_blnShowProcessAlarm()); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_blnShowProcessAlarm(FlagOf(value)); }},
    {"p_blnShowAlarms", [](const ucProcessLog& viewer) { return FlagText(viewer.p_blnShowAlarms()); },
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_blnShowAlarms(FlagOf(value)); }},
    {"p_strHelpFile", nullptr, [](ucProcessLog& viewer, std::string_view value) { viewer.p_strHelpFile(value); }},
    {"p_ConsoleLoginUserName", nullptr,
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_ConsoleLoginUserName(value); }},
    {"p_ConsoleLoginUserRight", nullptr,
     [](ucProcessLog& viewer, std::string_view value) { viewer.p_ConsoleLoginUserRight(NumberOf(value)); }},
    {"ListItems", [](const ucProcessLog& viewer) { return std::to_string(viewer.ListItems().Count()); }, nullptr},
    {"SelectedItem",
     [](const ucProcessLog& viewer) { return viewer.SelectedItem() ? viewer.SelectedItem()->Key() : std::string(); },
     nullptr},
    {"p_ListCount", [](const ucProcessLog& viewer) { return std::to_string(viewer.p_ListCount()); }, nullptr},
    {"p_ServerName", nullptr, [](ucProcessLog& viewer, std::string_view value) { viewer.p_ServerName(value); }},
};

void Set(Session& session, Arguments arguments, std::ostream& out) {
  const Property& property = Named(kProperties, arguments[0], "property");
  if (property.set == nullptr) throw ScriptError("A host cannot set " + arguments[0]);
  CallAsHost(out, [&] { property.set(session.viewer().viewer(), arguments[1]); });
}

void Get(Session& session, Arguments arguments, std::ostream& out) {
  const Property& property = Named(kProperties, arguments[0], "property");
  if (property.get == nullptr) throw ScriptError("A host cannot get " + arguments[0]);
  CallAsHost(out, [&] { out << Escaped(property.get(session.viewer().viewer())) << '\n'; });
}

std::string DecimalText(float value) {
  std::string text(32, '\0');
  text.resize(static_cast<std::size_t>(std::to_chars(text.data(), text.data() + text.size(), value).ptr - text.data()));
  return text;
}

// Arguments by reference are printed as they are afterwards.
struct Method {
  std::string_view name;
  std::string_view usage;
  std::size_t least;
  std::size_t most;
  void (*call)(ucProcessLog& viewer, Arguments arguments, std::ostream& out);
};

void PrintMenuState(ucProcessLog& viewer, Arguments /*arguments*/, std::ostream& out) {
  std::array<bool, 13> flags{};
  flags.fill(true);
  std::apply([&](auto&... each) { viewer.m_GetMenuState(each...); }, flags);
  for (const bool flag : flags) out << FlagText(flag);
  out << '\n';
}

// Without arguments as a host that opens imports does.
void GetLogByImports(ucProcessLog& viewer, Arguments arguments, std::ostream& out) {
  if (!arguments.empty() && arguments.size() != 3) {
    throw ScriptError("Use: call m_GetLogByImports [VIEW IMPORT PASSED]");
  }
  std::array<std::int32_t, 3> values{0, viewer.p_IdAppLog(), 0};
  for (std::size_t i = 0; i < arguments.size(); ++i) values[i] = NumberOf(arguments[i]);
  viewer.m_GetLogByImports(values[0], values[1], values[2]);
  out << "view = " << values[0] << "\nimportId = " << values[1] << "\npassed = " << values[2] << '\n';
}

void ExpandCommunications(ucProcessLog& viewer, Arguments arguments, std::ostream& /*out*/) {
  const widgets::NodeId node = viewer.controls().tvMotherList.Find(arguments[0]);
  if (node == widgets::NodeId::kNone) throw ScriptError("No such node: " + arguments[0]);
  viewer.tvMotherList_ExpandCommunications(node);
}

// What menu 12 is for scripts, m_MenuCall is for hosts.
void CallMenu(Session& session, Arguments arguments, std::ostream& out) {
  CallAsHost(out, [&] {
    std::int32_t command = NumberOf(arguments[0]);
    session.viewer().viewer().m_MenuCall(command);
    if (command != NumberOf(arguments[0])) out << "command = " << command << '\n';
  });
}

constexpr Method kMethods[] = {
    {"InitStateListByTab", "", 0, 0,
     [](ucProcessLog& viewer, Arguments, std::ostream&) { viewer.InitStateListByTab(); }},
    {"ControlsVisible", "STATE", 1, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream&) { viewer.ControlsVisible(NumberOf(arguments[0])); }},
    {"m_GetLogByProcess", "[0|1]", 0, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream&) {
       viewer.m_GetLogByProcess(!arguments.empty() && FlagOf(arguments[0]));
     }},
    {"m_GetLogByUser", "[0|1]", 0, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream&) {
       viewer.m_GetLogByUser(!arguments.empty() && FlagOf(arguments[0]));
     }},
    {"m_GetLogAll", "STATE", 1, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream& out) {
       auto state = static_cast<StateFilter>(NumberOf(arguments[0]));
       viewer.m_GetLogAll(state);
       out << "state = " << static_cast<std::int32_t>(state) << '\n';
     }},
    {"m_GetLogByAlarms", "[0|1]", 0, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream&) {
       viewer.m_GetLogByAlarms(!arguments.empty() && FlagOf(arguments[0]));
     }},
    {"m_GetLogByCommunication", "[0|1]", 0, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream&) {
       viewer.m_GetLogByCommunication(!arguments.empty() && FlagOf(arguments[0]));
     }},
    {"m_GetLogByBackup", "[0|1]", 0, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream&) {
       viewer.m_GetLogByBackup(!arguments.empty() && FlagOf(arguments[0]));
     }},
    {"m_GetLogByImports", "[VIEW IMPORT PASSED]", 0, 3, GetLogByImports},
    {"tvMotherList_ExpandCommunications", "KEY", 1, 1, ExpandCommunications},
    {"GetNextContextKeyInLogs", "KEY VIEW", 2, 2,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream& out) {
       out << Escaped(viewer.GetNextContextKeyInLogs(arguments[0], arguments[1])) << '\n';
     }},
    {"m_GetDetail", "", 0, 0, [](ucProcessLog& viewer, Arguments, std::ostream&) { viewer.m_GetDetail(); }},
    {"m_Open", "", 0, 0, [](ucProcessLog& viewer, Arguments, std::ostream&) { viewer.m_Open(); }},
    {"m_Copy", "", 0, 0, [](ucProcessLog& viewer, Arguments, std::ostream&) { viewer.m_Copy(); }},
    {"m_SelectAll", "", 0, 0, [](ucProcessLog& viewer, Arguments, std::ostream&) { viewer.m_SelectAll(); }},
    {"m_GetMenuState", "", 0, 0, PrintMenuState},
    {"SizeControls", "[WIDTH]", 0, 1,
     [](ucProcessLog& viewer, Arguments arguments, std::ostream& out) {
       if (arguments.empty()) return viewer.SizeControls();
       float width = DecimalOf(arguments[0]);
       viewer.SizeControls(width);
       out << "treeWidth = " << DecimalText(width) << '\n';
     }},
};

void Call(Session& session, Arguments arguments, std::ostream& out) {
  const Method& method = Named(kMethods, arguments[0], "method");
  const Arguments given = arguments.subspan(1);
  if (given.size() < method.least || given.size() > method.most) {
    throw ScriptError("Use: call " + arguments[0] + " " + std::string(method.usage));
  }
  CallAsHost(out, [&] { method.call(session.viewer().viewer(), given, out); });
}

constexpr CommandEntry kCommands[] = {
    {"set", "PROPERTY VALUE", 2, 2, Set},
    {"get", "PROPERTY", 1, 1, Get, true},
    {"menu", "COMMAND", 1, 1, CallMenu, true},
    {"call", "METHOD [ARGUMENT ...]", 1, kAnyNumber, Call, true},
};

}  // namespace

std::span<const CommandEntry> HostCommands() {
  return kCommands;
}

void CallAsHost(std::ostream& out, const std::function<void()>& call) {
  try {
    call();
  } catch (const ScriptError&) {
    throw;
  } catch (...) {
    const Error error = CurrentError();
    out << "error " << ErrorNumberText(error.number()) << '\n'
        << "source " << Escaped(error.source()) << '\n'
        << "description " << Escaped(error.description()) << '\n';
    if (!error.helpFile().empty()) out << "help " << Escaped(error.helpFile()) << '\n';
  }
}

}  // namespace quorvel::scenario
