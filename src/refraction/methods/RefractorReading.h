#pragma once

#include "refraction/methods/MethodResult.h"

#include <cstdint>
#include <vector>

namespace talvesk {

// Between the methods and what they share.

/// What a method reads of a refractor at every receiver of the line, not a number where it cannot:
/// half the time that the overburden costs a wave along the refractor, and the velocity of that.
struct RefractorReading {
  std::vector<double> delays;            ///< seconds
  std::vector<double> velocities;        ///< m/s
  std::vector<Support> delaySupport;     ///< per receiver
  std::vector<Support> velocitySupport;  ///< likewise
  Message refused;                       ///< why there is none; empty: there is
};

/// The line as the methods see it.
struct LineView {
  const LayerPicks& picks;
  const std::vector<Point2D>& receivers;
  double spacing = 1.0;                ///< the usual one of receivers, metres
  double v1 = 0.0;                     ///< m/s; may be not a number
  const MethodLayer* upper = nullptr;  ///< the refractor above, of the same method
};

RefractorReading readDelayTimes(const LineView& line, std::uint32_t refractor);
RefractorReading readIntercepts(const LineView& line, std::uint32_t refractor);
RefractorReading readPlusMinus(const LineView& line, std::uint32_t refractor);

/// A reading of nothing at n receivers.
RefractorReading emptyReading(std::size_t n);

/// Depths from delays: below the upper refractor where the line has one, else below the surface.
std::vector<double> depthsOf(const LineView& line, const std::vector<double>& delays,
                             const std::vector<double>& velocities);

/// The traces of a shot on one side that are picked and assigned to a refractor, outward; none when
/// the shot takes no part.
std::vector<std::size_t> refracted(const LayerPicks& picks, std::size_t shot,
                                   std::uint32_t refractor, Side side);

}  // namespace talvesk
