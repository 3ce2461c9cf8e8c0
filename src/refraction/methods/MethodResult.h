#pragma once

#include "base/Message.h"
#include "base/Point2D.h"
#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"
#include "refraction/Support.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;
struct PickErrorRule;

/// The ways in which picks that are assigned to layers become velocities and depths.
enum class LayerMethod {
  kReciprocal,  ///< the generalised reciprocal method, as buildProfiles() has it
  kDelayTimes,  ///< delays of all shots and geophones at once by least squares
  kIntercept,   ///< intercept times of every shot, for refractors that dip evenly
  kPlusMinus    ///< sums and differences of the times from two shots
};

inline constexpr LayerMethod kAllLayerMethods[] = {
    LayerMethod::kReciprocal, LayerMethod::kDelayTimes, LayerMethod::kIntercept,
    LayerMethod::kPlusMinus};

/// "reciprocal", "delay-times", "intercept" or "plus-minus", as options and files have it.
const char* nameOf(LayerMethod method);

/// What all methods start from.
struct LayerPicks {
  std::vector<ShotArrivals> shots;
  std::vector<std::vector<double>> sigmas;  ///< seconds, positive, parallel to the times
  refractionDataStructure::Interpretation interpretation;  ///< marks, and chosen XY
};

/// \param rule for picks that state no error
LayerPicks layerPicksOf(const TomoDocument& document,
                        const refractionDataStructure::Interpretation& interpretation,
                        const PickErrorRule& rule);

/// Between what a value lies in 68 of 100 interpretations of picks that are moved by their errors.
struct Band {
  std::vector<double> low;   ///< per receiver; not a number where half of them have no value
  std::vector<double> high;  ///< likewise

  bool empty() const { return low.empty(); }
  /// Half of it, as one standard deviation; not a number where it is not known.
  double errorAt(std::size_t receiver) const;
  /// The same of a value, which may lie outside: where moved picks make the method take another
  /// way. Its error is how far the farther end is then.
  double errorOf(std::size_t receiver, double value) const;
};

/// Of a value with a band from low to high, as Band::errorOf().
double errorWithin(double low, double high, double value);

/// What a method finds of a refractor, per receiver of MethodResult.
struct MethodLayer {
  std::uint32_t layer = 2;
  std::vector<double> depth;          ///< below the surface, metres; not a number where not known
  std::vector<double> velocity;       ///< m/s, likewise
  std::vector<Support> depthSupport;  ///< of what is known
  std::vector<Support> velocitySupport;  ///< likewise
  Band depthBand;                        ///< empty: not asked for
  Band velocityBand;                     ///< likewise
  double medianError = 0.0;              ///< of the median velocity, m/s; 0: not asked for
};

struct MethodResult {
  LayerMethod method = LayerMethod::kReciprocal;
  std::vector<Point2D> receivers;   ///< all geophones of the line, ascending x, each x once
  double v1 = 0.0;                  ///< of the first layer, m/s; the same for all methods
  double v1Error = 0.0;             ///< one standard deviation, m/s; 0: not asked for
  std::vector<MethodLayer> layers;  ///< refractors, from above
  std::vector<Message> remarks;     ///< what is missing, left out or taken another way, and why

  /// Null where there is none.
  const MethodLayer* layer(std::uint32_t number) const;
};

}  // namespace talvesk
