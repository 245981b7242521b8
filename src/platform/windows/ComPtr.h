// Owner of a COM interface pointer.
#pragma once

#include <windows.h>

#include <unknwn.h>

#include <utility>

namespace quorvel::windows {

template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(std::nullptr_t) {}
  // Shares: counts one reference more.
  explicit ComPtr(Interface* shared) : pointer_(shared) {
    if (pointer_ != nullptr) pointer_->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.pointer_) {}
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ~ComPtr() {
    if (pointer_ != nullptr) pointer_->Release();
  }
  ComPtr& operator=(const ComPtr& other) {
    if (this != &other) ComPtr(other).Swap(*this);
    return *this;
  }
  ComPtr& operator=(ComPtr&& other) noexcept {
    ComPtr(std::move(other)).Swap(*this);
    return *this;
  }

  // Takes over a reference that was counted already.
  static ComPtr Adopt(Interface* counted) {
    ComPtr owner;
    owner.pointer_ = counted;
    return owner;
  }

  Interface* get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  // Gives the reference away.
  Interface* Detach() { return std::exchange(pointer_, nullptr); }

  // Where a call writes a pointer that it has counted; what was held goes first.
  Interface** Put() {
    *this = ComPtr();
    return &pointer_;
  }
  void** PutVoid() { return reinterpret_cast<void**>(Put()); }

  // The same object by another interface; nothing when it has none.
  template <class Other>
  ComPtr<Other> As(const IID& identity = __uuidof(Other)) const {
    ComPtr<Other> other;
    if (pointer_ == nullptr || FAILED(pointer_->QueryInterface(identity, other.PutVoid()))) return {};
    return other;
  }

 private:
  void Swap(ComPtr& other) noexcept { std::swap(pointer_, other.pointer_); }

  Interface* pointer_ = nullptr;
};

}  // namespace quorvel::windows
