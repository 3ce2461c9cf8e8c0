#include "refraction/ReciprocalMethod.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "numerics/Medians.h"
#include "numerics/Splines.h"
#include "refraction/LinearFit.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

namespace talvesk {

using refractionDataStructure::phantom;

namespace {

std::vector<double> abscissae(const phantom& curve) {
  std::vector<double> x;
  for (const Point2D& point : curve.points) x.push_back(point.x);
  return x;
}

Splines::BesselSpline arrivals(const phantom& curve) {
  Splines::BesselSpline spline;
  spline.build(abscissae(curve), curve.times);
  return spline;
}

void logRow(std::size_t j, std::initializer_list<double> values) {
  std::string row = std::to_string(j);
  for (const double value : values) row += ' ' + formatDouble(value);
  console::log(row);
}

/// Adds the velocity-analysis function of one XY to a family.
void addTV(double xy, const Splines::BesselSpline& fromA, const Splines::BesselSpline& fromB,
           const std::vector<double>& x, double tAB, std::vector<double>& family) {
  for (std::size_t j = 0; j < x.size(); ++j) {
    const double tY = fromA(x[j] + xy);
    const double tX = fromB(x[j] - xy);
    family.push_back((tY - tX + tAB) * 0.5);
    logRow(j, {xy, tY, tX, tAB, family.back()});
  }
}

/// The same of the time-depth function. \param along the travel time along the refractor
void addTG(double xy, const Splines::BesselSpline& fromA, const Splines::BesselSpline& fromB,
           const Splines::BesselSpline& along, const std::vector<double>& x, double tAB,
           std::vector<double>& family) {
  for (std::size_t j = 0; j < x.size(); ++j) {
    const double tY = fromA(x[j] + xy);
    const double tX = fromB(x[j] - xy);
    const double delta = along(x[j] + xy) - along(x[j] - xy);
    family.push_back((tY + tX - tAB - delta) * 0.5);
    logRow(j, {xy, tY, tX, tAB, delta});
  }
}

/// The mean of the four values before, the value itself and the three behind it, as many as exist.
/// Those before are smoothed already: the sequence is overwritten as it goes.
void smoothInPlace(std::vector<double>& values) {
  for (std::size_t j = 0; j < values.size(); ++j) {
    const std::size_t first = j < 4 ? 0 : j - 4;
    const std::size_t end = std::min(values.size(), j + 4);
    double sum = 0.0;
    for (std::size_t i = first; i < end; ++i) sum += values[i];
    values[j] = sum / static_cast<double>(end - first);
  }
}

/// The receivers from `skip` to n - skip - 1.
std::size_t endOf(std::size_t n, std::size_t skip) {
  return n > skip ? n - skip : 0;
}

}  // namespace

std::size_t indexOfXY(double xy) {
  const auto found = std::find(kXYFamily.begin(), kXYFamily.end(), xy);
  return found == kXYFamily.end() ? kXYFamily.size() / 2
                                  : static_cast<std::size_t>(found - kXYFamily.begin());
}

bool isOfFamily(double xy) {
  return kXYFamily[indexOfXY(xy)] == xy;
}

double widestXY(const std::vector<double>& x) {
  return kMostSpacings * medianGap(x);
}

VelocityFallback fallbackOf(const std::vector<double>& velocities) {
  double least = std::numeric_limits<double>::max();
  double largest = std::numeric_limits<double>::lowest();
  bool notPositive = false;
  for (const double v : velocities) {
    if (v > 0.0) {
      least = std::min(least, v);
      largest = std::max(largest, v);
    } else if (v <= 0.0) {
      notPositive = true;
    }
  }
  if (notPositive) return VelocityFallback::kNotPositive;
  return largest / least > kMaxVelocityRatio ? VelocityFallback::kStrongVariation
                                             : VelocityFallback::kNone;
}

std::vector<double> memberOf(const std::vector<double>& family, std::size_t index) {
  const std::size_t n = family.size() / kXYFamily.size();
  std::vector<double> member;
  for (std::size_t j = index * n; j < (index + 1) * n && j < family.size(); ++j) {
    member.push_back(family[j]);
  }
  return member;
}

double reciprocalTime(phantom& forward, phantom& reverse, double xA, double xB) {
  forward.reciprocalTime = forward.slope * xB + forward.intercept;
  reverse.reciprocalTime = reverse.slope * xA + reverse.intercept;
  const double tAB = std::max(forward.reciprocalTime, reverse.reciprocalTime);
  console::log(" TAB: " + formatDouble(tAB));
  return tAB;
}

std::vector<double> tVAt(double xy, const phantom& forward, const phantom& reverse,
                         const std::vector<double>& x, double tAB) {
  std::vector<double> tV;
  addTV(xy, arrivals(forward), arrivals(reverse), x, tAB, tV);
  return tV;
}

std::vector<double> buildTV(const phantom& forward, const phantom& reverse,
                            const std::vector<double>& x, double tAB) {
  const Splines::BesselSpline fromA = arrivals(forward);
  const Splines::BesselSpline fromB = arrivals(reverse);
  std::vector<double> family;
  for (const double xy : kXYFamily) {
    console::log("j xy tY tX tAB tVsJ");
    addTV(xy, fromA, fromB, x, tAB, family);
  }
  return family;
}

std::vector<double> tGAt(double xy, const phantom& forward, const phantom& reverse,
                         const std::vector<double>& x, double tAB, const std::vector<double>& tV) {
  Splines::BesselSpline along;
  along.build(x, tV);
  std::vector<double> tG;
  addTG(xy, arrivals(forward), arrivals(reverse), along, x, tAB, tG);
  return tG;
}

std::vector<double> buildTG(const phantom& forward, const phantom& reverse,
                            const std::vector<double>& x, double tAB,
                            const std::vector<double>& tV) {
  const Splines::BesselSpline fromA = arrivals(forward);
  const Splines::BesselSpline fromB = arrivals(reverse);
  Splines::BesselSpline along;
  along.build(x, tV);
  console::log("j xy tY tX tAB delta -build");
  std::vector<double> family;
  for (const double xy : kXYFamily) {
    console::log("j xy tY tX tAB delta");
    addTG(xy, fromA, fromB, along, x, tAB, family);
  }
  return family;
}

RefractorVelocity refractorVelocity(const std::vector<double>& x, const std::vector<double>& tV) {
  Splines::LinearSpline times;
  times.build(x, tV);
  RefractorVelocity result;
  for (const double at : x) {
    result.velocity.push_back(2.0 * kSlopeReach /
                              (times(at + kSlopeReach) - times(at - kSlopeReach)));
  }
  smoothInPlace(result.velocity);
  result.fallback = fallbackOf(result.velocity);
  if (result.fallback == VelocityFallback::kNone) return result;
  const LinearFit line = linearFit(x, tV);
  if (line.slope != 0.0) result.velocity.assign(x.size(), 1.0 / line.slope);
  return result;
}

RefractorDepth depthFirstRefractor(const std::vector<double>& tG, const std::vector<double>& v2,
                                   double v1, std::size_t skip) {
  RefractorDepth result;
  result.depth.assign(tG.size(), 0.0);
  for (std::size_t j = skip; j < endOf(tG.size(), skip); ++j) {
    const bool positive = tG[j] > 0.0;
    if (!positive) result.tGNotPositive = true;
    result.depth[j] = (positive ? tG[j] : 0.0) * v1 * v2[j] / std::sqrt(v2[j] * v2[j] - v1 * v1);
  }
  return result;
}

std::vector<double> depthSecondRefractor(const std::vector<double>& tG2,
                                         const std::vector<double>& z1,
                                         const std::vector<double>& v2,
                                         const std::vector<double>& v3, double v1,
                                         std::size_t skip) {
  std::vector<double> depth(tG2.size(), 0.0);
  for (std::size_t j = skip; j < endOf(tG2.size(), skip); ++j) {
    const double above = z1[j] * std::sqrt(v3[j] * v3[j] - v1 * v1) / (v3[j] * v1);
    depth[j] = z1[j] + (tG2[j] - above) * v2[j] * v3[j] / std::sqrt(v3[j] * v3[j] - v2[j] * v2[j]);
  }
  return depth;
}

}  // namespace talvesk
