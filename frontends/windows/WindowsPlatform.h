// What the control asks of its surroundings, answered by Windows and by the object that hosts the control.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include "platform/StandardPlatform.h"
#include "platform/windows/ComPtr.h"

namespace quorvel::windows {

// Needs no window, so that it serves a control before its host activates it, and after.
class WindowsPlatform : public StandardPlatform {
 public:
  WindowsPlatform() = default;
  // Gives the default pointer back.
  ~WindowsPlatform() override;
  WindowsPlatform(const WindowsPlatform&) = delete;
  WindowsPlatform& operator=(const WindowsPlatform&) = delete;

  // Message boxes belong to the window at the top of `owner`, or to the dialog box that is open over it. Null: to the
  // active window of this thread.
  void SetOwner(HWND owner) { owner_ = owner; }

  // The object by which a host extends the control: its `Parent` is the form that may own a `stStatusBar`. Null: none.
  void SetHost(ComPtr<IDispatch> host) { host_ = std::move(host); }

  void ShowMessage(std::string_view text, std::string_view title) override;
  void SetMousePointer(MousePointer pointer) override;
  void ClearClipboard() override;
  void SetClipboardText(std::string_view text) override;
  void OpenFile(const std::filesystem::path& file) override;
  void OpenFileWith(const std::filesystem::path& file) override;
  bool IsEscapePressed() override;
  void SetHostStatusText(std::string_view text) override;
  std::string FormatDate(DateValue date, DateFormat format) const override;
  std::optional<DateValue> ParseDate(std::string_view text) const override;
  bool HasFixedDates() const override { return false; }
  // As the scripting file-system object names it, or Windows itself where that component is missing.
  std::filesystem::path TemporaryFolder() const override;

 private:
  HWND owner_ = nullptr;
  ComPtr<IDispatch> host_;
  MousePointer pointer_ = MousePointer::kDefault;
};

// The answer of a window to WM_SETCURSOR: while a platform of this thread shows the hourglass, it stays, and the result
// is true; otherwise the window chooses its pointer itself.
bool KeepHourglass();

}  // namespace quorvel::windows
