#include "refraction/methods/MethodComparison.h"

#include "base/RunForEach.h"
#include "model/TravelTime.h"
#include "numerics/Medians.h"
#include "numerics/NormalNumbers.h"
#include "refraction/methods/LayerMethods.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr double kLeastShare = 0.1;  // of a time, below which no error takes it
constexpr double kBandShare = 0.16;  // of the members beyond either end of a band
constexpr double kFarApart = 3.0;    // errors of a difference: there are six pairs of methods

using Values = std::vector<double> MethodLayer::*;

using Members = std::vector<std::vector<MethodResult>>;

double valueOf(const MethodResult& result, std::uint32_t layer, Values values, std::size_t j) {
  const MethodLayer* found = result.layer(layer);
  return found == nullptr ? kUnknown : (found->*values)[j];
}

/// The ends between which 68 of 100 lie; nothing known where that is less than half of them.
std::pair<double, double> middlePart(std::vector<double> values) {
  const std::size_t all = values.size();
  values.erase(std::remove_if(values.begin(), values.end(), [](double v) { return std::isnan(v); }),
               values.end());
  if (values.empty() || 2 * values.size() < all) return {kUnknown, kUnknown};
  std::sort(values.begin(), values.end());
  const auto at = [&](double share) {
    return values[static_cast<std::size_t>(
        std::lround(share * static_cast<double>(values.size() - 1)))];
  };
  return {at(kBandShare), at(1.0 - kBandShare)};
}

/// The error of a value, from the same number of every member.
template <typename Number>
double errorOver(const Members& members, double value, Number numberOf) {
  std::vector<double> all;
  for (const std::vector<MethodResult>& member : members) all.push_back(numberOf(member));
  const auto [low, high] = middlePart(std::move(all));
  return errorWithin(low, high, value);
}

/// Of one method and refractor over all members.
Band bandOf(const Members& members, std::size_t method, const MethodLayer& layer, Values values) {
  Band band;
  for (std::size_t j = 0; j < (layer.*values).size(); ++j) {
    std::vector<double> all;
    for (const std::vector<MethodResult>& member : members) {
      all.push_back(valueOf(member[method], layer.layer, values, j));
    }
    const bool known = std::isfinite((layer.*values)[j]);
    const auto [low, high] = middlePart(std::move(all));
    band.low.push_back(known ? low : kUnknown);
    band.high.push_back(known ? high : kUnknown);
  }
  return band;
}

/// Whether two methods differ at a receiver by more than chance makes of the same moved picks.
bool differ(const MethodComparison& comparison, const Members& members, std::size_t a,
            std::size_t b, std::uint32_t layer, Values values, std::size_t j) {
  const auto difference = [&](const std::vector<MethodResult>& results) {
    return valueOf(results[a], layer, values, j) - valueOf(results[b], layer, values, j);
  };
  std::vector<double> all;
  for (const std::vector<MethodResult>& member : members) all.push_back(difference(member));
  const auto [low, high] = middlePart(std::move(all));
  // Comparisons with what is not a number are false.
  return std::fabs(difference(comparison.results)) > kFarApart * 0.5 * (high - low);
}

std::vector<bool> differencesIn(const MethodComparison& comparison, const Members& members,
                                std::uint32_t layer, Values values) {
  const std::size_t methods = comparison.results.size();
  std::vector<bool> different(comparison.results.front().receivers.size(), false);
  for (std::size_t j = 0; j < different.size(); ++j) {
    for (std::size_t a = 0; a < methods; ++a) {
      for (std::size_t b = a + 1; b < methods && !different[j]; ++b) {
        different[j] = differ(comparison, members, a, b, layer, values, j);
      }
    }
  }
  return different;
}

void findDisagreements(const Members& members, MethodComparison& comparison) {
  for (std::uint32_t number = 2; number <= refractionDataStructure::kLastLayer; ++number) {
    const auto having =
        std::count_if(comparison.results.begin(), comparison.results.end(),
                      [number](const MethodResult& r) { return r.layer(number) != nullptr; });
    if (having < 2) continue;
    comparison.disagreements.push_back(
        {number, differencesIn(comparison, members, number, &MethodLayer::depth),
         differencesIn(comparison, members, number, &MethodLayer::velocity)});
  }
}

