#include "WidgetDriver.h"
#include "io/Survey.h"
#include "model/Recordings.h"
#include "session/PickEdits.h"

#include <QSignalSpy>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::arrival;
using testing::kInterval;

class Picking : public ::testing::Test {
 protected:
  /// As an autopicker does.
  void autoPick(const std::vector<int>& shots, void (*find)(std::vector<double>&)) {
    const Status status = mUser.session.apply(Edit::kAutoPick, [&](Survey& survey) {
      for (const int shot : shots) {
        find(survey.document.ttArray.edit()[static_cast<std::size_t>(shot)].ttMisurati.edit());
        markPicksAutomatic(survey.document, shot);
      }
      return Status();
    });
    ASSERT_TRUE(status.ok()) << status.message();
  }

  testing::WidgetDriver mUser{testing::testShots(12, 400, {-1.0, 25.0})};
  TomoDocument& mDocument = mUser.writable();
  editTravelTimesWidget& mWidget = mUser.widget;
  QSignalSpy mAdded{&mWidget, &editTravelTimesWidget::pick_added};
  QSignalSpy mEdited{&mWidget, &editTravelTimesWidget::pick_edited};
};

TEST_F(Picking, aClickSetsAPickAtTheTimeUnderTheCursor) {
  for (const auto& [trace, time] : {std::pair{0, 0.031}, {5, 0.1}, {11, 0.183}}) {
    mUser.click(mUser.at(trace, time));
    EXPECT_NEAR(mUser.pick(trace), time, mUser.pixel()) << trace;
    EXPECT_EQ(mWidget.currentTrace(), trace);
  }
  EXPECT_EQ(mAdded.count(), 3);
  EXPECT_EQ(mEdited.count(), 3);
  EXPECT_EQ(mUser.pick(3), kUnpicked);
}

TEST_F(Picking, aClickAtTheVeryTopIsStillAPick) {
  mUser.click(mUser.at(4, 0.0));
  EXPECT_TRUE(hasPick(mUser.pick(4)));
  EXPECT_LE(mUser.pick(4), mUser.pixel());
}

TEST_F(Picking, clicksBesideTheTracesDoNothing) {
  mUser.click({2, 300});
  mUser.click({400, 598});
  EXPECT_FALSE(mUser.session.canUndo());
}

TEST_F(Picking, aDragUpOrDownMovesThePickOfItsTraceOnly) {
  mUser.setPick(4, 0.05);
  const QPoint wandering((mUser.at(4, 0.12) + mUser.at(5, 0.12)) / 2 + QPoint(8, 0));
  ASSERT_EQ(mWidget.traceAt(wandering), 5);
  mUser.dragTo(mUser.at(4, 0.05), wandering);
  EXPECT_NEAR(mUser.pick(4), 0.12, mUser.pixel());
  EXPECT_EQ(mUser.pick(5), kUnpicked);
  EXPECT_EQ(mAdded.count(), 0);
  EXPECT_EQ(mEdited.count(), 1) << "one edit, when the button is up";
  mUser.session.undo();
  EXPECT_DOUBLE_EQ(mUser.pick(4), 0.05);
}

TEST_F(Picking, aDragAcrossTracesDrawsARunAndIsOneEdit) {
  mUser.dragTo(mUser.at(2, 0.04), mUser.at(8, 0.10));
  for (int trace = 2; trace <= 8; ++trace) {
    EXPECT_NEAR(mUser.pick(trace), 0.04 + 0.01 * (trace - 2), mUser.pixel()) << trace;
  }
  EXPECT_EQ(mUser.pick(1), kUnpicked);
  EXPECT_EQ(mUser.pick(9), kUnpicked);
  EXPECT_EQ(mUser.session.steps(), 1U);
  mUser.session.undo();
  EXPECT_EQ(mUser.pick(5), kUnpicked);
}

