#include "widgets/IconGlyphs.h"

#include <algorithm>
#include <iterator>

namespace quorvel::widgets {
namespace {

using enum IconColour;

constexpr IconShape Polygon(IconColour colour, std::initializer_list<float> points) {
  return {ShapeKind::kPolygon, colour, 0, points};
}
constexpr IconShape Line(IconColour colour, float width, std::initializer_list<float> points) {
  return {ShapeKind::kPolyline, colour, width, points};
}
constexpr IconShape Disc(IconColour colour, float x, float y, float radius) {
  return {ShapeKind::kCircle, colour, 0, {x, y, radius}};
}
constexpr IconShape Ring(IconColour colour, float width, float x, float y, float radius) {
  return {ShapeKind::kCircle, colour, width, {x, y, radius}};
}
constexpr IconShape Box(IconColour colour, float x, float y, float width, float height, float corner) {
  return {ShapeKind::kBox, colour, 0, {x, y, width, height, corner}};
}
constexpr IconShape Outline(IconColour colour, float line, float x, float y, float width, float height, float corner) {
  return {ShapeKind::kBox, colour, line, {x, y, width, height, corner}};
}

// Base pictures.

// A gear: what runs by itself.
constexpr IconShape kProcess[] = {
    Line(kInk, 2.4F, {8, 1.7F, 8, 4}),      Line(kInk, 2.4F, {8, 12, 8, 14.3F}),
    Line(kInk, 2.4F, {1.7F, 8, 4, 8}),      Line(kInk, 2.4F, {12, 8, 14.3F, 8}),
    Line(kInk, 2.4F, {3.6F, 3.6F, 5, 5}),   Line(kInk, 2.4F, {11, 11, 12.4F, 12.4F}),
    Line(kInk, 2.4F, {3.6F, 12.4F, 5, 11}), Line(kInk, 2.4F, {11, 5, 12.4F, 3.6F}),
    Ring(kInk, 2.6F, 8, 8, 3.8F),
};

// A monitor on its foot: a station and whoever works there.
constexpr IconShape kUser[] = {
    Box(kBody, 1.5F, 2.5F, 13, 8.5F, 1),
    Outline(kInk, 1.4F, 1.5F, 2.5F, 13, 8.5F, 1),
    Line(kInk, 1.4F, {8, 11.5F, 8, 13.5F}),
    Line(kInk, 1.4F, {5, 13.7F, 11, 13.7F}),
};

// Badges, in the lower right quarter. Each outcome has a shape of its own, so that it reads without its colour.

constexpr float kBadge = 11.4F;

constexpr IconShape kOkShapes[] = {
    Disc(kOk, kBadge, kBadge, 4.6F),
    Line(kOnBadge, 1.5F, {9.3F, 11.6F, 10.8F, 13.1F, 13.6F, 9.9F}),
};
constexpr IconShape kErrorShapes[] = {
    Polygon(kError, {9.5F, 6.8F, 13.3F, 6.8F, 16, 9.5F, 16, 13.3F, 13.3F, 16, 9.5F, 16, 6.8F, 13.3F, 6.8F, 9.5F}),
    Line(kOnBadge, 1.5F, {9.7F, 9.7F, 13.1F, 13.1F}),
    Line(kOnBadge, 1.5F, {13.1F, 9.7F, 9.7F, 13.1F}),
};
constexpr IconShape kUnknownShapes[] = {
    Polygon(kUnknown, {11.4F, 5.9F, 16.4F, 11.2F, 11.4F, 16.5F, 6.4F, 11.2F}),
    Line(kOnBadge, 1.2F, {10, 9.7F, 10.5F, 8.9F, 11.6F, 8.7F, 12.7F, 9.4F, 12.5F, 10.5F, 11.4F, 11.3F, 11.4F, 11.9F}),
    Disc(kOnBadge, 11.4F, 13.7F, 0.75F),
};
constexpr IconShape kProgressShapes[] = {
    Disc(kProgress, kBadge, kBadge, 4.6F),
    Polygon(kOnBadge, {10, 8.8F, 14.2F, 11.4F, 10, 14}),
};
constexpr IconShape kNotExecutedShapes[] = {
    Ring(kNone, 1.5F, kBadge, kBadge, 3.7F),
    Line(kNone, 1.5F, {9.8F, 11.4F, 13, 11.4F}),
};
constexpr IconShape kStationShapes[] = {
    Box(kInk, 7, 8, 9, 6, 1),
    Box(kBody, 8.2F, 9.2F, 6.6F, 3.6F, 0.3F),
    Line(kInk, 1.2F, {9.6F, 15.2F, 13.4F, 15.2F}),
};

// Waiting is a rounded square; what is waited for is drawn on it.
constexpr IconShape kWaitingPlate = Box(kWaiting, 6.8F, 6.8F, 9.2F, 9.2F, 1.6F);
constexpr IconShape kWaitingComShapes[] = {
    kWaitingPlate,
    Line(kOnWaiting, 1, {8.3F, 9.9F, 13.9F, 9.9F}),
    Polygon(kOnWaiting, {12.5F, 7.8F, 14.9F, 9.9F, 12.5F, 12}),
    Line(kOnWaiting, 1, {9, 13.1F, 14.5F, 13.1F}),
    Polygon(kOnWaiting, {10.3F, 11, 7.9F, 13.1F, 10.3F, 15.2F}),
};
constexpr IconShape kWaitingStationShapes[] = {
    kWaitingPlate,
    Outline(kOnWaiting, 1, 8.5F, 8.5F, 5.8F, 3.8F, 0.3F),
    Line(kOnWaiting, 1, {9.8F, 14.2F, 13, 14.2F}),
};
constexpr IconShape kWaitingExecutionShapes[] = {
    kWaitingPlate,
    Ring(kOnWaiting, 1, kBadge, kBadge, 3.2F),
    Line(kOnWaiting, 1, {11.4F, 9.6F, 11.4F, 11.5F, 12.9F, 12.4F}),
};
constexpr IconShape kWaitingPrerequisiteShapes[] = {
    kWaitingPlate,
    Polygon(kOnWaiting, {8.8F, 8.2F, 14, 8.2F, 11.4F, 11.4F}),
    Polygon(kOnWaiting, {8.8F, 14.6F, 14, 14.6F, 11.4F, 11.4F}),
};

constexpr float kCut = 5.7F;
constexpr IconBadge kOkBadge{kOkShapes, kBadge, kBadge, kCut};
constexpr IconBadge kErrorBadge{kErrorShapes, kBadge, kBadge, kCut};
constexpr IconBadge kUnknownBadge{kUnknownShapes, kBadge, kBadge, kCut};
constexpr IconBadge kProgressBadge{kProgressShapes, kBadge, kBadge, kCut};
constexpr IconBadge kNotExecutedBadge{kNotExecutedShapes, kBadge, kBadge, kCut};
constexpr IconBadge kStationBadge{kStationShapes, kBadge, kBadge, kCut, true};
constexpr IconBadge kWaitingComBadge{kWaitingComShapes, kBadge, kBadge, kCut};
constexpr IconBadge kWaitingStationBadge{kWaitingStationShapes, kBadge, kBadge, kCut};
constexpr IconBadge kWaitingExecutionBadge{kWaitingExecutionShapes, kBadge, kBadge, kCut};
constexpr IconBadge kWaitingPrerequisiteBadge{kWaitingPrerequisiteShapes, kBadge, kBadge, kCut};

// Column headers: which way the rows run; the bar marks columns that sort by date or number.
constexpr IconShape kAscending[] = {Line(kInk, 1.6F, {4, 10, 8, 6, 12, 10})};
constexpr IconShape kDescending[] = {Line(kInk, 1.6F, {4, 6, 8, 10, 12, 6})};
constexpr IconShape kAscendingD[] = {Line(kInk, 1.6F, {4, 8, 8, 4, 12, 8}), Line(kInk, 1.6F, {5, 11.5F, 11, 11.5F})};
constexpr IconShape kDescendingD[] = {Line(kInk, 1.6F, {5, 4.5F, 11, 4.5F}), Line(kInk, 1.6F, {4, 8, 8, 12, 12, 8})};

struct IconEntry {
  std::string_view key;
  IconPicture picture;
};

constexpr IconEntry kIcons[] = {
    {"Process", {kProcess, {}}},
    {"ProcessStation", {kProcess, {&kStationBadge}}},
    {"ProcessOk", {kProcess, {&kOkBadge}}},
    {"ProcessNONOK", {kProcess, {&kErrorBadge}}},
    {"ProcessUndefined", {kProcess, {&kUnknownBadge}}},
    {"ProcessStart", {kProcess, {&kProgressBadge}}},
    {"ProcessWaitingCom", {kProcess, {&kWaitingComBadge}}},
    {"ProcessWaitingStation", {kProcess, {&kWaitingStationBadge}}},
    {"ProcessWaitingExecution", {kProcess, {&kWaitingExecutionBadge}}},
    {"ProcessWaitingPrerequisite", {kProcess, {&kWaitingPrerequisiteBadge}}},
    {"User", {kUser, {}}},
    {"User_Ok", {kUser, {&kOkBadge}}},
    {"User_NoOk", {kUser, {&kErrorBadge}}},
    {"User_Undefined", {kUser, {&kUnknownBadge}}},
    {"User_NoExecute", {kUser, {&kNotExecutedBadge}}},
    {"User_Inprogress", {kUser, {&kProgressBadge}}},
    {"User_WaitingCom", {kUser, {&kWaitingComBadge}}},
    {"User_WaitingStation", {kUser, {&kWaitingStationBadge}}},
    {"User_WaitingExecution", {kUser, {&kWaitingExecutionBadge}}},
    {"User_WaitingPrerequisite", {kUser, {&kWaitingPrerequisiteBadge}}},
    {"ascending", {kAscending, {}}},
    {"descending", {kDescending, {}}},
    {"ascendingD", {kAscendingD, {}}},
    {"descendingD", {kDescendingD, {}}},
};

struct ColourPair {
  std::uint32_t onLight;
  std::uint32_t onDark;
};

// In the order of IconColour.
constexpr ColourPair kColours[] = {
    {0x5B6B80, 0xA9B6C6},  // ink
    {0xDCE5F0, 0x3A4656},  // body
    {0x1E8E4E, 0x2FAE66},  // OK
    {0xC62F2F, 0xE0524D},  // error
    {0x1F6FD0, 0x3F8FF0},  // progress
    {0xF0B429, 0xF0B429},  // waiting
    {0x7A4FB5, 0x9A74D6},  // unknown
    {0x7C8896, 0x95A1AF},  // not executed
    {0xFFFFFF, 0xFFFFFF},  // on a badge
    {0x3A2C00, 0x3A2C00},  // on waiting
};

}  // namespace

std::uint32_t IconRgb(IconColour colour, bool dark) {
  const ColourPair& pair = kColours[static_cast<std::size_t>(colour)];
  return dark ? pair.onDark : pair.onLight;
}

std::optional<IconPicture> FindIcon(std::string_view key) {
  const auto* const found = std::ranges::find(kIcons, key, &IconEntry::key);
  return found == std::end(kIcons) ? std::nullopt : std::optional(found->picture);
}

std::vector<std::string_view> IconKeys() {
  std::vector<std::string_view> keys;
  keys.reserve(std::size(kIcons));
  for (const IconEntry& icon : kIcons) keys.push_back(icon.key);
  return keys;
}

}  // namespace quorvel::widgets
