// Memory for arrays that grow, to any size.
#pragma once

#include <cstddef>

namespace quorvel {

// A block of `bytes` with what `block`, of `bytesBefore`, holds as far as it fits; null: none yet. Null when there is
// no memory for it, `block` stays then. Large blocks mostly grow where they stand, without a copy.
void* ResizeMemory(void* block, std::size_t bytesBefore, std::size_t bytes) noexcept;

// Of the size that it was given last.
void FreeMemory(void* block, std::size_t bytes) noexcept;

}  // namespace quorvel
