#include "windows/WindowsPlatform.h"

#include <oleauto.h>

#include "platform/Error.h"
#include "platform/windows/ComError.h"
#include "platform/windows/ComValues.h"
#include "platform/windows/LateBound.h"
#include "platform/windows/WideText.h"
#include "windows/Clipboard.h"
#include "windows/ShellOpen.h"

namespace quorvel::windows {
namespace {

// Of the platforms of this thread, those that show the hourglass.
thread_local int hourglasses = 0;

// Over the dialog that is open, if one is: behind it nobody could answer.
HWND OwnerOfMessage(HWND owner) {
  const HWND top = GetAncestor(owner, GA_ROOT);
  if (top == nullptr) return GetActiveWindow();
  const HWND popup = GetLastActivePopup(top);
  return IsWindowVisible(popup) != FALSE && IsWindowEnabled(popup) != FALSE ? popup : top;
}

// A window under the pointer hears of it when the pointer moves, and not before.
void LetWindowChoosePointer() {
  POINT place{};
  if (GetCursorPos(&place) == FALSE) return;
  const HWND window = WindowFromPoint(place);
  if (GetWindowThreadProcessId(window, nullptr) != GetCurrentThreadId()) return;
  const LRESULT part = SendMessageW(window, WM_NCHITTEST, 0, MAKELPARAM(place.x, place.y));
  SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(part, WM_MOUSEMOVE));
}

LateBound FirstPanel(const ComPtr<IDispatch>& host) {
  constexpr std::int32_t kFirst = 1;
  try {
    return LateBound(host)
        .Object(L"Parent")
        .Object(L"stStatusBar")
        .Object(L"Panels")
        .Object(L"Item", {Variant(kFirst)});
  } catch (const Error&) {
    throw Error(SystemError::kUnsupportedMember, "The host has no status bar stStatusBar");
  }
}

ComPtr<IDispatch> MakeFileSystemObject() {
  CLSID identity{};
  ComPtr<IDispatch> made;
  Check(CLSIDFromProgID(L"Scripting.FileSystemObject", &identity), "Scripting.FileSystemObject");
  Check(CoCreateInstance(identity, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, made.PutVoid()),
        "Scripting.FileSystemObject");
  return made;
}

}  // namespace

bool KeepHourglass() {
  if (hourglasses == 0) return false;
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  return true;
}

WindowsPlatform::~WindowsPlatform() {
  WindowsPlatform::SetMousePointer(MousePointer::kDefault);
}

void WindowsPlatform::ShowMessage(std::string_view text, std::string_view title) {
  const std::wstring wideText = ToWide(text);
  const std::wstring wideTitle = ToWide(title);
  // Nobody should look for a button with an hourglass.
  const MousePointer pointer = pointer_;
  WindowsPlatform::SetMousePointer(MousePointer::kDefault);
  MessageBoxW(OwnerOfMessage(owner_), wideText.c_str(), wideTitle.c_str(), MB_OK);
  WindowsPlatform::SetMousePointer(pointer);
}

void WindowsPlatform::SetMousePointer(MousePointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  hourglasses += pointer == MousePointer::kHourglass ? 1 : -1;
  if (!KeepHourglass()) LetWindowChoosePointer();
}

void WindowsPlatform::ClearClipboard() {
  EmptyClipboardOf(owner_);
}

void WindowsPlatform::SetClipboardText(std::string_view text) {
  SetClipboardTextOf(owner_, text);
}

void WindowsPlatform::OpenFile(const std::filesystem::path& file) {
  OpenInShell(owner_, file);
}

void WindowsPlatform::OpenFileWith(const std::filesystem::path& file) {
  OpenWithChosenProgram(file);
}

// Keys are for what is on the screen now: but for Escape, those that come while the program works do nothing. All other
// input stays where it waits.
bool WindowsPlatform::IsEscapePressed() {
  bool pressed = false;
  MSG message{};
  while (PeekMessageW(&message, nullptr, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {  // comes whatever is asked for
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    pressed |= message.wParam == VK_ESCAPE;
  }
  return pressed;
}

void WindowsPlatform::SetHostStatusText(std::string_view text) {
  FirstPanel(host_).Put(L"Text", Variant(text));
}

std::string WindowsPlatform::FormatDate(DateValue date, DateFormat format) const {
  const auto civil = CivilFromDate(date);
  if (!civil) return {};
  // By itself the system leaves out a time of day that is midnight, and the day that stands for none.
  const ULONG parts = format == DateFormat::kShortDate ? VAR_DATEVALUEONLY : 0;
  Bstr text;
  if (FAILED(VarBstrFromDate(DateFromCivil(*civil), LOCALE_USER_DEFAULT, parts, text.Put()))) return {};
  return text.Text();
}

std::optional<DateValue> WindowsPlatform::ParseDate(std::string_view text) const {
  DATE date = 0;
  std::wstring wide = ToWide(text);
  if (FAILED(VarDateFromStr(wide.data(), LOCALE_USER_DEFAULT, 0, &date)) || !CivilFromDate(date)) return std::nullopt;
  return date;
}

std::filesystem::path WindowsPlatform::TemporaryFolder() const {
  constexpr std::int32_t kTemporaryFolder = 2;
  try {
    const LateBound fileSystem(MakeFileSystemObject());
    const LateBound folder(fileSystem.Call(L"GetSpecialFolder", {Variant(kTemporaryFolder)}).ToObject());
    return ToWide(folder.Get(L"Path").ToText());
  } catch (const Error&) {
    return StandardPlatform::TemporaryFolder();
  }
}

}  // namespace quorvel::windows
