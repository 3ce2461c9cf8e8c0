#include "view/AxisTicks.h"
#include "widgets/ViewHistory.h"
#include "widgets/traces/RowExtremes.h"
#include "widgets/traces/TraceLayout.h"
#include "widgets/traces/TraceMapping.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::Pointwise;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(TraceMapping, timesAndPositionsComeBackFromTheScreen) {
  const TraceMapping map{QRectF(60.0, 40.0, 501.0, 333.0), {-1.5, 22.5, 0.0123, 0.4567}};
  for (const double time : {0.0, 0.0123, 0.1, 0.33337, 2.0}) {
    EXPECT_NEAR(map.timeAt(map.y(time)), time, 1e-12);
  }
  for (const double position : {-40.0, 0.0, 7.25, 22.5}) {
    EXPECT_NEAR(map.positionAt(map.x(position)), position, 1e-12);
  }
  EXPECT_LT(map.y(0.1), map.y(0.2)) << "time runs downward";
}

TEST(TraceMapping, whatIsUnderTheCursorStaysThereWhileZooming) {
  const QRectF plot(60.0, 40.0, 500.0, 300.0);
  const TraceMapping before{plot, {0.0, 24.0, 0.0, 0.5}};
  const TraceMapping after{plot, zoomed(before.window, 5.0, 0.2, 2.0, 4.0)};
  EXPECT_NEAR(after.x(5.0), before.x(5.0), 1e-9);
  EXPECT_NEAR(after.y(0.2), before.y(0.2), 1e-9);
  EXPECT_NEAR(after.window.width(), 12.0, 1e-12);
  EXPECT_NEAR(after.window.height(), 0.125, 1e-12);
}

struct ConfineCase {
  const char* name;
  ViewWindow wanted;
  ViewWindow expected;
};

class ConfinedWindow : public ::testing::TestWithParam<ConfineCase> {};

