#include "tree/NavigationContext.h"

#include <initializer_list>
#include <span>
#include <vector>

#include "tree/NodeKey.h"
#include "util/KeyDates.h"
#include "util/PublicFunctions.h"

namespace quorvel::tree {
namespace {

// Copies fields to members, one each, as far as there are fields.
void TakeFields(std::span<const std::string_view> fields, std::initializer_list<std::string*> members) {
  auto field = fields.begin();
  for (std::string* member : members) {
    if (field == fields.end()) return;
    *member = *field++;
  }
}

// The node of the run that a run, task or step key of the user tree belongs to; kNone when the tree does not hold it.
widgets::NodeId RunNode(std::string_view key, std::size_t fields, const widgets::TreeView& tree) {
  constexpr std::size_t kRunFields = 5;
  constexpr std::size_t kTaskFields = 6;
  constexpr std::size_t kStepFields = 8;
  if (fields != kRunFields && fields != kTaskFields && fields != kStepFields) return widgets::NodeId::kNone;
  widgets::NodeId node = tree.Find(key);
  const int levels = fields == kRunFields ? 0 : fields == kTaskFields ? 1 : 2;
  for (int level = 0; level < levels && node != widgets::NodeId::kNone; ++level) node = tree.Parent(node);
  return node;
}

}  // namespace

void NavigationContext::SaveContextLog(std::string_view key, const widgets::TreeView& tree) {
  const std::vector<std::string_view> parts = util::SplitKey(key);
  if (parts.empty()) return;
  const std::span<const std::string_view> fields = std::span(parts).subspan(1);
  if (parts[0] == kProcessPrefix) {
    TakeFields(fields, {&ContextProcess, &ContextFlag, &ContextRun, &ContextState, &ContextUser, &ContextTask,
                        &ContextStepLog, &ContextStep, &ContextExtra});
  } else if (parts[0] == kCommunicationPrefix && fields.size() > 2) {
    TakeFields(fields.subspan(2), {&ContextCommunication, &ContextProcess, &ContextFlag, &ContextRun, &ContextState,
                                   &ContextUser, &ContextTask, &ContextStepLog, &ContextStep});
  } else if (parts[0] == kUserPrefix) {
    TakeFields(fields, {&ContextUser, &ContextProcess, &ContextFlag, &ContextRun, &ContextTask, &ContextStepLog,
                        &ContextStep, &ContextExtra});
    const widgets::NodeId run = RunNode(key, parts.size(), tree);
    if (run != widgets::NodeId::kNone) ContextState = tree.Image(run) == "ProcessOk" ? "1" : "2";
  }
}

std::string NavigationContext::ProcessesKey() const {
  return MakeKey(kProcessPrefix, ContextProcess, ContextFlag, ContextRun, ContextState, ContextUser, ContextTask,
                 ContextStepLog, ContextStep);
}

std::string NavigationContext::UsersKey() const {
  return MakeKey(kUserPrefix, ContextUser, ContextProcess, ContextFlag, ContextRun, ContextTask, ContextStepLog,
                 ContextStep);
}

std::string NavigationContext::ConnectionsKey(DateValue connectionDate, std::int32_t communicationId) const {
  return MakeKey(kCommunicationPrefix, util::FieldOfDate(connectionDate, util::DateField::kMonth),
                 util::FieldOfDate(connectionDate, util::DateField::kDay), communicationId, ContextProcess, ContextFlag,
                 ContextRun, ContextState, ContextUser, ContextTask, ContextStepLog, ContextStep, "");
}

}  // namespace quorvel::tree
