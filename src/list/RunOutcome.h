// What the states of a run's stations come to: labels, images and the words of a run's row, for trees and lists alike.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "list/Classification.h"

namespace quorvel::list {

// Stations of a run, in all and per state. A station is counted once.
struct StationCounts {
  std::int32_t total = 0;
  std::int32_t notExecuted = 0;
  std::int32_t inProgress = 0;
  std::int32_t notOk = 0;
  std::int32_t ok = 0;
  std::int32_t unknown = 0;

  std::int32_t Of(StateGroup group) const;
  // One station more.
  void Add(StateGroup group);
};

// "NOT OK" and so on; lives forever.
std::string_view StateGroupLabel(StateGroup group);

// The image of a run with these stations: in progress before NOT OK before unknown before OK.
std::string_view RunImage(const StationCounts& counts);

// The same for a run in which no station may have taken part yet: that is unknown.
std::string_view ImageOfRun(const StationCounts& counts);

// The image of a process, or of a run of it, of which there is nothing to tell.
inline constexpr std::string_view kPlainProcessImage = "Process";

// What a run came to, in words: the label of the one state that all its stations are in, else how many are in each,
// "149 OK, 1 NOT OK". Unknown while no station took part.
std::string RunStatus(const StationCounts& counts);

// Which states occur among the rows that a node stands for.
struct StatePresence {
  bool notExecuted = false;
  bool inProgress = false;
  bool notOk = false;
  bool ok = false;
  bool unknown = false;
};

// Image of a process with these states; empty means that it keeps the one it has. While something is in progress, or
// without any state, the wait state decides. Lives forever.
std::string_view GetProcessIconName(const StatePresence& present, std::string_view waitState);

// The states of one station's part in a run, which is in one alone.
StatePresence PresenceOf(StateGroup group);

// Whether an image tells that a process, or a run of it, is running or waits for something.
bool IsRunningImage(std::string_view image);

}  // namespace quorvel::list
