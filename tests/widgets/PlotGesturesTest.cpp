#include "TestShots.h"
#include "widgets/LayerCurvesPlot.h"
#include "widgets/LinePlan.h"
#include "widgets/MisfitPlot.h"
#include "widgets/PointPlot.h"
#include "widgets/RefractionProfilePlot.h"
#include "widgets/SeriesPlot.h"
#include "widgets/SpectrumPlot.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/draw1DVelocityProfile.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <cmath>
#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

// The same hands on every plot: what a gesture does to the view is the same in all of them.

namespace talvesk {

void PrintTo(const ViewWindow& window, std::ostream* out) {
  *out << window.left << " to " << window.right << ", " << window.top << " to " << window.bottom;
}

namespace {

using Keys = Qt::KeyboardModifiers;

/// A plot as all of them can be asked.
struct Plot {
  TomoDocument survey;  ///< that it may show
  std::unique_ptr<QWidget> widget;
  QWidget* canvas = nullptr;
  std::function<ViewWindow()> window;
  QRect area;          ///< on the canvas
  bool upward = true;  ///< the vertical axis
};

struct PlotKind {
  const char* name;
  void (*make)(Plot&);
  Qt::KeyboardModifier band;  ///< that a left drag needs to zoom where the plot's tool edits
  bool arrowsPan;
};

template <typename Page>
Page& makePage(Plot& plot) {
  auto page = std::make_unique<Page>();
  Page& made = *page;
  plot.canvas = made.canvas();
  plot.window = [&made] { return made.window(); };
  plot.widget = std::move(page);
  return made;
}

void makeTraces(Plot& plot) {
  auto traces = std::make_unique<editTravelTimesWidget>();
  TraceViewOptions options;
  options.showAllTraces = true;
  traces->setOptions(options);
  traces->setDocument(&plot.survey);
  traces->setShot(0);
  plot.canvas = traces.get();
  plot.window = [view = traces.get()] { return view->window(); };
  plot.upward = false;
  plot.widget = std::move(traces);
}

void makeTracesToLookAt(Plot& plot) {
  makeTraces(plot);
  static_cast<editTravelTimesWidget&>(*plot.widget).setTool(TraceTool::Zoom);
}

void makeCurves(Plot& plot) {
  auto& curves = makePage<TravelTimePlot>(plot);
  curves.setDocument(&plot.survey);
  curves.setEditor([](int, int, double) { FAIL() << "no gesture of the view edits"; });
}

void makePlan(Plot& plot) {
  LinePlanScene scene;
  scene.strings = {{{0.0, 0.0}, {50.0, 2.0}, {100.0, 8.0}}};
  makePage<LinePlan>(plot).setScene(scene);
}

void makeLayers(Plot& plot) {
  ShotArrivals shot;
  for (int i = 0; i < 12; ++i) {
    shot.receivers.push_back({5.0 * i, 0.0});
    shot.times.push_back(0.001 * (i + 1));
  }
  makePage<LayerCurvesPlot>(plot).setSurvey({shot});
}

void makeSeries(Plot& plot) {
  makePage<SeriesPlot>(plot).setSeries({{"tV", {{0.0, 1.0}, {10.0, 5.0}}, Qt::black}});
}

void makePoints(Plot& plot) {
  auto& points = makePage<PointPlot>(plot);
  points.setSeries({{"Picks", {{0.0, 1.0}, {10.0, 5.0}}, Qt::black}});
  points.setPoints({{0.0, 1.0}, {10.0, 5.0}});
}

void makeProfile(Plot& plot) {
  RefractionScene scene;
  scene.surface = {{0.0, 0.0}, {100.0, 4.0}};
  ProfileBoundary boundary;
  boundary.refractor = 2;
  boundary.lines = {{{0.0, -10.0}, {100.0, -8.0}}};
  scene.boundaries = {boundary};
  scene.velocities = {2000.0, 0.0};
  scene.velocityErrors = {0.0, 0.0};
  makePage<RefractionProfilePlot>(plot).setScene(scene);
}

void makeSpectrum(Plot& plot) {
  makePage<SpectrumPlot>(plot).setCurve({0.0, 20.0, 40.0, 60.0}, {1.0, 5.0, 3.0, 0.5});
}

void makeMisfit(Plot& plot) {
  auto& misfit = makePage<MisfitPlot>(plot);
  misfit.setTotal(8);
  misfit.addMisfit(0.004, 0.003);
}

void makeVelocities(Plot& plot) {
  auto& velocities = makePage<draw1DVelocityProfile>(plot);
  velocities.setGridDepth(30.0);
  plot.upward = false;
}

class Gestures : public ::testing::TestWithParam<PlotKind> {
 protected:
  Gestures() {
    mPlot.survey = testing::testShots(12, 400, {-1.0});
    auto& times = mPlot.survey.ttArray.edit()[0].ttMisurati.edit();
    for (int i = 0; i < 12; ++i) {
      times[static_cast<std::size_t>(i)] = testing::arrival(i, -1.0);
    }
    GetParam().make(mPlot);
    mPlot.widget->resize(700, 500);
    mPlot.widget->show();
    mPlot.widget->setFocus();
    QApplication::processEvents();
    // Clear of the axes of a plot that draws them on its canvas itself.
    mPlot.area = mPlot.canvas->contentsRect().adjusted(90, 70, -40, -60);
    mWhole = window();
  }

