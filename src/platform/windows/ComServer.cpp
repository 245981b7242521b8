#include "platform/windows/ComServer.h"

#include <algorithm>
#include <atomic>
#include <new>

#include "platform/windows/ComObject.h"
#include "platform/windows/ComPtr.h"

namespace quorvel::windows {
namespace {

std::atomic<long> usesOfLibrary = 0;

// Makes the objects of one class, for callers that say CoCreateInstance.
class ClassFactory final : public ComObject<IClassFactory> {
 public:
  explicit ClassFactory(const ComClass& offered) : offered_(offered) {}

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID interfaceWanted, void** object) noexcept override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return offered_.create(interfaceWanted, object);
  }

  STDMETHODIMP LockServer(BOOL lock) noexcept override {
    usesOfLibrary += lock != FALSE ? 1 : -1;
    return S_OK;
  }

 private:
  const ComClass& offered_;
};

}  // namespace

LibraryUse::LibraryUse() noexcept {
  ++usesOfLibrary;
}

LibraryUse::~LibraryUse() {
  --usesOfLibrary;
}

long LibraryUses() noexcept {
  return usesOfLibrary;
}

HINSTANCE OwnModule() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&usesOfLibrary), &module);
  return module;
}

std::wstring OwnModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(OwnModule(), path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

HRESULT GetClassObject(const ComLibrary& library, REFCLSID classWanted, REFIID interfaceWanted,
                       void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  const auto found = std::ranges::find_if(
      library.classes, [&](const ComClass& offered) { return IsEqualGUID(offered.identifier, classWanted); });
  if (found == library.classes.end()) return CLASS_E_CLASSNOTAVAILABLE;
  const auto factory = ComPtr<ClassFactory>::Adopt(new (std::nothrow) ClassFactory(*found));
  return factory ? factory->QueryInterface(interfaceWanted, object) : E_OUTOFMEMORY;
}

HRESULT CanUnloadNow() noexcept {
  return usesOfLibrary == 0 ? S_OK : S_FALSE;
}

}  // namespace quorvel::windows
