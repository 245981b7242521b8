#include "widgets/IconWords.h"

#include <algorithm>
#include <iterator>

#include "widgets/IconAlarms.h"
#include "widgets/IconBadges.h"
#include "widgets/IconGlyphs.h"
#include "widgets/IconSteps.h"

namespace quorvel::widgets {
namespace {

struct BadgeWords {
  const IconBadge* badge;
  std::string_view words;
};

// Every badge means the same whatever it stands on.
constexpr BadgeWords kBadgeWords[] = {
    {&glyphs::kOkBadge, "OK"},
    {&glyphs::kErrorBadge, "Not OK"},
    {&glyphs::kUnknownBadge, "Unknown"},
    {&glyphs::kProgressBadge, "In progress"},
    {&glyphs::kNotExecutedBadge, "Not executed"},
    {&glyphs::kNotExecutedMark, "Not executed"},
    {&glyphs::kWaitingComBadge, "Waiting for a connection"},
    {&glyphs::kWaitingStationBadge, "Waiting for the station"},
    {&glyphs::kWaitingExecutionBadge, "Waiting for execution"},
    {&glyphs::kWaitingPrerequisiteBadge, "Waiting for a prerequisite"},
    {&glyphs::kSeenMark, "Acknowledged"},
    {&glyphs::kSmallBell, "Alarm action"},
    {&glyphs::kInfoBadge, "Information"},
    {&glyphs::kServerMark, "server"},
    {&glyphs::kStationMark, "station"},
    {&glyphs::kGlobalMark, "all stations"},
    {&glyphs::kNotesMark, "N"},
    {&glyphs::kOexMark, "O"},
};

std::string_view WordsOf(const IconBadge* badge) {
  const auto* const found = std::ranges::find(kBadgeWords, badge, &BadgeWords::badge);
  return found == std::end(kBadgeWords) ? std::string_view() : found->words;
}

// An alarm that nobody has acknowledged rings; there is no badge for what it is to begin with.
bool IsActiveAlarm(const IconPicture& picture) {
  const bool hasOrigin = picture.lowerRight == &glyphs::kServerMark || picture.lowerRight == &glyphs::kStationMark;
  return hasOrigin && picture.base.data() == Glyph(glyphs::kRingingBell).data();
}

void Append(std::string& words, std::string_view more) {
  if (more.empty()) return;
  if (!words.empty()) words += ", ";
  words += more;
}

}  // namespace

std::string IconWords(std::string_view key) {
  const auto picture = FindIcon(key);
  if (!picture) return {};
  std::string words(IsActiveAlarm(*picture) ? "Active" : "");
  // What became of it stands before where.
  for (const IconBadge* const badge : {picture->lowerLeft, picture->upperRight, picture->lowerRight}) {
    Append(words, WordsOf(badge));
  }
  return words;
}

}  // namespace quorvel::widgets
