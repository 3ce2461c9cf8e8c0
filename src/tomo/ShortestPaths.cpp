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
// Measured: in a bucket of four average cell crossings the sides of cells wait until most of their
// nodes can be settled at once, while few are settled twice. Where the ground holds far faster
// cells than the average, the width keeps to the short edges of those.
constexpr double kCellsPerBucket = 4.0;
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

/// Sets the nodes to the latest time of a cell that each belongs to.
void setLatest(const SearchField& f, const std::vector<double>& latest, double* distance) {
  const std::uint32_t inner = f.nV - 2;
  for (std::uint32_t line = 0; line <= f.rows; ++line) {
    const double* cells = latest.data() + std::size_t{std::min(line, f.rows - 1)} * f.cols;
    for (std::uint32_t v = 0; v <= f.cols; ++v) {
      const std::uint32_t point = f.point(line, v);
      const double time = cells[std::min(v, f.cols - 1)];
      std::fill_n(distance + f.levelId(point), inner, time);
      std::fill_n(distance + f.uprightId(point), inner, time);
      distance[f.cornerId(point)] = time;
    }
  }
}

}  // namespace

ShortestPaths::ShortestPaths() : mState(std::make_unique<State>()) {}
ShortestPaths::~ShortestPaths() = default;
ShortestPaths::ShortestPaths(ShortestPaths&&) noexcept = default;
ShortestPaths& ShortestPaths::operator=(ShortestPaths&&) noexcept = default;

void ShortestPaths::search(const Grid& grid, std::uint32_t source) {
  setField(grid, source);
  mState->distance.assign(mState->field.ids(), std::numeric_limits<double>::infinity());
  run();
}

void ShortestPaths::search(const Grid& grid, std::uint32_t source,
                           const std::vector<WantedRay>& receivers, const LatestTimes& latest) {
  setField(grid, source);
  latest.find(receivers, mState->latest);
  mState->distance.resize(mState->field.ids());
  setLatest(mState->field, mState->latest, mState->distance.data());
  run();
}

void ShortestPaths::setField(const Grid& grid, std::uint32_t source) {
  if (source >= grid.nodeCount()) {
    throw std::out_of_range("no source node " + std::to_string(source));
  }
  State& s = *mState;
  const GridGeometry& g = grid.geometry();
  s.grid = &grid;
  s.source = source;
  SearchField& f = s.field;
  f.rows = g.righe();
  f.cols = g.col();
  f.nV = g.nV();
  f.lineNodes = g.lineNodeCount();
  f.h = g.aLato();
  f.lineX = g.lineXData();
  f.lineZ = g.lineZData();
  f.step = g.sideStepData();
  f.slowness = grid.slownesses().data();
}

void ShortestPaths::run() {
  State& s = *mState;
  const Grid& grid = *s.grid;
  const GridGeometry& g = grid.geometry();
  SearchField& f = s.field;
  s.queued.assign(std::size_t{3} * f.points(), SearchField::kNotQueued);
  s.improved.assign(std::size_t{2} * f.points() * f.words(), 0);
  f.distance = s.distance.data();
  f.queued = s.queued.data();
  f.improved = s.improved.data();
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

  searchFor(g.nV())(f, s.searchId(s.source));
}

std::uint32_t ShortestPaths::source() const {
  return mState->source;
}

double ShortestPaths::distance(std::uint32_t node) const {
  return mState->distanceOf(node);
}

std::size_t ShortestPaths::bytes() const {
  return mState->distance.capacity() * sizeof(double) +
         mState->queued.capacity() * sizeof(std::uint64_t) +
         mState->improved.capacity() * sizeof(std::uint32_t) + mState->ring.bytes();
}

}  // namespace talvesk
