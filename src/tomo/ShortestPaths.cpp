#include "tomo/ShortestPaths.h"

#include "tomo/ShortestPaths_state.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>
#include <string>

namespace talvesk {
namespace {

// More buckets than this cost more to skip than wider ones cost in repeated relaxations.
constexpr double kMostBuckets = 65536.0;
// Measured: a bucket of one and a half average cell crossings makes the fewest moves between
// buckets while few nodes are relaxed twice. Where the ground holds far faster cells than the
// average, the width keeps to the short edges of those.
constexpr double kCellsPerBucket = 1.5;
constexpr double kFastStepsPerBucket = 64.0;

using SearchFunction = void (*)(SearchField&, std::uint32_t);

SearchFunction searchFor(std::uint32_t nodesPerSide) {
  if (nodesPerSide < 6) return searchScalar;
#ifdef TALVESK_HAVE_AVX2
  static const bool avx2 = __builtin_cpu_supports("avx2");
  if (avx2) return searchAvx2;
#endif
  return searchBaseline;
}

/// An upper bound of all edge lengths.
double longestEdge(const GridGeometry& g) {
  const std::uint32_t steps = g.nV() - 1;
  double drop = 0.0;
  for (std::uint32_t row = 0; row < g.righe(); ++row) {
    for (std::uint32_t column = 0; column < g.col(); ++column) {
      const double* top = g.lineZData() + std::size_t{row} * g.lineNodeCount() + column * steps;
      const double* bottom = top + g.lineNodeCount();
      const auto [topMin, topMax] = std::minmax_element(top, top + g.nV());
      const auto [bottomMin, bottomMax] = std::minmax_element(bottom, bottom + g.nV());
      // Side nodes end less than one cell below the corners of the top.
      drop =
          std::max(drop, std::max(*topMax + g.aLato(), *bottomMax) - std::min(*topMin, *bottomMin));
    }
  }
  return std::hypot(g.aLato(), drop) * 1.000001;
}

/// Sets the nodes, by search id, to the latest time of a cell that each belongs to.
void setLatest(const GridGeometry& g, const std::vector<double>& latest, double* distance) {
  const std::uint32_t steps = g.nV() - 1;
  for (std::uint32_t line = 0; line <= g.righe(); ++line) {
    const double* cells = latest.data() + std::size_t{std::min(line, g.righe() - 1)} * g.col();
    for (std::uint32_t c = 0; c < g.col(); ++c) distance = std::fill_n(distance, steps, cells[c]);
    *distance++ = cells[g.col() - 1];
  }
  for (std::uint32_t row = 0; row < g.righe(); ++row) {
    const double* cells = latest.data() + std::size_t{row} * g.col();
    for (std::uint32_t v = 0; v <= g.col(); ++v) {
      distance = std::fill_n(distance, steps - 1, cells[std::min(v, g.col() - 1)]);
    }
  }
}

}  // namespace

ShortestPaths::ShortestPaths() : mState(std::make_unique<State>()) {}
ShortestPaths::~ShortestPaths() = default;
ShortestPaths::ShortestPaths(ShortestPaths&&) noexcept = default;
ShortestPaths& ShortestPaths::operator=(ShortestPaths&&) noexcept = default;

void ShortestPaths::search(const Grid& grid, std::uint32_t source) {
  mState->distance.assign(grid.nodeCount(), std::numeric_limits<double>::infinity());
  run(grid, source);
}

void ShortestPaths::search(const Grid& grid, std::uint32_t source,
                           const std::vector<WantedRay>& receivers, const LatestTimes& latest) {
  latest.find(receivers, mState->latest);
  mState->distance.resize(grid.nodeCount());
  setLatest(grid.geometry(), mState->latest, mState->distance.data());
  run(grid, source);
}

void ShortestPaths::run(const Grid& grid, std::uint32_t source) {
  if (source >= grid.nodeCount()) {
    throw std::out_of_range("no source node " + std::to_string(source));
  }
  State& s = *mState;
  const GridGeometry& g = grid.geometry();
  s.grid = &grid;
  s.source = source;
  s.queued.assign(grid.nodeCount(), SearchField::kNotQueued);

  SearchField& f = s.field;
  f.rows = g.righe();
  f.cols = g.col();
  f.nV = g.nV();
  f.lineNodes = g.lineNodeCount();
  f.sideBase = (g.righe() + 1) * g.lineNodeCount();
  f.h = g.aLato();
  f.lineX = g.lineXData();
  f.lineZ = g.lineZData();
  f.step = g.sideStepData();
  f.slowness = grid.slownesses().data();
  f.distance = s.distance.data();
  f.queued = s.queued.data();
  f.ring = &s.ring;

  double width = 1.0;
  double longest = 0.0;
  if (grid.cellCount() > 0) {
    const std::vector<double>& slowness = grid.slownesses();
    const auto [fastest, slowest] = std::minmax_element(slowness.begin(), slowness.end());
    const double mean = std::accumulate(slowness.begin(), slowness.end(), 0.0) /
                        static_cast<double>(slowness.size());
    // The models of a run share their geometry.
    if (s.measured != grid.sharedGeometry()) {
      s.measured = grid.sharedGeometry();
      s.longestEdge = longestEdge(g);
    }
    longest = s.longestEdge * *slowest;
    width = std::min(kCellsPerBucket * g.aLato() * mean,
                     kFastStepsPerBucket * g.aLato() / (g.nV() - 1) * *fastest);
    width = std::max(width, longest / kMostBuckets);
  }
  f.bucketsPerSecond = 1.0 / width;
  s.ring.reset(static_cast<std::uint32_t>(longest * f.bucketsPerSecond) + 3);

  searchFor(g.nV())(f, s.searchId(source));
}

std::uint32_t ShortestPaths::source() const {
  return mState->source;
}

double ShortestPaths::distance(std::uint32_t node) const {
  return mState->distanceOf(node);
}

std::size_t ShortestPaths::bytes() const {
  return mState->distance.capacity() * sizeof(double) +
         mState->queued.capacity() * sizeof(std::uint32_t) + mState->ring.bytes();
}

}  // namespace talvesk
