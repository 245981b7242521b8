// What scripts do with the detail dialog of the present viewer.
#pragma once

#include <ostream>
#include <string>

#include "scenario/Commands.h"

namespace quorvel::scenario {

bool IsDialogOpen(Session& session);
// ScriptError "The dialog is open": a user cannot reach the viewer behind it.
void RequireNoDialog(Session& session);

// While it is open; ScriptError for what a user could not do in it.
void PressInDialog(Session& session, const std::string& button);
void PressKeyInDialog(Session& session, const Key& key);
// In pixels at 96 dots per inch.
void SizeDialog(Session& session, Arguments size);

// What the dialog shows, or that there is none; with the argument "layout", where its controls lie.
void PrintDetail(Session& session, Arguments arguments, std::ostream& out);

}  // namespace quorvel::scenario
