#include "WidgetDriver.h"
#include "base/Message.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "session/TraceMends.h"

#include <QContextMenuEvent>
#include <QSignalSpy>
#include <vector>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TraceMends : public ::testing::Test {
 protected:
  QPoint numberOf(int trace) const { return {mUser.at(trace, 0.1).x(), 8}; }
  const TraceMend& mend(std::size_t trace) const {
    return mendOf(mendsOfRecord(mUser.session.document(), 0), trace);
  }
  const Samples& samples(std::size_t trace) const {
    return mUser.session.document().recordings->traceSets[0][trace].samples;
  }
  /// Pixels of another colour than the background in the lane of a trace.
  int ink(int trace) {
    const QImage picture = mWidget.grab().toImage();
    const int half = (mUser.at(1, 0.1).x() - mUser.at(0, 0.1).x()) / 2;
    const QRgb background = mWidget.palette().color(QPalette::Base).rgb();
    int count = 0;
    for (int y = mUser.at(trace, 0.02).y(); y < mUser.at(trace, 0.18).y(); ++y) {
      for (int x = -half; x < half; ++x) {
        count += picture.pixel(mUser.at(trace, 0.1).x() + x, y) == background ? 0 : 1;
      }
    }
    return count;
  }

  testing::WidgetDriver mUser{testing::testShots(12, 400, {-1.0, 25.0})};
  editTravelTimesWidget& mWidget = mUser.widget;
};

TEST_F(TraceMends, numbersAreSelectedWithShiftAndCtrl) {
  mUser.click(numberOf(3));
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(3));
  mUser.click(numberOf(6), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(3, 4, 5, 6));
  mUser.click(numberOf(4), Qt::LeftButton, Qt::ControlModifier);
  mUser.dragTo(numberOf(9), numberOf(10), Qt::LeftButton, Qt::ControlModifier);
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(3, 5, 6, 9, 10));
  EXPECT_EQ(mWidget.currentTrace(), 9);
  mUser.click(numberOf(2), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(2, 3, 4, 5, 6, 7, 8, 9));
  mUser.click(numberOf(11));
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(11));
  mUser.key(Qt::Key_Escape);
  EXPECT_THAT(mWidget.selectedTraces(), IsEmpty());
}

TEST_F(TraceMends, ofKeysAreStepsOfTheSelectedTracesOnly) {
  const std::vector<double> before(samples(5).begin(), samples(5).end());
  mUser.setPick(5, 0.05);
  mUser.forgetSteps();
  mUser.click(numberOf(2));
  mUser.click(numberOf(5), Qt::LeftButton, Qt::ControlModifier);
  std::vector<std::size_t> told;
  QObject::connect(&mWidget, &editTravelTimesWidget::mended,
                   [&told](const std::vector<Message>& notes) { told.push_back(notes.size()); });
  mUser.key(Qt::Key_P);
  EXPECT_EQ(samples(5)[200], -before[200]);
  mUser.key(Qt::Key_BraceRight, Qt::ShiftModifier);
  mUser.key(Qt::Key_BraceRight, Qt::ShiftModifier);
  mUser.key(Qt::Key_BraceLeft, Qt::ShiftModifier);
  EXPECT_EQ(samples(5)[200], -1.5 * before[200]);
  mUser.move(mUser.at(8, 0.06), Qt::NoButton);
  mUser.key(Qt::Key_U);
  EXPECT_NEAR(mend(2).mutedBefore, 0.06, mUser.pixel());
  mUser.key(Qt::Key_U, Qt::ShiftModifier);
  EXPECT_EQ(mend(2).mutedBefore, 0.0);
  mUser.key(Qt::Key_K);
  EXPECT_TRUE(mend(2).killed && mend(5).killed);
  EXPECT_FALSE(mend(3).any() || mend(4).any());
  EXPECT_FALSE(hasPick(mUser.pick(5)));
  EXPECT_THAT(told, ElementsAre(0, 0, 0, 0, 0, 0, 1)) << "a pick went aside";
  EXPECT_EQ(mUser.session.undoText().english(), "Kill traces");
  mUser.key(Qt::Key_K);
  EXPECT_EQ(mUser.pick(5), 0.05);
  while (mUser.session.canUndo()) mUser.session.undo();
  EXPECT_THAT(std::vector<double>(samples(5).begin(), samples(5).end()),
              ::testing::ContainerEq(before));
}

TEST_F(TraceMends, askForTheTimeWhereNoCursorTellsIt) {
  QSignalSpy asked(&mWidget, &editTravelTimesWidget::muteTimeWanted);
  mUser.key(Qt::Key_U);
  EXPECT_EQ(asked.count(), 1);
  EXPECT_FALSE(mUser.session.canUndo());
}

TEST_F(TraceMends, aGainShowsAlsoWhereEachTraceIsScaledByItself) {
  const int before = ink(4);
  const int other = ink(8);
  mUser.click(numberOf(4));
  for (int i = 0; i < 6; ++i) mWidget.attenuateTraces();
  mWidget.selectTraces(-1, -1);
  mWidget.setCurrentTrace(0);
  EXPECT_LT(ink(4), before * 3 / 4);
  EXPECT_EQ(ink(8), other);
}

TEST_F(TraceMends, theMenuOfTheNumbersIsOfTheTraceUnderIt) {
  QSignalSpy wanted(&mWidget, &editTravelTimesWidget::menuWanted);
  const auto ask = [this](const QPoint& at) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, mWidget.mapToGlobal(at));
    QApplication::sendEvent(&mWidget, &event);
  };
  mWidget.selectTraces(2, 4);
  ask(numberOf(3));
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(2, 3, 4)) << "it is one of them";
  ask(numberOf(7));
  EXPECT_THAT(mWidget.selectedTraces(), ElementsAre(7));
  EXPECT_EQ(wanted.count(), 2);
  ask(mUser.at(7, 0.1));
  EXPECT_EQ(wanted.count(), 2) << "there the right button removes picks";
}

TEST(NextGain, goesToAndFroOverTheSameNumbers) {
  double gain = 1.0;
  for (const double next : {1.5, 2.0, 3.0, 4.0}) EXPECT_EQ(gain = nextGain(gain, true), next);
  for (const double next : {3.0, 2.0, 1.5, 1.0, 0.75, 0.5}) {
    EXPECT_EQ(gain = nextGain(gain, false), next);
  }
  EXPECT_EQ(nextGain(1.2, true), 1.5);
  EXPECT_EQ(nextGain(1.2, false), 1.0);
  for (const bool larger : {true, false}) {
    for (int i = 0; i < 40; ++i) gain = nextGain(gain, larger);
    EXPECT_GE(gain, TraceMend::kLeastGain);
    EXPECT_LE(gain, TraceMend::kMostGain);
  }
}

}  // namespace
}  // namespace talvesk
