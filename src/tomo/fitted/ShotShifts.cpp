#include "tomo/fitted/ShotShifts.h"

#include "numerics/Medians.h"
#include "numerics/RobustFit.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr int kMostRounds = 30;
constexpr double kSettled = 1e-7;  // seconds
constexpr std::size_t kLeastPartners = 2;
constexpr double kStandsOut = 4.0;       // errors of what the times there and back tell of a shot
constexpr double kErrorOfMedian = 1.86;  // times the median size of normal errors, over the root
                                         // of their number
constexpr double kLeastPicks = 4.0;      // of a shot that is judged by what times leave of them
constexpr double kShortest = 0.1;        // of its error: what is left of a time at least

/// Calls visit(shot, pick, seconds that the pick is later than its computed time).
template <typename Visit>
void forEachPick(const FitData& data, const std::vector<double>& times, Visit visit) {
  for (std::size_t s = 0; s < data.shots.size(); ++s) {
    const FitShot& shot = data.shots[s];
    for (std::size_t i = shot.firstPick; i < shot.firstPick + shot.receivers.size(); ++i) {
      visit(s, data.picks[i], data.picks[i].time - times[i]);
    }
  }
}

std::vector<double> medianDelays(const FitData& data, const std::vector<double>& times) {
  std::vector<std::vector<double>> delays(data.shots.size());
  forEachPick(data, times,
              [&](std::size_t s, const FitPick&, double late) { delays[s].push_back(late); });
  std::vector<double> medians;
  for (std::vector<double>& each : delays) medians.push_back(medianOf(std::move(each), 0.0));
  return medians;
}

double huberLimit(const FitData& data, const std::vector<double>& times,
                  const std::vector<double>& shifts) {
  std::vector<double> scaled;
  scaled.reserve(data.picks.size());
  forEachPick(data, times, [&](std::size_t s, const FitPick& pick, double late) {
    scaled.push_back((late - shifts[s]) / pick.sigma);
  });
  return kHuber * robustScale(scaled);
}

/// What a shot's wave takes to a place between two of its receivers; no sigma: there are none.
struct TimeThere {
  double time = 0.0;
  double sigma = 0.0;
};

TimeThere timeAt(const FitData& data, const FitShot& shot, double x) {
  std::size_t left = shot.receivers.size();
  std::size_t right = left;
  for (std::size_t k = 0; k < shot.receivers.size(); ++k) {
    const double at = shot.receivers[k];
    if (at <= x && (left == shot.receivers.size() || at > shot.receivers[left])) left = k;
    if (at >= x && (right == shot.receivers.size() || at < shot.receivers[right])) right = k;
  }
  if (left == shot.receivers.size() || right == shot.receivers.size()) return {};
  const double from = shot.receivers[left];
  const double to = shot.receivers[right];
  if (from <= shot.source && shot.source <= to) return {};  // times have a bend at the source
  const FitPick& a = data.picks[shot.firstPick + left];
  const FitPick& b = data.picks[shot.firstPick + right];
  const double part = to > from ? (x - from) / (to - from) : 0.0;
  return {a.time + part * (b.time - a.time), a.sigma + part * (b.sigma - a.sigma)};
}

/// Two shots with the time by which the first one's wave takes longer to the other one.
struct Pair {
  std::size_t first;
  std::size_t second;
  double later;
  double sigma;
};

std::vector<Pair> pairsOf(const FitData& data) {
  std::vector<Pair> pairs;
  for (std::size_t a = 0; a < data.shots.size(); ++a) {
    for (std::size_t b = a + 1; b < data.shots.size(); ++b) {
      const TimeThere there = timeAt(data, data.shots[a], data.shots[b].source);
      const TimeThere back = timeAt(data, data.shots[b], data.shots[a].source);
      if (!(there.sigma > 0.0 && back.sigma > 0.0)) continue;
      pairs.push_back({a, b, there.time - back.time, std::hypot(there.sigma, back.sigma)});
    }
  }
  return pairs;
}

}  // namespace

double shiftWeight(double shift, double error) {
  return std::min(1.0, kHuber * error / std::max(std::fabs(shift), error));
}

