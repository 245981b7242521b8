// Many short texts end to end in one buffer, so that a text costs no allocation of its own.
#pragma once

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

namespace quorvel::widgets {

class TextArena {
 public:
  // A text of the arena.
  struct Ref {
    std::uint32_t start = 0;
    std::uint32_t length = 0;
  };

  // std::length_error beyond 4 GB of text. `text` may lie in this arena.
  Ref Append(std::string_view text) {
    if (text.size() > std::numeric_limits<std::uint32_t>::max() - bytes_.size()) {
      throw std::length_error("Too much text in one control");
    }
    const Ref ref{static_cast<std::uint32_t>(bytes_.size()), static_cast<std::uint32_t>(text.size())};
    bytes_.append(text);
    return ref;
  }

  // Valid until the next Append or Clear.
  std::string_view View(Ref ref) const { return std::string_view(bytes_).substr(ref.start, ref.length); }

  // Gives a text up. Its bytes stay until the owner moves what is left to a new arena.
  void Release(Ref ref) { released_ += ref.length; }
  bool IsMostlyReleased() const { return released_ > kWorthMoving && released_ > bytes_.size() / 2; }

  void Clear() {
    bytes_.clear();
    released_ = 0;
  }

 private:
  static constexpr std::size_t kWorthMoving = 64 * 1024;

  std::string bytes_;
  std::size_t released_ = 0;
};

}  // namespace quorvel::widgets
