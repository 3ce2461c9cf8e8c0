#include "export/GriddedText.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "export/ExportFailure.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>

namespace talvesk {
namespace {

/// Written in place of an infinite velocity, for a cell that no slowness was ever given to.
constexpr double kUnknownVelocity = std::numeric_limits<double>::max();

void printCells(std::ostream& out, const TomoDocument& document,
                const GriddedTextOptions& options) {
  const Grid& grid = *document.model->grid;
  const double shift = options.surveyX ? document.model->xOffset : 0.0;
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    if (!grid.draw(cell)) continue;
    const Point2D centre = grid.cellCentre(cell);
    const double velocity = grid.velocity(cell);
    out << centre.x - shift << ' ' << options.lineY << ' ' << options.zOffset - centre.z << ' '
        << (std::isfinite(velocity) ? velocity : kUnknownVelocity) << '\n';
  }
}

}  // namespace

void announceGriddedText(const std::string& path) {
  console::out() << "Exporting tomographic data on file: " << path << std::endl;
}

Status writeGriddedText(const std::string& path, const TomoDocument& document,
                        const GriddedTextOptions& options) {
  if (!document.model->grid) {
    return cannotWrite(path, noGrid());
  }
  if (!std::isfinite(options.lineY) || !std::isfinite(options.zOffset)) {
    return cannotWrite(
        path, Message::tr("the Y coordinate and the Z offset of the line must be finite numbers"));
  }
  return told(
      writeTextAtomically(path, [&](std::ostream& out) { printCells(out, document, options); }));
}

double referenceElevation(const Grid& grid) {
  double highest = -std::numeric_limits<double>::infinity();
  for (const double elevation : grid.geometry().surfaceProfile()) {
    if (std::isfinite(elevation)) highest = std::max(highest, elevation);
  }
  return std::isfinite(highest) ? highest : 0.0;
}

}  // namespace talvesk
