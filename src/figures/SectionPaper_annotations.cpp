#include "figures/ContourLabels.h"
#include "figures/FigureFile.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/LithologyPattern.h"
#include "figures/SectionItems.h"
#include "figures/SectionPaper_painter.h"
#include "figures/ShownLength.h"
#include "figures/ToldLength.h"
#include "view/LabelPlace.h"
#include "view/SectionScene.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What the user has drawn: marked isolines, areas of ground, lines and texts.

namespace talvesk {

using namespace section_items;

namespace {

constexpr double kHalo = 2.0;
constexpr double kPixelsPerPoint = 96.0 / 72.0;
const QColor kVeil(255, 255, 255, 120);  ///< over the section, so that the signs are seen

QPen penOf(std::uint32_t color, double width) {
  return {QColor(QRgb(color)), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// Long lines in pieces, for a stroke that crosses itself a thousand times keeps painters busy for
/// seconds. Pens have round ends and are opaque: where pieces meet nothing is seen.
void stroke(QPainter& painter, const QPolygonF& line) {
  constexpr int kWhole = 200;  ///< points
  const int most = line.size() > kWhole ? 4 : kWhole;
  for (int first = 0; first == 0 || first + 1 < line.size(); first += most - 1) {
    painter.drawPolyline(line.constData() + first, std::min(most, line.size() - first));
  }
}

void strokeWithHalo(QPainter& painter, const QPen& pen, const QPolygonF& line) {
  painter.setPen(QPen(Qt::white, pen.widthF() + kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  stroke(painter, line);
  painter.setPen(pen);
  stroke(painter, line);
}

/// A box moved into a room, as far as it fits there.
QPointF intoRoom(const QRectF& box, const QRectF& room) {
  const auto shift = [](double low, double high, double least, double most) {
    if (high - low > most - least) return 0.0;
    return std::max(least - low, 0.0) + std::min(most - high, 0.0);
  };
  return {shift(box.left(), box.right(), room.left(), room.right()),
          shift(box.top(), box.bottom(), room.top(), room.bottom())};
}

/// Where the text of an area stands, of which only what lies on the plot is seen.
std::optional<QPointF> insideOf(const QPolygonF& area, const QRectF& plot) {
  std::vector<Point2D> corners;
  for (const QPointF& p : area) corners.push_back({p.x(), p.y()});
  const std::optional<Point2D> place =
      labelPlace(corners, {plot.left(), plot.top()}, {plot.right(), plot.bottom()});
  if (!place) return std::nullopt;
  return QPointF(place->x, place->z);
}

QFont fontOf(const QFont& base, double points) {
  QFont font = base;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * kPixelsPerPoint))));
  return font;
}

}  // namespace

QPolygonF SectionPaperPainter::onSheet(const Annotation& item) const {
  QPolygonF line;
  for (const Point2D& p : item.points) line << mMap.map(QPointF(p.x, p.z));
  return line;
}

void SectionPaperPainter::paintAreas() {
  for (const Annotation& item : mScene.annotations.items) {
    if (item.kind != AnnotationKind::kPolygon) continue;
    QPolygonF area = onSheet(item);
    if (!area.boundingRect().intersects(mPlot)) continue;
    // Smooth edges would take long where an outline crosses itself, and lie below it anyway.
    mPainter.setRenderHint(QPainter::Antialiasing, false);
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(kVeil);
    mPainter.drawPolygon(area);
    mPainter.setRenderHint(QPainter::Antialiasing);
    mPainter.setBrush(Qt::NoBrush);
    paintLithology(mPainter, area, item.pattern, QColor(QRgb(item.color)), mPlot,
                   mMap.map(QPointF(0.0, 0.0)));
    area << area.front();
    strokeWithHalo(mPainter, penOf(item.color, item.width), area);
  }
}

/// A text of an annotation. It stands where the user put it, whatever lies below; at the edge of
/// the plot it gives way, so that all of it is read. Parts of a plot have it at one place, and it
/// goes on from sheet to sheet.
void SectionPaperPainter::putNote(const Annotation& item, const QPointF& middle) {
  if (item.text.empty() || !mWhole.contains(middle)) return;
  mPainter.save();
  mPainter.setFont(fontOf(mDress.font, item.textSize));
  const QString text =
      QFontMetricsF(mPainter.font())
          .elidedText(QString::fromStdString(item.text), Qt::ElideRight, mWhole.width() - 4.0);
  const QRectF outline = outlineOf(text, middle, 0.0).boundingRect().adjusted(-2, 0, 2, 0);
  putOnPlate(text, middle + intoRoom(outline, mWhole), 2.0, QColor(QRgb(item.color)));
  mPainter.restore();
}

void SectionPaperPainter::paintAnnotations() {
  mPainter.setBrush(Qt::NoBrush);
  for (const Annotation& item : mScene.annotations.items) {
    const QPolygonF line = onSheet(item);
    switch (item.kind) {
      case AnnotationKind::kText:
        putNote(item, line.front());
        break;
      case AnnotationKind::kLine:
        if (!line.boundingRect().adjusted(-1, -1, 1, 1).intersects(mPlot)) break;
        strokeWithHalo(mPainter, penOf(item.color, item.width), line);
        mLineLabels.push_back(
            {line, QString::fromStdString(item.text), QColor(QRgb(item.color)), item.textSize});
        break;
      case AnnotationKind::kPolygon:
        if (item.text.empty()) break;
        if (const auto middle = insideOf(line, mWhole)) putNote(item, *middle);
        break;
    }
  }
}

void SectionPaperPainter::paintMarkedIsolines() {
  mPainter.setBrush(Qt::NoBrush);
  for (const DrawnIsoline& isoline : mScene.annotations.isolines) {
    const QPen pen = penOf(isoline.mark.color, isoline.mark.width);
    const QString name = isolineName(isoline.mark, mDress.locale);
    for (const ContourLine& contour : isoline.lines) {
      QPolygonF line = thinned(contour.points, mMap);
      if (contour.closed && !line.isEmpty()) line << line.front();
      strokeWithHalo(mPainter, pen, line);
      mLineLabels.push_back({line, name, pen.color(), mDress.contours.labelPoints + 1.0});
    }
  }
}

namespace {

QString velocityOf(const MarkedIsoline& mark, const QLocale& locale) {
  return withVelocityUnit(locale.toString(toldVelocity(mark.velocity), 'g', 6));
}

}  // namespace

QString isolineName(const MarkedIsoline& mark, const QLocale& locale) {
  if (!mark.name.empty()) return QString::fromStdString(mark.name);
  return velocityOf(mark, locale);
}

QString isolineText(const DrawnIsoline& isoline, const QLocale& locale) {
  QString text = isolineName(isoline.mark, locale);
  if (!isoline.mark.name.empty()) {
    text = FigureWords::tr("%1: %2").arg(text, velocityOf(isoline.mark, locale));
  }
  return isoline.lines.empty() ? FigureWords::tr("%1 (not reached)").arg(text) : text;
}

namespace {

LegendEntry legendOf(const DrawnIsoline& isoline, const QLocale& locale) {
  const QPen pen = penOf(isoline.mark.color, isoline.mark.width);
  return {isolineText(isoline, locale), [pen](QPainter& painter, const QPointF& middle) {
            painter.setPen(pen);
            painter.drawLine(middle - QPointF(9, 0), middle + QPointF(9, 0));
          }};
}

/// Areas of one pattern in one colour.
struct Ground {
  Lithology pattern = Lithology::kNone;
  std::uint32_t color = 0;
  std::string text;  ///< that all of them have; empty where they differ
};

/// One for each pattern, and of patterns in several colours one for each colour, as long as that is
/// no more than a legend has room for.
std::vector<Ground> groundsOf(const std::vector<Annotation>& items) {
  constexpr std::size_t kMost = 16;
  std::vector<Ground> byColor;
  std::vector<Ground> byPattern;
  for (const Lithology pattern : kLithologies) {
    const std::size_t before = byColor.size();
    for (const Annotation& item : items) {
      if (item.kind != AnnotationKind::kPolygon || item.pattern != pattern) continue;
      const auto known =
          std::find_if(byColor.begin() + static_cast<std::ptrdiff_t>(before), byColor.end(),
                       [&](const Ground& g) { return g.color == item.color; });
      if (known == byColor.end()) {
        byColor.push_back({pattern, item.color, item.text});
      } else if (known->text != item.text) {
        known->text.clear();
      }
    }
    if (pattern == Lithology::kNone) byColor.clear();
    if (byColor.size() > before) byPattern.push_back({pattern, byColor[before].color, {}});
    if (byColor.size() == before + 1) byColor.back().text.clear();  // the pattern says it all
  }
  return byColor.size() > kMost ? byPattern : byColor;
}

LegendEntry legendOf(const Ground& ground) {
  QString name = FigureWords::message(nameOf(ground.pattern));
  if (!ground.text.empty()) {
    name = FigureWords::tr("%1: %2").arg(name, QString::fromStdString(ground.text));
  }
  return {name, [ground](QPainter& painter, const QPointF& middle) {
            const QRectF box(middle - QPointF(10, 7), middle + QPointF(10, 7));
            painter.setPen(QPen(Qt::black, 0.8));
            painter.setBrush(Qt::white);
            painter.drawRect(box);
            paintLithology(painter, QPolygonF(box.adjusted(0.0, 2.0, 0.0, -2.0)), ground.pattern,
                           QColor(QRgb(ground.color)), box, middle);
          }};
}

}  // namespace

std::vector<LegendEntry> annotationLegend(const SectionScene& scene, const QLocale& locale) {
  std::vector<LegendEntry> entries;
  for (const DrawnIsoline& isoline : scene.annotations.isolines) {
    entries.push_back(legendOf(isoline, locale));
  }
  for (const Ground& ground : groundsOf(scene.annotations.items)) {
    entries.push_back(legendOf(ground));
  }
  return entries;
}

}  // namespace talvesk
