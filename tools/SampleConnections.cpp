#include "tools/SampleConnections.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "tools/SampleConversation.h"
#include "tools/SampleNames.h"
#include "tools/SampleRandom.h"
#include "tools/SampleRare.h"

namespace quorvel::tools {
namespace {

using datasource::Flag;
using datasource::kFalse;
using datasource::kTrue;

constexpr std::uint64_t kConnectionsStream = 2;
constexpr std::int64_t kMostUnasked = 20000;
// Older connections keep their commands only when they failed: a large history would be commands above all.
constexpr std::int32_t kCommandBudget = 20000;
constexpr std::int64_t kLargeFilePerMille = 100;

// Connections as no writer of today leaves them. What is not given stays as it is.
struct RareConnection {
  std::optional<ResultFlags> result{};
  std::optional<Flag> fromStation{};
  bool withoutDates = false;
};
constexpr RareConnection kRareConnections[] = {
    {.result = ResultFlags{.ok = kTrue, .notOk = kTrue}},
    {.result = ResultFlags{.ok = 1}},
    {.result = ResultFlags{.notOk = 1}},
    {.result = ResultFlags{.inProgress = 1}},
    {.result = kNoResult},
    {.fromStation = 1},
    {.withoutDates = true},
};

std::int32_t SizeOf(std::size_t transfers, SampleRandom& random) {
  std::int64_t size = 0;
  for (std::size_t i = 0; i < transfers; ++i) {
    const std::int64_t most = random.PerMille(kLargeFilePerMille) ? 60000 : 1500;
    size += 4 + random.Below(most);
  }
  return static_cast<std::int32_t>(size);
}

void WriteCarried(const SamplePlan& plan, const CarriedConnection& carried, SampleRandom& random,
                  HistoryWriter& writer) {
  const PlannedStation& station = plan.stations[static_cast<std::size_t>(carried.station)];
  const DateValue start = DateAt(carried.start);
  writer.Add(CommunicationRow{.id = carried.id,
                              .stationId = carried.station + 1,
                              .stationName = NameAt(plan, station, carried.start),
                              .fromStation = carried.fromStation,
                              .start = start,
                              .end = carried.end,
                              .sizeKb = SizeOf(static_cast<std::size_t>(carried.transfers), random),
                              .report = carried.report,
                              .result = carried.result});
  if (carried.result != kSuccessResult) return;
  writer.Add(0, CommandRow{.communicationId = carried.id,
                           .communicationDate = start,
                           .kind = kHangUp,
                           .text = "HANG UP",
                           .start = carried.end,
                           .end = carried.end,
                           .result = kSuccessResult});
}

ResultFlags ResultOf(const SamplePlan& plan, const Conversation& conversation) {
  if (conversation.end > plan.now) return kRunningResult;
  if (conversation.fate == Fate::kUnknown) return kNoResult;
  return FailsAsConnection(conversation.fate) ? kFailureResult : kSuccessResult;
}

CommunicationRow RowOf(const SamplePlan& plan, const Conversation& conversation, SampleRandom& random) {
  const PlannedStation& station = plan.stations[static_cast<std::size_t>(conversation.station)];
  CommunicationRow row{.stationId = conversation.station + 1,
                       .stationName = NameAt(plan, station, conversation.start),
                       .fromStation = conversation.fromStation ? kTrue : kFalse,
                       .start = DateAt(conversation.start),
                       .end = conversation.end > plan.now ? 0 : DateAt(conversation.end),
                       .result = ResultOf(plan, conversation)};
  if (conversation.fate != Fate::kNotReached) row.sizeKb = SizeOf(conversation.commands.size(), random);
  if (row.result == kFailureResult) row.report = conversation.failure->report;
  return row;
}

void MakeRare(std::size_t rare, CommunicationRow& row) {
  if (rare >= std::size(kRareConnections)) {
    row.report = OddReports()[rare - std::size(kRareConnections)];
    return;
  }
  const RareConnection& connection = kRareConnections[rare];
  row.result = connection.result.value_or(row.result);
  row.fromStation = connection.fromStation.value_or(row.fromStation);
  if (connection.withoutDates) row.start = row.end = 0;
}

std::int32_t UnaskedCount(const SampleOptions& options, const SampleFacts& facts) {
  if (options.stations == 0) return 0;
  if (!options.communications) {
    return static_cast<std::int32_t>(std::min(kMostUnasked, std::int64_t{options.stations} * options.days));
  }
  return std::max(0, *options.communications - static_cast<std::int32_t>(facts.connections.size()));
}

}  // namespace

void WriteSampleConnections(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                            HistoryWriter& writer) {
  SampleRandom random(options.seed, kConnectionsStream);
  for (const CarriedConnection& carried : facts.connections) WriteCarried(plan, carried, random, writer);

  const std::int32_t count = UnaskedCount(options, facts);
  const RareCases rare(plan.rareCases, count,
                       static_cast<std::int64_t>(std::size(kRareConnections) + OddReports().size()));
  const std::vector<Second> times = AnyTimes(options, plan.now, count, random);
  for (std::int32_t i = 0; i < count; ++i) {
    const Conversation conversation = AnyConversation(plan, times[static_cast<std::size_t>(i)], random);
    CommunicationRow row = RowOf(plan, conversation, random);
    row.id = facts.lastConnection + i + 1;
    if (const auto rareCase = rare.At(i)) MakeRare(*rareCase, row);
    writer.Add(row);
    const bool keepsCommands = count - i <= kCommandBudget || row.result.notOk != kFalse;
    if (keepsCommands) WriteCommands(plan, conversation, row, writer);
  }
}

}  // namespace quorvel::tools
