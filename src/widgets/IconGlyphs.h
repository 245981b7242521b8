// The pictures behind icon keys, as vector shapes: any front end draws them, at any size, in its own colours.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/IconShape.h"

namespace quorvel::widgets {

// The picture of an icon key, nothing when the key has none. What it shows lives as long as the program. Cheap enough
// to be asked for every row that is painted: no memory is taken, and no list is walked.
std::optional<IconPicture> FindIcon(std::string_view key);

// Keys that belong together.
struct IconGroup {
  std::string_view caption;
  std::vector<std::string> keys;
};

// Every key that has a picture, by subject. Keys of tasks stand four by four: executed and not, for a station, then for
// all.
std::vector<IconGroup> IconGroups();
// The same as one list.
std::vector<std::string> IconKeys();

}  // namespace quorvel::widgets
