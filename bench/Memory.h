// How much memory is in use.
#pragma once

#include <malloc.h>

#include <cstddef>

namespace quorvel::bench {

// Bytes that malloc, and so operator new, Qt and SQLite, have given out and not got back; large blocks, which have
// mappings of their own, included. Pages of the history that SQLite maps are the file's, not the program's.
inline double HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

}  // namespace quorvel::bench
