// State groups of a run: their labels with count and percentage, and the icon of the run that they make up.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "datasource/ErrorsProcess.h"
#include "list/Classification.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// Stations of a run, in all and per state. A station is counted once.
struct StationCounts {
  std::int32_t total = 0;
  std::int32_t notExecuted = 0;
  std::int32_t inProgress = 0;
  std::int32_t notOk = 0;
  std::int32_t ok = 0;
  std::int32_t unknown = 0;

  std::int32_t Of(list::StateGroup group) const;
  // One station more.
  void Add(list::StateGroup group);
};

// "NOT OK" and so on; lives forever.
std::string_view StateGroupLabel(list::StateGroup group);
// Image of a state-group node; lives forever.
std::string_view StateGroupImage(list::StateGroup group);

// "50% (3)"; empty when `total` is 0 or less. Halves round to the even neighbour. A count x 100 that does not fit 32
// bits goes into the log as error 6 and gives the empty text.
std::string strGetNumberAndPurcent(datasource::ErrorsProcess& errors, std::int32_t total, std::int32_t count);

// "In progress : 05% (1)". Raises error 6 as above, and 11 for a count out of a total of 0.
std::string StateGroupText(list::StateGroup group, std::int32_t total, std::int32_t count);

// The image of a run with these stations: in progress before NOT OK before unknown before OK.
std::string_view RunImage(const StationCounts& counts);

// Under this label the log knows what goes wrong while a run is labelled.
inline constexpr std::string_view kSetPurcentLabel = "Quorvel: ucProcessLog.SetPurcentAndIconToTreeview";

// Labels the groups under the run `key` that have stations, when `updateTexts`, and gives the run its image when it
// differs. A missing node (35601) and the errors 6 and 11 go into the log; what is done by then stays.
void SetPurcentAndIconToTreeview(datasource::ErrorsProcess& errors, widgets::TreeView& tree, std::string_view key,
                                 const StationCounts& counts, bool updateTexts);

// Which states occur among the rows that a node stands for.
struct StatePresence {
  bool notExecuted = false;
  bool inProgress = false;
  bool notOk = false;
  bool ok = false;
  bool unknown = false;
};

// Image of a process with these states; empty means that it keeps the one it has. While something is in progress, or
// without any state, the wait state decides.
std::string_view GetProcessIconName(const StatePresence& present, std::string_view waitState);

// The same for the node `key`, which stays untouched where its image is kept. Knows no waiting for prerequisites: such
// a node shows as started, as it always did in trees. A missing node (35601) goes into the log.
void SetIconToTreeview(datasource::ErrorsProcess& errors, widgets::TreeView& tree, std::string_view key,
                       const StatePresence& present, std::string_view waitState);

// Number of root nodes.
std::int32_t CountItemsInTreeview(const widgets::TreeView& tree);

}  // namespace quorvel::tree
