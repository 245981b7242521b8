// Copies texts, of which most are short.
#pragma once

#include <cstddef>
#include <cstring>

namespace quorvel::datasource {

// `bytes`: from Piece to twice as many. The two pieces may overlap.
template <std::size_t Piece>
inline void CopyEnds(char* to, const char* from, std::size_t bytes) {
  std::memcpy(to, from, Piece);
  std::memcpy(to + bytes - Piece, from + bytes - Piece, Piece);
}

// As std::memcpy, which for a few bytes takes longer than all else that is done with them on systems whose C library
// uses string instructions for the rest of a text. Pieces of a fixed size are moves of the processor.
inline void CopyBytes(char* to, const char* from, std::size_t bytes) {
  if (bytes > 64) {
    std::memcpy(to, from, bytes);
  } else if (bytes >= 32) {
    CopyEnds<32>(to, from, bytes);
  } else if (bytes >= 16) {
    CopyEnds<16>(to, from, bytes);
  } else if (bytes >= 8) {
    CopyEnds<8>(to, from, bytes);
  } else if (bytes >= 4) {
    CopyEnds<4>(to, from, bytes);
  } else {
    for (std::size_t at = 0; at < bytes; ++at) to[at] = from[at];
  }
}

}  // namespace quorvel::datasource
