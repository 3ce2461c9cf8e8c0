#include "export/CurtainTable.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"
#include "export/LineOnMap.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

constexpr int kPlaceDigits = 11;  ///< a millimetre or less on any map
constexpr int kDigits = 9;

std::string known(double value, int digits = kDigits) {
  return std::isfinite(value) ? formatDouble(value, digits) : std::string();
}

void printCells(std::ostream& out, const TomoDocument& document, const LineOnMap& map) {
  const Grid& grid = *document.model->grid;
  const std::vector<double>& coverage = document.result->coorcount;
  const bool covered = document.result->has_tomographic_info && coverage.size() == grid.cellCount();
  const std::string system = map.epsg() > 0 ? "_epsg" + std::to_string(map.epsg()) : "";
  out << "easting_m" << system << ",northing_m" << system
      << ",elevation_m,distance_m,depth_m,velocity_m_s,coverage_m\n";
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    if (!grid.draw(cell)) continue;
    const Point2D centre = grid.cellCentre(cell);
    const double top = grid.cellCentre(cell % grid.col()).z - 0.5 * grid.aLato();
    const double distance = centre.x - document.model->xOffset;
    const MapPoint place = map.at(distance);
    out << known(place.easting, kPlaceDigits) << ',' << known(place.northing, kPlaceDigits) << ','
        << known(-centre.z) << ',' << known(distance) << ',' << known(centre.z - top) << ','
        << known(grid.velocity(cell)) << ',' << (covered ? known(coverage[cell]) : "") << '\n';
  }
}

bool anyDrawn(const Grid& grid) {
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    if (grid.draw(cell)) return true;
  }
  return false;
}

}  // namespace

Status writeCurtainTable(const std::string& path, const TomoDocument& document) {
  if (!document.model->grid) return cannotWrite(path, noGrid());
  if (!anyDrawn(*document.model->grid)) return cannotWrite(path, noCellDrawn());
  const LineOnMap map(document);
  if (!map.status().ok()) return cannotWrite(path, map.status().text());
  return told(
      writeTextAtomically(path, [&](std::ostream& out) { printCells(out, document, map); }));
}

}  // namespace talvesk
