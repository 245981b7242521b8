#include "platform/GrowingMemory.h"

#include <cstdlib>

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <mutex>
#include <utility>
#endif

namespace quorvel {

#ifdef _WIN32
// The heap of Windows copies a large block to let it grow. So such blocks reserve addresses for several times their
// size, and get memory for them as they grow.
namespace {

constexpr std::size_t kLarge = std::size_t{1} << 20;
constexpr bool kScarceAddresses = sizeof(void*) < 8;

// Stands before the block, as long as the strictest alignment.
struct alignas(64) Reservation {
  std::size_t bytes;      // of addresses, this included
  std::size_t committed;  // of them, those that have memory
};

void Release(Reservation* reserved) {
  VirtualFree(reserved, 0, MEM_RELEASE);
}

// Blocks that were given back, for those who ask next: a viewer asks for about as much again and again, and the system
// clears each page of memory that it gives anew, which takes about as long as to fill it.
class SpareBlocks {
 public:
  SpareBlocks() = default;
  ~SpareBlocks() {
    for (Reservation* const spare : spares_) {
      if (spare != nullptr) Release(spare);
    }
  }
  SpareBlocks(const SpareBlocks&) = delete;
  SpareBlocks& operator=(const SpareBlocks&) = delete;

  static SpareBlocks& OfModule() {
    static SpareBlocks spares;
    return spares;
  }

  // False where enough are kept.
  bool Keep(Reservation* reserved) {
    // About what the columns of a million rows take; nothing where addresses are scarce.
    constexpr std::size_t kMostKept = kScarceAddresses ? 0 : std::size_t{128} << 20;
    const std::scoped_lock lock(mutex_);
    const auto place = std::ranges::find(spares_, nullptr);
    if (place == spares_.end() || reserved->committed > kMostKept - kept_) return false;
    *place = reserved;
    kept_ += reserved->committed;
    return true;
  }

  // The largest one that has memory for so much: of blocks that grow together, the one that grows fastest asks first.
  // Null: there is none.
  Reservation* Take(std::size_t committed) {
    const std::scoped_lock lock(mutex_);
    Reservation** best = nullptr;
    for (Reservation*& spare : spares_) {
      if (spare == nullptr || spare->committed < committed) continue;
      if (best == nullptr || spare->committed > (*best)->committed) best = &spare;
    }
    if (best == nullptr) return nullptr;
    kept_ -= (*best)->committed;
    return std::exchange(*best, nullptr);
  }

 private:
  std::mutex mutex_;
  std::array<Reservation*, 32> spares_{};
  std::size_t kept_ = 0;
};

Reservation* ReservationOf(void* block) {
  return static_cast<Reservation*>(block) - 1;
}

// As many addresses as there are, where they are scarce.
Reservation* Reserve(std::size_t bytes) {
  const std::size_t committed = bytes + sizeof(Reservation);
  if (Reservation* const spare = SpareBlocks::OfModule().Take(committed)) return spare;
  constexpr std::size_t kMostTimes = kScarceAddresses ? 16 : 256;
  for (std::size_t times = kMostTimes; times > 0; times /= 2) {
    if (committed > static_cast<std::size_t>(-1) / times) continue;
    void* const addresses = VirtualAlloc(nullptr, committed * times, MEM_RESERVE, PAGE_READWRITE);
    if (addresses == nullptr) continue;
    if (VirtualAlloc(addresses, committed, MEM_COMMIT, PAGE_READWRITE) == nullptr) {
      VirtualFree(addresses, 0, MEM_RELEASE);
      return nullptr;
    }
    auto* const reserved = static_cast<Reservation*>(addresses);
    *reserved = {committed * times, committed};
    return reserved;
  }
  return nullptr;
}

bool GrowsInPlace(void* block, std::size_t bytes) {
  Reservation* const reserved = ReservationOf(block);
  if (bytes > reserved->bytes - sizeof(Reservation)) return false;
  const std::size_t committed = bytes + sizeof(Reservation);
  if (committed <= reserved->committed) return true;
  if (VirtualAlloc(reserved, committed, MEM_COMMIT, PAGE_READWRITE) == nullptr) return false;
  reserved->committed = committed;
  return true;
}

void GiveBackBehind(void* block, std::size_t bytes) {
  constexpr std::size_t kPage = 4096;
  Reservation* const reserved = ReservationOf(block);
  const std::size_t kept = (bytes + sizeof(Reservation) + kPage - 1) / kPage * kPage;
  if (reserved->committed <= kept) return;
  VirtualFree(reinterpret_cast<char*>(reserved) + kept, reserved->committed - kept, MEM_DECOMMIT);
  reserved->committed = kept;
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
  GiveBackBehind(block, bytes);
  return block;
}

void FreeMemory(void* block, std::size_t bytes) noexcept {
  if (bytes < kLarge) return std::free(block);
  Reservation* const reserved = ReservationOf(block);
  if (!SpareBlocks::OfModule().Keep(reserved)) Release(reserved);
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
