#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/Branches.h"
#include "refraction/LinearFit.h"
#include "refraction/ShotArrivals.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

// Phantoming: a refractor's arrivals from one end shot, completed by the arrivals of other shots
// that are shifted in time onto the end shot's line.
//   Lankston, R. W., Lankston, M. M. (1986): Obtaining multilayer reciprocal times through
//   phantoming. Geophysics 51, 45-49.

/// The time by which the refracted arrivals of a shot on one side differ from a line, in the mean,
/// seconds; none when the shot has no such arrival. It is written into `trasla` at these arrivals.
std::optional<double> shiftOntoLine(const ShotArrivals& shot, std::uint32_t refractor, Side side,
                                    const LinearFit& line,
                                    refractionDataStructure::layerStruct& marks);

/// Takes the shifted arrivals of one shot into a curve, at receivers of exactly the same x. An
/// empty point takes the arrival; a filled one becomes the mean of what it is and the arrival, so
/// that a later shot weighs as much as all earlier ones together.
void mergeInto(refractionDataStructure::phantom& curve, const ShotArrivals& shot,
               const refractionDataStructure::layerStruct& marks, Side side);

/// The curve of an end shot, completed.
struct CurveOutcome {
  refractionDataStructure::phantom curve;
  std::size_t ownPicks = 0;  ///< of the end shot; its line needs two at different x
  bool usable() const;       ///< has a line and two receivers at least
};

/// Makes a refractor's arrival curve over the union of all receivers: the end shot's own picks,
/// then the enabled other shots in document order. The line is that of the end shot's own picks,
/// told on the console with them. Receivers without an arrival are not part of the result.
/// \param side of the curve's receivers, seen from its shots: kRight for the forward curve
/// \param marks their `trasla` is set where a shift was found
CurveOutcome buildCurve(const std::vector<ShotArrivals>& shots, std::int32_t endShot,
                        std::uint32_t refractor, Side side,
                        std::vector<refractionDataStructure::layerStruct>& marks);

}  // namespace talvesk
