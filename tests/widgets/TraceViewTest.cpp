#include "WidgetDriver.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"

#include <QImage>
#include <QSignalSpy>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

class TraceView : public ::testing::Test {
 protected:
  QImage picture() { return mWidget.grab().toImage(); }
  /// Pixels of a picture that another one has otherwise.
  static int differing(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
      for (int x = 0; x < a.width(); ++x) count += a.pixel(x, y) != b.pixel(x, y);
    }
    return count;
  }

  testing::WidgetDriver mUser{testing::testShots(24, 1000, {-1.0, 25.0})};
  TomoDocument& mDocument = mUser.writable();
  editTravelTimesWidget& mWidget = mUser.widget;
};

TEST_F(TraceView, opensOnTheWholeShotOrOnItsFirstBreaks) {
  EXPECT_DOUBLE_EQ(mWidget.window().bottom, 999 * testing::kInterval);
  mUser.change([](TraceViewOptions& options) { options.zoomIn = true; });
  EXPECT_LT(mWidget.window().bottom, 0.2);
  EXPECT_GT(mWidget.window().bottom, testing::arrival(23, -1.0));
  mUser.key(Qt::Key_F);
  EXPECT_DOUBLE_EQ(mWidget.window().bottom, 999 * testing::kInterval);
  mUser.key(Qt::Key_H);
  EXPECT_LT(mWidget.window().bottom, 0.2);
}

TEST_F(TraceView, opensAShotThatIsPickedInPartOnAllOfItsFirstBreaks) {
  mUser.change([](TraceViewOptions& options) { options.zoomIn = true; });
  const double unpicked = mWidget.window().bottom;
  for (const int picked : {1, 12, 24}) {
    for (int trace = 0; trace < picked; ++trace) {
      mUser.setPick(trace, testing::arrival(trace, -1.0));
    }
    mWidget.setShot(0);
    EXPECT_GE(mWidget.window().bottom, testing::arrival(23, -1.0)) << picked;
    EXPECT_LE(mWidget.window().bottom, unpicked) << picked;
  }
  EXPECT_NEAR(mWidget.window().bottom, 1.25 * testing::arrival(23, -1.0), 1e-9);
}

TEST_F(TraceView, keepsTracesLegibleUnlessAllAreWanted) {
  TomoDocument wide = testing::testShots(400, 20);
  mWidget.setDocument(&wide);
  mWidget.setShot(0);
  EXPECT_GT(mWidget.window().width(), 400.0);
  mUser.change([](TraceViewOptions& options) { options.showAllTraces = false; });
  EXPECT_LT(mWidget.window().width(), 130.0);
  EXPECT_LT(mWidget.window().left, 0.0);
}

TEST_F(TraceView, theWheelZoomsAtTheCursorAndItsTurnsAreOneStepOfHistory) {
  const ViewWindow opening = mWidget.window();
  const QPoint cursor = mUser.at(6, 0.2);
  const double time = mWidget.timeAt(cursor);
  for (int i = 0; i < 3; ++i) mUser.wheel(cursor, 1);
  EXPECT_LT(mWidget.window().height(), 0.6 * opening.height());
  EXPECT_LT(mWidget.window().width(), 0.6 * opening.width());
  EXPECT_NEAR(mWidget.timeAt(cursor), time, 1e-9);
  EXPECT_EQ(mWidget.traceAt(cursor), 6);
  const ViewWindow zoomed = mWidget.window();
  mUser.key(Qt::Key_Backspace);
  EXPECT_EQ(mWidget.window(), opening);
  mUser.key(Qt::Key_Backspace, Qt::ShiftModifier);
  EXPECT_EQ(mWidget.window(), zoomed);
}

