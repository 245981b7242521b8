// Every call of the viewer to a record source or to the platform fails once: the error is told as it should be, and the
// viewer goes on as if nothing had been.
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "datasource/Contract.h"
#include "datasource/ErrorLog.h"
#include "faults/Desk.h"
#include "faults/Gestures.h"
#include "platform/Error.h"
#include "scenario/Values.h"

namespace quorvel::test {
namespace {

constexpr std::string_view kConcurrentText =
    "Update impossible at this moment because another user is modifying the same data.\r\nPlease try again later.";
constexpr std::int32_t kSystemError = 5;

// Procedures that nobody waits for: they log and go on.
const std::set<std::string_view> kSilent{"MajStatusBarInfrmMain",       "strGetNumberAndPurcent",
                                         "SetPurcentAndIconToTreeview", "SetIconToTreeview",
                                         "GetNextContextKeyInLogs",     "ShowNotice"};
// Procedures that show their errors themselves, whoever called them.
const std::set<std::string_view> kShowing{"dlgLVDetail.ShowLVDetail()", "dlgLVDetail.m_SetInformations()",
                                          "lvMotherList_DblClick"};

// Calls that another call makes good, unless the memory is short.
const std::set<std::string_view> kMadeGood{"OpenFile"};

// What other readers of the contract ask for, and the viewer does not.
const std::set<std::string_view> kNeverAsked{"GetProcessLogsByName"};

// How an error came out.
enum class Told { kNobody, kLog, kUser, kHost };

// What the log holds after one error of this number.
std::string LogOf(std::int32_t number, std::string_view source, std::string_view description) {
  const std::string line(50, '-');
  const datasource::ErrorCodes codes = datasource::SplitErrorNumber(number);
  std::string text = "100,30\r\n" + line + "\r\nErrorDate        : 2026-11-20 12:00:00\r\nErrorType        : E\r\n";
  text.append("ErrorCode        : ").append(std::to_string(codes.application));
  text.append("\r\nErrorSystem      : ").append(std::to_string(codes.system));
  text.append("\r\nErrorText        : \r\nErrorSource      : \r\n\t").append(source);
  text.append("\r\nErrorDescription : ").append(description);
  return text.append("\r\n").append(line).append("\r\n");
}

std::string MessageOf(std::int32_t number, std::string_view source, std::string_view description) {
  std::string text = "- Source: \r\n\t";
  text.append(source).append("\r\n\r\n- Number: ").append(std::to_string(number));
  return text.append("\r\n\r\n- Description: ").append(description);
}

// The text between two others; "" when they are not there.
std::string Between(std::string_view text, std::string_view begin, std::string_view end) {
  const std::size_t from = text.find(begin);
  if (from == std::string_view::npos) return {};
  text.remove_prefix(from + begin.size());
  return std::string(text.substr(0, std::min(text.find(end), text.size())));
}

// The outermost label of a chain, without what all labels of the control begin with.
std::string HeadOf(std::string_view source) {
  constexpr std::string_view kEveryLabel = "Quorvel: ";
  constexpr std::string_view kControl = "ucProcessLog.";
  if (!source.starts_with(kEveryLabel)) return {};
  source.remove_prefix(kEveryLabel.size());
  if (source.starts_with(kControl)) source.remove_prefix(kControl.size());
  return std::string(source.substr(0, source.find_first_of("\r\\")));
}

// The first line that differs.
std::string Difference(std::string_view wanted, std::string_view is) {
  while (!wanted.empty() || !is.empty()) {
    const std::string_view wantedLine = wanted.substr(0, wanted.find('\n'));
    const std::string_view line = is.substr(0, is.find('\n'));
    if (line != wantedLine) return std::string(line).append("\nin place of ").append(wantedLine);
    wanted.remove_prefix(std::min(wantedLine.size() + 1, wanted.size()));
    is.remove_prefix(std::min(line.size() + 1, is.size()));
  }
  return {};
}

// One gesture, with one of its calls failing.
class Point {
 public:
  Point(Desk& desk, const Gesture& gesture, std::size_t at) : desk_(desk), gesture_(gesture), at_(at) {}

  // Makes the gesture with that call failing. What is wrong with how the error came out is appended to `problems`.
  Told Fail(std::int32_t number, std::vector<std::string>& problems) {
    desk_.Begin(LinesBefore(gesture_));
    const std::string printed = desk_.Make(gesture_.line, {at_}, number);
    call_ = desk_.calls().at(at_);
    number_ = NumberTold(number);
    description_ = DescriptionOf(call_.name, number);
    messages_ = desk_.TakeMessages();
    log_ = desk_.TakeLog();
    const Told told = Outcome(printed, problems);
    if (desk_.AtWork()) problems.emplace_back("still at work");
    return told;
  }

