#include "WidgetDriver.h"
#include "model/PickGrades.h"
#include "widgets/traces/TraceColors.h"

#include <QImage>
#include <QSignalSpy>
#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

class PickErrors : public ::testing::Test {
 protected:
  PickErrors() {
    for (int trace = 2; trace <= 8; ++trace) mUser.setPick(trace, 0.08);
    mWidget.setCurrentTrace(5);
  }

  double error(int trace) const {
    return mUser.session.document().ttArray[0].errorOf(static_cast<std::size_t>(trace));
  }
  void setError(int trace, double sigma) {
    mUser.writable().ttArray.edit()[0].setError(static_cast<std::size_t>(trace), sigma);
  }
  int heightOf(double seconds) const {
    return static_cast<int>(std::lround(seconds / mUser.pixel()));
  }
  /// Of the middle of a trace, from a time to another: how many pixels have about this colour, and
  /// where the first and the last of them are.
  struct Column {
    int count = 0;
    int first = -1;
    int last = -1;
    int length() const { return first < 0 ? 0 : last - first + 1; }
  };
  Column columnOf(int trace, double from, double to, const QColor& color) {
    const QImage image = mWidget.grab().toImage();
    const QPoint top = mUser.at(trace, from);
    Column column;
    for (int y = top.y(); y <= mUser.at(trace, to).y(); ++y) {
      for (int x = top.x() - 1; x <= top.x() + 1; ++x) {
        const QColor pixel = image.pixelColor(x, y);
        const int off = std::abs(pixel.red() - color.red()) +
                        std::abs(pixel.green() - color.green()) +
                        std::abs(pixel.blue() - color.blue());
        if (off > 90) continue;
        ++column.count;
        if (column.first < 0) column.first = y;
        column.last = y;
        break;
      }
    }
    return column;
  }
  TraceColors colors() const { return traceColors(mWidget.palette(), false); }

  testing::WidgetDriver mUser{testing::testShots(12, 400)};
  editTravelTimesWidget& mWidget = mUser.widget;
};

TEST_F(PickErrors, areSetByTheKeysOneToFourAndTakenAwayByZero) {
  const std::pair<Qt::Key, double> keys[] = {
      {Qt::Key_1, 0.0005}, {Qt::Key_2, 0.001}, {Qt::Key_3, 0.0025}, {Qt::Key_4, 0.005}};
  for (const auto& [key, sigma] : keys) {
    mUser.key(key);
    EXPECT_DOUBLE_EQ(error(5), sigma);
  }
  EXPECT_EQ(error(4), 0.0) << "only the current trace";
  EXPECT_DOUBLE_EQ(mUser.pick(5), 0.08);
  mUser.key(Qt::Key_0);
  EXPECT_EQ(error(5), 0.0);
  EXPECT_EQ(mUser.session.steps(), 5U);
  mUser.session.undo();
  EXPECT_DOUBLE_EQ(error(5), 0.005);
  mUser.key(Qt::Key_4);
  EXPECT_TRUE(mUser.session.canRedo()) << "nothing was to change, so nothing is a step";
  mUser.key(Qt::Key_5);
  mUser.key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(error(5), 0.005) << "those mean nothing";
}

TEST_F(PickErrors, ofTheSelectedTracesAreOneStep) {
  mWidget.selectTraces(1, 4);
  mUser.key(Qt::Key_3);
  for (int trace = 1; trace <= 4; ++trace) {
    EXPECT_EQ(error(trace), trace == 1 ? 0.0 : 0.0025) << "trace 1 has no pick, " << trace;
  }
  EXPECT_EQ(error(5), 0.0);
  EXPECT_EQ(mUser.session.steps(), 1U);
  EXPECT_EQ(mUser.session.undoText().english(), "Set errors of picks");
  mUser.session.undo();
  EXPECT_EQ(error(2), 0.0);
}

TEST_F(PickErrors, leaveWhetherAPickWaitsForConfirmation) {
  mUser.writable().ttArray.edit()[0].setWaiting(5, true);
  mUser.key(Qt::Key_2);
  EXPECT_TRUE(mUser.session.document().ttArray[0].waits(5));
}

TEST_F(PickErrors, ofAPickSetByHandAreThoseOfTheLastKey) {
  mUser.click(mUser.at(0, 0.05));
  EXPECT_EQ(error(0), 0.0) << "nobody has told one";
  mWidget.setCurrentTrace(11);
  mUser.key(Qt::Key_2);  // trace 11 has no pick: it is only for those to come
  EXPECT_EQ(mUser.session.steps(), 1U);
  mUser.click(mUser.at(1, 0.05));
  EXPECT_DOUBLE_EQ(error(1), 0.001);
  mUser.dragTo(mUser.at(4, 0.08), mUser.at(4, 0.1));
  EXPECT_NEAR(mUser.pick(4), 0.1, mUser.pixel());
  EXPECT_DOUBLE_EQ(error(4), 0.001);
  mWidget.editPick(0, 6, 0.09);
  EXPECT_DOUBLE_EQ(error(6), 0.001) << "as by a drag in the curves";
}

TEST_F(PickErrors, ofAPickThatIsNudgedStay) {
  setError(5, 0.004);
  mUser.key(Qt::Key_2, Qt::AltModifier);  // is no key of ours
  mUser.key(Qt::Key_Down);
  EXPECT_GT(mUser.pick(5), 0.08);
  EXPECT_DOUBLE_EQ(error(5), 0.004);
}