TEST_F(TraceView, modifiersOfTheWheelChooseTheAxisOrTheGain) {
  const ViewWindow opening = mWidget.window();
  const QPoint cursor = mUser.at(6, 0.2);
  mUser.wheel(cursor, 2, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(mWidget.window().width(), opening.width());
  EXPECT_LT(mWidget.window().height(), opening.height());
  mWidget.fit();
  mUser.wheel(cursor, 2, Qt::ShiftModifier);
  EXPECT_LT(mWidget.window().width(), opening.width());
  EXPECT_DOUBLE_EQ(mWidget.window().height(), opening.height());
  const ViewWindow before = mWidget.window();
  QSignalSpy told(&mWidget, &editTravelTimesWidget::optionsChanged);
  mUser.wheel(cursor, 2, Qt::AltModifier);
  EXPECT_EQ(mWidget.window(), before);
  EXPECT_GT(mWidget.options().gain, 1.2);
  EXPECT_EQ(told.count(), 1);
}

TEST_F(TraceView, aRubberBandZoomsToItsRectangle) {
  mUser.dragTo(mUser.at(4, 0.1), mUser.at(10, 0.2), Qt::LeftButton, Qt::ControlModifier);
  EXPECT_NEAR(mWidget.window().left, 4.0, 0.05);
  EXPECT_NEAR(mWidget.window().right, 10.0, 0.05);
  EXPECT_NEAR(mWidget.window().top, 0.1, 0.002);
  EXPECT_NEAR(mWidget.window().bottom, 0.2, 0.002);
  EXPECT_TRUE(mWidget.canZoomBack());
  EXPECT_FALSE(mUser.session.canUndo()) << "zooming is no edit";
  mWidget.zoomBack();
  EXPECT_FALSE(mWidget.canZoomBack());
}

TEST_F(TraceView, theMiddleButtonPans) {
  mWidget.setWindow({4.0, 10.0, 0.1, 0.2});
  const QPoint grabbed = mUser.at(7, 0.15);
  mUser.dragTo(grabbed, grabbed + QPoint(50, -40), Qt::MiddleButton);
  EXPECT_NEAR(mUser.at(7, 0.15).x(), grabbed.x() + 50, 1);
  EXPECT_NEAR(mUser.at(7, 0.15).y(), grabbed.y() - 40, 1);
  mWidget.zoomBack();
  EXPECT_NEAR(mWidget.window().left, 4.0, 1e-12);
}

/// The first click has picked, so the second corrects it and must not take the view away.
TEST_F(TraceView, aDoubleClickWithPickPicksAndWithOtherToolsShowsEverything) {
  const ViewWindow opening = mWidget.window();
  const ViewWindow zoomed{4.0, 10.0, 0.1, 0.2};
  mWidget.setWindow(zoomed);
  const QPoint first = mUser.at(7, 0.15);
  const QPoint second = first + QPoint(0, 3);
  const auto doubleClick = [&] {
    mUser.click(first);
    QTest::mouseDClick(&mWidget, Qt::LeftButton, Qt::NoModifier, second);
    mUser.release(second);
  };
  doubleClick();
  EXPECT_EQ(mWidget.window(), zoomed);
  EXPECT_NEAR(mUser.pick(7), mWidget.timeAt(second), mUser.pixel());
  mWidget.setTool(TraceTool::Select);
  doubleClick();
  EXPECT_EQ(mWidget.window(), opening);
}

TEST_F(TraceView, keepsTheTimesLookedAtFromShotToShot) {
  mWidget.setWindow({4.0, 10.0, 0.02, 0.06});
  mWidget.setShot(1);
  EXPECT_DOUBLE_EQ(mWidget.window().top, 0.02);
  EXPECT_DOUBLE_EQ(mWidget.window().right, 10.0);
}

TEST_F(TraceView, walkingBringsTheTraceIntoSight) {
  mWidget.setWindow({0.0, 6.0, 0.0, 0.05});
  mDocument.ttArray.edit()[0].ttMisurati.edit()[23] = 0.4;
  mUser.key(Qt::Key_End);
  EXPECT_GT(mWidget.window().right, 23.0);
  EXPECT_LT(mWidget.window().top, 0.4);
  EXPECT_GT(mWidget.window().bottom, 0.4);
}

TEST_F(TraceView, theRulerReadsApparentVelocity) {
  mWidget.setTool(TraceTool::Ruler);
  mUser.dragTo(mUser.at(5, 0.05), mUser.at(15, 0.15));
  ASSERT_TRUE(mWidget.rulerVelocity());
  EXPECT_NEAR(*mWidget.rulerVelocity(), 200.0, 5.0);
  EXPECT_FALSE(mUser.session.canUndo());
  mUser.key(Qt::Key_Escape);
  EXPECT_FALSE(mWidget.rulerVelocity());
  mUser.key(Qt::Key_Escape);
  EXPECT_EQ(mWidget.tool(), TraceTool::Pick);
}

TEST_F(TraceView, tracesStandAtTheirDistances) {
  mDocument.line.edit().goephonesStringSet[0][23].x = 100.0;
  mUser.change([](TraceViewOptions& options) { options.byDistance = true; });
  const double gap = mWidget.pointOf(23, 0.0).x() - mWidget.pointOf(22, 0.0).x();
  const double spacing = mWidget.pointOf(22, 0.0).x() - mWidget.pointOf(21, 0.0).x();
  EXPECT_NEAR(gap / spacing, (100.0 - 44.0) / 2.0, 0.01);
}

TEST_F(TraceView, picksAreDrawnOverTheWigglesAndHideOnDemand) {
  const QImage bare = picture();
  mUser.click(mUser.at(5, 0.3));
  mUser.click(mUser.at(0, 0.3), Qt::RightButton);
  mWidget.setCurrentTrace(0);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&mWidget, &leave);
  const QPoint pick = mUser.at(5, mUser.pick(5));
  EXPECT_NE(picture().pixel(pick), bare.pixel(pick));
  TraceViewOptions bareTraces = mWidget.options();
  bareTraces.showOnlyTraces = true;
  mWidget.setOptions(bareTraces);
  EXPECT_EQ(picture().pixel(pick), bare.pixel(pick));
}

