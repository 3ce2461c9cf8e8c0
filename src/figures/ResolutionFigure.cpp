#include "figures/ResolutionFigure.h"

#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "grid/GridGeometry.h"
#include "view/ShownUnit.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace talvesk {
namespace {

// Millimetres.
constexpr double kMargin = 4.0;
constexpr double kTitle = 7.0;
constexpr double kAxis = 12.0;
constexpr double kGap = 16.0;
constexpr double kLegend = 14.0;
constexpr double kCurveShare = 0.5;  // width of the curve over that of a section
constexpr double kLeastHeight = 45.0;
constexpr double kMostHeight = 120.0;
constexpr double kPoints = 8.0;
constexpr double kWidthMm = 260.0;  // of a file

/// White for the background, blue for faster, red for slower.
QColor colourOf(double ratio, double strength) {
  const double t = std::clamp((ratio - 1.0) / strength, -1.0, 1.0);
  const auto mix = [&](int end) { return 255 - static_cast<int>((255 - end) * std::fabs(t)); };
  return t > 0.0 ? QColor(mix(25), mix(80), mix(170)) : QColor(mix(190), mix(40), mix(35));
}

struct Frame {
  double left, right, low, high;  ///< metres, heights upward
};

/// Of the ground, with a margin of one cell above.
Frame frameOf(const GridGeometry& geometry, double xOffset) {
  const std::vector<double>& surface = geometry.surfaceProfile();
  const auto [low, high] = std::minmax_element(surface.begin(), surface.end());
  return {-xOffset, geometry.col() * geometry.aLato() - xOffset,
          *low - geometry.righe() * geometry.aLato(), *high + geometry.aLato()};
}

/// A rectangle of a picture with elevations upward; everything on it in millimetres.
class Panel {
 public:
  /// \param unit of what goes to the right
  Panel(QPainter& painter, const QRectF& place, const Frame& frame, const char* unit)
      : mPainter(painter), mPlace(place), mFrame(frame), mUnit(shownUnit(unit)) {}

  double x(double value) const {
    return mPlace.left() + (value - mFrame.left) / (mFrame.right - mFrame.left) * mPlace.width();
  }
  double y(double value) const {
    return mPlace.bottom() - (value - mFrame.low) / (mFrame.high - mFrame.low) * mPlace.height();
  }
  void text(const QRectF& place, int flags, const QString& words) const {
    mPainter.save();
    mPainter.setPen(Qt::black);
    mPainter.drawText(place, flags | Qt::TextDontClip, words);
    mPainter.restore();
  }
  void title(const QString& words) const {
    text({mPlace.left(), mPlace.top() - kTitle, mPlace.width(), kTitle - 1.0}, Qt::AlignCenter,
         words);
  }
  void frame(const QString& below, const QString& beside) const {
    mPainter.setPen(QPen(Qt::black, 0.2));
    mPainter.setBrush(Qt::NoBrush);
    mPainter.drawRect(mPlace);
    const auto each = [](double from, double to, const ShownUnit& unit, const auto& mark) {
      for (const double shown : ticks(unit.shown(from), unit.shown(to))) {
        mark(shown / unit.factor, figureLocale().toString(shown, 'g', 6));
      }
    };
    each(mFrame.left, mFrame.right, mUnit, [this](double value, const QString& number) {
      const double at = x(value);
      mPainter.drawLine(QPointF(at, mPlace.bottom()), QPointF(at, mPlace.bottom() + 1.0));
      text({at - 10.0, mPlace.bottom() + 1.2, 20.0, 4.0}, Qt::AlignHCenter | Qt::AlignTop, number);
    });
    each(mFrame.low, mFrame.high, shownUnit("m"), [this](double value, const QString& number) {
      const double at = y(value);
      mPainter.drawLine(QPointF(mPlace.left() - 1.0, at), QPointF(mPlace.left(), at));
      text({mPlace.left() - 12.0, at - 2.0, 10.5, 4.0}, Qt::AlignRight | Qt::AlignVCenter, number);
    });
    text({mPlace.left(), mPlace.bottom() + 5.5, mPlace.width(), 5.0}, Qt::AlignCenter, below);
    text({mPlace.left() - 12.0, mPlace.top() - kTitle, 12.0, kTitle - 1.0},
         Qt::AlignLeft | Qt::AlignVCenter, beside);
  }

 private:
  static std::vector<double> ticks(double from, double to) {
    const double decade = std::pow(10.0, std::floor(std::log10((to - from) / 4.0)));
    double step = decade;
    for (const double factor : {2.0, 5.0, 10.0}) {
      if ((to - from) / step > 6.0) step = factor * decade;
    }
    std::vector<double> all;
    for (double value = std::ceil(from / step) * step; value <= to + 1e-9 * step; value += step) {
      all.push_back(std::round(value / step) * step + 0.0);  // no -0
    }
    return all;
  }

