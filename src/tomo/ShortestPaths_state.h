#pragma once

#include "tomo/NodeSteps.h"
#include "tomo/SearchField.h"
#include "tomo/ShortestPaths.h"

#include <limits>
#include <memory>
#include <vector>

namespace talvesk {

/// The memory of a search, and the two numberings of nodes: the grid's own, and the search ids.
struct ShortestPaths::State {
  const Grid* grid = nullptr;
  std::uint32_t source = 0;
  std::vector<double> distance;
  std::vector<double> latest;  ///< per cell, of a search for receivers
  std::vector<std::uint64_t> queued;
  std::vector<std::uint32_t> improved;
  BucketRing ring;
  SearchField field{};
  NodeSteps stepInto;  ///< while rays are traced
  std::shared_ptr<const GridGeometry> measured;
  double longestEdge = 0.0;  ///< of the geometry that was measured, metres

  std::uint32_t searchId(std::uint32_t node) const {
    const GridGeometry::Place p = grid->geometry().place(node);
    if (!p.onLine) return field.uprightId(field.point(p.row, p.along)) + p.level;
    const std::uint32_t column = p.along / (field.nV - 1);
    const std::uint32_t k = p.along - column * (field.nV - 1);
    const std::uint32_t point = field.point(p.row, column);
    return k == 0 ? field.cornerId(point) : field.levelId(point) + k - 1;
  }
  double distanceOf(std::uint32_t node) const { return distance[searchId(node)]; }
};

}  // namespace talvesk
