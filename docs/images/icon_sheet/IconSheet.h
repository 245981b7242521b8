// The sheet of all icons with their keys.
#pragma once

#include <QImage>

namespace quorvel::docs {

// Every icon in the sizes of a list at 100 % and 200 %, on a light and on a dark background, beside its key. Needs a
// QGuiApplication, for its fonts.
QImage DrawIconSheet();

}  // namespace quorvel::docs
