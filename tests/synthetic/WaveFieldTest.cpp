#include "synthetic/WaveField.h"

#include <cmath>
#include <functional>
#include <vector>

#include <gmock/gmock.h>

namespace talvesk::synthetic {
namespace {

using TimeBetween = std::function<double(double source, double receiver)>;

struct Case {
  const char* name;
  Ground ground;
  TimeBetween exact;
  double most;   ///< seconds off
  double depth;  ///< of the raster, metres
};

/// Depths of the refractor lie neither on points of the raster nor between them.
TimeBetween twoLayers(double depth, double dip) {
  return [=](double source, double receiver) {
    const double offset = std::fabs(receiver - source);
    const auto away = [&](double x) { return (depth + x * std::tan(dip)) * std::cos(dip); };
    const double delays = (away(source) + away(receiver)) * std::cos(std::asin(0.25)) / 500.0;
    return std::min(offset / 500.0, offset * std::cos(dip) / 2000.0 + delays);
  };
}

TimeBetween gradient(double v0, double k) {
  return [=](double source, double receiver) {
    return 2.0 / k * std::asinh(k * std::fabs(receiver - source) / (2.0 * v0));
  };
}

Ground onSlope(Ground ground, double slope) {
  ground.elevation = [slope](double x) { return slope * x; };
  return ground;
}

std::vector<Case> cases() {
  const double dip = std::atan(0.0875);
  const double slope = 0.27;
  const double steeper = std::hypot(1.0, slope);
  const auto alongSlope = [=](double source, double receiver) {
    return steeper * std::fabs(receiver - source) / 500.0;
  };
  // Of a refractor along the slope: distances grow with it, depths shrink.
  const auto belowSlope = [=](double source, double receiver) {
    return twoLayers(6.03 / steeper, 0.0)(steeper * source, steeper * receiver);
  };
  const auto falling = [=](double x) { return 3.0 + x * std::tan(dip); };
  const Ground even = gradientGround(500.0, 0.0);
  const Ground layers = layeredGround({500.0, 2000.0}, {level(6.03)});
  return {
      {"even", even, twoLayers(1e6, 0.0), 0.02e-3, 4.0},
      {"layers", layers, twoLayers(6.03, 0.0), 0.05e-3, 12.0},
      {"dip", layeredGround({500.0, 2000.0}, {falling}), twoLayers(3.0, dip), 0.05e-3, 16.0},
      {"gradient", gradientGround(400.0, 60.0), gradient(400.0, 60.0), 0.05e-3, 50.0},
      {"slope", onSlope(even, slope), alongSlope, 0.25e-3, 4.0},  // a thousandth of the longest
      {"layers below a slope", onSlope(layers, slope), belowSlope, 0.06e-3, 12.0},
  };
}

TEST(WaveField, agreesWithClosedForms) {
  for (const Case& each : cases()) {
    const Raster raster = rasterOf(each.ground, -3.0, 97.0, each.depth, 0.05);
    for (const double source : {-1.0, 46.97}) {
      const WaveField field(each.ground, raster, source);
      for (int i = 0; i < 48; ++i) {
        const double receiver = 2.0 * i;
        EXPECT_NEAR(field.at(receiver), each.exact(source, receiver), each.most)
            << each.name << " from " << source << " to " << receiver;
      }
    }
  }
}

TEST(WaveField, goesRoundAValleyInsteadOfAcrossIt) {
  Ground valley = gradientGround(500.0, 0.0);
  valley.elevation = [](double x) { return std::fabs(x - 20.0) * 0.5; };
  const Raster raster = rasterOf(valley, -3.0, 43.0, 2.0, 0.05);
  const double down = 20.0 * std::hypot(1.0, 0.5);
  EXPECT_NEAR(WaveField(valley, raster, 0.0).at(40.0), 2.0 * down / 500.0, 0.3e-3);
}

}  // namespace
}  // namespace talvesk::synthetic
