// The base of every COM object of this project: references are counted, interfaces are found.
#pragma once

#include <unknwn.h>
#include <windows.h>

#include <atomic>
#include <type_traits>
#include <utility>

#include "platform/windows/ComPtr.h"
#include "platform/windows/ComServer.h"

namespace quorvel::windows {

// An object with these interfaces, the first of which stands for IUnknown too; a Dispatched one stands for the
// interface that it describes, and for IDispatch. It begins with one reference, which its maker releases, and deletes
// itself with the last one.
template <class First, class... Others>
class ComObject : public First, public Others... {
 public:
  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  STDMETHODIMP QueryInterface(REFIID wanted, void** object) noexcept override {
    if (object == nullptr) return E_POINTER;
    *object = Find(wanted);
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }

  STDMETHODIMP_(ULONG) AddRef() noexcept override { return ++references_; }

  STDMETHODIMP_(ULONG) Release() noexcept override {
    const ULONG left = --references_;
    if (left != 0) return left;
    // What is given away while the object goes must not bring it to its end again.
    references_ = 1;
    End();
    return 0;
  }

 protected:
  ComObject() = default;
  virtual ~ComObject() = default;

  // The last reference was released. An object that cannot go yet releases once more, later.
  virtual void End() noexcept { delete this; }

  // Interfaces that the listed ones derive from; nullptr for one that the object does not have.
  virtual void* FindBase(REFIID /*wanted*/) noexcept { return nullptr; }

 private:
  void* Find(REFIID wanted) noexcept {
    if (IsEqualGUID(wanted, __uuidof(IUnknown))) return static_cast<First*>(this);
    void* found = nullptr;
    Look<First>(wanted, found);
    (Look<Others>(wanted, found), ...);
    return found != nullptr ? found : FindBase(wanted);
  }

  template <class Interface>
  void Look(REFIID wanted, void*& found) noexcept {
    if constexpr (requires { typename Interface::Described; }) {
      if (IsEqualGUID(wanted, __uuidof(typename Interface::Described))) found = static_cast<Interface*>(this);
    } else {
      if (IsEqualGUID(wanted, __uuidof(Interface))) found = static_cast<Interface*>(this);
    }
    if constexpr (std::is_base_of_v<IDispatch, Interface>) {
      if (IsEqualGUID(wanted, __uuidof(IDispatch))) found = static_cast<IDispatch*>(static_cast<Interface*>(this));
    }
  }

  std::atomic<ULONG> references_ = 1;
  LibraryUse use_;
};

// A new object, by its first reference.
template <class Object, class... Arguments>
ComPtr<Object> MakeObject(Arguments&&... arguments) {
  return ComPtr<Object>::Adopt(new Object(std::forward<Arguments>(arguments)...));
}

}  // namespace quorvel::windows