std::vector<double> shotShifts(const FitData& data, const std::vector<double>& times,
                               double triggerError, bool robust) {
  std::vector<double> shifts = medianDelays(data, times);
  for (int round = 0; round < kMostRounds; ++round) {
    const double limit =
        robust ? huberLimit(data, times, shifts) : std::numeric_limits<double>::infinity();
    std::vector<double> weights(shifts.size(), 0.0);
    std::vector<double> sums(shifts.size(), 0.0);
    forEachPick(data, times, [&](std::size_t s, const FitPick& pick, double late) {
      const double size = std::fabs(late - shifts[s]) / pick.sigma;
      const double weight = std::min(1.0, limit / size) / (pick.sigma * pick.sigma);
      weights[s] += weight;
      sums[s] += weight * late;
    });
    // A multiplier of the sum of all holds it at zero.
    double excess = 0.0;
    double softness = 0.0;
    for (std::size_t s = 0; s < shifts.size(); ++s) {
      weights[s] += shiftWeight(shifts[s], triggerError) / (triggerError * triggerError);
      excess += sums[s] / weights[s];
      softness += 1.0 / weights[s];
    }
    double change = 0.0;
    for (std::size_t s = 0; s < shifts.size(); ++s) {
      const double shift = (sums[s] - excess / softness) / weights[s];
      change = std::max(change, std::fabs(shift - shifts[s]));
      shifts[s] = shift;
    }
    if (change < kSettled) break;
  }
  return shifts;
}

std::vector<double> reciprocalShifts(const FitData& data, double triggerError) {
  const std::size_t count = data.shots.size();
  const std::vector<Pair> pairs = pairsOf(data);
  std::vector<std::vector<double>> delays(count);
  std::vector<double> knowledge(count, 0.0);
  for (const Pair& pair : pairs) {
    delays[pair.first].push_back(pair.later);
    delays[pair.second].push_back(-pair.later);
    for (const std::size_t s : {pair.first, pair.second}) {
      knowledge[s] += 1.0 / (pair.sigma * pair.sigma);
    }
  }
  RobustFit fit(count);
  for (std::size_t s = 0; s < count; ++s) fit.expect({{s, 1.0}}, 0.0, triggerError);
  std::vector<double> residuals;
  for (const Pair& pair : pairs) {
    const double guess = medianOf(delays[pair.first], 0.0) - medianOf(delays[pair.second], 0.0);
    fit.measure({{pair.first, 1.0}, {pair.second, -1.0}}, pair.later, pair.sigma,
                pair.later - guess);
  }
  std::vector<double> shifts = fit.solve().unknowns;
  if (shifts.empty()) return std::vector<double>(count, 0.0);
  for (const Pair& pair : pairs) {
    residuals.push_back((pair.later - shifts[pair.first] + shifts[pair.second]) / pair.sigma);
  }
  const double scale = robustScale(residuals);
  const double usual = medianOf(shifts, 0.0);
  for (std::size_t s = 0; s < count; ++s) {
    shifts[s] -= usual;
    const double error = scale / std::sqrt(knowledge[s]);
    const bool told = delays[s].size() >= kLeastPartners;
    const double usually = std::max(triggerError, kStandsOut * error);
    if (!told || !(std::fabs(shifts[s]) > usually)) shifts[s] = 0.0;
  }
  return shifts;
}

std::vector<double> seemingShifts(const FitData& data, const std::vector<double>& times,
                                  double triggerError) {
  std::vector<double> shifts = reciprocalShifts(data, triggerError);
  const std::vector<double> delays = medianDelays(data, times);
  const double usual = medianOf(delays, 0.0);
  for (std::size_t s = 0; s < shifts.size(); ++s) {
    const FitShot& shot = data.shots[s];
    std::vector<double> off;
    for (std::size_t i = shot.firstPick; i < shot.firstPick + shot.receivers.size(); ++i) {
      off.push_back(std::fabs(data.picks[i].time - times[i] - delays[s]));
    }
    const double count = static_cast<double>(off.size());
    const double error = kErrorOfMedian * medianOf(std::move(off), 0.0) / std::sqrt(count);
    const double late = delays[s] - usual;
    const bool standsOut = std::fabs(late) > std::max(triggerError, kStandsOut * error);
    if (shifts[s] == 0.0 && count >= kLeastPicks && standsOut) shifts[s] = late;
  }
  return shifts;
}

FitData picksOnTime(FitData data, double triggerError) {
  const std::vector<double> shifts = reciprocalShifts(data, triggerError);
  for (std::size_t s = 0; s < data.shots.size(); ++s) {
    const FitShot& shot = data.shots[s];
    for (std::size_t i = shot.firstPick; i < shot.firstPick + shot.receivers.size(); ++i) {
      FitPick& pick = data.picks[i];
      const double least = std::min(pick.time, kShortest * pick.sigma);
      pick.time = std::max(pick.time - shifts[s], least);
    }
  }
  return data;
}

}  // namespace talvesk
