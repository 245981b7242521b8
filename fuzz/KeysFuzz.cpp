// Keys of nodes and rows: taken apart, put together, and read as what they stand for, whatever stands in them.
#include <string>

#include "control/Routing.h"
#include "fuzz/Check.h"
#include "list/Classification.h"
#include "list/RowFacts.h"
#include "tree/AlarmTree.h"
#include "tree/BackupTree.h"
#include "tree/ConnectionTree.h"
#include "tree/ImportTree.h"
#include "tree/NavigationContext.h"
#include "tree/Place.h"
#include "tree/ProcessTree.h"
#include "tree/TaskTree.h"
#include "tree/UserTree.h"
#include "util/KeyNames.h"
#include "util/PublicFunctions.h"

namespace quorvel::fuzz {
namespace {

constexpr std::string_view kAnyField = "?";

std::string Joined(const std::vector<std::string_view>& fields) {
  std::string key;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) key.append(util::kKeySeparator);
    key.append(fields[i]);
  }
  return key;
}

void FieldsFitTogether(std::string_view key) {
  const std::vector<std::string_view> fields = util::SplitKey(key);
  Check(Joined(fields) == key, "a key is its fields");
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto position = static_cast<std::int32_t>(i + 1);
    Check(util::Identifiant(key, position) == fields[i], "a field stands where it was split");
    MayRefuse([&] {
      const std::int32_t number = util::IdentifiantNumber(key, position);
      Check(util::IdentifiantNumber(std::to_string(number), 1) == number, "a number is read as it was written");
    });
  }
  Check(util::Identifiant(key, 0).empty(), "there is no field in front of the first");
  Check(util::Identifiant(key, static_cast<std::int32_t>(fields.size()) + 1).empty(), "nor behind the last");
}

void PatternsMatch(std::string_view key, std::string_view pattern) {
  const std::vector<std::string_view> fields = util::SplitKey(key);
  const std::vector<std::string_view> wanted = util::SplitKey(pattern);
  Check(util::IsKeyNode(fields, fields), "a key matches itself");
  Check(util::IsKeyNode(fields, std::vector(fields.size(), kAnyField)), "and as many fields of any kind");
  if (util::IsKeyNode(fields, wanted)) Check(fields.size() == wanted.size(), "what matches has as many fields");
}

void SeparatorsOfAnyKind(std::string_view key, std::string_view separator) {
  const std::string_view field = util::Identifiant(key, 2, separator);
  Check(field.empty() || (field.data() >= key.data() && field.data() + field.size() <= key.data() + key.size()),
        "a field lies in its key");
}

void NamesComeBack(std::string_view name) {
  const std::string field = util::FieldOfName(name);
  Check(field.find(util::kKeySeparator) == std::string::npos, "a name is one field");
  if (name.find(util::kSeparatorInName) == std::string_view::npos) {
    Check(util::NameOfField(field) == name, "and comes back from it");
  }
}

// The key that the steps of a place make, as a node's children are named.
std::string KeyOf(const tree::Place& place) {
  std::string key;
  for (const tree::PlaceStep& step : place) {
    if (!step.fields.starts_with(util::kKeySeparator)) key.clear();
    key.append(step.fields);
  }
  return key;
}

void PlacesAreWays(std::string_view key, std::string_view left) {
  const tree::Place place = tree::PlaceOfKey(key);
  Check(key.starts_with(KeyOf(place)), "a place leads along its key");
  for (const tree::PlaceStep& step : place) Check(!step.fields.empty(), "each step leads further");
  const tree::Place equivalent = tree::EquivalentPlace(left, key);
  Check(equivalent.size() <= place.size(), "an equivalent place is on the way");
}

void ContextKeepsWhatItTook(std::string_view first, std::string_view second) {
  const widgets::TreeView tree("tvMotherList");
  tree::NavigationContext context;
  context.SaveContextLog(first, tree);
  context.SaveContextLog(second, tree);
  tree::NavigationContext again;
  again.SaveContextLog(context.ProcessesKey(), tree);
  Check(again.ProcessesKey() == context.ProcessesKey(), "a context comes back from the key that it makes");
  again.SaveContextLog(context.UsersKey(), tree);
  Check(again.UsersKey() == context.UsersKey(), "in the other view too");
  again.SaveContextLog(context.ConnectionsKey(46346.25, 7), tree);
  Check(again.ContextCommunication == "7" && again.ProcessesKey() == context.ProcessesKey(),
        "and from that of a connection");
}

void IsReadOrRefused(std::string_view key) {
  static_cast<void>(RouteOf(key));
  static_cast<void>(list::IsCurrentProcessName(key));
  static_cast<void>(list::IsImportName(key));
  static_cast<void>(list::RunKeyIn(key));
  static_cast<void>(tree::CaptionOfSubNodes(key));
  const util::Period period{40000, 50000};
  MayRefuse([&] { static_cast<void>(tree::ReadRunKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::ReadGroupKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::ReadPartKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::ReadTaskKey(key, 0)); });
  MayRefuse([&] { static_cast<void>(tree::ReadProcessKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::StepLogOfKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::ReadImportKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::ReadAlarmKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::CommunicationOfKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::SaveOfKey(key)); });
  MayRefuse([&] { static_cast<void>(tree::FolderOfKey(key)); });
  MayRefuse([&] {
    const util::Period asked = tree::PeriodOfConnections(key, period);
    Check(asked.from >= period.from && asked.to <= period.to, "a node asks for no more than the view holds");
  });
  MayRefuse([&] {
    const tree::BackupsOfNode asked = tree::ReadBackupKey(key, period);
    Check(asked.period.from >= period.from && asked.period.to <= period.to, "nor does one of backups");
  });
}

}  // namespace
}  // namespace quorvel::fuzz

// Two lines: a key, and another, or a pattern, a separator, a name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;  // NOLINT(google-build-using-namespace): the target is part of it
  std::string_view text = TextOf(data, size);
  const std::string_view key = TakeLine(text);
  const std::string_view other = TakeLine(text);
  FieldsFitTogether(key);
  PatternsMatch(key, other);
  SeparatorsOfAnyKind(key, other);
  NamesComeBack(other);
  PlacesAreWays(key, other);
  ContextKeepsWhatItTook(key, other);
  IsReadOrRefused(key);
  return 0;
}
