#include "tree/StateGroups.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/Error.h"
#include "tree/NodeKey.h"

namespace quorvel::tree {
namespace {

using list::StateGroup;

struct GroupLook {
  StateGroup group;
  std::string_view image;
};

// In the order in which the groups of a run are labelled.
constexpr GroupLook kGroups[] = {
    {StateGroup::kNotExecuted, "User_NoExecute"},
    {StateGroup::kInProgress, "User_Inprogress"},
    {StateGroup::kOk, "User_Ok"},
    {StateGroup::kNotOk, "User_NoOk"},
    {StateGroup::kUnknown, "User_Undefined"},
};

constexpr std::string_view kWaitingPrerequisite = "Waiting prerequisite";

// count x 100 / total as a whole number, halves to the even neighbour.
std::int64_t Percentage(std::int32_t total, std::int32_t count) {
  const std::int64_t product = std::int64_t{count} * 100;
  if (product > std::numeric_limits<std::int32_t>::max() || product < std::numeric_limits<std::int32_t>::min()) {
    throw Error(SystemError::kOverflow, "Overflow");
  }
  return std::llrint(static_cast<double>(product) / total);
}

widgets::NodeId NodeOf(const widgets::TreeView& tree, std::string_view key) {
  const widgets::NodeId node = tree.Find(key);
  if (node == widgets::NodeId::kNone) {
    throw Error(SystemError::kElementNotFound, "No node " + std::string(key));
  }
  return node;
}

void SetImageWhenDifferent(widgets::TreeView& tree, widgets::NodeId node, std::string_view image) {
  if (tree.Image(node) != image) tree.SetImages(node, image, image, image);
}

void LabelGroups(widgets::TreeView& tree, std::string_view key, const StationCounts& counts) {
  for (const GroupLook& look : kGroups) {
    const std::int32_t count = counts.Of(look.group);
    if (count <= 0) continue;
    const std::string text = StateGroupText(look.group, counts.total, count);
    tree.SetNodeText(NodeOf(tree, MakeKey(key, static_cast<std::int32_t>(look.group))), text);
  }
}

}  // namespace

std::string_view StateGroupImage(StateGroup group) {
  return std::ranges::find(kGroups, group, &GroupLook::group)->image;
}

std::string strGetNumberAndPurcent(datasource::ErrorsProcess& errors, std::int32_t total, std::int32_t count) {
  return datasource::Logging(errors, "Quorvel: ucProcessLog.strGetNumberAndPurcent", std::string(), [&] {
    if (total <= 0) return std::string();
    return std::to_string(Percentage(total, count)) + "% (" + std::to_string(count) + ")";
  });
}

std::string StateGroupText(StateGroup group, std::int32_t total, std::int32_t count) {
  // Callers pass a total of at least the count; one of 0 is a fault that must not pass as 0 %.
  if (total == 0 && count > 0) throw Error(SystemError::kDivisionByZero, "Division by zero");
  const std::int64_t percentage = total < 1 ? 0 : Percentage(total, count);
  std::string text(StateGroupLabel(group));
  text.append(" : ");
  if (percentage < 10) text.push_back('0');
  return text.append(std::to_string(percentage)).append("% (").append(std::to_string(count)).append(")");
}

void SetPurcentAndIconToTreeview(datasource::ErrorsProcess& errors, widgets::TreeView& tree, std::string_view key,
                                 const StationCounts& counts, bool updateTexts) {
  datasource::Logging(errors, kSetPurcentLabel, [&] {
    tree.InBatch([&] {
      if (updateTexts) LabelGroups(tree, key, counts);
      SetImageWhenDifferent(tree, NodeOf(tree, key), list::RunImage(counts));
    });
  });
}

void SetProcessIcon(widgets::TreeView& tree, widgets::NodeId node, const StatePresence& present,
                    std::string_view waitState) {
  const bool known = waitState != kWaitingPrerequisite;
  const std::string_view image = GetProcessIconName(present, known ? waitState : std::string_view());
  if (!image.empty()) SetImageWhenDifferent(tree, node, image);
}

void SetIconToTreeview(datasource::ErrorsProcess& errors, widgets::TreeView& tree, std::string_view key,
                       const StatePresence& present, std::string_view waitState) {
  datasource::Logging(errors, "Quorvel: ucProcessLog.SetIconToTreeview",
                      [&] { SetProcessIcon(tree, NodeOf(tree, key), present, waitState); });
}

std::int32_t CountItemsInTreeview(const widgets::TreeView& tree) {
  return static_cast<std::int32_t>(tree.ChildCount(widgets::NodeId::kNone));
}

}  // namespace quorvel::tree
