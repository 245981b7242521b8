// The icons of the viewer as an image list of Windows, each drawn when it is used first.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "widgets/IconGlyphs.h"
#include "windows/Convert.h"
#include "windows/GlyphBitmap.h"
#include "windows/Handles.h"

namespace quorvel::windows {

// Numbers stay what they are as long as the object lives, and so does the handle of the list: what shows an icon goes
// on doing so when the icons are drawn anew.
class Icons {
 public:
  // Beside a text, images are a little wider than their pictures, so that it does not touch them.
  enum class Place { kAlone, kBesideText };
  // Small icons for this scale, in the colours of the system.
  explicit Icons(const Scale& scale, Place place = Place::kAlone);
  ~Icons() = default;
  Icons(const Icons&) = delete;
  Icons& operator=(const Icons&) = delete;

  // How wide and high the pictures are.
  int pixels() const { return pixels_; }
  HIMAGELIST list() const { return list_.get(); }

  // The number of a key in the image list; I_IMAGENONE for one that has no picture.
  int IndexOf(std::string_view key) { return IndexOf(key, usual_); }
  // The same on a row in the highlight colour of the system.
  int OnHighlight(std::string_view key) { return IndexOf(key, highlighted_); }

  // Draws all that were used for another scale, or after the colours of the system changed. Controls that show the list
  // must be given it again, for they remember how large the images are.
  void Redraw(const Scale& scale);

 private:
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  // One way of drawing, and the numbers of what was drawn so.
  struct Set {
    IconInk ink;
    std::unordered_map<std::string, int, TextHash, std::equal_to<>> numbers = {};
  };

  struct Drawn {
    std::string_view key;  // of the set
    const Set* set;
  };

  int IndexOf(std::string_view key, Set& set);
  int Append(const widgets::IconPicture& picture, const IconInk& ink);
  void TakeSystemColours();

  GdiPlus gdiPlus_;
  Place place_;
  int pixels_;
  int air_;
  UniqueImageList list_;
  Set usual_;
  Set highlighted_;
  std::vector<Drawn> drawn_;  // by number
};

}  // namespace quorvel::windows