  const OutwardCall& call() const { return call_; }

 private:
  Told Outcome(const std::string& printed, std::vector<std::string>& problems) const {
    const bool raised = printed.find("error " + scenario::ErrorNumberText(number_) + "\n") != std::string::npos;
    const bool shown = !messages_.empty();
    if (raised) {
      if (gesture_.caller != Caller::kHost) problems.emplace_back("raised out of a handler: " + printed);
      if (shown || !log_.empty()) problems.emplace_back("raised and shown or logged");
      CheckRaised(printed, problems);
      return Told::kHost;
    }
    if (messages_.size() > 1) problems.emplace_back("shown more than once");
    if (number_ == kConcurrentUpdate) {
      if (!log_.empty()) problems.emplace_back("logged");
      if (shown && messages_.front().text != kConcurrentText) problems.push_back("shown as " + messages_.front().text);
      return shown ? Told::kUser : Told::kNobody;
    }
    if (log_.empty()) {
      if (shown) problems.push_back("shown but not logged: " + messages_.front().text);
      return Told::kNobody;
    }
    CheckLogged(problems);
    return shown ? Told::kUser : Told::kLog;
  }

  void CheckRaised(const std::string& printed, std::vector<std::string>& problems) const {
    const std::string source = Between(printed, "source ", "\n");
    if (HeadOf(source) != gesture_.label) problems.push_back("raised from " + source);
    if (Between(printed, "description ", "\n") != description_) problems.push_back("described otherwise: " + printed);
  }

  void CheckLogged(std::vector<std::string>& problems) const {
    const std::string source = Between(log_, "ErrorSource      : \r\n\t", "\r\nErrorDescription");
    if (log_ != LogOf(number_, source, description_)) problems.push_back("the log is\n" + log_);
    if (number_ == kAlreadyReported) problems.emplace_back("logged though reported before");
    const std::string head = HeadOf(source);
    if (messages_.empty()) {
      if (!kSilent.contains(head)) problems.push_back("logged alone by " + head);
      return;
    }
    const bool byEntry = gesture_.caller == Caller::kUser && head == gesture_.label;
    if (!byEntry && !kShowing.contains(head)) problems.push_back("shown by " + head);
    if (messages_.front().text != MessageOf(number_, source, description_)) {
      problems.push_back("shown as " + messages_.front().text);
    }
  }

  Desk& desk_;
  const Gesture& gesture_;
  std::size_t at_;
  OutwardCall call_;
  std::int32_t number_ = 0;
  std::string description_;
  std::vector<scenario::ShownMessage> messages_;
  std::string log_;
};

struct Totals {
  std::size_t gestures = 0;
  std::size_t points = 0;
  std::size_t failed = 0;
  std::size_t survived = 0;
  std::set<std::string> names;
};

class FaultSweepTest : public testing::TestWithParam<Gesture> {
 protected:
  static void TearDownTestSuite() {
    std::cout << "fault sweep: " << totals_.gestures << " gestures, " << totals_.points << " calls of "
              << totals_.names.size() << " kinds; failed " << totals_.failed << ", survived " << totals_.survived
              << '\n';
    if (totals_.gestures < Gestures().size()) return;
    for (const datasource::QueryContract& each : datasource::Queries()) {
      EXPECT_TRUE(totals_.names.contains(std::string(each.query)) != kNeverAsked.contains(each.query))
          << "No gesture of the table asks for " << each.query;
    }
  }

  // Makes it again, or what a user makes in its place; where it cannot be made any more, a refresh.
  void MakeAgain() {
    const std::string_view lines = GetParam().again.empty() ? GetParam().line : GetParam().again;
    try {
      ForEachLine(lines, [&](std::string_view line) { desk_.Make(line); });
    } catch (const scenario::ScriptError&) {
      desk_.Make("refresh");
    }
  }

  // The views that a gesture leads to when nothing fails, made once and twice.
  void LearnViews() {
    desk_.Begin(LinesBefore(GetParam()));
    desk_.Make(GetParam().line);
    calls_ = desk_.calls();
    once_ = desk_.View();
    EXPECT_TRUE(desk_.TakeMessages().empty());
    EXPECT_EQ(desk_.TakeLog(), "");
    MakeAgain();
    twice_ = desk_.View();
  }

