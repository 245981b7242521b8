#include "platform/GrowingMemory.h"

#include <cstdlib>

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#include <cstring>
#endif

namespace quorvel {

#ifdef _WIN32
// The heap of Windows copies a large block to let it grow. So such blocks reserve addresses for several times their
// size, and get memory for them as they grow.
namespace {

constexpr std::size_t kLarge = std::size_t{1} << 20;

// Stands before the block, as long as the strictest alignment.
struct alignas(64) Reservation {
  std::size_t bytes;  // of addresses, this included
};

Reservation* ReservationOf(void* block) {
  return static_cast<Reservation*>(block) - 1;
}

// As many addresses as there are, where they are scarce.
Reservation* Reserve(std::size_t bytes) {
  const std::size_t committed = bytes + sizeof(Reservation);
  for (std::size_t times = 16; times > 0; times /= 2) {
    if (committed > static_cast<std::size_t>(-1) / times) continue;
    void* const addresses = VirtualAlloc(nullptr, committed * times, MEM_RESERVE, PAGE_READWRITE);
    if (addresses == nullptr) continue;
    if (VirtualAlloc(addresses, committed, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
      VirtualFree(addresses, 0, MEM_RELEASE);
      return nullptr;
    }
    auto* const reserved = static_cast<Reservation*>(addresses);
    reserved->bytes = committed * times;
    return reserved;
  }
  return nullptr;
}

bool GrowsInPlace(void* block, std::size_t bytes) {
  Reservation* const reserved = ReservationOf(block);
  if (bytes > reserved->bytes - sizeof(Reservation)) return false;
  return VirtualAlloc(reserved, bytes + sizeof(Reservation), MEM_COMMIT, PAGE_READWRITE) != nullptr;
}

void GiveBackBehind(void* block, std::size_t bytesBefore, std::size_t bytes) {
  constexpr std::size_t kPage = 4096;
  const std::size_t kept = (bytes + sizeof(Reservation) + kPage - 1) / kPage * kPage;
  const std::size_t had = bytesBefore + sizeof(Reservation);
  if (had > kept) VirtualFree(reinterpret_cast<char*>(ReservationOf(block)) + kept, had - kept, MEM_DECOMMIT);
}

void* Moved(void* block, std::size_t bytesBefore, std::size_t bytes) {
  Reservation* const reserved = bytes >= kLarge ? Reserve(bytes) : nullptr;
  void* const moved = bytes >= kLarge ? (reserved == nullptr ? nullptr : reserved + 1) : std::malloc(bytes);
  if (moved == nullptr) return nullptr;
  if (block != nullptr) std::memcpy(moved, block, std::min(bytesBefore, bytes));
  FreeMemory(block, bytesBefore);
  return moved;
}

}  // namespace

void* ResizeMemory(void* block, std::size_t bytesBefore, std::size_t bytes) noexcept {
  if (bytesBefore < kLarge && bytes < kLarge) return std::realloc(block, bytes);
  if (bytesBefore < kLarge || bytes < kLarge) return Moved(block, bytesBefore, bytes);
  if (bytes > bytesBefore) return GrowsInPlace(block, bytes) ? block : Moved(block, bytesBefore, bytes);
  GiveBackBehind(block, bytesBefore, bytes);
  return block;
}

void FreeMemory(void* block, std::size_t bytes) noexcept {
  if (bytes < kLarge) return std::free(block);
  VirtualFree(ReservationOf(block), 0, MEM_RELEASE);
}
#else
// Where the system moves pages instead of bytes, nothing else is needed.
void* ResizeMemory(void* block, std::size_t /*bytesBefore*/, std::size_t bytes) noexcept {
  return std::realloc(block, bytes);
}

void FreeMemory(void* block, std::size_t /*bytes*/) noexcept {
  std::free(block);
}
#endif

}  // namespace quorvel
