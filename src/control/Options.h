// The options panel: its lists, and the filter that they make up.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "control/Enumerations.h"
#include "control/ProcessLogControls.h"
#include "platform/Dates.h"
#include "platform/Platform.h"
#include "util/KeyDates.h"

namespace quorvel {

// What the options panel asks for.
struct OptionsFilter {
  DateValue start = 0;  // start <= date < end
  DateValue end = 0;
  StateFilter state = StateFilter::kAll;
  std::string groupBy;  // four digits: the item data of lstGroupBy's rows

  util::Period period() const { return {start, end}; }
};

// The state filter that a text of cboState stands for, on whatever tab; nothing for any other text.
std::optional<StateFilter> StateFilterOf(std::string_view text);

// Fills cboState with the states of a tab. The text selected before stays selected, or its counterpart does.
void FillStateList(widgets::ComboBox& cboState, std::string_view tabCaption);

// Fills the unit and group lists and the texts of the panel, as they are at start-up.
void FillOptionTexts(ProcessLogControls& controls);

// Reads the panel. `stateBefore` stays where the text of cboState stands for no state. Errors 13 and 6 for a period
// that is no whole number or does not fit, 6 for an end beyond the calendar, where the state has a period.
OptionsFilter ReadOptions(const ProcessLogControls& controls, StateFilter stateBefore);

// Makes the period `by` units longer, within its limits. It starts from what the text box shows; from the least length
// where that is no number.
void StepPeriod(ProcessLogControls& controls, std::int32_t by);

// Moves the selected row of the group order one place up, or down; at either end it stays.
void MoveGroup(ProcessLogControls& controls, bool up);

// Shows where the period ends, which is no longer part of it; nothing where that cannot be told.
void ShowPeriodEnd(ProcessLogControls& controls, const Platform& platform);

// Cuts the period and its up-down to the one limit that serves every unit.
void LimitPeriod(ProcessLogControls& controls);

// Shows the controls that this state and tab call for.
void ShowOptions(ProcessLogControls& controls, StateFilter state);

// Sets the start of the period by its length and unit: so many hours before `now`; with days and months, midnight of
// the day after the one that lies so far back. Error 13 when the length is no whole number.
void SetPeriodStart(ProcessLogControls& controls, DateValue now);

}  // namespace quorvel
