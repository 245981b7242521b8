#include "scenario/Faults.h"

#include <algorithm>
#include <array>

#include "datasource/Contract.h"
#include "platform/Error.h"
#include "scenario/Script.h"

namespace quorvel::scenario {
namespace {

using datasource::QueryContract;

constexpr std::string_view kComponent = "clRecordHub.";
constexpr std::string_view kCreate = "Create";

constexpr std::array<std::string_view, 19> kPlatformCalls{
    "ShowMessage",  "SetMousePointer", "ClearClipboard",  "SetClipboardText",  "OpenFile",
    "OpenFileWith", "FileExists",      "IsEscapePressed", "SetHostStatusText", "Now",
    "FormatDate",   "ParseDate",       "TemporaryFolder", "DeleteFile",        "RenameFile",
    "ToFileText",   "OperatingSystem", "CurrentAccount",  "CurrentUser"};

bool IsQuery(std::string_view name) {
  return std::ranges::find(datasource::Queries(), name, &QueryContract::query) != datasource::Queries().end();
}

bool IsCreation(std::string_view name) {
  if (!name.starts_with(kCreate)) return false;
  const std::string identifier = std::string(kComponent).append(name.substr(kCreate.size()));
  return std::ranges::any_of(datasource::Queries(),
                             [&](const QueryContract& each) { return each.classIdentifier == identifier; });
}

bool IsRelease(std::string_view name) {
  return !name.empty() &&
         std::ranges::any_of(datasource::Queries(), [&](const QueryContract& each) { return each.release == name; });
}

}  // namespace

void Faults::Fail(std::string_view name, std::int32_t nth, std::int32_t number) {
  const bool known = IsQuery(name) || IsRelease(name) || IsCreation(name) ||
                     std::ranges::find(kPlatformCalls, name) != kPlatformCalls.end();
  if (!known) throw ScriptError("Nothing that can fail: " + std::string(name));
  Add(failures_, name, nth, number);
}

void Faults::Answer(std::string_view name, std::int32_t nth, std::int32_t status) {
  if (!IsQuery(name)) throw ScriptError("No query: " + std::string(name));
  Add(statuses_, name, nth, status);
}

std::optional<std::int32_t> Faults::Use(std::string_view name) {
  if (watcher_) watcher_(name);
  const std::optional<std::int32_t> failure = Count(failures_, name);
  const std::optional<std::int32_t> status = Count(statuses_, name);
  if (failure) throw Error(*failure, "Scenario", std::string(name) + " fails because the script says so");
  return status;
}

void Faults::Add(std::vector<Wish>& wishes, std::string_view name, std::int32_t nth, std::int32_t value) {
  if (nth < 1) throw ScriptError("Uses count from 1: " + std::to_string(nth));
  wishes.push_back({std::string(name), nth, value});
}

std::optional<std::int32_t> Faults::Count(std::vector<Wish>& wishes, std::string_view name) {
  std::optional<std::int32_t> due;
  for (Wish& wish : wishes) {
    if (wish.name == name && --wish.usesLeft == 0) due = wish.value;
  }
  std::erase_if(wishes, [](const Wish& wish) { return wish.usesLeft == 0; });
  return due;
}

}  // namespace quorvel::scenario
