#include "list/RunOutcome.h"

#include <algorithm>
#include <iterator>

namespace quorvel::list {
namespace {

struct GroupLabel {
  StateGroup group;
  std::string_view label;
};

// In the order in which a run's row counts them.
constexpr GroupLabel kGroupLabels[] = {
    {StateGroup::kOk, kOkCaption},
    {StateGroup::kNotOk, kNotOkCaption},
    {StateGroup::kInProgress, kInProgressCaption},
    {StateGroup::kNotExecuted, kNotExecutedCaption},
    {StateGroup::kUnknown, kUnknownCaption},
};

struct WaitingImage {
  std::string_view waitState;
  std::string_view image;
};

constexpr WaitingImage kWaitingImages[] = {
    {"Waiting com", "ProcessWaitingCom"},
    {"Waiting station in com", "ProcessWaitingStation"},
    {"Waiting station out com", "ProcessWaitingStation"},
    {"Waiting execution in com", "ProcessWaitingExecution"},
    {"Waiting execution out com", "ProcessWaitingExecution"},
    {"Waiting prerequisite", "ProcessWaitingPrerequisite"},
};
constexpr std::string_view kStarted = "ProcessStart";

}  // namespace

std::int32_t StationCounts::Of(StateGroup group) const {
  switch (group) {
    case StateGroup::kOk:
      return ok;
    case StateGroup::kNotOk:
      return notOk;
    case StateGroup::kInProgress:
      return inProgress;
    case StateGroup::kNotExecuted:
      return notExecuted;
    case StateGroup::kUnknown:
      break;
  }
  return unknown;
}

void StationCounts::Add(StateGroup group) {
  ++total;
  switch (group) {
    case StateGroup::kOk:
      ++ok;
      break;
    case StateGroup::kNotOk:
      ++notOk;
      break;
    case StateGroup::kInProgress:
      ++inProgress;
      break;
    case StateGroup::kNotExecuted:
      ++notExecuted;
      break;
    case StateGroup::kUnknown:
      ++unknown;
      break;
  }
}

std::string_view StateGroupLabel(StateGroup group) {
  return std::ranges::find(kGroupLabels, group, &GroupLabel::group)->label;
}

std::string_view RunImage(const StationCounts& counts) {
  if (counts.inProgress >= 1) return kStarted;
  if (counts.notOk >= 1) return "ProcessNONOK";
  if (counts.unknown > 0) return "ProcessUndefined";
  return "ProcessOk";
}

std::string_view ImageOfRun(const StationCounts& counts) {
  return RunImage(counts.total == 0 ? StationCounts{.unknown = 1} : counts);
}

std::string RunStatus(const StationCounts& counts) {
  if (counts.total == 0) return std::string(kUnknownCaption);
  std::string words;
  for (const auto& [group, label] : kGroupLabels) {
    const std::int32_t count = counts.Of(group);
    if (count == 0) continue;
    if (count == counts.total) return std::string(label);
    if (!words.empty()) words.append(", ");
    words.append(std::to_string(count)).append(" ").append(label);
  }
  return words;
}

std::string_view GetProcessIconName(const StatePresence& present, std::string_view waitState) {
  if (!present.inProgress) {
    if (present.ok && !present.notOk) return "ProcessOk";
    if (present.notOk && !present.ok) return "ProcessNONOK";
    if (present.unknown) return "ProcessUndefined";
    if (present.notExecuted || present.notOk || present.ok) return {};
  }
  const auto* const found = std::ranges::find(kWaitingImages, waitState, &WaitingImage::waitState);
  return found == std::end(kWaitingImages) ? kStarted : found->image;
}

StatePresence PresenceOf(StateGroup group) {
  return {.notExecuted = group == StateGroup::kNotExecuted,
          .inProgress = group == StateGroup::kInProgress,
          .notOk = group == StateGroup::kNotOk,
          .ok = group == StateGroup::kOk,
          .unknown = group == StateGroup::kUnknown};
}

bool IsRunningImage(std::string_view image) {
  return image == kStarted ||
         std::ranges::find(kWaitingImages, image, &WaitingImage::image) != std::end(kWaitingImages);
}

}  // namespace quorvel::list
