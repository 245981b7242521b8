// What a script cannot do stops it with file and line; what it can do is in tests/scenarios.
#include "scenario/Scenario.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "scenario/ProgramMain.h"
#include "scenario/ScenarioHeadless.h"
#include "support/SmallHistory.h"

namespace quorvel::scenario {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

// Source and description of each error as their first words alone.
std::string WithoutTextsOfErrors(const std::string& printed) {
  std::istringstream in(printed);
  std::string kept;
  for (std::string line; std::getline(in, line);) {
    const bool text = line.starts_with("source ") || line.starts_with("description ");
    kept += (text ? line.substr(0, line.find(' ')) : line) + "\n";
  }
  return kept;
}

class ScenarioTest : public testing::Test {
 protected:
  std::string Write(std::string_view script) {
    const std::filesystem::path file = folder_.path() / "test.scn";
    std::ofstream(file) << script;
    return file.string();
  }

  // Runs a script after the process view was built.
  bool Run(const std::string& script) {
    ScenarioHeadless port;
    Scenario scenario(port);
    scenario.Open(history_.url());
    out_.str("");
    problems_.str("");
    return scenario.Run(Write("set p_FromType 4\ncall m_GetLogByProcess\n" + script), out_, problems_);
  }

  test::TemporaryFolder folder_;
  test::SmallHistory history_;
  std::ostringstream out_;
  std::ostringstream problems_;
};

struct Refusal {
  std::string script;
  std::string problem;
};

TEST_F(ScenarioTest, WhatNobodyCouldDoStopsTheScript) {
  const std::string kDialog = "set p_IdAppLog 100\ncall m_GetDetail\n";
  const Refusal refusals[] = {
      {"tock", "No such command: tock"},
      {"doubleclick x", "No such row: x"},
      {"column 12", "No such column: 12"},
      {"print cell LPROC|11|0|101 1", "No such row: LPROC|11|0|101"},
      {"expand", "Use: expand KEY"},
      {"print everything", "No such print: everything"},
      {"set p_Nothing 1", "No such property: p_Nothing"},
      {"set p_ListCount 1", "A host cannot set p_ListCount"},
      {"call m_GetLogAll", "Use: call m_GetLogAll STATE"},
      {"click LPROC|99", "No such node: LPROC|99"},
      {"click LPROC|11|0|101", "The node is below a closed one: LPROC|11|0|101"},
      {"select LPROC|99", "No such row: LPROC|99"},
      {"tab Details", "No such tab: Details"},
      {"option txtDuring 3", "Nobody can see txtDuring"},
      {"option cboState Never", "cboState has no row Never"},
      {"option cmdRefresh 1", "cmdRefresh is no option"},
      {"press cboState", "cboState is no button"},
      {"scroll HScroll 10", "Nobody can see HScroll"},
      {"drop", "Nothing is held"},
      {"fail GetNothing 1 5", "Nothing that can fail: GetNothing"},
      {"status CloseProcessLogs 1 1", "No query: CloseProcessLogs"},
      {"fail GetProcessLogs 0 5", "Uses count from 1: 0"},
      {"close\nrefresh", "The viewer was closed"},
      {"sql \"SELEC 1\"", "syntax error"},
      {"size dialog 600 400", "No dialog is open"},
      {kDialog + "tab Users", "The dialog is open"},
      {kDialog + "size 900 600", "The dialog is open"},
      {kDialog + "focus none", "The dialog is open"},
      {kDialog + "press cmdRefresh", "it has no button cmdRefresh"},
      {kDialog + "press cmdNext", "Nobody can use cmdNext, it is disabled"},
      {kDialog + "key Tab", "The focus would leave the text"},
  };
  for (const Refusal& refusal : refusals) {
    EXPECT_FALSE(Run(refusal.script + "\nprint caption\n")) << refusal.script;
    EXPECT_THAT(problems_.str(), HasSubstr(refusal.problem));
    EXPECT_THAT(out_.str(), Not(HasSubstr("print caption"))) << refusal.script;
  }
}

TEST_F(ScenarioTest, AProblemComesWithItsLineAndAfterWhatWasPrinted) {
  EXPECT_FALSE(Run("print caption\n\n# a comment\n  tab Details\n"));
  EXPECT_THAT(problems_.str(), HasSubstr("test.scn:6: No such tab: Details\n"));
  EXPECT_THAT(out_.str(), EndsWith("> print caption\nProcesses (3)\n"));
}

TEST_F(ScenarioTest, FaultsWaitForTheirTurnAndHappenOnce) {
  EXPECT_TRUE(
      Run("fail GetProcessLogs 2 80040205\nfail GetProcessLogs 3 5\nstatus GetProcessLogs 4 9\nprint calls\n"
          "call m_GetLogAll 1\ncall m_GetLogAll 2\ncall m_GetLogAll 3\ncall m_GetLogAll 0\ncall m_GetLogAll 5\n"))
      << problems_.str();
  const std::string text = out_.str();
  EXPECT_EQ(WithoutTextsOfErrors(text.substr(text.find("> call m_GetLogAll 1"))),
            "> call m_GetLogAll 1\nstate = 1\n"
            "> call m_GetLogAll 2\nerror 80040205\nsource\ndescription\n"
            "> call m_GetLogAll 3\nerror 5\nsource\ndescription\n"
            "> call m_GetLogAll 0\nstate = 0\n"
            "> call m_GetLogAll 5\nstate = 5\n");
}

TEST_F(ScenarioTest, TheProgramTellsByItsExitCodeWhatCameOfIt) {
  ScenarioHeadless port;
  const auto run = [&](const std::vector<std::string>& arguments) {
    return ProgramMain(port, arguments, out_, problems_);
  };
  EXPECT_EQ(run({"--history", history_.url(), Write("call m_GetLogByProcess\nprint caption\n")}), 0);
  EXPECT_THAT(out_.str(), EndsWith("Processes (3)\n"));
  EXPECT_EQ(run({Write("nonsense\n")}), 1);
  EXPECT_EQ(run({"--history", "sqlite:" + (folder_.path() / "missing.db").string(), Write("print caption\n")}), 1);
  EXPECT_EQ(run({(folder_.path() / "missing.scn").string()}), 1);
  EXPECT_EQ(run({}), 2);
  EXPECT_EQ(run({"--headless", "x"}), 2);
}

}  // namespace
}  // namespace quorvel::scenario
