#include "scenario/DetailCommands.h"

#include <algorithm>

#include "scenario/Values.h"
#include "scenario/ViewerControls.h"

namespace quorvel::scenario {
namespace {

std::vector<widgets::Control*> Controls(Session& session) {
  return DetailControls(session.viewer().viewer().detail().controls());
}

void RequireDialog(Session& session) {
  if (!IsDialogOpen(session)) throw ScriptError("No dialog is open");
}

void PrintControl(const std::string& name, const SeenControl& seen, std::ostream& out) {
  out << name << (seen.enabled ? "" : " (disabled)");
  if (!seen.text.empty()) out << '\t' << Escaped(seen.text);
  out << '\n';
  if (seen.value) out << EscapedLines(*seen.value);
}

void PrintPlace(const std::string& name, const SeenControl& seen, std::ostream& out) {
  out << name << '\t' << seen.bounds.left << '\t' << seen.bounds.top << '\t' << seen.bounds.width << '\t'
      << seen.bounds.height << '\n';
}

}  // namespace

bool IsDialogOpen(Session& session) {
  return session.viewer().DialogCaption().has_value();
}

void RequireNoDialog(Session& session) {
  if (IsDialogOpen(session)) throw ScriptError("The dialog is open");
}

void PressInDialog(Session& session, const std::string& button) {
  for (widgets::Control* const control : Controls(session)) {
    auto* const found = control->name() == button ? dynamic_cast<widgets::Button*>(control) : nullptr;
    if (found == nullptr) continue;
    if (!session.viewer().Look(*found).enabled) throw ScriptError("Nobody can use " + button + ", it is disabled");
    return session.viewer().Press(*found);
  }
  throw ScriptError("The dialog is open, and it has no button " + button);
}

void PressKeyInDialog(Session& session, const Key& key) {
  if (key.code == KeyCode::kTab) throw ScriptError("The focus would leave the text");
  session.viewer().Press(key);
}

void SizeDialog(Session& session, Arguments size) {
  RequireDialog(session);
  session.viewer().ResizeDialog(NumberOf(size[0]), NumberOf(size[1]));
}

void PrintDetail(Session& session, Arguments arguments, std::ostream& out) {
  const bool places = !arguments.empty();
  if (places && (arguments.size() > 1 || arguments[0] != "layout")) throw ScriptError("Use: print detail [layout]");
  const auto caption = session.viewer().DialogCaption();
  if (!caption) {
    out << "no dialog\n";
    return;
  }
  if (!places) out << Escaped(*caption) << '\n';
  for (const widgets::Control* const control : Controls(session)) {
    const SeenControl seen = session.viewer().Look(*control);
    if (!seen.visible) continue;
    (places ? PrintPlace : PrintControl)(control->name(), seen, out);
  }
}

}  // namespace quorvel::scenario
