#include "widgets/LinePlan.h"

#include "figures/ShownLength.h"
#include "widgets/PlotGestures_tools.h"
#include "widgets/traces/TraceColors.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainterPath>
#include <QPolygonF>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <limits>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_symbol.h>

namespace talvesk {
namespace {

constexpr double kReach = 14.0;       ///< pixels around a click
constexpr double kPadding = 12.0;     ///< pixels around the line
constexpr double kLeastHeight = 2.0;  ///< metres of elevation shown for a level line
constexpr double kFarthest = 1e8;     ///< what lies beyond would squeeze all the rest, metres

bool canDraw(const Point2D& point) {
  return std::fabs(point.x) <= kFarthest && std::fabs(point.z) <= kFarthest;
}

QPolygonF drawable(const std::vector<Point2D>& points) {
  QPolygonF polygon;
  for (const Point2D& point : points) {
    if (canDraw(point)) polygon << QPointF(point.x, point.z);
  }
  return polygon;
}

QPainterPath starPath() {
  constexpr double kPi = 3.14159265358979323846;
  QPainterPath path;
  for (int i = 0; i < 10; ++i) {
    const double radius = i % 2 == 0 ? 7.0 : 3.0;
    const double angle = kPi * i / 5.0 - kPi / 2.0;
    const QPointF corner(radius * std::cos(angle), radius * std::sin(angle));
    i == 0 ? path.moveTo(corner) : path.lineTo(corner);
  }
  path.closeSubpath();
  return path;
}

QwtPlotCurve* addCurve(QwtPlot& plot, const QString& title, const QPolygonF& points,
                       QwtSymbol* symbol, const QPen& line) {
  auto* curve = new QwtPlotCurve(title);
  curve->setRenderHint(QwtPlotItem::RenderAntialiased);
  curve->setSamples(points);
  curve->setSymbol(symbol);
  if (line.style() == Qt::NoPen) curve->setStyle(QwtPlotCurve::NoCurve);
  curve->setPen(line);
  curve->setLegendAttribute(QwtPlotCurve::LegendShowSymbol);
  curve->setItemAttribute(QwtPlotItem::Legend, !title.isEmpty());
  curve->attach(&plot);
  return curve;
}

QColor faded(const QColor& color, const QColor& background) {
  return {(color.red() + 2 * background.red()) / 3, (color.green() + 2 * background.green()) / 3,
          (color.blue() + 2 * background.blue()) / 3};
}

}  // namespace

LinePlan::LinePlan(QWidget* parent)
    : PlotPage(parent),
      mChoose(std::make_unique<BandTool>(gestures(), [this](const QPointF& at) { click(at); })) {
  setPadding(kPadding);
  auto* legend = new QwtLegend;
  legend->setFrameStyle(QFrame::NoFrame);
  plot().insertLegend(legend, QwtPlot::BottomLegend);
  retranslate();
}

LinePlan::~LinePlan() = default;

void LinePlan::setScene(LinePlanScene scene) {
  mScene = std::move(scene);
  draw();
}

QPointF LinePlan::pointOf(const Point2D& place) const {
  return toCanvas({place.x, place.z});
}

QSize LinePlan::sizeHint() const {
  return {520, 320};
}

QSize LinePlan::minimumSizeHint() const {
  return {220, 150};
}

void LinePlan::draw() {
  plot().detachItems(QwtPlotItem::Rtti_PlotCurve);
  const TraceColors colors = traceColors(palette(), true);
  if (const QPolygonF axis = drawable(mScene.axis); axis.size() > 1) {
    addCurve(plot(), tr("Line"), axis, nullptr, QPen(colors.text, 1.2, Qt::DashLine))
        ->setLegendAttribute(QwtPlotCurve::LegendShowLine);
  }
  bool named = false;
  const auto addString = [&](std::size_t s) {
    const bool current = static_cast<int>(s) == mScene.currentString;
    const QPolygonF points = drawable(mScene.strings[s]);
    if (points.isEmpty()) return;
    const QColor color = current ? colors.positive : faded(colors.positive, colors.background);
    auto* triangle = new QwtSymbol(QwtSymbol::DTriangle, QBrush(color),
                                   QPen(current ? colors.text : color, 0.8), QSize(9, 9));
    const bool ofStrings = mAxes == LinePlanAxes::kElevation;
    const QString title = !ofStrings ? tr("Geophones")
                          : current  ? tr("Geophones of string %1").arg(s + 1)
                          : named    ? QString()
                                     : tr("Other strings");
    named = named || !current;
    addCurve(plot(), title, points, triangle,
             ofStrings ? QPen(color, current ? 1.4 : 1.0) : QPen(Qt::NoPen));
  };
  for (std::size_t s = 0; s < mScene.strings.size(); ++s) {
    if (static_cast<int>(s) != mScene.currentString) addString(s);
  }
  if (mScene.currentString >= 0 &&
      static_cast<std::size_t>(mScene.currentString) < mScene.strings.size()) {
    addString(static_cast<std::size_t>(mScene.currentString));
  }
  if (const QPolygonF shots = drawable(mScene.shots); !shots.isEmpty()) {
    auto* star = new QwtSymbol(starPath(), QBrush(colors.negative), QPen(colors.text, 0.8));
    addCurve(plot(), tr("Shots"), shots, star, Qt::NoPen);
  }
  if (const QPolygonF mistakes = drawable(mScene.mistakes); !mistakes.isEmpty()) {
    auto* ring =
        new QwtSymbol(QwtSymbol::Ellipse, Qt::NoBrush, QPen(colors.pick, 2.0), QSize(17, 17));
    addCurve(plot(), tr("To be looked at"), mistakes, ring, Qt::NoPen);
  }
  if (mScene.current && canDraw(*mScene.current)) {
    auto* frameSymbol =
        new QwtSymbol(QwtSymbol::Rect, Qt::NoBrush, QPen(colors.focus, 2.0), QSize(15, 15));
    addCurve(plot(), QString(), drawable({*mScene.current}), frameSymbol, Qt::NoPen);
  }
  setWhole(content(), false);
}

QRectF LinePlan::content() const {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Point2D low = {kInfinity, kInfinity};
  Point2D high = {-kInfinity, -kInfinity};
  const auto take = [&](const Point2D& point) {
    if (!canDraw(point)) return;
    low = {std::min(low.x, point.x), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.z, point.z)};
  };
  for (const auto& string : mScene.strings) {
    for (const Point2D& point : string) take(point);
  }
  for (const Point2D& point : mScene.shots) take(point);
  for (const Point2D& point : mScene.axis) take(point);
  if (low.x > high.x) {  // empty: the axes of any line
    low = {0.0, -5.0};
    high = {100.0, 5.0};
  }
  double width = std::max(high.x - low.x, 1.0);
  double height = std::max(high.z - low.z, kLeastHeight);
  if (mAxes == LinePlanAxes::kMap) {
    const double shape = std::max(1.0, canvas()->width() - 2.0 * kPadding) /
                         std::max(1.0, canvas()->height() - 2.0 * kPadding);
    width = std::max(width, shape * height);
    height = std::max(height, width / shape);
  }
  return {0.5 * (low.x + high.x - width), 0.5 * (low.z + high.z - height), width, height};
}

