#include "console_windows/HistorySession.h"

#include <iostream>

#include "console_core/FirstView.h"
#include "console_core/ReportData.h"
#include "console_core/ReportHtml.h"
#include "console_windows/ReportFile.h"
#include "platform/Error.h"

namespace quorvel::console {

ConsolePlatform::ConsolePlatform(ConsoleWindow& window, Audience audience)
    : reading_(window.reading()), audience_(audience) {
  SetOwner(window.window());
  SetHost(window.statusBar().HostObject());
}

void ConsolePlatform::ShowMessage(std::string_view text, std::string_view title) {
  if (audience_ == Audience::kWindow) return WindowsPlatform::ShowMessage(text, title);
  std::cerr << title << ": " << text << std::endl;
}

// A viewer shows the hourglass from where it begins to work.
void ConsolePlatform::SetMousePointer(MousePointer pointer) {
  WindowsPlatform::SetMousePointer(pointer);
  if (pointer == MousePointer::kHourglass) reading_.Begin();
}

HistorySession::HistorySession(ConsoleWindow& window, tlFromType fromType, std::int32_t processId, Audience audience)
    : window_(window),
      platform_(window, audience),
      errors_(platform_),
      control_(platform_, hub_),
      viewer_(control_, window.window()),
      host_(window, viewer_, platform_, hub_) {
  window_.Place(viewer_);
  hub_.SetProgress([this](const hub::QueryProgress& progress) { window_.reading().Show(progress); });
  window_.SetCommands(
      {[this](const std::string& url) { OpenHistory(url); }, [this](tlFromType chosen) { OpenAs(chosen); }});
  control_.p_FromType(fromType);
  control_.p_ProcessId(processId);
}

HistorySession::~HistorySession() {
  window_.Remove();
}

bool HistorySession::OpenHistory(const std::string& url) {
  bool shown = false;
  datasource::Reporting(errors_, "Quorvel: console.OpenHistory", [&] {
    Show(url);
    shown = true;
  });
  return shown;
}

void HistorySession::Show(const std::string& url) {
  const std::int32_t before = control_.p_Connect();
  const std::int32_t opened = hub_.OpenConnection(url);
  control_.p_Connect(opened);
  try {
    BuildFirstView(control_);
  } catch (...) {
    control_.p_Connect(before);
    hub_.CloseConnection(opened);
    throw;
  }
  if (before >= 0) hub_.CloseConnection(before);
  window_.ShowHistoryName(url);
}

void HistorySession::OpenAs(tlFromType fromType) {
  datasource::Reporting(errors_, "Quorvel: console.OpenAs", [&] {
    control_.p_FromType(fromType);
    if (control_.p_Connect() >= 0) BuildFirstView(control_);
  });
}

bool HistorySession::ChooseTab(const std::string& caption) {
  bool chosen = false;
  datasource::Reporting(errors_, "Quorvel: console.ChooseTab", [&] {
    widgets::TabStrip& strip = control_.controls().sstProcessLog;
    for (std::size_t i = 0; i < strip.tabs().size(); ++i) {
      if (strip.tabs()[i].caption != caption || !strip.tabs()[i].visible) continue;
      strip.SetCurrent(i);
      control_.sstProcessLog_Click();
      chosen = true;
      return;
    }
    throw Error(SystemError::kInvalidCall, "There is no tab \"" + caption + "\" that can be chosen");
  });
  return chosen;
}

bool HistorySession::WriteReportOf(const std::string& keys, const std::filesystem::path& file) {
  bool written = false;
  datasource::Reporting(errors_, "Quorvel: console.WriteReport", [&] {
    const ReportData data = CollectReport(hub_, control_.p_Connect(), platform_, keys);
    SaveReport(WriteReport(data, platform_), file);
    written = true;
  });
  return written;
}

}  // namespace quorvel::console
