#pragma once

#include "grid/GridGeometry.h"
#include "tomo/fitted/RayBending.h"
#include "tomo/fitted/RayTracer.h"
#include "tomo/fitted/TimeField.h"

#include <deque>
#include <vector>

namespace talvesk {

/// Rays that are not bound to nodes: found by first-arrival times at a few points of every cell
/// side, then bent to the least time. Shots and receivers lie exactly where they are on the surface
/// of the grid. Times are those of true paths through the cells, so that they are never early; for
/// how late they can be see docs/forward-accuracy.md.
class FineTracer : public RayTracer {
 public:
  /// \param threads shots traced at once, at least 1. Throws std::out_of_range for a shot or
  /// receiver beside the surface of the grid, std::invalid_argument for a grid without cells.
  FineTracer(const GridGeometry& geometry, const FitData& data, unsigned threads);
  FineTracer(const FineTracer&) = delete;
  FineTracer& operator=(const FineTracer&) = delete;

  /// Throws std::invalid_argument when the slownesses are not those of all cells.
  bool trace(const std::vector<double>& slownesses, TracedRays& traced,
             const std::function<bool()>& goOn) override;

 private:
  struct Shot {
    SurfacePoint source;
    std::vector<SurfacePoint> receivers;
  };
  struct Worker {
    explicit Worker(const CellMesh& mesh) : field(mesh), bending(mesh) {}
    TimeField field;
    RayBending bending;
    std::vector<FieldStep> departures;
    std::vector<RayLeg> legs;
    std::vector<RayPiece> pieces, rival;
  };

  void traceRay(Worker& worker, const SurfacePoint& receiver,
                const std::vector<double>& slownesses) const;

  CellMesh mMesh;
  std::vector<Shot> mShots;
  std::deque<Worker> mWorkers;  ///< look at mMesh
};

}  // namespace talvesk