std::optional<LinePlan::Target> LinePlan::targetAt(const QPointF& at) const {
  std::optional<Target> best;
  double nearest = kReach;
  const auto take = [&](const Point2D& point, const Target& target, double handicap) {
    if (!canDraw(point)) return;
    const QPointF away = pointOf(point) - at;
    const double distance = std::hypot(away.x(), away.y()) + handicap;
    if (distance > nearest) return;
    nearest = distance;
    best = target;
  };
  for (std::size_t s = 0; s < mScene.strings.size(); ++s) {
    const bool current = static_cast<int>(s) == mScene.currentString;
    for (std::size_t i = 0; i < mScene.strings[s].size(); ++i) {
      take(mScene.strings[s][i], {static_cast<int>(s), static_cast<int>(i)}, current ? 0.0 : 2.0);
    }
  }
  for (std::size_t i = 0; i < mScene.shots.size(); ++i) {
    take(mScene.shots[i], {-1, static_cast<int>(i)}, 0.0);
  }
  return best;
}

void LinePlan::click(const QPointF& at) {
  const auto target = targetAt(at);
  if (!target) return;
  if (target->string < 0) {
    emit shotClicked(target->index);
  } else {
    emit geophoneClicked(target->string, target->index);
  }
}

bool LinePlan::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return PlotPage::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const auto target = targetAt(canvas()->mapFrom(this, help.pos()));
  if (!target) {
    QToolTip::hideText();
    return true;
  }
  const auto index = static_cast<std::size_t>(target->index);
  const Point2D place = target->string < 0
                            ? mScene.shots[index]
                            : mScene.strings[static_cast<std::size_t>(target->string)][index];
  const QString where = placeText(place);
  const bool ofStrings = mAxes == LinePlanAxes::kElevation;
  const QString who = target->string < 0 ? tr("Shot %1").arg(index + 1)
                      : !ofStrings
                          ? tr("Geophone %1").arg(index + 1)
                          : tr("String %1, geophone %2").arg(target->string + 1).arg(index + 1);
  QToolTip::showText(help.globalPos(), who + QLatin1Char('\n') + where, this);
  return true;
}

