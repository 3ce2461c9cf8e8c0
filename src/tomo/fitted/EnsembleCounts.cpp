#include "tomo/fitted/EnsembleCounts.h"

#include "model/EnsembleState.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr double kLow = 0.16;
constexpr double kHigh = 0.84;
constexpr double kDepthBins = 20.0;      // in a cell
constexpr double kFixedPoint = 1 << 20;  // ln v < 10: squares of 65536 members fit 64 bits

std::int32_t binAt(double place) {
  return static_cast<std::int32_t>(std::floor(place));
}
// What a stored count can be: far beyond any velocity and depth, and far from an overflow.
constexpr std::int64_t kMostBin = 1000000;
constexpr std::int64_t kMostSquare = 100 * (std::int64_t{1} << 40);  // of ln v < 10, fixed point

template <typename Value>
Quantiles quantilesOf(const std::vector<BinCounts>& counts, Value value) {
  Quantiles q;
  for (const BinCounts& each : counts) {
    q.median.push_back(value(each.quantile(0.5)));
    q.low.push_back(value(each.quantile(kLow)));
    q.high.push_back(value(each.quantile(kHigh)));
  }
  return q;
}

}  // namespace

void BinCounts::add(std::int32_t bin, std::uint32_t times) {
  const auto at =
      std::lower_bound(mBins.begin(), mBins.end(), bin,
                       [](const auto& entry, std::int32_t b) { return entry.first < b; });
  if (at != mBins.end() && at->first == bin) {
    at->second += times;
  } else {
    mBins.insert(at, {bin, times});
  }
  mCount += times;
}

void BinCounts::add(const BinCounts& other) {
  for (const auto& [bin, times] : other.mBins) add(bin, times);
}

std::int32_t BinCounts::binOf(std::uint64_t rank) const {
  std::uint64_t below = 0;
  for (const auto& [bin, times] : mBins) {
    below += times;
    if (rank < below) return bin;
  }
  return kBeyond;
}

double BinCounts::quantile(double share) const {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  if (mCount == 0) return kNone;
  const double rank = share * static_cast<double>(mCount - 1);
  const auto below = static_cast<std::uint64_t>(rank);
  const double part = rank - static_cast<double>(below);
  const std::int32_t first = binOf(below);
  const std::int32_t second = part > 0.0 ? binOf(below + 1) : first;
  if (second == kBeyond) return kNone;
  return first + 0.5 + part * (static_cast<double>(second) - first);
}

EnsembleCounts::EnsembleCounts(const GridGeometry& geometry, std::vector<double> isovalues)
    : mColumns(geometry.col()),
      mDepthBin(geometry.aLato() / kDepthBins),
      mIsovalues(std::move(isovalues)),
      mCells(geometry.cellCount()),
      mSums(geometry.cellCount(), 0),
      mSquares(geometry.cellCount(), 0),
      mTouched(geometry.cellCount(), 0),
      mDepthCounts(mIsovalues.size(), std::vector<BinCounts>(mColumns)) {
  for (std::uint32_t cell = 0; cell < geometry.cellCount(); ++cell) {
    const double top = geometry.cellCentre(cell % mColumns).z - 0.5 * geometry.aLato();
    mDepths.push_back(geometry.cellCentre(cell).z - top);
  }
}

/// The least depth at which a section reaches a velocity, from above; infinite where it does not.
double EnsembleCounts::depthOf(double velocity, std::uint32_t column,
                               const std::vector<double>& slownesses) const {
  double above = 0.0;
  for (std::size_t cell = column; cell < slownesses.size(); cell += mColumns) {
    const double here = 1.0 / slownesses[cell];
    if (here >= velocity) {
      if (cell == column) return 0.0;
      const double part = (velocity - above) / (here - above);
      const double upper = mDepths[cell - mColumns];
      return upper + part * (mDepths[cell] - upper);
    }
    above = here;
  }
  return std::numeric_limits<double>::infinity();
}

void EnsembleCounts::add(const std::vector<double>& slownesses, const std::vector<bool>& touched) {
  ++mMembers;
  for (std::size_t cell = 0; cell < mCells.size(); ++cell) {
    const double logarithm = -std::log(slownesses[cell]);
    mCells[cell].add(binAt(logarithm / kBin));
    const std::int64_t fixed = std::llround(logarithm * kFixedPoint);
    mSums[cell] += fixed;
    mSquares[cell] += fixed * fixed;
    if (touched[cell]) ++mTouched[cell];
  }
  for (std::size_t i = 0; i < mIsovalues.size(); ++i) {
    for (std::uint32_t column = 0; column < mColumns; ++column) {
      const double depth = depthOf(mIsovalues[i], column, slownesses);
      mDepthCounts[i][column].add(std::isfinite(depth) ? binAt(depth / mDepthBin + 0.5)
                                                       : BinCounts::kBeyond);
    }
  }
}

