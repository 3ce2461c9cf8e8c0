#include "tomo/fitted/GridTracer.h"

#include "base/TextNumber.h"
#include "grid/GridGraph.h"
#include "tomo/fitted/ShotRays.h"

#include <algorithm>
#include <stdexcept>

namespace talvesk {
namespace {

std::uint32_t topNode(const GridGeometry& geometry, double x) {
  const std::uint32_t node = geometry.topNodeIndex(x);
  if (node == kNoNode) throw std::out_of_range("no top node at " + formatDouble(x) + " m");
  return node;
}

}  // namespace

GridTracer::GridTracer(std::shared_ptr<const GridGeometry> geometry, const FitData& data,
                       unsigned threads)
    : mGeometry(std::move(geometry)), mSearches(std::max(threads, 1U)) {
  for (const FitShot& shot : data.shots) {
    Shot nodes{topNode(*mGeometry, shot.source), {}};
    for (const double x : shot.receivers) nodes.receivers.push_back(topNode(*mGeometry, x));
    mShots.push_back(std::move(nodes));
  }
}

bool GridTracer::trace(const std::vector<double>& slownesses, TracedRays& traced,
                       const std::function<bool()>& goOn) {
  const Grid grid(mGeometry, slownesses);
  std::vector<ShotRays> shots(mShots.size());
  const auto traceShot = [&](std::size_t worker, std::size_t shot) {
    ShortestPaths& search = mSearches[worker];
    search.search(grid, mShots[shot].source);
    std::vector<RayPiece> pieces;
    for (const std::uint32_t receiver : mShots[shot].receivers) {
      pieces.clear();
      for (const GridEdge& step : search.ray(receiver).steps) {
        pieces.push_back({step.cell, step.length});
      }
      shots[shot].add(pieces, slownesses);
    }
  };
  const auto threads = static_cast<unsigned>(mSearches.size());
  if (!forEachShot(mShots.size(), threads, goOn, traceShot)) return false;
  joinShots(shots, traced);
  return true;
}

}  // namespace talvesk