QString LinePlan::placeText(const Point2D& place) const {
  const QLocale locale;
  const QString x = withLengthUnit(locale.toString(shownLength(place.x), 'f', 2));
  const QString z = withLengthUnit(locale.toString(shownLength(place.z), 'f', 2));
  if (mAxes == LinePlanAxes::kOffset) return tr("x %1, %2 across").arg(x, z);
  if (mAxes == LinePlanAxes::kMap) return tr("%1 east, %2 north").arg(x, z);
  return tr("x %1, z %2").arg(x, z);
}

void LinePlan::setAxes(LinePlanAxes axes) {
  mAxes = axes;
  retranslate();
}

bool LinePlan::eventFilter(QObject* watched, QEvent* event) {
  const bool filtered = PlotPage::eventFilter(watched, event);
  // One scale both ways needs other ends on a canvas of another shape. As numbers at the axes
  // change the canvas again, once round is enough.
  const bool shaped = watched == canvas() && event->type() == QEvent::Resize;
  if (shaped && mAxes == LinePlanAxes::kMap && !mFitting) {
    mFitting = true;
    setWhole(content(), false);
    mFitting = false;
  }
  return filtered;
}

PlotTool* LinePlan::toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys, const QPointF&) {
  const bool plain = button == Qt::LeftButton && !(keys & Qt::ShiftModifier);
  return plain ? mChoose.get() : nullptr;
}

void LinePlan::dress() {
  PlotPage::dress();
  draw();
}

void LinePlan::retranslate() {
  setAccessibleName(tr("Plan of the line"));
  const QString unit = lengthUnitText();
  const QString distance = tr("Distance (%1)").arg(unit);
  if (mAxes == LinePlanAxes::kElevation) setTexts({}, distance, tr("Elevation (%1)").arg(unit));
  if (mAxes == LinePlanAxes::kOffset) setTexts({}, distance, tr("Across the line (%1)").arg(unit));
  if (mAxes == LinePlanAxes::kMap) {
    setTexts({}, tr("East of the first geophone (%1)").arg(unit), tr("North of it (%1)").arg(unit));
  }
  draw();  // the legend speaks, too
}

}  // namespace talvesk
