#include "tools/SampleProcesses.h"

namespace quorvel::tools {
namespace {

// Kind codes of the other commands.
constexpr std::int32_t kRunProgram = 11;
constexpr std::int32_t kQuery = 21;
constexpr std::int32_t kCopyFile = 31;
constexpr std::int32_t kMail = 51;

// Step kinds.
constexpr std::int32_t kPlain = 0;
constexpr std::int32_t kCommunication = 1;
constexpr std::int32_t kFtp = 2;
constexpr std::int32_t kMailNotes = 3;
constexpr std::int32_t kMailExchange = 4;

constexpr std::string_view kServer = "Server";
constexpr std::string_view kStation = "Station";
constexpr std::string_view kConnection = "Communication";

constexpr CommandTemplate kCallStation[] = {{"CALL {station} RETRY 3 TIMEOUT 60", kConnect}};
constexpr CommandTemplate kSendFiles[] = {{R"(SEND D:\out\{station}\articles.dat TO C:\in)", kSendFile},
                                          {R"(SEND D:\out\{station}\prices.dat TO C:\in)", kSendFile, 91}};
constexpr CommandTemplate kReceiveFiles[] = {{R"(LIST C:\out\*.zip)", kListFiles},
                                             {R"(RECEIVE C:\out\sales.zip TO D:\in\{station})", kReceiveFile}};
constexpr CommandTemplate kCheckSize[] = {{R"(CHECK C:\in SIZE CRC)", kRunProgram}};
constexpr CommandTemplate kStopService[] = {{"net stop TillService", kRunProgram}};
constexpr CommandTemplate kStartService[] = {{"net start TillService", kRunProgram}};
constexpr CommandTemplate kFreeSpace[] = {{"freespace C: 500 MB", kRunProgram}};
constexpr CommandTemplate kInstall[] = {{R"(reg import C:\in\till.reg)", kRunProgram},
                                        {R"(C:\in\setup.exe /quiet /log C:\log\setup.log)", kRunProgram}};
constexpr CommandTemplate kImport[] = {{R"(C:\till\import.exe C:\in\prices.dat)", kRunProgram}};
constexpr CommandTemplate kSelect[] = {{"SELECT article, price FROM tariff WHERE valid_from = :today", kQuery}};
constexpr CommandTemplate kMerge[] = {{"MERGE INTO sales USING day_sales", kQuery}};
constexpr CommandTemplate kCopy[] = {{R"(copy D:\work\*.dat D:\out)", kCopyFile}};
constexpr CommandTemplate kFtpGet[] = {{R"(GET signatures.zip D:\work)", kReceiveFile}};
constexpr CommandTemplate kFtpPut[] = {{R"(PUT D:\out\orders.xml /incoming)", kSendFile}};
constexpr CommandTemplate kSendMail[] = {{"MAIL TO operations SUBJECT \"Night report\"", kMail}};
constexpr CommandTemplate kProgram[] = {{R"(C:\tools\run.cmd {station})", kRunProgram}};

constexpr StepTemplate kTransferSteps[] = {
    {"Connect to station", "3 attempts", kConnection, kCommunication, Risk::kConnection, kCallStation},
    {"Send files", R"(D:\out -> C:\in)", kConnection, kCommunication, Risk::kTransfer, kSendFiles},
    {"Check received files", "size, checksum", kStation, kPlain, Risk::kCheck, kCheckSize}};
constexpr StepTemplate kCollectSteps[] = {
    {"Connect to station", "3 attempts", kConnection, kCommunication, Risk::kConnection, kCallStation},
    {"Receive files", "C:\\out -> D:\\in", kConnection, kCommunication, Risk::kTransfer, kReceiveFiles}};
constexpr StepTemplate kInstallSteps[] = {
    {"Check free space", "500 MB on C:", kStation, kPlain, Risk::kSpace, kFreeSpace},
    {"Stop tills", "", kStation, kPlain, Risk::kService, kStopService},
    {"Run installer", "quiet, keeps settings", kStation, kPlain, Risk::kInstall, kInstall},
    {"Start tills", "", kStation, kPlain, Risk::kService, kStartService}};
constexpr StepTemplate kLoadSteps[] = {{"Load file", "C:\\in\\prices.dat", kStation, kPlain, Risk::kImport, kImport},
                                       {"Restart service", "", kStation, kPlain, Risk::kService, kStartService}};
constexpr StepTemplate kQuerySteps[] = {{"Select records", "of today", kServer, kPlain, Risk::kQuery, kSelect},
                                        {"Write files", "D:\\out", kServer, kPlain, Risk::kCopy, kCopy}};
constexpr StepTemplate kStationQuerySteps[] = {{"Run query", "till base", kStation, kPlain, Risk::kQuery, kMerge}};
constexpr StepTemplate kMergeSteps[] = {{"Merge records", "", kServer, kPlain, Risk::kQuery, kMerge}};
constexpr StepTemplate kFtpGetSteps[] = {{"Fetch file", "ftp, passive", kServer, kFtp, Risk::kTransfer, kFtpGet}};
constexpr StepTemplate kFtpPutSteps[] = {{"Put file", "ftp, passive", kStation, kFtp, Risk::kTransfer, kFtpPut}};
constexpr StepTemplate kMailSteps[] = {{"Mail to operations", "", kServer, kMailNotes, Risk::kMail, kSendMail},
                                       {"Mail to suppliers", "", kServer, kMailExchange, Risk::kMail, kSendMail}};
constexpr StepTemplate kServerSteps[] = {{"Run program", "D:\\tools", kServer, kPlain, Risk::kProgram, kProgram}};
constexpr StepTemplate kStationSteps[] = {{"Run program", "C:\\tools", kStation, kPlain, Risk::kProgram, kProgram}};
constexpr StepTemplate kCopySteps[] = {{"Copy files", "D:\\work -> D:\\out", kServer, kPlain, Risk::kCopy, kCopy}};

// A task of each type.
constexpr TaskTemplate kControlServer = {1, "Check server", "ControlServer", false, kServerSteps};
constexpr TaskTemplate kControlStation = {2, "Check disk and services", "ControlStation", true, kStationSteps};
constexpr TaskTemplate kSynchro = {3, "Synchronize shared folder", "Synchro", true, kTransferSteps};
constexpr TaskTemplate kExportServer = {4, "Build price file", "ExportSQLToFileServer", false, kQuerySteps};
constexpr TaskTemplate kExportStation = {5, "Export sales", "ExportSQLToFileStation", true, kStationQuerySteps};
constexpr TaskTemplate kFtpServer = {6, "Fetch signatures", "FtpExplicitServer", false, kFtpGetSteps};
constexpr TaskTemplate kFtpStation = {7, "Send orders to supplier", "FtpExplicitStation", true, kFtpPutSteps};
constexpr TaskTemplate kInventory = {8, "Take inventory", "Inventory", true, kStationSteps};
constexpr TaskTemplate kMailAgent = {9, "Send night report", "MailAgent", false, kMailSteps};
constexpr TaskTemplate kBatchServer = {10, "Prepare files", "BatchServer", false, kServerSteps};
constexpr TaskTemplate kBatchStation = {11, "Load prices into tills", "BatchStation", true, kLoadSteps};
constexpr TaskTemplate kSoftware = {12, "Install till software", "Logiciel", true, kInstallSteps};
constexpr TaskTemplate kCollect = {13, "Collect sales", "Telecollecte", true, kCollectSteps};
constexpr TaskTemplate kDistribute = {14, "Send price file", "Teledistribution", true, kTransferSteps};
constexpr TaskTemplate kTransferSpecific = {15, "Send loyalty cards", "TransferSpecific", true, kTransferSteps};
constexpr TaskTemplate kManageServer = {16, "Delete old files", "ManageServer", false, kServerSteps};
constexpr TaskTemplate kManageStation = {17, "Restart station", "ManageStation", true, kStationSteps};
constexpr TaskTemplate kSuperviseServer = {18, "Watch queues", "SupervisionServer", false, kServerSteps};
constexpr TaskTemplate kSuperviseStation = {19, "Watch tills", "SupervisionStation", true, kStationSteps};
constexpr TaskTemplate kBackupServer = {20, "Back up head office", "BackupServer", false, kCopySteps};
constexpr TaskTemplate kBackupStation = {21, "Back up till base", "BackupStation", true, kCollectSteps};
constexpr TaskTemplate kRestore = {22, "Restore till base", "Restore", true, kTransferSteps};
constexpr TaskTemplate kSqlServer = {23, "Load sales", "SqlServer", false, kMergeSteps};
constexpr TaskTemplate kSqlStation = {24, "Compact till base", "SqlStation", true, kStationQuerySteps};
constexpr TaskTemplate kQueuing = {25, "Post orders", "MessageQueuing", false, kServerSteps};
constexpr TaskTemplate kFilesServer = {26, "Sort received files", "FileManagementServer", false, kCopySteps};
constexpr TaskTemplate kFilesStation = {27, "Empty receipt folder", "FileManagementStation", true, kStationSteps};

// Types that no table knows: of a later version, in another letter case, empty.
constexpr TaskTemplate kUnknownType = {28, "Charge scanners", "WirelessCharging", true, kStationSteps};
constexpr TaskTemplate kLowerCaseType = {29, "Send old files", "teledistribution", true, kTransferSteps};
constexpr TaskTemplate kNameless = {30, "", "", false, kServerSteps};

constexpr const TaskTemplate* kPriceTasks[] = {&kExportServer, &kDistribute, &kBatchStation};
constexpr const TaskTemplate* kSalesTasks[] = {&kExportStation, &kCollect, &kFilesServer, &kSqlServer};
constexpr const TaskTemplate* kSignatureTasks[] = {&kFtpServer, &kSynchro};
constexpr const TaskTemplate* kRolloutTasks[] = {&kBatchServer, &kControlStation, &kDistribute, &kSoftware,
                                                 &kManageStation};
constexpr const TaskTemplate* kCheckTasks[] = {&kControlStation, &kSuperviseStation};
constexpr const TaskTemplate* kBackupTasks[] = {&kBackupStation, &kFilesServer};
constexpr const TaskTemplate* kServerBackupTasks[] = {&kBackupServer, &kManageServer, &kMailAgent};
constexpr const TaskTemplate* kLoyaltyTasks[] = {&kExportServer, &kTransferSpecific};
constexpr const TaskTemplate* kInventoryTasks[] = {&kInventory};
constexpr const TaskTemplate* kOrderTasks[] = {&kCollect, &kQueuing, &kFtpStation};
constexpr const TaskTemplate* kCleanTasks[] = {&kFilesStation, &kSqlStation};
constexpr const TaskTemplate* kServerCheckTasks[] = {&kControlServer, &kSuperviseServer};
constexpr const TaskTemplate* kRestoreTasks[] = {&kRestore, &kManageStation};
constexpr const TaskTemplate* kPatchTasks[] = {&kSynchro, &kSoftware, &kManageStation};

constexpr ProcessTemplate kOrdinary[] = {
    {"Nightly price update", Place::kServer, Population::kAll, 14, 150, 20, kPriceTasks},
    {"Collect sales", Place::kServer, Population::kAll, 14, 120, 10, kSalesTasks},
    {"Antivirus signatures", Place::kServer, Population::kAll, 12, 180, 8, kSignatureTasks},
    {"Till software 7.2 rollout", Place::kBoth, Population::kCompany, 3, 240, 45, kRolloutTasks},
    {"Morning till check", Place::kStation, Population::kOne, 10, 5, 4, kCheckTasks},
    {"Station backup", Place::kBoth, Population::kCompany, 8, 300, 40, kBackupTasks},
    {"Head office backup", Place::kServer, Population::kNone, 5, 1, 90, kServerBackupTasks},
    {"Loyalty cards", Place::kServer, Population::kCompany, 6, 60, 6, kLoyaltyTasks},
    {"Software inventory", Place::kStation, Population::kOne, 4, 10, 12, kInventoryTasks},
    {"Supplier orders", Place::kServer, Population::kAll, 5, 90, 15, kOrderTasks},
    {"Sunday price campaign", Place::kServer, Population::kCompany, 3, 120, 20, kPriceTasks},
    {"Clean up receipts", Place::kStation, Population::kOne, 5, 5, 6, kCleanTasks},
    {"Server health", Place::kServer, Population::kNone, 6, 1, 5, kServerCheckTasks},
    {"Restore of a till", Place::kServer, Population::kFew, 2, 15, 50, kRestoreTasks},
    {"Operating system patches", Place::kBoth, Population::kCompany, 2, 360, 60, kPatchTasks},
    {"Electronic shelf labels", Place::kServer, Population::kCompany, 5, 60, 10, kPriceTasks},
    {"Payment terminals 4.1", Place::kServer, Population::kCompany, 2, 240, 30, kRolloutTasks},
    {"Cash book", Place::kServer, Population::kAll, 4, 60, 6, kSalesTasks},
    {"Weekly stock count", Place::kStation, Population::kOne, 3, 20, 20, kInventoryTasks},
    {"Back office documents", Place::kServer, Population::kCompany, 4, 120, 5, kLoyaltyTasks},
    {"Scale labels", Place::kServer, Population::kFew, 3, 30, 8, kPriceTasks},
    {"Opening hours", Place::kServer, Population::kFew, 2, 20, 4, kSignatureTasks},
    {"Till base maintenance", Place::kBoth, Population::kCompany, 2, 200, 25, kCleanTasks},
    {"Training mode", Place::kStation, Population::kFew, 1, 30, 15, kCheckTasks},
};

constexpr const TaskTemplate* kAuditTasks[] = {
    &kControlServer,    &kControlStation, &kSynchro,          &kExportServer, &kExportStation, &kFtpServer,
    &kFtpStation,       &kInventory,      &kMailAgent,        &kBatchServer,  &kBatchStation,  &kSoftware,
    &kCollect,          &kDistribute,     &kTransferSpecific, &kManageServer, &kManageStation, &kSuperviseServer,
    &kSuperviseStation, &kBackupServer,   &kBackupStation,    &kRestore,      &kSqlServer,     &kSqlStation,
    &kQueuing,          &kFilesServer,    &kFilesStation,     &kUnknownType,  &kLowerCaseType, &kNameless};
constexpr ProcessTemplate kAudit = {"Yearly site audit", Place::kBoth, Population::kFew, 0, 60, 120, kAuditTasks};

constexpr CommandTemplate kTransferResults[] = {
    {"LIST result 91", 88, 91},    {"LIST result 92", 88, 92},    {"LIST result 93", 88, 93},
    {"LIST result 94", 88, 94},    {"SEND result 91", 89, 91},    {"SEND result 92", 89, 92},
    {"SEND result 93", 89, 93},    {"SEND result 94", 89, 94},    {"RECEIVE result 91", 90, 91},
    {"RECEIVE result 92", 90, 92}, {"RECEIVE result 93", 90, 93}, {"RECEIVE result 94", 90, 94},
    {"SEND result 95", 89, 95},    {"SEND result 0", 89, 0},      {"RUN result 91", 11, 91}};
constexpr StepTemplate kStepsOfEachKind[] = {{"Step kind 0", "", kStation, 0, Risk::kProgram, kProgram},
                                             {"Step kind 1", "", kConnection, 1, Risk::kTransfer, kTransferResults},
                                             {"Step kind 2", "", kServer, 2, Risk::kTransfer, kFtpGet},
                                             {"Step kind 3", "", kServer, 3, Risk::kMail, kSendMail},
                                             {"Step kind 4", "", kServer, 4, Risk::kMail, kSendMail},
                                             {"Step kind 5", "", "Satellite", 5, Risk::kProgram, kProgram},
                                             {"Step kind -1", "", "", -1, Risk::kProgram, {}}};
constexpr TaskTemplate kProtocolStation = {31, "Every step kind", "ControlStation", true, kStepsOfEachKind};
constexpr TaskTemplate kProtocolServer = {32, "Every step kind, once", "ControlServer", false, kStepsOfEachKind};
constexpr const TaskTemplate* kProtocolTasks[] = {&kProtocolServer, &kProtocolStation};
constexpr ProcessTemplate kProtocol = {"Protocol check", Place::kBoth, Population::kFew, 0, 30, 10, kProtocolTasks};

constexpr CommandTemplate kOddCommands[] = {{"echo \"a|b\" →\t'c'\r\nexit", kRunProgram}, {"", kRunProgram}};
constexpr StepTemplate kOddSteps[] = {
    {"Étape | 1", "key=\"a|b\"\tpath='C:\\temp'", kStation, kPlain, Risk::kProgram, kOddCommands},
    {"", "line 1\nline 2", kServer, kPlain, Risk::kProgram, {}}};
constexpr TaskTemplate kOddTask = {33, "Prix \"d'été\" | 値札", "Teledistribution", true, kOddSteps};
constexpr const TaskTemplate* kOddTasks[] = {&kOddTask};
constexpr ProcessTemplate kOddNames = {
    "Prix | promotions \"Été\" – 値札", Place::kStation, Population::kFew, 0, 60, 10, kOddTasks};

constexpr ProcessTemplate kStatistics = {"Statistics", Place::kServer, Population::kNone, 0, 1, 20, kServerCheckTasks};

}  // namespace

std::span<const ProcessTemplate> OrdinaryProcesses() {
  return kOrdinary;
}

const ProcessTemplate& SiteAuditProcess() {
  return kAudit;
}

const ProcessTemplate& ProtocolCheckProcess() {
  return kProtocol;
}

const ProcessTemplate& OddNamesProcess() {
  return kOddNames;
}

const ProcessTemplate& StatisticsProcess() {
  return kStatistics;
}

}  // namespace quorvel::tools