void EnsembleCounts::add(const EnsembleCounts& other) {
  mMembers += other.mMembers;
  for (std::size_t cell = 0; cell < mCells.size(); ++cell) {
    mCells[cell].add(other.mCells[cell]);
    mSums[cell] += other.mSums[cell];
    mSquares[cell] += other.mSquares[cell];
    mTouched[cell] += other.mTouched[cell];
  }
  for (std::size_t i = 0; i < mIsovalues.size(); ++i) {
    for (std::uint32_t column = 0; column < mColumns; ++column) {
      mDepthCounts[i][column].add(other.mDepthCounts[i][column]);
    }
  }
}

template <typename Self, typename Visit>
void EnsembleCounts::forEachBins(Self& self, Visit visit) {
  for (auto& cell : self.mCells) visit(cell, false);
  for (auto& columns : self.mDepthCounts) {
    for (auto& column : columns) visit(column, true);
  }
}

void EnsembleCounts::save(EnsembleState& state) const {
  state.bins.clear();
  forEachBins(*this, [&](const BinCounts& counts, bool) {
    state.bins.push_back(static_cast<std::int64_t>(counts.bins().size()));
    for (const auto& [bin, times] : counts.bins()) {
      state.bins.push_back(bin);
      state.bins.push_back(times);
    }
  });
  state.sums = mSums;
  state.squares = mSquares;
  state.touched = mTouched;
}

bool EnsembleCounts::restore(const EnsembleState& state, int members) {
  const std::size_t cells = mCells.size();
  if (members < 0 || state.sums.size() != cells || state.squares.size() != cells ||
      state.touched.size() != cells) {
    return false;
  }
  const auto isShare = [&](std::int64_t count) { return count >= 0 && count <= members; };
  const auto within = [](std::int64_t value, std::int64_t most) {
    return value >= -most && value <= most;
  };
  const auto isSum = [&](std::int64_t sum) { return within(sum, members * kMostSquare); };
  EnsembleCounts read = *this;
  std::size_t at = 0;
  bool sound = std::all_of(state.touched.begin(), state.touched.end(), isShare) &&
               std::all_of(state.sums.begin(), state.sums.end(), isSum) &&
               std::all_of(state.squares.begin(), state.squares.end(), isSum);
  forEachBins(read, [&](BinCounts& counts, bool depths) {
    counts = {};
    sound = sound && at < state.bins.size();
    const std::int64_t size = sound ? state.bins[at++] : -1;
    sound =
        sound && isShare(size) && static_cast<std::size_t>(size) <= (state.bins.size() - at) / 2;
    for (std::int64_t i = 0; sound && i < size; ++i, at += 2) {
      const std::int64_t bin = state.bins[at];
      const std::int64_t times = state.bins[at + 1];
      sound = (within(bin, kMostBin) || (depths && bin == BinCounts::kBeyond)) && times > 0 &&
              isShare(times);
      if (sound) counts.add(static_cast<std::int32_t>(bin), static_cast<std::uint32_t>(times));
    }
    sound = sound && counts.count() == static_cast<std::uint64_t>(members) &&
            counts.bins().size() == static_cast<std::size_t>(size);
  });
  if (!sound || at != state.bins.size()) return false;
  read.mSums = state.sums;
  read.mSquares = state.squares;
  read.mTouched = state.touched;
  read.mMembers = members;
  *this = std::move(read);
  return true;
}

Quantiles EnsembleCounts::velocities() const {
  if (mMembers == 0) return {};
  return quantilesOf(mCells, [](double place) { return std::exp(place * kBin); });
}

std::vector<double> EnsembleCounts::deviations() const {
  std::vector<double> deviations;
  const auto n = static_cast<double>(mMembers);
  for (std::size_t cell = 0; mMembers > 0 && cell < mCells.size(); ++cell) {
    const double mean = static_cast<double>(mSums[cell]) / n;
    const double variance = static_cast<double>(mSquares[cell]) / n - mean * mean;
    deviations.push_back(std::sqrt(std::max(variance, 0.0)) / kFixedPoint);
  }
  return deviations;
}

std::vector<IsovalueBand> EnsembleCounts::bands() const {
  std::vector<IsovalueBand> bands;
  for (std::size_t i = 0; mMembers > 0 && i < mIsovalues.size(); ++i) {
    // Depths fall into the bin that lies about them.
    const auto depth = [&](double place) { return (place - 0.5) * mDepthBin; };
    bands.push_back({mIsovalues[i], quantilesOf(mDepthCounts[i], depth)});
  }
  return bands;
}

}  // namespace talvesk
