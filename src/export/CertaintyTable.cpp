#include "export/CertaintyTable.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "export/ExportFailure.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/SectionCertainty.h"

#include <cmath>
#include <ostream>
#include <vector>

namespace talvesk {
namespace {

constexpr int kDigits = 9;

std::string known(double value) {
  return std::isfinite(value) ? formatDouble(value, kDigits) : std::string();
}

void printCells(std::ostream& out, const TomoDocument& document) {
  const Grid& grid = *document.model->grid;
  const GridGeometry& geometry = grid.geometry();
  const Certainty& certainty = *document.result->certainty;
  const std::vector<double> spreads = certaintySpreads(certainty);
  out << "distance_m,elevation_m,depth_m,velocity_m_s,median_m_s,p16_m_s,p84_m_s,spread_percent,"
         "members_with_rays,ln_deviation\n";
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    if (!grid.draw(cell)) continue;
    const Point2D centre = geometry.cellCentre(cell);
    const double top = geometry.cellCentre(cell % geometry.col()).z - 0.5 * geometry.aLato();
    out << known(centre.x - document.model->xOffset) << ',' << known(-centre.z) << ','
        << known(centre.z - top);
    for (const double velocity :
         {grid.velocity(cell), certainty.velocities.median[cell], certainty.velocities.low[cell],
          certainty.velocities.high[cell]}) {
      out << ',' << known(velocity);
    }
    out << ',' << known(spreads[cell]) << ',' << certainty.touched[cell] << ','
        << known(certainty.deviations[cell]) << '\n';
  }
}

void printDepths(std::ostream& out, const TomoDocument& document) {
  const GridGeometry& geometry = document.model->grid->geometry();
  out << "distance_m,elevation_m,velocity_m_s,median_m,p16_m,p84_m\n";
  for (const IsovalueBand& band : document.result->certainty->bands) {
    for (std::uint32_t column = 0; column < geometry.col(); ++column) {
      const Point2D centre = geometry.cellCentre(column);
      out << known(centre.x - document.model->xOffset) << ','
          << known(0.5 * geometry.aLato() - centre.z) << ',' << known(band.velocity);
      for (const auto* depths : {&band.depths.median, &band.depths.low, &band.depths.high}) {
        out << ',' << known((*depths)[column]);
      }
      out << '\n';
    }
  }
}

Status writeTable(const std::string& path, const TomoDocument& document,
                  void (*print)(std::ostream& out, const TomoDocument& document)) {
  if (!document.model->grid) return cannotWrite(path, noGrid());
  const std::optional<Certainty>& certainty = document.result->certainty;
  if (!certainty || certainty->touched.size() != document.model->grid->cellCount()) {
    return cannotWrite(path,
                       Message::tr("how sure the section is is not known; find it out first"));
  }
  return told(writeTextAtomically(path, [&](std::ostream& out) { print(out, document); }));
}

}  // namespace

Status writeCertaintyTable(const std::string& path, const TomoDocument& document) {
  return writeTable(path, document, printCells);
}

Status writeDepthTable(const std::string& path, const TomoDocument& document) {
  return writeTable(path, document, printDepths);
}

}  // namespace talvesk
