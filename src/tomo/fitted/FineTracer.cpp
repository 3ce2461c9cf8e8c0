#include "tomo/fitted/FineTracer.h"

#include "base/TextNumber.h"
#include "grid/GridGraph.h"
#include "tomo/fitted/ShotRays.h"

#include <algorithm>
#include <stdexcept>

namespace talvesk {
namespace {

/// The point of the surface at a grid abscissa, metres.
SurfacePoint surfacePoint(const GridGeometry& g, double x) {
  const std::uint32_t node = g.topNodeIndex(x);
  if (node == kNoNode) throw std::out_of_range("no surface at " + formatDouble(x) + " m");
  const std::uint32_t left = std::min(node, g.lineNodeCount() - 2);
  const double f = (x - g.lineX(left)) / (g.lineX(left + 1) - g.lineX(left));
  SurfacePoint point;
  point.at = {x, g.lineZ(0, left) + f * (g.lineZ(0, left + 1) - g.lineZ(0, left))};
  // At a corner, to rounding, both cells have it.
  const double cells = x / g.aLato();
  for (std::uint32_t column = 0; column < g.col(); ++column) {
    if (cells > column - 1e-9 && cells < column + 1 + 1e-9) point.cells.push_back(column);
  }
  return point;
}

const GridGeometry& withCells(const GridGeometry& geometry) {
  if (geometry.cellCount() == 0) throw std::invalid_argument("a grid without cells has no rays");
  return geometry;
}

}  // namespace

FineTracer::FineTracer(const GridGeometry& geometry, const FitData& data, unsigned threads)
    : mMesh(withCells(geometry)) {
  for (const FitShot& shot : data.shots) {
    Shot points{surfacePoint(geometry, shot.source), {}};
    for (const double x : shot.receivers) points.receivers.push_back(surfacePoint(geometry, x));
    mShots.push_back(std::move(points));
  }
  for (unsigned w = 0; w < std::max(threads, 1U); ++w) mWorkers.emplace_back(mMesh);
}

bool FineTracer::trace(const std::vector<double>& slownesses, TracedRays& traced,
                       const std::function<bool()>& goOn) {
  if (slownesses.size() != mMesh.cellCount()) {
    throw std::invalid_argument("a slowness for every cell is needed");
  }
  std::vector<ShotRays> shots(mShots.size());
  const auto traceShot = [&](std::size_t number, std::size_t shot) {
    Worker& worker = mWorkers[number];
    worker.field.spread(mShots[shot].source, slownesses);
    for (const SurfacePoint& receiver : mShots[shot].receivers) {
      worker.field.descend(receiver, worker.legs);
      worker.bending.bend(receiver.at, worker.legs, slownesses, worker.pieces);
      shots[shot].add(worker.pieces, slownesses);
    }
  };
  const auto threads = static_cast<unsigned>(mWorkers.size());
  if (!forEachShot(mShots.size(), threads, goOn, traceShot)) return false;
  joinShots(shots, traced);
  return true;
}

}  // namespace talvesk
