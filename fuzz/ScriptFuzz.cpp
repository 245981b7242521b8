// Lines of scripts: taken apart without harm, and what a print writes can be typed again.
#include <string>

#include "fuzz/Check.h"
#include "scenario/Script.h"
#include "scenario/Values.h"

namespace quorvel::fuzz {
namespace {

using scenario::ScriptError;

template <class Body>
void MayBeWrong(Body&& body) {
  try {
    body();
  } catch (const ScriptError& problem) {
    Check(*problem.what() != '\0', "what is wrong is said");
  }
}

// As a person would type what a print shows.
std::string Quoted(std::string_view data) {
  std::string word = "\"";
  for (const char c : scenario::Escaped(data)) word.append(c == '"' ? "\\" : "").push_back(c);
  return word + '"';
}

void PrintsCanBeTyped(std::string_view data) {
  const std::string escaped = scenario::Escaped(data);
  Check(escaped.find_first_of("\t\r\n") == std::string::npos, "a print is one line");
  const std::vector<std::string> words = scenario::SplitWords(Quoted(data) + " end");
  Check(words.size() == 2 && words[0] == data && words[1] == "end", "and gives the data back");
  std::string lines = scenario::EscapedLines(data);
  std::erase(lines, '\n');
  Check(lines == escaped, "a print of lines is the same in pieces");
}

void LinesAreCommands(std::string_view line) {
  const scenario::Command command = scenario::ParseCommand(line);
  const std::vector<std::string> words = scenario::SplitWords(line);
  Check(command.arguments.size() + 1 == words.size() || (words.empty() && command.name.empty()),
        "a command is its words");
  std::string again;
  for (const std::string& word : words) again.append(Quoted(word)).append(" ");
  Check(scenario::SplitWords(again) == words, "words come back from a line of them");
}

void ValuesAreReadOrRefused(std::string_view text) {
  MayBeWrong([&] {
    Check(scenario::NumberOf(std::to_string(scenario::NumberOf(text))) == scenario::NumberOf(text),
          "a number comes back");
  });
  MayBeWrong([&] {
    const std::int32_t number = scenario::ErrorNumberOf(text);
    if (number >= 0 && number <= 9'999'999) return;
    Check(number >= 0 || scenario::ErrorNumberOf(scenario::ErrorNumberText(number)) == number, "so does an error's");
  });
  MayBeWrong([&] {
    const std::string time = scenario::TimeText(scenario::TimeOf(text));
    Check(time.starts_with(text), "and a time of day");
  });
  MayBeWrong([&] { static_cast<void>(scenario::DateOf(text)); });
  MayBeWrong([&] { static_cast<void>(scenario::DecimalOf(text)); });
  MayBeWrong([&] { static_cast<void>(scenario::FlagOf(text)); });
}

}  // namespace
}  // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;  // NOLINT(google-build-using-namespace): the target is part of it
  const std::string_view text = TextOf(data, size);
  PrintsCanBeTyped(text);
  for (const std::string_view line : LinesOf(text)) MayBeWrong([&] { LinesAreCommands(line); });
  ValuesAreReadOrRefused(text);
  return 0;
}
