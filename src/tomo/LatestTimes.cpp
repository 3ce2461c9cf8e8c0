#include "tomo/LatestTimes.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace talvesk {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();
// Of each wave the slowness along the line, as a share of what its group of depths allows.
constexpr double kShares[] = {1.0, 0.93, 0.75, 0.4};
constexpr std::size_t kWaves = std::size(kShares);
// A group of depths ends where the least floor has shrunk by this much.
constexpr double kGroupRatio = 0.85;
constexpr std::size_t kMostGroups = 24;
constexpr double kBandsPerCell = 4.0;
constexpr double kMostBands = 8192.0;
// Sums of times differ by rounding, which is far less than this share of them.
constexpr double kMargin = 1e-9;

/// Depths below the surface, positive downward.
class Depths {
 public:
  explicit Depths(const GridGeometry& g) : mGeometry(g), mBend(g.col(), 0.0) {
    const std::uint32_t steps = g.nV() - 1;
    for (std::uint32_t i = 0; i + 1 < g.lineNodeCount(); ++i) {
      const double slope = (g.lineZ(0, i + 1) - g.lineZ(0, i)) / (g.lineX(i + 1) - g.lineX(i));
      mSteepest = std::max(mSteepest, std::fabs(slope));
    }
    for (std::uint32_t c = 0; c < g.col(); ++c) {
      const double left = g.lineZ(0, c * steps);
      const double right = g.lineZ(0, (c + 1) * steps);
      for (std::uint32_t i = 1; i < steps; ++i) {
        const double straight = left + (right - left) * i / steps;
        mBend[c] = std::max(mBend[c], std::fabs(g.lineZ(0, c * steps + i) - straight));
      }
    }
  }

  double steepest() const { return mSteepest; }  ///< greatest slope of the surface

  /// Sets the depths between which all edges of a cell lie.
  void reachOf(std::uint32_t row, std::uint32_t column, double& from, double& to) const {
    const GridGeometry& g = mGeometry;
    const std::uint32_t steps = g.nV() - 1;
    from = kNever;
    to = -kNever;
    const auto add = [&](double depth) {
      from = std::min(from, depth);
      to = std::max(to, depth);
    };
    for (std::uint32_t i = column * steps; i <= (column + 1) * steps; ++i) {
      add(g.lineZ(row, i) - g.lineZ(0, i));
      add(g.lineZ(row + 1, i) - g.lineZ(0, i));
    }
    if (g.nV() > 2) {
      for (const std::uint32_t v : {column, column + 1}) {
        add(g.sideZ(row, v, g.nV() - 3) - g.lineZ(0, v * steps));
      }
    }
    // The surface below an edge between two nodes is not straight.
    from -= 2.0 * mBend[column];
    to += 2.0 * mBend[column];
  }

 private:
  const GridGeometry& mGeometry;
  double mSteepest = 0.0;
  std::vector<double> mBend;  ///< per column: how far the surface is from straight
};

std::uint32_t sideCells(const GridGeometry& g, std::uint32_t node, std::uint32_t (&cells)[4],
                        CellSide (&sides)[4]) {
  std::uint32_t count = 0;
  forEachCellOf(g, node, [&](std::uint32_t cell, CellSide side) {
    cells[count] = cell;
    sides[count++] = side;
  });
  return count;
}

double timeBetween(const Grid& grid, std::uint32_t a, std::uint32_t b) {
  const GridGeometry& g = grid.geometry();
  std::uint32_t cellsA[4], cellsB[4];
  CellSide sidesA[4], sidesB[4];
  const std::uint32_t countA = sideCells(g, a, cellsA, sidesA);
  const std::uint32_t countB = sideCells(g, b, cellsB, sidesB);
  double slowness = kNever;
  for (std::uint32_t i = 0; i < countA; ++i) {
    for (std::uint32_t j = 0; j < countB; ++j) {
      if (cellsA[i] != cellsB[j] || sidesA[i] == sidesB[j]) continue;
      slowness = std::min(slowness, grid.slowness(cellsA[i]));
    }
  }
  return std::hypot(g.nodeX(a) - g.nodeX(b), g.nodeZ(a) - g.nodeZ(b)) * slowness;
}

}  // namespace

/// Depths in bands of one thickness, and the least slowness down to each.
struct LatestTimes::Bands {
  double thickness = 0.0;
  std::vector<double> floor;   ///< of each band alone, s/m
  std::vector<double> soFar;   ///< of it and those above
  std::vector<Reach> reaches;  ///< per cell
  double steepest = 0.0;

