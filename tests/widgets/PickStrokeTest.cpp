#include "model/TravelTime.h"
#include "widgets/traces/PickStroke.h"

#include <map>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::DoubleEq;
using ::testing::ElementsAre;
using ::testing::Pair;

const PickStroke::Adjust kAsItIs = [](int, double time) { return time; };

TEST(PickStroke, aRunFollowsThePointerOverTracesThatItSkipped) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Run, 1, {layout.position(1), 0.010}, layout, kAsItIs);
  stroke.moveTo(4, {layout.position(4), 0.016}, layout, kAsItIs);
  stroke.moveTo(4, {layout.position(4), 0.017}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.010), Pair(2, DoubleEq(0.012)),
                                          Pair(3, DoubleEq(0.014)), Pair(4, 0.017)));
  stroke.moveTo(2, {layout.position(2), 0.015}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.010), Pair(2, DoubleEq(0.015)),
                                          Pair(3, DoubleEq(0.016)), Pair(4, 0.017)))
      << "going back draws over";
}

TEST(PickStroke, aRunGoesByDistanceAndOverTracesAtOnePlace) {
  const TraceLayout layout = TraceLayout::byDistance({30.0, 20.0, 20.0, 0.0});
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Run, 3, {layout.position(3), 0.0}, layout, kAsItIs);
  stroke.moveTo(0, {layout.position(0), 0.3}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(0, DoubleEq(0.3)), Pair(1, DoubleEq(0.2)),
                                          Pair(2, DoubleEq(0.2)), Pair(3, 0.0)));
  stroke.begin(PickStroke::Kind::Run, 2, {layout.position(2), 0.1}, layout, kAsItIs);
  stroke.moveTo(1, {layout.position(1), 0.2}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.2), Pair(2, 0.2)));
}

TEST(PickStroke, aRunTakesTheTimesAtTheTracesNotBetweenThem) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Run, 1, {1.2, 0.012}, layout, kAsItIs);
  stroke.moveTo(1, {1.4, 0.014}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.014))) << "one trace follows the pointer";
  stroke.moveTo(2, {1.8, 0.018}, layout, kAsItIs);
  stroke.moveTo(2, {2.4, 0.024}, layout, kAsItIs);
  stroke.moveTo(3, {2.7, 0.027}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(1, 0.012), Pair(2, DoubleEq(0.020)), Pair(3, 0.027)))
      << "a trace that was not crossed has the time nearest to it";
}

TEST(PickStroke, aMovedPickStaysOnItsTrace) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Move, 3, {layout.position(3), 0.010}, layout, kAsItIs);
  stroke.moveTo(6, {layout.position(6), 0.020}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(3, 0.020)));
}

TEST(PickStroke, aMovedPickThatIsDrawnOverIsSetWhereTheStrokeBegan) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Move, 3, {3.0, 0.010}, layout, kAsItIs);
  stroke.moveTo(3, {3.4, 0.011}, layout, kAsItIs);
  stroke.drawOn();
  stroke.moveTo(5, {5.0, 0.030}, layout, kAsItIs);
  EXPECT_THAT(
      stroke.times(),
      ElementsAre(Pair(3, 0.010), Pair(4, DoubleEq(0.011 + 0.019 * 0.6 / 1.6)), Pair(5, 0.030)));
}

TEST(PickStroke, removingPassesOverTraces) {
  const TraceLayout layout = TraceLayout::byChannel(8);
  PickStroke stroke;
  stroke.begin(PickStroke::Kind::Remove, 5, {layout.position(5), 0.010}, layout, kAsItIs);
  stroke.moveTo(3, {layout.position(3), 0.020}, layout, kAsItIs);
  stroke.moveTo(-1, {9.0, 0.020}, layout, kAsItIs);
  EXPECT_THAT(stroke.times(), ElementsAre(Pair(3, kNoTime), Pair(4, kNoTime), Pair(5, kNoTime)));
}

}  // namespace
}  // namespace talvesk
