#include "refraction/LinearFit.h"
#include "refraction/methods/RefractorReading.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

// Plus and minus times: at a geophone between two shots the sum of the times from both, less that
// from shot to shot, is twice its delay; their difference changes along the line with twice the
// slowness of the refractor.
//   Hagedoorn, J. G. (1959): The plus-minus method of interpreting seismic refraction sections.
//   Geophysical Prospecting 7, 158-182.
// All pairs of shots are taken, and the middle one of what they find at a geophone.

namespace talvesk {
namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr double kGapSpacings = 2.0;  // between which a time is read
constexpr double kSlopeSpacings =
    5.0;  // to either side, of the line that a velocity is the slope of
constexpr std::size_t kLeastSlope = 5;   // receivers of that line
constexpr std::size_t kLeastLine = 3;    // receivers of a line that is continued to a shot
constexpr std::size_t kMostPairs = 500;  // that are kept of a receiver
constexpr double kRounding = 1e-6;       // metres

/// Times of a refractor on one side of a shot.
struct ShotTimes {
  double x = 0.0;
  std::vector<double> at;  ///< per receiver of the line, seconds; not a number where there is none
  std::size_t count = 0;
};

/// What two shots tell of a receiver, seconds and s/m.
struct PairFind {
  std::vector<std::vector<double>> delays;
  std::vector<std::vector<double>> continued;  ///< delays that rest on a continued line
  std::vector<std::vector<double>> slownesses;
};

ShotTimes timesOf(const LineView& view, std::size_t shot, std::uint32_t refractor, Side side) {
  const ShotArrivals& own = view.picks.shots[shot];
  ShotTimes times{own.shot.x, std::vector<double>(view.receivers.size(), kUnknown), 0};
  for (const std::size_t i : refracted(view.picks, shot, refractor, side)) {
    const double x = own.receivers[i].x;
    const auto found =
        std::lower_bound(view.receivers.begin(), view.receivers.end(), x,
                         [](const Point2D& point, double value) { return point.x < value; });
    times.at[static_cast<std::size_t>(found - view.receivers.begin())] = own.times[i];
    ++times.count;
  }
  return times;
}

/// The time at a place with picks at it, or close to either side of it.
std::optional<double> readAt(const LineView& view, const ShotTimes& times, double x) {
  std::optional<std::size_t> left;
  std::optional<std::size_t> right;
  for (std::size_t j = 0; j < view.receivers.size() && !right; ++j) {
    if (std::isnan(times.at[j])) continue;
    if (view.receivers[j].x <= x + kRounding) left = j;
    if (view.receivers[j].x >= x - kRounding) right = j;
  }
  if (!left || !right) return std::nullopt;
  const double gap = view.receivers[*right].x - view.receivers[*left].x;
  if (gap > kGapSpacings * view.spacing + kRounding) return std::nullopt;
  const double part = gap > 0.0 ? (x - view.receivers[*left].x) / gap : 0.0;
  return times.at[*left] + part * (times.at[*right] - times.at[*left]);
}

/// The time at a place by the straight line through all of them.
std::optional<double> continuedTo(const LineView& view, const ShotTimes& times, double x) {
  std::vector<double> places;
  std::vector<double> known;
  for (std::size_t j = 0; j < view.receivers.size(); ++j) {
    if (std::isnan(times.at[j])) continue;
    places.push_back(view.receivers[j].x);
    known.push_back(times.at[j]);
  }
  if (places.size() < kLeastLine) return std::nullopt;
  const double time = leastSquares(places, known).at(x);
  return std::isfinite(time) ? std::optional<double>(time) : std::nullopt;
}

/// The mean of what is known of two.
std::optional<double> meanOf(std::optional<double> a, std::optional<double> b) {
  if (a && b) return 0.5 * (*a + *b);
  return a ? a : b;
}

/// What two shots have in common.
struct MinusTimes {
  std::vector<std::size_t> receivers;  ///< of the line, ascending
  std::vector<double> x;               ///< theirs, metres
  std::vector<double> times;           ///< seconds
};

/// Half the slope of minus times along the receivers near one; none where there are too few.
std::optional<double> slownessAt(const LineView& view, const MinusTimes& minus, double x) {
  const double reach = kSlopeSpacings * view.spacing + kRounding;
  const auto first = std::lower_bound(minus.x.begin(), minus.x.end(), x - reach);
  const auto last = std::upper_bound(first, minus.x.end(), x + reach);
  if (static_cast<std::size_t>(last - first) < kLeastSlope) return std::nullopt;
  const auto from = minus.times.begin() + (first - minus.x.begin());
  const LinearFit line = leastSquares({first, last}, {from, from + (last - first)});
  return std::isfinite(line.slope) ? std::optional<double>(0.5 * line.slope) : std::nullopt;
}

/// Of very many pairs more tell nothing new, but take memory.
void add(double value, std::vector<double>& values) {
  if (values.size() < kMostPairs) values.push_back(value);
}

void takePair(const LineView& view, const ShotTimes& a, const ShotTimes& b, PairFind& find) {
  MinusTimes minus;
  for (std::size_t j = 0; j < view.receivers.size(); ++j) {
    if (std::isnan(a.at[j]) || std::isnan(b.at[j])) continue;
    minus.receivers.push_back(j);
    minus.x.push_back(view.receivers[j].x);
    minus.times.push_back(a.at[j] - b.at[j]);
  }
  if (minus.receivers.empty()) return;
  const std::optional<double> read = meanOf(readAt(view, a, b.x), readAt(view, b, a.x));
  const std::optional<double> total =
      read ? read : meanOf(continuedTo(view, a, b.x), continuedTo(view, b, a.x));
  for (const std::size_t j : minus.receivers) {
    if (total) {
      const double delay = 0.5 * (a.at[j] + b.at[j] - *total);
      add(delay, (read ? find.delays : find.continued)[j]);
    }
    if (const auto slowness = slownessAt(view, minus, view.receivers[j].x)) {
      add(*slowness, find.slownesses[j]);
    }
  }
}

double middleOf(std::vector<double> values) {
  if (values.empty()) return kUnknown;
  std::sort(values.begin(), values.end());
  const std::size_t half = values.size() / 2;
  return values.size() % 2 == 1 ? values[half] : 0.5 * (values[half - 1] + values[half]);
}

}  // namespace

