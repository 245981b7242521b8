// Cases of the queries about connections, and about the commands of connections and of steps.
#include <gmock/gmock.h>

#include "datasource/CommandLog.h"
#include "hub/QueryCases.h"
#include "hub/QueryRows.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

using datasource::CommandLog;
using testing::ElementsAre;
using testing::IsEmpty;

void CheckGetCommunications(Installation& at) {
  const auto source = at.Create<CommandLog>();
  std::int32_t status = -1;
  const auto ask = [&](double from, double to, std::int32_t state = 0, std::int32_t user = -1,
                       std::int32_t failedOnly = 0) {
    source->GetCommunications(at.Connection(), from, to, state, user, failedOnly, status);
    return All(source->Records().lngCommunicationId);
  };
  ask(kEarly, kLate);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Rows("GetCommunications", *source), R"(503|46346.5|0|1|alpha|0|7||-1|0|0|
502|46346|46346.125|2|Beta|-1|0|line lost|0|0|-1|
504|46345.9375|46346.0625|3|aardvark|0|2||0|-1|-1|
501|46345.25|46345.265625|1|alpha|0|12|closed|0|-1|0|
)");
  EXPECT_THAT(ask(46345, 46346), ElementsAre(504, 501)) << "a day holds its midnight and not the next";
  EXPECT_THAT(ask(46346, 46347), ElementsAre(503, 502));
  EXPECT_THAT(ask(46345.25, 46345.9375), ElementsAre(501));
  EXPECT_THAT(ask(kEarly, kLate, 1), ElementsAre(504, 501)) << "both flags: OK comes first";
  EXPECT_THAT(ask(kEarly, kLate, 2), ElementsAre(502));
  EXPECT_THAT(ask(kEarly, kLate, 3), ElementsAre(503));
  EXPECT_THAT(ask(-1, kLate, 5), ElementsAre(505)) << "no flag: unknown";
  EXPECT_THAT(ask(kEarly, kLate, 0, -1, 1), ElementsAre(502));
  EXPECT_THAT(ask(kEarly, kLate, 0, kAlpha), ElementsAre(503, 501));
  EXPECT_THAT(ask(kEarly, kLate, 2, kAlpha), IsEmpty());
  EXPECT_THAT(ask(kEarly, kLate, 0, 99), IsEmpty());
  EXPECT_EQ(status, 0);

  EXPECT_THAT(ask(0, 0, 4), ElementsAre(503, 502, 504, 505)) << "the newest of each station, at any time";
  EXPECT_THAT(ask(46345, 46346, 4), ElementsAre(504)) << "which 501 is not, though the newest in this period";
  EXPECT_THAT(ask(0, 0, 4, kAlpha), ElementsAre(503));
  EXPECT_THAT(ask(0, 0, 4, -1, -1), ElementsAre(502));
  EXPECT_EQ(status, 0);
  for (const auto& [from, to] : {std::pair{kLate, kEarly}, {0.0, kLate}, {0.0, 0.0}}) {
    EXPECT_THAT(ask(from, to), IsEmpty());
    EXPECT_EQ(status, 2);
  }
  ask(kEarly, kLate);
  source->CloseCommunications(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetCommunicationsByMonth(Installation& at) {
  const auto source = at.Create<CommandLog>();
  std::int32_t status = -1;
  const auto ask = [&](double from, double to, std::int32_t state = 0, std::int32_t user = -1) {
    source->GetCommunicationsByMonth(at.Connection(), from, to, state, user, status);
    return Rows("GetCommunicationsByMonth", *source);
  };
  EXPECT_EQ(ask(kEarly, kLate), "46346|2|\n46345|2|\n");
  EXPECT_EQ(ask(46345.5, 46346.5), "46346|1|\n46345|1|\n");
  EXPECT_EQ(ask(kEarly, kLate, 1), "46345|2|\n");
  EXPECT_EQ(ask(kEarly, kLate, 2), "46346|1|\n");
  EXPECT_EQ(ask(kEarly, kLate, 0, kAlpha), "46346|1|\n46345|1|\n");
  EXPECT_EQ(ask(0, 0, 4), "46346|2|\n46345|1|\n0|1|\n");
  EXPECT_EQ(ask(46345, 46346, 4, kAlpha), "");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ask(0, 0), "");
  EXPECT_EQ(status, 2);
  ask(kEarly, kLate);
  source->CloseCommunicationsByMonth(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetCommandLogByCommunication(Installation& at) {
  const auto source = at.Create<CommandLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t communication) {
    source->GetCommandLogByCommunication(at.Connection(), communication, status);
    return Rows("GetCommandLogByCommunication", *source);
  };
  EXPECT_EQ(ask(501), R"(501|46345.25|401|89|92|put a.zip|kept|46345.25|46345.265625|0|-1|0|
501|46345.25|403|1|0|bye||46345.265625|46345.265625|0|-1|0|
)");
  EXPECT_EQ(ask(502), "");
  EXPECT_EQ(status, 0);
  for (const std::int32_t missing : {999, 0, -1}) {
    EXPECT_EQ(ask(missing), "");
    EXPECT_EQ(status, 1);
  }
  ask(501);
  source->CloseCommandLogByCommunication(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetCommandLogByStepLog(Installation& at) {
  const auto source = at.Create<CommandLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t step) {
    source->GetCommandLogByStepLog(at.Connection(), step, status);
    return Rows("GetCommandLogByStepLog", *source);
  };
  const std::string commands = R"(501|46345.25|401|89|92|put a.zip|kept|46345.25|46345.265625|0|-1|0|
0|0|402|88|91|put b.zip|lost|46345.265625|46345.28125|0|0|-1|
)";
  EXPECT_EQ(ask(kFirstStep), commands);
  EXPECT_EQ(ask(kSecondStep), "");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ask(999), "");
  EXPECT_EQ(status, 1);
  EXPECT_EQ(ask(-1), "") << "the step itself is no filter";
  EXPECT_EQ(status, 1);
  EXPECT_EQ(ask(kFirstStep), commands);
  source->CloseCommandLogByStepLog(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

constexpr QueryCase kCases[] = {
    {"GetCommunications", CheckGetCommunications},
    {"GetCommunicationsByMonth", CheckGetCommunicationsByMonth},
    {"GetCommandLogByCommunication", CheckGetCommandLogByCommunication},
    {"GetCommandLogByStepLog", CheckGetCommandLogByStepLog},
};

}  // namespace

std::span<const QueryCase> ConnectionCases() {
  return kCases;
}

}  // namespace quorvel::test
