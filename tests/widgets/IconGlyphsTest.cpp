// The vocabulary of icons: it has every key that the library can produce, and no picture twice.
#include "widgets/IconGlyphs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>
#include <string>
#include <utility>

#include "list/Classification.h"
#include "list/RunOutcome.h"
#include "tree/StateGroups.h"

namespace quorvel::widgets {
namespace {

using list::Flag;
constexpr Flag kFlags[] = {0, -1};

constexpr const char* kTaskTypes[] = {"ControlServer",
                                      "ControlStation",
                                      "Synchro",
                                      "ExportSQLToFileServer",
                                      "FtpExplicitServer",
                                      "ExportSQLToFileStation",
                                      "FtpExplicitStation",
                                      "Inventory",
                                      "MailAgent",
                                      "BatchServer",
                                      "BatchStation",
                                      "Logiciel",
                                      "Telecollecte",
                                      "Teledistribution",
                                      "TransferSpecific",
                                      "ManageServer",
                                      "ManageStation",
                                      "SupervisionServer",
                                      "SupervisionStation",
                                      "BackupServer",
                                      "BackupStation",
                                      "Restore",
                                      "SqlServer",
                                      "SqlStation",
                                      "MessageQueuing",
                                      "FileManagementServer",
                                      "FileManagementStation",
                                      "no such type"};
constexpr const char* kWaitStates[] = {"",
                                       "Waiting com",
                                       "Waiting station in com",
                                       "Waiting station out com",
                                       "Waiting execution in com",
                                       "Waiting execution out com",
                                       "Waiting prerequisite",
                                       "To run"};

using Keys = std::set<std::string>;

void AddTasksAndSteps(Keys& keys) {
  for (const std::int32_t scope : {0, 1}) {
    for (std::int32_t kind = 0; kind <= 4; ++kind) keys.emplace(list::GetLogIconeStep(kind, scope));
    for (const char* type : kTaskTypes) {
      for (const Flag notExecuted : kFlags) {
        for (const Flag waiting : kFlags) keys.emplace(list::GetLogIconeTask(type, notExecuted, scope, waiting, false));
      }
    }
  }
}

void AddAlarms(Keys& keys) {
  for (std::int32_t action = 0; action <= 6; ++action) {
    for (const char* origin : {"Server", "Station"}) {
      for (const Flag seen : kFlags) keys.emplace(list::GetLogIconeAlarm(action, origin, seen));
    }
  }
}

void AddStations(Keys& keys) {
  for (const list::UserFlags& flags :
       {list::UserFlags{.ok = -1}, {.notOk = -1}, {.unknown = -1}, {.executed = -1}, list::UserFlags{}}) {
    keys.emplace(list::ClassifyUser(flags, "").icon);
  }
  for (const char* wait : kWaitStates) keys.emplace(list::ClassifyUser({.inProgress = -1}, wait).icon);
  for (const auto group : {list::StateGroup::kOk, list::StateGroup::kNotOk, list::StateGroup::kInProgress,
                           list::StateGroup::kNotExecuted, list::StateGroup::kUnknown}) {
    keys.emplace(tree::StateGroupImage(group));
  }
}

void AddRuns(Keys& keys) {
  for (const char* wait : kWaitStates) keys.emplace(list::GetProcessIconName({.inProgress = true}, wait));
  for (const list::StatePresence& present : {list::StatePresence{.notOk = true}, {.ok = true}, {.unknown = true}}) {
    keys.emplace(list::GetProcessIconName(present, ""));
  }
}

// Keys that builders write themselves.
const Keys kFixed = {"Process",    "ProcessStation", "UserImport",    "ImportManualServer", "NoAlarm",
                     "Alarm",      "AlarmInfos",     "Command",       "CommandOk",          "CommandNONOK",
                     "ascending",  "descending",     "ascendingD",    "descendingD",        "CommandStart",
                     "DetailCopy", "DetailNext",     "DetailPrevious"};

TEST(IconGlyphs, HaveEveryKeyThatIsProducedAndNoOther) {
  Keys produced = kFixed;
  AddTasksAndSteps(produced);
  AddAlarms(produced);
  AddStations(produced);
  AddRuns(produced);
  for (const std::string& key : produced) EXPECT_TRUE(FindIcon(key)) << key;
  const auto keys = IconKeys();
  EXPECT_EQ(Keys(keys.begin(), keys.end()), produced);
  EXPECT_EQ(keys.size(), produced.size()) << "no key twice";
}

TEST(IconGlyphs, TakeASuffixOnlyWhereItMeansSomething) {
  for (const char* key : {"", "process", "Proces", "Processes", "Global", "NotExec", "ProcessGlobal", "StepNotExec",
                          "StepNotExecGlobal", "StepGlobalGlobal", "TelecolGlobalNotExec", "TaskWaitingServerNotExec",
                          "AlarmFromServerGlobal", "Telecol ", "ascendinG"}) {
    EXPECT_FALSE(FindIcon(key)) << key;
  }
  const auto executed = FindIcon("TelecolGlobal");
  const auto notExecuted = FindIcon("TelecolNotExecGlobal");
  ASSERT_TRUE(executed && notExecuted);
  EXPECT_EQ(executed->base.data(), notExecuted->base.data()) << "one glyph, composed";
  EXPECT_FALSE(executed->quiet);
  EXPECT_TRUE(notExecuted->quiet);
}

bool SameGlyph(Glyph a, Glyph b) {
  return std::ranges::equal(a, b);
}

bool SameBadge(const IconBadge* a, const IconBadge* b) {
  return a == b || (a != nullptr && b != nullptr && SameGlyph(a->glyph, b->glyph));
}

bool SamePicture(const IconPicture& a, const IconPicture& b) {
  return a.quiet == b.quiet && SameGlyph(a.base, b.base) && std::ranges::equal(a.Badges(), b.Badges(), SameBadge);
}

TEST(IconGlyphs, ShowNoPictureTwice) {
  const auto keys = IconKeys();
  for (std::size_t i = 0; i < keys.size(); ++i) {
    for (std::size_t j = i + 1; j < keys.size(); ++j) {
      EXPECT_FALSE(SamePicture(*FindIcon(keys[i]), *FindIcon(keys[j]))) << keys[i] << " and " << keys[j];
    }
  }
}

struct Extent {
  float low = kIconGrid;
  float high = 0;
  void Take(float centre, float around) {
    low = std::min(low, centre - around);
    high = std::max(high, centre + around);
  }
};

void TakeArc(Extent& extent, std::span<const float> arc, float around) {
  constexpr int kSteps = 32;
  for (int i = 0; i <= kSteps; ++i) {
    const float angle = (arc[4] + arc[5] * static_cast<float>(i) / kSteps) * std::numbers::pi_v<float> / 180;
    extent.Take(arc[0] + arc[2] * std::cos(angle), around);
    extent.Take(arc[1] + arc[3] * std::sin(angle), around);
  }
}

Extent ExtentOf(const IconShape& shape) {
  const auto n = shape.numbers();
  const float around = shape.stroke / 2;
  Extent extent;
  switch (shape.kind) {
    case ShapeKind::kPolygon:
    case ShapeKind::kPolyline:
      for (const float number : n) extent.Take(number, around);
      break;
    case ShapeKind::kEllipse:
      extent.Take(n[0], n[2] + around);
      extent.Take(n[1], n[3] + around);
      break;
    case ShapeKind::kArc:
      TakeArc(extent, n, around);
      break;
    case ShapeKind::kBox:
      for (const float number : {n[0], n[1], n[0] + n[2], n[1] + n[3]}) extent.Take(number, around);
      break;
  }
  return extent;
}

void ExpectInsideTheGrid(Glyph glyph, const std::string& key) {
  for (const IconShape& shape : glyph) {
    const Extent extent = ExtentOf(shape);
    EXPECT_GE(extent.low, 0) << key;
    EXPECT_LE(extent.high, kIconGrid) << key;
  }
}

TEST(IconGlyphs, AreNotClipped) {
  for (const std::string& key : IconKeys()) {
    const auto picture = FindIcon(key);
    ExpectInsideTheGrid(picture->base, key);
    for (const IconBadge* badge : picture->Badges()) {
      if (badge != nullptr) ExpectInsideTheGrid(badge->glyph, key);
    }
  }
}

}  // namespace
}  // namespace quorvel::widgets
