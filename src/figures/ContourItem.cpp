#include "figures/ContourLabels.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/SectionFigure.h"
#include "figures/SectionItems.h"
#include "view/SectionScene.h"
#include "view/SectionTexts.h"

#include <QPainter>
#include <QPainterPath>

#include <qwt_scale_map.h>

namespace talvesk::section_items {
namespace {

/// Iso-lines with their values set into them, upright and clear of each other.
class ContoursPainter {
 public:
  ContoursPainter(const SectionScene& scene, const ContourStyle& style)
      : mScene(scene), mStyle(style) {}

  void operator()(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                  const QRectF& canvas) const {
    painter.setRenderHint(QPainter::Antialiasing);
    std::vector<QPolygonF> lines;
    for (const ContourLine& contour : mScene.contours) {
      lines.push_back(thinned(contour.points, xMap, yMap));
      if (contour.closed) lines.back().append(lines.back().front());
    }
    painter.setBrush(Qt::NoBrush);
    if (!mScene.rays.empty()) {  // else one could not tell them from rays
      painter.setPen(QPen(QColor(255, 255, 255, 150), mStyle.width + 1.6));
      for (const QPolygonF& line : lines) painter.drawPolyline(line);
    }
    painter.setPen(QPen(toColor(mStyle.color), mStyle.width));
    for (const QPolygonF& line : lines) painter.drawPolyline(line);

    paintContourLabels(painter, mScene, lines, mStyle, canvas, [this](double value) {
      return QString::fromStdString(valueText(value, mScene.range.span() / 50.0));
    });
  }

 private:
  const SectionScene& mScene;
  const ContourStyle& mStyle;
};

}  // namespace

QwtPlotItem* contours(const SectionScene& scene, const ContourStyle& style) {
  const auto icon = [&style](QPainter& painter, const QSizeF& size) {
    painter.setPen(QPen(toColor(style.color), style.width));
    painter.drawLine(QPointF(0, size.height() / 2), QPointF(size.width(), size.height() / 2));
  };
  return figureItem(FigureWords::tr("Contours"), kContoursLayer, ContoursPainter(scene, style),
                    icon);
}

}  // namespace talvesk::section_items
