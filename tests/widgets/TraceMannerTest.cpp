#include "WidgetDriver.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "widgets/traces/TraceGuides.h"

#include <QSignalSpy>
#include <cmath>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::arrival;
using ::testing::ElementsAre;
using testing::kInterval;
using testing::kSpacing;
using testing::kVelocity;

constexpr int kTraces = 12;
constexpr double kShot = 9.0;        ///< between traces 4 and 5, which are as far from it
constexpr double kIntercept = 0.01;  ///< of arrival(): where it lies in time reduced by kVelocity

/// A shot between its geophones, whose traces of either side have the same offsets.
class TraceManner : public ::testing::Test {
 protected:
  double offset(int trace) const { return kSpacing * trace - kShot; }
  void reduce() { mWidget.setReduction(kVelocity); }
  /// A point at a time as drawn, wherever the widget thinks that picks are.
  QPoint drawn(int trace, double time) const {
    const QPointF zero = mWidget.pointOf(trace, std::fabs(offset(trace)) / kVelocity);
    return {qRound(zero.x()), qRound(zero.y() + time / mUser.pixel())};
  }
  QImage picture() { return mWidget.grab().toImage(); }

  testing::WidgetDriver mUser{testing::testShots(kTraces, 400, {kShot, 25.0})};
  editTravelTimesWidget& mWidget = mUser.widget;
};

TEST_F(TraceManner, aWaveOfTheVelocityLiesFlat) {
  reduce();
  const double height = mWidget.pointOf(0, arrival(0, kShot)).y();
  for (int trace = 0; trace < kTraces; ++trace) {
    EXPECT_NEAR(mWidget.pointOf(trace, arrival(trace, kShot)).y(), height, 1e-6) << trace;
    EXPECT_NEAR(mWidget.timeAt(mWidget.pointOf(trace, 0.05)), 0.05, 1e-9) << trace;
  }
}

TEST_F(TraceManner, wigglesAreDrawnWhereTheirTimesAre) {
  TomoDocument& document = mUser.writable();
  for (int trace = 0; trace < kTraces; ++trace) {
    Samples& samples = document.recordings.edit().traceSets[0][trace].samples;
    samples.edit().assign(400, 0.0);
    samples.edit()[static_cast<std::size_t>(std::lround(arrival(trace, kShot) / kInterval))] = 1.0;
  }
  mWidget.documentChanged();
  reduce();
  const QImage seen = picture();
  for (const int trace : {0, 4, 5, 11}) {
    const QPoint spike = drawn(trace, kIntercept);
    int rows = 0;
    for (int dy = -2; dy <= 2; ++dy) {
      rows += seen.pixel(spike + QPoint(6, dy)) != seen.pixel(spike + QPoint(6, 12));
    }
    EXPECT_GT(rows, 0) << trace;
  }
}

TEST_F(TraceManner, aHorizontalStrokeSetsTrueTimes) {
  reduce();
  mUser.dragTo(drawn(1, kIntercept), drawn(10, kIntercept));
  for (int trace = 1; trace <= 10; ++trace) {
    EXPECT_NEAR(mUser.pick(trace), arrival(trace, kShot), mUser.pixel()) << trace;
  }
  EXPECT_EQ(mUser.session.steps(), 1U);
  mWidget.setReduction(0.0);
  EXPECT_NEAR(mWidget.timeAt(mWidget.pointOf(3, mUser.pick(3))), arrival(3, kShot), mUser.pixel());
}

TEST_F(TraceManner, picksAreDraggedNudgedAndCopiedInTrueTime) {
  reduce();
  mUser.setPick(8, arrival(8, kShot));
  mUser.dragTo(drawn(8, kIntercept), drawn(8, kIntercept + 0.02));
  EXPECT_NEAR(mUser.pick(8), arrival(8, kShot) + 0.02, 1.5 * mUser.pixel());
  const double before = mUser.pick(8);
  mUser.key(Qt::Key_Down);
  EXPECT_NEAR(mUser.pick(8), before + kInterval, 1e-12);
  mUser.setPick(8, arrival(8, kShot));
  mUser.setPick(10, arrival(10, kShot));
  mWidget.setCurrentTrace(9);
  mUser.key(Qt::Key_Return);
  EXPECT_NEAR(mUser.pick(9), arrival(9, kShot), 1e-12) << "between its neighbours as drawn";
}

TEST_F(TraceManner, snappingLooksAtTheTrueTime) {
  mUser.change([](TraceViewOptions& options) { options.snap = PickSnap::Onset; });
  reduce();
  mUser.click(drawn(9, kIntercept + 0.002));
  EXPECT_NEAR(mUser.pick(9), arrival(9, kShot), 2.0 * kInterval);
}

