// What was selected last in any view, so that another view can open at the equivalent node.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Dates.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// The identifiers of the node selected last, as the fields of its key. They are only overwritten, never cleared: a
// shorter key leaves the deeper ones from an earlier selection, and they go into the next key.
struct NavigationContext {
  std::string ContextProcess;
  std::string ContextFlag;
  std::string ContextRun;
  std::string ContextState;
  std::string ContextUser;
  std::string ContextTask;
  std::string ContextStepLog;
  std::string ContextStep;
  std::string ContextExtra;
  std::string ContextCommunication;

  // Takes over the fields of a process, user or connection key; other keys change nothing. A user key has no state: it
  // is read from the image of its run's node in `tree`, where the key stands.
  void SaveContextLog(std::string_view key, const widgets::TreeView& tree);

  // The key of the equivalent step in the view "Processes" or "Users", whole, whatever is empty in it.
  std::string ProcessesKey() const;
  std::string UsersKey() const;
  // The same for the connection that carried the step. The key ends with an empty 13th field, which its readers expect.
  std::string ConnectionsKey(DateValue connectionDate, std::int32_t communicationId) const;
};

}  // namespace quorvel::tree