  ViewWindow window() const { return mPlot.window(); }
  QPoint middle() const { return mPlot.area.center(); }

  void mouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Keys keys) {
    const bool moving = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, mPlot.canvas->mapToGlobal(at), moving ? Qt::NoButton : button, held,
                      keys);
    QApplication::sendEvent(mPlot.canvas, &event);
  }
  void startDrag(const QPoint& from, const QPoint& to, Qt::MouseButton button,
                 Keys keys = Qt::NoModifier) {
    mouse(QEvent::MouseButtonPress, from, button, keys);
    for (int i = 1; i <= 5; ++i) {
      mouse(QEvent::MouseMove, from + (to - from) * i / 5, button, keys);
    }
  }
  void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button,
            Keys keys = Qt::NoModifier) {
    startDrag(from, to, button, keys);
    mouse(QEvent::MouseButtonRelease, to, button, keys);
  }
  void wheel(const QPoint& turned, Keys keys = Qt::NoModifier) {
    QWheelEvent event(middle(), mPlot.canvas->mapToGlobal(middle()), {}, turned, Qt::NoButton, keys,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(mPlot.canvas, &event);
  }
  void key(Qt::Key code, Keys keys = Qt::NoModifier) {
    QTest::keyClick(mPlot.widget.get(), code, keys);
  }
  /// By parts of the whole, to the right and downward on the screen, from one window to another.
  QPointF moved(const ViewWindow& from, const ViewWindow& to) const {
    return {(to.left - from.left) / mWhole.width(),
            (mPlot.upward ? -1.0 : 1.0) * (to.top - from.top) / mWhole.height()};
  }
  void zoomIn() {
    for (int i = 0; i < 4; ++i) wheel({0, 120});
  }

  Plot mPlot;
  ViewWindow mWhole;
};

TEST_P(Gestures, wheelZoomsByTheSameAmountAndModifiersChooseTheAxis) {
  const struct {
    Keys keys;
    bool width, height;
  } rows[] = {{Qt::NoModifier, true, true},
              {Qt::ControlModifier, false, true},
              {Qt::ShiftModifier, true, false}};
  for (const auto& row : rows) {
    key(Qt::Key_F);
    const ViewWindow before = window();
    wheel({0, 240}, row.keys);
    const double by = 1.25 * 1.25;
    EXPECT_NEAR(window().width(), before.width() / (row.width ? by : 1.0), 0.01 * before.width());
    EXPECT_NEAR(window().height(), before.height() / (row.height ? by : 1.0),
                0.01 * before.height());
  }
}

