// The builders of the views: what is asked for, and what it becomes in the tree and the list.
#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "control/Entry.h"
#include "list/SystemList.h"
#include "tree/ConnectionTree.h"
#include "tree/ProcessTree.h"
#include "tree/UserTree.h"
#include "util/KeyPrefixes.h"

namespace quorvel {
namespace {

using datasource::Propagating;

constexpr std::int32_t kAny = -1;

// The procedure that builds a view, as support knows it.
std::string_view BuilderOf(View view) {
  static constexpr std::string_view kLabels[] = {
      "",
      "Quorvel: ucProcessLog.m_GetLogByProcess",
      "Quorvel: ucProcessLog.m_GetLogByUser",
      "Quorvel: ucProcessLog.m_GetLogByCommunication",
      "Quorvel: ucProcessLog.ListAllSystemsLogs",
      "Quorvel: ucProcessLog.m_GetLogByAlarms",
      "Quorvel: ucProcessLog.m_GetLogByBackup",
      "Quorvel: ucProcessLog.m_GetLogByImports",
  };
  return kLabels[static_cast<std::size_t>(view)];
}

enumLogsType LogsTypeOf(View view) {
  switch (view) {
    case View::kProcesses:
    case View::kUsers:
      return enumLogsType::enumProcessus;
    case View::kConnections:
      return enumLogsType::enumCommunication;
    case View::kImports:
      return enumLogsType::enumImports;
    default:
      return enumLogsType::enumAllLogsType;
  }
}

}  // namespace

void ucProcessLog::m_GetLogByProcess(bool refresh) {
  BuildForHost(View::kProcesses, refresh);
}

void ucProcessLog::m_GetLogByUser(bool refresh) {
  BuildForHost(View::kUsers, refresh);
}

void ucProcessLog::m_GetLogByCommunication(bool refresh) {
  BuildForHost(View::kConnections, refresh);
}

void ucProcessLog::m_GetLogByBackup(bool refresh) {
  BuildForHost(View::kBackups, refresh);
}

void ucProcessLog::m_GetLogByAlarms(bool refresh) {
  BuildForHost(View::kAlarms, refresh);
}

void ucProcessLog::m_GetLogByImports(std::int32_t& /*view*/, std::int32_t& importId, std::int32_t& /*passed*/) {
  f_lngImportId = importId;
  BuildForHost(View::kImports, false);
}

void ucProcessLog::BuildForHost(View view, bool refresh) {
  Build(BuilderOf(view), [&] {
    Standing standing = StandingFor(refresh);
    GoToTabOf(view);
    BuildView(view, std::move(standing));
  });
}

// A host finds what it built under the tab that is named after it, with the options of that tab. Where that tab is not
// shown, alarms and imports give the current one their name until another tab is clicked.
void ucProcessLog::GoToTabOf(View view) {
  widgets::TabStrip& strip = controls_.sstProcessLog;
  RestoreTabName();
  const auto tab = std::ranges::find(strip.tabs(), NameOf(view), &widgets::Tab::caption);
  if (tab != strip.tabs().end() && tab->visible) {
    strip.SetCurrent(static_cast<std::size_t>(tab - strip.tabs().begin()));
  } else if (view == View::kAlarms || view == View::kImports) {
    tabRenamed_ = RenamedTab{strip.current(), std::string(strip.currentCaption())};
    strip.SetCaption(strip.current(), NameOf(view));
  } else {
    return;
  }
  ShowOptionsOfTab();
}

void ucProcessLog::RestoreTabName() {
  if (tabRenamed_) controls_.sstProcessLog.SetCaption(tabRenamed_->tab, tabRenamed_->caption);
  tabRenamed_.reset();
}

void ucProcessLog::ShowOptionsOfTab() {
  InitStateListByTab();
  ControlsVisible(static_cast<std::int32_t>(StateFilterOf(controls_.cboState.selectedText()).value()));
}

void ucProcessLog::m_GetLogAll(StateFilter& state) {
  Build("Quorvel: ucProcessLog.m_GetLogAll", [&] { BuildAll(state, StandingFor(true)); });
}

void ucProcessLog::BuildAll(StateFilter state, Standing standing) {
  Propagating("Quorvel: ucProcessLog.m_GetLogAll", [&] {
    const Hourglass hourglass(platform_);
    const View view = ViewOfTab(f_tlFromType, controls_.sstProcessLog.currentCaption());
    if (view == View::kNone) return;
    Init();
    OptionsFilter filter = ReturnOptionsFilter(state, false);
    filter.state = state;
    ControlsVisible(static_cast<std::int32_t>(state));
    BuildTree(view, filter, std::move(standing));
  });
}

void ucProcessLog::BuildView(View view, Standing standing) {
  if (view == View::kNone) return;
  Propagating(BuilderOf(view), [&] {
    const Hourglass hourglass(platform_);
    Init();
    BuildTree(view, ReturnOptionsFilter(StateFilter::kAll, true), std::move(standing));
  });
}

// What a host has a one-process viewer for is the state: Refresh hands it on as it is chosen, and the other viewers
// take it from the panel.
void ucProcessLog::BuildAgain() {
  if (f_tlFromType == tlFromType::tlOneProcess) {
    BuildAll(StateFilterOf(controls_.cboState.selectedText()).value_or(StateFilter::kAll), StandingNow());
    return;
  }
  // The host's whole log list is the alarms view here, though its tab click builds nothing. So are alarms that a host
  // built under the tab of another view.
  const bool alarms = f_tlFromType == tlFromType::tlLogs || (tabRenamed_ && shown_.view == View::kAlarms);
  const bool imports = f_tlFromType != tlFromType::tlAllImports && tabRenamed_ && shown_.view == View::kImports;
  const View view = alarms    ? View::kAlarms
                    : imports ? View::kImports
                              : ViewOfTab(f_tlFromType, controls_.sstProcessLog.currentCaption());
  BuildView(view, StandingNow());
}

void ucProcessLog::ClearPanes() {
  selectionMoved_ = true;
  CloseDetail();
  controls_.Timer_ScrollDown_TV.SetEnabled(false);
  InitListView();
  controls_.tvMotherList.Clear();
  SetfraListCaption();
  MajStatusBarInfrmMain();
}

// No batch of the tree is open while the component or the host is called: either may repaint, and a picture is drawn
// from what the observers were told.
void ucProcessLog::BuildTree(View view, const OptionsFilter& filter, Standing standing) {
  toReturnTo_ = std::move(standing);
  shown_ = {view,
            filter,
            f_lngProcessId,
            IdentifierFor(tlFromType::tlOneUser),
            IdentifierFor(tlFromType::tlOneCompany),
            f_tlFromType == tlFromType::tlOneAlarm ? f_lngIdAppLog : kAny,
            f_lngImportId};
  if (view == View::kProcesses) {
    controls_.sstProcessLog.SetCaption(0, NameOf(View::kProcesses));
    controls_.sstProcessLog.SetCaption(1, NameOf(View::kUsers));
  }
  ModifyMotherListSize(view == View::kSystem);
  ClearPanes();
  if (view == View::kSystem) return ListAllSystemsLogs();
  f_lngLogsType = LogsTypeOf(view);
  AppendRoots();
  SetfraListCaption();
  SelectAfterBuild(*toReturnTo_);
}

void ucProcessLog::AppendRoots() {
  widgets::TreeView& tree = controls_.tvMotherList;
  const std::string& groupBy = shown_.filter.groupBy;
  switch (shown_.view) {
    case View::kProcesses: {
      const auto stations = AskProcesses();
      return tree::AppendProcessNodes(stations.records, stations.count, groupBy, platform_, errors_, tree);
    }
    case View::kUsers: {
      const auto parts = AskParts(shown_.processId, shown_.userId);
      return tree::AppendUserNodes(parts.records, parts.count, groupBy, tree);
    }
    case View::kAlarms: {
      const bool ofStation = shown_.alarmId == kAny && shown_.userId != kAny;
      const auto alarms = ofStation ? AskAlarmsOfDay({.owner = shown_.userId}) : AskAlarms();
      const bool one = shown_.alarmId != kAny || shown_.userId != kAny;
      return tree::AppendAlarmNodes(alarms.records, alarms.count,
                                    one ? tree::AlarmOwners::kOne : tree::AlarmOwners::kAll,
                                    AlarmsWanted(shown_.userId, false), platform_, tree);
    }
    case View::kImports: {
      if (shown_.importId <= 0) return;
      const auto imports = AskImports(shown_.importId);
      return tree::AppendImportNodes(imports.records, imports.count, shown_.importId, tree);
    }
    case View::kConnections:
      return AppendConnections();
    case View::kBackups:
      return AppendBackups();
    default:
      return;
  }
}

// Which days have failed connections is a question of its own; those that went well have none.
void ucProcessLog::AppendConnections() {
  const StateFilter state = shown_.filter.state;
  const auto days = AskDaysOfConnections(state);
  CommandLogAnswer failed;
  if (state == StateFilter::kError) failed = days;
  if (state == StateFilter::kAll) failed = AskDaysOfConnections(StateFilter::kError);
  if (state == StateFilter::kLastExecution) failed = tree::CountByDay(AskConnections({}, true));
  tree::AppendMonthNodes(days, failed, controls_.chkGroupByDay.checked(), platform_, controls_.tvMotherList);
}

void ucProcessLog::AppendBackups() {
  for (const tree::BackupPlace place : {tree::BackupPlace::kServer, tree::BackupPlace::kStations}) {
    // A viewer of one station has nothing of the server.
    if (place == tree::BackupPlace::kServer && shown_.userId != kAny) continue;
    const auto saves = AskSaves({static_cast<std::int32_t>(place), shown_.userId, ShownPeriod()});
    tree::AppendBackupRoots(saves.records, saves.count, place, BackupsWanted(), controls_.tvMotherList);
  }
}

void ucProcessLog::ListAllSystemsLogs() {
  widgets::ListView& list = controls_.lvMotherList;
  PrepareList(list::SystemListHeaders());
  if (f_lngLogsType != enumLogsType::enumImports) {
    const auto logs = AskSystemLogs();
    list.SetRows(list::SystemListRows(logs.records, logs.count, platform_));
  }
  if (toReturnTo_->listOf == util::kSystemPrefix) Restore(toReturnTo_->list, platform_, list);
  if (list.Count() > 0 && list.Selection().empty()) list.SetSelection(widgets::RowRanges(widgets::RowRange{0, 1}));
  toReturnTo_.reset();
  SetfraListCaption();
  MajStatusBarInfrmMain();
}

// The last execution has no period: whenever it was.
util::Period ucProcessLog::ShownPeriod() const {
  if (shown_.filter.state != StateFilter::kLastExecution) return shown_.filter.period();
  constexpr DateValue kEver = std::numeric_limits<DateValue>::max();
  return {-kEver, kEver};
}

tree::BackupsShown ucProcessLog::BackupsWanted() const {
  switch (shown_.filter.state) {
    case StateFilter::kOk:
      return tree::BackupsShown::kOk;
    case StateFilter::kError:
      return tree::BackupsShown::kFailed;
    case StateFilter::kInProgress:
    case StateFilter::kUnknown:
      return tree::BackupsShown::kNone;  // a backup has no other outcome
    default:
      return tree::BackupsShown::kAll;
  }
}

list::AlarmChoice ucProcessLog::AlarmsWanted(std::int32_t owner, bool activeOnly) const {
  using list::AlarmsShown;
  list::AlarmChoice choice{.owner = owner};
  if (shown_.filter.state != StateFilter::kLastExecution) choice.period = shown_.filter.period();
  // An alarm is in order once somebody has seen to it, and an error until then; it has no other state.
  switch (shown_.filter.state) {
    case StateFilter::kOk:
      choice.shown = AlarmsShown::kAcknowledged;
      break;
    case StateFilter::kError:
      choice.shown = AlarmsShown::kActive;
      break;
    case StateFilter::kInProgress:
    case StateFilter::kUnknown:
      choice.shown = AlarmsShown::kNone;
      break;
    default:
      break;
  }
  if (!activeOnly) return choice;
  const bool active = choice.shown == AlarmsShown::kAll || choice.shown == AlarmsShown::kActive;
  choice.shown = active ? AlarmsShown::kActive : AlarmsShown::kNone;
  return choice;
}

std::int32_t ucProcessLog::IdentifierFor(tlFromType type) const {
  return f_tlFromType == type && f_lngIdAppLog > 0 ? f_lngIdAppLog : kAny;
}

}  // namespace quorvel
