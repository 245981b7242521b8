#include "control/Options.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <span>
#include <system_error>
#include <vector>

#include "control/Routing.h"
#include "platform/Error.h"
#include "util/ComboSelection.h"
#include "util/PublicOstrana.h"

namespace quorvel {
namespace {

constexpr std::int32_t kLongestPeriod = 99;

struct StateText {
  std::string_view text;
  StateFilter state;
};

// "Before" and "Unknown" are one state, as are "Information" and "OK": tabs name them differently.
constexpr StateText kStateTexts[] = {
    {"All", StateFilter::kAll},
    {"OK", StateFilter::kOk},
    {"Information", StateFilter::kOk},
    {"Error", StateFilter::kError},
    {"In progress", StateFilter::kInProgress},
    {"Last execution", StateFilter::kLastExecution},
    {"Unknown", StateFilter::kUnknown},
    {"Before", StateFilter::kUnknown},
};

struct Counterpart {
  std::string_view text;
  std::string_view counterpart;
};

// The states that a tab offers, what stands for a text that it does not offer, and what stands for any other.
struct TabStates {
  std::string_view tab;
  std::span<const std::string_view> texts;
  std::span<const Counterpart> counterparts;
  std::string_view otherwise;
};

constexpr std::string_view kConnectionTexts[] = {"All", "OK", "Error", "Last execution"};
constexpr std::string_view kBackupTexts[] = {"All", "OK", "Error"};
constexpr std::string_view kSystemTexts[] = {"All", "Error", "Before", "Information"};
constexpr std::string_view kProcessTexts[] = {"All", "OK", "In progress", "Error", "Unknown", "Last execution"};
constexpr Counterpart kSystemCounterparts[] = {{"OK", "Information"}, {"Unknown", "Before"}};
constexpr Counterpart kProcessCounterparts[] = {{"Information", "OK"}, {"Before", "Unknown"}};

constexpr TabStates kTabs[] = {
    {"Connections", kConnectionTexts, {}, "All"},
    {"Backups", kBackupTexts, {}, "All"},
    {"System", kSystemTexts, kSystemCounterparts, "Information"},
};
constexpr TabStates kOtherTabs{"", kProcessTexts, kProcessCounterparts, "Last execution"};

const TabStates& StatesOf(std::string_view tabCaption) {
  const auto* const found = std::ranges::find(kTabs, tabCaption, &TabStates::tab);
  return found == std::end(kTabs) ? kOtherTabs : *found;
}

std::string_view CounterpartOf(const TabStates& states, std::string_view text) {
  const auto found = std::ranges::find(states.counterparts, text, &Counterpart::text);
  return found == states.counterparts.end() ? states.otherwise : found->counterpart;
}

// The number that a text stands for; one too large for 32 bits counts as the largest, whose negative is the least.
// Nothing when it is no number.
std::optional<std::int32_t> WholeNumber(std::string_view text) {
  std::int32_t number = 0;
  const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || end != text.data() + text.size()) return std::nullopt;
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  if (code != std::errc()) return text.front() == '-' ? -kLargest : kLargest;
  return std::max(number, -kLargest);
}

// Length of the period. Error 13 when the text box holds no whole number.
std::int32_t PeriodLength(const ProcessLogControls& controls) {
  const std::optional<std::int32_t> length = WholeNumber(controls.txtDuring.text());
  if (!length) {
    throw Error(SystemError::kTypeMismatch, "Not a whole number: \"" + controls.txtDuring.text() + "\"");
  }
  return *length;
}

DateInterval SelectedUnit(const ProcessLogControls& controls) {
  return static_cast<DateInterval>(controls.cboDuringUnit.selected().value_or(0));
}

}  // namespace

std::optional<StateFilter> StateFilterOf(std::string_view text) {
  const auto* const found = std::ranges::find(kStateTexts, text, &StateText::text);
  return found == std::end(kStateTexts) ? std::nullopt : std::optional(found->state);
}

void FillStateList(widgets::ComboBox& cboState, std::string_view tabCaption) {
  const std::string before = cboState.selectedText();
  const TabStates& states = StatesOf(tabCaption);
  std::vector<widgets::Item> items;
  for (const std::string_view text : states.texts) {
    items.push_back({std::string(text), static_cast<std::int32_t>(*StateFilterOf(text))});
  }
  // The states that are there already need not be drawn again.
  if (cboState.selected() && items == cboState.items()) return;
  cboState.SetItems(std::move(items));
  if (!util::SelectStringIn(cboState, before)) util::SelectStringIn(cboState, CounterpartOf(states, before));
}

