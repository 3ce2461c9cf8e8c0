#pragma once

#include "base/Message.h"
#include "refraction/elastic/ElasticModuli.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

namespace parameters {
inline constexpr Parameter<double> kShiftOfS = {
    "shift",
    0.0,
    {-1e6, 1e6, 2},
    "metres",
    "What is added to the distances of S, whose line begins elsewhere, to have those of P"};
inline constexpr Parameter<double> kTopTolerance = {
    "top-tolerance",
    20.0,
    {1.0, 200.0},
    "percent",
    "Difference between the depths of a layer by P and by S, as a share of their mean, beyond "
    "which both may be different ground"};
}  // namespace parameters

/// How P and S are brought together.
struct ElasticOptions {
  DensityRule density;
  double shift = parameters::kShiftOfS.initial;             ///< metres, added to distances of S
  double topTolerance = parameters::kTopTolerance.initial;  ///< percent of the mean of both depths

  /// Surfaces, and places on the map, of one line agree to this; metres.
  static constexpr double kPlaceTolerance = 1.0;
};

/// A place of the line where P and S were interpreted.
struct ElasticPoint {
  double x = 0.0;          ///< distance as P has it, metres
  double elevation = 0.0;  ///< of the surface as P has it, metres
  Estimate topP;           ///< of the layer, metres below the surface
  Estimate topS;
  bool topsDiffer = false;  ///< by more than the tolerance
  ElasticState state;
};

struct ElasticLayer {
  std::uint32_t layer = 1;           ///< from 1, the same of P and S
  std::vector<ElasticPoint> points;  ///< ascending x

  std::size_t count(ElasticVerdict verdict) const;
  /// The middle of what is known of a quantity; not a number where nothing is.
  double median(ElasticQuantity quantity) const;
};

/// P and S together along a line.
struct ElasticLine {
  ElasticOptions options;
  std::vector<ElasticLayer> layers;  ///< those that both have, from the surface down
  std::vector<Message> remarks;      ///< what does not fit, is left out, or may mislead
  bool hasErrors = false;            ///< of both velocities of a layer
};

/// A line per layer with the medians of its quantities.
std::vector<Message> elasticSummary(const ElasticLine& line);

}  // namespace talvesk
