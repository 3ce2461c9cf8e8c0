#include "doctor/ClockShifts.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include <Eigen/Dense>

namespace talvesk::doctor {
namespace {

// First arrivals of P and S waves: slower is only the air of a swamp, faster only deep rock.
constexpr double kSlowest = 100.0;   // m/s
constexpr double kFastest = 4500.0;  // m/s
constexpr double kNormal = 1.4826;   // median of magnitudes to standard deviation

constexpr double kHuber = 2.0;          // errors from which on an equation counts less
constexpr double kContradiction = 5.0;  // errors from which on it is wrong
constexpr double kAlways = 1e30;        // errors: counts whatever it says
constexpr int kRounds = 30;             // of reweighting
constexpr std::size_t kFewest = 3;      // arrivals that a time is read from
constexpr std::size_t kMost = 4;        // more would reach around bends of the curve

struct Arrival {
  double x = 0.0;
  double time = 0.0;
  double error = 0.0;
};

/// The time at x and the error of it, by a line through the arrivals around it that lie on its side
/// of the shot; none where there are too few.
std::optional<Arrival> timeAt(const ShotView& shot, double x, double spacing) {
  std::vector<Arrival> near;
  for (std::size_t t = 0; t < shot.onsets.size(); ++t) {
    const double at = shot.geophones[t].x;
    const bool otherSide = (at - shot.source.x) * (x - shot.source.x) < 0.0;
    if (!isSharp(shot.onsets[t]) || otherSide || std::fabs(at - x) > 4.0 * spacing) continue;
    near.push_back({at, shot.onsets[t].time, shot.onsets[t].error});
  }
  if (near.size() < kFewest) return std::nullopt;
  std::stable_sort(near.begin(), near.end(), [&](const Arrival& a, const Arrival& b) {
    return std::fabs(a.x - x) < std::fabs(b.x - x);
  });
  near.resize(std::min(near.size(), kMost));
  std::vector<double> errors;
  for (const Arrival& arrival : near) errors.push_back(arrival.error);
  std::vector<double> slopes;
  for (std::size_t i = 0; i < near.size(); ++i) {
    for (std::size_t k = i + 1; k < near.size(); ++k) {
      if (near[k].x != near[i].x) {
        slopes.push_back((near[k].time - near[i].time) / (near[k].x - near[i].x));
      }
    }
  }
  const double slope = medianOf(std::move(slopes), 0.0);
  // The mean of what a median does not find far off: its scatter is less than that of the median.
  std::vector<double> times;
  double nearest = 1e9;
  for (const Arrival& arrival : near) {
    times.push_back(arrival.time - slope * (arrival.x - x));
    nearest = std::min(nearest, std::fabs(arrival.x - x));
  }
  const double middle = medianOf(times, 0.0);
  std::vector<double> off;
  for (const double time : times) off.push_back(std::fabs(time - middle));
  const double scatter = std::max(kNormal * medianOf(off, 0.0), 1e-5);
  double sum = 0.0;
  double count = 0.0;
  for (const double time : times) {
    if (std::fabs(time - middle) > 3.0 * scatter) continue;
    sum += time;
    count += 1.0;
  }
  if (nearest > 1.05 * spacing || count == 0.0) return std::nullopt;
  // A line is drawn where the curve may bend, and more so beyond the last geophone.
  const bool beyond = std::all_of(near.begin(), near.end(), [&](const Arrival& arrival) {
    return (arrival.x - x) * (near.front().x - x) > 0.0;
  });
  const double bend = (0.1 * spacing + (beyond ? 0.2 * nearest : 0.0)) * std::fabs(slope);
  return Arrival{x, sum / count,
                 std::hypot(scatter / std::sqrt(count), medianOf(errors, 0.0), bend)};
}

std::optional<ClockPair> reciprocal(const ShotView& a, const ShotView& b, double spacing) {
  const std::optional<Arrival> there = timeAt(a, b.source.x, spacing);
  const std::optional<Arrival> back = timeAt(b, a.source.x, spacing);
  if (!there || !back) return std::nullopt;
  ClockPair pair;
  pair.difference = there->time - back->time;
  pair.error = std::hypot(there->error, back->error);
  pair.atX = b.source.x;
  pair.time = there->time;
  return pair;
}

std::optional<ClockPair> ofOnePoint(const ShotView& a, const ShotView& b) {
  if (a.geophones != b.geophones) return std::nullopt;
  std::vector<double> differences;
  std::vector<double> errors;
  for (std::size_t t = 0; t < a.onsets.size(); ++t) {
    if (!isSharp(a.onsets[t]) || !isSharp(b.onsets[t])) continue;
    differences.push_back(a.onsets[t].time - b.onsets[t].time);
    errors.push_back(std::max(a.onsets[t].error, b.onsets[t].error));
  }
  if (differences.size() < 4) return std::nullopt;
  ClockPair pair;
  pair.difference = medianOf(differences, 0.0);
  std::vector<double> off;
  for (const double difference : differences)
    off.push_back(std::fabs(difference - pair.difference));
  pair.error = std::hypot(medianOf(errors, 0.0), kNormal * medianOf(off, 0.0)) /
               std::sqrt(static_cast<double>(differences.size()) / 2.0);
  pair.atX = a.source.x;
  pair.time = a.station.time;
  return pair;
}

/// The equations for the shifts, weighted by what they are worth.
struct Normal {
  Eigen::MatrixXd matrix;
  Eigen::VectorXd right;