TEST_P(ConfinedWindow, staysWithinTheShot) {
  const ViewWindow whole{-1.0, 24.0, 0.0, 1.0};
  const ViewWindow got = confined(GetParam().wanted, whole, 2.0, 0.01);
  EXPECT_NEAR(got.left, GetParam().expected.left, 1e-12);
  EXPECT_NEAR(got.right, GetParam().expected.right, 1e-12);
  EXPECT_NEAR(got.top, GetParam().expected.top, 1e-12);
  EXPECT_NEAR(got.bottom, GetParam().expected.bottom, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(
    Windows, ConfinedWindow,
    ::testing::Values(ConfineCase{"inside", {2.0, 8.0, 0.1, 0.3}, {2.0, 8.0, 0.1, 0.3}},
                      ConfineCase{"beyondTheEnds", {-5.0, 1.0, 0.9, 1.4}, {-1.0, 5.0, 0.5, 1.0}},
                      ConfineCase{"tooLarge", {-90.0, 90.0, -3.0, 9.0}, {-1.0, 24.0, 0.0, 1.0}},
                      ConfineCase{"tooSmall", {4.0, 4.5, 0.5, 0.501}, {3.25, 5.25, 0.4955, 0.5055}},
                      ConfineCase{"upsideDown", {8.0, 2.0, 0.3, 0.1}, {4.0, 6.0, 0.195, 0.205}},
                      ConfineCase{"notANumber", {kNaN, 2.0, 0.0, 1.0}, {-1.0, 24.0, 0.0, 1.0}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(TraceLayout, channelsStandOneApart) {
  const TraceLayout layout = TraceLayout::byChannel(4);
  EXPECT_FALSE(layout.isByDistance());
  EXPECT_EQ(layout.traceAt(2.4), 2);
  EXPECT_EQ(layout.traceAt(-0.9), 0);
  EXPECT_EQ(layout.traceAt(-1.1), -1) << "beside the line";
  EXPECT_EQ(layout.nearest(-99.0), 0);
}

TEST(TraceLayout, distancesMayDescendAndHaveGaps) {
  const TraceLayout layout = TraceLayout::byDistance({30.0, 20.0, 10.0, 8.0, 6.0, 4.0});
  EXPECT_TRUE(layout.isByDistance());
  EXPECT_DOUBLE_EQ(layout.spacing(), 2.0);
  EXPECT_EQ(layout.traceAt(19.0), 1);
  EXPECT_EQ(layout.traceAt(25.0), -1) << "in the gap";
  EXPECT_EQ(layout.stepped(5, 1), 4) << "to the right is the channel before";
  EXPECT_EQ(layout.stepped(0, 1), 0);
  EXPECT_DOUBLE_EQ(layout.leftRoom(1), 10.0);
  EXPECT_DOUBLE_EQ(layout.rightRoom(0), 2.0);
}

TEST(TraceLayout, positionsThatSayNothingMakeChannels) {
  EXPECT_FALSE(TraceLayout::byDistance({0.0, 0.0, 0.0}).isByDistance());
  EXPECT_FALSE(TraceLayout::byDistance({0.0, kNaN, 4.0}).isByDistance());
  EXPECT_FALSE(TraceLayout::byDistance({-1e308, 1e308, 4.0}).isByDistance());
  EXPECT_EQ(TraceLayout::byDistance({0.0, 0.0, 0.0}).count(), 3);
}

TEST(TraceLayout, noTracesAreNoTrouble) {
  const TraceLayout layout = TraceLayout::byDistance({});
  EXPECT_EQ(layout.nearest(0.0), -1);
  EXPECT_EQ(layout.stepped(0, 1), -1);
  EXPECT_GT(layout.spacing(), 0.0);
}

TEST(RowExtremes, keepsASpikeOfOneSampleAmongThousands) {
  std::vector<double> samples(8000, 0.0);
  samples[4321] = -7.0;
  std::vector<RowExtremes> rows;
  rowExtremes(samples, 0.0, 80.0, 100, rows);
  for (int r = 0; r < 100; ++r) {
    EXPECT_DOUBLE_EQ(rows[r].low, r == 54 ? -7.0 : 0.0) << r;
    EXPECT_DOUBLE_EQ(rows[r].high, 0.0);
  }
}

TEST(RowExtremes, neighbouringRowsTouchBetweenSamples) {
  const std::vector<double> samples{0.0, 10.0, -10.0};
  std::vector<RowExtremes> rows;
  rowExtremes(samples, 0.0, 0.25, 8, rows);
  EXPECT_DOUBLE_EQ(rows[0].high, 2.5);
  EXPECT_DOUBLE_EQ(rows[7].low, -10.0);
  for (int r = 1; r < 8; ++r) {
    EXPECT_TRUE(rows[r].low <= rows[r - 1].high && rows[r].high >= rows[r - 1].low) << r;
  }
}

TEST(RowExtremes, nothingIsKnownOutsideTheTraceAndBesideHoles) {
  std::vector<double> samples(10, 1.0);
  samples[5] = kNaN;
  samples[7] = std::numeric_limits<double>::infinity();
  std::vector<RowExtremes> rows;
  rowExtremes(samples, -2.5, 1.0, 15, rows);
  EXPECT_FALSE(rows[0].known());
  EXPECT_TRUE(rows[4].known());
  EXPECT_FALSE(rows[14].known());
  for (const RowExtremes& row : rows) {
    EXPECT_TRUE(!row.known() || (row.low == 1.0 && row.high == 1.0));
  }
  rowExtremes({}, 0.0, 1.0, 3, rows);
  EXPECT_FALSE(rows[1].known());
  rowExtremes({4.0}, 0.0, 0.5, 2, rows);
  EXPECT_TRUE(rows[0].known());
}

TEST(AxisTicks, areRoundNumbersInsideTheRange) {
  const AxisTicks ticks = axisTicks(12.0, 263.0, 6);
  EXPECT_THAT(ticks.major, ElementsAre(50.0, 100.0, 150.0, 200.0, 250.0));
  EXPECT_EQ(ticks.decimals, 0);
  const AxisTicks fine = axisTicks(0.0, 1.3, 6);
  EXPECT_EQ(fine.decimals, 1);
  EXPECT_THAT(fine.major, Pointwise(DoubleNear(1e-9), {0.0, 0.5, 1.0}));
}

TEST(AxisTicks, channelsHaveNoFractions) {
  const AxisTicks ticks = axisTicks(0.4, 3.6, 10, true);
  EXPECT_THAT(ticks.major, ElementsAre(1.0, 2.0, 3.0));
  EXPECT_TRUE(ticks.minor.empty());
}

TEST(AxisTicks, rangesThatCannotBeCountedHaveNone) {
  EXPECT_TRUE(axisTicks(1.0, 1.0, 5).major.empty());
  EXPECT_TRUE(axisTicks(kNaN, 1.0, 5).major.empty());
  EXPECT_TRUE(axisTicks(1e15, 1e15 + 1.0, 5).major.empty());
}

TEST(ViewHistory, goesBackAndForthLikeABrowser) {
  const ViewWindow a{0.0, 1.0, 0.0, 1.0};
  const ViewWindow b{0.0, 1.0, 0.0, 0.5};
  const ViewWindow c{0.0, 1.0, 0.0, 0.2};
  ViewHistory history;
  history.leave(a);
  history.leave(b);
  EXPECT_EQ(history.back(c), b);
  EXPECT_EQ(history.back(b), a);
  EXPECT_FALSE(history.canGoBack());
  EXPECT_EQ(history.forward(a), b);
  history.leave(b);
  EXPECT_FALSE(history.canGoForward()) << "a new way was taken";
}

TEST(ViewHistory, forgetsTheOldest) {
  ViewHistory history;
  for (int i = 0; i < 1000; ++i) history.leave({0.0, 1.0, 0.0, 1.0 + i});
  ViewWindow window{0.0, 1.0, 0.0, 0.5};
  std::size_t steps = 0;
  for (; history.canGoBack(); ++steps) window = history.back(window);
  EXPECT_EQ(steps, ViewHistory::kLongest);
  EXPECT_DOUBLE_EQ(window.bottom, 1001.0 - double(ViewHistory::kLongest));
}

}  // namespace
}  // namespace talvesk
