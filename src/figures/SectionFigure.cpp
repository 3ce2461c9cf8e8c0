#include "figures/SectionFigure.h"

#include "figures/FigureOutput.h"
#include "figures/SectionPlot.h"
#include "model/TomoDocument.h"

#include <QByteArray>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace talvesk {

SectionFigureOptions sectionFigureOptions(const SectionViewSettings& settings,
                                          const ColorPalette& palette,
                                          const std::vector<SectionLine>& refractors) {
  SectionFigureOptions options;
  options.scene = sceneOptions(settings, palette);
  if (settings.refraction) options.scene.refractors = refractors;
  options.palette = palette;
  options.contourStyle.color = settings.contours.color;
  options.contourStyle.labelEvery = settings.contours.labelEvery;
  options.contourStyle.labelPoints = std::max(settings.contours.labelSize, 1);
  options.geophones = settings.geophones;
  options.colorBar = settings.scalarBar ? ColorBar::kVertical : ColorBar::kNone;
  options.gridLines = settings.gridLines;
  options.showTitle = settings.title;
  options.verticalExaggeration = settings.verticalExaggeration;
  return options;
}

double SectionFigureLayout::xToMm(double x) const {
  return leftMm + (x - minX) / (maxX - minX) * (rightMm - leftMm);
}

double SectionFigureLayout::elevationToMm(double elevation) const {
  return topMm + (maxElevation - elevation) / (maxElevation - minElevation) * (bottomMm - topMm);
}

namespace {

/// Lays the section out for a file of that format.
Status layOut(const TomoDocument& document, const SectionFigureOptions& options,
              FigureFormat format, FigureSheet& sheet, std::unique_ptr<SectionPlot>& plot) {
  if (Status status = makeSectionPlot(document, options, plot); !status.ok()) return status;

  // Sizes are checked before anything is laid out in them; a height yet to be chosen passes.
  const double heightMm = options.heightMm == 0.0 ? FigureSheet::kMinMm : options.heightMm;
  sheet = {options.widthMm, heightMm, options.dpi, {}};
  if (Status status = sheet.check(format); !status.ok()) return status;

  if (Status status = plot->layOut(options.widthMm, options.heightMm); !status.ok()) return status;
  sheet.heightMm = plot->layout().heightMm;
  sheet.title = plot->title();
  return {};
}

}  // namespace

Status prepareSectionFigure(const TomoDocument& document, const SectionFigureOptions& options,
                            FigureDrawing& drawing) {
  std::unique_ptr<SectionPlot> plot;
  if (Status status = layOut(document, options, FigureFormat::kPdf, drawing.sheet, plot);
      !status.ok()) {
    return status;
  }
  drawing.paint = [shared = std::shared_ptr<SectionPlot>(std::move(plot))](
                      QPainter& painter, const QRectF& rect) { shared->paint(painter, rect); };
  return {};
}

Status renderSectionFigure(const TomoDocument& document, const SectionFigureOptions& options,
                           FigureFormat format, QByteArray& bytes, SectionFigureLayout* layout) {
  FigureSheet sheet;
  std::unique_ptr<SectionPlot> plot;
  if (Status status = layOut(document, options, format, sheet, plot); !status.ok()) return status;
  const auto paint = [&plot](QPainter& painter, const QRectF& rect) { plot->paint(painter, rect); };
  if (Status status = paintFigure(format, sheet, paint, bytes); !status.ok()) return status;
  if (layout != nullptr) *layout = plot->layout();
  return {};
}

Status writeSectionFigure(const TomoDocument& document, const SectionFigureOptions& options,
                          const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    return renderSectionFigure(document, options, format, bytes);
  });
}

}  // namespace talvesk
