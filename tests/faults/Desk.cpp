#include "faults/Desk.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>

#include "platform/Error.h"

namespace quorvel::test {
namespace {

constexpr std::string_view kPointerCall = "SetMousePointer";
constexpr std::string_view kPrints[] = {"print tabs",  "print options", "print tree all",  "print caption",
                                        "print list",  "print columns", "print statusbar", "print clipboard",
                                        "print menus", "print detail",  "print shell"};

}  // namespace

std::int32_t NumberTold(std::int32_t number) {
  return number == kNoMemory ? static_cast<std::int32_t>(SystemError::kOutOfMemory) : number;
}

std::string DescriptionOf(std::string_view call, std::int32_t number) {
  return number == kNoMemory ? std::bad_alloc().what() : std::string(call) + " fails";
}

Desk::Desk() {
  scenario_.Open(history_.url());
  session().faults().Watch([this](std::string_view name) { Call(name); });
}

void Desk::Begin(std::string_view lines) {
  watching_ = false;
  session().EndViewer();
  session().ChooseViewer(1);
  std::ostringstream ignored;
  ForEachLine(lines, [&](std::string_view line) { scenario_.Do(line, ignored); });
  TakeMessages();
  TakeLog();
  session().platform().TakePointers();
  pointer_ = MousePointer::kDefault;
}

std::string Desk::Make(std::string_view line, std::vector<std::size_t> failing, std::int32_t number) {
  failing_ = std::move(failing);
  number_ = number;
  calls_.clear();
  watching_ = true;
  std::ostringstream out;
  try {
    scenario_.Do(line, out);
  } catch (...) {
    watching_ = false;
    throw;
  }
  watching_ = false;
  // The platform notes pointers in the order of the calls that did not fail.
  const std::vector<MousePointer> pointers = session().platform().TakePointers();
  auto next = pointers.begin();
  for (std::size_t i = 0; i < calls_.size(); ++i) {
    if (calls_[i].name != kPointerCall || std::ranges::find(failing_, i) != failing_.end()) continue;
    if (next != pointers.end()) calls_[i].restoresPointer = *next++ == MousePointer::kDefault;
  }
  if (!pointers.empty()) pointer_ = pointers.back();
  return std::move(out).str();
}

void Desk::Call(std::string_view name) {
  if (!watching_) return;
  calls_.push_back({std::string(name)});
  if (std::ranges::find(failing_, calls_.size() - 1) == failing_.end()) return;
  if (number_ == kNoMemory) throw std::bad_alloc();
  throw Error(number_, "Desk", DescriptionOf(name, number_));
}

std::vector<scenario::ShownMessage> Desk::TakeMessages() {
  std::vector<scenario::ShownMessage> messages = session().platform().TakeMessages();
  std::erase_if(messages, [](const scenario::ShownMessage& message) { return message.title != kErrorTitle; });
  return messages;
}

std::string Desk::TakeLog() {
  std::string text;
  {
    // Not everywhere a file can go that is open.
    std::ifstream in(session().logFile(), std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(in), {});
  }
  std::filesystem::remove(session().logFile());
  return text;
}

MousePointer Desk::Pointer() {
  return pointer_;
}

std::string Desk::View() {
  std::ostringstream out;
  for (const std::string_view print : kPrints) scenario_.Do(print, out);
  return std::move(out).str();
}

}  // namespace quorvel::test
