#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/SectionPaper_painter.h"
#include "figures/ShownLength.h"
#include "figures/ToldLength.h"
#include "view/SectionScene.h"
#include "view/SectionTexts.h"

#include <QPolygonF>
#include <algorithm>

// What is known of the ground, over the section that was found.

namespace talvesk {
namespace {

constexpr double kHalo = 2.0;
constexpr double kBoreholeWidth = 12.0;
constexpr double kGap = 3.0;
const QPen kLinePen(Qt::black, 1.2);
const QPen kBodyPen(Qt::black, 1.6, Qt::DashLine);

void strokeTwice(QPainter& painter, const QPen& pen, const QPolygonF& line) {
  painter.setPen(QPen(Qt::white, pen.widthF() + kHalo));
  painter.drawPolyline(line);
  painter.setPen(pen);
  painter.drawPolyline(line);
}

}  // namespace

void paintKnownDepth(QPainter& painter, const QPointF& at, double up, double down) {
  constexpr double kCap = 4.0;
  constexpr double kDiamond = 4.5;
  const QPolygonF bar({at - QPointF(kCap, up), at + QPointF(kCap, -up), at - QPointF(0, up),
                       at + QPointF(0, down), at + QPointF(-kCap, down), at + QPointF(kCap, down)});
  strokeTwice(painter, kLinePen, bar);
  painter.setBrush(Qt::white);
  painter.drawPolygon(QPolygonF({at - QPointF(kDiamond, 0), at - QPointF(0, kDiamond),
                                 at + QPointF(kDiamond, 0), at + QPointF(0, kDiamond)}));
  painter.setBrush(Qt::NoBrush);
}

/// \return the box of a piece of a borehole between two places of its axis
QRectF boreholeBox(const QPointF& top, const QPointF& bottom) {
  return QRectF(top - QPointF(0.5 * kBoreholeWidth, 0.0),
                bottom + QPointF(0.5 * kBoreholeWidth, 0.0));
}

QString SectionPaperPainter::velocityWords(double velocity) const {
  return withSignOf(mDress.locale, valueText(toldVelocity(velocity), 1.0));
}

/// A word that stands out from what is below it.
void SectionPaperPainter::putOnSection(const QString& text, const QPointF& middle) {
  const QPolygonF outline = outlineOf(text, middle, 0.0);
  const auto touches = [&](const PlacedText& other) { return other.outline.intersects(outline); };
  if (!mWhole.contains(outline.boundingRect())) return;
  if (std::any_of(texts.begin(), texts.end(), touches)) return;
  putOnPlate(text, middle, 1.0, Qt::black);
}

void SectionPaperPainter::paintKnown() {
  const KnownMarks& known = mScene.known;
  const auto place = [this](double x, double z) { return mMap.map(QPointF(x, z)); };
  const auto beside = [this](const QString& text) {
    return QPointF(0.5 * kBoreholeWidth + kGap + 0.5 * mMetrics.horizontalAdvance(text), 0.0);
  };
  mPainter.setBrush(Qt::NoBrush);
  for (const KnownMarks::Body& body : known.bodies) {
    QPolygonF outline;
    for (const Point2D& p : body.outline) outline << place(p.x, p.z);
    outline << outline.front();
    strokeTwice(mPainter, kBodyPen, outline);
    const QPointF middle = outline.boundingRect().center();
    const QString name = QString::fromStdString(body.name);
    putOnSection(
        FigureWords::tr("%1: %2").arg(name, withVelocityUnit(velocityWords(body.velocity))),
        middle);
  }
  for (const KnownMarks::Borehole& borehole : known.boreholes) {
    const bool coloured = mScene.quantity == SectionQuantity::kVelocity && !mScene.values;
    for (const KnownMarks::Layer& layer : borehole.layers) {
      const QPointF top = place(borehole.x, layer.top);
      const QPointF bottom = place(borehole.x, layer.bottom);
      const QRectF box = boreholeBox(top, bottom);
      mPainter.setPen(QPen(Qt::white, kLinePen.widthF() + kHalo));
      mPainter.drawRect(box);
      mPainter.setPen(kLinePen);
      const int shade = mColors.indexOf(layer.velocity);
      mPainter.setBrush(coloured && shade >= 0 ? toColor(mColors[shade]) : QColor(Qt::white));
      mPainter.drawRect(box);
      mPainter.setBrush(Qt::NoBrush);
      const QString text = velocityWords(layer.velocity);
      if (box.height() > mLine) putOnSection(text, box.center() + beside(text));
    }
    if (borehole.layers.empty()) continue;
    QString name = QString::fromStdString(borehole.name);
    if (borehole.offset != 0.0) {
      name = FigureWords::tr("%1 (%2 beside the line)")
                 .arg(name, withLengthUnit(mDress.locale.toString(toldLength(borehole.offset))));
    }
    const KnownMarks::Layer& last = borehole.layers.back();
    putOnSection(name, place(borehole.x, last.bottom) + QPointF(0.0, 0.5 * mLine + kGap));
  }
  for (const KnownMarks::Depth& point : known.depths) {
    const QPointF at = place(point.at.x, point.at.z);
    const double bar = place(point.at.x, point.at.z - point.error).y() - at.y();
    paintKnownDepth(mPainter, at, bar, bar);
    QString text = QString::fromStdString(point.name);
    if (point.velocity > 0.0) {
      text = FigureWords::tr("%1: %2").arg(text, withVelocityUnit(velocityWords(point.velocity)));
    }
    putOnSection(text, at + beside(text));
  }
}

}  // namespace talvesk