RefractorReading readPlusMinus(const LineView& view, std::uint32_t refractor) {
  const std::size_t n = view.receivers.size();
  RefractorReading reading = emptyReading(n);
  std::vector<ShotTimes> right;
  std::vector<ShotTimes> left;
  for (std::size_t shot = 0; shot < view.picks.shots.size(); ++shot) {
    right.push_back(timesOf(view, shot, refractor, Side::kRight));
    left.push_back(timesOf(view, shot, refractor, Side::kLeft));
  }
  PairFind find{std::vector<std::vector<double>>(n), std::vector<std::vector<double>>(n),
                std::vector<std::vector<double>>(n)};
  for (const ShotTimes& a : right) {
    for (const ShotTimes& b : left) {
      if (a.count > 0 && b.count > 0 && a.x < b.x) takePair(view, a, b, find);
    }
  }
  bool any = false;
  for (std::size_t j = 0; j < n; ++j) {
    const bool read = !find.delays[j].empty();
    reading.delays[j] = middleOf(read ? find.delays[j] : find.continued[j]);
    reading.delaySupport[j] = read ? Support::kPicks : Support::kExtrapolated;
    reading.velocities[j] = 1.0 / middleOf(find.slownesses[j]);
    any = any || std::isfinite(reading.velocities[j]);
  }
  if (!any) {
    reading.refused = Message::tr("no two shots have picks of it at five geophones between them");
  }
  return reading;
}

}  // namespace talvesk
