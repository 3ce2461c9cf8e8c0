#include "figures/SectionPlot.h"

#include "figures/FigureFile.h"
#include "figures/FigureOutput.h"
#include "figures/FigureWords.h"
#include "figures/SectionCamera.h"
#include "figures/SectionItems.h"
#include "figures/SectionPaper.h"
#include "model/TomoDocument.h"

#include <QPaintDevice>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

// Lengths on the sheet, in points of 1/96 inch.
constexpr double kPointsPerInch = 96.0;
constexpr double kPointsPerMm = kPointsPerInch / 25.4;
constexpr double kMinPlotHeight = 60.0;
constexpr double kMinPlotWidth = 120.0;
constexpr double kLowPlotHeight = 170.0;  ///< chosen heights leave the colour bar this much
constexpr double kHighPlotRatio = 0.75;   ///< chosen heights are at most this part of the width
constexpr int kFontPixels = 12;

SectionDress dressOf(const SectionFigureOptions& options, const QString& title) {
  SectionDress dress;
  dress.font = figureFont(9.0);
  dress.font.setPixelSize(kFontPixels);
  if (options.showTitle) dress.title = title;
  dress.colorBar = options.colorBar;
  dress.gridLines = options.gridLines;
  dress.geophones = options.geophones;
  dress.contours = options.contourStyle;
  return dress;
}

QString titleOf(const SectionScene& scene, const SectionFigureOptions& options) {
  const QString title = QString::fromStdString(options.title).simplified();
  return title.isEmpty() ? FigureWords::sectionTitle(scene) : title;
}

Status checkOptions(const SectionFigureOptions& options) {
  constexpr auto kRange = parameters::kExaggeration.limits;
  const double exaggeration = options.verticalExaggeration;
  if (exaggeration != 0.0 && !(exaggeration >= kRange.least && exaggeration <= kRange.most)) {
    return Status::failure(
        Message::tr("The vertical exaggeration must lie between 0.01 and 100, or be 0 to "
                    "let the picture choose."));
  }
  if (options.palette.color_gradient.empty()) {
    return Status::failure(
        Message::tr("The palette \"%1\" has no colours.").arg(options.palette.name));
  }
  return checkApplication("A section");
}

}  // namespace

struct SectionPlot::Parts {
  Parts(SectionScene aScene, const SectionFigureOptions& someOptions)
      : options(someOptions),
        scene(std::move(aScene)),
        colors(sectionColors(scene, options.palette)),
        extent(scene),
        title(titleOf(scene, options)),
        paper(scene, extent, colors, dressOf(options, title)) {}

  Status chooseExaggeration();
  QPointF cornerOf(const PlotPart& part, const QSizeF& whole);
  QRect plotRect(const QSizeF& size) const { return paper.plotRect(size, camera.exaggeration); }
  SectionFigureLayout place(const QSizeF& size);
  void paintFill(QPainter& painter, const QRect& plot) const;

  SectionFigureOptions options;
  SectionScene scene;
  ColorTable colors;
  SectionExtent extent;
  QString title;
  SectionPaper paper;
  SectionCamera camera;
  double metresPerPoint = 0.0;    ///< 0: as large as the sheet has room for
  std::optional<QPointF> corner;  ///< upper left of a part, survey position; none: all of it
  SectionWhole cutFrom;           ///< the part
};

/// By the options or by the section's own shape, which it must have.
Status SectionPlot::Parts::chooseExaggeration() {
  const double spanX = extent.high.x - extent.low.x;
  const double spanZ = extent.high.z - extent.low.z;
  if (!(spanX > 0.0) || !(spanZ > 0.0) || !std::isfinite(spanX) || !std::isfinite(spanZ)) {
    return Status::failure(Message::tr("The section has no extent to draw."));
  }
  camera.exaggeration = options.verticalExaggeration > 0.0 ? options.verticalExaggeration
                                                           : legibleExaggeration(spanZ / spanX);
  return {};
}

/// \param whole plot, points, at metresPerPoint
QPointF SectionPlot::Parts::cornerOf(const PlotPart& part, const QSizeF& whole) {
  paper.fit(camera, whole);
  camera.zoomAt(QRectF(QPointF(), whole).center(), camera.metresPerPixel / metresPerPoint, whole);
  const QTransform back = camera.toPicture(whole).inverted();
  return back.map(QPointF(part.leftMm, part.topMm) * kPointsPerMm);
}

/// Brings the section into a sheet of that size, points.
SectionFigureLayout SectionPlot::Parts::place(const QSizeF& size) {
  const QRectF plot(plotRect(size));
  paper.fit(camera, plot.size());
  if (metresPerPoint > 0.0) {
    camera.zoomAt(QRectF(QPointF(), plot.size()).center(), camera.metresPerPixel / metresPerPoint,
                  plot.size());
  }
  if (corner) {
    camera.centre.x = corner->x() + 0.5 * plot.width() * metresPerPoint;
    camera.centre.z = corner->y() - 0.5 * plot.height() * metresPerPoint / camera.exaggeration;
  }
  const QRectF seen =
      camera.toPicture(plot.size()).inverted().mapRect(QRectF(QPointF(), plot.size()));
  SectionFigureLayout layout;
  layout.widthMm = size.width() / kPointsPerMm;
  layout.heightMm = size.height() / kPointsPerMm;
  layout.leftMm = plot.left() / kPointsPerMm;
  layout.rightMm = plot.right() / kPointsPerMm;
  layout.topMm = plot.top() / kPointsPerMm;
  layout.bottomMm = plot.bottom() / kPointsPerMm;
  layout.minX = seen.left();
  layout.maxX = seen.right();
  layout.minElevation = seen.top();
  layout.maxElevation = seen.bottom();
  layout.verticalExaggeration = camera.exaggeration;
  return layout;
}

