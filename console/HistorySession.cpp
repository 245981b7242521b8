#include "console/HistorySession.h"

#include <QTabBar>
#include <iostream>

#include "platform/Error.h"
#include "qt/Convert.h"

namespace quorvel::console {

void ConsolePlatform::ShowMessage(std::string_view text, std::string_view title) {
  if (audience_ != Audience::kWindow) std::cerr << title << ": " << text << std::endl;
  if (audience_ != Audience::kTerminal) QtPlatform::ShowMessage(text, title);
}

HistorySession::HistorySession(ConsoleWindow& window, tlFromType fromType, std::int32_t processId, Audience audience)
    : window_(window),
      platform_(window, audience),
      errors_(platform_),
      viewer_(new qt::ProcessLogWidget(hub_, platform_, &window)) {
  window_.Place(viewer_);
  window_.SetOpenHistory([this](const QString& url) { OpenHistory(url); });
  viewer_->control().p_FromType(fromType);
  viewer_->control().p_ProcessId(processId);
}

HistorySession::~HistorySession() {
  window_.SetOpenHistory({});
  // It reads through the hub.
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
    control.m_GetLogByProcess();
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

}  // namespace quorvel::console
