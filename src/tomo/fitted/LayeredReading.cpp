#include "tomo/fitted/LayeredReading.h"

#include "numerics/Medians.h"
#include "numerics/RobustFit.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace talvesk {
namespace {

constexpr int kRounds = 5;
// A wave is surely the first up to where the next one overtakes it over kBefore, and the next one
// from there times kBeyond.
constexpr double kBefore = 1.1;
constexpr double kBeyond = 1.2;

constexpr std::size_t kLeastNear = 3;  // picks of waves along the surface
constexpr std::size_t kLeastFar = 5;   // picks of waves along a refractor: more than the unknowns
constexpr double kFaster = 1.1;        // than the ground above a refractor
constexpr double kLeastGrowth = 0.1;   // of the velocity from the surface to the refractor
constexpr double kGross = 3.0;         // errors that a residual counts at most
constexpr double kSteepest = 0.95;     // sine of the angle at which waves come down at most
constexpr int kHalvings = 60;

using TimeOf = std::function<double(const LinePick& pick)>;

/// Seconds along the surface.
double nearTime(const LinePicks& line, const LayeredReading& reading, const LinePick& pick) {
  const double slowness = meanSlowness(line, reading.nearSlownesses, pick);
  return NearBranch{slowness, 0.5 * reading.gradient * slowness}.at(pick.distance);
}

/// The part of the delay of a refractor of slowness p that ground from the surface to a depth
/// causes: the integral of sqrt(1 / v^2 - p^2).
double delayOf(double nearSlowness, double gradient, double depth, double p) {
  const double v0 = 1.0 / nearSlowness;
  const double u0 = std::min(1.0, p * v0);
  if (!(gradient * depth > 1e-6 * v0)) return depth * nearSlowness * std::sqrt(1.0 - u0 * u0);
  const auto primitive = [](double u) {
    const double w = std::sqrt(1.0 - u * u);
    return w + std::log(u / (1.0 + w));
  };
  return (primitive(std::min(1.0, p * (v0 + gradient * depth))) - primitive(u0)) / gradient;
}

/// The depth that causes a delay; at most where the overburden gets as fast as the refractor.
double depthOf(double nearSlowness, double gradient, double delay, double p) {
  const double straight =
      nearSlowness * std::sqrt(std::max(0.01, 1.0 - std::pow(p / nearSlowness, 2)));
  if (!(gradient > 0.0)) return delay / straight;
  double low = 0.0;
  double high = std::max(0.0, (1.0 / p - 1.0 / nearSlowness) / gradient);
  if (delayOf(nearSlowness, gradient, high, p) <= delay) return high;
  for (int i = 0; i < kHalvings; ++i) {
    const double middle = 0.5 * (low + high);
    (delayOf(nearSlowness, gradient, middle, p) < delay ? low : high) = middle;
  }
  return 0.5 * (low + high);
}

/// Picks by the wave that is surely the first of theirs.
struct Sorted {
  std::vector<LinePick> near;
  std::vector<std::vector<LinePick>> far;  ///< of each refractor
};

/// Sorts by offset in cross-over distances of the pick's own positions.
Sorted sortPicks(const LinePicks& line, const LayeredReading& reading) {
  Sorted sorted;
  sorted.far.resize(reading.refractors.size());
  for (const LinePick& pick : line.picks) {
    double slowness = nearTime(line, reading, pick) / pick.offset;
    double intercept = 0.0;
    double begin = 0.0;  // where the wave of that slowness becomes the first
    std::vector<LinePick>* wave = &sorted.near;
    for (std::size_t i = 0; i < reading.refractors.size(); ++i) {
      const DelayTimes& below = reading.refractors[i];
      const double later = below.delaysOf(line, pick);
      const double gain = slowness - below.slowness;
      if (!(pick.offset * kBefore * gain > later - intercept)) break;
      begin = (later - intercept) / gain;
      slowness = below.slowness;
      intercept = later;
      wave = &sorted.far[i];
    }
    if (pick.offset >= kBeyond * begin) wave->push_back(pick);
  }
  return sorted;
}

Message tooFew(const Sorted& sorted) {
  if (sorted.near.size() < kLeastNear) {
    return Message::tr("only %1 picks are of waves along the surface; it takes %2")
        .arg(sorted.near.size())
        .arg(kLeastNear);
  }
  for (std::size_t i = 0; i < sorted.far.size(); ++i) {
    if (sorted.far[i].size() >= kLeastFar) continue;
    return Message::tr("only %1 picks are surely of waves along refractor %2; it takes %3")
        .arg(sorted.far[i].size())
        .arg(i + 1)
        .arg(kLeastFar);
  }
  return {};
}

Message unlikely(const LayeredReading& reading, const VelocityBounds& bounds) {
  double above = medianOf(reading.nearSlownesses, 0.0);
  if (above * bounds.least > 1.0) {
    return Message::tr("waves along the surface at %1 are slower than the bounds allow")
        .arg(Message::velocity(1.0 / above, 4));
  }
  for (const DelayTimes& refractor : reading.refractors) {
    if (!(refractor.slowness * bounds.greatest >= 1.0)) {
      return Message::tr("the times of a refractor grow too little with offset for the bounds");
    }
    if (!(above >= kFaster * refractor.slowness)) {
      return Message::tr("velocities of %1 and %2 do not increase with depth")
          .arg(Message::velocity(1.0 / above, 4))
          .arg(Message::velocity(1.0 / refractor.slowness, 4));
    }
    above = refractor.slowness;
  }
  return {};
}

/// Mean of |residual| / sigma.
double misfitOf(const LinePicks& line, const LayeredReading& reading) {
  double sum = 0.0;
  for (const LinePick& pick : line.picks) {
    sum += std::fabs(pick.time - reading.at(line, pick)) / pick.sigma;
  }
  return sum / static_cast<double>(line.picks.size());
}

/// Reads what the branches of the whole line say as a level ground.
void begin(const LinePicks& line, LayeredReading& reading) {
  const NearBranch& near = reading.branches.near;
  reading.nearSlownesses.assign(line.positions.size(), near.slowness);
  reading.gradient = near.slowness > 0.0 ? 2.0 * near.curvature / near.slowness : 0.0;
  for (const TimeBranch& branch : reading.branches.far) {
    reading.refractors.push_back(
        {std::vector<double>(line.positions.size(), 0.5 * branch.intercept), branch.slowness, {}});
  }
}

/// How many squared errors one way to explain picks leaves less than another. Errors are those of
/// the picks, or the width of what the better way leaves where that is more; gross residuals count
/// as much as any that is three such errors wide.
double gainOf(const std::vector<LinePick>& picks, const TimeOf& better, const TimeOf& simpler) {
  const auto residuals = [&](const TimeOf& time) {
    std::vector<double> off;
    for (const LinePick& pick : picks) off.push_back((pick.time - time(pick)) / pick.sigma);
    return off;
  };
  const std::vector<double> left = residuals(better);
  const double scale = robustScale(left);
  const auto squares = [scale](const std::vector<double>& off) {
    double sum = 0.0;
    for (const double r : off) sum += std::min(std::pow(r / scale, 2), kGross * kGross);
    return sum;
  };
  return squares(residuals(simpler)) - squares(left);
}

/// Reads slownesses near the surface; false where the picks do not settle them. They vary along the
/// line where that is worth its unknowns, ln(n) squared errors for each (Schwarz).
bool readNear(const LinePicks& line, const std::vector<LinePick>& picks, NearShape shape,
              LayeredReading& reading) {
  const NearBranch even = fitNearBranch(picks, NearShape::kStraight);
  if (!(even.slowness > 0.0)) return false;
  const double price = std::log(static_cast<double>(picks.size()));
  const auto byEven = [&](const LinePick& pick) { return even.at(pick.distance); };
  reading.nearSlownesses.assign(line.positions.size(), even.slowness);
  reading.nearDecided = 1.0;
  if (shape == NearShape::kCurved) {
    const NearBranch near = fitNearBranch(picks, shape);
    if (!(near.slowness > 0.0)) return false;
    reading.nearSlownesses.assign(line.positions.size(), near.slowness);
    reading.gradient = 2.0 * near.curvature / near.slowness;
    reading.nearDecided = 2.0;
    reading.curveGain =
        gainOf(
            picks, [&](const LinePick& pick) { return near.at(pick.distance); }, byEven) -
        price;
    return true;
  }
  RobustFit::Solution varied = fitNearSlownesses(line, picks, even.slowness);
  if (varied.unknowns.empty()) return false;
  const auto byVaried = [&](const LinePick& pick) {
    return pick.distance * meanSlowness(line, varied.unknowns, pick);
  };
  if (!(gainOf(picks, byVaried, byEven) > price * (varied.decided - 1.0))) return true;
  reading.nearSlownesses = std::move(varied.unknowns);
  reading.nearDecided = varied.decided;
  return true;
}

/// Reads the line again by sorted picks; false where they do not settle it.
bool refine(const LinePicks& line, const Sorted& sorted, NearShape shape, LayeredReading& reading) {
  if (!readNear(line, sorted.near, shape, reading)) return false;
  for (std::size_t i = 0; i < reading.refractors.size(); ++i) {
    reading.refractors[i] = fitDelays(line, sorted.far[i], reading.refractors[i]);
    if (reading.refractors[i].delays.empty()) return false;
  }
  return true;
}

/// Depths from delays, refractor by refractor: each tells of what the ones above leave.
void findDepths(const LinePicks& line, LayeredReading& reading) {
  reading.depths.clear();
  for (std::size_t i = 0; i < reading.refractors.size(); ++i) {
    const DelayTimes& refractor = reading.refractors[i];
    std::vector<double> depths;
    for (std::size_t at = 0; at < line.positions.size(); ++at) {
      const double near = reading.nearSlownesses[at];
      if (i == 0) {
        depths.push_back(depthOf(near, reading.gradient, refractor.delays[at], refractor.slowness));
        continue;
      }
      const double above = reading.depths[0][at];
      const double left =
          refractor.delays[at] - delayOf(near, reading.gradient, above, refractor.slowness);
      const double middle = reading.refractors[0].slowness;
      depths.push_back(above + depthOf(middle, 0.0, std::max(0.0, left), refractor.slowness));
    }
    reading.depths.push_back(std::move(depths));
  }
}

/// How far along the line a wave of slowness p gets on its way down through a layer.
double alongThrough(double height, double velocity, double p) {
  const double u = std::min(kSteepest, p * velocity);
  return height * u / std::sqrt(1.0 - u * u);
}

/// Where waves meet the refractors, from their depths.
void findShifts(const LinePicks& line, LayeredReading& reading) {
  for (std::size_t i = 0; i < reading.refractors.size(); ++i) {
    DelayTimes& refractor = reading.refractors[i];
    refractor.shifts.clear();
    for (std::size_t at = 0; at < line.positions.size(); ++at) {
      const double first = reading.depths[0][at];
      const double velocity = 1.0 / reading.nearSlownesses[at] + 0.5 * reading.gradient * first;
      double shift = alongThrough(first, velocity, refractor.slowness);
      if (i > 0) {
        const double height = reading.depths[i][at] - first;
        shift += alongThrough(height, 1.0 / reading.refractors[0].slowness, refractor.slowness);
      }
      refractor.shifts.push_back(shift);
    }
  }
}

/// Sorts the picks and reads the line again; says why that cannot be.
Message readOnce(const LinePicks& line, NearShape shape, const VelocityBounds& bounds,
                 LayeredReading& reading) {
  if (!reading.depths.empty()) findShifts(line, reading);
  const Sorted sorted = sortPicks(line, reading);
  Message refused = tooFew(sorted);
  if (!refused.empty()) return refused;
  if (!refine(line, sorted, shape, reading)) {
    return Message::tr("the picks do not settle its delay times");
  }
  refused = unlikely(reading, bounds);
  if (refused.empty()) findDepths(line, reading);
  return refused;
}

/// Whether a curved overburden is worth a model beside the one of a steady overburden.
bool grows(const LayeredReading& reading) {
  const double rise = reading.gradient * medianOf(reading.depths.front(), 0.0);
  return rise * medianOf(reading.nearSlownesses, 0.0) >= kLeastGrowth;
}

}  // namespace

