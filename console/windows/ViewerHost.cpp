#include "console_windows/ViewerHost.h"

#include "console_core/ReportData.h"
#include "console_core/ReportHtml.h"
#include "console_core/RunContext.h"
#include "console_windows/ReportFile.h"
#include "control/Hourglass.h"
#include "windows/TreePane.h"

namespace quorvel::console {

ViewerHost::ViewerHost(ConsoleWindow& window, windows::ProcessLogWindow& viewer, Platform& platform,
                       datasource::RecordSourceFactory& factory)
    : window_(window), viewer_(viewer), platform_(platform), factory_(factory), errors_(platform) {
  viewer_.control().Subscribe(*this);
}

ViewerHost::~ViewerHost() {
  viewer_.control().Unsubscribe(*this);
}

void ViewerHost::PrintReport(const std::string& f_strCurrentProcessIdList) {
  datasource::Reporting(errors_, "Quorvel: console.PrintReport", [&] {
    const Hourglass hourglass(platform_);
    const std::int32_t connection = viewer_.control().p_Connect();
    const ReportData data = CollectReport(factory_, connection, platform_, f_strCurrentProcessIdList);
    const std::filesystem::path file = platform_.TemporaryFolder() / "Quorvel execution report.html";
    SaveReport(WriteReport(data, platform_), file);
    platform_.OpenFile(file);
  });
}

void ViewerHost::UpdateAlarm() {
  window_.ShowNote("Alarms were changed");
}

void ViewerHost::GoToLog(const std::string& f_strKey) {
  datasource::Reporting(errors_, "Quorvel: console.GoToLog", [&] {
    const std::string run = RunOfContext(f_strKey);
    if (run.empty()) return window_.ShowNote("There is nothing to go to");
    const bool shown = GoToRun(viewer_.control(), factory_, run);
    window_.ShowNote(shown ? "" : "The execution is not shown here, or not in the history any more");
    if (shown) SetFocus(viewer_.tree().window());
  });
}

}  // namespace quorvel::console
