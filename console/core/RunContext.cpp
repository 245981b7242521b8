#include "console_core/RunContext.h"

#include <algorithm>

#include "control/Routing.h"
#include "datasource/ProcessLog.h"
#include "list/AlarmList.h"
#include "list/RowFacts.h"
#include "util/PublicFunctions.h"

namespace quorvel::console {
namespace {

// A viewer that was opened for something else, alarms for example, gets the tabs of a viewer that has the view.
void OfferProcesses(ucProcessLog& control) {
  const auto& tabs = control.controls().sstProcessLog.tabs();
  const auto tab = std::ranges::find(tabs, NameOf(View::kProcesses), &widgets::Tab::caption);
  if (tab == tabs.end() || !tab->visible) control.p_FromType(tlFromType::tlOneProcess);
}

void BuildAt(ucProcessLog& control, std::string_view runKey) {
  const std::string before = control.p_Key();
  control.p_Key(runKey);
  try {
    control.m_GetLogByProcess();
  } catch (...) {
    control.p_Key(before);
    throw;
  }
  control.p_Key(before);
}

bool IsSelected(const ucProcessLog& control, std::string_view runKey) {
  const widgets::TreeView& tree = control.controls().tvMotherList;
  return tree.Selected() != widgets::NodeId::kNone && tree.Key(tree.Selected()) == runKey;
}

// 0 when there is no such run, or it has no date.
DateValue StartOf(datasource::RecordSourceFactory& factory, std::int32_t connection, std::int32_t run) {
  constexpr std::int32_t kReserved = 0;
  const auto source = datasource::CreateRecordSource<datasource::ProcessLog>(factory, "");
  std::int32_t status = 0;
  source->GetProcessLogDetail(connection, run, kReserved, kReserved, status);
  return status == 0 ? source->Detail().dtStartDate : 0;
}

// As a user would: every state, one day.
void ShowDayOf(ucProcessLog& control, DateValue start) {
  constexpr std::size_t kDays = 1;
  ProcessLogControls& options = control.controls();
  if (const auto all = options.cboState.RowOfText("All")) options.cboState.Select(*all);
  control.cboState_Click();
  options.dtpDate.SetValue(DatePart(start));
  options.dtpHour.SetValue(0);
  options.txtDuring.SetText("1");
  options.cboDuringUnit.Select(kDays);
  control.dtpDate_Change();
}

}  // namespace

std::string RunOfContext(std::string_view key) {
  return list::RunKeyIn(key);
}

bool GoToRun(ucProcessLog& control, datasource::RecordSourceFactory& factory, std::string_view runKey) {
  constexpr std::int32_t kRunField = 4;
  OfferProcesses(control);
  BuildAt(control, runKey);
  if (IsSelected(control, runKey)) return true;
  const DateValue start = StartOf(factory, control.p_Connect(), util::IdentifiantNumber(runKey, kRunField));
  if (start == 0) return false;
  ShowDayOf(control, start);
  BuildAt(control, runKey);
  return IsSelected(control, runKey);
}

}  // namespace quorvel::console
