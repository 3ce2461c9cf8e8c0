#include "doctor/SourceStation.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

namespace talvesk::doctor {
namespace {

constexpr double kReach = 4.0;      // stations on each side that are taken for alike
constexpr double kStep = 0.05;      // stations between trials of the tip
constexpr double kOutermost = 1.5;  // stations: nearer to an end two sides cannot be told apart
constexpr double kFarthest = 2.0;   // stations from the earliest arrival to the tip
constexpr std::size_t kFewest = 6;  // clear arrivals

struct Arrival {
  double station = 0.0;
  double time = 0.0;
  double error = 0.0;
};

struct Vee {
  double tip = 0.0;
  double time = 0.0;
  double pace = 0.0;
  double misfit = std::numeric_limits<double>::infinity();  ///< mean magnitude, seconds
  std::size_t left = 0;
  std::size_t right = 0;
};

/// The V with its tip at a station: time and pace by least squares, arrivals far off counting less
/// and less (P. J. Huber, 1964, Robust estimation of a location parameter).
Vee fitVee(const std::vector<Arrival>& arrivals, double tip, double scale) {
  Vee vee;
  vee.tip = tip;
  std::vector<Arrival> near;
  for (const Arrival& arrival : arrivals) {
    if (std::fabs(arrival.station - tip) > kReach) continue;
    ++(arrival.station < tip ? vee.left : vee.right);
    near.push_back(arrival);
  }
  if (vee.left < 2 || vee.right < 2) return vee;
  std::vector<double> weights(near.size(), 1.0);
  for (int round = 0; round < 8; ++round) {
    double w = 0.0, d = 0.0, t = 0.0, dd = 0.0, dt = 0.0;
    for (std::size_t i = 0; i < near.size(); ++i) {
      const double distance = std::fabs(near[i].station - tip);
      w += weights[i];
      d += weights[i] * distance;
      t += weights[i] * near[i].time;
      dd += weights[i] * distance * distance;
      dt += weights[i] * distance * near[i].time;
    }
    const double determinant = w * dd - d * d;
    if (!(determinant > 0.0)) return vee;
    vee.pace = (w * dt - d * t) / determinant;
    vee.time = (t - vee.pace * d) / w;
    for (std::size_t i = 0; i < near.size(); ++i) {
      const double off =
          std::fabs(near[i].time - vee.time - vee.pace * std::fabs(near[i].station - tip));
      weights[i] = off > scale ? scale / off : 1.0;
    }
  }
  vee.misfit = 0.0;
  for (const Arrival& arrival : near) {
    const double off =
        std::fabs(arrival.time - vee.time - vee.pace * std::fabs(arrival.station - tip));
    vee.misfit += off / static_cast<double>(near.size());
  }
  return vee;
}

/// Medians of three neighbours: a single wrong arrival is not the earliest.
std::vector<double> smoothed(const std::vector<Arrival>& arrivals) {
  std::vector<double> times;
  for (std::size_t i = 0; i < arrivals.size(); ++i) {
    const std::size_t first = std::min(i == 0 ? 0 : i - 1, arrivals.size() - 3);
    times.push_back(
        medianOf({arrivals[first].time, arrivals[first + 1].time, arrivals[first + 2].time}, 0.0));
  }
  return times;
}

/// Seconds per station by which times grow away from the tip on one side of it, the median over all
/// pairs (H. Theil, 1950, A rank-invariant method of linear regression).
double paceOutward(const std::vector<Arrival>& arrivals, double tip, bool left) {
  std::vector<double> slopes;
  for (std::size_t i = 0; i < arrivals.size(); ++i) {
    for (std::size_t k = i + 1; k < arrivals.size(); ++k) {
      const Arrival& a = arrivals[i];
      const Arrival& b = arrivals[k];
      if (left ? b.station > tip || a.station < tip - kReach
               : a.station < tip || b.station > tip + kReach) {
        continue;
      }
      slopes.push_back((b.time - a.time) / (b.station - a.station));
    }
  }
  const double slope = medianOf(std::move(slopes), 0.0);
  return left ? -slope : slope;
}

/// Whether what arrives around a station is as strong as the strongest quarter of all arrivals: the
/// ground shakes hardest beside the shot, and early noise is weak.
bool isStrongAround(const std::vector<Onset>& onsets, double station) {
  std::vector<double> swings;
  double around = 0.0;
  for (std::size_t t = 0; t < onsets.size(); ++t) {
    if (!isClear(onsets[t])) continue;
    swings.push_back(onsets[t].swing);
    if (std::fabs(static_cast<double>(t) - station) > kFarthest) continue;
    around = std::max(around, onsets[t].swing);
  }
  std::sort(swings.begin(), swings.end());
  return !swings.empty() && around >= swings[swings.size() * 3 / 4];
}

/// Times that grow all the way from an end.
bool growsFrom(const std::vector<double>& times, bool atEnd) {
  std::size_t up = 0;
  for (std::size_t i = 0; i + 1 < times.size(); ++i) {
    const double step = atEnd ? times[i] - times[i + 1] : times[i + 1] - times[i];
    if (step >= 0.0) ++up;
  }
  return 4 * up >= 3 * (times.size() - 1);
}

}  // namespace

SourceStation findSourceStation(const std::vector<Onset>& onsets) {
  SourceStation found;
  std::vector<Arrival> arrivals;
  std::vector<double> errors;
  for (std::size_t t = 0; t < onsets.size(); ++t) {
    if (!isClear(onsets[t])) continue;
    arrivals.push_back({static_cast<double>(t), onsets[t].time, onsets[t].error});
    errors.push_back(onsets[t].error);
  }
  if (arrivals.size() < kFewest) return found;
  found.first = arrivals.front().station;
  found.last = arrivals.back().station;
  const std::vector<double> times = smoothed(arrivals);
  const auto least =
      static_cast<std::size_t>(std::min_element(times.begin(), times.end()) - times.begin());
  const double middle = arrivals[least].station;
  const double scale = medianOf(errors, 0.001);

  Vee best;
  const double first = std::max(found.first + kOutermost, middle - kFarthest);
  const double last = std::min(found.last - kOutermost, middle + kFarthest);
  for (double tip = first; tip <= last; tip += kStep) {
    const Vee trial = fitVee(arrivals, tip, scale);
    if (trial.pace > 0.0 && trial.misfit < best.misfit) best = trial;
  }
  // Both arms of a V rise; a line that only bends is none.
  const bool vee = best.pace > 0.0 && best.misfit < 0.25 * best.pace * kReach &&
                   paceOutward(arrivals, best.tip, true) > 0.25 * best.pace &&
                   paceOutward(arrivals, best.tip, false) > 0.25 * best.pace &&
                   isStrongAround(onsets, best.tip);
  if (vee) {
    found.side = SourceStation::Side::kInside;
    found.station = best.tip;
    found.time = best.time;
    found.pace = best.pace;
    found.error = std::max(kStep, best.misfit / best.pace /
                                      std::sqrt(static_cast<double>(best.left + best.right) / 2.0));
  } else if (least < 3 && growsFrom(times, false)) {
    found.side = SourceStation::Side::kBefore;
  } else if (least + 3 >= times.size() && growsFrom(times, true)) {
    found.side = SourceStation::Side::kBehind;
  }
  return found;
}

}  // namespace talvesk::doctor
