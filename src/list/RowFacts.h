// What a row of any list says to the commands that act on it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "widgets/ListView.h"

namespace quorvel::list {

// The column of that caption, counted from 0.
std::optional<std::size_t> ColumnOf(const widgets::ListView& list, std::string_view caption);

// Whether somebody has seen the alarm of a row. Alarms that triggered something keep their icon either way, so the list
// of alarms says it in words; a row of another list is none.
enum class AlarmMark { kNone, kActive, kAcknowledged };
AlarmMark AlarmMarkOf(const widgets::ListView& list, std::size_t row);

// The file that a row names, without blanks around it; "" where it names none, or one that was gone when it was shown.
std::string AttachmentOf(const widgets::ListView& list, std::size_t row);

// The key that a run has in the tree by process, "LPROC|process|flag|run", by the key of a node or row that belongs to
// it: of either process view, or of an alarm that it raised. With it as p_Key a host shows the run. "" where the key
// names none.
std::string RunKeyIn(std::string_view key);

}  // namespace quorvel::list