double LayeredReading::decided() const {
  double sum = nearDecided;
  for (const DelayTimes& refractor : refractors) sum += refractor.decided;
  return sum;
}

double LayeredReading::at(const LinePicks& line, const LinePick& pick) const {
  double time = nearTime(line, *this, pick);
  for (const DelayTimes& refractor : refractors) time = std::min(time, refractor.at(line, pick));
  return time;
}

GroundColumn LayeredReading::column(const LinePicks& line, double x) const {
  GroundColumn column;
  double top = 1.0 / interpolated(line.positions, nearSlownesses, x);
  double k = gradient;
  double from = 0.0;
  for (std::size_t i = 0; i < refractors.size(); ++i) {
    const double bottom = interpolated(line.positions, depths[i], x);
    column.push_back({bottom, top, top + k * (bottom - from)});
    top = 1.0 / refractors[i].slowness;
    from = bottom;
    k = 0.0;
  }
  column.push_back({from, top, top});
  return column;
}

LayeredReading readLayers(const LinePicks& line, std::size_t refractors, NearShape shape,
                          const VelocityBounds& bounds) {
  LayeredReading reading;
  reading.branches = findBranches(line, refractors, shape);
  if (reading.branches.far.empty()) {
    reading.refused = Message::tr("the times over offset show no cross-over to a faster branch");
    return reading;
  }
  begin(line, reading);
  double least = std::numeric_limits<double>::infinity();
  LayeredReading best;
  for (int round = 0; round < kRounds; ++round) {
    reading.refused = readOnce(line, shape, bounds, reading);
    const double misfit = reading.refused.empty() ? misfitOf(line, reading) : least;
    if (!(misfit < least)) break;
    least = misfit;
    best = reading;
  }
  if (!best.refractors.empty()) reading = std::move(best);
  if (!reading.refused.empty()) return reading;
  if (shape == NearShape::kCurved && !grows(reading)) {
    reading.refused = Message::tr("the velocity above the refractor grows by less than a tenth");
  }
  return reading;
}

}  // namespace talvesk
