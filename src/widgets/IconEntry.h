// An entry of the vocabulary of icons.
#pragma once

#include <cstdint>
#include <string_view>

#include "widgets/IconShape.h"

namespace quorvel::widgets {

// Which suffixes a name takes.
enum class IconVariants : std::uint8_t {
  kNone,
  kGlobal,  // "Global"
  kTask     // "NotExec", "Global", "NotExecGlobal"
};

struct IconEntry {
  std::string_view name;
  IconPicture picture;
  IconVariants variants = IconVariants::kNone;
};

}  // namespace quorvel::widgets
