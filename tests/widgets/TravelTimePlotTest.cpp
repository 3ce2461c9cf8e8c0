#include "TestShots.h"
#include "io/Survey.h"
#include "session/Session.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/TraceMapping.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::arrival;
using testing::testShots;

/// Shots at both ends of twelve geophones, every first break picked, in a plot whose edits the
/// trace view makes.
class TravelTimes : public ::testing::Test {
 protected:
  TravelTimes() {
    Survey survey;
    survey.document = testShots(12, 400, {-1.0, 23.0});
    session.open(std::move(survey), true);
    for (TravelTime& record : document.ttArray.edit()) {
      for (int i = 0; i < 12; ++i) {
        record.ttMisurati.edit()[static_cast<std::size_t>(i)] = arrival(i, record.shotPos2d.x);
      }
    }
    traces.setSession(session);
    traces.setShot(0);
    plot.resize(700, 500);
    plot.setDocument(&document);
    plot.setCurrentShot(0);
    plot.setEditor(
        [this](int shot, int trace, double time) { traces.editPick(shot, trace, time); });
    plot.show();
    QApplication::processEvents();
  }

  static TomoDocument& writable(Session& session) {
    TomoDocument* written = nullptr;
    session.amend([&written](Survey& survey) { written = &survey.document; });
    return *written;
  }
  double& time(int shot, int trace) {
    return document.ttArray.edit()[static_cast<std::size_t>(shot)]
        .ttMisurati.edit()[static_cast<std::size_t>(trace)];
  }
  QPoint at(int shot, int trace) { return plot.pointOf(shot, trace).value().toPoint(); }
  double secondsPerPixel() const {
    return 1e-3 * plot.window().height() / plot.canvas()->contentsRect().height();
  }

  void mouse(QEvent::Type type, const QPoint& point, Qt::MouseButton button,
             Qt::KeyboardModifiers keys) {
    const bool moving = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, point, plot.canvas()->mapToGlobal(point),
                      moving ? Qt::NoButton : button, held, keys);
    QApplication::sendEvent(plot.canvas(), &event);
  }
  void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button = Qt::LeftButton,
            Qt::KeyboardModifiers keys = Qt::NoModifier) {
    mouse(QEvent::MouseButtonPress, from, button, keys);
    for (int i = 1; i <= 10; ++i) {
      mouse(QEvent::MouseMove, from + (to - from) * i / 10, button, keys);
    }
    mouse(QEvent::MouseButtonRelease, to, button, keys);
  }
  void click(const QPoint& point) { drag(point, point); }
  void wheel(const QPoint& point, int notches, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QWheelEvent event(point, plot.canvas()->mapToGlobal(point), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, keys, Qt::NoScrollPhase, false);
    QApplication::sendEvent(plot.canvas(), &event);
  }
  /// The strongest difference from the ground around a pick, by lightness.
  int contrastAt(int shot, int trace) {
    const QImage image = plot.canvas()->grab().toImage();
    const int ground = plot.palette().color(QPalette::Base).lightness();
    int strongest = 0;
    for (int dx = -1; dx <= 1; ++dx) {
      for (int dy = -1; dy <= 1; ++dy) {
        const QColor color = image.pixelColor(at(shot, trace) + QPoint(dx, dy));
        strongest = std::max(strongest, std::abs(color.lightness() - ground));
      }
    }
    return strongest;
  }

  Session session;
  TomoDocument& document = writable(session);
  editTravelTimesWidget traces;
  TravelTimePlot plot;
};

TEST_F(TravelTimes, choosesTheShotOfTheCurveThatIsClicked) {
  QSignalSpy chosen(&plot, &TravelTimePlot::shotChosen);
  click(at(1, 9));
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 1);
  EXPECT_EQ(plot.currentShot(), 1);
  click((at(0, 2) + at(0, 3)) / 2);
  EXPECT_EQ(plot.currentShot(), 0) << "the line between picks belongs to the curve";
  click(at(0, 5) + QPoint(0, -60));
  click(at(0, 2));
  EXPECT_EQ(chosen.count(), 2) << "nothing new under the mouse";
  EXPECT_EQ(session.steps(), 0U);
}

TEST_F(TravelTimes, dragsAPickToAnotherTimeAndBackByUndo) {
  QSignalSpy edited(&plot, &TravelTimePlot::pickEdited);
  const double before = time(0, 3);
  drag(at(0, 3), at(0, 3) + QPoint(9, -80));
  EXPECT_NEAR(time(0, 3), before + 80 * secondsPerPixel(), secondsPerPixel());
  ASSERT_EQ(edited.count(), 1);
  EXPECT_EQ(edited[0][1].toInt(), 3);
  session.undo();
  EXPECT_EQ(time(0, 3), before);
  const QPoint stale = at(0, 3);
  plot.refresh();
  EXPECT_LT(stale.y() + 70, at(0, 3).y()) << "the plot follows when it is told";
}

