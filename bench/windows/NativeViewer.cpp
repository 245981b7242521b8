#include "NativeViewer.h"

#include <commctrl.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "Measure.h"
#include "windows/ListPane.h"
#include "windows/TreePane.h"
#include "windows/Window.h"

namespace quorvel::bench {
namespace {

void HandleMessages() {
  for (MSG message{}; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace

MessageRecorder::MessageRecorder(HWND window)
    : window_(window), ear_(window, [this](UINT message, WPARAM wParam, LPARAM) { return Hear(message, wParam); }) {}

std::optional<LRESULT> MessageRecorder::Hear(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_PAINT:
      ++sent_.paints;
      break;
    case WM_SETREDRAW:
      redraws_ = wParam != FALSE;
      break;
    case WM_ERASEBKGND:
      ++sent_.erasures;
      break;
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case TVM_INSERTITEMA:
    case TVM_INSERTITEMW:
      ++sent_.insertions;
      if (redraws_ && IsWindowVisible(window_) != FALSE) ++sent_.shownInsertions;
      break;
    default:
      break;
  }
  return std::nullopt;
}

NativeViewer::NativeViewer(const std::filesystem::path& history)
    : control_(platform_, hub_),
      form_(CreateWindowExW(0, L"#32770", L"bench", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, 1100, 700, nullptr,
                            nullptr, windows::Module(), nullptr)) {
  viewer_.emplace(control_, form_.get());
  MoveWindow(viewer_->window(), 0, 0, 1080, 660, FALSE);
  ShowWindow(form_.get(), SW_SHOW);
  tree_.emplace(viewer_->tree().window());
  list_.emplace(viewer_->list().window());
  const std::u8string path = history.u8string();
  control_.p_Connect(hub_.OpenConnection("sqlite:" + std::string(path.begin(), path.end())));
  control_.p_FromType(tlFromType::tlOneProcess);
  UntilPainted(*tree_, [&] { control_.m_GetLogByProcess(); });
  // The first request has read the installation's own period.
  ProcessLogControls& options = control_.controls();
  options.cboState.Select(*options.cboState.RowOfText("All"));
  options.dtpDate.SetValue(DateFromCivil({2025, 11, 1}));
  options.txtDuring.SetText("24");
  options.cboDuringUnit.Select(*options.cboDuringUnit.RowOfText("Months"));
  HandleMessages();
}

double NativeViewer::ShowProcesses() {
  return UntilPainted(*tree_, [&] { control_.m_GetLogByProcess(); });
}

double NativeViewer::Click(widgets::NodeId node) {
  return UntilPainted(*list_, [&] { control_.tvMotherList_NodeClick(node); });
}

double NativeViewer::UntilPainted(MessageRecorder& pane, const std::function<void()>& gesture) {
  constexpr std::chrono::seconds kPatience{30};
  HandleMessages();
  pane.Forget();
  return Seconds([&] {
    const auto start = std::chrono::steady_clock::now();
    gesture();
    while (pane.sent().paints == 0) {
      HandleMessages();
      if (std::chrono::steady_clock::now() - start < kPatience) continue;
      std::fprintf(stderr, "Nothing was painted\n");
      std::exit(2);
    }
    HandleMessages();
  });
}

}  // namespace quorvel::bench
