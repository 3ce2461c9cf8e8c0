#include "refraction/methods/MethodResult.h"

#include "model/ChiSquare.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {

using refractionDataStructure::Interpretation;

const char* nameOf(LayerMethod method) {
  constexpr const char* kNames[] = {"reciprocal", "delay-times", "intercept", "plus-minus"};
  return kNames[static_cast<std::size_t>(method)];
}

LayerPicks layerPicksOf(const TomoDocument& document, const Interpretation& interpretation,
                        const PickErrorRule& rule) {
  LayerPicks picks;
  picks.shots = shotArrivals(document);
  picks.interpretation = interpretation;
  for (std::size_t shot = 0; shot < picks.shots.size(); ++shot) {
    std::vector<double> sigmas;
    for (std::size_t i = 0; i < picks.shots[shot].times.size(); ++i) {
      sigmas.push_back(sigmaOf(document.ttArray[shot], i, rule));
    }
    picks.sigmas.push_back(std::move(sigmas));
  }
  return picks;
}

double Band::errorAt(std::size_t receiver) const {
  return receiver < low.size() ? 0.5 * (high[receiver] - low[receiver])
                               : std::numeric_limits<double>::quiet_NaN();
}

double Band::errorOf(std::size_t receiver, double value) const {
  return receiver < low.size() ? errorWithin(low[receiver], high[receiver], value)
                               : std::numeric_limits<double>::quiet_NaN();
}

double errorWithin(double low, double high, double value) {
  if (value < low) return high - value;
  if (value > high) return value - low;
  return 0.5 * (high - low);
}

const MethodLayer* MethodResult::layer(std::uint32_t number) const {
  const auto found = std::find_if(layers.begin(), layers.end(),
                                  [number](const MethodLayer& l) { return l.layer == number; });
  return found == layers.end() ? nullptr : &*found;
}

}  // namespace talvesk