TEST_F(TraceView, everyGuideShowsAndGoesAgain) {
  mDocument.ttArray.edit()[0].ttCalcolati.edit().assign(24, 0.25);
  mDocument.ttArray.edit()[1].ttMisurati.edit().assign(24, 0.35);
  const QImage bare = picture();
  const TraceViewOptions none = mWidget.options();
  const std::vector<bool TraceViewOptions::*> guides{
      &TraceViewOptions::airWave, &TraceViewOptions::showAllPicks, &TraceViewOptions::showNeighbour,
      &TraceViewOptions::showReciprocal, &TraceViewOptions::showComputedTimes};
  for (const auto guide : guides) {
    TraceViewOptions one = none;
    one.*guide = true;
    mWidget.setOptions(one);
    EXPECT_GT(differing(picture(), bare), 100);
    mWidget.setOptions(none);
    EXPECT_EQ(differing(picture(), bare), 0);
  }
}

TEST_F(TraceView, followsChangesOfSamplesAndPalette) {
  const QImage before = picture();
  for (Trace& trace : mDocument.recordings.edit().traceSets[0])
    trace.filtered.edit().assign(1000, 0.0);
  mWidget.documentChanged();
  EXPECT_GT(differing(picture(), before), 1000);
  mUser.change([](TraceViewOptions& options) { options.showFiltered = false; });
  EXPECT_EQ(differing(picture(), before), 0);
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(25, 25, 25));
  dark.setColor(QPalette::Text, Qt::white);
  mWidget.setPalette(dark);
  EXPECT_LT(picture().pixelColor(400, 550).lightness(), 128);
}

TEST_F(TraceView, survivesWhateverTheDocumentHolds) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double huge = std::numeric_limits<double>::max();
  TraceSet& set = mDocument.recordings.edit().traceSets[0];
  set[0].samples.edit().clear();
  set[1].samples.edit().assign(1000, nan);
  set[2].samples.edit().assign(1, 1.0);
  set[3].samples.edit() = {huge, -huge, huge};
  set[4].sampleInterval = huge;
  set[5].sampleInterval = nan;
  set[6].sampleInterval = 1e-300;
  mDocument.line.edit().goephonesStringSet[0][7].x = nan;
  mDocument.line.edit().goephonesStringSet[0][8].x = 1e300;
  mDocument.ttArray.edit()[0].ttMisurati.edit() = {nan, huge, 1e300, -1.0, 0.1};
  mDocument.ttArray.edit()[0].ttCalcolati.edit() = {nan, huge};
  mDocument.ttArray.edit()[0].shotPos2d.x = nan;
  for (const bool byDistance : {false, true}) {
    TraceViewOptions options;
    options.byDistance = byDistance;
    options.gain = nan;
    options.snapRadius = nan;
    options.airVelocity = 0.0;
    options.airWave = options.showAllPicks = options.showComputedTimes = options.magnifier = true;
    options.showNeighbour = options.showReciprocal = true;
    options.snap = PickSnap::Onset;
    mWidget.setOptions(options);
    mWidget.documentChanged();
    mWidget.setWindow({nan, 3.0, -huge, huge});
    EXPECT_FALSE(picture().isNull());
    EXPECT_DOUBLE_EQ(mWidget.options().gain, 1.0);
    for (int trace = 0; trace < 8; ++trace) {
      const QPoint point(100 + 60 * trace, 300);
      mUser.dragTo(point, point + QPoint(30, 20));
      mUser.wheel(point, 3);
      EXPECT_FALSE(picture().isNull());
    }
    EXPECT_EQ(mDocument.ttArray[0].ttMisurati.size(), 5u);
    mWidget.fit();
  }
}

TEST_F(TraceView, saysWhatToDoWhenThereIsNothing) {
  TomoDocument empty;
  mWidget.setDocument(&empty);
  const QImage hint = picture();
  mWidget.setDocument(nullptr);
  EXPECT_EQ(differing(picture(), hint), 0);
  mUser.click({300, 300});
  mUser.wheel({300, 300}, 1);
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Left, Qt::Key_F, Qt::Key_Delete, Qt::Key_Plus}) {
    mUser.key(key);
  }
  TomoDocument noTraces = testing::testShots(0, 0);
  mWidget.setDocument(&noTraces);
  mWidget.setShot(0);
  EXPECT_EQ(mWidget.shot(), 0);
  EXPECT_GT(differing(picture(), hint), 0) << "another text";
  mWidget.setShot(7);
  EXPECT_EQ(mWidget.shot(), -1);
}

TEST_F(TraceView, editsRecordsThatHavePicksOnly) {
  mDocument.recordings.edit().traceSets.clear();
  mDocument.ttArray.edit()[0].ttMisurati.edit().assign(24, 0.1);
  mWidget.documentChanged();
  EXPECT_NEAR(mWidget.window().bottom, 0.12, 1e-12);
  mUser.dragTo(mUser.at(4, 0.1), mUser.at(4, 0.05));
  EXPECT_NEAR(mUser.pick(4), 0.05, mUser.pixel());
}

}  // namespace
}  // namespace talvesk
