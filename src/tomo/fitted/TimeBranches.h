#pragma once

#include "tomo/fitted/LinePicks.h"

#include <vector>

namespace talvesk {

/// A straight branch of travel times over offset.
struct TimeBranch {
  double intercept = 0.0;  ///< seconds at offset 0
  double slowness = 0.0;   ///< s/m

  double at(double offset) const { return intercept + slowness * offset; }
};

/// The wave that comes first near a shot: along the surface, or, where the velocity grows with
/// depth from v0 at the surface as v0 + k z, along an arc.
struct NearBranch {
  double slowness = 0.0;   ///< 1 / v0, s/m
  double curvature = 0.0;  ///< k / (2 v0), 1/m; 0: straight

  double at(double offset) const;
};

/// How the times of a whole line, as if its ground were level, fall into branches.
struct TimeBranches {
  NearBranch near;
  std::vector<TimeBranch> far;  ///< of refractors, from above; empty where there are none to see
  double misfit = 0.0;          ///< mean of |residual| / sigma

  double at(double offset) const;  ///< the earliest branch
};

/// What the near branch may be.
enum class NearShape { kStraight, kCurved };

/// Finds the branches that leave the least mean of |residual| / sigma at the medians of the times
/// by offset; so a few gross errors do not count.
/// \param refractors 1 or 2
TimeBranches findBranches(const LinePicks& line, std::size_t refractors, NearShape shape);

/// The near branch through some picks, gross errors weighted down; slowness 0 without picks.
NearBranch fitNearBranch(const std::vector<LinePick>& picks, NearShape shape);

}  // namespace talvesk
