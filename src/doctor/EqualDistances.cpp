#include "doctor/EqualDistances.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr double kNormal = 1.4826;  // median of magnitudes to standard deviation
constexpr std::size_t kFewest = 3;  // shots to compare with

/// Times of one shot less those of another, seconds.
struct Comparison {
  double difference = 0.0;
  double error = 0.0;
};

/// Two shots over ground that is much the same: times at equal distances differ by the clocks, and
/// by a share of themselves.
std::optional<Comparison> compare(const ShotView& a, const ShotView& b, double spacing) {
  constexpr double kGround = 0.15;  // of a time, by which it differs from place to place
  const auto byDistance = [](const ShotView& shot) {
    std::vector<std::pair<double, double>> times;
    for (std::size_t t = 0; t < shot.onsets.size(); ++t) {
      if (isSharp(shot.onsets[t])) {
        times.emplace_back(std::fabs(shot.offset(t)), shot.onsets[t].time);
      }
    }
    std::sort(times.begin(), times.end());
    return times;
  };
  const auto times = byDistance(a);
  const auto others = byDistance(b);
  std::vector<double> differences;
  std::vector<double> here;
  std::vector<double> there;
  for (const auto& [distance, time] : times) {
    const auto after = std::lower_bound(others.begin(), others.end(), std::pair(distance, -1e9));
    if (after == others.begin() || after == others.end()) continue;
    const auto before = std::prev(after);
    const double gap = after->first - before->first;
    if (gap > 1.5 * spacing) continue;
    const double share = gap > 0.0 ? (distance - before->first) / gap : 0.0;
    there.push_back(before->second + share * (after->second - before->second));
    here.push_back(time);
    differences.push_back(here.back() - there.back());
  }
  if (differences.size() < 4) return std::nullopt;
  const double difference = medianOf(differences, 0.0);
  std::vector<double> off;
  for (const double value : differences) off.push_back(std::fabs(value - difference));
  const double typical = std::min(std::fabs(medianOf(here, 0.0)), std::fabs(medianOf(there, 0.0)));
  return Comparison{difference, std::hypot(kNormal * medianOf(off, 0.0), kGround * typical)};
}

}  // namespace

std::optional<ClockShift> shiftAtEqualDistances(std::size_t shot,
                                                const std::vector<const ShotView*>& shots,
                                                const std::vector<double>& late) {
  const double spacing = spacingOf(shots[shot]->geophones);
  std::vector<double> values;
  std::vector<double> errors;
  for (std::size_t other = 0; other < shots.size(); ++other) {
    if (other == shot) continue;
    const std::optional<Comparison> with = compare(*shots[shot], *shots[other], spacing);
    if (!with) continue;
    values.push_back(late[other] + with->difference);
    errors.push_back(with->error);
  }
  if (values.size() < kFewest) return std::nullopt;
  ClockShift shift;
  shift.pairs = values.size();
  shift.seconds = medianOf(values, 0.0);
  std::vector<double> off;
  for (const double value : values) off.push_back(std::fabs(value - shift.seconds));
  shift.error = std::hypot(kNormal * medianOf(std::move(off), 0.0),
                           *std::min_element(errors.begin(), errors.end()));
  return shift;
}

}  // namespace talvesk::doctor
