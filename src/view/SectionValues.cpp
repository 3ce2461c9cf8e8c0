#include "view/SectionValues.h"

#include "grid/Grid.h"

#include <cstdint>
#include <limits>

namespace talvesk {
namespace {

constexpr double kUndefined = std::numeric_limits<double>::quiet_NaN();

}  // namespace

SectionMesh sectionMesh(const Grid& grid, double xOffset) {
  const GridGeometry& geometry = grid.geometry();
  SectionMesh mesh;
  mesh.rows = grid.righe();
  mesh.columns = grid.col();
  mesh.corners.reserve(std::size_t{mesh.rows + 1} * (mesh.columns + 1));
  for (std::uint32_t line = 0; line <= mesh.rows; ++line) {
    for (std::uint32_t column = 0; column <= mesh.columns; ++column) {
      const std::uint32_t node = column * (grid.nV() - 1);
      mesh.corners.push_back({geometry.lineX(node) - xOffset, -geometry.lineZ(line, node)});
    }
  }
  mesh.drawn.resize(grid.cellCount());
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    mesh.drawn[cell] = grid.draw(cell) ? 1 : 0;
  }
  return mesh;
}

std::vector<double> verticalGradientValues(const Grid& grid) {
  std::vector<double> values(grid.cellCount(), kUndefined);
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    for (std::uint32_t column = 0; column < grid.col(); ++column) {
      const std::uint32_t cell = grid.cellIndex(row, column);
      if (!grid.draw(cell)) continue;
      std::uint32_t upper = cell;
      std::uint32_t lower = cell;
      if (row > 0 && grid.draw(cell - grid.col())) upper = cell - grid.col();
      if (row + 1 < grid.righe() && grid.draw(cell + grid.col())) lower = cell + grid.col();
      if (upper == lower) continue;
      const double depth = grid.cellCentre(lower).z - grid.cellCentre(upper).z;
      values[cell] = (grid.velocity(lower) - grid.velocity(upper)) / depth;
    }
  }
  return values;
}

std::vector<double> laplacianValues(const Grid& grid) {
  std::vector<double> values(grid.cellCount(), kUndefined);
  const double h2 = grid.aLato() * grid.aLato();
  const auto second = [&grid, h2](std::uint32_t before, std::uint32_t cell, std::uint32_t after) {
    return (grid.velocity(before) - 2.0 * grid.velocity(cell) + grid.velocity(after)) / h2;
  };
  const std::uint32_t columns = grid.col();
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    for (std::uint32_t column = 0; column < columns; ++column) {
      const std::uint32_t cell = grid.cellIndex(row, column);
      if (!grid.draw(cell)) continue;
      const bool along =
          column > 0 && column + 1 < columns && grid.draw(cell - 1) && grid.draw(cell + 1);
      const bool down = row > 0 && row + 1 < grid.righe() && grid.draw(cell - columns) &&
                        grid.draw(cell + columns);
      if (!along && !down) continue;
      values[cell] = (along ? second(cell - 1, cell, cell + 1) : 0.0) +
                     (down ? second(cell - columns, cell, cell + columns) : 0.0);
    }
  }
  return values;
}

}  // namespace talvesk
