#include "figures/SectionPlot.h"

#include "figures/FigureItem.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/SectionItems.h"

#include <QColor>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include <qwt_plot.h>
#include <qwt_scale_widget.h>

namespace talvesk {
namespace {

// Lengths on the sheet, in points of 1/96 inch.
constexpr double kColorBarWidth = 18.0;
constexpr double kColorBarGap = 12.0;  ///< between section and colour bar
constexpr double kSidePadding = 10.0;  ///< around the section, inside the axes
constexpr double kTopPadding = 18.0;   ///< markers stand above the ground
constexpr double kBottomPadding = 10.0;
constexpr double kMinCanvasHeight = 60.0;
constexpr double kMinCanvasWidth = 120.0;
constexpr double kLowCanvasHeight = 170.0;  ///< chosen heights leave the colour bar this much
constexpr double kHighCanvasRatio = 0.75;   ///< chosen heights are at most this part of the width

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

/// The colour bar as its classes, which stay sharp where Qwt's own bar is an image. From the far
/// end to the lower end of each class: the classes that follow paint over it, and no seam can show
/// between them.
void paintColorBar(QPainter& painter, const ColorTable& colors, const QRectF& bar, bool upright) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(Qt::NoPen);
  for (int i = 0; i < colors.size(); ++i) {
    const double above = (colors.classRange(i).min - colors.range().min) / colors.range().span();
    QRectF part = bar;
    if (upright) {
      part.setBottom(bar.bottom() - bar.height() * above);
    } else {
      part.setLeft(bar.left() + bar.width() * above);
    }
    painter.fillRect(part, toColor(colors[i]));
  }
  paintFigureFrame(painter, bar);
  painter.restore();
}

}  // namespace

struct SectionPlot::Parts {
  Parts(SectionScene aScene, const SectionFigureOptions& someOptions)
      : options(someOptions),
        scene(std::move(aScene)),
        colors(sectionColors(scene, options.palette)),
        low(scene.lowerLeft()),
        high(scene.upperRight()) {}

  bool hasColorBar() const {
    return options.colorBar != ColorBar::kNone && scene.fill != SectionFill::kNone;
  }
  void style();
  void addLayers();
  void measure(double widthMm, double heightMm, SectionFigureLayout& layout);
  void setScales(double width, double height);
  void takePlace(const PlotPlace& place, SectionFigureLayout& layout) const;
  /// Carries the numbers of the colour bar.
  int barAxis() const {
    return options.colorBar == ColorBar::kVertical ? QwtPlot::yRight : QwtPlot::xTop;
  }

  SectionFigureOptions options;
  SectionScene scene;
  ColorTable colors;
  Point2D low;
  Point2D high;
  double exaggeration = 1.0;
  FigurePlot figure;  // goes first at the end: its items look at the members above
};

void SectionPlot::Parts::style() {
  figure.addAxis(QwtPlot::xBottom, FigureWords::distanceAxis());
  figure.addAxis(QwtPlot::yLeft, FigureWords::elevationAxis());
  if (!hasColorBar()) return;
  const bool upright = options.colorBar == ColorBar::kVertical;
  figure.addAxis(barAxis(), FigureWords::quantityAxis(scene.quantity));
  figure.plot().axisWidget(barAxis())->setMargin(static_cast<int>(kColorBarGap + kColorBarWidth));
  figure.setPaintBeside(barAxis(), [this, upright](QPainter& painter, const QRectF& axis,
                                                   const QRectF& canvas) {
    const QRectF bar =
        upright ? QRectF(axis.left() + kColorBarGap, canvas.top(), kColorBarWidth, canvas.height())
                : QRectF(canvas.left(), axis.bottom() - kColorBarGap - kColorBarWidth,
                         canvas.width(), kColorBarWidth);
    paintColorBar(painter, colors, bar, upright);
  });
}

void SectionPlot::Parts::addLayers() {
  using namespace section_items;
  if (scene.fill == SectionFill::kSmooth) {
    figure.add(smoothCells(scene, colors));
  } else if (scene.fill != SectionFill::kNone) {
    figure.add(cells(scene, colors));
  }
  if (options.gridLines) figure.add(gridLines());
  figure.add(lines({scene.surface}, {}, Qt::black, {1.2, false}));
  if (const double size = markerSize(options.geophones); size > 0.0) {
    figure.add(markers(scene.geophones, FigureWords::tr("Geophones"), Marker::kGeophone, size));
    figure.add(markers(scene.shots, FigureWords::tr("Shots"), Marker::kShot, size));
  }
  if (!scene.contours.empty()) figure.add(contours(scene, options.contourStyle));
  if (!scene.rays.empty()) {
    const QColor rayColor = QColor::fromRgbF(0.0, 0.0, 0.0, rayOpacity(scene.rays.size()));
    figure.add(lines(scene.rays, FigureWords::tr("Rays"), rayColor, {0.5, false}));
  }
  if (!scene.coverageLimit.empty()) {
    figure.add(lines({scene.coverageLimit}, FigureWords::tr("Coverage limit"), coverageColor(),
                     {1.4, true}));
  }
  for (std::size_t i = 0; i < scene.refractors.size(); ++i) {
    const std::string& name = scene.refractors[i].name;
    figure.add(lines(scene.refractors[i].pieces,
                     name.empty() ? FigureWords::refractor(i) : qt(name), refractorColor(i),
                     {2.0, false}));
  }
}

