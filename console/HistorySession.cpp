#include "console/HistorySession.h"

#include <QTabBar>
#include <iostream>

#include "console/ReportPages.h"
#include "console_core/FirstView.h"
#include "console_core/ReportData.h"
#include "console_core/ReportHtml.h"
#include "platform/Error.h"
#include "qt/Convert.h"

namespace quorvel::console {

void ConsolePlatform::ShowMessage(std::string_view text, std::string_view title) {
  if (audience_ != Audience::kWindow) std::cerr << title << ": " << text << std::endl;
  if (audience_ != Audience::kTerminal) QtPlatform::ShowMessage(text, title);
}

// A viewer shows the hourglass from where it begins to work.
void ConsolePlatform::SetMousePointer(MousePointer pointer) {
  QtPlatform::SetMousePointer(pointer);
  if (pointer == MousePointer::kHourglass) reading_.Begin();
}

HistorySession::HistorySession(ConsoleWindow& window, tlFromType fromType, std::int32_t processId, Audience audience)
    : window_(window),
      platform_(window, audience),
      errors_(platform_),
      viewer_(new qt::ProcessLogWidget(hub_, platform_, &window)),
      host_(std::make_unique<ViewerHost>(window, *viewer_, platform_, hub_)) {
  window_.Place(viewer_);
  hub_.SetProgress([this](const hub::QueryProgress& progress) { window_.reading().Show(progress); });
  window_.SetOpenHistory([this](const QString& url) { OpenHistory(url); });
  viewer_->control().p_FromType(fromType);
  viewer_->control().p_ProcessId(processId);
}

HistorySession::~HistorySession() {
  window_.SetOpenHistory({});
  // It reads through the hub, and its report windows show errors through its host.
  delete viewer_;
}

bool HistorySession::OpenHistory(const QString& url) {
  bool shown = false;
  datasource::Reporting(errors_, "Quorvel: console.OpenHistory", [&] {
    Show(url);
    shown = true;
  });
  return shown;
}

void HistorySession::Show(const QString& url) {
  ucProcessLog& control = viewer_->control();
  const std::int32_t before = control.p_Connect();
  const std::int32_t opened = hub_.OpenConnection(qt::FromQt(url));
  control.p_Connect(opened);
  try {
    BuildFirstView(control);
  } catch (...) {
    control.p_Connect(before);
    hub_.CloseConnection(opened);
    throw;
  }
  if (before >= 0) hub_.CloseConnection(before);
  window_.ShowHistoryName(url);
}

bool HistorySession::ChooseTab(const QString& caption) {
  bool chosen = false;
  datasource::Reporting(errors_, "Quorvel: console.ChooseTab", [&] {
    auto* const tabs = viewer_->findChild<QTabBar*>("sstProcessLog");
    for (int i = 0; i < tabs->count(); ++i) {
      if (tabs->tabText(i) != caption || !tabs->isTabVisible(i) || !tabs->isTabEnabled(i)) continue;
      tabs->setCurrentIndex(i);
      chosen = true;
      return;
    }
    throw Error(SystemError::kInvalidCall, "There is no tab \"" + qt::FromQt(caption) + "\" that can be chosen");
  });
  return chosen;
}

bool HistorySession::WriteReportOf(const QString& keys, const QString& file) {
  bool written = false;
  datasource::Reporting(errors_, "Quorvel: console.WriteReport", [&] {
    const ReportData data = CollectReport(hub_, viewer_->control().p_Connect(), platform_, qt::FromQt(keys));
    SaveReport(WriteReport(data, platform_), file);
    written = true;
  });
  return written;
}

}  // namespace quorvel::console
