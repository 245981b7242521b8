// Pictures of processes, stations and user imports.
#pragma once

#include "widgets/IconBadges.h"
#include "widgets/IconEntry.h"

namespace quorvel::widgets::glyphs {

// A gear: what runs by itself.
inline constexpr IconShape kGear[] = {
    Line(kInk, 2, {8, 2, 8, 4}),         Line(kInk, 2, {8, 12, 8, 14}),       Line(kInk, 2, {2, 8, 4, 8}),
    Line(kInk, 2, {12, 8, 14, 8}),       Line(kInk, 2, {3.75, 3.75, 5, 5}),   Line(kInk, 2, {11, 11, 12.25, 12.25}),
    Line(kInk, 2, {3.75, 12.25, 5, 11}), Line(kInk, 2, {11, 5, 12.25, 3.75}), Ring(kInk, 2.5, 8, 8, 3.75),
};

inline constexpr IconEntry kProcessIcons[] = {
    {"Process", {kGear}},
    {"ProcessStation", {kGear, &kStationMark}},
    {"ProcessOk", {kGear, &kOkBadge}},
    {"ProcessNONOK", {kGear, &kErrorBadge}},
    {"ProcessUndefined", {kGear, &kUnknownBadge}},
    {"ProcessStart", {kGear, &kProgressBadge}},
    {"ProcessWaitingCom", {kGear, &kWaitingComBadge}},
    {"ProcessWaitingStation", {kGear, &kWaitingStationBadge}},
    {"ProcessWaitingExecution", {kGear, &kWaitingExecutionBadge}},
    {"ProcessWaitingPrerequisite", {kGear, &kWaitingPrerequisiteBadge}},
};

// A screen on its foot: a station and whoever works there.
inline constexpr IconShape kScreen[] = {
    Box(kBody, 1.5, 2.5, 13, 9, 1),
    Outline(kInk, 1, 1.5, 2.5, 13, 9, 1),
    Line(kInk, 2, {8, 12, 8, 13}),
    Line(kInk, 1, {5, 14.5, 11, 14.5}),
};

inline constexpr IconEntry kUserIcons[] = {
    {"User", {kScreen}},
    {"User_Ok", {kScreen, &kOkBadge}},
    {"User_NoOk", {kScreen, &kErrorBadge}},
    {"User_Undefined", {kScreen, &kUnknownBadge}},
    {"User_NoExecute", {kScreen, &kNotExecutedBadge}},
    {"User_Inprogress", {kScreen, &kProgressBadge}},
    {"User_WaitingCom", {kScreen, &kWaitingComBadge}},
    {"User_WaitingStation", {kScreen, &kWaitingStationBadge}},
    {"User_WaitingExecution", {kScreen, &kWaitingExecutionBadge}},
    {"User_WaitingPrerequisite", {kScreen, &kWaitingPrerequisiteBadge}},
};

// A person, and an arrow that brings one in.
inline constexpr IconShape kPersonIn[] = {
    Disc(kBody, 6, 4, 3),
    Ring(kInk, 1, 6, 4, 2.5),
    Polygon(kBody, {1.5, 14.5, 1.5, 11.5, 3, 9.5, 9, 9.5, 10.5, 11.5, 10.5, 14.5}),
    Closed(kInk, 1, {1.5, 14.5, 1.5, 11.5, 3, 9.5, 9, 9.5, 10.5, 11.5, 10.5, 14.5}),
    Line(kAccent, 1.5, {15.25, 5.5, 11, 5.5}),
    Line(kAccent, 1.5, {13, 3, 10.5, 5.5, 13, 8}),
};

// A pointer: somebody started it by hand.
inline constexpr IconShape kPointer[] = {
    Polygon(kBody, {1.5, 0.5, 1.5, 9.5, 3.75, 7.5, 5.25, 10.5, 7, 9.75, 5.5, 6.75, 8, 6.5}),
    Closed(kInk, 1, {1.5, 0.5, 1.5, 9.5, 3.75, 7.5, 5.25, 10.5, 7, 9.75, 5.5, 6.75, 8, 6.5}),
};

inline constexpr IconEntry kImportIcons[] = {
    {"UserImport", {kPersonIn}},
    {"ImportManualServer", {kPointer, &kServerMark}},
};

}  // namespace quorvel::widgets::glyphs