/// What OpenGL draws on the screen.
void SectionPlot::Parts::paintFill(QPainter& painter, const QRect& plot) const {
  const QTransform map =
      camera.toPicture(plot.size()) * QTransform::fromTranslate(plot.left(), plot.top());
  painter.save();
  painter.setClipRect(plot);
  if (scene.fill == SectionFill::kSmooth) {
    section_items::paintSmoothCells(painter, scene, colors, map, plot);
  } else if (scene.fill != SectionFill::kNone) {
    section_items::paintCells(painter, scene, colors, map);
  }
  if (!scene.rays.empty()) section_items::paintRays(painter, scene, map);
  if (!scene.contours.empty()) {
    section_items::paintContours(painter, scene, options.contourStyle, map);
  }
  painter.restore();
}

SectionPlot::SectionPlot(SectionScene scene, const SectionFigureOptions& options)
    : mParts(std::make_unique<Parts>(std::move(scene), options)),
      mTitle(mParts->title.toStdString()) {}

SectionPlot::~SectionPlot() = default;

Status SectionPlot::layOut(double widthMm, double heightMm) {
  Parts& parts = *mParts;
  if (Status status = parts.chooseExaggeration(); !status.ok()) return status;
  parts.metresPerPoint = 0.0;
  parts.corner.reset();

  QSizeF size = QSizeF(widthMm, heightMm > 0.0 ? heightMm : 0.6 * widthMm) * kPointsPerMm;
  // How wide the numbers of the colour bar are depends on how many its height takes: twice round
  // settles it.
  for (int round = 0; round < 2; ++round) {
    const QRect plot = parts.plotRect(size);
    if (heightMm <= 0.0 && plot.width() >= kMinPlotWidth) {
      const double wanted = parts.paper.heightToFill(plot.width(), parts.camera.exaggeration);
      const double chosen =
          std::max(std::min(wanted, kHighPlotRatio * plot.width()), kLowPlotHeight);
      size.rheight() += chosen - plot.height();
    }
  }
  const QRect plot = parts.plotRect(size);
  if (plot.width() < kMinPlotWidth || plot.height() < kMinPlotHeight) {
    return Status::failure(
        Message::tr("The picture is too small for the section with its axes and texts: "
                    "choose a larger size."));
  }
  mLayout = parts.place(size);
  return {};
}

Status SectionPlot::layOutToScale(double scale, const std::optional<PlotPart>& part,
                                  double meetMm) {
  Parts& parts = *mParts;
  if (Status status = parts.chooseExaggeration(); !status.ok()) return status;
  parts.metresPerPoint = 1e-3 * scale / kPointsPerMm;
  const double along = (parts.extent.high.x - parts.extent.low.x) / parts.metresPerPoint;
  const double width = std::max(along + 2.0 * SectionCamera::Padding().side, kMinPlotWidth);
  const double height =
      std::max(parts.paper.heightToFill(width, parts.camera.exaggeration), kLowPlotHeight);
  QSizeF held(std::ceil(width), std::ceil(height));
  parts.corner.reset();
  if (part) {
    parts.corner = parts.cornerOf(*part, held);
    parts.cutFrom = {QRectF(QPointF(-part->leftMm, -part->topMm) * kPointsPerMm, held),
                     meetMm * kPointsPerMm};
    held = {std::ceil(part->widthMm * kPointsPerMm), std::ceil(part->heightMm * kPointsPerMm)};
  }
  mLayout = {};
  mLayout.widthMm = held.width() / kPointsPerMm;
  mLayout.heightMm = held.height() / kPointsPerMm;
  if (std::max(mLayout.widthMm, mLayout.heightMm) > FigureSheet::kMaxMm) return {};
  QSizeF size = 1.2 * held;
  for (int round = 0; round < 2; ++round) {
    size += held - QSizeF(parts.plotRect(size).size());
  }
  mLayout = parts.place(size);
  return {};
}

void SectionPlot::paint(QPainter& painter, const QRectF& sheet) {
  Parts& parts = *mParts;
  const double unitsPerPoint = painter.device()->logicalDpiX() / kPointsPerInch;
  const QSizeF size = sheet.size() / unitsPerPoint;
  // A sheet of whole pixels is not quite the sheet that was laid out.
  mLayout = parts.place(size);
  painter.save();
  painter.translate(sheet.topLeft());
  painter.scale(unitsPerPoint, unitsPerPoint);
  parts.paintFill(painter, parts.plotRect(size));
  parts.paper.paint(painter, size, parts.camera, parts.corner ? &parts.cutFrom : nullptr);
  painter.restore();
}

Status makeSectionPlot(const TomoDocument& document, const SectionFigureOptions& options,
                       std::unique_ptr<SectionPlot>& plot) {
  SectionScene scene;
  Status status = buildSectionScene(document, options.scene, scene);
  if (status.ok()) status = checkOptions(options);
  if (status.ok()) plot = std::make_unique<SectionPlot>(std::move(scene), options);
  return status;
}

double legibleExaggeration(double heightOverWidth) {
  constexpr double kLegible = 0.25;
  for (const double factor : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (factor * heightOverWidth >= kLegible) return factor;
  }
  return 10.0;
}

}  // namespace talvesk
