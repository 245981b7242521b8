#include "scenario/Script.h"

#include <array>
#include <optional>
#include <utility>

namespace quorvel::scenario {
namespace {

struct Escape {
  char written;
  char meant;
};
constexpr std::array kEscapes{Escape{'t', '\t'}, Escape{'r', '\r'}, Escape{'n', '\n'}, Escape{'\\', '\\'}};

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

std::string_view WithoutBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// Reads a line from its beginning to its end.
class Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}

  // Nothing at the end of the line or at a comment.
  std::optional<std::string> Next() {
    rest_ = WithoutBlanks(rest_);
    if (rest_.empty() || rest_.front() == '#') return std::nullopt;
    return rest_.front() == '"' ? Quoted() : Plain();
  }

 private:
  std::string Quoted() {
    rest_.remove_prefix(1);
    std::string word;
    while (!rest_.empty() && rest_.front() != '"') word.push_back(Character());
    if (rest_.empty()) throw ScriptError("A quote is not closed");
    rest_.remove_prefix(1);
    if (!rest_.empty() && !IsBlank(rest_.front())) throw ScriptError("A blank is missing behind a closing quote");
    return word;
  }

  std::string Plain() {
    std::string word;
    while (!rest_.empty() && !IsBlank(rest_.front())) word.push_back(Character());
    return word;
  }

  char Take() {
    const char first = rest_.front();
    rest_.remove_prefix(1);
    return first;
  }

  char Character() {
    const char first = Take();
    if (first != '\\' || rest_.empty()) return first;
    if (rest_.front() == '"') return Take();
    for (const Escape& escape : kEscapes) {
      if (escape.written != rest_.front()) continue;
      Take();
      return escape.meant;
    }
    return first;
  }

  std::string_view rest_;
};

}  // namespace

std::vector<std::string> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  Words reader(line);
  while (std::optional<std::string> word = reader.Next()) words.push_back(*std::move(word));
  return words;
}

Command ParseCommand(std::string_view line) {
  Command command{std::string(WithoutBlanks(line)), {}, SplitWords(line)};
  if (command.arguments.empty()) return command;
  command.name = std::move(command.arguments.front());
  command.arguments.erase(command.arguments.begin());
  return command;
}

std::string Escaped(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    char written = 0;
    for (const Escape& escape : kEscapes) {
      if (escape.meant == c) written = escape.written;
    }
    if (written == 0) {
      out.push_back(c);
    } else {
      out.append({'\\', written});
    }
  }
  return out;
}

std::string EscapedLines(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::size_t length = end == std::string_view::npos ? text.size() : end + 1;
    out.append(Escaped(text.substr(0, length))).push_back('\n');
    text.remove_prefix(length);
  }
  return out;
}

}  // namespace quorvel::scenario
