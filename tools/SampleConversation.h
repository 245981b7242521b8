// What server and station had to say to each other in a connection that no run asked for.
#pragma once

#include <cstdint>
#include <span>

#include "tools/HistoryWriter.h"
#include "tools/SampleNames.h"
#include "tools/SamplePlan.h"
#include "tools/SampleRandom.h"

namespace quorvel::tools {

enum class Fate { kDone, kFileMissing, kBroken, kNotReached, kUnknown };

struct Conversation {
  std::int32_t station = 0;  // index
  bool fromStation = false;
  std::span<const CommandTemplate> commands{};  // between the call and its end
  Fate fate = Fate::kDone;
  const Failure* failure = nullptr;  // of the command that failed, null = none did
  Second start = 0;
  Second end = 0;  // may lie ahead
};

// The plan must have stations.
Conversation AnyConversation(const SamplePlan& plan, Second start, SampleRandom& random);

// Whether the connection failed; a file that is missing is no fault of the line.
constexpr bool FailsAsConnection(Fate fate) {
  return fate == Fate::kBroken || fate == Fate::kNotReached;
}

// Writes the commands, from the call to where the connection ended, or to the present. `connection` is its row.
void WriteCommands(const SamplePlan& plan, const Conversation& conversation, const CommunicationRow& connection,
                   HistoryWriter& writer);

}  // namespace quorvel::tools
