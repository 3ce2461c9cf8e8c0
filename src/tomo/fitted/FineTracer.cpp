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

double timeOf(const std::vector<RayPiece>& pieces, const std::vector<double>& slownesses) {
  double time = 0.0;
  for (const RayPiece& piece : pieces) time += piece.length * slownesses[piece.cell];
  return time;
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

/// Leaves the fastest ray in worker.pieces. Rivals that go as deep are the same wave, and bending
/// takes them to the same ray.
void FineTracer::traceRay(Worker& worker, const SurfacePoint& receiver,
                          const std::vector<double>& slownesses) const {
  constexpr double kNever = FieldStep::kNever;
  constexpr std::uint32_t kSameWave = 1;  // rows
  double least = kNever;
  std::uint32_t first = 0;
  const auto deepest = [cols = mMesh.cols()](const std::vector<RayLeg>& legs) {
    std::uint32_t row = 0;
    for (const RayLeg& leg : legs) row = std::max(row, leg.cell / cols);
    return row;
  };
  worker.field.departures(receiver, worker.departures);
  for (const FieldStep& departure : worker.departures) {
    worker.field.descend(departure, worker.legs);
    const std::uint32_t depth = deepest(worker.legs);
    if (least < kNever && (depth > first ? depth - first : first - depth) < kSameWave) continue;
    if (!(least < kNever)) first = depth;
    worker.bending.bend(receiver.at, worker.legs, slownesses, worker.rival);
    const double time = timeOf(worker.rival, slownesses);
    if (!(time < least)) continue;
    least = time;
    worker.pieces.swap(worker.rival);
  }
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
      traceRay(worker, receiver, slownesses);
      shots[shot].add(worker.pieces, slownesses);
    }
  };
  const auto threads = static_cast<unsigned>(mWorkers.size());
  if (!forEachShot(mShots.size(), threads, goOn, traceShot)) return false;
  joinShots(shots, traced);
  return true;
}

}  // namespace talvesk
