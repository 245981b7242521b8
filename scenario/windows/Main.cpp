// Runs a scenario on the controls of Windows: quorvel_scenario_windows [--sources com] [--history URL] FILE.
#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "scenario/ProgramMain.h"
#include "scenario_windows/ScenarioOverCom.h"
#include "scenario_windows/ScenarioWindows.h"
#include "windows/Handles.h"

namespace {

// Where a debugger is set up, a crash may end with the exit code of success.
constexpr UINT kCrashed = 99;

LONG WINAPI EndCrashed(EXCEPTION_POINTERS* /*what*/) {
  TerminateProcess(GetCurrentProcess(), kCrashed);
  return EXCEPTION_EXECUTE_HANDLER;
}

// Like other hosts it gives the focus back to the field that had it before another window was used.
LRESULT CALLBACK Form(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_ACTIVATE) return DefWindowProcW(window, message, wParam, lParam);
  if (LOWORD(wParam) == WA_INACTIVE) {
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(GetFocus()));
  } else {
    const auto field = reinterpret_cast<HWND>(GetWindowLongPtrW(window, GWLP_USERDATA));
    SetFocus(IsWindow(field) != FALSE ? field : window);
  }
  return 0;
}

quorvel::windows::UniqueWindow MakeForm() {
  WNDCLASSW form{};
  form.lpfnWndProc = &Form;
  form.hInstance = GetModuleHandleW(nullptr);
  form.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  form.lpszClassName = L"QuorvelScenario";
  RegisterClassW(&form);
  return quorvel::windows::UniqueWindow(CreateWindowExW(0, form.lpszClassName, L"Scenario",
                                                        WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE, 0, 0, 1500,
                                                        1000, nullptr, nullptr, form.hInstance, nullptr));
}

}  // namespace

int main(int argc, char** argv) {
  SetUnhandledExceptionFilter(EndCrashed);
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES};
  InitCommonControlsEx(&classes);
  const quorvel::windows::UniqueWindow form = MakeForm();
  const quorvel::windows::UniqueWindow status(CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE, 0, 0, 0,
                                                              0, form.get(), nullptr, GetModuleHandleW(nullptr),
                                                              nullptr));
  if (!form || !status) {
    std::cerr << "No window for the viewers\n";
    return 2;
  }
  std::vector<std::string> arguments{argv + 1, argv + argc};
  const bool overCom = arguments.size() > 2 && arguments[0] == "--sources" && arguments[1] == "com";
  std::unique_ptr<quorvel::scenario::ScenarioWindows> port;
  if (overCom) {
    arguments.erase(arguments.begin(), arguments.begin() + 2);
    port = std::make_unique<quorvel::scenario::ScenarioOverCom>(form.get(), status.get());
  } else {
    port = std::make_unique<quorvel::scenario::ScenarioWindows>(form.get(), status.get());
  }
  return quorvel::scenario::ProgramMain(*port, arguments, std::cout, std::cerr);
}
