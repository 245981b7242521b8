#include "control/ucProcessLog.h"

#include <charconv>
#include <optional>
#include <system_error>

#include "control/Layout.h"
#include "control/Tabs.h"
#include "tree/StateGroups.h"
#include "util/ComboSelection.h"

namespace quorvel {
namespace {

using datasource::Propagating;

// The tree width that a new control starts with, before the user drags the splitter.
constexpr widgets::Twips kFirstTreeWidth = 6000;
// The size that a new control has until its host gives it one.
constexpr widgets::Twips kFirstWidth = 15000;
constexpr widgets::Twips kFirstHeight = 9000;

// Fast enough not to wait for, slow enough to see where one is taken.
constexpr std::int32_t kMillisecondsALine = 30;

constexpr std::size_t kDaysRow = 1;  // of cboDuringUnit
constexpr std::string_view kDefaultPeriod = "1";

std::optional<std::int32_t> NumberWithin(const std::optional<std::string>& text, std::int32_t least,
                                         std::int32_t most) {
  if (!text) return std::nullopt;
  std::int32_t number = 0;
  const auto [end, code] = std::from_chars(text->data(), text->data() + text->size(), number);
  const bool isNumber = code == std::errc() && end == text->data() + text->size();
  if (!isNumber || number < least || number > most) return std::nullopt;
  return number;
}

}  // namespace

ucProcessLog::ucProcessLog(Platform& platform, datasource::RecordSourceFactory& factory)
    : platform_(platform),
      factory_(factory),
      errors_(platform),
      detail_(platform, errors_, [this] { lvMotherList_SelectionChanged(); }),
      width_(kFirstWidth),
      height_(kFirstHeight) {
  datasource::Reporting(errors_, "Quorvel: ucProcessLog.UserControl_Initialize", [&] {
    ProcessLogControls& c = controls_;
    c.imgSplitter.SetBounds({kFirstTreeWidth, 0, 0, 0});
    c.picSplitter.SetVisible(false);
    c.Timer_ScrollDown_TV.SetEnabled(false);
    c.Timer_ScrollDown_TV.SetIntervalMilliseconds(kMillisecondsALine);
    LayOut();
    c.sstProcessLog.SetTabs(AllTabs());
    ShowTabs(c.sstProcessLog, f_tlFromType, tabsReduced_, tabChosen_);
    FillOptionTexts(c);
    c.txtDuring.SetText(kDefaultPeriod);
    FillStateList(c.cboState, c.sstProcessLog.currentCaption());
    util::SelectStringIn(c.cboState, "Last execution");
    ControlsVisible(static_cast<std::int32_t>(StateFilter::kLastExecution));
    InitListView();
    SetfraListCaption();
    MajMenu();
    // Last, what asks others: a clock that fails leaves a viewer that can be used.
    const DateValue now = platform_.Now();
    c.dtpDate.SetValue(DatePart(now));
    c.dtpHour.SetValue(TimePart(now));
    ShowPeriodEnd(c, platform_);
  });
}

ucProcessLog::~ucProcessLog() {
  // Hosts that share a component among controls rely on this order.
  commandLog_.reset();
  processLog_.reset();
  alarmsLog_.reset();
  labels_.reset();
  taskRuns_.reset();
  usersImport_.reset();
}

void ucProcessLog::Init() {
  Propagating("Quorvel: ucProcessLog.Init", [&] {
    if (labelsRead_) return;
    if (!labels_) labels_ = datasource::CreateRecordSource<datasource::Labels>(factory_, f_strServerName);
    const std::optional<std::string> useType = LabelValue(*labels_, "UseType");
    serverMode_ = !useType || *useType == "SERVEUR";
    std::optional<std::int32_t> period;
    std::optional<std::int32_t> unit;
    if (useType) {
      const std::string role = serverMode_ ? "SERVER" : "STATION";
      period = NumberWithin(LabelValue(*labels_, role + "_LOGS_DISPLAY_PERIOD"), 1, controls_.updDuring.maximum());
      unit = NumberWithin(LabelValue(*labels_, role + "_LOGS_DISPLAY_TYPE"), 0, 2);
    }
    labelsRead_ = true;
    if (periodSet_) return;
    controls_.txtDuring.SetText(period ? std::to_string(*period) : std::string(kDefaultPeriod));
    controls_.cboDuringUnit.Select(unit ? static_cast<std::size_t>(*unit) : kDaysRow);
    SetPeriodStart(controls_, platform_.Now());
    ShowPeriodEnd(controls_, platform_);
  });
}

// Nothing when the installation has no such setting: every setting has a default.
std::optional<std::string> ucProcessLog::LabelValue(datasource::Labels& labels, std::string_view name) {
  std::int32_t status = 0;
  labels.GetLabel(f_lngConnect, name, status);
  return status == 0 ? std::optional(labels.strLabelValue()) : std::nullopt;
}

OptionsFilter ucProcessLog::ReturnOptionsFilter(StateFilter stateBefore, bool showOptions) {
  return Propagating("Quorvel: ucProcessLog.ReturnOptionsFilter", [&] {
    OptionsFilter filter = ReadOptions(controls_, stateBefore);
    if (showOptions) ControlsVisible(static_cast<std::int32_t>(filter.state));
    return filter;
  });
}

void ucProcessLog::InitStateListByTab() {
  Propagating("Quorvel: ucProcessLog.InitStateListByTab",
              [&] { FillStateList(controls_.cboState, controls_.sstProcessLog.currentCaption()); });
}

void ucProcessLog::ControlsVisible(std::int32_t stateCode) {
  Propagating("Quorvel: ucProcessLog.ControlsVisible", [&] {
    ShowOptions(controls_, static_cast<StateFilter>(stateCode));
    LayOut();
  });
}

void ucProcessLog::SizeControls(float& treeWidth) {
  Propagating("Quorvel: ucProcessLog.SizeControls", [&] { LayOutPanes(controls_, treeWidth); });
}

void ucProcessLog::SizeControls() {
  auto treeWidth = static_cast<float>(controls_.imgSplitter.bounds().left);
  SizeControls(treeWidth);
}

void ucProcessLog::LayOut() {
  LayOutControl(controls_, width_, height_);
}

void ucProcessLog::InitListView() {
  Propagating("Quorvel: ucProcessLog.InitListView", [&] {
    controls_.lvMotherList.InBatch([&] {
      controls_.lvMotherList.SetRows(nullptr);
      controls_.lvMotherList.SetHeaders({});
      controls_.lvMotherList.SetSorted(false);
    });
  });
}

bool ucProcessLog::ClearColumnHeaderLV(std::string_view firstCaption) {
  return Propagating("Quorvel: ucProcessLog.ClearColumnHeaderLV", [&] {
    const auto& headers = controls_.lvMotherList.headers();
    if (!headers.empty() && headers.front().caption == firstCaption) return false;
    controls_.lvMotherList.SetHeaders({});
    return true;
  });
}

void ucProcessLog::SetfraListCaption() {
  Propagating("Quorvel: ucProcessLog.SetfraListCaption", [&] {
    const bool system = shown_.view == View::kSystem;  // which has no tree
    const std::int32_t count = system ? p_ListCount() : tree::CountItemsInTreeview(controls_.tvMotherList);
    // A host may show a view under the tab of another.
    const std::string_view view = NameOf(shown_.view);
    const std::string_view name = view.empty() ? controls_.sstProcessLog.currentCaption() : view;
    controls_.fraList.SetText(std::string(name) + " (" + std::to_string(count) + ")");
  });
}

void ucProcessLog::ModifyMotherListSize(bool listAlone) {
  Propagating("Quorvel: ucProcessLog.ModifyMotherListSize", [&] {
    controls_.tvMotherList.SetVisible(!listAlone);
    SizeControls();
  });
}

datasource::ProcessLog& ucProcessLog::ProcessLogSource() {
  if (!processLog_) processLog_ = datasource::CreateRecordSource<datasource::ProcessLog>(factory_, f_strServerName);
  return *processLog_;
}

datasource::CommandLog& ucProcessLog::CommandLogSource() {
  if (!commandLog_) commandLog_ = datasource::CreateRecordSource<datasource::CommandLog>(factory_, f_strServerName);
  return *commandLog_;
}

datasource::Quorvel& ucProcessLog::TaskRunSource() {
  if (!taskRuns_) taskRuns_ = datasource::CreateRecordSource<datasource::Quorvel>(factory_, f_strServerName);
  return *taskRuns_;
}

datasource::AlarmsLog& ucProcessLog::AlarmsSource() {
  if (!alarmsLog_) alarmsLog_ = datasource::CreateRecordSource<datasource::AlarmsLog>(factory_, f_strServerName);
  return *alarmsLog_;
}

datasource::UsersImport& ucProcessLog::ImportSource() {
  if (!usersImport_) usersImport_ = datasource::CreateRecordSource<datasource::UsersImport>(factory_, f_strServerName);
  return *usersImport_;
}

}  // namespace quorvel