TEST_F(Picking, aStrokeThatBeginsOnAPickSetsIt) {
  for (int trace = 3; trace <= 9; ++trace) mUser.setPick(trace, 0.06);
  mUser.dragTo(mUser.at(4, 0.06), mUser.at(8, 0.08));
  EXPECT_NEAR(mUser.pick(4), 0.06, mUser.pixel()) << "it was not dragged away";
  for (int trace = 4; trace <= 8; ++trace) {
    EXPECT_NEAR(mUser.pick(trace), 0.06 + 0.005 * (trace - 4), mUser.pixel()) << trace;
  }
  EXPECT_EQ(mUser.pick(3), 0.06);
  EXPECT_EQ(mUser.pick(9), 0.06);
  EXPECT_EQ(mUser.session.undoText().english(), "Draw picks");
  mUser.session.undo();
  EXPECT_EQ(mUser.pick(6), 0.06);
  EXPECT_FALSE(mUser.session.canUndo());
}

TEST_F(Picking, aStrokeOverPicksSetsThoseThatItCrosses) {
  for (int trace = 0; trace < 12; ++trace) mUser.setPick(trace, 0.09);
  mUser.dragTo(mUser.at(2, 0.05), mUser.at(10, 0.13));
  for (int trace = 2; trace <= 10; ++trace) {
    EXPECT_NEAR(mUser.pick(trace), 0.05 + 0.01 * (trace - 2), mUser.pixel()) << trace;
  }
}

TEST_F(Picking, aShakingHandPicksOneTrace) {
  const QPoint between((mUser.at(3, 0.05) + mUser.at(4, 0.05)) / 2);
  mUser.press(between - QPoint(1, 0));
  mUser.move(between + QPoint(1, 0));
  mUser.release(between + QPoint(1, 0));
  EXPECT_NE(hasPick(mUser.pick(3)), hasPick(mUser.pick(4)));
}

TEST_F(Picking, escapeGivesADragUp) {
  mUser.press(mUser.at(2, 0.04));
  mUser.move(mUser.at(6, 0.04));
  mUser.key(Qt::Key_Escape);
  mUser.release(mUser.at(6, 0.04));
  EXPECT_FALSE(mUser.session.canUndo());
  EXPECT_EQ(mUser.pick(2), kUnpicked);
}

TEST_F(Picking, rightClickAndDeleteRemove) {
  for (int trace = 0; trace < 12; ++trace) mUser.setPick(trace, 0.05);
  mUser.click(mUser.at(3, 0.15), Qt::RightButton);
  EXPECT_EQ(mUser.pick(3), kNoTime);
  mUser.dragTo(mUser.at(5, 0.1), mUser.at(7, 0.1), Qt::RightButton);
  EXPECT_EQ(mUser.pick(6), kNoTime);
  mWidget.setCurrentTrace(10);
  mUser.key(Qt::Key_Delete);
  EXPECT_EQ(mUser.pick(10), kNoTime);
  EXPECT_EQ(mUser.pick(9), 0.05);
  EXPECT_EQ(mUser.session.steps(), 3U);
  mUser.click(mUser.at(3, 0.15), Qt::RightButton);
  EXPECT_EQ(mUser.session.steps(), 3U) << "there was nothing left to remove";
}

TEST_F(Picking, arrowKeysNudgeByASampleTenOrAMillisecond) {
  mUser.setPick(4, 0.05);
  mWidget.setCurrentTrace(4);
  mUser.key(Qt::Key_Down);
  EXPECT_NEAR(mUser.pick(4), 0.05 + kInterval, 1e-12);
  mUser.key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_NEAR(mUser.pick(4), 0.05 - 9 * kInterval, 1e-12);
  mUser.key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_NEAR(mUser.pick(4), 0.051 - 9 * kInterval, 1e-12);
  mUser.key(Qt::Key_Z, Qt::ControlModifier);
  mUser.key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NEAR(mUser.pick(4), 0.05 + kInterval, 1e-12);
  mUser.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_NEAR(mUser.pick(4), 0.05 - 9 * kInterval, 1e-12);
}

