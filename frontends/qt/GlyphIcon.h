// Icon keys as icons of Qt, drawn from the vector shapes of the library.
#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "widgets/IconGlyphs.h"

namespace quorvel::qt {

// The colours to draw a picture in: for a dark background or a light one, or with its base in one colour, as it stands
// on a selected row.
struct IconInk {
  bool dark = false;
  std::optional<QColor> base;
  friend bool operator==(const IconInk&, const IconInk&) = default;
};

// The picture on a transparent square of `pixels` x `pixels`.
QImage DrawIcon(const widgets::IconPicture& picture, int pixels, const IconInk& ink);

// Keys of an item's pictures: as it is, while it is open, while it is selected.
struct IconKeys {
  std::string_view normal;
  std::string_view open;
  std::string_view selected;
};

// Icons that draw themselves sharp at every size, in the colours of the application's palette, made once a key.
// Selected and Active show the picture of a selected item: in the colour of highlighted text, and in the usual ones.
class GlyphIcons {
 public:
  // A null icon when `normal` has no picture; the other two fall back to it.
  const QIcon& Of(const IconKeys& keys);
  const QIcon& Of(std::string_view key) { return Of({key, key, key}); }

 private:
  using Names = std::array<std::string, 3>;
  // Finds by views, so that a look-up makes no strings.
  struct Before {
    using is_transparent = void;
    using Views = std::array<std::string_view, 3>;
    static Views View(const Names& names) { return {names[0], names[1], names[2]}; }
    static Views View(const IconKeys& keys) { return {keys.normal, keys.open, keys.selected}; }
    template <class A, class B>
    bool operator()(const A& a, const B& b) const {
      return View(a) < View(b);
    }
  };

  std::map<Names, QIcon, Before> icons_;
};

}  // namespace quorvel::qt
