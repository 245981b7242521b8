// Many short texts in few large pieces of memory, so that a text costs no allocation of its own.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace quorvel::widgets {

// Pieces never move: growing copies nothing, and a fresh page of memory is touched once.
class TextArena {
 public:
  // A text of the arena.
  struct Ref {
    std::uint32_t start = 0;
    std::uint32_t length = 0;
  };

  // std::length_error beyond 4 GB of text. `text` may lie in this arena.
  Ref Append(std::string_view text) {
    if (text.size() > end_ - next_) AddPiece(text.size());
    const Ref ref{next_, static_cast<std::uint32_t>(text.size())};
    if (!text.empty()) std::memcpy(At(next_), text.data(), text.size());
    // A text longer than a piece keeps its piece for itself: nothing may begin in the spans that it covers.
    next_ = text.size() > kPiece ? end_ : next_ + ref.length;
    return ref;
  }

  // Valid until Clear or the arena's end.
  std::string_view View(Ref ref) const {
    return ref.length == 0 ? std::string_view() : std::string_view(At(ref.start), ref.length);
  }

  // Gives a text up. Its bytes stay until the owner moves what is left to a new arena.
  void Release(Ref ref) { released_ += ref.length; }
  bool IsMostlyReleased() const { return released_ > kWorthMoving && released_ > next_ / 2; }

  void Clear() { *this = {}; }

 private:
  // Positions are counted through all pieces; a piece spans one or more times this many of them.
  static constexpr std::uint32_t kPieceBits = 16;
  static constexpr std::size_t kPiece = std::size_t{1} << kPieceBits;
  static constexpr std::size_t kWorthMoving = kPiece;

  char* At(std::uint32_t position) const { return pieces_[position >> kPieceBits].get() + (position & (kPiece - 1)); }

  void AddPiece(std::size_t atLeast) {
    const std::size_t spans = (std::max(atLeast, kPiece) + kPiece - 1) / kPiece;
    const std::size_t start = pieces_.size() * kPiece;
    if (start + spans * kPiece > std::numeric_limits<std::uint32_t>::max()) {
      throw std::length_error("Too much text in one control");
    }
    // The further spans of a long piece have no memory of their own: no text begins in them.
    pieces_.push_back(std::unique_ptr<char[]>(new char[spans * kPiece]));
    pieces_.resize(pieces_.size() + spans - 1);
    next_ = static_cast<std::uint32_t>(start);
    end_ = static_cast<std::uint32_t>(start + spans * kPiece);
  }

  std::vector<std::unique_ptr<char[]>> pieces_;
  std::uint32_t next_ = 0;  // where the next text goes, and where its piece ends
  std::uint32_t end_ = 0;
  std::size_t released_ = 0;
};

}  // namespace quorvel::widgets
