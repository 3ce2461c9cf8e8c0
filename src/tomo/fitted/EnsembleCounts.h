#pragma once

#include "grid/GridGeometry.h"
#include "model/Certainty.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace talvesk {

struct EnsembleState;

/// How many values fell into each of many narrow bins. What is asked of it does not depend on the
/// order in which they came, to the last bit, nor does its memory grow for ever with their number.
class BinCounts {
 public:
  static constexpr std::int32_t kBeyond = INT32_MAX;  ///< bin of values beyond all others

  void add(std::int32_t bin, std::uint32_t times = 1);
  void add(const BinCounts& other);
  const std::vector<std::pair<std::int32_t, std::uint32_t>>& bins() const { return mBins; }
  std::uint64_t count() const { return mCount; }

  /// The place of a quantile, in bins: 2.5 is the middle of bin 2. Between two values it lies on
  /// the straight line between their bins. Not a number without values and where it is beyond.
  /// \param share 0 to 1
  double quantile(double share) const;

 private:
  std::int32_t binOf(std::uint64_t rank) const;

  std::vector<std::pair<std::int32_t, std::uint32_t>> mBins;  ///< bin and count, ascending
  std::uint64_t mCount = 0;
};

/// What the sections of many members have in common, gathered one after the other in any order and
/// any number of parts with the same result to the last bit.
class EnsembleCounts {
 public:
  static constexpr double kBin = 0.005;  ///< of ln velocity

  /// \param isovalues m/s, whose depths are asked for
  EnsembleCounts(const GridGeometry& geometry, std::vector<double> isovalues);

  /// \param slownesses s/m per cell; \param touched whether a ray crosses the cell, per cell
  void add(const std::vector<double>& slownesses, const std::vector<bool>& touched);
  /// Of the same grid and isovalues.
  void add(const EnsembleCounts& other);

  /// Puts what there is to know of the counts into a state.
  void save(EnsembleState& state) const;
  /// Takes the counts of one. False, with these as they were, where they are none of this grid and
  /// these isovalues. \param members that they are of
  bool restore(const EnsembleState& state, int members);

  int members() const { return mMembers; }
  Quantiles velocities() const;            ///< m/s per cell; empty vectors without members
  std::vector<double> deviations() const;  ///< of ln velocity, per cell
  const std::vector<std::uint32_t>& touched() const { return mTouched; }  ///< members, per cell
  std::vector<IsovalueBand> bands() const;

 private:
  template <typename Self, typename Visit>
  static void forEachBins(Self& self, Visit visit);  ///< in the order of a state
  double depthOf(double velocity, std::uint32_t column,
                 const std::vector<double>& slownesses) const;

  std::uint32_t mColumns;
  std::vector<double> mDepths;     ///< of the cells, metres below the surface
  double mDepthBin;                ///< metres
  std::vector<double> mIsovalues;  ///< m/s
  int mMembers = 0;
  std::vector<BinCounts> mCells;
  std::vector<std::int64_t> mSums;     ///< of ln velocity, in fixed point
  std::vector<std::int64_t> mSquares;  ///< the same
  std::vector<std::uint32_t> mTouched;
  std::vector<std::vector<BinCounts>> mDepthCounts;  ///< per isovalue and column
};

}  // namespace talvesk
