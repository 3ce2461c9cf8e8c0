#pragma once

#include "base/WorkerPool.h"
#include "tomo/RayTree.h"
#include "tomo/ShortestPaths.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace talvesk {

/// What a worker needs for any shot, kept from one to the next so that its memory is.
struct ShotScratch {
  ShortestPaths search;
  RayTree rays;
  std::vector<RayTree::Run> runs;
  std::vector<std::uint32_t> placeOf;  ///< per cell of the grid
  std::vector<double> slownesses;
  std::vector<double> sums;
};

/// What the rays of a shot ask of the cells that they cross.
struct ShotSums {
  std::vector<double> corrections;  ///< residual per metre times length in the cell, seconds
  std::vector<double> rayLengths;   ///< metres
};

/// Who traces rays and solves: the threads of a run, and their memory, for all its iterations.
class TraceCrew {
 public:
  /// \param threads at least 1, the calling one among them
  explicit TraceCrew(unsigned threads)
      : mWidth(threads > 0 ? threads : 1),
        mPool(mWidth),
        mScratch(mPool.size()),
        mSums(std::max(kFewestShots, 4 * mPool.size())) {}

  unsigned width() const { return mWidth; }  ///< threads that were asked for
  WorkerPool& pool() { return mPool; }
  ShotScratch& scratch(unsigned worker) { return mScratch[worker]; }
  /// For as many shots as are evaluated before they are added up: the sums of all would take as
  /// much memory as the rays.
  std::vector<ShotSums>& sums() { return mSums; }

 private:
  static constexpr unsigned kFewestShots = 16;

  unsigned mWidth;
  WorkerPool mPool;
  std::vector<ShotScratch> mScratch;
  std::vector<ShotSums> mSums;
};

}  // namespace talvesk
