// A viewer without a front end, over the small history, whose every call outwards can be counted and made to fail.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "scenario/Scenario.h"
#include "scenario/ScenarioHeadless.h"
#include "support/SmallHistory.h"

namespace quorvel::test {

// The title of messages that tell of errors.
inline constexpr std::string_view kErrorTitle = "Error - Vendrix Ostrana";

// One call of the viewer to a record source or to the platform.
struct OutwardCall {
  std::string name;
  bool restoresPointer = false;
};

// What a call fails with: an error of this number, or, for kNoMemory, std::bad_alloc.
inline constexpr std::int32_t kNoMemory = 0;

class Desk {
 public:
  Desk();

  // A new viewer in place of the one before; nothing is recorded of it, and nothing fails, before a Make.
  void Begin(std::string_view lines);

  // Runs one line of the script language and gives what it prints. The calls whose numbers, from 0, are in `failing`
  // fail with `number`. ScriptError when nobody could make that gesture.
  std::string Make(std::string_view line, std::vector<std::size_t> failing = {}, std::int32_t number = kNoMemory);

  // The calls that the last Make saw, in their order.
  const std::vector<OutwardCall>& calls() const { return calls_; }
  // The messages that tell of errors.
  std::vector<scenario::ShownMessage> TakeMessages();
  // The error log, which is gone afterwards.
  std::string TakeLog();
  // The pointer that was set last; the default one while none was.
  MousePointer Pointer();
  bool AtWork() { return session().viewer().viewer().AtWork(); }

  // All that a user sees.
  std::string View();

  scenario::Session& session() { return scenario_.session(); }

 private:
  void Call(std::string_view name);

  SmallHistory history_;
  scenario::ScenarioHeadless port_;
  scenario::Scenario scenario_{port_};
  std::vector<OutwardCall> calls_;
  std::vector<std::size_t> failing_;
  std::int32_t number_ = kNoMemory;
  bool watching_ = false;
  MousePointer pointer_ = MousePointer::kDefault;
};

template <class Do>
void ForEachLine(std::string_view lines, Do&& run) {
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    run(lines.substr(0, end));
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
}

// Texts of the errors that a Desk raises, as a log or a message tells them.
std::string DescriptionOf(std::string_view call, std::int32_t number);
std::int32_t NumberTold(std::int32_t number);

}  // namespace quorvel::test