TEST_F(TraceManner, anErrorBarIsPulledFromThePickAsDrawn) {
  reduce();
  mUser.setPick(10, arrival(10, kShot));
  mUser.dragTo(drawn(10, kIntercept), drawn(10, kIntercept + 0.006), Qt::LeftButton,
               Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_NEAR(mUser.session.document().ttArray[0].errorOf(10), 0.006, 1.5 * mUser.pixel());
}

TEST_F(TraceManner, mutingTakesWhatIsDrawnAboveTheCursor) {
  reduce();
  mWidget.selectTraces(6, 8);
  mUser.move(drawn(7, kIntercept), Qt::NoButton);
  mUser.key(Qt::Key_U);
  const ShotMends& mends = mendsOfRecord(mUser.session.document(), 0);
  for (int trace = 6; trace <= 8; ++trace) {
    EXPECT_NEAR(mendOf(mends, static_cast<std::size_t>(trace)).mutedBefore, arrival(trace, kShot),
                mUser.pixel());
  }
}

TEST_F(TraceManner, theCursorTellsTrueAndReducedTime) {
  std::vector<TraceCursor> told;
  QObject::connect(&mWidget, &editTravelTimesWidget::cursorMoved,
                   [&told](const TraceCursor& cursor) { told.push_back(cursor); });
  mUser.move(mUser.at(10, 0.05), Qt::NoButton);
  ASSERT_FALSE(told.empty());
  EXPECT_FALSE(told.back().reduced.has_value());
  reduce();
  mUser.move(drawn(10, kIntercept), Qt::NoButton);
  EXPECT_NEAR(told.back().time.value(), arrival(10, kShot), mUser.pixel());
  EXPECT_NEAR(told.back().reduced.value(), kIntercept, mUser.pixel());
}

TEST_F(TraceManner, theRulerReadsTrueTimesAndGivesItsVelocity) {
  mWidget.setTool(TraceTool::Ruler);
  const auto rule = [this](int from, int to) {
    mUser.dragTo(mUser.at(from, arrival(from, kShot)), mUser.at(to, arrival(to, kShot)));
  };
  rule(6, 11);
  EXPECT_NEAR(mWidget.rulerVelocity().value(), kVelocity, 0.15 * kVelocity);
  mUser.key(Qt::Key_V);
  EXPECT_DOUBLE_EQ(mWidget.options().manner.reduction, mWidget.rulerVelocity().value());
  mUser.key(Qt::Key_V);
  EXPECT_EQ(mWidget.options().manner.reduction, 0.0) << "the ruler says nothing new";
  mWidget.setReduction(600.0);
  rule(6, 11);
  EXPECT_NEAR(mWidget.rulerVelocity().value(), kVelocity, 0.15 * kVelocity);
  mUser.key(Qt::Key_V);
  EXPECT_NEAR(mWidget.options().manner.reduction, kVelocity, 0.15 * kVelocity) << "by the new one";
}

TEST_F(TraceManner, theKeyAsksOnlyWhereNoVelocityIsKnown) {
  QSignalSpy wanted(&mWidget, &editTravelTimesWidget::reductionWanted);
  mUser.key(Qt::Key_V);
  EXPECT_EQ(wanted.count(), 1);
  EXPECT_TRUE(mWidget.options().manner.plain());
  mWidget.setReduction(1800.0);
  mUser.key(Qt::Key_V);
  EXPECT_EQ(mWidget.options().manner.reduction, 0.0);
  mUser.key(Qt::Key_V);
  EXPECT_EQ(mWidget.options().manner.reduction, 1800.0);
  EXPECT_EQ(wanted.count(), 1);
  mUser.key(Qt::Key_V, Qt::ShiftModifier);
  EXPECT_EQ(wanted.count(), 2);
}

TEST_F(TraceManner, tracesStandByTheirOffset) {
  mUser.key(Qt::Key_X);
  const double metre =
      (mWidget.pointOf(11, 0.0).x() - mWidget.pointOf(0, 0.0).x()) / (kSpacing * (kTraces - 1));
  for (int trace = 1; trace < kTraces; ++trace) {
    EXPECT_NEAR(mWidget.pointOf(trace, 0.0).x() - mWidget.pointOf(0, 0.0).x(),
                metre * kSpacing * trace, 1e-6);
  }
  EXPECT_NEAR(mWidget.window().left, offset(0) - kSpacing, 1e-9);
  mUser.key(Qt::Key_X, Qt::ShiftModifier);
  EXPECT_EQ(mWidget.options().manner.byOffset, OffsetOrder::kAbsolute);
  for (int trace = 0; trace < kTraces / 2 - 1; ++trace) {
    EXPECT_NEAR(mWidget.pointOf(trace, 0.0).x(), mWidget.pointOf(9 - trace, 0.0).x(), 1e-6);
  }
  mUser.key(Qt::Key_X, Qt::ShiftModifier);
  EXPECT_TRUE(mWidget.options().manner.plain());
}

TEST_F(TraceManner, theMousePicksTheTraceOfEitherSide) {
  mWidget.setByAbsoluteOffset(true);
  const QPoint place = mUser.at(7, 0.06);
  ASSERT_EQ(place, mUser.at(2, 0.06));
  mUser.click(place - QPoint(4, 0));
  EXPECT_EQ(mWidget.currentTrace(), 2);
  mUser.click(place + QPoint(4, 10));
  EXPECT_EQ(mWidget.currentTrace(), 7);
  EXPECT_NEAR(mUser.pick(2), 0.06, mUser.pixel());
  EXPECT_NEAR(mUser.pick(7), 0.06 + 10.0 * mUser.pixel(), mUser.pixel());
}

TEST_F(TraceManner, aStrokeKeepsToItsSideOfTheShot) {
  mWidget.setByAbsoluteOffset(true);
  for (int trace = 0; trace < 5; ++trace) mUser.setPick(trace, 0.12);
  mUser.dragTo(mUser.at(5, 0.04) + QPoint(4, 0), mUser.at(11, 0.04));
  for (int trace = 0; trace < 5; ++trace) EXPECT_EQ(mUser.pick(trace), 0.12) << trace;
  for (int trace = 5; trace <= 11; ++trace) EXPECT_NEAR(mUser.pick(trace), 0.04, mUser.pixel());
}

TEST_F(TraceManner, strokesAndSelectionsWorkByOffset) {
  mWidget.setByOffset(true);
  reduce();
  mUser.dragTo(drawn(2, kIntercept), drawn(9, kIntercept));
  for (int trace = 2; trace <= 9; ++trace) {
    EXPECT_NEAR(mUser.pick(trace), arrival(trace, kShot), mUser.pixel()) << trace;
  }
  mUser.dragTo({drawn(3, 0.0).x(), 8}, {drawn(5, 0.0).x(), 8});
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(3, 4, 5));
  mWidget.setByAbsoluteOffset(true);
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(3, 4, 5)) << "the order does not matter";
  mUser.key(Qt::Key_Delete);
  EXPECT_EQ(mUser.pick(4), kNoTime);
  EXPECT_TRUE(hasPick(mUser.pick(6)));
}