TEST_P(Gestures, aWheelTurnedSidewaysPansAndWithAKeyZooms) {
  zoomIn();
  const ViewWindow before = window();
  wheel({-240, 0});
  EXPECT_NEAR(moved(before, window()).x(), 0.2 * before.width() / mWhole.width(), 0.01);
  EXPECT_NEAR(moved(before, window()).y(), 0.0, 1e-9);
  wheel({120, 0}, Qt::ShiftModifier);
  EXPECT_LT(window().width(), 0.9 * before.width());
}

TEST_P(Gestures, middleDragAndSpaceWithLeftDragPan) {
  zoomIn();
  for (const bool space : {false, true}) {
    const ViewWindow before = window();
    if (space) QTest::keyPress(mPlot.widget.get(), Qt::Key_Space);
    drag(middle(), middle() + QPoint(-40, 30), space ? Qt::LeftButton : Qt::MiddleButton);
    if (space) QTest::keyRelease(mPlot.widget.get(), Qt::Key_Space);
    EXPECT_GT(moved(before, window()).x(), 0.01) << space;
    EXPECT_LT(moved(before, window()).y(), -0.01) << space;
    EXPECT_NEAR(window().width(), before.width(), 1e-9 * mWhole.width());
    key(Qt::Key_Backspace);
    EXPECT_NEAR(moved(before, window()).manhattanLength(), 0.0, 0.01) << "one step back " << space;
  }
}

TEST_P(Gestures, leftDragZoomsToARectangleAndAFlatOneAlongOneAxis) {
  const QRect area = mPlot.area;
  const ViewWindow before = window();
  drag(area.topLeft(), middle(), Qt::LeftButton, GetParam().band);
  const ViewWindow zoomed = window();
  EXPECT_LT(zoomed.width(), 0.5 * before.width());
  EXPECT_LT(zoomed.height(), 0.5 * before.height());
  EXPECT_EQ(zoomed.top > before.top + 0.4 * before.height(), mPlot.upward) << "the upper half";
  drag(middle(), middle() + QPoint(100, 2), Qt::LeftButton, Qt::ControlModifier);
  EXPECT_LT(window().width(), 0.4 * zoomed.width());
  EXPECT_NEAR(window().height(), zoomed.height(), 0.01 * zoomed.height());
}

TEST_P(Gestures, escapeOrAnotherButtonGivesUpADrag) {
  zoomIn();
  const ViewWindow before = window();
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
    startDrag(middle(), middle() + QPoint(60, 40), button, GetParam().band);
    key(Qt::Key_Escape);
    mouse(QEvent::MouseButtonRelease, middle() + QPoint(60, 40), button, GetParam().band);
    EXPECT_EQ(window(), before) << "Escape";
    startDrag(middle(), middle() + QPoint(60, 40), button, GetParam().band);
    mouse(QEvent::MouseButtonPress, middle(), Qt::RightButton, Qt::NoModifier);
    mouse(QEvent::MouseButtonRelease, middle() + QPoint(60, 40), button, GetParam().band);
    EXPECT_EQ(window(), before) << "the right button";
  }
  key(Qt::Key_Backspace);
  EXPECT_NE(window(), before) << "what was given up is not in the history";
}

TEST_P(Gestures, fHomeAndDoubleClickShowEverything) {
  for (const Qt::Key code : {Qt::Key_F, Qt::Key_H}) {
    zoomIn();
    EXPECT_NE(window(), mWhole);
    key(code);
    EXPECT_NEAR(window().width(), mWhole.width(), 0.01 * mWhole.width()) << code;
  }
  if (GetParam().make == makeTraces) return;  // there the clicks pick
  zoomIn();
  mouse(QEvent::MouseButtonPress, middle(), Qt::LeftButton, Qt::NoModifier);
  mouse(QEvent::MouseButtonRelease, middle(), Qt::LeftButton, Qt::NoModifier);
  mouse(QEvent::MouseButtonDblClick, middle(), Qt::LeftButton, Qt::NoModifier);
  mouse(QEvent::MouseButtonRelease, middle(), Qt::LeftButton, Qt::NoModifier);
  EXPECT_NEAR(window().width(), mWhole.width(), 0.01 * mWhole.width());
}

