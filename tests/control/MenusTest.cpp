// The rules of both menus.
#include "control/Menus.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvel {
namespace {

class MenusTest : public testing::Test {
 protected:
  // Names of the visible entries without separators, those that are disabled in brackets.
  std::string Shown(const MenuFacts& facts) {
    state_ = ApplyMenuRules(facts, list_, tree_);
    std::string shown;
    for (const widgets::Menu* const menu : {&list_, &tree_}) {
      for (const widgets::MenuEntry& entry : menu->entries()) {
        if (!entry.visible || entry.caption == "-") continue;
        const std::string name = entry.name.substr(entry.name.rfind("mnu_") + 4);
        shown.append(shown.empty() ? "" : " ").append(entry.enabled ? name : "[" + name + "]");
      }
    }
    return shown;
  }

  widgets::Menu list_{"mnu_Popup", "", ListMenuEntries()};
  widgets::Menu tree_{"mnu_PopupTV", "", TreeMenuEntries()};
  MenuState state_;
};

TEST_F(MenusTest, ProcessesOfferReportAndStop) {
  EXPECT_EQ(Shown({.tab = "Processes", .serverMode = true}),
            "[open] copy select_all [stop_execution] [popupTV_Expand_all] [popupTV_Collapse_all]");
  EXPECT_FALSE(state_.f_blnMenuVisible);
  EXPECT_EQ(
      Shown(
          {.tab = "Processes", .nodeKind = "LPROC", .nodes = 9, .rows = 3, .selectedRows = 1, .currentProcess = true}),
      "open copy report select_all stop_execution popupTV_Expand_all popupTV_Collapse_all");
  EXPECT_TRUE(state_.f_blnMenuVisible);
  EXPECT_EQ(Shown({.tab = "Users", .nodeKind = "LUSR", .nodes = 9, .rows = 3, .selectedRows = 2}),
            "[open] copy select_all [stop_execution] popupTV_Expand_all popupTV_Collapse_all");
  EXPECT_FALSE(state_.f_blnExecutionReportEnabled);
}

TEST_F(MenusTest, OtherTabsHideWhatIsNotTheirs) {
  constexpr const char* kTree = " popupTV_Expand_all popupTV_Collapse_all";
  const auto of = [&](MenuFacts facts) {
    facts.nodes = 1;
    facts.selectedRows = 1;
    const std::string shown = Shown(facts);
    return shown.substr(0, shown.size() - std::string(kTree).size());
  };
  EXPECT_EQ(of({.tab = "Connections", .nodeKind = "LCOMM", .currentProcess = true}), "open copy select_all");
  EXPECT_FALSE(list_.Entry("mnu_sep2").visible);
  EXPECT_EQ(of({.tab = "System"}), "open copy [open_file] select_all");
  EXPECT_EQ(of({.tab = "System", .attachment = true}), "open copy open_file select_all");
  EXPECT_EQ(of({.tab = "Alarms", .nodeKind = "LOGAUSR", .alarm = list::AlarmMark::kActive, .mayChangeAlarms = true}),
            "open copy select_all")
      << "alarms are dealt with by day";
  EXPECT_EQ(of({.tab = "Backups", .nodeKind = "LBCKST"}), "open copy select_all [stop_execution]");
  EXPECT_TRUE(list_.Entry("mnu_sep2").visible) << "what one tab hides the next one shows again";
}

TEST_F(MenusTest, AlarmsFollowRightStateAndProcess) {
  const auto enabled = [&](MenuFacts facts) {
    facts.tab = "Alarms";
    facts.nodeKind = "LOGALRM";
    Shown(facts);
    return std::string(state_.f_blnAcquittedAlarmEnabled ? "A" : "") + (state_.f_blnActivatedAlarmEnabled ? "I" : "") +
           (state_.f_blnGotoProcessEnabled ? "G" : "");
  };
  using list::AlarmMark;
  EXPECT_EQ(enabled({.selectedRows = 1, .alarm = AlarmMark::kActive, .mayChangeAlarms = true}), "A");
  EXPECT_EQ(enabled({.selectedRows = 1, .alarm = AlarmMark::kAcknowledged, .mayChangeAlarms = true}), "I");
  EXPECT_EQ(enabled({.selectedRows = 2, .alarm = AlarmMark::kActive, .mayChangeAlarms = true}), "AI");
  EXPECT_EQ(enabled({.selectedRows = 0, .mayChangeAlarms = true}), "");
  EXPECT_EQ(enabled({.selectedRows = 2, .alarm = AlarmMark::kActive}), "") << "without the right";
  EXPECT_EQ(enabled({.selectedRows = 1, .processReference = true}), "G");
  EXPECT_EQ(enabled({.selectedRows = 1, .serverMode = false}), "G") << "a station does not look";
  EXPECT_FALSE(list_.Entry("mnu_stop_execution").visible);
  EXPECT_TRUE(list_.Entry("mnu_open_file").visible);
}

}  // namespace
}  // namespace quorvel
