// Pictures of the steps of a task and of their commands.
#pragma once

#include "widgets/IconBadges.h"
#include "widgets/IconEntry.h"
#include "widgets/IconSubjects.h"

namespace quorvel::widgets::glyphs {

// Every step stands on a rail of stops, the present one marked; above it is what the step does.
inline constexpr IconShape kRail[] = {
    Line(kInk, 1, {0.5, 13.5, 15.5, 13.5}),
    Disc(kAccent, 4.5, 13.5, 2.5),
    Disc(kInk, 11.5, 13.5, 1.5),
};
inline constexpr IconShape kChevron[] = {
    Polygon(kBody, {0.5, 0.5, 7.5, 0.5, 11.5, 4.5, 7.5, 8.5, 0.5, 8.5, 3.5, 4.5}),
    Closed(kInk, 1, {0.5, 0.5, 7.5, 0.5, 11.5, 4.5, 7.5, 8.5, 0.5, 8.5, 3.5, 4.5}),
};
inline constexpr auto kStep = Join(kRail, kChevron);
inline constexpr auto kComStep = Join(kRail, kWaves);
inline constexpr auto kFtpStep = Join(kRail, kDownUp);
inline constexpr auto kMailStep = Join(kRail, kSmallEnvelope);

// Which mail program it is, by a letter.
inline constexpr IconShape kLetterPlate = Box(kMark, 9, 8, 7, 8, 1);
inline constexpr IconShape kNotesShapes[] = {
    kLetterPlate,
    Line(kOnBadge, 1, {10.5, 14.5, 10.5, 9.5, 14.5, 14.5, 14.5, 9.5}),
};
inline constexpr IconShape kOexShapes[] = {
    kLetterPlate,
    Outline(kOnBadge, 1, 10.5, 9.5, 4, 5, 1.75),
};
inline constexpr IconBadge kNotesMark{kNotesShapes, kLetterPlate};
inline constexpr IconBadge kOexMark{kOexShapes, kLetterPlate};

inline constexpr IconEntry kStepIcons[] = {
    {"Step", {kStep}, IconVariants::kGlobal},
    {"StepCom", {kComStep}, IconVariants::kGlobal},
    {"StepFTP", {kFtpStep}, IconVariants::kGlobal},
    {"StepMailNotes", {kMailStep, &kNotesMark}, IconVariants::kGlobal},
    {"StepMailOEX", {kMailStep, &kOexMark}, IconVariants::kGlobal},
};

// A prompt.
inline constexpr IconShape kPrompt[] = {
    Box(kBody, 0.5, 2.5, 15, 11, 1),
    Outline(kInk, 1, 0.5, 2.5, 15, 11, 1),
    Line(kAccent, 1.5, {3.5, 5.25, 5.75, 7.5, 3.5, 9.75}),
    Line(kInk, 1, {8, 10.5, 12.5, 10.5}),
};

inline constexpr IconEntry kCommandIcons[] = {
    {"Command", {kPrompt}},
    {"CommandOk", {kPrompt, &kOkBadge}},
    {"CommandNONOK", {kPrompt, &kErrorBadge}},
    {"CommandStart", {kPrompt, &kProgressBadge}},
};

}  // namespace quorvel::widgets::glyphs