TEST_F(PickErrors, arePulledByCtrlAndShift) {
  const Qt::KeyboardModifiers keys = Qt::ControlModifier | Qt::ShiftModifier;
  mUser.dragTo(mUser.at(3, 0.08), mUser.at(3, 0.092), Qt::LeftButton, keys);
  EXPECT_NEAR(error(3), 0.012, mUser.pixel());
  EXPECT_DOUBLE_EQ(mUser.pick(3), 0.08);
  EXPECT_EQ(mUser.session.steps(), 1U);
  EXPECT_EQ(mWidget.options().pickError, 0.0) << "it is that of this pick only";
  mUser.session.undo();
  EXPECT_EQ(error(3), 0.0);

  mUser.dragTo(mUser.at(3, 0.07), mUser.at(6, 0.05), Qt::LeftButton, keys);
  EXPECT_NEAR(error(3), 0.03, mUser.pixel()) << "upward, and the trace stays";
  EXPECT_EQ(error(6), 0.0);

  const auto steps = mUser.session.steps();
  const ViewWindow before = mWidget.window();
  mUser.dragTo(mUser.at(10, 0.05), mUser.at(11, 0.1), Qt::LeftButton, keys);
  EXPECT_EQ(mUser.session.steps(), steps) << "there is no pick to pull at";
  EXPECT_EQ(mWidget.window().bottom, before.bottom) << "nor has the view changed";
}

TEST_F(PickErrors, comeBackWhenAPullIsGivenUp) {
  setError(3, 0.002);
  const Qt::KeyboardModifiers keys = Qt::ControlModifier | Qt::ShiftModifier;
  mUser.press(mUser.at(3, 0.08), Qt::LeftButton, keys);
  mUser.move(mUser.at(3, 0.12), Qt::LeftButton, keys);
  mUser.key(Qt::Key_Escape);
  mUser.release(mUser.at(3, 0.12), Qt::LeftButton, keys);
  EXPECT_DOUBLE_EQ(error(3), 0.002);
  EXPECT_FALSE(mUser.session.canUndo());
}

TEST_F(PickErrors, ofAShotThatIsOnlyLookedAtStay) {
  mUser.change([](TraceViewOptions& options) { options.showOnlyTraces = true; });
  mUser.key(Qt::Key_3);
  EXPECT_EQ(error(5), 0.0);
}

TEST_F(PickErrors, areDrawnAsBarsOfTheirLength) {
  mUser.change([](TraceViewOptions& options) { options.gain = TraceViewOptions::kMinGain; });
  mWidget.setCurrentTrace(11);
  const QColor good = colors().pick;
  const QColor doubtful = colors().doubtful;
  const int bare = columnOf(3, 0.05, 0.11, good).length();
  EXPECT_LE(bare, 6) << "the pick itself";

  // So near that 2 ms can be seen.
  mWidget.setWindow({1.0, 6.0, 0.07, 0.09});
  setError(3, 0.002);
  setError(4, 0.004);
  mWidget.documentChanged();
  const Column sure = columnOf(3, 0.0725, 0.0875, good);
  EXPECT_NEAR(sure.length(), heightOf(0.004), 3);
  EXPECT_GE(sure.count, sure.length() - 3) << "drawn through";
  EXPECT_EQ(columnOf(3, 0.0725, 0.0875, doubtful).count, 0);
  const Column unsure = columnOf(4, 0.0725, 0.0875, doubtful);
  EXPECT_NEAR(unsure.length(), heightOf(0.008), 6);
  EXPECT_LT(unsure.count, 0.8 * unsure.length()) << "dashed";
  EXPECT_EQ(columnOf(2, 0.0725, 0.0785, good).count, 0) << "no error is known there";

  mUser.change([](TraceViewOptions& options) { options.errorBars = false; });
  EXPECT_LE(columnOf(3, 0.0725, 0.0875, good).length(), 6);
  EXPECT_EQ(columnOf(4, 0.0725, 0.0875, doubtful).count, 0);
}

TEST_F(PickErrors, beyondAllBoundsAreDrawnWithinTheView) {
  setError(3, kLargestPickError);
  mWidget.setWindow({1.0, 6.0, 0.0795, 0.0805});
  const Column bar = columnOf(3, 0.0796, 0.0804, colors().doubtful);
  EXPECT_GT(bar.count, 10);
}

TEST_F(PickErrors, areToldOfTheTraceUnderTheCursor) {
  setError(5, 0.0015);
  QSignalSpy told(&mWidget, &editTravelTimesWidget::cursorMoved);
  mUser.move(mUser.at(5, 0.06), Qt::NoButton);
  ASSERT_EQ(told.count(), 1);
  const auto cursor = told.last().first().value<TraceCursor>();
  ASSERT_TRUE(cursor.pickError.has_value());
  EXPECT_DOUBLE_EQ(*cursor.pickError, 0.0015);
  EXPECT_EQ(mWidget.accessibleDescription().toStdString(), "Trace 6, picked at 80.00 ms");
  mWidget.setCurrentTrace(4);
  mWidget.setCurrentTrace(5);
  EXPECT_EQ(mWidget.accessibleDescription().toStdString(),
            "Trace 6, picked at 80.00 ms, error 1.50 ms");
  mUser.move(mUser.at(6, 0.06), Qt::NoButton);
  EXPECT_FALSE(told.last().first().value<TraceCursor>().pickError.has_value());
}

TEST_F(PickErrors, countAsGoodUpToTheLimit) {
  TravelTime record = mUser.session.document().ttArray[0];
  record.setError(2, 0.0005);
  record.setError(3, 2.5 / 1e3);
  record.setError(4, 0.00251);
  record.ttMisurati.edit()[8] = kNoTime;
  const PickGrades grades = gradesOf(record);
  EXPECT_EQ(grades.good, 2U);
  EXPECT_EQ(grades.doubtful, 1U);
  EXPECT_EQ(grades.unknown, 3U);
}

}  // namespace
}  // namespace talvesk
