#include "refraction/elastic/LayeredWave.h"

#include "base/Console.h"
#include "model/ChiSquare.h"
#include "model/TomoDocument.h"
#include "refraction/Branches.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/PlausibleResults.h"
#include "refraction/Profile.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;
using refractionDataStructure::processingData;

namespace {

Estimate velocityOf(double value) {
  Estimate velocity;
  if (isPlausibleVelocity(value)) velocity.value = value;
  return velocity;
}

/// Straight between two, whose errors go together: they come of the same picks.
Estimate between(const Estimate& a, const Estimate& b, double share) {
  return {(1.0 - share) * a.value + share * b.value, (1.0 - share) * a.sigma + share * b.sigma};
}

Estimate along(const std::vector<double>& x, const std::vector<Estimate>& values, double place) {
  const auto next = std::lower_bound(x.begin(), x.end(), place);
  if (next == x.end()) return {};
  const auto i = static_cast<std::size_t>(next - x.begin());
  if (*next == place) return values[i];
  if (i == 0) return {};
  return between(values[i - 1], values[i], (place - x[i - 1]) / (x[i] - x[i - 1]));
}

WaveLayer firstLayer(const std::vector<Point2D>& surface, double v1) {
  WaveLayer layer;
  for (const Point2D& at : surface) layer.x.push_back(at.x);
  layer.velocity.assign(surface.size(), velocityOf(v1));
  layer.top.assign(surface.size(), Estimate{0.0, 0.0});
  return layer;
}

/// Receivers that do not follow one another, as a file may have them, are left out.
WaveLayer refractorOf(const computedData& data) {
  WaveLayer layer;
  const std::size_t n = std::min({data.x.size(), data.velocity.size(), data.depth.size()});
  for (std::size_t i = 0; i < n; ++i) {
    const double x = data.x[i];
    if (!std::isfinite(x) || (!layer.x.empty() && x <= layer.x.back())) continue;
    layer.x.push_back(x);
    layer.velocity.push_back(velocityOf(data.velocity[i]));
    layer.top.push_back({data.depth[i], Estimate().sigma});
  }
  return layer;
}

/// Standard deviation of the velocity of the first layer as its picks are moved.
double errorOfFirst(const LayerPicks& picks, const BoundsOptions& bounds) {
  double sum = 0.0;
  double squares = 0.0;
  int count = 0;
  for (int member = 0; member < bounds.members; ++member) {
    const LayerPicks moved = perturbedPicks(picks, bounds.seed, static_cast<std::uint64_t>(member));
    const double v = layerVelocity(moved.shots, moved.interpretation.ttLayer, 1);
    if (!isPlausibleVelocity(v)) continue;
    sum += v;
    squares += v * v;
    ++count;
  }
  if (count < 2) return Estimate().sigma;
  const double mean = sum / count;
  return std::sqrt(std::max(squares - count * mean * mean, 0.0) / (count - 1));
}

void takeErrors(const MethodResult& result, const MethodLayer& found, WaveLayer& layer) {
  for (std::size_t i = 0, k = 0; i < layer.x.size(); ++i) {
    while (k < result.receivers.size() && result.receivers[k].x < layer.x[i]) ++k;
    if (k == result.receivers.size()) return;
    if (result.receivers[k].x != layer.x[i]) continue;
    layer.velocity[i].sigma = found.velocityBand.errorAt(k);
    layer.top[i].sigma = found.depthBand.errorAt(k);
  }
}

}  // namespace

Estimate WaveLayer::velocityAt(double place) const {
  return along(x, velocity, place);
}

Estimate WaveLayer::topAt(double place) const {
  return along(x, top, place);
}

bool LayeredWave::hasErrors() const {
  return std::any_of(layers.begin(), layers.end(), [](const WaveLayer& layer) {
    return std::any_of(layer.velocity.begin(), layer.velocity.end(),
                       [](const Estimate& v) { return std::isfinite(v.sigma); });
  });
}

double LayeredWave::elevationAt(double x) const {
  const auto next = std::lower_bound(surface.begin(), surface.end(), x,
                                     [](const Point2D& at, double place) { return at.x < place; });
  if (next == surface.end()) return Estimate().value;
  if (next->x == x) return next->z;
  if (next == surface.begin()) return Estimate().value;
  const Point2D& before = *std::prev(next);
  return before.z + (x - before.x) / (next->x - before.x) * (next->z - before.z);
}

LayeredWave layeredWave(const processingData& results) {
  LayeredWave wave;
  if (results.cData.empty()) return wave;
  wave.surface = profileSurface(results);
  wave.surface.erase(std::remove_if(wave.surface.begin(), wave.surface.end(),
                                    [](const Point2D& at) { return !isFinite(at); }),
                     wave.surface.end());
  wave.layers.push_back(firstLayer(wave.surface, results.v1));
  for (const computedData& data : results.cData) wave.layers.push_back(refractorOf(data));
  return wave;
}

LayeredWave layeredWave(const TomoDocument& document, const Interpretation& interpretation,
                        const BoundsOptions& bounds, const std::function<bool()>& goOn) {
  LayeredWave wave = layeredWave(interpretation.refractData);
  if (wave.layers.empty() || picksChangedSince(document, interpretation.refractData)) return wave;
  // The errors below are those of a profile that the reciprocal method finds.
  wave.errorsNotGiven = interpretation.refractData.isFitted();
  if (wave.errorsNotGiven) return wave;
  const LayerPicks picks = layerPicksOf(document, interpretation, errorRuleOf(document));
  const MethodComparison moved = compareMethods(picks, {LayerMethod::kReciprocal}, bounds,
                                                [&](std::size_t) { return !goOn || goOn(); });
  const MethodResult& result = moved.results.front();
  bool known = false;
  for (std::size_t i = 1; i < wave.layers.size(); ++i) {
    const MethodLayer* found = result.layer(static_cast<std::uint32_t>(i) + 1);
    if (found == nullptr || found->velocityBand.empty()) continue;
    takeErrors(result, *found, wave.layers[i]);
    known = true;
  }
  if (!known) return wave;
  const console::Silence silence;
  const double sigma = errorOfFirst(picks, bounds);
  for (Estimate& velocity : wave.layers.front().velocity) velocity.sigma = sigma;
  return wave;
}

}  // namespace talvesk