  QPainter& mPainter;
  QRectF mPlace;
  Frame mFrame;
  ShownUnit mUnit;
};

void paintCells(QPainter& painter, const Panel& panel, const ResolutionPanels& panels,
                const std::vector<double>& values, bool all) {
  const GridGeometry& geometry = *panels.geometry;
  const double half = 0.5 * geometry.aLato();
  painter.setPen(Qt::NoPen);
  for (std::uint32_t cell = 0; cell < values.size(); ++cell) {
    const Point2D centre = geometry.cellCentre(cell);
    const double x = centre.x - panels.xOffset;
    const QRectF place(QPointF(panel.x(x - half), panel.y(-centre.z + half)),
                       QPointF(panel.x(x + half), panel.y(-centre.z - half)));
    const bool known = all || panels.covered[cell];
    painter.setBrush(known ? colourOf(values[cell], panels.strength) : QColor(225, 225, 225));
    painter.drawRect(place.adjusted(0.0, 0.0, 0.03, 0.03));
  }
}

void paintCurve(QPainter& painter, const QRectF& place, const ResolutionPanels& panels) {
  const double deepest = panels.geometry->righe() * panels.geometry->aLato();
  const Panel panel(painter, place, {-0.2, 1.0, -deepest, 0.0}, "");
  painter.setPen(QPen(Qt::darkGray, 0.2, Qt::DashLine));
  painter.drawLine(QPointF(panel.x(panels.threshold), place.top()),
                   QPointF(panel.x(panels.threshold), place.bottom()));
  painter.setPen(QPen(QColor(31, 90, 150), 0.4));
  for (std::size_t i = 0; i + 1 < panels.depths.size(); ++i) {
    if (std::isnan(panels.correlations[i] + panels.correlations[i + 1])) continue;
    const auto at = [&](std::size_t k) {
      return QPointF(panel.x(std::max(panels.correlations[k], -0.2)), panel.y(-panels.depths[k]));
    };
    painter.drawLine(at(i), at(i + 1));
  }
  panel.title(FigureWords::tr("Correlation by depth"));
  panel.frame(FigureWords::tr("Correlation of true and recovered"), QString());
}

void paintLegend(QPainter& painter, const QRectF& place, double strength) {
  constexpr int kSteps = 60;
  painter.setPen(Qt::NoPen);
  const double step = place.width() / kSteps;
  for (int i = 0; i < kSteps; ++i) {
    const double ratio = 1.0 + strength * (2.0 * (i + 0.5) / kSteps - 1.0);
    painter.setBrush(colourOf(ratio, strength));
    painter.drawRect(QRectF(place.left() + i * step, place.top(), step + 0.03, 3.0));
  }
  painter.setPen(Qt::black);
  const QString percent = figureLocale().toString(100.0 * strength, 'g', 6);
  const QRectF below(place.left() - 20.0, place.top() + 3.5, place.width() + 40.0, 4.0);
  painter.drawText(
      below, Qt::AlignCenter | Qt::TextDontClip,
      FigureWords::tr("-%1 % to +%1 % of the section's velocity; grey: no ray").arg(percent));
}

}  // namespace

Status prepareResolutionFigure(const ResolutionPanels& panels, double widthMm,
                               FigureDrawing& drawing) {
  if (panels.geometry == nullptr || panels.truth.empty() ||
      panels.recovered.size() != panels.truth.size()) {
    return Status::failure(Message::tr("There is no resolution test to draw."));
  }
  const Frame frame = frameOf(*panels.geometry, panels.xOffset);
  const double width = (widthMm - 2.0 * kMargin - 3.0 * kGap) / (2.0 + kCurveShare);
  const double height = std::clamp(width * (frame.high - frame.low) / (frame.right - frame.left),
                                   kLeastHeight, kMostHeight);
  drawing.sheet.widthMm = widthMm;
  drawing.sheet.heightMm = height + kTitle + kAxis + kLegend + 2.0 * kMargin;
  drawing.paint = [panels, frame, width, height, widthMm](QPainter& painter, const QRectF& sheet) {
    painter.save();
    painter.translate(sheet.topLeft());
    painter.scale(sheet.width() / widthMm, sheet.width() / widthMm);
    QFont font = figureFont(kPoints);
    font.setPixelSize(3);  // millimetres here
    painter.setFont(font);
    const double top = kMargin + kTitle;
    double left = kMargin + kGap - 4.0;
    for (const bool truth : {true, false}) {
      const Panel panel(painter, {left, top, width, height}, frame, "m");
      paintCells(painter, panel, panels, truth ? panels.truth : panels.recovered, truth);
      panel.title(truth ? FigureWords::tr("True") : FigureWords::tr("Recovered"));
      panel.frame(FigureWords::distanceAxis(), FigureWords::tr("[%1]").arg(lengthUnitText()));
      left += width + kGap;
    }
    paintCurve(painter, {left, top, kCurveShare * width, height}, panels);
    paintLegend(painter, {kMargin + kGap + width - 25.0, top + height + kAxis, 50.0, kLegend},
                panels.strength);
    painter.restore();
  };
  return {};
}

Status writeResolutionFigure(const ResolutionPanels& panels, const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    FigureDrawing drawing;
    const Status status = prepareResolutionFigure(panels, kWidthMm, drawing);
    return status.ok() ? paintFigure(format, drawing.sheet, drawing.paint, bytes) : status;
  });
}

}  // namespace talvesk
