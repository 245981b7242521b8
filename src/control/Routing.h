// Which routine serves which node on expand and on click, by the shape of its key.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "control/Enumerations.h"

namespace quorvel {

// Loads the children of a node.
enum class ExpandRoutine {
  kNone,
  kStateGroup,
  kExpandUser,
  kExpandTask,
  kExpandProcess,
  kNodeMonthCommunications,
  kExpandCommunications,
  kExpandImports,
  kExpandBackupLevel1,
  kExpandBackupLevel2,
  kExpandBackupLevel3,
  kExpandBackupLevel4,
  kExpandBackupLevel5,
};

// Fills the list for a node.
enum class ClickRoutine {
  kNone,
  kNodeProcess,
  kNodeAllProcess,
  kNodeCurrentProcess,  // while the run is in progress, else kNodeProcess
  kNodeState,
  kNodeUser,
  kNodeUserRun,  // the same list for a run under its station, which kNodeUser does not serve
  kNodeTask,
  kNodeStep,
  kNodeMonthCommunications,
  kNodeCommunications,
  kNodeDayDateInAlarms,
  kNodeUserNameInAlarms,
  kNodeProcessNameInImports,
  kNodeBackupFiles,
  kListAllSubNodes,
};

struct NodeRoute {
  std::string_view prefix;
  std::size_t fields;  // of the key, the prefix included
  ExpandRoutine expand;
  ClickRoutine click;
};

// The routes of all kinds of nodes.
std::span<const NodeRoute> NodeRoutes();

// The route of a node by its key; one that does nothing for a key of no known shape.
const NodeRoute& RouteOf(std::string_view key);

// The views: those that a tab can build, and the imports, which the host alone can.
enum class View { kNone, kProcesses, kUsers, kConnections, kSystem, kAlarms, kBackups, kImports };

// The caption of a view, which is that of its own tab; "" for none.
std::string_view NameOf(View view);

// Which view a tab click builds. Tabs are told by their caption.
View ViewOfTab(tlFromType fromType, std::string_view tabCaption);

}  // namespace quorvel
