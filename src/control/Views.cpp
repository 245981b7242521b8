// The builders of the trees and the lists behind their nodes.
#include <string>
#include <utility>

#include "control/Hourglass.h"
#include "control/Working.h"
#include "control/ucProcessLog.h"
#include "tree/ProcessTree.h"
#include "tree/UserTree.h"

namespace quorvel {

using datasource::Propagating;

template <class Body>
void ucProcessLog::Build(std::string_view label, Body&& body) {
  if (f_blnClickNode) {
    throw Error(static_cast<std::int32_t>(SystemError::kInvalidCall), std::string(label),
                "The viewer is at work on an earlier request");
  }
  const Working working(f_blnClickNode);
  std::forward<Body>(body)();
}

void ucProcessLog::m_GetLogByProcess(bool refresh) {
  Build("Quorvel: ucProcessLog.m_GetLogByProcess",
        [&] { BuildByProcess(refresh ? SelectedPlace() : tree::PlaceOfKey(f_strKey)); });
}

void ucProcessLog::m_GetLogByUser(bool refresh) {
  Build("Quorvel: ucProcessLog.m_GetLogByUser",
        [&] { BuildByUser(refresh ? SelectedPlace() : tree::PlaceOfKey(f_strKey)); });
}

void ucProcessLog::m_GetLogAll(StateFilter& state) {
  Build("Quorvel: ucProcessLog.m_GetLogAll", [&] { BuildAll(state); });
}

void ucProcessLog::BuildAll(StateFilter state) {
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
  shown_ = {view, filter, f_lngProcessId, IdentifierFor(tlFromType::tlOneUser),
            IdentifierFor(tlFromType::tlOneCompany)};
  ClearPanes();
  if (view == View::kUsers) {
    const auto parts = AskParts(shown_.processId, shown_.userId);
    tree::AppendUserNodes(parts.records, parts.count, controls_.tvMotherList);
  } else {
    controls_.sstProcessLog.SetCaption(0, "Processes");
    controls_.sstProcessLog.SetCaption(1, "Users");
    const auto stations = AskProcesses();
    tree::AppendProcessNodes(stations.records, stations.count, platform_, errors_, controls_.tvMotherList);
  }
  SetfraListCaption();
  ModifyMotherListSize();
  SelectAfterBuild(place);
}

std::int32_t ucProcessLog::IdentifierFor(tlFromType type) const {
  constexpr std::int32_t kAny = -1;
  return f_tlFromType == type && f_lngIdAppLog > 0 ? f_lngIdAppLog : kAny;
}

}  // namespace quorvel