  std::vector<std::string> Sweep(std::size_t at) {
    std::vector<std::string> problems;
    Point point(desk_, GetParam(), at);
    const Told told = point.Fail(kSystemError, problems);
    const bool restoring = calls_[at].restoresPointer;
    const bool madeGood = kMadeGood.contains(calls_[at].name);
    if ((told == Told::kNobody) != (restoring || madeGood)) problems.emplace_back("told as it should not be");
    CheckLife(restoring, problems);
    totals_.names.insert(point.call().name);
    if (point.Fail(kNoMemory, problems) != (madeGood ? Told::kUser : told))
      problems.emplace_back("told otherwise without memory");
    CheckLife(restoring, problems);
    // Neither of these is logged, and the second is not shown either.
    const auto unlogged = [](Told kind, Told silent) { return kind == silent ? Told::kNobody : kind; };
    if (point.Fail(kConcurrentUpdate, problems) != unlogged(told, Told::kLog)) {
      problems.emplace_back("told otherwise by another writer");
    }
    CheckLife(restoring, problems);
    if (point.Fail(kAlreadyReported, problems) != unlogged(unlogged(told, Told::kLog), Told::kUser)) {
      problems.emplace_back("told what was reported before");
    }
    CheckLife(restoring, problems);
    return problems;
  }

  // After a failure: the pointer, and the next click.
  void CheckLife(bool restoring, std::vector<std::string>& problems) {
    ++totals_.failed;
    if (!restoring && desk_.Pointer() != MousePointer::kDefault) problems.emplace_back("the pointer is an hourglass");
    desk_.View();
    MakeAgain();
    if (!desk_.TakeMessages().empty() || !desk_.TakeLog().empty()) problems.emplace_back("a second error");
    const std::string view = desk_.View();
    if (view != once_ && view != twice_) problems.push_back("then it shows " + Difference(once_, view));
    if (problems.empty()) ++totals_.survived;
  }

  Desk desk_;
  std::vector<OutwardCall> calls_;
  std::string once_;
  std::string twice_;
  static inline Totals totals_;
};

TEST_P(FaultSweepTest, IsToldAndForgotten) {
  LearnViews();
  ASSERT_FALSE(calls_.empty());
  ++totals_.gestures;
  for (std::size_t at = 0; at < calls_.size(); ++at) {
    ++totals_.points;
    for (const std::string& problem : Sweep(at)) {
      ADD_FAILURE() << "call " << at << ", " << calls_[at].name << ": " << problem;
    }
    if (HasFailure()) break;
  }
}

// Where a call fails, and then another one that is made to tell of it.
TEST_P(FaultSweepTest, IsToldAsFarAsThatGoes) {
  LearnViews();
  const auto query = std::ranges::find_if(calls_, [](const OutwardCall& call) { return call.name.starts_with("Get"); });
  const auto first = static_cast<std::size_t>(query == calls_.end() ? 0 : query - calls_.begin());
  desk_.Begin(LinesBefore(GetParam()));
  const bool raised = desk_.Make(GetParam().line, {first}, kSystemError).find("error 5\n") != std::string::npos;
  const bool loggedAlone = !raised && desk_.TakeMessages().empty();
  const std::vector<OutwardCall> calls = desk_.calls();
  for (std::size_t second = first + 1; second < calls.size(); ++second) {
    desk_.Begin(LinesBefore(GetParam()));
    const std::string printed = desk_.Make(GetParam().line, {first, second}, kSystemError);
    std::vector<std::string> problems;
    const bool shown = !desk_.TakeMessages().empty();
    const bool logged = !desk_.TakeLog().empty();
    const bool told = shown || logged || printed.find("error 5\n") != std::string::npos;
    if (!told && !loggedAlone) problems.emplace_back("nobody is told");
    if (desk_.AtWork()) problems.emplace_back("still at work");
    ++totals_.points;
    CheckLife(calls[second].restoresPointer, problems);
    for (const std::string& problem : problems) {
      ADD_FAILURE() << calls[first].name << ", then " << calls[second].name << ": " << problem;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Gestures, FaultSweepTest, testing::ValuesIn(Gestures().begin(), Gestures().end()),
                         [](const auto& gesture) {
                           std::string name(gesture.param.name);
                           std::erase_if(name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; });
                           return name;
                         });

}  // namespace

void PrintTo(const Gesture& gesture, std::ostream* out) {
  *out << gesture.name;
}

}  // namespace quorvel::test
