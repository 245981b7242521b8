// Where the controls of the detail dialog lie.
#pragma once

#include "dialogs/dlgLVDetailControls.h"

namespace quorvel {

// The least area in which every control has its room, in twips.
inline constexpr widgets::Twips kLeastDetailWidth = 7200;
inline constexpr widgets::Twips kLeastDetailHeight = 3600;

// Places the controls on the form as it is: title, the dates that are visible, the text over all that is left, buttons.
// Without a visible date the text begins below the title.
void LayOutDetail(dlgLVDetailControls& controls);

}  // namespace quorvel
