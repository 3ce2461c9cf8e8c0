#pragma once

#include "model/Parameters.h"
#include "model/RefractionDataStructure.h"

#include <array>
#include <cstddef>
#include <vector>

namespace talvesk {

// The generalised reciprocal method.
//   Palmer, D. (1980): The Generalized Reciprocal Method of Seismic Refraction Interpretation.
//   Society of Exploration Geophysicists.
// Curves have two receivers at least and the abscissae of splines: strictly ascending. They are
// read up to XY beyond the receivers that are evaluated, so they keep all the arrivals that they
// have; a sequence of one value per receiver follows the receivers evaluated.

/// Half the distances between the two points at which forward and reverse arrivals are taken,
/// metres. The points lie XY to either side of the receiver: this half-separation is the convention
/// of the whole interpretation.
inline constexpr std::array<double, 9> kXYFamily = {-4.0, -3.0, -2.0, -1.0, 0.0,
                                                    1.0,  2.0,  3.0,  4.0};
static_assert(kXYFamily.front() == parameters::kXY.limits.least &&
              kXYFamily.back() == parameters::kXY.limits.most);

/// Index of a value of kXYFamily; a value that is not of the family counts as 0 m.
std::size_t indexOfXY(double xy);

/// Whether a value is one of kXYFamily.
bool isOfFamily(double xy);

/// Beyond the family XY may be chosen up to six spacings of the receivers either way: farther apart
/// the two points have little to do with the ground between them.
inline constexpr int kMostSpacings = 6;
/// That in metres. \param x receivers, ascending, two at least
double widestXY(const std::vector<double>& x);

/// One curve of a family of n receivers.
std::vector<double> memberOf(const std::vector<double>& family, std::size_t index);

/// Evaluates both lines at the other end shot, stores the values in the curves, and tells
/// and returns the larger, seconds.
/// \param xA, xB the end shots, metres
double reciprocalTime(refractionDataStructure::phantom& forward,
                      refractionDataStructure::phantom& reverse, double xA, double xB);

/// Half of forward - reverse + reciprocal time, over the family, one curve behind the other.
/// \param x the receivers evaluated, metres, ascending, two at least
std::vector<double> buildTV(const refractionDataStructure::phantom& forward,
                            const refractionDataStructure::phantom& reverse,
                            const std::vector<double>& x, double tAB);

/// Half of forward + reverse - reciprocal time - travel time between the two points, over the
/// family. \param tV the velocity-analysis function at `x` that gives that travel time
std::vector<double> buildTG(const refractionDataStructure::phantom& forward,
                            const refractionDataStructure::phantom& reverse,
                            const std::vector<double>& x, double tAB,
                            const std::vector<double>& tV);

/// One curve of such a family, of any XY, metres.
std::vector<double> tVAt(double xy, const refractionDataStructure::phantom& forward,
                         const refractionDataStructure::phantom& reverse,
                         const std::vector<double>& x, double tAB);
std::vector<double> tGAt(double xy, const refractionDataStructure::phantom& forward,
                         const refractionDataStructure::phantom& reverse,
                         const std::vector<double>& x, double tAB, const std::vector<double>& tV);

/// Why the velocities of a refractor are one constant.
enum class VelocityFallback { kNone, kNotPositive, kStrongVariation };

/// What smoothed velocities ask for. Those that are not a number are passed over.
VelocityFallback fallbackOf(const std::vector<double>& velocities);

struct RefractorVelocity {
  std::vector<double> velocity;  ///< m/s, per receiver
  VelocityFallback fallback = VelocityFallback::kNone;
};

/// Velocities from the slope of tV over 2 m to either side, smoothed in place from left to right.
/// Where one of them is not positive, or the largest is more than four times the smallest, all
/// become that of the straight line through tV.
/// \param x receivers, metres, ascending, two at least; \param tV seconds
RefractorVelocity refractorVelocity(const std::vector<double>& x, const std::vector<double>& tV);

/// Half-width and largest ratio of refractorVelocity().
inline constexpr double kSlopeReach = 2.0;  ///< metres
inline constexpr double kMaxVelocityRatio = 4.0;

struct RefractorDepth {
  std::vector<double> depth;   ///< metres; 0 for the `skip` receivers at either end
  bool tGNotPositive = false;  ///< a time-depth was 0 or less and counted as 0
};

/// Depth of the first refractor from its time-depths and velocities and that of the layer above.
/// Not a number where the refractor is slower than the layer.
RefractorDepth depthFirstRefractor(const std::vector<double>& tG, const std::vector<double>& v2,
                                   double v1, std::size_t skip);

/// Depth of the second refractor from its time-depths, the depth of the first and the velocities.
/// Not a number where a refractor is slower than the layer above. All sequences are of one length.
std::vector<double> depthSecondRefractor(const std::vector<double>& tG2,
                                         const std::vector<double>& z1,
                                         const std::vector<double>& v2,
                                         const std::vector<double>& v3, double v1,
                                         std::size_t skip);

}  // namespace talvesk
