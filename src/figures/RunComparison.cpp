#include "figures/RunComparison.h"

#include "figures/FigureOutput.h"
#include "figures/SectionFigure.h"
#include "view/VelocityDifference.h"

#include <QByteArray>
#include <QPainter>
#include <QRectF>
#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// A figure and where it lies on the sheet, millimetres.
struct Placed {
  FigureDrawing drawing;
  QRectF place;
};

Status commonRange(const RunComparison& comparison, ValueRange& range) {
  SectionScene left;
  SectionScene right;
  SectionSceneOptions plain;
  plain.coverageLimit = false;
  Status status = buildSectionScene(comparison.left, plain, left);
  if (status.ok()) status = buildSectionScene(comparison.right, plain, right);
  if (!status.ok()) return status;
  range = niceRange({std::min(left.dataRange.min, right.dataRange.min),
                     std::max(left.dataRange.max, right.dataRange.max)});
  const ColorPalette& palette = comparison.look.palette;
  if (comparison.lockedRange && palette.max_db > palette.min_db) {
    range = {palette.min_db, palette.max_db};
  }
  return status;
}

SectionFigureOptions plainLook(const RunComparison& comparison, double widthMm) {
  SectionFigureOptions options = comparison.look;
  options.scene = SectionSceneOptions();
  options.widthMm = widthMm;
  options.heightMm = 0.0;
  options.dpi = comparison.dpi;
  options.showTitle = true;
  options.colorBar = ColorBar::kVertical;
  return options;
}

Status prepareDifference(const RunComparison& comparison, FigureDrawing& drawing) {
  SectionFigureOptions options = plainLook(comparison, comparison.widthMm);
  CellValues values{Message::tr("Difference of velocity"), "%",
                    velocityDifference(comparison.right, comparison.left)};
  options.scene.coverageLimit = false;  // each has its own; what is drawn lies within both
  options.scene.range = differenceRange(values.values);
  options.scene.values = std::move(values);
  options.palette = differencePalette();
  options.title = comparison.differenceTitle;
  return prepareSectionFigure(comparison.right, options, drawing);
}

}  // namespace

Status prepareRunComparison(const RunComparison& comparison, FigureDrawing& drawing) {
  const double half = comparison.widthMm / 2.0;
  SectionFigureOptions options = plainLook(comparison, half);
  ValueRange range;
  Placed left;
  Placed right;
  Placed below;
  Status status = commonRange(comparison, range);
  if (!status.ok()) return status;
  options.scene.range = range;
  options.title = comparison.leftTitle;
  status = prepareSectionFigure(comparison.left, options, left.drawing);
  options.title = comparison.rightTitle;
  if (status.ok()) status = prepareSectionFigure(comparison.right, options, right.drawing);
  if (status.ok()) status = prepareDifference(comparison, below.drawing);
  if (!status.ok()) return status;
  left.place = {0.0, 0.0, half, left.drawing.sheet.heightMm};
  right.place = {half, 0.0, half, right.drawing.sheet.heightMm};
  const double top = std::max(left.place.height(), right.place.height());
  below.place = {0.0, top, comparison.widthMm, below.drawing.sheet.heightMm};
  drawing.sheet = {comparison.widthMm, top + below.place.height(), comparison.dpi,
                   comparison.differenceTitle};
  drawing.paint = [figures = std::vector<Placed>{left, right, below}, widthMm = comparison.widthMm](
                      QPainter& painter, const QRectF& sheet) {
    const double scale = sheet.width() / widthMm;
    for (const Placed& figure : figures) {
      const QRectF& place = figure.place;
      figure.drawing.paint(painter,
                           {sheet.left() + scale * place.left(), sheet.top() + scale * place.top(),
                            scale * place.width(), scale * place.height()});
    }
  };
  return status;
}

Status writeRunComparison(const RunComparison& comparison, const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    FigureDrawing drawing;
    Status status = prepareRunComparison(comparison, drawing);
    if (status.ok()) status = drawing.sheet.check(format);
    return status.ok() ? paintFigure(format, drawing.sheet, drawing.paint, bytes) : status;
  });
}

}  // namespace talvesk
