// Commands for runs: the execution report, and the request to stop.
#include <string>
#include <unordered_set>
#include <vector>

#include "control/Entry.h"
#include "datasource/Current.h"
#include "list/Classification.h"
#include "list/RowFacts.h"
#include "list/RunOutcome.h"
#include "util/PublicFunctions.h"

namespace quorvel {
namespace {

std::string NotStoppedText(std::size_t refused, std::size_t selected) {
  if (selected == 1) return "The selected row stands for no execution that is running.";
  return std::to_string(refused) + " of the " + std::to_string(selected) +
         " selected rows stand for no execution that is running, and were not asked to stop.";
}

}  // namespace

void ucProcessLog::mnu_report_Click() {
  Handle("Quorvel: ucProcessLog.mnu_report_Click", [&] {
    f_strCurrentProcessIdList.clear();
    for (const std::string& run : RunsToReport()) {
      f_strCurrentProcessIdList.append(f_strCurrentProcessIdList.empty() ? "" : ";").append(run);
    }
    if (f_strCurrentProcessIdList.empty()) return ShowNotice("Select the executions to report on");
    toTell_.emplace_back([this, runs = f_strCurrentProcessIdList] { Raise(&HostEvents::PrintReport, runs); });
  });
}

std::vector<std::string> ucProcessLog::RunsToReport() const {
  const widgets::ListView& list = controls_.lvMotherList;
  const widgets::TreeView& tree = controls_.tvMotherList;
  const std::string ofNode =
      tree.Selected() == widgets::NodeId::kNone ? std::string() : list::RunKeyIn(tree.Key(tree.Selected()));
  // Below a run all rows are of that run.
  if (!ofNode.empty()) return {ofNode};
  std::vector<std::string> runs;
  std::unordered_set<std::string> seen;
  std::string key;
  for (const widgets::RowRange range : list.Selection().ranges()) {
    for (std::size_t row = range.first; row < range.last; ++row) {
      key.clear();
      list.AppendKey(row, key);
      std::string run = list::RunKeyIn(key);
      if (!run.empty() && seen.insert(run).second) runs.push_back(std::move(run));
    }
  }
  return runs;
}

void ucProcessLog::mnu_stop_execution_Click() {
  Handle("Quorvel: ucProcessLog.mnu_stop_execution_Click", [&] {
    const std::size_t selected = controls_.lvMotherList.Selection().Count();
    if (selected == 0) return;
    const std::size_t stopped = StopRuns(SelectedRunningRuns());
    if (stopped < selected) {
      platform_.ShowMessage(NotStoppedText(selected - stopped, selected), datasource::kProductTitle);
    }
  });
}

// What a row's icon says is what the user saw when choosing; a run that ended since is the component's to refuse.
std::vector<std::size_t> ucProcessLog::SelectedRunningRuns() const {
  const widgets::ListView& list = controls_.lvMotherList;
  std::vector<std::size_t> rows;
  for (const widgets::RowRange range : list.Selection().ranges()) {
    for (std::size_t row = range.first; row < range.last; ++row) {
      if (list::IsRunningImage(list.Icon(row)) && list::IsCurrentProcessName(list.Key(row))) rows.push_back(row);
    }
  }
  return rows;
}

std::size_t ucProcessLog::StopRuns(const std::vector<std::size_t>& rows) {
  constexpr std::int32_t kFlagField = 3;
  constexpr std::int32_t kRunField = 4;
  if (rows.empty()) return 0;
  // Made for this one command: nothing of them is kept.
  const auto current = datasource::CreateRecordSource<datasource::Current>(factory_, f_strServerName);
  const auto labels = datasource::CreateRecordSource<datasource::Labels>(factory_, f_strServerName);
  std::size_t stopped = 0;
  for (const std::size_t row : rows) {
    const std::string key = controls_.lvMotherList.Key(row);
    const std::int32_t run = util::IdentifiantNumber(key, kRunField);
    const bool onStation = util::IdentifiantNumber(key, kFlagField) != 0;
    std::int32_t result = 0;
    current->StopExecution(f_lngConnect, onStation, run, "", result);
    if (result != 0) continue;
    ++stopped;
    labels->NotifyStopRequest(f_lngConnect, f_strServerName, run, result);
  }
  return stopped;
}

}  // namespace quorvel
