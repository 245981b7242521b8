// Pictures of alarms and of the system log.
#pragma once

#include <array>

#include "widgets/IconBadges.h"
#include "widgets/IconEntry.h"
#include "widgets/IconSubjects.h"

namespace quorvel::widgets::glyphs {

constexpr std::array<IconShape, 4> Bell(IconColour colour) {
  return {{Box(colour, 5, 0, 1, 2, 0.5), Box(colour, 2, 1, 7, 8, 3.5), Polygon(colour, {2, 6, 9, 6, 11, 9, 0, 9}),
           Box(colour, 4, 10, 3, 1.25, 0.5)}};
}
inline constexpr auto kRingingBell = Bell(kAlarm);
inline constexpr auto kCalmBell = Bell(kNone);

// Upper right, over what an alarm set off.
inline constexpr IconShape kSmallBellShapes[] = {
    Box(kAlarm, 10, 0, 5, 5, 2.5),
    Polygon(kAlarm, {10, 3, 15, 3, 16, 5, 9, 5}),
    Box(kAlarm, 11, 6, 3, 1, 0.5),
};
inline constexpr IconBadge kSmallBell{kSmallBellShapes, Disc(kAlarm, 12.5, 3.5, 3.5)};

// Upper right: somebody has seen it.
inline constexpr IconShape kSeenShapes[] = {
    Disc(kOk, 12.5, 3.5, 3.5),
    Line(kOnBadge, 1.25, {10.75, 3.75, 12, 5, 14.25, 2.25}),
};
inline constexpr IconBadge kSeenMark{kSeenShapes, Disc(kOk, 12.5, 3.5, 3.5)};

inline constexpr IconEntry kAlarmIcons[] = {
    {"AlarmFromServer", {kRingingBell, &kServerMark}},
    {"AlarmFromStation", {kRingingBell, &kStationMark}},
    {"AlarmFromServerIsAcquitted", {kCalmBell, &kServerMark, &kSeenMark}},
    {"AlarmFromStationIsAcquitted", {kCalmBell, &kStationMark, &kSeenMark}},
    {"AlarmActionMailFromServer", {kSmallEnvelope, &kServerMark, &kSmallBell}},
    {"AlarmActionMailFromStation", {kSmallEnvelope, &kStationMark, &kSmallBell}},
    {"AlarmActionProcessFromServer", {kSmallGear, &kServerMark, &kSmallBell}},
    {"AlarmActionProcessFromStation", {kSmallGear, &kStationMark, &kSmallBell}},
    {"AlarmActionFileFromServer", {kPage, &kServerMark, &kSmallBell}},
    {"AlarmActionFileFromStation", {kPage, &kStationMark, &kSmallBell}},
    {"AlarmActionProgramFromServer", {kWindow, &kServerMark, &kSmallBell}},
    {"AlarmActionProgramFromStation", {kWindow, &kStationMark, &kSmallBell}},
    {"AlarmActionTriggerSnmpTrapFromServer", {kBolt, &kServerMark, &kSmallBell}},
    {"AlarmActionTriggerSnmpTrapFromStation", {kBolt, &kStationMark, &kSmallBell}},
};

inline constexpr IconShape kInfoShapes[] = {
    Box(kProgress, 7, 7, 9, 9, 2),
    Disc(kOnBadge, 11.5, 9.25, 0.9F),
    Line(kOnBadge, 1.5, {11.5, 11.5, 11.5, 14}),
};
inline constexpr IconBadge kInfoBadge{kInfoShapes, Box(kProgress, 7, 7, 9, 9, 2)};

inline constexpr IconEntry kSystemIcons[] = {
    {"NoAlarm", {kCalmBell, &kOkBadge}},
    {"Alarm", {kRingingBell, &kErrorBadge}},
    {"AlarmInfos", {kCalmBell, &kInfoBadge}},
};

}  // namespace quorvel::widgets::glyphs
