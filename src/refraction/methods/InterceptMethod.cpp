#include "refraction/LinearFit.h"
#include "refraction/methods/RefractorReading.h"

#include <algorithm>
#include <cmath>
#include <optional>

// Intercept times: a straight line through the arrivals of a refractor on either side of a shot.
// Its slope with that of waves the other way gives velocity and dip, its intercept the depth below
// the shot; between shots both are taken as even. For plane refractors:
//   Telford, W. M., Geldart, L. P., Sheriff, R. E. (1990): Applied Geophysics, 2nd edition.
//   Cambridge University Press, section 4.3.
// Below a first refractor dips are taken as small: the slowness is the mean of both ways.

namespace talvesk {
namespace {

constexpr std::size_t kLeastPicks = 3;  // of a line whose fit says anything

/// The straight line of a refractor on one side of a shot, over distance from the shot.
struct ShotLine {
  std::size_t shot = 0;
  Side side = Side::kRight;
  double slope = 0.0;      ///< s/m, positive away from the shot
  double intercept = 0.0;  ///< seconds at the shot
  double from = 0.0;       ///< of the receivers, metres
  double to = 0.0;         ///< likewise
};

/// What is found below a shot.
struct ShotDepth {
  double x = 0.0;
  double delay = 0.0;     ///< seconds
  double velocity = 0.0;  ///< m/s
};

std::vector<ShotLine> linesOf(const LayerPicks& picks, std::uint32_t refractor) {
  std::vector<ShotLine> lines;
  for (std::size_t shot = 0; shot < picks.shots.size(); ++shot) {
    for (const Side side : {Side::kRight, Side::kLeft}) {
      const std::vector<std::size_t> traces = refracted(picks, shot, refractor, side);
      if (traces.size() < kLeastPicks) continue;
      const ShotArrivals& own = picks.shots[shot];
      std::vector<double> distances;
      std::vector<double> times;
      for (const std::size_t i : traces) {
        distances.push_back(std::fabs(own.receivers[i].x - own.shot.x));
        times.push_back(own.times[i]);
      }
      const LinearFit fit = leastSquares(distances, times);
      if (!(fit.slope > 0.0) || !std::isfinite(fit.intercept)) continue;
      const double a = own.receivers[traces.front()].x;
      const double b = own.receivers[traces.back()].x;
      lines.push_back({shot, side, fit.slope, fit.intercept, std::min(a, b), std::max(a, b)});
    }
  }
  return lines;
}

/// The slope of waves the other way along the same ground, in the mean by the length that lines
/// have in common; without any, that of the shot's own other side.
std::optional<double> slopeBack(const std::vector<ShotLine>& lines, const ShotLine& line) {
  double sum = 0.0;
  double length = 0.0;
  std::optional<double> own;
  for (const ShotLine& other : lines) {
    if (other.side == line.side) continue;
    if (other.shot == line.shot) own = other.slope;
    const double common = std::min(line.to, other.to) - std::max(line.from, other.from);
    if (!(common > 0.0)) continue;
    sum += common * other.slope;
    length += common;
  }
  return length > 0.0 ? sum / length : own;
}

/// Below a first refractor, and where the first layer has no velocity.
ShotDepth ofSmallDip(double x, const ShotLine& line, double back) {
  return {x, 0.5 * line.intercept, 2.0 / (line.slope + back)};
}

/// Of a plane that dips at any angle; none where there is no such plane.
std::optional<ShotDepth> ofPlane(double x, const ShotLine& line, double back, double v1) {
  const double there = v1 * line.slope;
  const double again = v1 * back;
  if (!(there < 1.0) || !(again < 1.0)) return std::nullopt;
  const double critical = 0.5 * (std::asin(there) + std::asin(again));
  const double dip = 0.5 * (std::asin(there) - std::asin(again));
  // The delay of a level refractor as deep below the shot as this one is: it lies nearer than
  // straight below.
  return ShotDepth{x, 0.5 * line.intercept / std::cos(dip), v1 / std::sin(critical)};
}

/// Both sides of a shot, and shots in one place, are one.
void joinPlaces(std::vector<ShotDepth>& depths) {
  std::stable_sort(depths.begin(), depths.end(),
                   [](const ShotDepth& a, const ShotDepth& b) { return a.x < b.x; });
  std::vector<ShotDepth> joined;
  for (std::size_t i = 0; i < depths.size();) {
    std::size_t end = i;
    ShotDepth sum{depths[i].x, 0.0, 0.0};
    for (; end < depths.size() && depths[end].x == depths[i].x; ++end) {
      sum.delay += depths[end].delay;
      sum.velocity += 1.0 / depths[end].velocity;
    }
    const double n = static_cast<double>(end - i);
    joined.push_back({sum.x, sum.delay / n, n / sum.velocity});
    i = end;
  }
  depths = std::move(joined);
}

/// Between shots, evenly; nothing beyond the first and the last.
void spread(const LineView& view, const std::vector<ShotDepth>& depths, RefractorReading& reading) {
  for (std::size_t j = 0; j < view.receivers.size(); ++j) {
    const double x = view.receivers[j].x;
    const auto behind = std::lower_bound(depths.begin(), depths.end(), x,
                                         [](const ShotDepth& d, double at) { return d.x < at; });
    if (behind == depths.end() || (behind == depths.begin() && behind->x > x)) continue;
    const ShotDepth& right = *behind;
    const ShotDepth& left = right.x > x ? *(behind - 1) : right;
    const double part = right.x > left.x ? (x - left.x) / (right.x - left.x) : 0.0;
    reading.delays[j] = left.delay + part * (right.delay - left.delay);
    reading.velocities[j] = 1.0 / ((1.0 - part) / left.velocity + part / right.velocity);
    const bool near = std::min(x - left.x, right.x - x) <= view.spacing;
    reading.delaySupport[j] = near ? Support::kPicks : Support::kGap;
    reading.velocitySupport[j] = reading.delaySupport[j];
  }
}

}  // namespace

RefractorReading readIntercepts(const LineView& view, std::uint32_t refractor) {
  RefractorReading reading = emptyReading(view.receivers.size());
  const std::vector<ShotLine> lines = linesOf(view.picks, refractor);
  std::vector<ShotDepth> depths;
  for (const ShotLine& line : lines) {
    const std::optional<double> back = slopeBack(lines, line);
    if (!back) continue;
    const double x = view.picks.shots[line.shot].shot.x;
    if (view.upper != nullptr || !std::isfinite(view.v1)) {
      depths.push_back(ofSmallDip(x, line, *back));
    } else if (const auto depth = ofPlane(x, line, *back, view.v1)) {
      depths.push_back(*depth);
    }
  }
  joinPlaces(depths);
  if (depths.empty()) {
    reading.refused = Message::tr(
        "no shot has three picks of it on one side, with waves the other "
        "way beside them, that are faster than the first layer");
  }
  spread(view, depths, reading);
  return reading;
}

}  // namespace talvesk
