#include "TestShots.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "widgets/traces/TraceGuides.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using testing::kSpacing;
using testing::testShots;

struct Seen {
  explicit Seen(TomoDocument& document, int shot = 0)
      : traces(&document, shot, false), layout(TraceLayout::byChannel(traces.count())) {}
  ShotTraces traces;
  TraceLayout layout;
};

TEST(TraceGuides, theShotStandsBetweenAndBeyondChannels) {
  TomoDocument document = testShots(5, 10, {3.0, -4.0, 10.0});
  EXPECT_DOUBLE_EQ(*shotPlace(Seen(document, 0).traces, TraceLayout::byChannel(5)), 1.5);
  EXPECT_DOUBLE_EQ(*shotPlace(Seen(document, 1).traces, TraceLayout::byChannel(5)), -2.0);
  EXPECT_DOUBLE_EQ(*shotPlace(Seen(document, 2).traces, TraceLayout::byChannel(5)), 5.0);
  document.ttArray.edit()[0].shotPos2d.x = NAN;
  EXPECT_FALSE(shotPlace(Seen(document).traces, TraceLayout::byChannel(5)));
}

TEST(TraceGuides, theAirWaveStartsAtTheShot) {
  TomoDocument document = testShots(5, 10, {3.0});
  const Seen seen(document);
  const auto line = airWaveLine(seen.traces, seen.layout, 340.0);
  ASSERT_EQ(line.size(), 6u);
  EXPECT_EQ(line[2], QPointF(1.5, 0.0));
  EXPECT_NEAR(line[5].y(), 5.0 / 340.0, 1e-12);
  EXPECT_NEAR(line[0].y(), 3.0 / 340.0, 1e-12);
}

TEST(TraceGuides, aRulerReadsMetresPerSecondInBothLayouts) {
  TomoDocument document = testShots(5, 10);
  const Seen seen(document);
  EXPECT_NEAR(*apparentVelocity(seen.traces, seen.layout, {0.0, 0.010}, {3.0, 0.004}),
              3.0 * kSpacing / 0.006, 1e-9);
  const TraceLayout byDistance = TraceLayout::byDistance({0.0, 2.0, 4.0, 6.0, 8.0});
  EXPECT_NEAR(*apparentVelocity(seen.traces, byDistance, {1.0, 0.010}, {7.0, 0.014}), 6.0 / 0.004,
              1e-9);
  EXPECT_FALSE(apparentVelocity(seen.traces, seen.layout, {1.0, 0.0}, {1.0, 0.1}));
  document.line.edit().goephonesStringSet[0].assign(5, {0.0, 0.0});
  EXPECT_FALSE(apparentVelocity(seen.traces, seen.layout, {0.0, 0.0}, {3.0, 0.1}));
}

TEST(TraceGuides, computedTimesBreakWhereThereAreNone) {
  TomoDocument document = testShots(5, 10);
  document.ttArray.edit()[0].ttCalcolati.edit() = {0.0, 0.01, kNoTime, 0.03, NAN};
  const Seen seen(document);
  const auto lines = computedLines(seen.traces, seen.layout);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_THAT(lines[0], ElementsAre(QPointF(0.0, 0.0), QPointF(1.0, 0.01)));
  EXPECT_THAT(lines[1], ElementsAre(QPointF(3.0, 0.03)));
}

TEST(TraceGuides, otherShotsCountAtTheSamePlaces) {
  TomoDocument document = testShots(4, 10, {-1.0, 5.0, 9.0});
  // The third shot was recorded by a string that overlaps the first by two geophones.
  document.line.edit().goephonesStringSet.push_back({{4.0, 0.0}, {6.0, 0.0}, {8.0, 0.0}});
  document.ttArray.edit()[2].indexStesa = 1;
  document.ttArray.edit()[0].ttMisurati.edit() = {0.5, 0.5, 0.5, 0.5};
  document.ttArray.edit()[1].ttMisurati.edit() = {kUnpicked, 0.011, kNoTime, 0.013};
  document.ttArray.edit()[2].ttMisurati.edit() = {0.021, 0.022, 0.023, 0.024};
  const Seen seen(document);
  EXPECT_THAT(otherPicks(document, seen.traces, seen.layout),
              ElementsAre(QPointF(1.0, 0.011), QPointF(3.0, 0.013), QPointF(2.0, 0.021),
                          QPointF(3.0, 0.022)));
}

