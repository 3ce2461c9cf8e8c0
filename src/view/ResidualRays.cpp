#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/RayLines.h"
#include "view/ResidualTable.h"
#include "view/SectionScene.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace talvesk {
namespace {

/// The cell that two neighbours of a ray lie on the sides of; none for nodes that share no cell.
std::optional<std::uint32_t> cellBetween(const GridGeometry& geometry, std::uint32_t a,
                                         std::uint32_t b) {
  std::optional<std::uint32_t> found;
  forEachCellOf(geometry, a, [&](std::uint32_t cell, CellSide) {
    forEachCellOf(geometry, b, [&](std::uint32_t other, CellSide) {
      if (cell == other && !found) found = cell;
    });
  });
  return found;
}

/// Means of what is added, by weight.
struct CellMeans {
  explicit CellMeans(std::size_t cells) : sums(cells, 0.0), weights(cells, 0.0) {}

  void addRay(const GridGeometry& geometry, const std::vector<std::uint32_t>& ray, double value) {
    for (std::size_t i = 1; i < ray.size(); ++i) {
      if (std::max(ray[i - 1], ray[i]) >= geometry.nodeCount()) continue;
      const auto cell = cellBetween(geometry, ray[i - 1], ray[i]);
      if (!cell) continue;
      const double length = std::hypot(geometry.nodeX(ray[i]) - geometry.nodeX(ray[i - 1]),
                                       geometry.nodeZ(ray[i]) - geometry.nodeZ(ray[i - 1]));
      sums[*cell] += length * value;
      weights[*cell] += length;
    }
  }

  std::vector<double> sums;
  std::vector<double> weights;
};

}  // namespace

std::optional<CellValues> residualsAlongRays(const TomoDocument& document,
                                             const ResidualTable& table, ResidualUnit unit) {
  const std::vector<RayOwner> owners = rayOwners(document);
  if (!table.known || owners.empty() || document.model->grid == nullptr) return std::nullopt;
  const Grid& grid = *document.model->grid;
  CellMeans means(grid.cellCount());
  std::size_t pick = 0;  // rays and picks are both in the order of the records
  for (std::size_t i = 0; i < owners.size(); ++i) {
    const auto before = [&](const PickResidual& each) {
      return each.record < owners[i].record ||
             (each.record == owners[i].record && each.receiver < owners[i].receiver);
    };
    while (pick < table.picks.size() && before(table.picks[pick])) ++pick;
    if (pick == table.picks.size()) break;
    const PickResidual& own = table.picks[pick];
    if (own.record != owners[i].record || own.receiver != owners[i].receiver || own.suspect) {
      continue;
    }
    means.addRay(grid.geometry(), document.result->rays[i], own.value(unit));
  }
  CellValues values{
      Message::tr("Mean residual of the rays"), unit == ResidualUnit::kErrors ? "" : "ms", {}};
  if (unit == ResidualUnit::kErrors) values.name = Message::tr("Mean residual over pick error");
  values.values.assign(grid.cellCount(), std::nan(""));
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    if (means.weights[cell] > 0.0) values.values[cell] = means.sums[cell] / means.weights[cell];
  }
  return values;
}

}  // namespace talvesk
