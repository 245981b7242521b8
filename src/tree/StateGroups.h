// State groups of a run: their labels with count and percentage, and the icon of the run that they make up.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "datasource/ErrorsProcess.h"
#include "list/RunOutcome.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

using list::StateGroupLabel;
using list::StationCounts;

// Image of a state-group node; lives forever.
std::string_view StateGroupImage(list::StateGroup group);

// "50% (3)"; empty when `total` is 0 or less. Halves round to the even neighbour. A count x 100 that does not fit 32
// bits goes into the log as error 6 and gives the empty text.
std::string strGetNumberAndPurcent(datasource::ErrorsProcess& errors, std::int32_t total, std::int32_t count);

// "In progress : 05% (1)". Raises error 6 as above, and 11 for a count out of a total of 0.
std::string StateGroupText(list::StateGroup group, std::int32_t total, std::int32_t count);

// Under this label the log knows what goes wrong while a run is labelled.
inline constexpr std::string_view kSetPurcentLabel = "Quorvel: ucProcessLog.SetPurcentAndIconToTreeview";

// Labels the groups under the run `key` that have stations, when `updateTexts`, and gives the run its image when it
// differs. A missing node (35601) and the errors 6 and 11 go into the log; what is done by then stays.
void SetPurcentAndIconToTreeview(datasource::ErrorsProcess& errors, widgets::TreeView& tree, std::string_view key,
                                 const StationCounts& counts, bool updateTexts);

using list::GetProcessIconName;
using list::StatePresence;

// Gives `node` the image that GetProcessIconName decides on, and leaves it untouched where the image is kept. Knows no
// waiting for prerequisites: such a node shows as started, as it always did in trees.
void SetProcessIcon(widgets::TreeView& tree, widgets::NodeId node, const StatePresence& present,
                    std::string_view waitState);

// The same for the node `key`. A missing node (35601) goes into the log.
void SetIconToTreeview(datasource::ErrorsProcess& errors, widgets::TreeView& tree, std::string_view key,
                       const StatePresence& present, std::string_view waitState);

// Number of root nodes.
std::int32_t CountItemsInTreeview(const widgets::TreeView& tree);

}  // namespace quorvel::tree
