#include "tools/SampleNames.h"

#include <algorithm>
#include <vector>

namespace quorvel::tools {
namespace {

using namespace std::string_view_literals;

constexpr CompanyName kCompanies[] = {
    {"Comptoirs du Rhône",
     {"Lyon Part-Dieu", "Lyon Bellecour", "Villeurbanne", "Grenoble Europole", "Saint-Étienne Centre", "Valence Gare",
      "Annecy Courier", "Vienne Sud"}},
    {"Maison Ferrand & Fils",
     {"Paris Nation", "Paris Bercy", "Créteil Soleil", "Versailles Chantiers", "Évry Agora", "Rouen Saint-Sever",
      "Orléans Centre", "Reims Gare"}},
    {"Nordlicht Handel GmbH",
     {"Hamburg Altona", "Lübeck Holstentor", "Köln Ehrenfeld", "München Ost", "Nürnberg Süd", "Bremen Viertel",
      "Dresden Neustadt", "Zürich Oerlikon"}},
    {"Almacenes del Sur",
     {"Sevilla Nervión", "Málaga Centro", "Cádiz Puerta", "Córdoba Arcángel", "Almería Playa", "Jaén Norte",
      "Granada Camino", "Huelva Mar"}},
    {"Sklepy Wisła",
     {"Kraków Rynek", "Łódź Piotrkowska", "Gdańsk Wrzeszcz", "Poznań Stary", "Wrocław Nadodrze", "Toruń Most",
      "Warszawa Praga", "Lublin Zamek"}},
    {"Bottega Aurora",
     {"Torino Porta Nuova", "Milano Lambrate", "Genova Brignole", "Verona Fiera", "Forlì Centro", "Parma Ovest",
      "Trento Nord", "Udine Sud"}},
    {"Lowland Stores",
     {"Utrecht Overvecht", "Gent Dampoort", "Antwerpen Zuid", "Leiden Station", "Namur Citadelle", "Liège Guillemins",
      "Breda Haven", "Luxembourg Gare"}},
    {"Harbour and Hill",
     {"Bristol Temple", "Leeds Kirkgate", "Cardiff Bay", "York Walls", "Dundee Law", "Belfast Lagan", "Exeter Quay",
      "Norwich Lanes"}},
};

constexpr std::string_view kOddStations[] = {
    "東京 銀座 01",
    "Nice \"Étoile\" 'Sud' 04",
    "Lille | Flandres 02",
    "Metz\tGare 01",
    "Brest\r\nSiam 01",
    "ירושלים 01",
    "",
};

constexpr Failure kProgramFailures[] = {
    {"Program ended with code 3: settings file missing", "run.cmd: settings.ini not found", 3},
    {"Program stopped after 30 minutes", "Time limit of 1800 seconds reached", 258},
};
constexpr Failure kInstallFailures[] = {
    {"Installer ended with code 1618: another installation is running", "setup.exe: exit code 1618", 1618},
    {"Installer ended with code 1603: till.exe is in use", "setup.exe: exit code 1603", 1603},
};
constexpr Failure kServiceFailures[] = {
    {"The till service did not answer within 120 seconds", "Service TillService: timeout", 1053},
    {"The till service is not installed", "The specified service does not exist", 1060},
};
constexpr Failure kSpaceFailures[] = {
    {"Disk full: 12 MB free on C:, 500 MB needed", "There is not enough space on the disk", 112},
};
constexpr Failure kCheckFailures[] = {
    {"Checksum of prices.dat differs, file refused", "CRC error", 23},
    {"prices.dat is empty, file refused", "Size 0, at least 1 expected", 13},
};
constexpr Failure kImportFailures[] = {
    {"Access to C:\\till\\prices.dat denied", "Access is denied", 5},
    {"Line 2117 of prices.dat holds no price, file refused", "import.exe: line 2117: number expected", 8},
};
constexpr Failure kQueryFailures[] = {
    {"The base is locked by another program", "Lock request timed out", 1222},
    {"The base refused the login", "Login failed for user 'night'", 18456},
};
constexpr Failure kCopyFailures[] = {
    {"Disk full: 3 MB free on D:", "There is not enough space on the disk", 112},
    {"Access to D:\\out denied", "Access is denied", 5},
};
constexpr Failure kConnectionFailures[] = {
    {"No answer after 3 attempts", "Connection timed out", 60},
    {"Router refused the call: line busy", "Line busy", 61},
};
constexpr Failure kTransferFailures[] = {
    {"Connection lost at 87 % of the file", "Connection reset by peer", 54},
    {"The file to be transferred was not found", "No such file", 2, true},
};
constexpr Failure kMailFailures[] = {
    {"Mail server did not accept the message", "550 mailbox unavailable", 550},
    {"Mail server not reached", "Host not found", 11001},
};

struct Failures {
  Risk risk;
  std::span<const Failure> failures;
};
constexpr Failures kFailures[] = {
    {Risk::kProgram, kProgramFailures},   {Risk::kInstall, kInstallFailures}, {Risk::kService, kServiceFailures},
    {Risk::kSpace, kSpaceFailures},       {Risk::kCheck, kCheckFailures},     {Risk::kImport, kImportFailures},
    {Risk::kQuery, kQueryFailures},       {Risk::kCopy, kCopyFailures},       {Risk::kConnection, kConnectionFailures},
    {Risk::kTransfer, kTransferFailures}, {Risk::kMail, kMailFailures},
};

constexpr std::string_view kSuccess[] = {"",
                                         "",
                                         "# records, no rejects",
                                         "# files, all checked",
                                         "Done",
                                         "# KB received",
                                         "# records, 2 rejects written to rejects.txt"};

constexpr std::string_view kWaits[] = {"Waiting com",
                                       "Waiting station in com",
                                       "Waiting station out com",
                                       "Waiting execution in com",
                                       "Waiting execution out com",
                                       "Waiting prerequisite",
                                       "To run",
                                       "",
                                       "Waiting tide"};

constexpr std::string_view kOddTexts[] = {
    "",
    "Étiquettes imprimées à 100 % – façade « été », œuvre n° 7",
    "価格表を更新しました（エラー 0 件）",
    "He said \"it's done\" and 'left'",
    "Column 1\tColumn 2\tColumn 3",
    "First line\r\nSecond line\nThird line",
    "till|7|prices|OK",
    " \t ",
    "Imprimante arr\352t\351e, c\342ble d\351branch\351",  // Latin-1, which is no UTF-8
    "السعر محدّث",
};

constexpr std::size_t kLongReportBytes = 20000;

std::string LongReport() {
  std::string text;
  for (std::int32_t line = 1; text.size() < kLongReportBytes; ++line) {
    const std::string number = std::to_string(10000 + line).substr(1);
    text += "23:14:07 file " + number + " of 0400 copied to C:\\in, checksum verified\r\n";
  }
  return text;
}

}  // namespace

std::span<const CompanyName> Companies() {
  return kCompanies;
}

std::string StationName(const CompanyName& company, std::int64_t n) {
  constexpr auto kPlaces = static_cast<std::int64_t>(kPlacesPerCompany);
  const std::string number = std::to_string(n / kPlaces + 1);
  const std::string_view place = company.places[static_cast<std::size_t>(n % kPlaces)];
  return std::string(place) + (number.size() < 2 ? " 0" : " ") + number;
}

std::string StationIdentifier(std::int32_t stationId) {
  const std::string number = std::to_string(stationId);
  return "ST-" + std::string(5 - std::min<std::size_t>(5, number.size()), '0') + number;
}

std::span<const std::string_view> OddStationNames() {
  return kOddStations;
}

std::span<const Failure> FailuresOf(Risk risk) {
  return std::ranges::find(kFailures, risk, &Failures::risk)->failures;
}

std::span<const std::string_view> SuccessReports() {
  return kSuccess;
}

std::string Fill(std::string_view text, std::string_view mark, std::string_view replacement) {
  std::string filled(text);
  for (std::size_t at = filled.find(mark); at != std::string::npos; at = filled.find(mark, at + replacement.size())) {
    filled.replace(at, mark.size(), replacement);
  }
  return filled;
}

std::span<const std::string_view> WaitStates() {
  return kWaits;
}

std::span<const std::string> OddReports() {
  static const std::vector<std::string> reports = [] {
    std::vector<std::string> texts(std::begin(kOddTexts), std::end(kOddTexts));
    texts.push_back(LongReport());
    return texts;
  }();
  return reports;
}

}  // namespace quorvel::tools
