#include "windows/Clipboard.h"

#include <memory>
#include <new>
#include <string>
#include <type_traits>

#include "platform/Error.h"
#include "platform/windows/ComError.h"
#include "platform/windows/WideText.h"
#include "windows/Handles.h"

namespace quorvel::windows {
namespace {

[[noreturn]] void RaiseSystemError(const char* what, DWORD error = GetLastError()) {
  const HRESULT result = HRESULT_FROM_WIN32(error);
  throw Error(SystemError::kPermissionDenied, std::string(what) + ": " + DescriptionOf(result));
}

// What is put on a clipboard that nobody owns is refused.
UniqueWindow MakeOwner() {
  return UniqueWindow(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr));
}

// The clipboard, emptied, for this program alone.
class EmptiedClipboard {
 public:
  explicit EmptiedClipboard(HWND owner) {
    if (IsWindow(owner) == FALSE) standIn_ = MakeOwner();
    Open(standIn_ ? standIn_.get() : owner);
    if (EmptyClipboard() != FALSE) return;
    const DWORD error = GetLastError();
    CloseClipboard();
    RaiseSystemError("The clipboard cannot be emptied", error);
  }
  ~EmptiedClipboard() { CloseClipboard(); }
  EmptiedClipboard(const EmptiedClipboard&) = delete;
  EmptiedClipboard& operator=(const EmptiedClipboard&) = delete;

 private:
  // Programs that watch the clipboard hold it for moments after each change.
  static void Open(HWND owner) {
    constexpr int kTries = 10;
    constexpr DWORD kPause = 20;  // milliseconds
    for (int i = 0; OpenClipboard(owner) == FALSE; ++i) {
      if (i == kTries) RaiseSystemError("The clipboard cannot be opened");
      Sleep(kPause);
    }
  }

  UniqueWindow standIn_;
};

struct GlobalRelease {
  void operator()(HGLOBAL memory) const { GlobalFree(memory); }
};
using UniqueGlobal = std::unique_ptr<std::remove_pointer_t<HGLOBAL>, GlobalRelease>;

UniqueGlobal MemoryOf(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  UniqueGlobal memory(GlobalAlloc(GMEM_MOVEABLE, bytes));
  void* const to = memory ? GlobalLock(memory.get()) : nullptr;
  if (to == nullptr) throw std::bad_alloc();
  CopyMemory(to, text.c_str(), bytes);
  GlobalUnlock(memory.get());
  return memory;
}

}  // namespace

void EmptyClipboardOf(HWND owner) {
  const EmptiedClipboard clipboard(owner);
}

void SetClipboardTextOf(HWND owner, std::string_view text) {
  UniqueGlobal memory = MemoryOf(ToWide(text));
  const EmptiedClipboard clipboard(owner);
  if (SetClipboardData(CF_UNICODETEXT, memory.get()) == nullptr) RaiseSystemError("The clipboard takes no text");
  static_cast<void>(memory.release());  // the clipboard's own now
}

}  // namespace quorvel::windows
