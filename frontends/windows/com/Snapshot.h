// An enumerator over what was there when it was made.
#pragma once

#include <ocidl.h>
#include <windows.h>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "platform/windows/ComObject.h"

namespace quorvel::windows {

// `Interface`: an IEnum interface of `Element`. `Owner`: keeps an element and gives callers a copy of their own.
template <class Interface, class Element, class Owner>
class Snapshot final : public ComObject<Interface> {
 public:
  explicit Snapshot(std::vector<Owner> owned, std::size_t next = 0) : owned_(std::move(owned)), next_(next) {}

  STDMETHODIMP Next(ULONG wanted, Element* elements, ULONG* given) noexcept override {
    if (given != nullptr) *given = 0;
    if (elements == nullptr || (given == nullptr && wanted != 1)) return E_POINTER;
    const ULONG done = std::min(wanted, Left());
    for (ULONG i = 0; i < done; ++i) elements[i] = owned_[next_++].Give();
    if (given != nullptr) *given = done;
    return done == wanted ? S_OK : S_FALSE;
  }
  STDMETHODIMP Skip(ULONG elements) noexcept override {
    const ULONG left = Left();
    next_ += std::min(elements, left);
    return elements <= left ? S_OK : S_FALSE;
  }
  STDMETHODIMP Reset() noexcept override {
    next_ = 0;
    return S_OK;
  }
  STDMETHODIMP Clone(Interface** copy) noexcept override {
    if (copy == nullptr) return E_POINTER;
    *copy = nullptr;
    try {
      *copy = new Snapshot(owned_, next_);
      return S_OK;
    } catch (...) {
      return E_OUTOFMEMORY;
    }
  }

 private:
  ULONG Left() const { return static_cast<ULONG>(owned_.size() - next_); }

  std::vector<Owner> owned_;
  std::size_t next_;
};

}  // namespace quorvel::windows