TEST_F(TravelTimes, dragOfAnotherShotsPickMakesThatShotCurrent) {
  QSignalSpy chosen(&plot, &TravelTimePlot::shotChosen);
  const double before = time(1, 10);
  drag(at(1, 10), at(1, 10) + QPoint(0, -40));
  EXPECT_EQ(plot.currentShot(), 1);
  EXPECT_EQ(chosen.count(), 1);
  EXPECT_GT(time(1, 10), before);
}

TEST_F(TravelTimes, takesThePickOfTheCurrentShotWhereCurvesCross) {
  time(0, 6) = time(1, 6) = 0.018;
  plot.refresh();
  for (const int shot : {1, 0}) {
    plot.setCurrentShot(shot);
    drag(at(shot, 6), at(shot, 6) + QPoint(0, -30));
    EXPECT_NE(time(shot, 6), 0.018) << shot;
  }
  EXPECT_EQ(session.steps(), 2U);
}

TEST_F(TravelTimes, keepsADraggedPickWithinItsRecord) {
  drag(at(0, 3), at(0, 3) + QPoint(0, 2000));
  EXPECT_TRUE(hasPick(time(0, 3)));
  EXPECT_LT(time(0, 3), 1e-5);
  mouse(QEvent::MouseButtonPress, at(0, 4), Qt::LeftButton, Qt::NoModifier);
  mouse(QEvent::MouseButtonRelease, at(0, 4) - QPoint(0, 20000), Qt::LeftButton, Qt::NoModifier);
  EXPECT_DOUBLE_EQ(time(0, 4), 399 * testing::kInterval) << "its last sample, as in the traces";
}

TEST_F(TravelTimes, escapeGivesUpADragAndNoEditorMeansNoEdits) {
  const double before = time(0, 3);
  mouse(QEvent::MouseButtonPress, at(0, 3), Qt::LeftButton, Qt::NoModifier);
  mouse(QEvent::MouseMove, at(0, 3) + QPoint(0, -50), Qt::LeftButton, Qt::NoModifier);
  QTest::keyClick(&plot, Qt::Key_Escape);
  mouse(QEvent::MouseButtonRelease, at(0, 3) + QPoint(0, -50), Qt::LeftButton, Qt::NoModifier);
  EXPECT_EQ(time(0, 3), before);
  plot.setEditor({});
  drag(at(0, 3), at(0, 3) + QPoint(40, -50));
  EXPECT_EQ(time(0, 3), before);
}

TEST_F(TravelTimes, wheelZoomsAtTheCursorAndWithKeysAlongOneAxis) {
  const ViewWindow whole = plot.window();
  const QPoint cursor = at(0, 8);
  wheel(cursor, 3);
  EXPECT_NEAR(plot.window().width(), whole.width() / std::pow(1.25, 3), 1e-9);
  EXPECT_NEAR(plot.window().height(), whole.height() / std::pow(1.25, 3), 1e-9);
  EXPECT_LE((at(0, 8) - cursor).manhattanLength(), 8) << "but for the axes' numbers";
  ViewWindow before = plot.window();
  wheel(cursor, 1, Qt::ControlModifier);
  EXPECT_EQ(plot.window().width(), before.width());
  EXPECT_LT(plot.window().height(), before.height());
  before = plot.window();
  wheel(cursor, 1, Qt::ShiftModifier);
  EXPECT_LT(plot.window().width(), before.width());
  EXPECT_EQ(plot.window().height(), before.height());
  wheel(cursor, -100);
  EXPECT_NEAR(plot.window().width(), whole.width(), 1.0) << "never beyond the whole";
}

