#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/SectionPaper_painter.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

// The axes. Seen from the front they are the sides of the plot. A turned section takes them along:
// a position along the line stays a vertical line of the picture, so the elevation axis is one, at
// the section's left end; the distance axis is the section's slanted foot. Where an end is out of
// view, the plot's side stands for it, so that numbers never leave.

namespace talvesk {

using namespace section_paper;

namespace {

constexpr double kDistanceSpacing = 85.0;   ///< between numbers along the line
constexpr double kElevationSpacing = 42.0;  ///< between numbers up the section

}  // namespace

QRectF SectionPaperPainter::visible() const {
  const QRectF seen = mMap.inverted().mapRect(mPlot);
  return mCamera.isTurned() ? seen.intersected(mExtent.rect()) : seen;
}

AxisTicks SectionPaperPainter::distanceTicks() const {
  const QRectF part = visible();
  const double length = QLineF(mMap.map(part.topLeft()), mMap.map(part.topRight())).length();
  return shownTicks(part.left(), part.right(),
                    std::max(static_cast<int>(length / kDistanceSpacing), 2), "m");
}

/// As many as have room above each other, and digits in the margin.
AxisTicks SectionPaperPainter::elevationTicks() const {
  const QRectF part = visible();
  const double length = QLineF(mMap.map(part.topLeft()), mMap.map(part.bottomLeft())).length();
  int most = std::max(static_cast<int>(length / kElevationSpacing), 2);
  AxisTicks ticks = shownTicks(part.top(), part.bottom(), most, "m");
  while (most > 1 && widest(numbers(ticks, mDress.locale), mMetrics) > mLayout.numberWidth) {
    most /= 2;
    ticks = shownTicks(part.top(), part.bottom(), most, "m");
  }
  return ticks;
}

/// At the section's left end, or where the first of it comes into view.
double SectionPaperPainter::elevationLine() const {
  if (!mCamera.isTurned()) return mPlot.left();
  const QPointF foot = mMap.map(QPointF(mExtent.low.x, mExtent.low.z));
  const double height = foot.y() - mMap.map(QPointF(mExtent.low.x, mExtent.high.z)).y();
  const QPointF along = mMap.map(QPointF(mExtent.high.x, mExtent.low.z)) - foot;
  const double slope = along.y() / std::max(along.x(), 1e-9);
  const double x = std::max(foot.x(), mPlot.left());
  const double y = foot.y() + (x - foot.x()) * slope;
  const double enough = std::min(height, 5.0 * mLine);
  double further = 0.0;
  if (slope > 0.0) further = (mPlot.top() + enough - y) / slope;
  if (slope < 0.0) further = (mPlot.bottom() - enough - (y - height)) / slope;
  return std::clamp(x + further, x, std::max(x, std::min(foot.x() + along.x(), mPlot.right())));
}

QPointF SectionPaperPainter::distancePoint(double x) const {
  const QPointF foot = mMap.map(QPointF(x, mExtent.low.z));
  if (!mCamera.isTurned()) return {foot.x(), mPlot.bottom()};
  return {foot.x(), std::min(foot.y(), mPlot.bottom())};
}

/// The plot with the margins where its axes are when it is not turned.
QRectF SectionPaperPainter::axisRoom() const {
  return {QPointF(0.0, mPlot.top() - 0.5 * mLine),
          QPointF(mPlot.right() + 0.5 * mLayout.numberWidth + kGap,
                  mPlot.bottom() + kTick + 4.5 + 2.0 * mLine)};
}

SectionPaperPainter::Axis SectionPaperPainter::distanceAxis() const {
  Axis axis;
  axis.ticks = distanceTicks();
  axis.at = [this](double x) { return distancePoint(x); };
  axis.room = axisRoom();
  axis.title = FigureWords::distanceAxis();
  axis.outward = {0.0, 1.0};
  const double below = kTick + 4.0 + 1.5 * mLine;
  axis.titleMiddle = {mPlot.center().x(), mPlot.bottom() + below};
  if (!mCamera.isTurned()) return axis;
  // Along the slanted foot of the section, as far below as the corners of the numbers reach.
  const QRectF part = visible();
  const QPointF from = distancePoint(part.left());
  const QPointF to = distancePoint(part.right());
  const QPointF along = to - from;
  const double slope = along.x() > 0.0 ? along.y() / along.x() : 0.0;
  const double reach = 0.5 * widest(numbers(axis.ticks, mDress.locale), mMetrics) * std::abs(slope);
  axis.titleMiddle = 0.5 * (from + to) + QPointF(0.0, kTick + 4.0 + mLine + reach +
                                                          0.5 * mLine * std::hypot(1.0, slope));
  axis.titleAngle = std::atan(slope) * 180.0 / 3.14159265358979323846;
  return axis;
}

SectionPaperPainter::Axis SectionPaperPainter::elevationAxis() const {
  Axis axis;
  axis.ticks = elevationTicks();
  axis.room = axisRoom();
  axis.title = FigureWords::elevationAxis();
  axis.outward = {-1.0, 0.0};
  axis.titleAngle = -90.0;
  const double line = elevationLine();
  const QTransform back = mMap.inverted();
  const double x = back.map(QPointF(line, 0.0)).x();
  axis.at = [this, line, x](double z) { return QPointF(line, mMap.map(QPointF(x, z)).y()); };
  const double beside = kTick + 3.0 + mLayout.numberWidth + kGap + 0.5 * mLine;
  double middle = mPlot.center().y();
  if (mCamera.isTurned()) {
    const auto seen = [this](double y) { return std::clamp(y, mPlot.top(), mPlot.bottom()); };
    middle = 0.5 * (seen(axis.at(mExtent.low.z).y()) + seen(axis.at(mExtent.high.z).y()));
  }
  axis.titleMiddle = {line - beside, middle};
  return axis;
}

void SectionPaperPainter::putWithin(const QRectF& room, const QString& text, const QPointF& middle,
                                    double angle) {
  const QPolygonF line = outlineOf(text, middle, angle);
  const auto touches = [&line](const PlacedText& other) { return other.outline.intersects(line); };
  if (!room.contains(line.boundingRect())) return;
  if (std::any_of(texts.begin(), texts.end(), touches)) return;
  put(text, middle, angle);
}

void SectionPaperPainter::paintAxis(const Axis& axis) {
  const QRectF seen = mPlot.united(mLayout.bar).adjusted(-2.5, -2.5, 2.5, 2.5);
  const auto isSeen = [&](double value) { return seen.contains(axis.at(value)); };
  const std::vector<double>& major = axis.ticks.major;
  const std::vector<double>& minor = axis.ticks.minor;
  // A title without its axis would stand for nothing.
  if (!std::any_of(major.begin(), major.end(), isSeen) &&
      !std::any_of(minor.begin(), minor.end(), isSeen)) {
    return;
  }
  putWithin(axis.room, axis.title, axis.titleMiddle, axis.titleAngle);
  for (const double value : minor) {
    const QPointF at = axis.at(value);
    if (isSeen(value)) mPainter.drawLine(at, at + kMinorTick * axis.outward);
  }
  const QStringList words = numbers(axis.ticks, mDress.locale);
  for (int i = 0; i < words.size(); ++i) {
    const double value = major[static_cast<std::size_t>(i)];
    if (!isSeen(value)) continue;
    const QPointF at = axis.at(value);
    mPainter.drawLine(at, at + kTick * axis.outward);
    const double half = axis.outward.y() != 0.0 ? 0.5 * mLine + 2.0
                                                : 0.5 * mMetrics.horizontalAdvance(words[i]) + 3.0;
    putWithin(axis.room, words[i], at + (kTick + half) * axis.outward);
  }
}

void SectionPaperPainter::paintFrame() {
  if (mCamera.isTurned()) {
    const QPolygonF outline = mMap.map(QPolygonF(mExtent.rect()));
    mPainter.save();
    mPainter.setClipRect(mPlot);
    mPainter.setRenderHint(QPainter::Antialiasing);
    mPainter.setBrush(Qt::NoBrush);
    mPainter.drawPolygon(outline);
    mPainter.restore();
    // A frame would cross the numbers of a turned section; it shows where a cut one ends.
    if (mPlot.contains(outline.boundingRect())) return;
  }
  mPainter.save();
  paintFigureFrame(mPainter, mPlot.adjusted(-0.5, -0.5, 0.5, 0.5));
  mPainter.restore();
}

void SectionPaperPainter::paintAxes() {
  mPainter.save();
  mPainter.setPen(QPen(Qt::black, 1.0));
  paintFrame();
  paintAxis(distanceAxis());
  paintAxis(elevationAxis());
  mPainter.restore();
}

}  // namespace talvesk