TEST_P(Gestures, historyGoesBackAndForthByKeysAndSideButtons) {
  key(Qt::Key_Plus);
  const ViewWindow zoomed = window();
  EXPECT_NEAR(zoomed.width(), mWhole.width() / 1.5, 0.02 * mWhole.width());
  for (const bool byMouse : {false, true}) {
    byMouse ? mouse(QEvent::MouseButtonPress, middle(), Qt::BackButton, Qt::NoModifier)
            : key(Qt::Key_Backspace);
    EXPECT_NEAR(window().width(), mWhole.width(), 0.01 * mWhole.width()) << byMouse;
    byMouse ? mouse(QEvent::MouseButtonPress, middle(), Qt::ForwardButton, Qt::NoModifier)
            : key(Qt::Key_Backspace, Qt::ShiftModifier);
    EXPECT_NEAR(window().width(), zoomed.width(), 0.01 * mWhole.width()) << byMouse;
  }
  key(Qt::Key_Minus);
  EXPECT_NEAR(window().width(), mWhole.width(), 0.01 * mWhole.width());
}

TEST_P(Gestures, keysZoomAboutTheCursor) {
  const QPoint corner = mPlot.area.topLeft();
  mouse(QEvent::MouseMove, corner, Qt::NoButton, Qt::NoModifier);
  for (int i = 0; i < 4; ++i) key(Qt::Key_Plus);
  const ViewWindow left = window();
  EXPECT_LT(left.left - mWhole.left, mWhole.right - left.right) << "the cursor is at the left";
  EXPECT_EQ(left.top - mWhole.top > mWhole.bottom - left.bottom, mPlot.upward);
}

TEST_P(Gestures, arrowsPanWhereTheyAreFree) {
  zoomIn();
  if (!GetParam().arrowsPan) return;
  const struct {
    Qt::Key key;
    QPointF way;
  } rows[] = {{Qt::Key_Left, {-1, 0}},
              {Qt::Key_Right, {1, 0}},
              {Qt::Key_Up, {0, -1}},
              {Qt::Key_Down, {0, 1}}};
  for (const auto& row : rows) {
    const ViewWindow before = window();
    key(row.key);
    const QPointF by = moved(before, window());
    const double step = 0.1 * before.width() / mWhole.width();
    EXPECT_NEAR(by.x(), step * row.way.x(), 0.01) << row.key;
    EXPECT_NEAR(by.y(), step * row.way.y(), 0.01) << row.key;
  }
}

TEST_P(Gestures, nothingGoesBeyondTheWhole) {
  for (int i = 0; i < 200; ++i) wheel({0, 120});
  EXPECT_GT(window().width(), 0.0);
  EXPECT_GT(window().height(), 0.0);
  for (int i = 0; i < 200; ++i) wheel({0, -120});
  EXPECT_NEAR(window().width(), mWhole.width(), 0.02 * mWhole.width());
  drag(middle(), middle() + QPoint(150, 150), Qt::MiddleButton);
  EXPECT_NEAR(moved(mWhole, window()).manhattanLength(), 0.0, 0.02);
}

const PlotKind kKinds[] = {{"traces", makeTraces, Qt::ControlModifier, false},
                           {"tracesToLookAt", makeTracesToLookAt, Qt::NoModifier, false},
                           {"curves", makeCurves, Qt::NoModifier, true},
                           {"plan", makePlan, Qt::NoModifier, true},
                           {"layers", makeLayers, Qt::ControlModifier, false},
                           {"series", makeSeries, Qt::NoModifier, true},
                           {"points", makePoints, Qt::NoModifier, true},
                           {"profile", makeProfile, Qt::NoModifier, true},
                           {"spectrum", makeSpectrum, Qt::NoModifier, true},
                           {"misfit", makeMisfit, Qt::NoModifier, true},
                           {"velocities", makeVelocities, Qt::NoModifier, true}};

INSTANTIATE_TEST_SUITE_P(Plots, Gestures, ::testing::ValuesIn(kKinds),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace talvesk
