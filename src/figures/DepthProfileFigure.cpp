#include "figures/DepthProfileFigure.h"

#include "figures/FigureFile.h"
#include "figures/FigureOutput.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/ShownLength.h"
#include "view/AxisTicks.h"

#include <QByteArray>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace talvesk {
namespace {

using Layer = DepthProfile::Layer;

const QColor kVelocityInk(31, 90, 150);
const QColor kBand(31, 90, 150, 60);
const QColor kGradientInk(176, 80, 0);
const QColor kSpreadInk(110, 20, 110);
const QColor kGrid(0, 0, 0, 35);
constexpr double kGap = 16.0;  ///< between panels, logical pixels
constexpr double kTick = 5.0;

/// One quantity against depth.
struct Panel {
  QString title;
  std::string unit;
  ValueRange range;
  QColor ink;
  std::function<double(const Layer&)> value;
  bool band = false;  ///< from low to high around it
};

ValueRange withRoom(ValueRange range, bool fromZero) {
  if (fromZero) range.min = std::min(range.min, 0.0);
  const double room = range.span() > 0.0 ? 0.04 * range.span() : 1.0;
  return {range.min < 0.0 || !fromZero ? range.min - room : 0.0, range.max + room};
}

std::vector<Panel> panelsOf(const DepthProfiles& section) {
  std::vector<Panel> panels = {
      {FigureWords::tr("Velocity [%1]").arg(velocityUnitText()), "m/s",
       withRoom(section.velocities(), true), kVelocityInk,
       [](const Layer& layer) { return layer.velocity; }, section.hasCertainty()},
      {FigureWords::tr("Vertical gradient [1/s]"), "1/s", withRoom(section.gradients(), true),
       kGradientInk, [](const Layer& layer) { return layer.gradient; }}};
  if (section.hasCertainty()) {
    panels.push_back({FigureWords::tr("Uncertainty [%]"), "%", withRoom(section.spreads(), true),
                      kSpreadInk, [](const Layer& layer) { return layer.spread; }});
  }
  return panels;
}

class ProfilePainter {
 public:
  ProfilePainter(QPainter& painter, const QRectF& sheet, const DepthProfile& profile,
                 const DepthProfiles& section, const DepthProfileDress& dress)
      : mPainter(painter),
        mSheet(sheet),
        mProfile(profile),
        mPanels(panelsOf(section)),
        mDeepest(std::max(1.03 * section.depth(), 1e-3)),
        mLocale(dress.locale),
        mMetrics(dress.font),
        mLine(mMetrics.height()) {
    mLocale.setNumberOptions(QLocale::OmitGroupSeparator);
    mPainter.setFont(dress.font);
  }

  void paint() {
    mPainter.fillRect(mSheet, Qt::white);
    mPainter.setRenderHint(QPainter::Antialiasing);
    const double left = mSheet.left() + 2.2 * mLine + mMetrics.horizontalAdvance("8888") + kTick;
    mTop = mSheet.top() + 3.6 * mLine + kTick;
    mBottom = mSheet.bottom() - 2.0 * mLine;
    const auto count = static_cast<double>(mPanels.size());
    const double width = (mSheet.right() - mLine - left - (count - 1.0) * kGap) / count;
    if (width < 20.0 || mBottom - mTop < 20.0) return;
    paintCaption(left);
    for (std::size_t i = 0; i < mPanels.size(); ++i) {
      const double at = left + static_cast<double>(i) * (width + kGap);
      const QRectF area(at, mTop, width, mBottom - mTop);
      paintDepths(area, i == 0);
      paintPanel(mPanels[i], area);
    }
  }

 private:
  double yOf(double depth) const { return mTop + depth / mDeepest * (mBottom - mTop); }
  double xOf(const Panel& panel, const QRectF& area, double value) const {
    return area.left() + (value - panel.range.min) / panel.range.span() * area.width();
  }
  QString number(double value, int decimals) const {
    return mLocale.toString(value + 0.0, 'f', decimals);
  }
  QString length(double metres) const { return withLengthUnit(number(shownLength(metres), 2)); }
  void put(const QString& text, const QPointF& middle, double angle = 0.0) {
    mPainter.save();
    mPainter.setPen(Qt::black);
    mPainter.translate(middle);
    mPainter.rotate(angle);
    mPainter.drawText(
        QPointF(-0.5 * mMetrics.horizontalAdvance(text), mMetrics.ascent() - 0.5 * mLine), text);
    mPainter.restore();
  }

  void paintCaption(double left) {
    QStringList words = {FigureWords::tr("Distance %1").arg(length(mProfile.x))};
    if (mProfile.layers.empty()) {
      words << FigureWords::tr("no section here");
    } else {
      words << FigureWords::tr("surface at %1").arg(length(mProfile.surface));
    }
    if (mPanels.front().band) words << FigureWords::tr("shaded: 16 to 84 %");
    const QString text =
        mMetrics.elidedText(FigureWords::joined(words), Qt::ElideRight, mSheet.right() - left);
    put(text, {left + 0.5 * mMetrics.horizontalAdvance(text), mBottom + mLine});
  }

  void paintDepths(const QRectF& area, bool first) {
    const int most = std::max(static_cast<int>(area.height() / (2.4 * mLine)), 2);
    const AxisTicks ticks = shownTicks(0.0, mDeepest, most, "m");
    for (const double depth : ticks.major) {
      const double y = yOf(depth);
      mPainter.setPen(QPen(kGrid, 1.0));
      mPainter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
      if (!first) continue;
      mPainter.setPen(QPen(Qt::black, 1.0));
      mPainter.drawLine(QPointF(area.left() - kTick, y), QPointF(area.left(), y));
      const QString text = number(depth * ticks.factor, ticks.decimals);
      put(text, {area.left() - kTick - 3.0 - 0.5 * mMetrics.horizontalAdvance(text), y});
    }
    if (first) {
      put(FigureWords::tr("Depth [%1]").arg(lengthUnitText()),
          {mSheet.left() + 0.8 * mLine, area.center().y()}, -90.0);
    }
  }

