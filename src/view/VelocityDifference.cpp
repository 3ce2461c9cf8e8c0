#include "view/VelocityDifference.h"

#include "base/RoundStep.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

namespace talvesk {
namespace {

/// The cell of a grid at a place in its own coordinates; none beside and below it.
std::optional<std::uint32_t> cellAt(const Grid& grid, const Point2D& place) {
  const double column = std::floor(place.x / grid.aLato());
  if (!(column >= 0.0 && column < grid.col())) return std::nullopt;
  const auto at = static_cast<std::uint32_t>(column);
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    const double below = place.z - grid.cellCentre(grid.cellIndex(row, at)).z;
    if (std::fabs(below) <= grid.aLato() / 2.0) return grid.cellIndex(row, at);
  }
  return std::nullopt;
}

}  // namespace

std::vector<double> velocityDifference(const TomoDocument& section, const TomoDocument& other) {
  const Grid& grid = *section.model->grid;
  const Grid& reference = *other.model->grid;
  const bool sameCells = grid.sharedGeometry() == reference.sharedGeometry();
  const double shift = other.model->xOffset - section.model->xOffset;
  std::vector<double> percent(grid.cellCount(), std::numeric_limits<double>::quiet_NaN());
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    if (!grid.draw(cell)) continue;
    Point2D centre = grid.cellCentre(cell);
    centre.x += shift;
    const auto twin = sameCells ? std::optional(cell) : cellAt(reference, centre);
    if (!twin || !reference.draw(*twin)) continue;
    percent[cell] = 100.0 * (grid.velocity(cell) / reference.velocity(*twin) - 1.0);
  }
  return percent;
}

ValueRange differenceRange(std::vector<double> percent) {
  const auto notANumber = [](double value) { return !std::isfinite(value); };
  percent.erase(std::remove_if(percent.begin(), percent.end(), notANumber), percent.end());
  double most = 0.0;
  if (!percent.empty()) {
    for (double& value : percent) value = std::fabs(value);
    const std::size_t rank = (percent.size() - 1) * 49 / 50;
    std::nth_element(percent.begin(), percent.begin() + static_cast<std::ptrdiff_t>(rank),
                     percent.end());
    most = percent[rank];
  }
  const double step = roundStep(std::max(most, 1.0) / 5.0);
  most = step * std::ceil(std::max(most, 1.0) / step - 1e-6);
  return {-most, most};
}

ColorPalette differencePalette() {
  ColorPalette palette;
  palette.name = "Difference";
  palette.n_colors = 41;  // odd: no difference has a colour of its own
  palette.color_gradient.assign({{0.02, 0.19, 0.38, 0.0},
                                 {0.26, 0.58, 0.76, 0.25},
                                 {0.97, 0.97, 0.97, 0.5},
                                 {0.84, 0.38, 0.30, 0.75},
                                 {0.40, 0.00, 0.12, 1.0}});
  return palette;
}

}  // namespace talvesk