void findBands(const LayerPicks& picks, const std::vector<LayerMethod>& methods,
               const std::function<bool(std::size_t)>& goOn, MethodComparison& comparison) {
  const BoundsOptions& bounds = comparison.bounds;
  Members members(static_cast<std::size_t>(bounds.members));
  std::atomic<std::size_t> done{0};
  bool stopped = false;
  runForEach(
      members.size(),
      [&](std::size_t member) {
        const LayerPicks moved = perturbedPicks(picks, bounds.seed, member);
        for (const LayerMethod method : methods) {
          members[member].push_back(interpretBy(method, moved));
        }
        ++done;
      },
      [&] {
        stopped = stopped || (goOn && !goOn(done));
        return !stopped;
      },
      bounds.threads);
  if (stopped) return;
  for (std::size_t m = 0; m < methods.size(); ++m) {
    MethodResult& result = comparison.results[m];
    result.v1Error =
        errorOver(members, result.v1, [m](const auto& member) { return member[m].v1; });
    for (MethodLayer& layer : result.layers) {
      layer.depthBand = bandOf(members, m, layer, &MethodLayer::depth);
      layer.velocityBand = bandOf(members, m, layer, &MethodLayer::velocity);
      const double median = medianOfFinite(layer.velocity, kUnknown);
      layer.medianError = errorOver(members, median, [&](const auto& member) {
        const MethodLayer* same = member[m].layer(layer.layer);
        return same == nullptr ? kUnknown : medianOfFinite(same->velocity, kUnknown);
      });
    }
  }
  findDisagreements(members, comparison);
}

}  // namespace

LayerPicks perturbedPicks(LayerPicks picks, std::uint64_t seed, std::uint64_t member) {
  NormalNumbers normal(seed, member);
  for (std::size_t shot = 0; shot < picks.shots.size(); ++shot) {
    std::vector<double>& times = picks.shots[shot].times;
    for (std::size_t i = 0; i < times.size(); ++i) {
      if (!hasPick(times[i])) continue;
      const double moved = times[i] + picks.sigmas[shot][i] * normal.next();
      times[i] = std::max(moved, kLeastShare * times[i]);
    }
  }
  return picks;
}

const Disagreement* MethodComparison::disagreement(std::uint32_t layer) const {
  const auto found = std::find_if(disagreements.begin(), disagreements.end(),
                                  [layer](const Disagreement& d) { return d.layer == layer; });
  return found == disagreements.end() ? nullptr : &*found;
}

std::optional<GreatestDifference> greatestDifference(const MethodComparison& comparison,
                                                     std::uint32_t layer, Values values) {
  std::optional<GreatestDifference> greatest;
  const std::size_t receivers =
      comparison.results.empty() ? 0 : comparison.results.front().receivers.size();
  for (std::size_t j = 0; j < receivers; ++j) {
    GreatestDifference here{j, {}, {}, kUnknown, kUnknown};
    for (const MethodResult& result : comparison.results) {
      const double value = valueOf(result, layer, values, j);
      if (std::isnan(value)) continue;
      if (!(value >= here.least)) {
        here.least = value;
        here.low = result.method;
      }
      if (!(value <= here.greatest)) {
        here.greatest = value;
        here.high = result.method;
      }
    }
    const double apart = here.greatest - here.least;  // not a number, or 0 by one method alone
    if (apart > (greatest ? greatest->greatest - greatest->least : 0.0)) greatest = here;
  }
  return greatest;
}

MethodComparison compareMethods(const LayerPicks& picks, const std::vector<LayerMethod>& methods,
                                const BoundsOptions& bounds,
                                const std::function<bool(std::size_t)>& goOn) {
  MethodComparison comparison;
  comparison.bounds = bounds;
  for (const LayerMethod method : methods) {
    comparison.results.push_back(interpretBy(method, picks));
  }
  if (bounds.members > 0) findBands(picks, methods, goOn, comparison);
  return comparison;
}

}  // namespace talvesk