  void paintPanel(const Panel& panel, const QRectF& area) {
    paintValues(panel, area);
    mPainter.save();
    mPainter.setClipRect(area);
    if (panel.range.min < 0.0) {
      mPainter.setPen(QPen(Qt::black, 0.8, Qt::DashLine));
      const double zero = xOf(panel, area, 0.0);
      mPainter.drawLine(QPointF(zero, area.top()), QPointF(zero, area.bottom()));
    }
    if (panel.band) paintBand(panel, area);
    mPainter.setPen(QPen(panel.ink, 2.0));
    mPainter.setBrush(Qt::NoBrush);
    QPolygonF steps;
    for (const Layer& layer : mProfile.layers) {
      const double value = panel.value(layer);
      if (!std::isfinite(value)) {
        mPainter.drawPolyline(steps);
        steps.clear();
        continue;
      }
      const double x = xOf(panel, area, value);
      steps << QPointF(x, yOf(layer.top)) << QPointF(x, yOf(layer.bottom));
    }
    mPainter.drawPolyline(steps);
    mPainter.restore();
    paintFigureFrame(mPainter, area);
  }

  void paintBand(const Panel& panel, const QRectF& area) {
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(kBand);
    for (const Layer& layer : mProfile.layers) {
      if (!std::isfinite(layer.low) || !std::isfinite(layer.high)) continue;
      mPainter.drawRect(QRectF(QPointF(xOf(panel, area, layer.low), yOf(layer.top)),
                               QPointF(xOf(panel, area, layer.high), yOf(layer.bottom))));
    }
  }

  /// Whether the numbers of an axis stand clear of each other.
  bool standClear(const AxisTicks& ticks, const Panel& panel, const QRectF& area) const {
    double end = -std::numeric_limits<double>::infinity();
    for (const double value : ticks.major) {
      const QString text = number(value * ticks.factor, ticks.decimals);
      const double half = 0.5 * mMetrics.horizontalAdvance(text);
      const double middle = xOf(panel, area, value);
      if (middle - half < end + 0.4 * mLine) return false;
      end = middle + half;
    }
    return true;
  }

  /// As many as have room beside each other.
  AxisTicks valueTicks(const Panel& panel, const QRectF& area) const {
    constexpr int kMost = 10;
    AxisTicks ticks;
    for (int most = kMost; most > 0; --most) {
      ticks = shownTicks(panel.range.min, panel.range.max, most, panel.unit);
      if (standClear(ticks, panel, area)) break;
    }
    return ticks;
  }

  void paintValues(const Panel& panel, const QRectF& area) {
    const AxisTicks ticks = valueTicks(panel, area);
    mPainter.setPen(QPen(Qt::black, 1.0));
    for (const double value : ticks.minor) {
      const double x = xOf(panel, area, value);
      mPainter.drawLine(QPointF(x, area.top() - 0.5 * kTick), QPointF(x, area.top()));
    }
    for (const double value : ticks.major) {
      const double x = xOf(panel, area, value);
      mPainter.setPen(QPen(kGrid, 1.0));
      mPainter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
      mPainter.setPen(QPen(Qt::black, 1.0));
      mPainter.drawLine(QPointF(x, area.top() - kTick), QPointF(x, area.top()));
      put(number(value * ticks.factor, ticks.decimals), {x, area.top() - kTick - 0.6 * mLine});
    }
    const QString title = mMetrics.elidedText(panel.title, Qt::ElideRight, area.width() + kGap);
    put(title, {area.center().x(), area.top() - kTick - 2.1 * mLine});
  }

  QPainter& mPainter;
  QRectF mSheet;
  const DepthProfile& mProfile;
  std::vector<Panel> mPanels;
  double mDeepest;  ///< at the foot of the axis, metres
  QLocale mLocale;
  QFontMetricsF mMetrics;
  double mLine;
  double mTop = 0.0;
  double mBottom = 0.0;
};

}  // namespace

void paintDepthProfile(QPainter& painter, const QRectF& sheet, const DepthProfile& profile,
                       const DepthProfiles& section, const DepthProfileDress& dress) {
  painter.save();
  ProfilePainter(painter, sheet, profile, section, dress).paint();
  painter.restore();
}

Status prepareDepthProfileFigure(const DepthProfile& profile, const DepthProfiles& section,
                                 double widthMm, double heightMm, FigureDrawing& drawing) {
  if (section.empty()) return Status::failure(Message::tr("There is no section to draw."));
  drawing.sheet = {widthMm, heightMm, 150.0, "Depth profile"};
  drawing.paint = [profile, section](QPainter& painter, const QRectF& all) {
    constexpr double kPointsPerInch = 96.0;
    const double scale = painter.device()->logicalDpiX() / kPointsPerInch;
    DepthProfileDress dress;
    dress.font = figureFont(9.0);
    dress.font.setPixelSize(12);
    painter.save();
    painter.translate(all.topLeft());
    painter.scale(scale, scale);
    paintDepthProfile(painter, QRectF(QPointF(), all.size() / scale), profile, section, dress);
    painter.restore();
  };
  return {};
}

Status writeDepthProfile(const std::string& path, const DepthProfile& profile,
                         const DepthProfiles& section) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    FigureDrawing drawing;
    const Status status = prepareDepthProfileFigure(profile, section, 180.0, 140.0, drawing);
    return status.ok() ? paintFigure(format, drawing.sheet, drawing.paint, bytes) : status;
  });
}

}  // namespace talvesk
