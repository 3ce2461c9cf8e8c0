#include "synthetic/Ground.h"

#include <cmath>
#include <utility>

namespace talvesk::synthetic {
namespace {

const double kTurn = 2.0 * std::acos(-1.0);

Ground named(std::string name, std::string title, Ground ground) {
  ground.name = std::move(name);
  ground.title = std::move(title);
  return ground;
}

/// A mean depth with waves of a length and size about it.
std::function<double(double)> waves(double mean, double length, double size) {
  return [=](double x) { return mean + size * std::sin(kTurn * x / length); };
}

}  // namespace

std::function<double(double)> level(double value) {
  return [value](double) { return value; };
}

Ground gradientGround(double v0, double k) {
  Ground ground;
  ground.elevation = level(0.0);
  ground.velocity = [=](double, double depth) { return v0 + k * depth; };
  return ground;
}

Ground layeredGround(std::vector<double> velocities,
                     std::vector<std::function<double(double)>> depths) {
  Ground ground;
  ground.elevation = level(0.0);
  ground.refractors = depths;
  ground.velocity = [velocities, depths](double x, double depth) {
    std::size_t layer = 0;
    while (layer < depths.size() && depth >= depths[layer](x)) ++layer;
    return velocities[layer];
  };
  return ground;
}

Ground wavyGround(double v0, double k, double below, double depth, double length, double size) {
  const auto refractor = waves(depth, length, size);
  Ground ground = gradientGround(v0, k);
  ground.refractors = {refractor};
  ground.velocity = [=](double x, double z) { return z < refractor(x) ? v0 + k * z : below; };
  return ground;
}

std::vector<Ground> studyGrounds() {
  const auto dip = [](double x) { return 3.0 + x * std::tan(kTurn * 5.0 / 360.0); };
  const auto step = [](double x) { return x < 47.0 ? 4.0 : 7.0; };
  Ground hills = layeredGround({500.0, 2000.0}, {waves(6.0, 70.0, 1.5)});
  hills.elevation = [](double x) { return 100.0 + 0.05 * x + 2.5 * std::sin(kTurn * x / 80.0); };
  return {
      named("gradient-weak", "600 + 15 z", gradientGround(600.0, 15.0)),
      named("gradient-strong", "400 + 60 z", gradientGround(400.0, 60.0)),
      named("two-layers", "500 / 2000 m/s, 6 m", layeredGround({500.0, 2000.0}, {level(6.0)})),
      named("dip", "the same, falling by 5 degrees from 3 m",
            layeredGround({500.0, 2000.0}, {dip})),
      named("step", "the same, step from 4 to 7 m", layeredGround({500.0, 2000.0}, {step})),
      named("three-layers", "400 / 1200 / 3500 m/s, 3 and 10 m",
            layeredGround({400.0, 1200.0, 3500.0}, {level(3.0), level(10.0)})),
      named("thin-middle", "400 / 1500 / 3500 m/s, 3 and 8 m",
            layeredGround({400.0, 1500.0, 3500.0}, {level(3.0), level(8.0)})),
      named("wavy", "400 + 40 z over waves of 2 m at 8 m, 3000 m/s",
            wavyGround(400.0, 40.0, 3000.0, 8.0, 40.0, 2.0)),
      named("hills", "500 / 2000 m/s, 6 m with waves of 1.5 m below hills of 5 m", hills),
  };
}

}  // namespace talvesk::synthetic