  explicit Bands(const Grid& grid) {
    const GridGeometry& g = grid.geometry();
    const Depths depths(g);
    steepest = depths.steepest();
    std::vector<double> from(g.cellCount()), to(g.cellCount());
    double deepest = 0.0;
    for (std::uint32_t cell = 0; cell < g.cellCount(); ++cell) {
      depths.reachOf(cell / g.col(), cell % g.col(), from[cell], to[cell]);
      deepest = std::max(deepest, to[cell]);
    }
    // A surface that leaps would ask for bands without end; wide ones only bound less well.
    thickness = std::max(g.aLato() / kBandsPerCell, deepest / kMostBands);
    const double rounding = kMargin * (g.aLato() / kBandsPerCell) / thickness;
    reaches.resize(g.cellCount());
    std::uint32_t last = 1;
    for (std::uint32_t cell = 0; cell < g.cellCount(); ++cell) {
      Reach& reach = reaches[cell];
      // Whole cells end where bands do, but for rounding.
      reach.from = static_cast<std::uint32_t>(std::max(0.0, from[cell] / thickness + rounding));
      reach.to =
          static_cast<std::uint32_t>(std::max(0.0, std::ceil(to[cell] / thickness - rounding)));
      reach.to = std::max(reach.to, reach.from + 1);
      last = std::max(last, reach.to);
    }
    floor.assign(last, kNever);
    for (std::uint32_t cell = 0; cell < g.cellCount(); ++cell) {
      for (std::uint32_t b = reaches[cell].from; b < reaches[cell].to; ++b) {
        floor[b] = std::min(floor[b], grid.slowness(cell));
      }
    }
    soFar = floor;
    for (std::size_t b = 1; b < soFar.size(); ++b) soFar[b] = std::min(soFar[b], soFar[b - 1]);
    // No edge lies in a band without a cell: any floor is true of it.
    for (std::size_t b = 0; b < floor.size(); ++b) {
      if (!std::isfinite(floor[b])) floor[b] = soFar[b];
    }
  }
};

LatestTimes::LatestTimes(const Grid& grid) : mGrid(grid) {
  const Bands bands(grid);
  setSlopes(bands);
  setTerms(bands, bands.reaches);
}

void LatestTimes::setSlopes(const Bands& bands) {
  std::vector<double> least;
  const std::size_t count = bands.soFar.size();
  double ratio = kGroupRatio;
  do {
    mGroupTop.clear();
    least.clear();
    for (std::uint32_t b = 0; b < count; ++b) {
      if (mGroupTop.empty() || bands.soFar[b] < ratio * bands.soFar[mGroupTop.back()]) {
        mGroupTop.push_back(b);
        least.push_back(0.0);
      }
      least.back() = bands.soFar[b];
    }
    ratio *= kGroupRatio;
  } while (mGroupTop.size() > kMostGroups);
  for (const double share : kShares) {
    for (const double p : least) mAlong.push_back(share * p);
  }
  mGroupTop.push_back(static_cast<std::uint32_t>(count));
}

void LatestTimes::setTerms(const Bands& bands, const std::vector<Reach>& reaches) {
  std::map<Reach, std::uint32_t> kinds;
  for (const Reach& reach : reaches) {
    mKind.push_back(kinds.emplace(reach, kinds.size()).first->second);
  }
  const std::size_t groups = mGroupTop.size() - 1;
  const std::size_t waves = mAlong.size();
  mTerms.assign(kinds.size() * waves, -kNever);
  const double tilt = bands.steepest;
  std::vector<double> down(bands.floor.size() + 1);
  for (std::size_t w = 0; w < waves; ++w) {
    const double p = mAlong[w];
    const std::uint32_t top = mGroupTop[w % groups];
    const std::uint32_t bottom = mGroupTop[w % groups + 1];
    for (std::uint32_t b = 0; b < bottom; ++b) {
      const double s = bands.floor[b];
      const double root = std::sqrt(p * p * tilt * tilt + (1.0 + tilt * tilt) * (s * s - p * p));
      down[b + 1] =
          down[b] + bands.thickness * std::max(0.0, (root - p * tilt) / (1.0 + tilt * tilt));
    }
    for (const auto& [reach, kind] : kinds) {
      if (reach.from >= bottom) continue;  // deeper than a path of this group goes
      const std::uint32_t to = std::min(reach.to, bottom);
      double& term = mTerms[kind * waves + w];
      if (to <= top) {
        term = down[to] - 2.0 * down[top];
      } else {
        term = -down[std::max(reach.from, top)];
      }
    }
  }
}

