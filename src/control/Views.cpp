// The builders of the trees and the lists behind their nodes.
#include <string>

#include "control/Hourglass.h"
#include "control/ucProcessLog.h"
#include "tree/ProcessTree.h"
#include "tree/UserTree.h"

namespace quorvel {

using datasource::Propagating;
using widgets::NodeId;

void ucProcessLog::m_GetLogByProcess(bool refresh) {
  BuildByProcess(refresh ? SelectedPlace() : tree::PlaceOfKey(f_strKey));
}

void ucProcessLog::m_GetLogByUser(bool refresh) {
  BuildByUser(refresh ? SelectedPlace() : tree::PlaceOfKey(f_strKey));
}

void ucProcessLog::m_GetLogAll(StateFilter& state) {
  Propagating("Quorvel: ucProcessLog.m_GetLogAll", [&] {
    const Hourglass hourglass(platform_);
    const View view = ViewOfTab(f_tlFromType, controls_.sstProcessLog.currentCaption());
    if (view == View::kNone) return;
    RequireBuilt(view);
    const tree::Place place = SelectedPlace();
    Init();
    OptionsFilter filter = ReturnOptionsFilter(state, false);
    filter.state = state;
    ControlsVisible(static_cast<std::int32_t>(state));
    BuildTree(view, filter, place);
  });
}

void ucProcessLog::BuildByProcess(const tree::Place& place) {
  Propagating("Quorvel: ucProcessLog.m_GetLogByProcess", [&] {
    const Hourglass hourglass(platform_);
    Init();
    BuildTree(View::kProcesses, ReturnOptionsFilter(StateFilter::kAll, true), place);
  });
}

void ucProcessLog::BuildByUser(const tree::Place& place) {
  Propagating("Quorvel: ucProcessLog.m_GetLogByUser", [&] {
    const Hourglass hourglass(platform_);
    Init();
    BuildTree(View::kUsers, ReturnOptionsFilter(StateFilter::kAll, true), place);
  });
}

void ucProcessLog::BuildView(View view, const tree::Place& place) {
  if (view == View::kNone) return;
  RequireBuilt(view);
  view == View::kUsers ? BuildByUser(place) : BuildByProcess(place);
}

void ucProcessLog::RequireBuilt(View view) const {
  if (view == View::kProcesses || view == View::kUsers) return;
  throw Error(SystemError::kActionUnsupported,
              "The view \"" + std::string(controls_.sstProcessLog.currentCaption()) + "\" is not part of this version");
}

void ucProcessLog::ClearPanes() {
  InitListView();
  controls_.tvMotherList.Clear();
  SetfraListCaption();
  MajStatusBarInfrmMain();
}

// No batch of the tree is open while the component or the host is called: either may repaint, and a picture is drawn
// from what the observers were told.
void ucProcessLog::BuildTree(View view, const OptionsFilter& filter, const tree::Place& place) {
  placeToReturnTo_ = place;
  shownFilter_ = filter;
  ClearPanes();
  if (view == View::kUsers) {
    ReadUsers(filter);
  } else {
    controls_.sstProcessLog.SetCaption(0, "Processes");
    controls_.sstProcessLog.SetCaption(1, "Users");
    ReadProcesses(filter);
  }
  SelectAfterBuild(place);
  SetfraListCaption();
  ModifyMotherListSize();
}

void ucProcessLog::ReadProcesses(const OptionsFilter& filter) {
  datasource::ProcessLog& source = ProcessLogSource();
  constexpr std::int32_t kReserved = 0;
  std::int32_t status = 0;
  source.GetProcessLogs(f_lngConnect, filter.start, filter.end, static_cast<std::int32_t>(filter.state), f_lngProcessId,
                        IdentifierFor(tlFromType::tlOneUser), IdentifierFor(tlFromType::tlOneCompany), kReserved,
                        kReserved, status);
  if (status == 0) {
    tree::AppendProcessNodes(source.Records(), source.lngCount(), platform_, errors_, controls_.tvMotherList);
  }
  source.CloseProcessLogs(f_lngConnect);
}

void ucProcessLog::ReadUsers(const OptionsFilter& filter) {
  datasource::ProcessLog& source = ProcessLogSource();
  if (QueryByUser(filter, f_lngProcessId, IdentifierFor(tlFromType::tlOneUser))) {
    tree::AppendUserNodes(source.Records(), source.lngCount(), controls_.tvMotherList);
  }
  source.CloseProcessLogByUser(f_lngConnect);
}

// One period serves the runs on the server and those on stations.
bool ucProcessLog::QueryByUser(const OptionsFilter& filter, std::int32_t processId, std::int32_t userId) {
  constexpr std::int32_t kServerAndStations = -1;
  std::int32_t status = 0;
  ProcessLogSource().GetProcessLogByUser(f_lngConnect, filter.start, filter.end, filter.start, filter.end,
                                         static_cast<std::int32_t>(filter.state), processId, userId,
                                         IdentifierFor(tlFromType::tlOneCompany), kServerAndStations, status);
  return status == 0;
}

std::int32_t ucProcessLog::IdentifierFor(tlFromType type) const {
  constexpr std::int32_t kAny = -1;
  return f_tlFromType == type && f_lngIdAppLog > 0 ? f_lngIdAppLog : kAny;
}

}  // namespace quorvel
