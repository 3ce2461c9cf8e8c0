#include "view/SectionProbe.h"

#include "view/SectionScene.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace talvesk {

SectionReading readSection(const SectionScene& scene, const Point2D& position) {
  SectionReading reading;
  reading.position = position;
  const SectionMesh& mesh = scene.mesh;
  if (mesh.rows == 0 || mesh.columns == 0 || !std::isfinite(position.z)) return reading;
  const double left = mesh.corners[mesh.corner(0, 0)].x;
  const double right = mesh.corners[mesh.corner(0, mesh.columns)].x;
  const double along = (position.x - left) / (right - left) * mesh.columns;
  if (!(along >= 0.0 && along <= mesh.columns)) return reading;
  // The surface bends within a cell, at every node of its top side.
  if (!scene.surface.empty() && position.x >= scene.surface.front().x &&
      position.x <= scene.surface.back().x) {
    const auto after =
        std::lower_bound(scene.surface.begin() + 1, scene.surface.end() - 1, position.x,
                         [](const Point2D& p, double x) { return p.x < x; });
    const Point2D& a = *(after - 1);
    const Point2D& b = *after;
    const double f = (position.x - a.x) / (b.x - a.x);
    reading.depth = a.z + f * (b.z - a.z) - position.z;
  }
  const auto column =
      static_cast<std::uint32_t>(std::min(along, static_cast<double>(mesh.columns) - 0.5));
  const double f = along - column;
  const auto lineAt = [&mesh, column, f](std::uint32_t line) {
    const double a = mesh.corners[mesh.corner(line, column)].z;
    return a + f * (mesh.corners[mesh.corner(line, column + 1)].z - a);
  };
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    if (position.z > lineAt(row) || position.z < lineAt(row + 1)) continue;
    const std::size_t cell = mesh.cell(row, column);
    if (mesh.isDrawn(row, column)) {
      reading.velocity = scene.velocities[cell];
      reading.value = scene.cellValues[cell];
    }
    break;
  }
  return reading;
}

}  // namespace talvesk
