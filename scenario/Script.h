// The text of a scenario, taken apart into commands.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::scenario {

// What is wrong with a script: a command that cannot be read, is not known, or asks for what a user could not do. The
// runner adds file and line.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One line of a script.
struct Command {
  std::string text;  // as it stands in the script, without the blanks around it
  std::string name;  // the first word
  std::vector<std::string> arguments;
};

// The words of one line: parted by blanks and tabs, in "..." where they hold some. \t \r \n \\ and \" stand for tab,
// line ends, backslash and quote; any other backslash for itself. A word that begins with # ends the line. ScriptError
// for a quote that is not closed.
std::vector<std::string> SplitWords(std::string_view line);

// The words of a line as a command; empty lines and comments give one without a name.
Command ParseCommand(std::string_view line);

// Data in a print: tab, carriage return, line feed and backslash as \t \r \n \\.
std::string Escaped(std::string_view text);

// Text of several lines in a print: escaped, and a new line after each \n. Ends with a line end unless it is empty.
std::string EscapedLines(std::string_view text);

}  // namespace quorvel::scenario
