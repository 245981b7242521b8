#include "tools/SampleTime.h"

#include <algorithm>
#include <cstddef>

namespace quorvel::tools {
namespace {

constexpr std::int64_t kNightPerMille = 800;
constexpr Second kNightStart = 22 * kHour;
constexpr Second kNightLength = 7 * kHour;

}  // namespace

Second SecondOf(DateValue date) {
  const CivilTime time = CivilFromDate(date).value();
  return static_cast<Second>(DatePart(date)) * kDay + time.hour * kHour + time.minute * kMinute + time.second;
}

Second AnyTime(const SampleOptions& options, Second now, SampleRandom& random) {
  const Second any = now - kMinute - random.Below(options.days * kDay - kMinute);
  if (!random.PerMille(kNightPerMille)) return any;
  const Second night = any - any % kDay + kNightStart - kDay + random.Below(kNightLength);
  return night >= now - options.days * kDay && night < now ? night : any;
}

std::vector<Second> AnyTimes(const SampleOptions& options, Second now, std::int32_t count, SampleRandom& random) {
  std::vector<Second> times(static_cast<std::size_t>(count));
  for (Second& time : times) time = AnyTime(options, now, random);
  std::ranges::sort(times);
  return times;
}

}  // namespace quorvel::tools
