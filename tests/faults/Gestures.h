// Every way into the viewer that calls outwards, as gestures on the small history.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quorvel::test {

// Who hears of an error: a host by an exception, a user by a message.
enum class Caller { kHost, kUser };

struct Gesture {
  std::string_view name;
  Caller caller = Caller::kUser;
  std::string_view label;   // of the procedure that tells of an error, behind "Quorvel: " and "ucProcessLog."
  std::string_view place;   // where the viewer stands
  std::string_view before;  // lines that lead from there to where the gesture is made
  std::string_view line;    // the gesture
  // What a user does when it failed; "" = the same again.
  std::string_view again{};
};

// Everything that a new viewer does before the gesture.
std::string LinesBefore(const Gesture& gesture);

std::span<const Gesture> Gestures();

}  // namespace quorvel::test