TEST(TraceGuides, theNearestShotOfTheStringIsTheNextOneThatIsPicked) {
  TomoDocument document = testShots(5, 10, {0.0, 2.0, 3.0, 8.0, -3.0});
  document.ttArray.edit()[1].indexStesa = 1;  // nearest, but of another string
  document.ttArray.edit()[1].ttMisurati.edit().assign(5, 0.9);
  document.ttArray.edit()[3].ttMisurati.edit().assign(5, 0.8);
  const auto nearest = [&document](int shot = 0) {
    const Seen seen(document, shot);
    return nearestCurve(document, seen.traces, seen.layout);
  };
  EXPECT_EQ(nearest().record, 3) << "nearer ones are not picked";
  document.ttArray.edit()[4].ttMisurati.edit().assign(5, 0.7);
  document.ttArray.edit()[2].ttMisurati.edit() = {0.01, 0.02, kNoTime, 0.03, kUnpicked};
  const NeighbourCurve curve = nearest();
  EXPECT_EQ(curve.record, 2) << "of two equally near ones the first";
  EXPECT_EQ(curve.x, 3.0);
  ASSERT_EQ(curve.lines.size(), 2U);
  EXPECT_THAT(curve.lines[0], ElementsAre(QPointF(0.0, 0.01), QPointF(1.0, 0.02)));
  EXPECT_THAT(curve.lines[1], ElementsAre(QPointF(3.0, 0.03)));
  EXPECT_EQ(nearest(1).record, -1) << "alone on its string";
}

TEST(TraceGuides, reciprocalTimesStandWhereTheOtherShotsAre) {
  TomoDocument document = testShots(5, 10, {1.0, 5.0, 8.0, 30.0});
  document.ttArray.edit()[1].ttMisurati.edit() = {0.04, 0.06, 0.01, 0.01, 0.01};
  document.ttArray.edit()[2].ttMisurati.edit() = {kUnpicked, kUnpicked, 0.01, 0.01, 0.01};
  document.ttArray.edit()[3].ttMisurati.edit().assign(5, 0.1);
  const Seen seen(document);
  const auto times = reciprocalTimes(document, seen.traces, seen.layout);
  ASSERT_EQ(times.size(), 1U) << "the third did not see the shot, the fourth is not among traces";
  EXPECT_DOUBLE_EQ(times[0].x(), 2.5);
  EXPECT_NEAR(times[0].y(), 0.05, 1e-12) << "between its two nearest geophones";
  document.ttArray.edit()[0].shotPos2d.x = NAN;
  EXPECT_TRUE(reciprocalTimes(document, seen.traces, seen.layout).empty());
}

TEST(ShotTraces, readWhatThereIs) {
  TomoDocument document = testShots(3, 100);
  document.recordings.edit().traceSets[0][1].filtered.edit().assign(50, 8.0);
  document.recordings.edit().traceSets[0][2].samples.edit() = {1.0, NAN, 3.0};
  document.recordings.edit().traceSets[0][2].sampleInterval = 0.0;
  const ShotTraces filtered(&document, 0, true);
  EXPECT_EQ(filtered.samples(1).size(), 50u);
  EXPECT_EQ(filtered.samples(0).size(), 100u) << "no filtered copy: the raw samples";
  EXPECT_DOUBLE_EQ(filtered.mean(2), 2.0);
  EXPECT_DOUBLE_EQ(filtered.peak(2), 1.0);
  EXPECT_GT(filtered.interval(2), 0.0);
  EXPECT_EQ(ShotTraces(&document, 0, false).samples(1).size(), 100u);
  document.recordings.edit().traceSets.clear();
  EXPECT_TRUE(filtered.samples(0).empty()) << "traces that went away are not read";
  EXPECT_EQ(ShotTraces(&document, 1, false).count(), 0);
}

TEST(ShotTraces, recordsOfPicksOnlyHaveATimeAxis) {
  TomoDocument document = testShots(3, 100);
  document.recordings.edit().traceSets.clear();
  document.ttArray.edit()[0].ttMisurati.edit() = {0.01, 0.2, 1e300};
  const ShotTraces traces(&document, 0, false);
  EXPECT_EQ(traces.count(), 3);
  EXPECT_FALSE(traces.hasSamples());
  EXPECT_NEAR(traces.timeEnd(), 0.24, 1e-12);
}

}  // namespace
}  // namespace talvesk
