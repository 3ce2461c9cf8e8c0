#include "widgets/fence/FenceLabels.h"

#include "figures/FigurePlot.h"
#include "figures/ShownLength.h"
#include "view/ColorPalette.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>
#include <QSize>
#include <QString>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kGap = 5.0;  ///< pixels from an axis to its numbers, and on to its name

struct Words {
  Q_DECLARE_TR_FUNCTIONS(talvesk::FenceView)
};

/// Beside a point, on the side that is free. \return how far it reaches from there
double putBeside(QPainter& painter, const QString& text, const QPointF& at,
                 const FenceCamera::Offset& outward, double gap) {
  const QFontMetricsF metrics(painter.font());
  const double reach = gap + 0.5 * std::fabs(outward.right) * metrics.horizontalAdvance(text) +
                       0.5 * std::fabs(outward.up) * metrics.height();
  QRectF box(0.0, 0.0, metrics.horizontalAdvance(text), metrics.height());
  box.moveCenter(at + QPointF(outward.right, -outward.up) * reach);
  painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
  return 2.0 * reach - gap;
}

/// \return how far the numbers reach from the axis
double paintNumbers(QPainter& painter, const FenceFrame::Axis& axis,
                    const std::function<QPointF(const FencePoint&)>& toPicture) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  double reach = 0.0;
  for (std::size_t i = 0; i < axis.places.size(); ++i) {
    const QString number =
        locale.toString(axis.ticks.major[i] * axis.ticks.factor, 'f', axis.ticks.decimals);
    reach =
        std::max(reach, putBeside(painter, number, toPicture(axis.places[i]), axis.outward, kGap));
  }
  return reach;
}

}  // namespace

void paintFenceName(QPainter& painter, const QString& text, const QPointF& middle) {
  const QFontMetricsF metrics(painter.font());
  QRectF box(0.0, 0.0, metrics.horizontalAdvance(text) + 8.0, metrics.height() + 2.0);
  box.moveCenter(middle);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 215));
  painter.drawRoundedRect(box, 3.0, 3.0);
  painter.setPen(Qt::black);
  painter.drawText(box, Qt::AlignCenter, text);
}

void paintFenceAxes(QPainter& painter, const FenceFrame& frame,
                    const std::function<QPointF(const FencePoint&)>& toPicture) {
  painter.setPen(QColor(70, 70, 70));
  const auto put = [&](const FenceFrame::Axis& axis, const QString& name, bool above) {
    if (axis.places.empty()) return;
    const double reach = paintNumbers(painter, axis, toPicture);
    const FenceCamera::Offset up{0.0, 1.0};
    putBeside(painter, name, toPicture(axis.middle), above ? up : axis.outward,
              above ? kGap : reach + kGap);
  };
  put(frame.easting, Words::tr("Easting [m]"), false);
  put(frame.northing, Words::tr("Northing [m]"), false);
  put(frame.elevation, Words::tr("Elevation [%1]").arg(lengthUnitText()), true);
}

void paintFenceNorth(QPainter& painter, const FenceCamera& camera) {
  constexpr double kLength = 34.0;
  const QPointF middle(52.0, 62.0);
  FencePoint north = camera.centre;
  north.north += kLength * camera.metresPerPixel;
  const FenceCamera::Offset tip = camera.project(north);
  const QPointF way(tip.right, -tip.up);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 215));
  painter.drawEllipse(middle, kLength + 14.0, kLength + 14.0);
  painter.setPen(QPen(Qt::black, 2.0));
  painter.drawLine(middle - way, middle + way);
  const double length = std::hypot(way.x(), way.y());
  if (length > 4.0) {  // else it points into the picture
    const QPointF along = way / length;
    const QPointF across(-along.y(), along.x());
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF({middle + way, middle + way - 10.0 * along + 5.0 * across,
                                   middle + way - 10.0 * along - 5.0 * across}));
    paintFenceName(painter, Words::tr("N", "north"), middle + way + 10.0 * along);
  }
}

void paintFenceBar(QPainter& painter, const ColorTable& colors, const QSize& picture) {
  constexpr double kWidth = 16.0;
  const QFontMetricsF metrics(painter.font());
  const double line = metrics.height();
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  const QString title = Words::tr("Velocity [%1]").arg(velocityUnitText());
  const AxisTicks ticks = shownTicks(colors.range().min, colors.range().max, 8, "m/s");
  const double right = picture.width() - 14.0 - 5.0 * metrics.horizontalAdvance(QLatin1Char('8'));
  const QRectF bar(right - kWidth, 3.0 * line, kWidth,
                   std::max(picture.height() - 5.0 * line, 20.0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 215));
  painter.drawRect(
      QRectF(QPointF(bar.left() - 10.0, 0.0), QPointF(picture.width(), bar.bottom() + line)));
  const auto yOf = [&](double value) {
    return bar.bottom() - (value - colors.range().min) / colors.range().span() * bar.height();
  };
  painter.setRenderHint(QPainter::Antialiasing, false);
  for (int i = 0; i < colors.size(); ++i) {
    const RgbColor& c = colors[i];
    const double low = yOf(colors.classRange(i).min);
    painter.fillRect(QRectF(bar.topLeft(), QPointF(bar.right(), low)),
                     QColor::fromRgbF(c.r, c.g, c.b));
  }
  paintFigureFrame(painter, bar);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::black);
  for (const double value : ticks.major) {
    const double y = yOf(value);
    painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 4.0, y));
    painter.drawText(QPointF(bar.right() + 7.0, y + 0.35 * line),
                     locale.toString(value * ticks.factor, 'f', ticks.decimals));
  }
  painter.drawText(QPointF(picture.width() - 8.0 - metrics.horizontalAdvance(title), 1.6 * line),
                   title);
}

}  // namespace talvesk
