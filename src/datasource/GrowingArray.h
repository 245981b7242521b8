// An array for values whose number nobody knows beforehand: it grows without touching its values twice.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "datasource/CopyBytes.h"
#include "platform/GrowingMemory.h"

namespace quorvel::datasource {

// Large blocks grow by moving pages, not bytes, where the system can. std::bad_alloc when memory ends; the values stay
// as they are then.
template <class T>
class GrowingArray {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  GrowingArray() = default;
  ~GrowingArray() = default;
  GrowingArray(GrowingArray&& other) noexcept { Swap(other); }
  GrowingArray& operator=(GrowingArray&& other) noexcept {
    GrowingArray(std::move(other)).Swap(*this);
    return *this;
  }
  GrowingArray(const GrowingArray&) = delete;
  GrowingArray& operator=(const GrowingArray&) = delete;

  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  // Valid until the array grows.
  const T* data() const { return values_.get(); }
  const T& operator[](std::size_t index) const { return values_.get()[index]; }
  const T& back() const { return values_.get()[size_ - 1]; }

  void push_back(T value) {
    if (size_ == capacity_) Resize(AtLeast(size_ + 1));
    values_.get()[size_++] = value;
  }
  // `values` must not lie in this array.
  void append(const T* values, std::size_t count) {
    if (count > capacity_ - size_) Resize(AtLeast(size_ + count));
    const auto* const from = reinterpret_cast<const char*>(values);
    CopyBytes(reinterpret_cast<char*>(values_.get() + size_), from, count * sizeof(T));
    size_ += count;
  }
  void reserve(std::size_t count) {
    if (count > capacity_) Resize(count);
  }
  // Gives back what is not used.
  void shrink_to_fit() {
    if (size_ < capacity_) Resize(size_);
  }

 private:
  struct Free {
    void operator()(T* values) const { FreeMemory(values, bytes); }
    std::size_t bytes = 0;
  };

  std::size_t AtLeast(std::size_t count) const {
    constexpr std::size_t kFirst = 64;
    return std::max({kFirst, count, 2 * capacity_});
  }

  void Resize(std::size_t capacity) {
    if (capacity == 0) {
      values_.reset();
    } else {
      if (capacity > std::numeric_limits<std::size_t>::max() / sizeof(T)) throw std::bad_alloc();
      const std::size_t bytes = capacity * sizeof(T);
      void* const block = ResizeMemory(values_.get(), capacity_ * sizeof(T), bytes);
      if (block == nullptr) throw std::bad_alloc();
      static_cast<void>(values_.release());
      values_ = std::unique_ptr<T[], Free>(static_cast<T*>(block), Free{bytes});
    }
    capacity_ = capacity;
  }

  void Swap(GrowingArray& other) noexcept {
    std::swap(values_, other.values_);
    std::swap(size_, other.size_);
    std::swap(capacity_, other.capacity_);
  }

  std::unique_ptr<T[], Free> values_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace quorvel::datasource
