// The event handlers of the options panel.
#include "control/Entry.h"

namespace quorvel {

using datasource::Reporting;

void ucProcessLog::cboState_Click() {
  Reporting(errors_, "Quorvel: ucProcessLog.cboState_Click", [&] {
    const auto state = StateFilterOf(controls_.cboState.selectedText());
    if (state) ControlsVisible(static_cast<std::int32_t>(*state));
  });
}

void ucProcessLog::cboDuringUnit_Click() {
  Reporting(errors_, "Quorvel: ucProcessLog.cboDuringUnit_Click", [&] { LimitPeriod(controls_); });
  PeriodChanged("Quorvel: ucProcessLog.cboDuringUnit_Click");
}

void ucProcessLog::dtpDate_Change() {
  PeriodChanged("Quorvel: ucProcessLog.dtpDate_Change");
}

void ucProcessLog::dtpHour_Change() {
  PeriodChanged("Quorvel: ucProcessLog.dtpHour_Change");
}

void ucProcessLog::txtDuring_Change() {
  PeriodChanged("Quorvel: ucProcessLog.txtDuring_Change");
}

void ucProcessLog::PeriodChanged(std::string_view label) {
  Reporting(errors_, label, [&] {
    periodSet_ = true;
    ShowPeriodEnd(controls_, platform_);
  });
}

void ucProcessLog::updDuring_UpClick() {
  Reporting(errors_, "Quorvel: ucProcessLog.updDuring_UpClick", [&] { StepPeriod(controls_, 1); });
  PeriodChanged("Quorvel: ucProcessLog.updDuring_UpClick");
}

void ucProcessLog::updDuring_DownClick() {
  Reporting(errors_, "Quorvel: ucProcessLog.updDuring_DownClick", [&] { StepPeriod(controls_, -1); });
  PeriodChanged("Quorvel: ucProcessLog.updDuring_DownClick");
}

void ucProcessLog::updGroupBy_UpClick() {
  Reporting(errors_, "Quorvel: ucProcessLog.updGroupBy_UpClick", [&] { MoveGroup(controls_, true); });
}

void ucProcessLog::updGroupBy_DownClick() {
  Reporting(errors_, "Quorvel: ucProcessLog.updGroupBy_DownClick", [&] { MoveGroup(controls_, false); });
}

// The tree stays as it is: both say which rows a list holds.
void ucProcessLog::chkCommunicationsFilter_Click() {
  Handle("Quorvel: ucProcessLog.chkCommunicationsFilter_Click", [&] { ClickSelectedAgain(); });
}

void ucProcessLog::chkAlarmFilter_Click() {
  Handle("Quorvel: ucProcessLog.chkAlarmFilter_Click", [&] { ClickSelectedAgain(); });
}

void ucProcessLog::ClickSelectedAgain() {
  const widgets::NodeId node = controls_.tvMotherList.Selected();
  if (node != widgets::NodeId::kNone) GoTo(node);
}

void ucProcessLog::chkGroupByDay_Click() {
  Handle("Quorvel: ucProcessLog.chkGroupByDay_Click", [&] { BuildAgain(); });
}

void ucProcessLog::cmdRefresh_Click() {
  Handle("Quorvel: ucProcessLog.cmdRefresh_Click", [&] { BuildAgain(); });
}

}  // namespace quorvel
