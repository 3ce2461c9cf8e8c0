#include "refraction/elastic/MatchWaves.h"

#include "refraction/elastic/ElasticRemarks.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kSamePlace = 1e-3;  // metres, between receivers of both

/// Distances of a layer of S as P has them.
WaveLayer shifted(WaveLayer layer, double shift) {
  for (double& x : layer.x) x += shift;
  return layer;
}

/// Receivers of either between the ends of both, each place once: that of P where they are one.
std::vector<double> commonPlaces(const WaveLayer& p, const WaveLayer& s) {
  if (p.x.empty() || s.x.empty()) return {};
  const double first = std::max(p.x.front(), s.x.front());
  const double last = std::min(p.x.back(), s.x.back());
  const auto inside = [&](double x) { return x >= first - kSamePlace && x <= last + kSamePlace; };
  std::vector<double> places;
  std::copy_if(p.x.begin(), p.x.end(), std::back_inserter(places), inside);
  const auto own = places.size();
  for (const double x : s.x) {
    const auto end = places.begin() + static_cast<std::ptrdiff_t>(own);
    const auto next = std::lower_bound(places.begin(), end, x - kSamePlace);
    if (inside(x) && (next == end || *next > x + kSamePlace)) places.push_back(x);
  }
  std::sort(places.begin(), places.end());
  return places;
}

/// The value at a place that is one with a receiver a hair beside it.
template <typename At>
Estimate near(const std::vector<double>& x, double place, At at) {
  const auto next = std::lower_bound(x.begin(), x.end(), place - kSamePlace);
  return at(next != x.end() && *next <= place + kSamePlace ? *next : place);
}

bool differ(const Estimate& p, const Estimate& s, double percent) {
  const double mean = 0.5 * (std::fabs(p.value) + std::fabs(s.value));
  return std::fabs(p.value - s.value) > 0.01 * percent * mean;
}

ElasticLayer matchLayer(const LayeredWave& wave, const WaveLayer& p, const WaveLayer& s,
                        const ElasticOptions& options, std::size_t index) {
  ElasticLayer layer;
  layer.layer = static_cast<std::uint32_t>(index) + 1;
  for (const double x : commonPlaces(p, s)) {
    const auto velocity = [x](const WaveLayer& of) {
      return near(of.x, x, [&of](double at) { return of.velocityAt(at); });
    };
    const auto top = [x](const WaveLayer& of) {
      return near(of.x, x, [&of](double at) { return of.topAt(at); });
    };
    ElasticPoint point;
    point.x = x;
    point.elevation = wave.elevationAt(x);
    point.topP = top(p);
    point.topS = top(s);
    point.topsDiffer = differ(point.topP, point.topS, options.topTolerance);
    point.state = elasticState(velocity(p), velocity(s), options.density, index);
    layer.points.push_back(point);
  }
  return layer;
}

Message reachOf(const WaveLayer& layer) {
  return Message::tr("%1 to %2")
      .arg(Message::length(layer.x.front()))
      .arg(Message::length(layer.x.back()));
}

Status checkWave(const LayeredWave& wave, const Message& without) {
  if (wave.layers.empty() || wave.surface.empty()) return Status::failure(without);
  return {};
}

}  // namespace

Status matchWaves(const LayeredWave& p, const LayeredWave& s, const ElasticOptions& options,
                  ElasticLine& out) {
  Status status = checkWave(p, Message::tr("The project of P has no layered profile: build its "
                                           "profiles in the refraction dialog first."));
  if (status.ok()) {
    status = checkWave(s, Message::tr("The project of S has no layered profile: build its "
                                      "profiles in the refraction dialog first."));
  }
  if (!status.ok()) return status;
  ElasticLine line;
  line.options = options;
  const std::size_t both = std::min(p.layers.size(), s.layers.size());
  for (std::size_t i = 0; i < both; ++i) {
    const WaveLayer layerS = shifted(s.layers[i], options.shift);
    ElasticLayer layer = matchLayer(p, p.layers[i], layerS, options, i);
    if (!layer.points.empty()) {
      line.layers.push_back(std::move(layer));
    } else if (i == 0) {
      return Status::failure(Message::tr("P and S have no place in common: P was interpreted from "
                                         "%1, S from %2 along the line.")
                                 .arg(reachOf(p.layers[0]))
                                 .arg(reachOf(layerS)));
    } else {
      line.remarks.push_back(Message::tr("Layer %1: P and S have no place in common.").arg(i + 1));
    }
  }
  if (p.layers.size() != s.layers.size()) {
    line.remarks.push_back(Message::tr("P has %1 layers and S has %2; what lies below layer %3 is "
                                       "known of one wave only and left out.")
                               .arg(p.layers.size())
                               .arg(s.layers.size())
                               .arg(both));
  }
  addRemarks(p, s, line);
  line.hasErrors = p.hasErrors() && s.hasErrors();
  out = std::move(line);
  return {};
}

}  // namespace talvesk
