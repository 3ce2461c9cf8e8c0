#include "numerics/DelayTimes.h"
#include "numerics/Medians.h"
#include "refraction/LinearFit.h"
#include "refraction/methods/RefractorReading.h"

#include <algorithm>
#include <cmath>
#include <limits>

// Delay times of shots and geophones by least squares, the delay of a place being one whether it is
// shot or recorded there. The surface may go up and down: a delay is that below its own place.
//   Gardner, L. W. (1939): An areal plan of mapping subsurface structure by refraction shooting.
//   Geophysics 4, 247-259.
//   Scheidegger, A. E., Willmore, P. L. (1957): The use of a least squares method for the
//   interpretation of data from seismic surveys. Geophysics 22, 9-22.

namespace talvesk {
namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr double kOnePlace = 1e-5;      // of the line: closer positions are one
constexpr std::size_t kLeastPicks = 6;  // more than the unknowns of a level refractor
constexpr std::size_t kLeastEach = 2;   // of either direction
constexpr int kRounds = 4;
constexpr double kSteepest = 0.95;  // sine of the angle at which waves come down at most

/// The head waves of a refractor on the positions of a line, and how many go either way.
struct HeadWaves {
  LinePicks line;
  std::size_t right = 0;
  std::size_t left = 0;
};

std::vector<double> placesOf(std::vector<double> all) {
  std::sort(all.begin(), all.end());
  std::vector<double> places;
  for (const double x : all) {
    if (places.empty() || x - places.back() > kOnePlace * (all.back() - all.front())) {
      places.push_back(x);
    }
  }
  return places;
}

std::size_t placeOf(const std::vector<double>& places, double x) {
  const auto after = std::upper_bound(places.begin(), places.end(), x);
  return static_cast<std::size_t>(after - places.begin()) - 1;
}

/// Calls take(shot, trace) for every head wave and counts those of either direction.
template <typename Take>
void forEachWave(const LayerPicks& picks, std::uint32_t refractor, HeadWaves& waves,
                 const Take& take) {
  for (std::size_t shot = 0; shot < picks.shots.size(); ++shot) {
    for (const Side side : {Side::kRight, Side::kLeft}) {
      for (const std::size_t i : refracted(picks, shot, refractor, side)) {
        take(shot, i);
        ++(side == Side::kRight ? waves.right : waves.left);
      }
    }
  }
}

HeadWaves headWaves(const LineView& view, std::uint32_t refractor) {
  HeadWaves waves;
  LinePicks& line = waves.line;
  std::vector<double> places;
  std::vector<double> sigmas;
  for (const Point2D& receiver : view.receivers) places.push_back(receiver.x);
  for (const ShotArrivals& shot : view.picks.shots) {
    if (std::isfinite(shot.shot.x)) places.push_back(shot.shot.x);
  }
  line.positions = placesOf(std::move(places));
  line.gap = medianGap(line.positions);
  forEachWave(view.picks, refractor, waves, [&](std::size_t shot, std::size_t i) {
    const ShotArrivals& own = view.picks.shots[shot];
    LinePick pick;
    pick.pick = line.picks.size();
    pick.source = placeOf(line.positions, own.shot.x);
    pick.receiver = placeOf(line.positions, own.receivers[i].x);
    pick.offset = std::fabs(own.receivers[i].x - own.shot.x);
    pick.distance = std::hypot(pick.offset, own.receivers[i].z - own.shot.z);
    pick.time = own.times[i];
    pick.sigma = view.picks.sigmas[shot][i];
    if (pick.source == pick.receiver) return;
    sigmas.push_back(pick.sigma);
    line.picks.push_back(pick);
  });
  line.sigma = medianOf(std::move(sigmas), 0.0);
  return waves;
}

/// One delay and one slowness for all: where the least squares begin.
DelayTimes levelRefractor(const LinePicks& line) {
  std::vector<double> offsets;
  std::vector<double> times;
  for (const LinePick& pick : line.picks) {
    offsets.push_back(pick.offset);
    times.push_back(pick.time);
  }
  const LinearFit fit = leastSquares(offsets, times);
  DelayTimes level;
  level.slowness = fit.slope;
  level.delays.assign(line.positions.size(), std::max(0.0, 0.5 * fit.intercept));
  return level;
}

double alongThrough(double height, double velocity, double slowness) {
  const double u = std::min(kSteepest, slowness * velocity);
  return height * u / std::sqrt(1.0 - u * u);
}

/// Values per receiver as values per position.
std::vector<double> atPositions(const LineView& view, const std::vector<double>& positions,
                                const std::vector<double>& values) {
  std::vector<double> x;
  std::vector<double> known;
  for (std::size_t j = 0; j < values.size(); ++j) {
    if (std::isnan(values[j])) continue;
    x.push_back(view.receivers[j].x);
    known.push_back(values[j]);
  }
  std::vector<double> result(positions.size(), kUnknown);
  for (std::size_t i = 0; i < positions.size() && !x.empty(); ++i) {
    result[i] = interpolated(x, known, positions[i]);
  }
  return result;
}

/// How far from its shot and its receiver a wave meets the refractor, from the delays known by now.
void findShifts(const LineView& view, const LinePicks& line, DelayTimes& found) {
  const std::size_t n = line.positions.size();
  std::vector<double> above(n, 0.0);
  std::vector<double> velocityAbove(n, view.v1);
  if (view.upper != nullptr) {
    above = atPositions(view, line.positions, view.upper->depth);
    velocityAbove = atPositions(view, line.positions, view.upper->velocity);
  }
  found.shifts.assign(n, 0.0);
  for (std::size_t i = 0; i < n; ++i) {
    const double p = found.slownesses[i];
    const auto steepness = [p](double v) { return std::sqrt(std::max(0.05, 1.0 - p * p * v * v)); };
    const double upper = above[i] > 0.0 ? above[i] : 0.0;
    const double left = found.delays[i] - upper * steepness(view.v1) / view.v1;
    const double height = std::max(0.0, left) * velocityAbove[i] / steepness(velocityAbove[i]);
    const double shift =
        alongThrough(upper, view.v1, p) + alongThrough(height, velocityAbove[i], p);
    found.shifts[i] = std::isfinite(shift) ? shift : 0.0;
  }
}

/// Positions beyond those that picks tell of continue what is there; those between are a gap.
Support supportAt(const DelayTimes& found, std::size_t first, std::size_t last, std::size_t at) {
  if (at < first || at > last) return Support::kExtrapolated;
  return found.told[at] ? Support::kPicks : Support::kGap;
}

RefractorReading readingOf(const LineView& view, const LinePicks& line, const DelayTimes& found) {
  RefractorReading reading = emptyReading(view.receivers.size());
  const auto told = std::find(found.told.begin(), found.told.end(), true);
  const auto first = static_cast<std::size_t>(told - found.told.begin());
  std::size_t last = found.told.size() - 1;
  while (last > first && !found.told[last]) --last;
  for (std::size_t j = 0; j < view.receivers.size(); ++j) {
    const std::size_t at = placeOf(line.positions, view.receivers[j].x);
    reading.delays[j] = found.delays[at];
    reading.velocities[j] = 1.0 / found.slownesses[at];
    reading.delaySupport[j] = supportAt(found, first, last, at);
    reading.velocitySupport[j] = at < first || at > last ? Support::kExtrapolated : Support::kPicks;
  }
  return reading;
}

}  // namespace

RefractorReading readDelayTimes(const LineView& view, std::uint32_t refractor) {
  RefractorReading reading = emptyReading(view.receivers.size());
  const HeadWaves waves = headWaves(view, refractor);
  const LinePicks& line = waves.line;
  if (line.picks.size() < kLeastPicks) {
    reading.refused = Message::tr("fewer than six picks of it");
    return reading;
  }
  if (waves.right < kLeastEach || waves.left < kLeastEach) {
    reading.refused = Message::tr(
        "picks of it from shots on one side only, which cannot tell a "
        "dip from a velocity");
    return reading;
  }
  DelayTimes found = levelRefractor(line);
  for (int round = 0; round < kRounds; ++round) {
    DelayTimes next = fitDelays(line, line.picks, found, AlongRefractor::kVaries);
    if (next.delays.empty() || !(next.slowness > 0.0)) {
      reading.refused = Message::tr("the picks do not settle its delay times");
      return reading;
    }
    found = std::move(next);
    if (!std::isfinite(view.v1) || round + 1 == kRounds) break;
    findShifts(view, line, found);
  }
  return readingOf(view, line, found);
}

}  // namespace talvesk
