#pragma once

#include "grid/GridGeometry.h"
#include "tomo/ShortestPaths.h"
#include "tomo/fitted/RayTracer.h"

#include <memory>

namespace talvesk {

/// Rays by the search that the stated inversion traces with: along the nodes of the grid, with
/// shots and receivers moved to the top node at or before them. docs/forward-accuracy.md has its
/// errors.
class GridTracer : public RayTracer {
 public:
  /// \param threads shots traced at once, at least 1. Throws std::out_of_range for a shot or
  /// receiver that the grid has no top node for.
  GridTracer(std::shared_ptr<const GridGeometry> geometry, const FitData& data, unsigned threads);

  /// Throws std::invalid_argument when the slownesses are not those of all cells.
  bool trace(const std::vector<double>& slownesses, TracedRays& traced,
             const std::function<bool()>& goOn) override;

 private:
  struct Shot {
    std::uint32_t source = 0;
    std::vector<std::uint32_t> receivers;
  };

  std::shared_ptr<const GridGeometry> mGeometry;
  std::vector<Shot> mShots;
  std::vector<ShortestPaths> mSearches;  ///< one per worker
};

}  // namespace talvesk
