#include "tools/SampleConversation.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace quorvel::tools {
namespace {

// What a connection is for.
struct Talk {
  std::int64_t weight;
  bool fromStation;
  std::span<const CommandTemplate> commands;
};
constexpr CommandTemplate kFetchJournal[] = {{R"(LIST C:\out\*.zip)", kListFiles},
                                             {R"(RECEIVE C:\out\journal.zip TO D:\in\{station})", kReceiveFile}};
constexpr CommandTemplate kSendMessages[] = {{R"(SEND D:\out\{station}\messages.dat TO C:\in)", kSendFile},
                                             {R"(SEND D:\out\{station}\hours.dat TO C:\in)", kSendFile, 93}};
constexpr CommandTemplate kOrder[] = {{R"(SEND C:\out\order.xml TO D:\in\{station})", kSendFile},
                                      {R"(RECEIVE D:\out\{station}\receipt.xml TO C:\in)", kReceiveFile}};
constexpr CommandTemplate kSignOfLife[] = {{R"(SEND C:\till\status.txt TO D:\in\{station})", kSendFile}};
constexpr Talk kTalks[] = {
    {40, false, kFetchJournal}, {20, false, kSendMessages}, {15, true, kOrder}, {25, true, kSignOfLife}};

constexpr CommandTemplate kCall = {"CALL {station} RETRY 3 TIMEOUT 60", kConnect};
constexpr CommandTemplate kAnswer = {"ANSWER {station}", kConnect};

struct Chance {
  std::int64_t weight;
  Fate fate;
};
constexpr Chance kChances[] = {
    {928, Fate::kDone}, {15, Fate::kFileMissing}, {20, Fate::kBroken}, {35, Fate::kNotReached}, {2, Fate::kUnknown}};
constexpr Chance kWeakChances[] = {{850, Fate::kDone}, {60, Fate::kBroken}, {90, Fate::kNotReached}};

constexpr Second kTimeLimit = 3 * kMinute;
constexpr Second kLongestTalk = 9 * kMinute;

Fate AnyFate(std::int32_t station, bool fromStation, SampleRandom& random) {
  const std::span<const Chance> chances = IsWeakStation(station) ? std::span<const Chance>(kWeakChances) : kChances;
  const Fate fate = AnyByWeight(chances, &Chance::weight, random).fate;
  // Who calls was reached.
  return fate == Fate::kNotReached && fromStation ? Fate::kBroken : fate;
}

const Failure* FailureOf(Fate fate, SampleRandom& random) {
  switch (fate) {
    case Fate::kNotReached:
      return &AnyOf(FailuresOf(Risk::kConnection), random);
    case Fate::kBroken:
    case Fate::kFileMissing:
      return &*std::ranges::find(FailuresOf(Risk::kTransfer), fate == Fate::kFileMissing, &Failure::lineStays);
    case Fate::kDone:
    case Fate::kUnknown:
      break;
  }
  return nullptr;
}

// The call, its commands, the end of the call.
const CommandTemplate& CommandAt(const Conversation& conversation, std::size_t i) {
  static constexpr CommandTemplate kEnd = {"HANG UP", kHangUp};
  if (i == 0) return conversation.fromStation ? kAnswer : kCall;
  return i > conversation.commands.size() ? kEnd : conversation.commands[i - 1];
}

ResultFlags ResultOf(bool failed, bool atWork) {
  if (atWork) return kRunningResult;
  return failed ? kFailureResult : kSuccessResult;
}

}  // namespace

Conversation AnyConversation(const SamplePlan& plan, Second start, SampleRandom& random) {
  const Talk& talk = AnyByWeight(kTalks, &Talk::weight, random);
  Conversation conversation{.fromStation = talk.fromStation, .commands = talk.commands, .start = start};
  conversation.station = static_cast<std::int32_t>(random.Below(static_cast<std::int64_t>(plan.stations.size())));
  conversation.fate = AnyFate(conversation.station, talk.fromStation, random);
  conversation.failure = FailureOf(conversation.fate, random);
  const Second length = conversation.fate == Fate::kNotReached ? kTimeLimit : kMinute / 3 + random.Below(kLongestTalk);
  conversation.end = start + length;
  return conversation;
}

void WriteCommands(const SamplePlan& plan, const Conversation& conversation, const CommunicationRow& connection,
                   HistoryWriter& writer) {
  const std::string& identifier = plan.stations[static_cast<std::size_t>(conversation.station)].identifier;
  const std::size_t count = conversation.commands.size() + 2;
  const std::size_t failing = conversation.fate == Fate::kNotReached ? 0 : conversation.commands.size();
  const auto timeOf = [&](std::size_t i) {
    return conversation.start +
           (conversation.end - conversation.start) * static_cast<Second>(i) / static_cast<Second>(count);
  };
  for (std::size_t i = 0; i < count && timeOf(i) <= plan.now; ++i) {
    const CommandTemplate& command = CommandAt(conversation, i);
    const bool atWork = timeOf(i + 1) > plan.now;
    const bool failed = i == failing && conversation.failure != nullptr && !atWork;
    const bool last = failed && FailsAsConnection(conversation.fate);
    const std::string text = Fill(command.text, "{station}", identifier);
    writer.Add(0, CommandRow{.communicationId = connection.id,
                             .communicationDate = connection.start,
                             .kind = command.kind,
                             .code = failed ? conversation.failure->code : command.code,
                             .text = text,
                             .report = failed ? conversation.failure->commandReport : "",
                             .start = DateAt(timeOf(i)),
                             .end = atWork ? 0 : (last ? connection.end : DateAt(timeOf(i + 1))),
                             .result = ResultOf(failed, atWork)});
    if (last) return;
  }
}

}  // namespace quorvel::tools