  explicit Normal(std::size_t count)
      : matrix(Eigen::MatrixXd::Zero(static_cast<Eigen::Index>(count),
                                     static_cast<Eigen::Index>(count))),
        right(Eigen::VectorXd::Zero(static_cast<Eigen::Index>(count))) {}

  void addBounds(std::size_t shot, double shift, double weight) {
    const auto i = static_cast<Eigen::Index>(shot);
    matrix(i, i) += weight;
    right(i) += weight * shift;
  }

  void addPair(const ClockPair& pair, double weight) {
    const auto a = static_cast<Eigen::Index>(pair.a);
    const auto b = static_cast<Eigen::Index>(pair.b);
    matrix(a, a) += weight;
    matrix(b, b) += weight;
    matrix(a, b) -= weight;
    matrix(b, a) -= weight;
    right(a) += weight * pair.difference;
    right(b) -= weight * pair.difference;
  }
};

/// \param dropped errors by which an equation may be off before it counts for nothing
double weightOf(double off, double error, double dropped) {
  const double far = std::fabs(off) / error;
  if (far > dropped) return 0.0;
  return (far > kHuber ? kHuber / far : 1.0) / (error * error);
}

Normal equations(const std::vector<ClockBounds>& bounds, const std::vector<ClockPair>& pairs,
                 const std::vector<ClockShift>& shifts, double dropped, double stretch) {
  Normal normal(bounds.size());
  for (std::size_t i = 0; i < bounds.size(); ++i) {
    const ClockBounds& own = bounds[i];
    if (own.known) {
      normal.addBounds(i, own.likely, weightOf(own.likely - shifts[i].seconds, own.error, kAlways));
    } else {
      normal.addBounds(i, 0.0, 1.0);
    }
  }
  for (const ClockPair& pair : pairs) {
    const double off = shifts[pair.a].seconds - shifts[pair.b].seconds - pair.difference;
    normal.addPair(pair, weightOf(off, stretch * pair.error, dropped));
  }
  return normal;
}

/// The standard deviation of each shift beside the mean of those that pairs hold together, from the
/// inverse of the normal matrix: along a chain of pairs errors add up.
void setErrors(const Eigen::MatrixXd& matrix, std::vector<ClockShift>& shifts) {
  const Eigen::Index n = matrix.rows();
  const Eigen::MatrixXd covariance = matrix.ldlt().solve(Eigen::MatrixXd::Identity(n, n));
  Eigen::VectorXd held = Eigen::VectorXd::Zero(n);
  for (Eigen::Index i = 0; i < n; ++i) {
    if (shifts[static_cast<std::size_t>(i)].pairs >= 2) held(i) = 1.0;
  }
  if (held.sum() > 0.0) held /= held.sum();
  const Eigen::VectorXd beside = covariance * held;
  const double mean = held.dot(beside);
  for (Eigen::Index i = 0; i < n; ++i) {
    shifts[static_cast<std::size_t>(i)].error =
        std::sqrt(std::max(0.0, covariance(i, i) - 2.0 * beside(i) + mean));
  }
}

}  // namespace

ClockBounds clockBounds(const ShotView& shot) {
  ClockBounds bounds;
  std::vector<std::pair<double, std::size_t>> byOffset;
  for (std::size_t t = 0; t < shot.onsets.size(); ++t) {
    if (isClear(shot.onsets[t])) byOffset.emplace_back(std::fabs(shot.offset(t)), t);
  }
  if (byOffset.size() < 3) return bounds;
  std::sort(byOffset.begin(), byOffset.end());
  std::vector<double> least;
  std::vector<double> most;
  for (std::size_t i = 0; i < 3; ++i) {
    const Onset& onset = shot.onsets[byOffset[i].second];
    least.push_back(onset.time - byOffset[i].first / kSlowest - onset.error);
    most.push_back(onset.time - byOffset[i].first / kFastest + onset.error);
  }
  bounds.known = true;
  bounds.least = medianOf(least, 0.0);
  bounds.most = medianOf(most, 0.0);
  bounds.likely = 0.5 * (bounds.least + bounds.most);
  bounds.error = std::max(1e-4, 0.5 * (bounds.most - bounds.least));
  if (shot.station.side == SourceStation::Side::kInside) {
    bounds.likely = std::clamp(shot.station.time, bounds.least, bounds.most);
    bounds.error = std::max(1e-4, 0.5 * shot.station.pace);
  }
  return bounds;
}

std::vector<ClockPair> clockPairs(const std::vector<const ShotView*>& shots) {
  std::vector<ClockPair> pairs;
  for (std::size_t a = 0; a < shots.size(); ++a) {
    const double spacing = spacingOf(shots[a]->geophones);
    for (std::size_t b = a + 1; b < shots.size(); ++b) {
      const double apart = std::fabs(shots[a]->source.x - shots[b]->source.x);
      std::optional<ClockPair> pair;
      if (apart < 0.1 * spacing) pair = ofOnePoint(*shots[a], *shots[b]);
      if (apart > 2.0 * spacing) pair = reciprocal(*shots[a], *shots[b], spacing);
      if (!pair) continue;
      pair->a = a;
      pair->b = b;
      pairs.push_back(*pair);
    }
  }
  return pairs;
}

std::vector<ClockShift> clockShifts(const std::vector<ClockBounds>& bounds,
                                    const std::vector<ClockPair>& pairs) {
  std::vector<ClockShift> shifts(bounds.size());
  if (shifts.empty()) return shifts;
  for (std::size_t i = 0; i < shifts.size(); ++i) shifts[i].seconds = bounds[i].likely;
  for (int round = 0; round < kRounds; ++round) {
    const double dropped = 2 * round < kRounds ? kAlways : kContradiction;
    const Normal normal = equations(bounds, pairs, shifts, dropped, 1.0);
    const Eigen::VectorXd solution = normal.matrix.ldlt().solve(normal.right);
    for (std::size_t i = 0; i < shifts.size(); ++i) {
      shifts[i].seconds = solution(static_cast<Eigen::Index>(i));
    }
  }
  std::vector<double> misfits;
  for (const ClockPair& pair : pairs) {
    const double off = shifts[pair.a].seconds - shifts[pair.b].seconds - pair.difference;
    misfits.push_back(std::fabs(off) / pair.error);
    if (misfits.back() > kContradiction) continue;
    ++shifts[pair.a].pairs;
    ++shifts[pair.b].pairs;
  }
  // Pairs that contradict each other more than they should are all less sure.
  const double stretch = std::max(1.0, kNormal * medianOf(misfits, 0.0));
  setErrors(equations(bounds, pairs, shifts, kContradiction, stretch).matrix, shifts);
  return shifts;
}

}  // namespace talvesk::doctor
