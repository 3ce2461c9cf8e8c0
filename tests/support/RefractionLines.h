#pragma once

#include "refraction/ShotArrivals.h"
#include "support/TestSurveys.h"

#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace talvesk::testing {

/// A level surface at 100 m above one or two plane refractors that dip along the line. Times are
/// the closed forms of head waves:
///   Diebold, J. B., Stoffa, P. L. (1981): The traveltime equation, tau-p mapping, and inversion of
///   common midpoint data. Geophysics 46, 238-254.
struct DippingLayers {
  std::vector<double> velocities;  ///< m/s, top down; two or three
  std::vector<double> depths;      ///< of the refractors at x = 0, metres
  std::vector<double> dips;        ///< radians, positive deeper to the right

  double depth(std::size_t refractor, double x) const {
    return depths[refractor] + x * std::tan(dips[refractor]);
  }

  /// The head wave along refractor 0 or 1 between two points of the surface, seconds.
  double headWave(std::size_t refractor, double a, double b) const {
    const double from = std::min(a, b);
    double time = 0.0;
    // Angles of the ray with the vertical, from the refractor up: going down and coming up.
    double down = std::asin(velocities[refractor] / velocities[refractor + 1]) - dips[refractor];
    double up = down + 2.0 * dips[refractor];
    for (std::size_t layer = refractor + 1; layer-- > 0;) {
      const double above = layer == 0 ? 0.0 : depth(layer - 1, from);
      const double thickness = depth(layer, from) - above;
      time += thickness * (std::cos(down) + std::cos(up)) / velocities[layer];
      if (layer == 0) break;
      const double bend = velocities[layer - 1] / velocities[layer];
      const double dip = dips[layer - 1];
      down = std::asin(bend * std::sin(down + dip)) - dip;
      up = std::asin(bend * std::sin(up - dip)) + dip;
    }
    return time + std::fabs(b - a) * std::sin(up) / velocities[0];
  }

  /// Earliest arrival and the layer that it comes from, 1 to 3.
  std::pair<double, std::uint32_t> firstArrival(double a, double b) const {
    std::pair<double, std::uint32_t> first{std::fabs(b - a) / velocities[0], 1};
    for (std::size_t refractor = 0; refractor < depths.size(); ++refractor) {
      const double time = headWave(refractor, a, b);
      if (time < first.first) first = {time, static_cast<std::uint32_t>(refractor) + 2};
    }
    return first;
  }
};

/// A line of geophones from 0 m on with the first arrivals of a ground, and the marks that are
/// true.
inline TomoDocument dippingLine(const DippingLayers& ground, int geophones, double spacing,
                                const std::vector<double>& shots,
                                std::vector<refractionDataStructure::layerStruct>& truth) {
  TomoDocument line = testLine(geophones, spacing, shots);
  truth.clear();
  for (TravelTime& record : line.ttArray.edit()) {
    refractionDataStructure::layerStruct marks;
    marks.shotID = static_cast<std::uint32_t>(record.traceSetID);
    for (int i = 0; i < geophones; ++i) {
      const auto [time, layer] = ground.firstArrival(record.shotPos2d.x, i * spacing);
      // A geophone at the shot has no time of its own to pick.
      record.ttMisurati.edit()[static_cast<std::size_t>(i)] = time;
      marks.layer.push_back(time > 0.0 ? layer : refractionDataStructure::kNoLayer);
      marks.trasla.push_back(0.0);
    }
    truth.push_back(std::move(marks));
  }
  return line;
}

inline const DippingLayers& twoDippingLayers() {
  static const DippingLayers ground{{500.0, 1800.0}, {6.0}, {0.03}};
  return ground;
}
inline const DippingLayers& threeDippingLayers() {
  static const DippingLayers ground{{400.0, 1200.0, 3500.0}, {3.0, 18.0}, {0.01, 0.02}};
  return ground;
}

/// A spread of 60 geophones every 2.5 m with a shot every 10 m from end to end and two beyond each.
inline TomoDocument standardDippingLine(const DippingLayers& ground,
                                        std::vector<refractionDataStructure::layerStruct>& truth) {
  std::vector<double> shots = {-60.0, -30.0};
  for (int i = 0; i < 16; ++i) shots.push_back(-1.25 + 10.0 * i);
  shots.insert(shots.end(), {177.5, 207.5});
  return dippingLine(ground, 60, 2.5, shots, truth);
}
/// Of its shots: the first and the last of those that stand at the ends of the spread.
inline constexpr std::size_t kStartShot = 2;
inline constexpr std::size_t kEndShot = 17;

/// Arrivals at both ends of a line that make tV and tG what a test wants, seconds by x in metres.
struct Functions {
  double (*tV)(double);
  double (*tG)(double);
  double total = 0.1;  ///< from end to end
};

/// Marks all arrivals of the two end shots of the standard line as the first refractor, with those
/// functions. Of the other shots only the direct wave stays marked.
inline void arrive(TomoDocument& line, std::vector<refractionDataStructure::layerStruct>& marks,
                   const Functions& wanted) {
  for (auto& own : marks) {
    for (std::uint32_t& layer : own.layer) {
      layer = layer > 1 ? refractionDataStructure::kNoLayer : layer;
    }
  }
  for (std::size_t i = 0; i < 60; ++i) {
    const double x = 2.5 * static_cast<double>(i);
    line.ttArray.edit()[kStartShot].ttMisurati.edit()[i] = wanted.tG(x) + wanted.tV(x);
    line.ttArray.edit()[kEndShot].ttMisurati.edit()[i] = wanted.total + wanted.tG(x) - wanted.tV(x);
    marks[kStartShot].layer[i] = 2;
    marks[kEndShot].layer[i] = 2;
  }
}

}  // namespace talvesk::testing