TEST_F(TraceManner, aGainInTimeIsOnlySeen) {
  mUser.key(Qt::Key_T);
  EXPECT_EQ(mWidget.options().manner.timeGain, 1.0);
  std::vector<TraceCursor> told;
  QObject::connect(&mWidget, &editTravelTimesWidget::cursorMoved,
                   [&told](const TraceCursor& cursor) { told.push_back(cursor); });
  mUser.move(mUser.at(8, 0.1), Qt::NoButton);
  const auto sample = static_cast<std::size_t>(std::lround(told.back().time.value() / kInterval));
  EXPECT_EQ(told.back().amplitude.value(),
            mUser.session.document().recordings->traceSets[0][8].samples[sample]);
  EXPECT_FALSE(mUser.session.canUndo());
  const ShotTraces plain(&mUser.session.document(), 0, false);
  const ShotTraces gained(&mUser.session.document(), 0, false, {OffsetOrder::kNone, 0.0, 2.0});
  EXPECT_EQ(gained.samples(8).data(), plain.samples(8).data());
  EXPECT_LT(gained.peak(8), plain.peak(8)) << "in units of the gain";
}

TEST_F(TraceManner, aGainInTimeMakesLateWavesLarger) {
  const auto ink = [this](double from, double to) {
    const QImage seen = picture();
    const QRgb back = mWidget.palette().color(QPalette::Base).rgb();
    int count = 0;
    for (int y = mUser.at(5, from).y(); y < mUser.at(5, to).y(); ++y) {
      for (int x = mUser.at(5, 0.0).x() + 4; x < mUser.at(6, 0.0).x() - 4; ++x) {
        count += seen.pixel(x, y) != back;
      }
    }
    return count;
  };
  const int early = ink(0.012, 0.03);
  const int late = ink(0.08, 0.15);
  mWidget.setTimeGain(2.0);
  EXPECT_LT(ink(0.012, 0.03), early);
  EXPECT_GT(ink(0.08, 0.15), late);
}

