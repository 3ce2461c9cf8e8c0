#include "figures/TravelTimeItems.h"

#include "figures/ErrorBar.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/SectionItems.h"
#include "model/PickGrades.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <qwt_scale_map.h>

namespace talvesk::travel_time_items {
namespace {

constexpr double kSymbol = 4.6;  ///< points of 1/96 inch across
constexpr double kStar = 9.0;
constexpr double kBarEnd = 5.0;   ///< width of the ends of an error bar
constexpr double kLarger = 1.5;   ///< symbols of the current curve, times the others
constexpr double kThicker = 2.2;  ///< its lines
constexpr double kFaintOnLight = 0.68;
constexpr double kFaintOnDark = 0.55;

struct Strength {
  double symbols = 1.0;
  double lines = 1.0;
};

bool isDark(const QColor& ground) {
  return ground.lightness() < 128;
}

QColor mixed(const QColor& a, const QColor& b, double partOfB) {
  const auto mix = [partOfB](int x, int y) {
    return static_cast<int>((1.0 - partOfB) * x + partOfB * y);
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// Draws one curve after the other, the current one last.
/// \param draw is given the curve, its colour, and by how much to enlarge it
template <typename Draw>
void forEachCurve(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look,
                  Draw draw) {
  const double faintness = isDark(look.ground) ? kFaintOnDark : kFaintOnLight;
  const TravelTimeCurve* current = nullptr;
  for (const TravelTimeCurve& curve : curves) {
    if (curve.record == look.current) {
      current = &curve;
      continue;
    }
    const QColor color = colorOf(curve.record, look);
    draw(curve, look.othersFaint ? mixed(color, look.ground, faintness) : color, Strength());
  }
  if (current != nullptr)
    draw(*current, colorOf(current->record, look), Strength{kLarger, kThicker});
}

void drawLines(QPainter& painter, const std::vector<std::vector<Point2D>>& lines,
               const QwtScaleMap& xMap, const QwtScaleMap& timeMap) {
  painter.setBrush(Qt::NoBrush);
  for (const auto& line : lines) {
    QPolygonF points;
    for (const Point2D& p : line) points.append({xMap.transform(p.x), timeMap.transform(p.z)});
    painter.drawPolyline(points);
  }
}

bool isDoubtful(const TravelTimeCurve::Pick& pick) {
  return isDoubtfulPick(1e-3 * pick.errorMs);
}

void drawErrorBar(QPainter& painter, const QColor& color, const TravelTimeCurve::Pick& pick,
                  const QwtScaleMap& xMap, const QwtScaleMap& timeMap) {
  const ErrorBar bar(xMap.transform(pick.point.x), timeMap.transform(pick.point.z - pick.errorMs),
                     timeMap.transform(pick.point.z + pick.errorMs), 1e-3 * pick.errorMs,
                     timeMap.p1(), timeMap.p2());
  paintErrorBar(painter, bar, {color, 0.8, 0.5 * kBarEnd, {}});
}

void drawRing(QPainter& painter, const QColor& color, const QColor& ground, const QPointF& middle,
              double size) {
  painter.setPen(QPen(color, 1.0));
  painter.setBrush(ground);
  painter.drawEllipse(middle, 0.5 * size, 0.5 * size);
}

/// A ring of the ground keeps symbols apart where curves cross.
void drawSymbol(QPainter& painter, const QColor& color, const QColor& ground, const QPointF& middle,
                double size) {
  painter.setPen(QPen(ground, 0.6));
  painter.setBrush(color);
  painter.drawEllipse(middle, 0.5 * size, 0.5 * size);
}

void drawIconLine(QPainter& painter, const QPen& pen, const QSizeF& size) {
  painter.setPen(pen);
  painter.drawLine(QPointF(0, size.height() / 2), QPointF(size.width(), size.height() / 2));
}

}  // namespace

QColor colorOf(std::size_t record, const TravelTimeLook& look) {
  // Dark enough for thin lines on white; neighbours in the list are far apart in hue.
  static constexpr QRgb kColors[] = {0xff1f5fa8, 0xffc4281b, 0xff1f8a3b, 0xff7a3fa0, 0xffb86a00,
                                     0xff008a93, 0xffb5307c, 0xff5b6b1a, 0xff3b3b3b, 0xff8a5a3c};
  const QColor color(kColors[record % (sizeof kColors / sizeof *kColors)]);
  if (!isDark(look.ground)) return color;
  return QColor::fromHslF(color.hslHueF(), color.hslSaturationF(), 0.70);
}

QwtPlotItem* measured(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look) {
  const auto paint = [&curves, &look](QPainter& painter, const QwtScaleMap& xMap,
                                      const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    forEachCurve(curves, look, [&](const TravelTimeCurve& curve, const QColor& color, Strength by) {
      painter.setPen(QPen(color, by.lines * 0.9));
      if (look.joined) drawLines(painter, curve.measuredLines, xMap, timeMap);
      for (const auto& pick : curve.picks) {
        const bool bar = look.errorBars && pick.errorMs > 0.0;
        if (bar) drawErrorBar(painter, color, pick, xMap, timeMap);
        const auto draw = bar && isDoubtful(pick) ? drawRing : drawSymbol;
        draw(painter, color, look.ground,
             {xMap.transform(pick.point.x), timeMap.transform(pick.point.z)}, by.symbols * kSymbol);
      }
    });
  };
  const auto icon = [&look](QPainter& painter, const QSizeF& size) {
    // A dot alone would be blown up to fill the icon.
    painter.setPen(Qt::NoPen);
    painter.drawRect(QRectF(QPointF(), size));
    if (look.joined) drawIconLine(painter, QPen(look.icons, 0.9), size);
    drawSymbol(painter, look.icons, look.ground, {size.width() / 2, size.height() / 2}, kSymbol);
  };
  return figureItem(FigureWords::tr("Measured"), section_items::kContoursLayer, paint, icon);
}

QwtPlotItem* computed(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look) {
  const auto paint = [&curves, &look](QPainter& painter, const QwtScaleMap& xMap,
                                      const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    forEachCurve(curves, look, [&](const TravelTimeCurve& curve, const QColor& color, Strength by) {
      painter.setPen(QPen(color, by.lines * 0.6));
      drawLines(painter, curve.computedLines, xMap, timeMap);
    });
  };
  const auto icon = [&look](QPainter& painter, const QSizeF& size) {
    drawIconLine(painter, QPen(look.icons, 0.6), size);
  };
  return figureItem(FigureWords::tr("Computed"), section_items::kRaysLayer, paint, icon);
}

QwtPlotItem* layered(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look) {
  const auto dashed = [](const QColor& color, double width) {
    QPen pen(color, width);
    pen.setDashPattern({5.0, 3.0});
    return pen;
  };
  const auto paint = [&curves, &look, dashed](QPainter& painter, const QwtScaleMap& xMap,
                                              const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    forEachCurve(curves, look, [&](const TravelTimeCurve& curve, const QColor& color, Strength by) {
      painter.setPen(dashed(color, by.lines));
      drawLines(painter, curve.layeredLines, xMap, timeMap);
    });
  };
  const auto icon = [&look, dashed](QPainter& painter, const QSizeF& size) {
    drawIconLine(painter, dashed(look.icons, 1.0), size);
  };
  return figureItem(FigureWords::tr("Layers"), section_items::kRaysLayer, paint, icon);
}

QwtPlotItem* shots(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look) {
  const auto paint = [&curves, &look](QPainter& painter, const QwtScaleMap& xMap,
                                      const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.ground, 0.5));
    forEachCurve(curves, look, [&](const TravelTimeCurve& curve, const QColor& color, Strength by) {
      if (!curve.hasShot) return;
      painter.setBrush(color);
      painter.drawPath(
          section_items::symbol(section_items::Marker::kShot, by.symbols * kStar)
              .translated(xMap.transform(curve.shot.x), timeMap.transform(curve.shot.z)));
    });
  };
  const auto icon = [&look](QPainter& painter, const QSizeF& size) {
    painter.setPen(QPen(look.ground, 0.5));
    painter.setBrush(look.icons);
    const QPainterPath star = section_items::symbol(section_items::Marker::kShot, kStar);
    painter.drawPath(star.translated(size.width() / 2, size.height() / 2));
  };
  return figureItem(FigureWords::tr("Shots"), section_items::kMarkersLayer, paint, icon);
}

}  // namespace talvesk::travel_time_items
