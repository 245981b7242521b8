// The look of the console: the Fusion style, which draws alike everywhere, in light or dark colours.
#pragma once

namespace quorvel::console {

// For the whole application, before the first window is made.
void SetAppearance(bool dark);

}  // namespace quorvel::console
