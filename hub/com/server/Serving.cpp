#include "hub_com/server/Serving.h"

#include <objbase.h>

#include <utility>
#include <vector>

#include "platform/windows/ComPtr.h"

namespace quorvel::hub_com {
namespace {

constexpr DWORD kLookMilliseconds = 500;
constexpr int kIdleLooks = 10;

// Calls come in on threads of the system: one that waits for SQLite holds up nobody who creates an object.
class ComThread {
 public:
  ComThread() : result_(CoInitializeEx(nullptr, COINIT_MULTITHREADED)) {}
  ~ComThread() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }
  ComThread(const ComThread&) = delete;
  ComThread& operator=(const ComThread&) = delete;

  bool started() const { return SUCCEEDED(result_); }

 private:
  HRESULT result_;
};

// The classes, offered from Offer on until this object goes.
class OfferedClasses {
 public:
  OfferedClasses() = default;
  ~OfferedClasses() {
    for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
  }
  OfferedClasses(const OfferedClasses&) = delete;
  OfferedClasses& operator=(const OfferedClasses&) = delete;

  bool Offer(const windows::ComLibrary& library) {
    for (const windows::ComClass& offered : library.classes) {
      windows::ComPtr<IUnknown> factory;
      DWORD cookie = 0;
      if (FAILED(windows::GetClassObject(library, offered.identifier, IID_IUnknown, factory.PutVoid())) ||
          FAILED(CoRegisterClassObject(offered.identifier, factory.get(), CLSCTX_LOCAL_SERVER,
                                       REGCLS_MULTIPLEUSE | REGCLS_SUSPENDED, &cookie))) {
        return false;
      }
      cookies_.push_back(cookie);
    }
    return SUCCEEDED(CoResumeClassObjects());
  }

 private:
  std::vector<DWORD> cookies_;
};

// Waits until there were no more uses than `unused` for a while, then lets no new one begin.
void WaitUntilUnused(long unused) {
  for (int idle = 0;;) {
    Sleep(kLookMilliseconds);
    idle = windows::LibraryUses() > unused ? 0 : idle + 1;
    if (idle < kIdleLooks) continue;
    CoSuspendClassObjects();
    if (windows::LibraryUses() <= unused) return;
    CoResumeClassObjects();
    idle = 0;
  }
}

}  // namespace

int Serve(const windows::ComLibrary& library) noexcept {
  try {
    const ComThread thread;
    OfferedClasses classes;
    if (!thread.started() || !classes.Offer(library)) return 1;
    // The factories themselves are uses.
    WaitUntilUnused(static_cast<long>(library.classes.size()));
    return 0;
  } catch (...) {
    return 1;
  }
}

}  // namespace quorvel::hub_com
