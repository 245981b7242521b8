#include "console/ScenarioRun.h"

#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "console/Console.h"
#include "console/ConsoleWindow.h"
#include "console/ReportPages.h"
#include "console/Subscription.h"
#include "console_core/ReportData.h"
#include "console_core/ReportHtml.h"
#include "console_core/ScriptRun.h"
#include "qt/Convert.h"
#include "scenario/Scenario.h"
#include "scenario_qt/ScenarioQt.h"

namespace quorvel::console {
namespace {

// Writes the reports that a viewer asks for to one file; the last one stays. What fails is said on the terminal.
class ReportFile final : public HostEvents {
 public:
  ReportFile(qt::ProcessLogWidget& viewer, const Platform& platform, datasource::RecordSourceFactory& factory,
             QString file)
      : viewer_(viewer), platform_(platform), factory_(factory), file_(std::move(file)), subscription_(viewer, *this) {}

  void PrintReport(const std::string& f_strCurrentProcessIdList) override {
    try {
      const std::int32_t connection = viewer_.control().p_Connect();
      const ReportData data = CollectReport(factory_, connection, platform_, f_strCurrentProcessIdList);
      SaveReport(WriteReport(data, platform_), file_);
    } catch (const std::exception& problem) {
      std::cerr << problem.what() << std::endl;
      failed_ = true;
    }
  }
  bool failed() const { return failed_; }

 private:
  qt::ProcessLogWidget& viewer_;
  const Platform& platform_;
  datasource::RecordSourceFactory& factory_;
  QString file_;
  bool failed_ = false;
  Subscription subscription_;
};

int ExitCode(bool ok) {
  return ok ? 0 : 1;
}

}  // namespace

int RunScenarioOnQt(const ConsoleOptions& options) {
  std::vector<std::unique_ptr<ConsoleWindow>> windows;
  std::vector<std::unique_ptr<ReportFile>> reports;
  scenario::ScenarioQt port([&](Platform& platform, datasource::RecordSourceFactory& factory) {
    auto& window = *windows.emplace_back(std::make_unique<ConsoleWindow>());
    auto* const viewer = new qt::ProcessLogWidget(factory, platform, &window);
    window.Place(viewer);
    if (!options.output.empty()) {
      reports.push_back(std::make_unique<ReportFile>(*viewer, platform, factory, qt::ToQt(options.output)));
    }
    window.resize(options.size.width, options.size.height);
    window.show();
    return viewer;
  });
  scenario::Scenario scenario(port);
  bool ok = RunScript(scenario, options);
  for (const auto& each : reports) ok = ok && !each->failed();
  if (!options.screenshot.empty() && !windows.empty()) {
    ok = WritePicture(*windows.back(), qt::ToQt(options.screenshot), qt::ToQt(options.part)) && ok;
  }
  return ExitCode(ok);
}

}  // namespace quorvel::console
