#include "util/PublicOstrana.h"

#include <algorithm>
#include <iterator>

#include "datasource/ErrorsProcess.h"

namespace quorvel::util {
namespace {

struct DisplayName {
  std::string_view code;
  std::string_view name;
};

constexpr DisplayName kTaskTypes[] = {
    {"Teledistribution", "Remote distribution"},
    {"Telecollecte", "Remote collect"},
    {"Synchro", "Standard transfer"},
    {"BatchStation", "Station program"},
    {"BatchServer", "Server program"},
    {"Logiciel", "Software distribution"},
    {"Inventory", "Inventory"},
    {"ControlStation", "Station test"},
    {"ControlServer", "Server test"},
    {"TransferSpecific", "Specific transfer"},
    {"FtpExplicitServer", "Server FTP"},
    {"FtpExplicitStation", "Station FTP"},
    {"ExportSQLToFileServer", "SQL export to file on server"},
    {"ExportSQLToFileStation", "SQL export to file on station"},
    {"MailAgent", "Messaging"},
    {"ManageServer", "Server administration"},
    {"ManageStation", "Station administration"},
    {"SupervisionServer", "Server monitoring"},
    {"SupervisionStation", "Station monitoring"},
    {"MessageQueuing", "Message queuing"},
    {"FileManagementServer", "Server file management"},
    {"FileManagementStation", "Station file management"},
};

constexpr DisplayName kPlaces[] = {
    {"Server", "Server"},
    {"Station", "Station"},
    {"Communication", "Connection"},
};

template <std::size_t N>
std::string_view NameOf(const DisplayName (&names)[N], std::string_view code) {
  const auto* const found = std::ranges::find(names, code, &DisplayName::code);
  return found == std::end(names) ? std::string_view() : found->name;
}

}  // namespace

std::string_view strGetTypeTaskName(std::string_view typeCode) {
  return NameOf(kTaskTypes, typeCode);
}

std::string_view strGetExecuteWhereName(std::string_view placeCode) {
  return NameOf(kPlaces, placeCode);
}

std::string strFormatDateTime(const Platform& platform, DateValue value, std::int32_t flag) {
  return datasource::Propagating("Quorvel: PublicOstrana.strFormatDateTime", [&] {
    if (value == 0) return std::string();
    return platform.FormatDate(value, flag == 1 ? DateFormat::kShortDate : DateFormat::kGeneralDate);
  });
}

}  // namespace quorvel::util
