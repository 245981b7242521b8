// Subjects of tasks, steps and alarm actions, drawn in the upper left 11 x 11, which leaves the other corners to marks.
#pragma once

#include "widgets/IconDrawing.h"

namespace quorvel::widgets::glyphs {

// A magnifier: a test.
inline constexpr IconShape kMagnifier[] = {
    Line(kInk, 2, {3.5, 7.5, 1.5, 9.5}),
    Disc(kBody, 6.5, 4.5, 4),
    Ring(kInk, 1.25, 6.5, 4.5, 3.75),
};

inline constexpr IconShape kDatabase[] = {
    Box(kBody, 0.5, 2, 9, 7, 0),     Oval(kBody, 5, 9, 4.5, 1.5),     Arc(kInk, 1, {5, 8.75, 4.5, 1.75, 0, 180}),
    Line(kInk, 1, {0.5, 2, 0.5, 9}), Line(kInk, 1, {9.5, 2, 9.5, 9}), Oval(kInk, 5, 1.75, 5, 1.75),
};
// An arrow out of it: an export.
inline constexpr IconShape kOutwards[] = {
    Line(kAccent, 1.25, {2.5, 6.5, 7.25, 6.5}),
    Line(kAccent, 1.25, {5.5, 4.75, 7.25, 6.5, 5.5, 8.25}),
};
inline constexpr auto kDatabaseOut = Join(kDatabase, kOutwards);
// Arrows both ways: it is kept equal to another.
inline constexpr IconShape kBothWays[] = {
    Line(kAccent, 1, {2.5, 5.5, 6, 5.5}),
    Polygon(kAccent, {8.25, 5.5, 5.75, 3.5, 5.75, 7.5}),
    Line(kAccent, 1, {4, 8.5, 7.5, 8.5}),
    Polygon(kAccent, {1.75, 8.5, 4.25, 6.5, 4.25, 10.5}),
};
inline constexpr auto kDatabaseSync = Join(kDatabase, kBothWays);

// Arrows down and up: a file transfer.
inline constexpr IconShape kDownUp[] = {
    Line(kInk, 1.5, {2.5, 1, 2.5, 7.5}),
    Line(kInk, 1.5, {0.75, 5.75, 2.5, 7.5, 4.25, 5.75}),
    Line(kAccent, 1.5, {6.5, 9, 6.5, 1.5}),
    Line(kAccent, 1.5, {4.75, 3.25, 6.5, 1.5, 8.25, 3.25}),
};

// An envelope.
inline constexpr IconShape kSmallEnvelope[] = {
    Box(kBody, 0.5, 1.5, 10, 7, 0.5),
    Outline(kInk, 1, 0.5, 1.5, 10, 7, 0.5),
    Line(kInk, 1, {1, 2, 5.5, 5.75, 10, 2}),
};

// A window with text: a program.
inline constexpr IconShape kWindow[] = {
    Box(kBody, 0.5, 0.5, 10, 9, 0.5),       Outline(kInk, 1, 0.5, 0.5, 10, 9, 0.5), Box(kInk, 0, 0, 11, 3, 1),
    Line(kAccent, 1, {2.5, 5.5, 7.5, 5.5}), Line(kAccent, 1, {2.5, 7.5, 5.5, 7.5}),
};

// Sliders: settings, which an administrator changes.
inline constexpr IconShape kSliders[] = {
    Line(kInk, 1, {0.5, 1.5, 10.5, 1.5}), Line(kInk, 1, {0.5, 5.5, 10.5, 5.5}), Line(kInk, 1, {0.5, 9.5, 10.5, 9.5}),
    Box(kAccent, 6, 0, 3, 3, 0.75),       Box(kAccent, 2, 4, 3, 3, 0.75),       Box(kAccent, 5, 8, 3, 3, 0.75),
};

// An eye.
inline constexpr IconShape kEye[] = {
    Polygon(kBody, {0.5, 5, 2.5, 2.75, 5.5, 1.5, 8.5, 2.75, 10.5, 5, 8.5, 7.25, 5.5, 8.5, 2.5, 7.25}),
    Arc(kInk, 1, {5.5, 7, 5.5, 5.5, 205, 130}),
    Arc(kInk, 1, {5.5, 3, 5.5, 5.5, 25, 130}),
    Disc(kAccent, 5.5, 5, 1.75),
};

// An archive box, with an arrow into it.
inline constexpr IconShape kBoxIn[] = {
    Box(kBody, 1.5, 2.5, 8, 8, 0.5),
    Outline(kInk, 1, 1.5, 2.5, 8, 8, 0.5),
    Box(kInk, 0, 0, 11, 3, 0.5),
    Line(kAccent, 1.25, {5.5, 4.5, 5.5, 8.75}),
    Line(kAccent, 1.25, {3.5, 6.75, 5.5, 8.75, 7.5, 6.75}),
};

// The same, open, with an arrow out of it.
inline constexpr IconShape kBoxOut[] = {
    Box(kBody, 1.5, 5.5, 8, 5, 0.5),
    Line(kInk, 1, {0.5, 5.5, 1.5, 5.5, 1.5, 10.5, 9.5, 10.5, 9.5, 5.5, 10.5, 5.5}),
    Line(kAccent, 1.5, {5.5, 8, 5.5, 1}),
    Line(kAccent, 1.5, {3, 3.5, 5.5, 1, 8, 3.5}),
};

// A folder with a page in it.
inline constexpr IconShape kFolderWithPage[] = {
    Polygon(kBody, {0.5, 9.5, 0.5, 1.5, 3.5, 1.5, 4.5, 3, 10.5, 3, 10.5, 9.5}),
    Closed(kInk, 1, {0.5, 9.5, 0.5, 1.5, 3.5, 1.5, 4.5, 3.5, 10.5, 3.5, 10.5, 9.5}),
    Line(kAccent, 1, {2.5, 5.5, 7.5, 5.5}),
    Line(kAccent, 1, {2.5, 7.5, 5.5, 7.5}),
};

// A small gear.
inline constexpr IconShape kSmallGear[] = {
    Line(kInk, 1.75, {5.5, 1, 5.5, 3}),
    Line(kInk, 1.75, {5.5, 8, 5.5, 10}),
    Line(kInk, 1.75, {1, 5.5, 3, 5.5}),
    Line(kInk, 1.75, {8, 5.5, 10, 5.5}),
    Line(kInk, 1.75, {2.25, 2.25, 3.5, 3.5}),
    Line(kInk, 1.75, {7.5, 7.5, 8.75, 8.75}),
    Line(kInk, 1.75, {2.25, 8.75, 3.5, 7.5}),
    Line(kInk, 1.75, {7.5, 3.5, 8.75, 2.25}),
    Ring(kInk, 2, 5.5, 5.5, 2.5),
};

// A page with a folded corner.
inline constexpr IconShape kPage[] = {
    Polygon(kBody, {1.5, 0.5, 6.5, 0.5, 9.5, 3.5, 9.5, 10.5, 1.5, 10.5}),
    Closed(kInk, 1, {1.5, 0.5, 6.5, 0.5, 9.5, 3.5, 9.5, 10.5, 1.5, 10.5}),
    Line(kInk, 1, {6.5, 0.5, 6.5, 3.5, 9.5, 3.5}),
    Line(kAccent, 1, {3.5, 5.5, 7.5, 5.5}),
    Line(kAccent, 1, {3.5, 7.5, 7.5, 7.5}),
};

// Waves from a point: a connection.
inline constexpr IconShape kWaves[] = {
    Disc(kInk, 1.5, 9, 1.5),
    Arc(kAccent, 1.25, {1.5, 9, 4.25, 4.25, 270, 90}),
    Arc(kAccent, 1.25, {1.5, 9, 8, 8, 270, 90}),
};

// A bolt: a trap that goes off.
inline constexpr IconShape kBolt[] = {
    Polygon(kAccent, {4.5, 0.5, 1, 6, 3.75, 6, 2.5, 10.5, 8, 4.25, 5.25, 4.25, 7.5, 0.5}),
    Closed(kAccent, 0.75, {4.5, 0.5, 1, 6, 3.75, 6, 2.5, 10.5, 8, 4.25, 5.25, 4.25, 7.5, 0.5}),
};

}  // namespace quorvel::widgets::glyphs