void FillOptionTexts(ProcessLogControls& c) {
  c.lblState.SetText("&State");
  c.cboState.SetToolTip("Show only runs with this outcome");
  c.lblDate.SetText("S&tart");
  c.dtpDate.SetToolTip("First day of the period");
  c.dtpHour.SetToolTip("Time of day at which the period begins and ends");
  c.lblDuring.SetText("D&uring");
  c.txtDuring.SetToolTip("Length of the period");
  c.updDuring.SetToolTip("Longer or shorter (Up, Down in the field)");
  c.cboDuringUnit.SetToolTip("Unit of the length");
  c.lblPeriodEnd.SetToolTip("Where the period ends; what begins then is no longer part of it");
  // No access key of a caption is one of the menus that hosts have: File, Edit, View, Help.
  c.chkCommunicationsFilter.SetText("Failed &connections only");
  c.chkCommunicationsFilter.SetToolTip("List no other connections; the tree stays as it is");
  c.chkGroupByDay.SetText("&Group by day");
  c.chkGroupByDay.SetToolTip("Show the connections of a month below their days");
  c.chkAlarmFilter.SetText("&Active alarms only");
  c.chkAlarmFilter.SetToolTip("List no alarms that somebody acknowledged; the tree follows with the next Refresh");
  c.lblGroupBy.SetText("&Order");
  c.lstGroupBy.SetToolTip(
      "What stands above Origin arranges the first level of the tree, from the top down.\n"
      "Date: the newest execution first. User: what reached the most stations first.\n"
      "Processes: stations with the most processes first. Origin: as the history has it, by name.\n"
      "Alt+Up and Alt+Down move the selected row.");
  c.updGroupBy.SetToolTip("Move the selected row up or down (Alt+Up, Alt+Down in the list)");
  c.cmdRefresh.SetText("&Refresh");
  c.cmdRefresh.SetToolTip("Read the history again (F5)");
  c.cboDuringUnit.SetItems({{"Months", 0}, {"Days", 0}, {"Hours", 0}});
  c.cboDuringUnit.Select(0);
  c.updDuring.SetRange(1, kLongestPeriod);
  c.lstGroupBy.SetItems({{"- Origin", 0}, {"- User", 1}, {"- Date", 2}, {"- Processes", 3}});
  c.lstGroupBy.Select(0);
}

OptionsFilter ReadOptions(const ProcessLogControls& c, StateFilter stateBefore) {
  OptionsFilter filter;
  filter.state = StateFilterOf(c.cboState.selectedText()).value_or(stateBefore);
  filter.start = AtTimeOf(c.dtpDate.value(), c.dtpHour.value());
  try {
    filter.end = AddInterval(filter.start, SelectedUnit(c), PeriodLength(c));
  } catch (const Error&) {
    // Nobody sees the period of the last execution, and nobody uses it.
    if (filter.state != StateFilter::kLastExecution) throw;
    filter.end = filter.start;
  }
  for (const widgets::Item& item : c.lstGroupBy.items()) filter.groupBy += std::to_string(item.data);
  return filter;
}

void StepPeriod(ProcessLogControls& c, std::int32_t by) {
  const std::optional<std::int32_t> shown = WholeNumber(c.txtDuring.text());
  c.updDuring.SetValue(shown.value_or(c.updDuring.minimum()));
  if (shown) c.updDuring.SetValue(c.updDuring.value() + by);
  c.txtDuring.SetText(std::to_string(c.updDuring.value()));
}

void MoveGroup(ProcessLogControls& c, bool up) {
  const std::optional<std::size_t> row = c.lstGroupBy.selected();
  const std::size_t last = c.lstGroupBy.items().size() - 1;
  if (!row || *row == (up ? 0 : last)) return;
  c.lstGroupBy.Exchange(*row, up ? *row - 1 : *row + 1);
}

void ShowPeriodEnd(ProcessLogControls& c, const Platform& platform) {
  std::optional<DateValue> end;
  try {
    end = AddInterval(AtTimeOf(c.dtpDate.value(), c.dtpHour.value()), SelectedUnit(c), PeriodLength(c));
  } catch (const Error&) {
    end.reset();  // what is wrong with the period is told when it is used
  }
  c.lblPeriodEnd.SetText("to " + (end ? util::strFormatDateTime(platform, *end, util::kDateAndTime) : "?"));
}

void LimitPeriod(ProcessLogControls& c) {
  // One limit for months, days and hours alike; hosts count on it.
  c.updDuring.SetRange(1, kLongestPeriod);
  const std::optional<std::int32_t> shown = WholeNumber(c.txtDuring.text());
  if (shown && *shown > kLongestPeriod) c.txtDuring.SetText(std::to_string(kLongestPeriod));
}

void ShowOptions(ProcessLogControls& c, StateFilter state) {
  // An import is shown whole. The last execution of each process needs no period.
  const std::string_view tab = c.sstProcessLog.currentCaption();
  const bool filtered = tab != NameOf(View::kImports);
  c.lblState.SetVisible(filtered);
  c.cboState.SetVisible(filtered);
  const bool period = filtered && state != StateFilter::kLastExecution;
  for (widgets::Control* control :
       std::initializer_list<widgets::Control*>{&c.lblDate, &c.dtpDate, &c.dtpHour, &c.lblDuring, &c.txtDuring,
                                                &c.updDuring, &c.cboDuringUnit, &c.lblPeriodEnd}) {
    control->SetVisible(period);
  }
  const bool connections = tab == "Connections";
  c.chkCommunicationsFilter.SetVisible(connections);
  c.chkGroupByDay.SetVisible(connections);
  c.chkAlarmFilter.SetVisible(tab == "Alarms");
  // Only the first level of these two trees can be arranged.
  const bool arranged = tab == "Processes" || tab == "Users";
  c.lblGroupBy.SetVisible(arranged);
  c.lstGroupBy.SetVisible(arranged);
  c.updGroupBy.SetVisible(arranged);
}

void SetPeriodStart(ProcessLogControls& c, DateValue now) {
  const DateInterval unit = SelectedUnit(c);
  const DateValue start = AddInterval(now, unit, -PeriodLength(c));
  if (unit == DateInterval::kHours) {
    c.dtpHour.SetValue(TimePart(start));
    c.dtpDate.SetValue(DatePart(start));
    return;
  }
  c.dtpHour.SetValue(0);
  c.dtpDate.SetValue(AddInterval(DatePart(start), DateInterval::kDays, 1));
}

}  // namespace quorvel
