#pragma once

#include "refraction/methods/MethodResult.h"
#include "support/TestSurveys.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <vector>

namespace talvesk::testing {

/// A refractor as delay times have it exactly: a wave goes down from its shot, along and up to its
/// receiver, and meets the refractor a shift to the inside of both.
struct DelayTimeGround {
  double v1 = 500.0;
  std::function<double(double)> depth = [](double) { return 10.0; };
  std::function<double(double)> slowness = [](double) { return 1.0 / 2000.0; };
  std::function<double(double)> elevation = [](double) { return 100.0; };
  /// A surface that goes up and down costs a wave what is straight below its shot and receiver.
  bool meetsBelow = false;

  double cosine(double x) const { return std::sqrt(1.0 - std::pow(v1 * slowness(x), 2)); }
  double delay(double x) const { return depth(x) * cosine(x) / v1; }
  double shift(double x) const { return depth(x) * v1 * slowness(x) / cosine(x); }

  double headWave(double from, double to) const {
    const double sign = to > from ? 1.0 : -1.0;
    const double down = meetsBelow ? from : from + sign * shift(from);
    const double up = meetsBelow ? to : to - sign * shift(to);
    constexpr int kSteps = 400;
    double along = 0.0;
    for (int i = 0; i < kSteps; ++i) along += slowness(from + (i + 0.5) / kSteps * (to - from));
    return delay(down) + delay(up) + along * std::fabs(to - from) / kSteps;
  }
};

/// A spread of 60 geophones every 2.5 m with a shot every 10 m from end to end and two beyond each,
/// with first arrivals and the marks that are true. Picks are good to 0.5 ms.
inline LayerPicks delayTimePicks(const DelayTimeGround& ground) {
  std::vector<double> places = {-60.0, -30.0};
  for (int i = 0; i < 16; ++i) places.push_back(-1.25 + 10.0 * i);
  places.insert(places.end(), {177.5, 207.5});
  LayerPicks picks;
  for (std::size_t s = 0; s < places.size(); ++s) {
    ShotArrivals shot;
    shot.shot = {places[s], ground.elevation(places[s])};
    refractionDataStructure::layerStruct marks;
    marks.shotID = static_cast<std::uint32_t>(s);
    for (int i = 0; i < 60; ++i) {
      const double x = 2.5 * i;
      shot.receivers.push_back({x, ground.elevation(x)});
      const double direct = std::fabs(x - places[s]) / ground.v1;
      const double head = ground.headWave(places[s], x);
      shot.times.push_back(std::min(direct, head));
      marks.layer.push_back(direct < head ? 1U : 2U);
      marks.trasla.push_back(0.0);
    }
    picks.sigmas.emplace_back(shot.times.size(), 0.0005);
    picks.shots.push_back(std::move(shot));
    picks.interpretation.ttLayer.push_back(std::move(marks));
  }
  return picks;
}

}  // namespace talvesk::testing
