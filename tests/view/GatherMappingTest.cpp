#include "view/GatherMapping.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
const std::vector<double> kOffsets = {-30.0, -10.0, 5.0, 10.0, 90.0};

GatherMapping mappingOf(OffsetOrder order, double reduction, double timeGain = 0.0,
                        const std::vector<double>& offsets = kOffsets) {
  return GatherMapping({order, reduction, timeGain}, offsets);
}

TEST(GatherMapping, isPlainUnlessAskedOtherwise) {
  for (const GatherMapping& plain : {GatherMapping(), mappingOf(OffsetOrder::kNone, 0.0)}) {
    EXPECT_TRUE(plain.manner().plain());
    EXPECT_FALSE(plain.lacksOffsets());
    for (const double time : {-0.5, 0.0, 0.1, 1.0 / 3.0}) {
      EXPECT_EQ(plain.drawnTime(3, time), time) << "to the last bit";
      EXPECT_EQ(plain.trueTime(3, time), time);
      EXPECT_EQ(plain.gain(time), 1.0);
    }
  }
}

TEST(GatherMapping, aWaveOfTheVelocityIsDrawnFlatOnBothSides) {
  const GatherMapping mapping = mappingOf(OffsetOrder::kNone, 1500.0);
  for (std::size_t i = 0; i < kOffsets.size(); ++i) {
    const double arrival = 0.012 + std::fabs(kOffsets[i]) / 1500.0;
    EXPECT_NEAR(mapping.drawnTime(i, arrival), 0.012, 1e-15) << i;
    EXPECT_NEAR(mapping.trueTime(i, 0.012), arrival, 1e-15) << i;
    EXPECT_EQ(mapping.shift(i), mapping.shiftAt(kOffsets[i]));
  }
  EXPECT_DOUBLE_EQ(mapping.longestShift(), 0.06);
}

TEST(GatherMapping, timesComeBackFromWhereTheyAreDrawn) {
  for (const double velocity : {10.0, 330.0, 5432.1, 1e5}) {
    const GatherMapping mapping = mappingOf(OffsetOrder::kSigned, velocity);
    for (std::size_t i = 0; i < kOffsets.size(); ++i) {
      for (const double time : {0.0, 0.0123, 0.4}) {
        EXPECT_NEAR(mapping.trueTime(i, mapping.drawnTime(i, time)), time, 1e-14);
      }
    }
  }
}

TEST(GatherMapping, tracesStandTrueToTheirOffset) {
  const GatherMapping sides = mappingOf(OffsetOrder::kSigned, 0.0);
  const GatherMapping folded = mappingOf(OffsetOrder::kAbsolute, 0.0);
  for (std::size_t i = 0; i < kOffsets.size(); ++i) {
    EXPECT_EQ(sides.place(i), kOffsets[i]);
    EXPECT_EQ(folded.place(i), std::fabs(kOffsets[i]));
  }
  EXPECT_EQ(folded.placeOf(-7.5), 7.5);
}

TEST(GatherMapping, theGainGrowsWithAPowerOfTime) {
  EXPECT_DOUBLE_EQ(mappingOf(OffsetOrder::kNone, 0.0, 1.0).gain(0.25), 0.25);
  EXPECT_DOUBLE_EQ(mappingOf(OffsetOrder::kNone, 0.0, 0.5).gain(0.25), 0.5);
  EXPECT_DOUBLE_EQ(mappingOf(OffsetOrder::kNone, 0.0, 3.0).gain(2.0), 8.0);
  for (const double time : {0.0, -0.1}) {
    EXPECT_EQ(mappingOf(OffsetOrder::kNone, 0.0, 2.0).gain(time), 0.0);
  }
}

TEST(GatherMapping, withoutOffsetsOnlyTheGainIsLeftAndThatIsTold) {
  const std::vector<std::vector<double>> unknown = {{}, {kNaN, kNaN}, {1.0, kNaN, 3.0}};
  for (const auto& offsets : unknown) {
    const GatherMapping mapping = mappingOf(OffsetOrder::kSigned, 1500.0, 2.0, offsets);
    EXPECT_TRUE(mapping.lacksOffsets());
    EXPECT_EQ(mapping.manner(), (GatherManner{OffsetOrder::kNone, 0.0, 2.0}));
    EXPECT_EQ(mapping.shift(2), 0.0);
    EXPECT_FALSE(mappingOf(OffsetOrder::kNone, 0.0, 2.0, offsets).lacksOffsets())
        << "nothing asks for them";
  }
}

TEST(GatherMapping, tracesAtOnePlaceHaveNoOrderButAreReduced) {
  const GatherMapping mapping = mappingOf(OffsetOrder::kAbsolute, 1000.0, 0.0, {-5.0, 5.0});
  EXPECT_TRUE(mapping.lacksOffsets());
  EXPECT_FALSE(mapping.isByOffset());
  EXPECT_DOUBLE_EQ(mapping.shift(0), 0.005);
  EXPECT_TRUE(mappingOf(OffsetOrder::kSigned, 0.0, 0.0, {-5.0, 5.0}).isByOffset());
}

TEST(GatherMapping, numbersThatMakeNoPictureAreBroughtWithinRange) {
  const auto of = [](double reduction, double gain) {
    return confined({OffsetOrder::kNone, reduction, gain});
  };
  EXPECT_TRUE(of(kNaN, kNaN).plain());
  EXPECT_TRUE(of(-1500.0, -1.0).plain());
  EXPECT_EQ(of(1.0, 9.0), (GatherManner{OffsetOrder::kNone, 10.0, 3.0}));
  EXPECT_EQ(of(HUGE_VAL, 0.5).reduction, 0.0);
}

}  // namespace
}  // namespace talvesk
