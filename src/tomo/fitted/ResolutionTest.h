#pragma once

#include "tomo/fitted/FittedInversion.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace talvesk {

/// What a section is disturbed by, everywhere by the same share of its velocity.
enum class ResolutionPattern {
  kCheckerboard,  ///< squares, faster and slower by turns
  kSpikes,        ///< faster squares two sides apart
  kLayers         ///< faster and slower by turns with depth below the surface
};

struct ResolutionSettings {
  ResolutionPattern pattern = ResolutionPattern::kCheckerboard;
  double size = 5.0;       ///< metres: side of a square or thickness of a layer, positive
  double strength = 0.1;   ///< share of the velocity, above 0 and below 1
  bool noise = true;       ///< of the times, by the errors of their picks
  std::uint64_t seed = 1;  ///< of the noise
  /// How sections are fitted; start and reference are the background whatever they are here.
  FittedOptions fit;
};

/// What came back at one depth, from covered cells within half a pattern's size above and below.
struct DepthResolution {
  double depth = 0.0;  ///< metres below the surface, of the middle of a row of cells
  std::size_t cells = 0;
  /// Of what was put in with what came back, 1 at best: sum(t r) / sqrt(sum(t t) sum(r r)) over
  /// the logarithms of the velocities over the background's. 0 where nothing came back; not a
  /// number where the covered ground is smaller than two squares of the pattern.
  double correlation = 0.0;
  double share = 0.0;  ///< of the strength that came back, sum(t r) / sum(t t); or not a number
};

struct ResolutionResult {
  Status status;         ///< failed: nothing else holds; not so after a stop
  bool stopped = false;  ///< before the end: nothing else holds
  ResolutionSettings settings;
  std::vector<double> truth;             ///< velocity over the background's, per cell
  std::vector<double> recovered;         ///< the same of the section that was found
  std::vector<bool> covered;             ///< per cell: whether its rays go through
  std::vector<DepthResolution> byDepth;  ///< row by row
  ChiSquare fit;                         ///< of the section that was found
  FitEnd end = FitEnd::kStopped;
  int iterations = 0;
};

/// A correlation from which a pattern counts as resolved.
constexpr double kResolved = 0.7;

/// Velocity over that of the background, per cell. Squares and layers hang below the surface, as
/// the rows of the grid do.
std::vector<double> resolutionPattern(const GridSize& size, const ResolutionSettings& settings);

/// Whether a survey would see a pattern in the ground: disturbs a section by it, computes the times
/// of all picks through it, adds noise, and fits a section to them that starts from the undisturbed
/// one. Depends on nothing but its arguments and is the same to the last bit whatever the number of
/// threads of the tracer.
/// \param data picks with their errors; measured times are not looked at
/// \param tracer of the rays of the data
/// \param background s/m, one per cell
/// \param progress iterations completed, from the calling thread; may be empty
/// \param goOn asked between the rays of shots; false stops; may be empty
ResolutionResult testResolution(const GridSize& size, const FitData& data, RayTracer& tracer,
                                const std::vector<double>& background,
                                const ResolutionSettings& settings,
                                const std::function<void(int iteration)>& progress = {},
                                const std::function<bool()>& goOn = {});

/// The smallest pattern that is resolved at a depth.
struct ResolvedSize {
  double depth = 0.0;  ///< metres below the surface
  double size = 0.0;   ///< metres; not a number where none of those tried is
};

/// Reads from tests of several sizes what is resolved at each depth: the smallest size that is, and
/// none where a larger one is not that could be told.
/// \param tests of one grid, in any order
std::vector<ResolvedSize> smallestResolved(const std::vector<ResolutionResult>& tests);

/// Sizes worth trying on a line, ascending: from the distance between its positions on, as far as
/// two of them fit the depth of the grid or four its length.
std::vector<double> sizesToTry(const GridSize& size, const FitData& data);

}  // namespace talvesk
