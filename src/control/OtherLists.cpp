// The list fillers of connections, alarms, imports and backups.
//
// As in the lists of the process views, the columns are there before the question is asked, and rows come only after it
// was answered.
#include <string>

#include "control/Hourglass.h"
#include "control/ucProcessLog.h"
#include "list/AlarmList.h"
#include "list/BackupFileList.h"
#include "list/ChildList.h"
#include "list/CommandList.h"
#include "list/ConnectionList.h"
#include "list/ImportList.h"
#include "tree/ConnectionTree.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using datasource::Propagating;
using widgets::NodeId;

void ucProcessLog::lvMotherList_NodeMonthCommunications(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeMonthCommunications", [&] {
    const Hourglass hourglass(platform_);
    ListConnections(node);
  });
}

void ucProcessLog::lvMotherList_NodeCommunications(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeCommunications", [&] {
    const Hourglass hourglass(platform_);
    constexpr std::size_t kFieldsOfDay = 3;
    const std::string key(controls_.tvMotherList.Key(node));
    if (util::SplitKey(key).size() == kFieldsOfDay) return ListConnections(node);
    PrepareList(list::ConnectionCommandListHeaders());
    const auto commands = AskCommandsOfConnection(tree::CommunicationOfKey(key));
    controls_.lvMotherList.SetRows(list::ConnectionCommandListRows(commands.records, commands.count, key, platform_));
  });
}

void ucProcessLog::ListConnections(NodeId node) {
  const std::string key(controls_.tvMotherList.Key(node));
  PrepareList(list::ConnectionListHeaders());
  const bool failedOnly = controls_.chkCommunicationsFilter.checked();
  const auto connections = AskConnections(tree::PeriodOfConnections(key, ShownPeriod()), failedOnly);
  // What was asked for the list is what the node has, unless the list is narrowed.
  if (!failedOnly && controls_.tvMotherList.HasPlaceholder(node)) AppendConnectionsUnder(node, connections);
  controls_.lvMotherList.SetRows(
      list::ConnectionListRows(connections.records, connections.count, key, platform_, platform_.Now()));
}

void ucProcessLog::lvMotherList_NodeUserNameInAlarms(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeUserNameInAlarms", [&] { ListAlarms(node); });
}

void ucProcessLog::lvMotherList_NodeDayDateInAlarms(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeDayDateInAlarms", [&] { ListAlarms(node); });
}

// A viewer of one alarm asks for that one, whatever else was raised on its day.
void ucProcessLog::ListAlarms(NodeId node) {
  const Hourglass hourglass(platform_);
  const std::string key(controls_.tvMotherList.Key(node));
  const tree::AlarmsOfNode wanted = tree::ReadAlarmKey(key);
  const list::AlarmLayout layout{.owner = wanted.owner == list::kAllOwners, .process = Project().blnShowProcessAlarm};
  PrepareList(list::AlarmListHeaders(layout));
  const bool one = shown_.alarmId != list::kAllOwners;
  const auto alarms = one ? AskAlarms() : AskAlarmsOfDay(wanted);
  controls_.lvMotherList.SetRows(list::AlarmListRows(alarms.records, alarms.count, key, platform_, layout,
                                                     AlarmsWanted(wanted.owner, controls_.chkAlarmFilter.checked())));
}

void ucProcessLog::lvMotherList_NodeProcessNameInImports(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeProcessNameInImports", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    PrepareList(list::ImportListHeaders());
    const auto users = AskImportRuns(tree::ReadImportKey(key));
    controls_.lvMotherList.SetRows(list::ImportListRows(users.records, users.count, key, platform_));
  });
}

// As with the levels above, the first click loads the node too.
void ucProcessLog::lvMotherList_NodeBackupFiles(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeBackupFiles", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    PrepareList(list::BackupFileListHeaders());
    const auto folder = tree::FolderOfKey(key);
    const auto files = AskSaveFiles(tree::SaveOfKey(key));
    if (controls_.tvMotherList.HasPlaceholder(node)) AppendFoldersUnder(node, files);
    controls_.lvMotherList.SetRows(list::BackupFileListRows(files.records, files.count, folder, key, platform_));
  });
}

void ucProcessLog::ListAllSubNodes(NodeId node, std::string_view caption) {
  Propagating("Quorvel: ucProcessLog.ListAllSubNodes", [&] {
    const Hourglass hourglass(platform_);
    LoadNode(node);
    widgets::ListView& list = controls_.lvMotherList;
    list.InBatch([&] {
      PrepareList(list::SubNodeHeaders(caption, list.bounds().width));
      list.SetRows(list::ChildRows(controls_.tvMotherList, node));
    });
  });
}

}  // namespace quorvel
