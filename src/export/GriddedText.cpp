#include "export/GriddedText.h"

#include "base/AtomicFile.h"
#include "base/Console.h"

#include <cmath>
#include <limits>
#include <ostream>

namespace talvesk {
namespace {

/// Written in place of an infinite velocity, for a cell that no slowness was ever given to.
constexpr double kUnknownVelocity = std::numeric_limits<double>::max();

Status refuse(const std::string& path, const std::string& reason) {
  const std::string message = "Cannot write " + path + ": " + reason;
  console::error() << message << std::endl;
  return Status::failure(message);
}

void printCells(std::ostream& out, const Grid& grid, double lineY, double zOffset) {
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    if (!grid.draw(cell)) continue;
    const Point2D centre = grid.cellCentre(cell);
    const double velocity = grid.velocity(cell);
    out << centre.x << ' ' << lineY << ' ' << zOffset - centre.z << ' '
        << (std::isfinite(velocity) ? velocity : kUnknownVelocity) << '\n';
  }
}

}  // namespace

Status writeGriddedText(const std::string& path, const TomoDocument& document, double lineY,
                        double zOffset) {
  console::out() << "Exporting tomographic data on file: " << path << std::endl;
  if (!document.grid) {
    return refuse(path, "the survey has no grid; create the grid or run the inversion first");
  }
  if (!std::isfinite(lineY) || !std::isfinite(zOffset)) {
    return refuse(path, "the Y coordinate and the Z offset of the line must be finite numbers");
  }
  Status written = writeTextAtomically(
      path, [&](std::ostream& out) { printCells(out, *document.grid, lineY, zOffset); });
  if (!written.ok()) console::error() << written.message() << std::endl;
  return written;
}

}  // namespace talvesk
