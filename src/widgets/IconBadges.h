// Badges: how it went in the lower right quarter, or the place of execution there, and marks for the other corners.
#pragma once

#include "widgets/IconDrawing.h"

namespace quorvel::widgets::glyphs {

// Outcomes. Each has a shape or a sign of its own, so that it reads without its colour.

inline constexpr float kOutcome = 11.5;
inline constexpr IconShape kOutcomeOutline = Disc(kInk, kOutcome, kOutcome, 4.5);

inline constexpr IconShape kOkShapes[] = {
    Disc(kOk, kOutcome, kOutcome, 4.5),
    Line(kOnBadge, 1.5, {9.5, 11.75, 11, 13.25, 13.75, 10}),
};
inline constexpr IconShape kErrorOctagon =
    Polygon(kError, {9.5, 7, 13.5, 7, 16, 9.5, 16, 13.5, 13.5, 16, 9.5, 16, 7, 13.5, 7, 9.5});
inline constexpr IconShape kErrorShapes[] = {
    kErrorOctagon,
    Line(kOnBadge, 1.5, {9.75, 9.75, 13.25, 13.25}),
    Line(kOnBadge, 1.5, {13.25, 9.75, 9.75, 13.25}),
};
inline constexpr IconShape kUnknownDiamond = Polygon(kUnknown, {10.5, 5, 16, 10.5, 10.5, 16, 5, 10.5});
inline constexpr IconShape kUnknownShapes[] = {
    kUnknownDiamond,
    Line(kOnBadge, 1.25,
         {8.75, 9.25, 9.25, 8.25, 10.5, 7.75, 11.75, 8.25, 12, 9.25, 11.25, 10.25, 10.5, 10.75, 10.5, 11.5}),
    Disc(kOnBadge, 10.5, 13.5, 0.75),
};
inline constexpr IconShape kProgressShapes[] = {
    Disc(kProgress, kOutcome, kOutcome, 4.5),
    Polygon(kOnBadge, {10, 8.75, 14.25, 11.5, 10, 14.25}),
};
inline constexpr IconShape kNotExecutedShapes[] = {
    Disc(kNone, kOutcome, kOutcome, 4.5),
    Line(kOnBadge, 1.5, {9.5, 11.5, 13.5, 11.5}),
};

inline constexpr IconBadge kOkBadge{kOkShapes, kOutcomeOutline};
inline constexpr IconBadge kErrorBadge{kErrorShapes, kErrorOctagon};
// Round, since the edges of the diamond would leave crumbs of the base in the corners.
inline constexpr IconBadge kUnknownBadge{kUnknownShapes, Disc(kUnknown, 10.75, 10.75, 5)};
inline constexpr IconBadge kProgressBadge{kProgressShapes, kOutcomeOutline};
inline constexpr IconBadge kNotExecutedBadge{kNotExecutedShapes, kOutcomeOutline};

// Waiting is a rounded square; what is waited for is drawn on it.
inline constexpr IconShape kWaitingPlate = Box(kWaiting, 7, 7, 9, 9, 1.5);
inline constexpr IconShape kWaitingComShapes[] = {
    kWaitingPlate,
    Line(kOnWaiting, 1, {8.5, 9.5, 13, 9.5}),
    Polygon(kOnWaiting, {12.5, 7.5, 14.75, 9.5, 12.5, 11.5}),
    Line(kOnWaiting, 1, {10, 13.5, 14.5, 13.5}),
    Polygon(kOnWaiting, {10.5, 11.5, 8.25, 13.5, 10.5, 15.5}),
};
inline constexpr IconShape kWaitingStationShapes[] = {
    kWaitingPlate,
    Outline(kOnWaiting, 1, 8.5, 8.5, 6, 4, 0.25),
    Line(kOnWaiting, 1, {10, 14.5, 13, 14.5}),
};
inline constexpr IconShape kWaitingExecutionShapes[] = {
    kWaitingPlate,
    Ring(kOnWaiting, 1, kOutcome, kOutcome, 3),
    Line(kOnWaiting, 1, {11.5, 9.75, 11.5, 11.5, 12.75, 11.5}),
};
inline constexpr IconShape kWaitingPrerequisiteShapes[] = {
    kWaitingPlate,
    Polygon(kOnWaiting, {8.75, 8.25, 14.25, 8.25, 11.5, 11.75}),
    Polygon(kOnWaiting, {8.75, 14.75, 14.25, 14.75, 11.5, 11.25}),
};

inline constexpr IconBadge kWaitingComBadge{kWaitingComShapes, kWaitingPlate};
inline constexpr IconBadge kWaitingStationBadge{kWaitingStationShapes, kWaitingPlate};
inline constexpr IconBadge kWaitingExecutionBadge{kWaitingExecutionShapes, kWaitingPlate};
inline constexpr IconBadge kWaitingPrerequisiteBadge{kWaitingPrerequisiteShapes, kWaitingPlate};

// Marks of the place of execution, lower right: the units of a rack, or a screen on its foot.
inline constexpr IconShape kServerShapes[] = {
    Box(kInk, 9, 8, 7, 2, 0.5),   Box(kInk, 9, 11, 7, 2, 0.5),   Box(kInk, 9, 14, 7, 2, 0.5),
    Box(kBody, 14, 8.5, 1, 1, 0), Box(kBody, 14, 11.5, 1, 1, 0), Box(kBody, 14, 14.5, 1, 1, 0),
};
inline constexpr IconShape kStationShapes[] = {
    Box(kBody, 8.5, 8.5, 7, 5, 0.5),
    Outline(kInk, 1, 8.5, 8.5, 7, 5, 0.5),
    Line(kInk, 1, {10.5, 15.5, 13.5, 15.5}),
};
inline constexpr IconBadge kServerMark{kServerShapes, Box(kInk, 9, 8, 7, 8, 0.5), true};
inline constexpr IconBadge kStationMark{kStationShapes, Box(kInk, 8, 8, 8, 8, 0.5), true};

// Upper right: a globe, for what concerns no single station.
inline constexpr IconShape kGlobalShapes[] = {
    Disc(kMark, 12.5, 3.5, 3.5),
    Line(kOnBadge, 0.75, {10, 3.5, 15, 3.5}),
    Arc(kOnBadge, 0.75, {12.5, 3.5, 2, 3.5, 125, 110}),
    Arc(kOnBadge, 0.75, {12.5, 3.5, 2, 3.5, 305, 110}),
};
inline constexpr IconBadge kGlobalMark{kGlobalShapes, Disc(kInk, 12.5, 3.5, 3.5)};

// Lower left: not executed, where the place of execution has the usual corner.
inline constexpr IconShape kNotExecutedMarkShapes[] = {
    Disc(kNone, 3.5, 12.5, 3.5),
    Line(kOnBadge, 1, {2.25, 12.5, 4.75, 12.5}),
};
inline constexpr IconBadge kNotExecutedMark{kNotExecutedMarkShapes, Disc(kInk, 3.5, 12.5, 3.5)};

}  // namespace quorvel::widgets::glyphs
