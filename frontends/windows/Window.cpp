#include "windows/Window.h"

#include <commctrl.h>

#include <utility>

#include "windows/Guard.h"

namespace quorvel::windows {
namespace {

constexpr wchar_t kClass[] = L"QuorvelWindow";

// A library must take its classes along when it is unloaded.
class WindowClass {
 public:
  explicit WindowClass(WNDPROC procedure) {
    WNDCLASSEXW made{};
    made.cbSize = sizeof(made);
    made.style = CS_DBLCLKS;
    made.lpfnWndProc = procedure;
    made.hInstance = Module();
    made.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));  // the arrow
    made.lpszClassName = kClass;
    RegisterClassExW(&made);
  }
  ~WindowClass() { UnregisterClassW(kClass, Module()); }
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;
};

}  // namespace

HINSTANCE Module() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&Module), &module);
  return module;
}

HWND NameNext(HWND parent, const wchar_t* name) {
  CreateWindowExW(0, WC_STATICW, name, WS_CHILD, 0, 0, 0, 0, parent, nullptr, Module(), nullptr);
  return parent;
}

Window::Window(const Style& style, HWND parent) {
  static const WindowClass registered(Procedure);
  window_ = CreateWindowExW(style.extended, kClass, style.caption, style.style, 0, 0, 0, 0, parent, nullptr, Module(),
                            nullptr);
  if (window_ == nullptr) throw Error(SystemError::kOutOfMemory, "No window: " + std::to_string(GetLastError()));
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

void Window::End() {
  if (window_ == nullptr) return;
  const HWND window = std::exchange(window_, nullptr);
  SetWindowLongPtrW(window, GWLP_USERDATA, 0);
  DestroyWindow(window);
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const self = reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
  const auto handled = GuardedOr(std::optional<LRESULT>(), [&] { return self->Handle(message, wParam, lParam); });
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    self->window_ = nullptr;
  }
  return handled ? *handled : DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace quorvel::windows