TEST_F(TraceManner, switchedOffThePictureIsAsBefore) {
  for (int trace = 0; trace < kTraces; ++trace) mUser.setPick(trace, arrival(trace, kShot));
  mUser.change([](TraceViewOptions& options) { options.airWave = options.showAllPicks = true; });
  const QImage before = picture();
  reduce();
  mWidget.setTimeGain(1.5);
  mWidget.setByAbsoluteOffset(true);
  EXPECT_NE(picture(), before);
  mWidget.setByAbsoluteOffset(false);
  mWidget.setTimeGain(0.0);
  mWidget.setReduction(0.0);
  EXPECT_EQ(picture(), before);
}

TEST_F(TraceManner, withoutPositionsItIsToldThatNothingIsReduced) {
  mUser.writable().line.edit().goephonesStringSet[0][3].x = std::nan("");
  mWidget.documentChanged();
  const QImage plain = picture();
  reduce();
  EXPECT_NE(picture(), plain) << "a tag says so";
  mWidget.setByOffset(true);
  EXPECT_EQ(mWidget.window().top, 0.0);
  mUser.click(mUser.at(2, 0.05));
  EXPECT_NEAR(mUser.pick(2), 0.05, mUser.pixel());
}

TEST(ReducedGuides, lieWhereTheirTimesAreDrawn) {
  TomoDocument document = testing::testShots(kTraces, 10, {kShot});
  const ShotTraces traces(&document, 0, false, {OffsetOrder::kNone, 500.0, 0.0});
  const auto layout = TraceLayout::byChannel(traces.count());
  const auto air = drawnPoints(traces, layout, airWaveLine(traces, layout, 500.0));
  ASSERT_EQ(air.size(), kTraces + 1U) << "the shot is among them";
  for (const QPointF& point : air) EXPECT_NEAR(point.y(), 0.0, 1e-12) << point.x();
  const QPointF between(7.3, 0.04);
  EXPECT_NEAR(truePoint(traces, layout, between).y(), 0.04 + std::fabs(2.0 * 7.3 - kShot) / 500.0,
              1e-12);
}

TEST(FoldedGuides, doNotJumpFromSideToSide) {
  TomoDocument document = testing::testShots(kTraces, 10, {kShot});
  for (int trace = 0; trace < kTraces; ++trace) {
    document.ttArray.edit()[0].ttCalcolati.edit().push_back(trace < 5 ? 0.02 : 0.04);
  }
  const ShotTraces traces(&document, 0, false, {OffsetOrder::kAbsolute, 0.0, 0.0});
  const TraceLayout layout = TraceLayout::byOffset(traces.mapping());
  EXPECT_EQ(airWaveLine(traces, layout, 340.0).front(), QPointF(0.0, 0.0)) << "from the shot on";
  const auto lines = computedLines(traces, layout);
  ASSERT_EQ(lines.size(), 2U);
  for (const auto& line : lines) {
    for (const QPointF& point : line) EXPECT_EQ(point.y(), line.front().y());
  }
  EXPECT_EQ(lines[0].size() + lines[1].size(), std::size_t(kTraces));
}

TEST(OffsetLayout, keepsTheRoomThatTracesHaveOnTheirSide) {
  const std::vector<double> offsets = {-6.0, -4.0, -2.0, 1.0, 3.0, 5.0};
  const auto layoutOf = [&offsets](OffsetOrder order) {
    return TraceLayout::byOffset(GatherMapping({order, 0.0, 0.0}, offsets));
  };
  const TraceLayout sides = layoutOf(OffsetOrder::kSigned);
  EXPECT_THAT(sides.order(), ElementsAre(0, 1, 2, 3, 4, 5));
  EXPECT_TRUE(sides.sameSide(0, 5));
  const TraceLayout folded = layoutOf(OffsetOrder::kAbsolute);
  EXPECT_THAT(folded.order(), ElementsAre(3, 2, 4, 1, 5, 0));
  EXPECT_DOUBLE_EQ(folded.spacing(), 2.0) << "not the 1 m from side to side";
  EXPECT_DOUBLE_EQ(folded.rightRoom(2), 2.0);
  EXPECT_DOUBLE_EQ(folded.leftRoom(2), 3.0);
  EXPECT_FALSE(folded.sameSide(2, 3));
  EXPECT_EQ(folded.nearest(2.1), 2);
  EXPECT_EQ(folded.nearestBeside(5, 2.1), 4);
}

}  // namespace
}  // namespace talvesk
