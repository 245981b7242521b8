// Pictures of tasks: a subject, and the place of execution where a subject runs on servers and on stations.
#pragma once

#include "widgets/IconBadges.h"
#include "widgets/IconEntry.h"
#include "widgets/IconSubjects.h"

namespace quorvel::widgets::glyphs {

// Subjects without a place have the whole grid.

// A folder, and arrows both ways.
inline constexpr IconShape kExchangeFolder[] = {
    Polygon(kBody, {0.5, 13.5, 0.5, 2.5, 5.5, 2.5, 7, 4.5, 15.5, 4.5, 15.5, 13.5}),
    Closed(kInk, 1, {0.5, 13.5, 0.5, 2.5, 5.5, 2.5, 7, 4.5, 15.5, 4.5, 15.5, 13.5}),
    Line(kAccent, 1, {6, 7.5, 11.5, 7.5}),
    Polygon(kAccent, {3.5, 7.5, 6.5, 5, 6.5, 10}),
    Line(kAccent, 1, {4.5, 10.5, 10, 10.5}),
    Polygon(kAccent, {12.5, 10.5, 9.5, 8, 9.5, 13}),
};

// A clipboard with a list.
inline constexpr IconShape kClipboard[] = {
    Box(kBody, 2.5, 2.5, 11, 13, 1),    Outline(kInk, 1, 2.5, 2.5, 11, 13, 1), Box(kInk, 5, 0.5, 6, 3.5, 1),
    Box(kAccent, 5, 6, 2, 1, 0),        Box(kAccent, 5, 9, 2, 1, 0),           Box(kAccent, 5, 12, 2, 1, 0),
    Line(kInk, 1, {8.5, 6.5, 11, 6.5}), Line(kInk, 1, {8.5, 9.5, 11, 9.5}),    Line(kInk, 1, {8.5, 12.5, 11, 12.5}),
};

inline constexpr IconShape kEnvelope[] = {
    Box(kBody, 0.5, 2.5, 15, 11, 1),
    Outline(kInk, 1, 0.5, 2.5, 15, 11, 1),
    Line(kInk, 1, {1, 3, 8, 9, 15, 3}),
};

// A parcel.
inline constexpr IconShape kParcel[] = {
    Polygon(kBody, {7.5, 0.75, 13.5, 3.75, 13.5, 11.75, 7.5, 14.75, 1.5, 11.75, 1.5, 3.75}),
    Polygon(kAccent, {7.5, 0.75, 13.5, 3.75, 7.5, 6.75, 1.5, 3.75}),
    Closed(kInk, 1, {7.5, 0.75, 13.5, 3.75, 13.5, 11.75, 7.5, 14.75, 1.5, 11.75, 1.5, 3.75}),
    Line(kInk, 1, {1.5, 3.75, 7.5, 6.75, 13.5, 3.75}),
    Line(kInk, 1, {7.5, 6.75, 7.5, 14.75}),
};

// From many to one.
inline constexpr IconShape kCollect[] = {
    Box(kInk, 4, 0, 7, 4, 0.5),          Line(kInk, 1, {2.5, 12.5, 2.5, 10.5, 12.5, 10.5, 12.5, 12.5}),
    Line(kAccent, 1, {7.5, 12, 7.5, 8}), Polygon(kAccent, {7.5, 4.75, 10.75, 8.75, 4.25, 8.75}),
    Box(kInk, 1, 12, 3, 3, 0.5),         Box(kInk, 6, 12, 3, 3, 0.5),
    Box(kInk, 11, 12, 3, 3, 0.5),
};

// From one to many.
inline constexpr IconShape kDistribute[] = {
    Box(kInk, 4, 0, 7, 4, 0.5),
    Line(kAccent, 1, {2.5, 10, 2.5, 6.5, 12.5, 6.5, 12.5, 10}),
    Line(kAccent, 1, {7.5, 4.5, 7.5, 10}),
    Polygon(kAccent, {0.5, 9, 4.5, 9, 2.5, 11.75}),
    Polygon(kAccent, {5.5, 9, 9.5, 9, 7.5, 11.75}),
    Polygon(kAccent, {10.5, 9, 14.5, 9, 12.5, 11.75}),
    Box(kInk, 1, 13, 3, 3, 0.5),
    Box(kInk, 6, 13, 3, 3, 0.5),
    Box(kInk, 11, 13, 3, 3, 0.5),
};

// Arrows to and fro.
inline constexpr IconShape kToAndFro[] = {
    Line(kInk, 2, {2, 5, 14, 5}),
    Line(kInk, 2, {5, 2, 2, 5, 5, 8}),
    Line(kAccent, 2, {2, 11, 14, 11}),
    Line(kAccent, 2, {11, 8, 14, 11, 11, 14}),
};

// Envelopes in a row.
inline constexpr IconShape kQueue[] = {
    Line(kInk, 1, {4.5, 1.5, 11.5, 1.5}), Line(kInk, 1, {2.5, 3.5, 13.5, 3.5}), Box(kBody, 0.5, 5.5, 15, 9, 1),
    Outline(kInk, 1, 0.5, 5.5, 15, 9, 1), Line(kInk, 1, {1, 6, 8, 11, 15, 6}),
};

// A rack, of which something is waited for.
inline constexpr IconShape kRack[] = {
    Box(kInk, 1, 1, 14, 4, 1),   Box(kInk, 1, 6, 14, 4, 1),    Box(kInk, 1, 11, 14, 4, 1), Box(kBody, 3, 2.5, 5, 1, 0),
    Box(kBody, 3, 7.5, 5, 1, 0), Box(kBody, 3, 12.5, 5, 1, 0), Disc(kBody, 12.5, 3, 0.75),
};

inline constexpr IconEntry kTaskIcons[] = {
    {"ControlServer", {kMagnifier, &kServerMark}, IconVariants::kTask},
    {"ControlStation", {kMagnifier, &kStationMark}, IconVariants::kTask},
    {"ExchangeFolder", {kExchangeFolder}, IconVariants::kTask},
    {"ExportSQLServer", {kDatabaseOut, &kServerMark}, IconVariants::kTask},
    {"ExportSQLStation", {kDatabaseOut, &kStationMark}, IconVariants::kTask},
    {"FTPServer", {kDownUp, &kServerMark}, IconVariants::kTask},
    {"FTPStation", {kDownUp, &kStationMark}, IconVariants::kTask},
    {"ProcessInventory", {kClipboard}, IconVariants::kTask},
    {"Message", {kEnvelope}, IconVariants::kTask},
    {"ProgramServer", {kWindow, &kServerMark}, IconVariants::kTask},
    {"ProgramStation", {kWindow, &kStationMark}, IconVariants::kTask},
    {"Softdist", {kParcel}, IconVariants::kTask},
    {"Telecol", {kCollect}, IconVariants::kTask},
    {"Teledist", {kDistribute}, IconVariants::kTask},
    {"Transfer", {kToAndFro}, IconVariants::kTask},
    {"ManagementServer", {kSliders, &kServerMark}, IconVariants::kTask},
    {"ManagementStation", {kSliders, &kStationMark}, IconVariants::kTask},
    {"SupervisionServer", {kEye, &kServerMark}, IconVariants::kTask},
    {"SupervisionStation", {kEye, &kStationMark}, IconVariants::kTask},
    {"BackupServer", {kBoxIn, &kServerMark}, IconVariants::kTask},
    {"BackupStation", {kBoxIn, &kStationMark}, IconVariants::kTask},
    {"RestoreStation", {kBoxOut, &kStationMark}, IconVariants::kTask},
    {"SynchroSQLServer", {kDatabaseSync, &kServerMark}, IconVariants::kTask},
    {"SynchroSQLStation", {kDatabaseSync, &kStationMark}, IconVariants::kTask},
    {"MessageQueuing", {kQueue}, IconVariants::kTask},
    {"FileManagementServer", {kFolderWithPage, &kServerMark}, IconVariants::kTask},
    {"FileManagementStation", {kFolderWithPage, &kStationMark}, IconVariants::kTask},
    {"TaskWaitingServer", {kRack, &kWaitingExecutionBadge}},
};

}  // namespace quorvel::widgets::glyphs