TEST_F(Picking, aKeyHeldIsOneEditOfOneShotInOneEditor) {
  const auto hold = [this] {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&mWidget, &event);
  };
  for (TravelTime& record : mDocument.ttArray.edit()) record.ttMisurati.edit()[4] = 0.05;
  mWidget.setCurrentTrace(4);
  mUser.key(Qt::Key_Down);
  hold();
  EXPECT_EQ(mUser.session.steps(), 1U);
  mWidget.setShot(1);
  mWidget.setCurrentTrace(4);
  hold();
  EXPECT_EQ(mUser.session.steps(), 2U);
  EXPECT_NEAR(mUser.pick(4, 1), 0.05 + kInterval, 1e-12);

  editTravelTimesWidget other;
  other.setSession(mUser.session);
  other.setShot(1);
  other.setCurrentTrace(4);
  QTest::keyClick(&other, Qt::Key_Down);
  EXPECT_EQ(mUser.session.steps(), 3U) << "its first nudge, as the other's was";
  mUser.session.undo();
  mUser.session.undo();
  EXPECT_EQ(mUser.pick(4, 1), 0.05);
  EXPECT_NEAR(mUser.pick(4, 0), 0.05 + 2 * kInterval, 1e-12);
}

TEST_F(Picking, nudgesStopAtTheEndsOfTheRecord) {
  const double end = 399 * kInterval;
  mUser.setPick(4, end - 0.0001);
  mWidget.setCurrentTrace(4);
  mUser.key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_DOUBLE_EQ(mUser.pick(4), end);
  mUser.setPick(4, 0.0001);
  mUser.key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_TRUE(hasPick(mUser.pick(4)));
}

TEST_F(Picking, keysAloneAreEnough) {
  mUser.key(Qt::Key_Home);
  EXPECT_EQ(mWidget.currentTrace(), 0);
  mUser.setPick(0, 0.020);
  mUser.setPick(2, 0.030);
  mUser.key(Qt::Key_Right);
  mUser.key(Qt::Key_Return);
  EXPECT_NEAR(mUser.pick(1), 0.025, 1e-12) << "between its neighbours";
  mUser.key(Qt::Key_End);
  EXPECT_EQ(mWidget.currentTrace(), 11);
  mUser.key(Qt::Key_Left);
  EXPECT_EQ(mWidget.currentTrace(), 10);
  EXPECT_TRUE(mWidget.accessibleDescription().contains("11"));
}

TEST_F(Picking, snapsToTheOnsetUnlessAltIsHeld) {
  mUser.change([](TraceViewOptions& options) { options.snap = PickSnap::Onset; });
  const double onset = arrival(6, -1.0);
  mUser.click(mUser.at(6, onset + 0.002));
  EXPECT_NEAR(mUser.pick(6), onset, 2.0 * kInterval);
  mUser.click(mUser.at(7, 0.1), Qt::LeftButton, Qt::AltModifier);
  EXPECT_NEAR(mUser.pick(7), 0.1, mUser.pixel());
}

