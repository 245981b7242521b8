// Commands for what surrounds a viewer: clock, connections, viewers, faults.
#include "scenario/Commands.h"
#include "scenario/Values.h"

namespace quorvel::scenario {
namespace {

void Now(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.platform().SetNow(DateOf(arguments[0]));
}

void Open(Session& session, Arguments arguments, std::ostream& out) {
  CallAsHost(out, [&] { session.Open(arguments[0]); });
}

void Control(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.ChooseViewer(NumberOf(arguments[0]));
}

void Close(Session& session, Arguments /*arguments*/, std::ostream& /*out*/) {
  session.EndViewer();
}

void Sql(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.Execute(arguments[0]);
}

void Fail(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.faults().Fail(arguments[0], NumberOf(arguments[1]), ErrorNumberOf(arguments[2]));
}

void Status(Session& session, Arguments arguments, std::ostream& /*out*/) {
  session.faults().Answer(arguments[0], NumberOf(arguments[1]), NumberOf(arguments[2]));
}

void Host(Session& session, Arguments arguments, std::ostream& /*out*/) {
  if (arguments[0] != "statusbar") throw ScriptError("A host has no " + arguments[0]);
  if (arguments[1] != "on" && arguments[1] != "off") throw ScriptError("Neither on nor off: " + arguments[1]);
  session.platform().SetHostStatusBar(arguments[1] == "on");
}

// "DOMAIN\user"; "" = the system does not say who works at it.
void SetAccount(Session& session, Arguments arguments, std::ostream& /*out*/) {
  const std::string& name = arguments[0];
  const std::size_t separator = name.find('\\');
  if (name.empty()) return session.platform().SetAccount(std::nullopt);
  if (separator == std::string::npos) throw ScriptError("An account is DOMAIN\\user: " + name);
  session.platform().SetAccount(Account{name.substr(0, separator), name.substr(separator + 1)});
}

constexpr CommandEntry kCommands[] = {
    {"now", "DATE", 1, 1, Now},
    {"open", "URL", 1, 1, Open},
    {"control", "NUMBER", 1, 1, Control},
    {"close", "", 0, 0, Close},
    {"sql", "\"SQL\"", 1, 1, Sql},
    {"fail", "NAME NTH ERROR", 3, 3, Fail},
    {"status", "QUERY NTH STATUS", 3, 3, Status},
    {"account", "DOMAIN\\user", 1, 1, SetAccount},
    {"host", "statusbar on|off", 2, 2, Host},
};

}  // namespace

std::span<const CommandEntry> SessionCommands() {
  return kCommands;
}

}  // namespace quorvel::scenario
