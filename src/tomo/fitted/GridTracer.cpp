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
    RayTree tree;
    search.trace(mShots[shot].receivers, tree);
    std::vector<RayTree::Run> runs;
    std::vector<RayPiece> pieces;
    for (std::size_t ray = 0; ray < tree.branches.size(); ++ray) {
      pieces.clear();
      tree.runsOf(ray, runs);
      for (const RayTree::Run& run : runs) {
        for (std::uint32_t step = run.first; step < run.end; ++step) {
          pieces.push_back({tree.cells[step], tree.lengths[step]});
        }
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
