#include "tools/SampleSystemLog.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/SampleAttachments.h"
#include "tools/SampleNames.h"
#include "tools/SamplePeople.h"
#include "tools/SampleRandom.h"
#include "tools/SampleRare.h"

namespace quorvel::tools {
namespace {

using datasource::kFalse;

constexpr std::uint64_t kSystemLogStream = 6;
constexpr std::int64_t kOwnRowsPerDay = 10;  // that no run wrote
constexpr std::int64_t kMostRows = 50000;
constexpr std::int64_t kByHandPerMille = 120;
constexpr std::int64_t kRunReportPerMille = 600;

constexpr std::int32_t kInformation = 1;
constexpr std::int32_t kError = 2;
constexpr std::int32_t kNotice = 3;

constexpr std::string_view kMachines[] = {"SRV-PARIS-01", "SRV-PARIS-02"};
constexpr std::string_view kScheduler = "scheduler";

// "#" stands for a number.
struct Remark {
  std::int64_t weight;
  std::int32_t level;
  std::string_view text;
  bool withAttachment = false;
  bool ofCompany = false;
};
constexpr Remark kRemarks[] = {
    {30, kInformation, "# old rows removed"},
    {12, kInformation, "Report of the night written", true, true},
    {4, kInformation, "Scheduler started"},
    {20, kNotice, "Lines busy: # calls wait"},
    {6, kNotice, "Licence ends in # days", false, true},
    {6, kNotice, "Next start of the scheduler moved by # minutes"},
    {8, kError, "Router # does not answer", true},
    {4, kError, "Report could not be printed: printer offline", true},
    {2, kError, "The base refused # connections"},
};
constexpr std::int64_t kMostNumber = 90;

// Rows as no writer of today leaves them. What is not given stays as it is.
struct RareRow {
  std::optional<std::int32_t> level{};
  std::optional<std::string_view> label{};
  std::optional<std::string_view> attachment{};
  bool withoutDate = false;
};
constexpr RareRow kRareRows[] = {
    {.level = 0},          {.level = -1},        {.level = 4},
    {.label = kLongLabel}, {.attachment = "  "}, {.attachment = "D:\\log\\été | 1\t2.txt"},
    {.withoutDate = true},
};

struct Event {
  Second at = 0;
  std::optional<std::size_t> run{};  // index
  bool ended = false;                // else the run started
};

std::vector<Event> PlanEvents(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                              SampleRandom& random) {
  const std::int64_t own = options.days * kOwnRowsPerDay;
  const std::int64_t usual = std::min(kMostRows, own + 2 * std::ssize(plan.runs));
  const auto count = static_cast<std::size_t>(options.systemRows ? *options.systemRows : usual);
  std::vector<Event> events;
  const std::size_t mostOfRuns = count - std::min(count, static_cast<std::size_t>(own)) / 2;
  for (std::size_t i = plan.runs.size(); i-- > 0 && events.size() + 2 <= mostOfRuns;) {
    if (plan.runs[i].start != 0) events.push_back({plan.runs[i].start, i, false});
    if (facts.runs[i].end != 0) events.push_back({facts.runs[i].end, i, true});
  }
  while (events.size() < count) events.push_back({AnyTime(options, plan.now, random), {}, false});
  std::ranges::stable_sort(events, {}, &Event::at);
  return events;
}

class LogTeller {
 public:
  LogTeller(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts, SampleRandom& random,
            HistoryWriter& writer)
      : plan_(plan), facts_(facts), random_(random), writer_(writer), attachments_(options.attachments) {}

  void Tell(const Event& event, std::optional<std::size_t> rare) {
    label_.clear();
    attachment_.clear();
    SchedulerLogRow row{.logged = DateAt(event.at), .userName = kScheduler};
    row.machine = AnyOf(kMachines, random_);
    if (event.run) {
      TellRun(event, row);
    } else {
      TellRemark(row);
    }
    row.label = label_;
    row.attachment = attachment_;
    if (rare) MakeRare(*rare, row);
    writer_.Add(row);
  }

 private:
  void TellRun(const Event& event, SchedulerLogRow& row) {
    const PlannedRun& run = plan_.runs[*event.run];
    const PlannedProcess& process = plan_.processes[static_cast<std::size_t>(run.process)];
    const std::int32_t failed = event.ended ? facts_.runs[*event.run].failedParts : 0;
    label_ = process.name + ", batch " + std::to_string(*event.run + 1) + (event.ended ? ": ended" : ": started");
    if (failed > 0) {
      label_ += ", " + std::to_string(failed) + " not OK";
      if (random_.PerMille(kRunReportPerMille)) attachment_ = attachments_.Any(random_);
    }
    row.level = failed > 0 ? kError : kInformation;
    if (!event.ended && random_.PerMille(kByHandPerMille)) row.userName = AnyOf(Operators(), random_);
    if (run.onStation != kFalse) row.machine = plan_.stations[static_cast<std::size_t>(run.firstStation)].identifier;
    if (run.stationCount > 0 && IsForCompany(process)) SetCompany(process.company, row);
  }

  void TellRemark(SchedulerLogRow& row) {
    const Remark& remark = AnyByWeight(kRemarks, &Remark::weight, random_);
    row.level = remark.level;
    label_ = Fill(remark.text, "#", std::to_string(1 + random_.Below(kMostNumber)));
    if (remark.withAttachment) attachment_ = attachments_.Any(random_);
    if (remark.ofCompany && plan_.companies > 0) {
      SetCompany(static_cast<std::int32_t>(random_.Below(plan_.companies)), row);
    }
  }

  static void SetCompany(std::int32_t index, SchedulerLogRow& row) {
    row.companyId = index + 1;
    row.company = Companies()[static_cast<std::size_t>(index)].name;
  }

  static void MakeRare(std::size_t rare, SchedulerLogRow& row) {
    if (rare >= std::size(kRareRows)) {
      row.label = OddReports()[rare - std::size(kRareRows)];
      return;
    }
    const RareRow& odd = kRareRows[rare];
    row.level = odd.level.value_or(row.level);
    row.label = odd.label.value_or(row.label);
    row.attachment = odd.attachment.value_or(row.attachment);
    if (odd.withoutDate) row.logged = 0;
  }

  const SamplePlan& plan_;
  const SampleFacts& facts_;
  SampleRandom& random_;
  HistoryWriter& writer_;
  SampleAttachments attachments_;
  std::string label_;
  std::string attachment_;
};

}  // namespace

void WriteSampleSystemLog(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                          HistoryWriter& writer) {
  SampleRandom random(options.seed, kSystemLogStream);
  const std::vector<Event> events = PlanEvents(options, plan, facts, random);
  const RareCases rare(plan.rareCases, std::ssize(events), std::ssize(kRareRows) + std::ssize(OddReports()));
  LogTeller teller(options, plan, facts, random, writer);
  for (std::size_t i = 0; i < events.size(); ++i) teller.Tell(events[i], rare.At(static_cast<std::int64_t>(i)));
}

}  // namespace quorvel::tools