TEST_F(TravelTimes, rubberBandZoomsAndHistoryGoesBack) {
  const ViewWindow whole = plot.window();
  const QPoint from(120, 60);
  const QPoint to(320, 160);
  const QRect canvas = plot.canvas()->contentsRect();
  drag(from, to);
  EXPECT_NEAR(plot.window().width(), whole.width() * 200 / canvas.width(), 0.02 * whole.width());
  EXPECT_NEAR(plot.window().height(), whole.height() * 100 / canvas.height(),
              0.02 * whole.height());
  EXPECT_GT(plot.window().top, 0.5 * whole.bottom) << "the upper part of the plot is late";
  const ViewWindow zoomed = plot.window();
  QTest::keyClick(&plot, Qt::Key_Backspace);
  EXPECT_NEAR(plot.window().width(), whole.width(), 0.02 * whole.width());
  QTest::keyClick(&plot, Qt::Key_Backspace, Qt::ShiftModifier);
  EXPECT_NEAR(plot.window().width(), zoomed.width(), 1e-9);
  drag(at(0, 3), at(0, 3) + QPoint(60, 60), Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(session.steps(), 0U) << "Ctrl zooms, also from a pick";
}

TEST_F(TravelTimes, pansAndFitsAndNewPicksLeaveAZoomedViewAlone) {
  const QPoint middle = plot.canvas()->contentsRect().center();
  wheel(middle, 5);
  const ViewWindow before = plot.window();
  drag(middle, middle + QPoint(50, 0), Qt::MiddleButton);
  EXPECT_LT(plot.window().left, before.left);
  EXPECT_NEAR(plot.window().top, before.top, 1e-9);
  const ViewWindow zoomed = plot.window();
  time(0, 2) = 0.030;
  plot.refresh();
  EXPECT_EQ(plot.window(), zoomed);
  QTest::keyClick(&plot, Qt::Key_F);
  time(0, 2) = 0.150;
  plot.refresh();
  EXPECT_GT(plot.window().bottom, 150.0) << "a view that shows everything goes on doing so";
}

TEST_F(TravelTimes, pageKeysWalkThroughTheCurves) {
  plot.setCurrentShot(-1);
  for (const int shot : {0, 1, 1}) {
    QTest::keyClick(&plot, Qt::Key_PageDown);
    EXPECT_EQ(plot.currentShot(), shot);
  }
  QTest::keyClick(&plot, Qt::Key_PageUp);
  EXPECT_EQ(plot.currentShot(), 0);
}

TEST_F(TravelTimes, saysWhatToDoWhileThereAreNoTimes) {
  document.ttArray.edit()[0].ttMisurati.edit().assign(12, kUnpicked);
  document.ttArray.edit()[1].ttMisurati.edit().assign(12, kNoTime);
  plot.refresh();
  EXPECT_TRUE(plot.isEmpty());
  EXPECT_FALSE(plot.canvas()->isVisible());
  time(1, 4) = 0.02;
  plot.refresh();
  EXPECT_TRUE(plot.canvas()->isVisible());
  EXPECT_TRUE(plot.pointOf(1, 4).has_value());
  plot.setDocument(nullptr);
  EXPECT_TRUE(plot.isEmpty());
  EXPECT_EQ(plot.currentShot(), -1);
}

TEST_F(TravelTimes, hiddenPicksCannotBeDraggedAndComputedTimesNeedSome) {
  auto* computed = plot.findChild<QCheckBox*>(QStringLiteral("computedBox"));
  auto* measured = plot.findChild<QCheckBox*>(QStringLiteral("measuredBox"));
  EXPECT_FALSE(computed->isEnabled());
  document.ttArray.edit()[0].ttCalcolati.edit().assign(12, 0.015);
  plot.refresh();
  EXPECT_TRUE(computed->isEnabled());
  const QPoint pick = at(0, 3);
  measured->setChecked(false);
  drag(pick, pick + QPoint(30, -50));
  EXPECT_EQ(session.steps(), 0U);
  EXPECT_TRUE(plot.showsComputed());
}

TEST_F(TravelTimes, standBarsOverPicksWhoseErrorIsKnown) {
  const QPoint above = at(0, 6) - QPoint(0, static_cast<int>(0.003 / secondsPerPixel()));
  const auto marked = [&] {
    const QImage image = plot.canvas()->grab().toImage();
    return image.pixelColor(above) != plot.palette().color(QPalette::Base) ||
           image.pixelColor(above - QPoint(1, 0)) != plot.palette().color(QPalette::Base);
  };
  const auto* label = plot.findChild<QLabel*>("currentLabel");
  ASSERT_FALSE(marked());
  EXPECT_EQ(label->text().toStdString(), "Shot 1 at -1.0 m");
  document.ttArray.edit()[0].setError(6, 0.004);
  document.ttArray.edit()[0].setError(7, 0.001);
  plot.refresh();
  EXPECT_TRUE(marked());
  EXPECT_EQ(label->text().toStdString(),
            "Shot 1 at -1.0 m: 1 good, 1 doubtful, 10 of unknown error");
  plot.setErrorBars(false);
  EXPECT_FALSE(marked());
}

TEST_F(TravelTimes, previewFadesTheOtherShotsOnLightAndDarkGround) {
  plot.setRole(TravelTimePlot::Role::CurrentShot);
  for (const bool dark : {false, true}) {
    QPalette palette = plot.palette();
    palette.setColor(QPalette::Base, dark ? QColor(30, 30, 30) : QColor(Qt::white));
    palette.setColor(QPalette::Text, dark ? QColor(Qt::white) : QColor(Qt::black));
    plot.setPalette(palette);
    plot.canvas()->setPalette(palette);
    for (const int current : {0, 1}) {
      plot.setCurrentShot(current);
      EXPECT_GT(contrastAt(current, 2), 80) << dark;
      EXPECT_LT(contrastAt(1 - current, 8), contrastAt(current, 8) * 2 / 3 + 20) << dark;
      EXPECT_GT(contrastAt(1 - current, 8), 15) << "faint, but there " << dark;
    }
  }
}

}  // namespace
}  // namespace talvesk