TEST_F(Picking, automaticPicksOfARangeAreConfirmedOrRemovedAtOnce) {
  mUser.setPick(1, 0.02);
  mUser.forgetSteps();
  for (int trace = 2; trace <= 8; ++trace) mUser.setPick(trace, 0.05);
  mUser.click(mUser.at(0, 0.1));
  autoPick({0}, [](std::vector<double>&) {});
  mUser.dragTo(mUser.at(4, 0.1), mUser.at(6, 0.1), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(mWidget.selectedFirst(), 4);
  EXPECT_EQ(mWidget.selectedLast(), 6);
  mUser.key(Qt::Key_C);
  mWidget.selectTraces(0, 11);
  mWidget.removeUnconfirmedPicks();
  for (int trace = 0; trace < 12; ++trace) {
    EXPECT_EQ(hasPick(mUser.pick(trace)), trace >= 4 && trace <= 6) << trace;
  }
  mUser.session.undo();
  EXPECT_EQ(mUser.pick(8), 0.05);
  mUser.key(Qt::Key_Delete);
  EXPECT_FALSE(hasPick(mUser.pick(5)));
  mUser.session.undo();
  EXPECT_TRUE(hasPick(mUser.pick(5)));
}

TEST_F(Picking, autopickingSeveralShotsIsOneEditThatGivesHandPicksBack) {
  mUser.click(mUser.at(3, 0.05));
  const double byHand = mUser.pick(3);
  autoPick({0, 1}, [](std::vector<double>& times) { times.assign(12, 0.07); });
  EXPECT_EQ(mUser.session.steps(), 2U);
  EXPECT_TRUE(mWidget.hasPicksInRange(true));
  QSignalSpy shots(&mWidget, &editTravelTimesWidget::shotEdited);
  mUser.session.undo();
  EXPECT_DOUBLE_EQ(mUser.pick(3), byHand);
  EXPECT_EQ(mUser.pick(5, 1), kUnpicked);
  EXPECT_FALSE(mWidget.hasPicksInRange(true)) << "it is the user's own again";
  EXPECT_EQ(shots.count(), 0) << "the shot in view is one of them";
  mUser.session.redo();
  EXPECT_EQ(mUser.pick(5, 1), 0.07);
  EXPECT_TRUE(mWidget.hasPicksInRange(true));
}

TEST_F(Picking, whatIsReadFollowsTheKeys) {
  TraceCursor read;
  QObject::connect(&mWidget, &editTravelTimesWidget::cursorMoved,
                   [&read](const TraceCursor& cursor) { read = cursor; });
  mUser.setPick(4, 0.05);
  mWidget.setCurrentTrace(3);
  mUser.key(Qt::Key_Right);
  mUser.key(Qt::Key_Down);
  EXPECT_EQ(read.trace, 4);
  EXPECT_DOUBLE_EQ(read.pick.value_or(-1.0), mUser.pick(4));
  EXPECT_DOUBLE_EQ(read.time.value_or(-1.0), mUser.pick(4));
  mUser.key(Qt::Key_Delete);
  EXPECT_FALSE(read.pick);
  EXPECT_FALSE(read.time) << "there is no cursor that could have one";
  mUser.session.undo();
  EXPECT_TRUE(read.pick);
  mWidget.setShot(1);
  EXPECT_FALSE(read.pick) << "the other shot has none";
}

TEST_F(Picking, shiftAndArrowsSelectFromWhereTheyStarted) {
  mWidget.setCurrentTrace(5);
  mUser.key(Qt::Key_Right, Qt::ShiftModifier);
  mUser.key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(mWidget.selectedFirst(), 5);
  EXPECT_EQ(mWidget.selectedLast(), 7);
  for (int i = 0; i < 4; ++i) mUser.key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(mWidget.selectedFirst(), 3);
  EXPECT_EQ(mWidget.selectedLast(), 5);
  mUser.key(Qt::Key_Escape);
  EXPECT_EQ(mWidget.selectedFirst(), -1);
}

TEST_F(Picking, undoOfAnotherShotSaysWhichOne) {
  mUser.click(mUser.at(3, 0.05));
  mWidget.setShot(1);
  QSignalSpy shots(&mWidget, &editTravelTimesWidget::shotEdited);
  mUser.session.undo();
  EXPECT_EQ(mUser.pick(3, 0), kUnpicked);
  ASSERT_EQ(shots.count(), 1);
  EXPECT_EQ(shots[0][0].toInt(), 0);
}

TEST_F(Picking, editsThatOtherViewsAskForCanBeUndone) {
  mWidget.editPick(1, 4, 0.07);
  mWidget.editPick(1, 5, std::numeric_limits<double>::quiet_NaN());
  mWidget.editPick(1, 40, 0.07);
  mWidget.editPick(9, 4, 0.07);
  EXPECT_EQ(mUser.pick(4, 1), 0.07);
  EXPECT_EQ(mUser.pick(5, 1), kUnpicked);
  EXPECT_EQ(mUser.session.steps(), 1U);
  mUser.session.undo();
  EXPECT_EQ(mUser.pick(4, 1), kUnpicked);
}

TEST_F(Picking, anotherSurveyForgetsShotAndHistory) {
  mUser.click(mUser.at(3, 0.05));
  mUser.session.open(mUser.session.survey(), true);
  EXPECT_FALSE(mUser.session.canUndo());
  EXPECT_EQ(mWidget.shot(), -1);
}

TEST_F(Picking, restsWhileOnlyTracesAreShown) {
  mUser.setPick(4, 0.05);
  TraceViewOptions bareTraces = mWidget.options();
  bareTraces.showOnlyTraces = true;
  mWidget.setOptions(bareTraces);
  mUser.click(mUser.at(3, 0.05));
  mUser.click(mUser.at(4, 0.05), Qt::RightButton);
  mWidget.setCurrentTrace(4);
  mUser.key(Qt::Key_Delete);
  mUser.key(Qt::Key_Down);
  EXPECT_EQ(mUser.pick(3), kUnpicked);
  EXPECT_EQ(mUser.pick(4), 0.05);
}

TEST_F(Picking, tracesWithoutATimeInTheRecordAreNotPicked) {
  mDocument.ttArray.edit()[0].ttMisurati.edit().resize(6);
  mWidget.documentChanged();
  mUser.click(mUser.at(8, 0.05));
  mUser.dragTo(mUser.at(4, 0.05), mUser.at(8, 0.05));
  EXPECT_EQ(mDocument.ttArray[0].ttMisurati.size(), 6u);
  EXPECT_TRUE(hasPick(mUser.pick(5)));
}

TEST_F(Picking, tellsWhatIsUnderTheCursor) {
  std::vector<TraceCursor> told;
  QObject::connect(&mWidget, &editTravelTimesWidget::cursorMoved,
                   [&told](const TraceCursor& cursor) { told.push_back(cursor); });
  QSignalSpy moved(&mWidget, &editTravelTimesWidget::mouse_moved);
  mUser.setPick(3, 0.04);
  mUser.move(mUser.at(3, 0.1), Qt::NoButton);
  ASSERT_FALSE(told.empty());
  const TraceCursor& cursor = told.back();
  EXPECT_EQ(cursor.trace, 3);
  ASSERT_TRUE(cursor.time);
  EXPECT_NEAR(*cursor.time, 0.1, mUser.pixel());
  EXPECT_DOUBLE_EQ(*cursor.offset, 7.0);
  EXPECT_DOUBLE_EQ(*cursor.distance, 6.0);
  EXPECT_DOUBLE_EQ(*cursor.pick, 0.04);
  const auto& samples = mDocument.recordings->traceSets[0][3].samples;
  EXPECT_EQ(*cursor.amplitude,
            samples[static_cast<std::size_t>(std::lround(*cursor.time / kInterval))]);
  ASSERT_EQ(moved.count(), 1);
  EXPECT_EQ(moved[0][0].toInt(), 3);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&mWidget, &leave);
  EXPECT_EQ(moved.back()[0].toInt(), -1);
  EXPECT_EQ(told.back().trace, -1);
}

TEST_F(Picking, tellsAgainWhatHasChangedUnderACursorThatRests) {
  std::vector<TraceCursor> told;
  QObject::connect(&mWidget, &editTravelTimesWidget::cursorMoved,
                   [&told](const TraceCursor& cursor) { told.push_back(cursor); });
  mUser.click(mUser.at(3, 0.04));
  ASSERT_TRUE(told.back().pick.has_value());
  mUser.session.undo();
  EXPECT_FALSE(told.back().pick.has_value());
  mWidget.setShot(1);
  EXPECT_DOUBLE_EQ(*told.back().offset, -19.0) << "of the shot that is shown now";
  mWidget.setShot(0);
  mUser.setPick(4, 0.05);
  mUser.key(Qt::Key_Right);
  mUser.key(Qt::Key_Down);
  EXPECT_EQ(told.back().trace, 4);
  EXPECT_DOUBLE_EQ(*told.back().pick, 0.05 + kInterval) << "a key that moves it";
}

}  // namespace
}  // namespace talvesk