void SectionPlot::Parts::measure(double widthMm, double heightMm, SectionFigureLayout& layout) {
  takePlace(figure.measure(widthMm, heightMm), layout);
  layout.widthMm = widthMm;
  layout.heightMm = heightMm;
}

void SectionPlot::Parts::takePlace(const PlotPlace& place, SectionFigureLayout& layout) const {
  layout.leftMm = place.leftMm;
  layout.rightMm = place.rightMm;
  layout.topMm = place.topMm;
  layout.bottomMm = place.bottomMm;
  layout.minX = place.left;
  layout.maxX = place.right;
  layout.minElevation = place.bottom;
  layout.maxElevation = place.top;
  layout.verticalExaggeration = exaggeration;
}

/// Scales for a canvas of this size, points: as large as the section fits in, in the middle.
void SectionPlot::Parts::setScales(double width, double height) {
  const double perPoint =
      std::max((high.x - low.x) / (width - 2.0 * kSidePadding),
               (high.z - low.z) * exaggeration / (height - kTopPadding - kBottomPadding));
  const double halfWidth = 0.5 * width * perPoint;
  const double middleX = 0.5 * (low.x + high.x);
  const double halfHeight = 0.5 * height * perPoint / exaggeration;
  const double middleZ =
      0.5 * (low.z + high.z) + 0.5 * (kTopPadding - kBottomPadding) * perPoint / exaggeration;
  const auto set = [this](int axis, double from, double to, double length, double spacing) {
    figure.setScale(axis, {from, to, from, to, length, spacing});
  };
  set(QwtPlot::xBottom, middleX - halfWidth, middleX + halfWidth, width, 80.0);
  set(QwtPlot::yLeft, middleZ - halfHeight, middleZ + halfHeight, height, 40.0);
  if (hasColorBar()) {
    const bool upright = options.colorBar == ColorBar::kVertical;
    set(barAxis(), scene.range.min, scene.range.max, upright ? height : width,
        upright ? 30.0 : 60.0);
  }
  figure.plot().updateAxes();
}

SectionPlot::SectionPlot(SectionScene scene, const SectionFigureOptions& options)
    : mParts(std::make_unique<Parts>(std::move(scene), options)) {
  Parts& parts = *mParts;
  QString title = qt(options.title.empty() ? parts.scene.title : options.title).simplified();
  if (title.isEmpty()) title = FigureWords::quantity(parts.scene.quantity);
  mTitle = title.toStdString();
  parts.style();
  parts.addLayers();
}

SectionPlot::~SectionPlot() = default;

Status SectionPlot::layOut(double widthMm, double heightMm) {
  Parts& parts = *mParts;
  const double perMm = parts.figure.pointsPerMm();
  const double spanX = parts.high.x - parts.low.x;
  const double spanZ = parts.high.z - parts.low.z;
  if (!(spanX > 0.0) || !(spanZ > 0.0) || !std::isfinite(spanX) || !std::isfinite(spanZ)) {
    return Status::failure(Message::tr("The section has no extent to draw."));
  }
  parts.exaggeration = parts.options.verticalExaggeration > 0.0
                           ? parts.options.verticalExaggeration
                           : legibleExaggeration(spanZ / spanX);

  const QString caption =
      FigureWords::joined(FigureWords::sectionFacts(parts.scene, parts.exaggeration));
  parts.figure.setTexts(parts.options.showTitle ? mTitle : std::string(), caption.toStdString(),
                        widthMm);

  // How wide the numbers at the axes are depends on the scales, which depend on the room that the
  // numbers leave: twice round settles it.
  double sheetHeightMm = heightMm > 0.0 ? heightMm : 0.6 * widthMm;
  parts.setScales(0.8 * widthMm * perMm, 0.6 * sheetHeightMm * perMm);
  for (int round = 0; round < 2; ++round) {
    parts.measure(widthMm, sheetHeightMm, mLayout);
    const double width = (mLayout.rightMm - mLayout.leftMm) * perMm;
    double height = (mLayout.bottomMm - mLayout.topMm) * perMm;
    if (heightMm <= 0.0 && width >= kMinCanvasWidth) {
      const double wanted = spanZ * parts.exaggeration / spanX * (width - 2.0 * kSidePadding) +
                            kTopPadding + kBottomPadding;
      const double chosen = std::max(std::min(wanted, kHighCanvasRatio * width), kLowCanvasHeight);
      sheetHeightMm += (chosen - height) / perMm;
      height = chosen;
    }
    if (width < kMinCanvasWidth || height < kMinCanvasHeight) {
      return Status::failure(
          Message::tr("The picture is too small for the section with its axes and texts: "
                      "choose a larger size."));
    }
    parts.setScales(width, height);
  }
  parts.measure(widthMm, sheetHeightMm, mLayout);
  return {};
}

void SectionPlot::paint(QPainter& painter, const QRectF& sheet) {
  mParts->takePlace(mParts->figure.paint(painter, sheet, mLayout.widthMm), mLayout);
}

double legibleExaggeration(double heightOverWidth) {
  constexpr double kLegible = 0.25;
  for (const double factor : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (factor * heightOverWidth >= kLegible) return factor;
  }
  return 10.0;
}

}  // namespace talvesk
