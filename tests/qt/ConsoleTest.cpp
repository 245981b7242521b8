// The console: its command line, and what becomes of histories that open and of those that do not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <chrono>
#include <fstream>

#include "console/Console.h"
#include "console/HistorySession.h"
#include "console/ReadingNotice.h"
#include "console_core/ConsoleOptions.h"
#include "console_core/ReadingWords.h"
#include "datasource/Contract.h"
#include "qt/TreePane.h"
#include "support/SmallHistory.h"

namespace quorvel::console {
namespace {

using testing::HasSubstr;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

CommandLine Read(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "console");
  return ReadCommandLine(arguments);
}

TEST(CommandLine, IsUnderstoodOrExplained) {
  const CommandLine plain = Read({});
  ASSERT_TRUE(plain.options);
  EXPECT_EQ(plain.options->fromType, tlFromType::tlOneProcess);
  EXPECT_EQ(plain.options->processId, -1);
  const CommandLine full = Read({"--history", "sqlite:a.db", "--from-type", "tlOneAlarm", "--process-id", "12",
                                 "--size", "640x480", "--dark", "--screenshot=x.png"});
  ASSERT_TRUE(full.options);
  EXPECT_EQ(full.options->fromType, tlFromType::tlOneAlarm);
  EXPECT_EQ(full.options->size, (WindowSize{640, 480}));
  EXPECT_TRUE(full.options->dark);
  EXPECT_EQ(full.options->screenshot, "x.png");
  for (const std::vector<std::string>& wrong :
       {std::vector<std::string>{"--from-type", "tlNothing"},
        {"--size", "640"},
        {"--size", "0x1"},
        {"--process-id", "x"},
        {"--no-such"},
        {"stray"},
        {"--headless"},
        {"--report", "LPROC|1|0|1", "--output", "a.pdf"},
        {"--history", "sqlite:a.db", "--report", "LPROC|1|0|1"},
        {"--history", "sqlite:a.db", "--report", "LPROC|1|0|1", "--output", "a.txt"},
        {"--output", "a.pdf"},
        {"--history"}}) {
    const CommandLine read = Read(wrong);
    EXPECT_FALSE(read.options) << testing::PrintToString(wrong);
    EXPECT_EQ(read.exitCode, 2);
    EXPECT_FALSE(read.text.empty());
  }
  const CommandLine help = Read({"--help"});
  EXPECT_EQ(help.exitCode, 0);
  EXPECT_THAT(help.text, HasSubstr("--screenshot"));
}

class SessionTest : public testing::Test {
 protected:
  SessionTest() { window.show(); }
  int Roots() { return static_cast<qt::ProcessLogWidget*>(window.centralWidget())->tree().model()->rowCount(); }
  std::string Status() { return window.findChild<QLabel*>("Panel1")->text().toStdString(); }
  // False, and what is said about it.
  std::string Refusal(const QString& url) {
    CaptureStderr();
    const bool shown = session.OpenHistory(url);
    const std::string said = GetCapturedStderr();
    EXPECT_FALSE(shown);
    return said;
  }

  test::SmallHistory history;
  test::TemporaryFolder folder;
  ConsoleWindow window;
  HistorySession session{window, tlFromType::tlOneProcess, -1, Audience::kTerminal};
};

TEST_F(SessionTest, StaysUsableWhateverItIsAskedToOpen) {
  EXPECT_THAT(Refusal("sqlite:/no/such.db"), HasSubstr("/no/such.db"));
  const std::string text = folder.path() / "text.db";
  std::ofstream(text) << "This is not a database, whatever its name says.";
  EXPECT_THAT(Refusal(QString::fromStdString("sqlite:" + text)), HasSubstr(text));
  EXPECT_EQ(Roots(), 0);
  const QString good = QString::fromStdString(history.url());
  ASSERT_TRUE(session.OpenHistory(good));
  EXPECT_GT(Roots(), 0);
  EXPECT_THAT(Status(), HasSubstr("element"));
  EXPECT_THAT(window.windowTitle().toStdString(), HasSubstr(history.file().filename().string()));
  const int roots = Roots();
  Refusal("sqlite:/no/such.db");
  EXPECT_EQ(Roots(), roots) << "the history before is still shown";
  EXPECT_TRUE(session.OpenHistory(good)) << "and can be opened again";
  CaptureStderr();
  EXPECT_FALSE(session.ChooseTab("No such tab"));
  EXPECT_THAT(GetCapturedStderr(), HasSubstr("No such tab"));
  EXPECT_TRUE(session.ChooseTab("Processes"));
}

class ReadingTest : public testing::Test {
 protected:
  static constexpr std::chrono::milliseconds kAtOnce{0};

  void WaitUntilLong() {
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(310)) notice.Show({"GetAlarms", kAtOnce});
  }

  QLabel panel;
  ReadingNotice notice{panel};
};

TEST_F(ReadingTest, IsToldOfALongRequestUntilItEnds) {
  notice.Begin();
  notice.Show({"GetProcessLogs", kAtOnce});
  EXPECT_EQ(panel.text(), "") << "nobody waits yet";
  WaitUntilLong();
  EXPECT_EQ(panel.text(), "Reading alarms...") << "many short queries are one request";
  notice.Show({"GetProcessLogs", kAtOnce});
  EXPECT_EQ(panel.text(), "Reading runs...");
  notice.Begin();
  notice.Show({"StopExecution", kAtOnce});
  EXPECT_EQ(panel.text(), "Reading runs...") << "reads nothing";
  QCoreApplication::processEvents();
  EXPECT_EQ(panel.text(), "");
  notice.Show({"GetProcessLogs", kAtOnce});
  EXPECT_EQ(panel.text(), "") << "another request";
}

class PaintWatch final : public QObject {
 public:
  int paints = 0;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

TEST_F(ReadingTest, IsPaintedWithoutALookAtTheInput) {
  panel.resize(300, 30);
  panel.show();
  QCoreApplication::processEvents();
  PaintWatch watch;
  QLineEdit field;
  panel.installEventFilter(&watch);
  QCoreApplication::postEvent(&field, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a"));
  WaitUntilLong();
  EXPECT_EQ(panel.text(), "Reading alarms...");
  EXPECT_EQ(watch.paints, 1);
  EXPECT_EQ(field.text(), "");
}

TEST(ReadingWords, StandForEveryQueryThatReadsRows) {
  for (const datasource::QueryContract& contract : datasource::Queries()) {
    EXPECT_EQ(WordsFor(contract.query).empty(), contract.columns.empty()) << contract.query;
  }
}

TEST_F(SessionTest, WritesAPictureOfItself) {
  const QString file = QString::fromStdString(folder.path() / "console.png");
  EXPECT_TRUE(WritePicture(window, file, {}));
  EXPECT_EQ(QImage(file).size(), window.size());
  CaptureStderr();
  EXPECT_FALSE(WritePicture(window, "/no/such/folder/console.png", {}));
  EXPECT_THAT(GetCapturedStderr(), HasSubstr("/no/such/folder/console.png"));
}

}  // namespace
}  // namespace quorvel::console
