#include "model/PickLimits.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr double kInfinite = std::numeric_limits<double>::infinity();

/// A set of traces of 100 samples, one of which each is 1 ms long.
TraceSet recordOf100ms(std::size_t traces) {
  TraceSet set(traces);
  for (Trace& trace : set) {
    trace.sampleInterval = 0.001;
    trace.samples.edit().assign(100, 0.0);
  }
  return set;
}

TEST(PickLimits, dropWhatIsNotFiniteOrAboveAnHourAndNameIt) {
  std::vector<TravelTime> records(2);
  records[0].ttMisurati.edit() = {0.01, std::numeric_limits<double>::quiet_NaN(), kNoTime,
                                  kUnpicked};
  records[1].ttMisurati.edit() = {3600.0, 3600.5, -kInfinite};
  EXPECT_EQ(
      dropImpossiblePicks(records, {}),
      "3 picks that cannot be were dropped: shot 1, trace 2 (not a finite time); shot 2, trace "
      "2 (3.6005e+06 ms, above an hour); shot 2, trace 3 (not a finite time)");
  EXPECT_THAT(records[0].ttMisurati, ElementsAre(0.01, kNoTime, kNoTime, kUnpicked));
  EXPECT_THAT(records[1].ttMisurati, ElementsAre(3600.0, kNoTime, kNoTime));
  EXPECT_EQ(dropImpossiblePicks(records, {}), "");
}

TEST(PickLimits, dropWhatLiesBeyondTheRecordOfItsOwnTraces) {
  std::vector<TravelTime> records(2);
  records[0].traceSetID = 1;
  records[0].ttMisurati.edit() = {0.1, 0.2};
  records[1].traceSetID = 0;
  records[1].ttMisurati.edit() = {0.2, 0.2, 0.2};
  std::vector<TraceSet> sets = {recordOf100ms(2), recordOf100ms(2)};
  sets[0][0].samples.edit().clear();  // its shot file is missing
  EXPECT_EQ(
      dropImpossiblePicks(records, sets),
      "2 picks that cannot be were dropped: shot 1, trace 2 (200 ms, beyond its record of 100 "
      "ms); shot 2, trace 2 (200 ms, beyond its record of 100 ms)");
  EXPECT_THAT(records[0].ttMisurati, ElementsAre(0.1, kNoTime));
  EXPECT_THAT(records[1].ttMisurati, ElementsAre(0.2, kNoTime, 0.2));
}

TEST(PickLimits, nameOnlyTheFirstOfMany) {
  std::vector<TravelTime> records(1);
  records[0].ttMisurati.edit().assign(1000, kInfinite);
  const std::string told = dropImpossiblePicks(records, {});
  EXPECT_THAT(told, HasSubstr("trace 8 (not a finite time); and 992 more"));
  EXPECT_LT(told.size(), 500U);
}

}  // namespace
}  // namespace talvesk
