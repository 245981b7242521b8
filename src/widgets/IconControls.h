// Pictures of column headers and of the buttons of the detail dialog.
#pragma once

#include "widgets/IconDrawing.h"
#include "widgets/IconEntry.h"

namespace quorvel::widgets::glyphs {

// Which way the rows run; the bar marks columns that sort by date or number.
inline constexpr IconShape kAscending[] = {Line(kInk, 1.6F, {4, 10, 8, 6, 12, 10})};
inline constexpr IconShape kDescending[] = {Line(kInk, 1.6F, {4, 6, 8, 10, 12, 6})};
inline constexpr IconShape kAscendingD[] = {Line(kInk, 1.6F, {4, 8, 8, 4, 12, 8}),
                                            Line(kInk, 1.6F, {5, 11.5F, 11, 11.5F})};
inline constexpr IconShape kDescendingD[] = {Line(kInk, 1.6F, {5, 4.5F, 11, 4.5F}),
                                             Line(kInk, 1.6F, {4, 8, 8, 12, 12, 8})};

inline constexpr IconEntry kHeaderIcons[] = {
    {"ascending", {kAscending}},
    {"descending", {kDescending}},
    {"ascendingD", {kAscendingD}},
    {"descendingD", {kDescendingD}},
};

inline constexpr IconShape kUp[] = {
    Line(kInk, 2, {8, 14, 8, 3}),
    Line(kInk, 2, {3, 7.5, 8, 2.5, 13, 7.5}),
};
inline constexpr IconShape kDown[] = {
    Line(kInk, 2, {8, 2, 8, 13}),
    Line(kInk, 2, {3, 8.5, 8, 13.5, 13, 8.5}),
};
inline constexpr IconShape kCopy[] = {
    Box(kBody, 1.5, 1.5, 8, 10, 1),       Outline(kInk, 1, 1.5, 1.5, 8, 10, 1), Box(kBody, 5.5, 4.5, 8, 10, 1),
    Outline(kInk, 1, 5.5, 4.5, 8, 10, 1), Line(kAccent, 1, {8, 8.5, 11, 8.5}),  Line(kAccent, 1, {8, 11.5, 11, 11.5}),
};

inline constexpr IconEntry kDetailIcons[] = {
    {"DetailPrevious", {kUp}},
    {"DetailNext", {kDown}},
    {"DetailCopy", {kCopy}},
};

}  // namespace quorvel::widgets::glyphs