std::vector<double> LatestTimes::alongLine(const std::vector<WantedRay>& receivers) const {
  const GridGeometry& g = mGrid.geometry();
  const std::size_t waves = mAlong.size();
  const std::uint32_t columns = g.col();
  std::vector<std::vector<const WantedRay*>> inColumn(columns);
  for (const WantedRay& wanted : receivers) {
    inColumn[std::min(wanted.node / (g.nV() - 1), columns - 1)].push_back(&wanted);
  }
  std::vector<double> latest(columns * waves, -kNever);
  const auto sweep = [&](bool rightward) {
    std::vector<double> best(waves, -kNever);  // of the receivers passed, seen from x = 0
    for (std::uint32_t k = 0; k < columns; ++k) {
      const std::uint32_t column = rightward ? k : columns - 1 - k;
      const double edge = rightward ? column * g.aLato() : -((column + 1) * g.aLato());
      double* at = latest.data() + column * waves;
      for (std::size_t w = 0; w < waves; ++w) at[w] = std::max(at[w], best[w] - mAlong[w] * edge);
      for (const WantedRay* wanted : inColumn[column]) {
        const double x = rightward ? g.lineX(wanted->node) : -g.lineX(wanted->node);
        const double time = wanted->atMost * (1.0 + kMargin) + kMargin * g.aLato() * mAlong[0];
        for (std::size_t w = 0; w < waves; ++w) {
          at[w] = std::max(at[w], time);
          best[w] = std::max(best[w], time + mAlong[w] * x);
        }
      }
    }
  };
  sweep(true);
  sweep(false);
  return latest;
}

void LatestTimes::find(const std::vector<WantedRay>& receivers, std::vector<double>& latest) const {
  const bool known = std::all_of(receivers.begin(), receivers.end(),
                                 [](const WantedRay& r) { return std::isfinite(r.atMost); });
  if (!known) {
    latest.assign(mGrid.cellCount(), kNever);
    return;
  }
  const std::size_t waves = mAlong.size();
  const std::size_t groups = waves / kWaves;
  const std::vector<double> along = alongLine(receivers);
  const std::uint32_t columns = mGrid.col();
  latest.resize(mGrid.cellCount());
  std::vector<double> least(groups);
  for (std::uint32_t cell = 0; cell < latest.size(); ++cell) {
    const double* at = along.data() + (cell % columns) * waves;
    const double* terms = mTerms.data() + mKind[cell] * waves;
    for (std::size_t k = 0; k < groups; ++k) least[k] = at[k] + terms[k];
    for (std::size_t w = groups; w < waves; w += groups) {
      for (std::size_t k = 0; k < groups; ++k) {
        least[k] = std::min(least[k], at[w + k] + terms[w + k]);
      }
    }
    latest[cell] = *std::max_element(least.begin(), least.end());
  }
}

double timeAlong(const Grid& grid, const std::vector<std::uint32_t>& nodes) {
  if (std::any_of(nodes.begin(), nodes.end(), [&](auto n) { return n >= grid.nodeCount(); })) {
    return kNever;
  }
  double time = 0.0;
  for (std::size_t i = 1; i < nodes.size(); ++i) time += timeBetween(grid, nodes[i - 1], nodes[i]);
  return time;
}

LevelWays::LevelWays(const Grid& grid) : mGrid(grid) {
  const GridGeometry& g = grid.geometry();
  if (g.nV() < 3) return;
  mAlong.assign(std::size_t{g.righe()} * (g.col() + 1), 0.0);
  for (std::uint32_t row = 0; row < g.righe(); ++row) {
    double* at = mAlong.data() + std::size_t{row} * (g.col() + 1);
    for (std::uint32_t c = 0; c < g.col(); ++c) {
      const double rise = g.sideZ(row, c + 1, 0) - g.sideZ(row, c, 0);
      at[c + 1] = at[c] + std::hypot(g.aLato(), rise) * grid.slowness(grid.cellIndex(row, c));
    }
  }
}

double LevelWays::least(std::uint32_t from, std::uint32_t to) const {
  if (mAlong.empty()) return kNever;
  const GridGeometry& g = mGrid.geometry();
  const std::uint32_t steps = g.nV() - 1;
  const std::uint32_t last = g.col() - 1;
  if (from > to) std::swap(from, to);
  const std::uint32_t first = std::min(from / steps, last);
  const std::uint32_t end = std::min(to / steps, last);
  const auto leg = [&](std::uint32_t row, std::uint32_t column, std::uint32_t i, std::uint32_t v) {
    const double rise = g.sideZ(row, v, 0) - g.lineZ(row, i);
    return std::hypot(g.lineX(i) - g.sideX(v), rise) * mGrid.slowness(mGrid.cellIndex(row, column));
  };
  double least = kNever;
  double vertical = 0.0;
  for (std::uint32_t row = 0; row < g.righe(); ++row) {
    const double* along = mAlong.data() + std::size_t{row} * (g.col() + 1);
    // To the side right of the first column and, where both are in one, back from it.
    const std::uint32_t back = end > first ? end : first + 1;
    const double level = leg(row, first, from, first + 1) + (along[back] - along[first + 1]) +
                         leg(row, end, to, back);
    least = std::min(least, vertical + level);
    const auto down = [&](std::uint32_t i, std::uint32_t column) {
      return (g.lineZ(row + 1, i) - g.lineZ(row, i)) * mGrid.slowness(mGrid.cellIndex(row, column));
    };
    vertical += std::fabs(down(from, first)) + std::fabs(down(to, end));
  }
  return least;
}

}  // namespace talvesk
