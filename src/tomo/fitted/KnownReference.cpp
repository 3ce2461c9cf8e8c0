#include "tomo/fitted/KnownReference.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// How much of what is known under one column holds under another.
double likeness(std::uint32_t a, std::uint32_t b, double reach, double side) {
  const double distance = (a > b ? a - b : b - a) * side / reach;
  return std::exp(-0.5 * distance * distance);
}

/// Seconds straight down a column to a depth; below the grid the ground of its last cell goes on.
class Column {
 public:
  Column(const std::vector<double>& slownesses, std::uint32_t column, const GridSize& size)
      : mSide(size.aLato) {
    for (std::uint32_t row = 0; row < size.righe; ++row) {
      mSlownesses.push_back(slownesses[row * size.col + column]);
      mTimes.push_back(mTimes.back() + mSlownesses.back() * mSide);
    }
  }
  double time(double depth) const {
    const std::size_t last = mSlownesses.size() - 1;
    const std::size_t row = std::min(static_cast<std::size_t>(depth / mSide), last);
    return mTimes[row] + mSlownesses[row] * (depth - static_cast<double>(row) * mSide);
  }

 private:
  const double mSide;
  std::vector<double> mSlownesses;
  std::vector<double> mTimes = {0.0};
};

/// Stretches what is above a depth until it ends at another one, and shifts what is below.
void stretch(std::vector<double>& slownesses, std::uint32_t column, const GridSize& size,
             double from, double to) {
  const Column before(slownesses, column, size);
  const auto origin = [&](double depth) {
    return depth < to ? depth * from / to : depth + from - to;
  };
  for (std::uint32_t row = 0; row < size.righe; ++row) {
    const double top = origin(row * size.aLato);
    const double bottom = origin((row + 1) * size.aLato);
    slownesses[row * size.col + column] = (before.time(bottom) - before.time(top)) / (bottom - top);
  }
}

/// Points that tell of one velocity move it together.
void moveIsovalue(double isovalue, const KnownCells& known, const GridSize& size,
                  std::vector<double>& slownesses) {
  struct Move {
    const KnownCells::Condition* point;
    double metres;
  };
  std::vector<Move> moves;
  const double bottom = size.righe * size.aLato;
  for (const KnownCells::Condition& point : known.conditions) {
    if (point.isovalue != isovalue) continue;
    const double found = depthOfVelocity(isovalue, point.column, size, slownesses);
    if (found > 0.0 && found < bottom) moves.push_back({&point, point.depth - found});
  }
  for (std::uint32_t column = 0; column < size.col && !moves.empty(); ++column) {
    double sum = 0.0;
    double weights = 0.0;
    for (const Move& move : moves) {
      const double weight = likeness(column, move.point->column, move.point->depth, size.aLato);
      sum += weight * move.metres;
      weights += weight;
    }
    const double metres = sum / std::max(1.0, weights);
    const double from = depthOfVelocity(isovalue, column, size, slownesses);
    // A move of less than this is not seen in any cell.
    const double least = 0.01 * size.aLato;
    if (std::fabs(metres) < least || !(from > 0.0 && from < bottom)) continue;
    stretch(slownesses, column, size, from, std::max(from + metres, size.aLato));
  }
}

void takeBoreholes(const KnownCells& known, const GridSize& size, std::vector<double>& slownesses) {
  std::vector<std::vector<const KnownCells::Pull*>> rows(size.righe);
  for (const KnownCells::Pull& pull : known.pulls) {
    if (pull.reach > 0.0) rows[pull.cell / size.col].push_back(&pull);
  }
  for (std::uint32_t row = 0; row < size.righe; ++row) {
    if (rows[row].empty()) continue;
    const std::vector<double> before(slownesses.begin() + row * std::ptrdiff_t{size.col},
                                     slownesses.begin() + (row + 1) * std::ptrdiff_t{size.col});
    for (std::uint32_t column = 0; column < size.col; ++column) {
      double sum = 0.0;
      double weights = 0.0;
      for (const KnownCells::Pull* pull : rows[row]) {
        const std::uint32_t at = pull->cell % size.col;
        const double weight = likeness(column, at, pull->reach, size.aLato);
        sum += weight * (pull->logSlowness - std::log(before[at]));
        weights += weight;
      }
      slownesses[row * size.col + column] *= std::exp(sum / std::max(1.0, weights));
    }
  }
}

}  // namespace

std::vector<double> bentToKnown(const KnownCells& known, const GridSize& size,
                                std::vector<double> slownesses) {
  std::vector<double> isovalues;
  for (const KnownCells::Condition& each : known.conditions) {
    if (each.isovalue > 0.0) isovalues.push_back(each.isovalue);
  }
  std::sort(isovalues.begin(), isovalues.end());
  isovalues.erase(std::unique(isovalues.begin(), isovalues.end()), isovalues.end());
  for (const double isovalue : isovalues) moveIsovalue(isovalue, known, size, slownesses);
  takeBoreholes(known, size, slownesses);
  return slownesses;
}

}  // namespace talvesk
