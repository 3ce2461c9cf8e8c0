#include "refraction/XYChoice.h"

#include "base/Console.h"
#include "numerics/Medians.h"
#include "refraction/LinearFit.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t kLeastReach = 3;  // receivers to either side of a short line
constexpr std::size_t kMostReach = 6;
constexpr std::size_t kLinesAcross = 4;      // short lines from end to end, where receivers allow
constexpr std::size_t kLeastReceivers = 10;  // four short lines
constexpr double kRounding = 1e-9;
// What no pick resolves, so that rounding decides nothing.
constexpr double kLeastRoughness = 1e-5;  // seconds
constexpr double kLeastUnevenness = 1e-3;
// By how much the mean square of an XY must be below that of 0 m to be told: the exponential of
// this over the root of the number of short lines. In 5 of 100 surveys of a plane refractor chance
// makes the least of twelve as low (200 surveys each of 10 to 48 receivers, with errors of 0.5 ms).
constexpr double kRoughnessChance = 4.2;
constexpr double kUnevennessChance = 8.0;

/// The receivers at which all XY up to one can be read within both curves, as a range.
struct Common {
  std::size_t begin = 0;
  std::size_t end = 0;
  std::size_t size() const { return end - begin; }
  /// Receivers to either side of a short line.
  std::size_t reach() const {
    return std::clamp(size() / (2 * kLinesAcross), kLeastReach, kMostReach);
  }
  std::size_t lines() const { return size() - 2 * reach(); }
};

Common commonOf(const std::vector<double>& x, const phantom& forward, const phantom& reverse,
                double xy) {
  const double slack = kRounding * (x.back() - x.front());
  const double first = std::max(forward.points.front().x, reverse.points.front().x) + xy - slack;
  const double last = std::min(forward.points.back().x, reverse.points.back().x) - xy + slack;
  Common common;
  common.begin = static_cast<std::size_t>(std::lower_bound(x.begin(), x.end(), first) - x.begin());
  common.end = static_cast<std::size_t>(std::upper_bound(x.begin(), x.end(), last) - x.begin());
  common.end = std::max(common.begin, common.end);
  return common;
}

double squareOf(double value) {
  return value * value;
}

/// Judges tV by the short straight lines through it.
void judge(const std::vector<double>& x, const std::vector<double>& tV, const Common& common,
           XYTried& tried) {
  double misfits = 0.0;
  std::size_t count = 0;
  std::vector<double> slopes;
  const std::size_t reach = common.reach();
  for (std::size_t j = common.begin + reach; j + reach < common.end; ++j) {
    const auto from = static_cast<std::ptrdiff_t>(j - reach);
    const auto to = static_cast<std::ptrdiff_t>(j + reach + 1);
    const std::vector<double> places(x.begin() + from, x.begin() + to);
    const std::vector<double> times(tV.begin() + from, tV.begin() + to);
    const LinearFit line = leastSquares(places, times);
    for (std::size_t i = 0; i < places.size(); ++i) {
      misfits += squareOf(times[i] - line.at(places[i]));
    }
    count += places.size();
    slopes.push_back(line.slope);
  }
  double mean = 0.0;
  for (const double slope : slopes) mean += slope / static_cast<double>(slopes.size());
  double variance = 0.0;
  for (const double slope : slopes) variance += squareOf(slope - mean);
  variance /= static_cast<double>(slopes.size());
  tried.roughness = std::sqrt(misfits / static_cast<double>(count));
  tried.unevenness = std::sqrt(variance) / std::fabs(mean);
}

XYProposal leastOf(const std::vector<XYTried>& tried, double XYTried::*figure, double resolved,
                   double chance) {
  const auto squares = [&](const XYTried& one) {
    return squareOf(one.*figure) + squareOf(resolved);
  };
  const XYTried* best = nullptr;
  const XYTried* none = nullptr;
  for (const XYTried& one : tried) {
    if (std::isnan(one.*figure)) continue;
    if (one.xy == 0.0) none = &one;
    if (best == nullptr || squares(one) < squares(*best)) best = &one;
  }
  if (best == nullptr || none == nullptr) return {};
  if (!(squares(*none) > squares(*best) * std::exp(chance))) return {};
  return {best->xy, true};
}

}  // namespace

XYChoice findXY(const Interpretation& interpretation, std::uint32_t refractor) {
  XYChoice choice;
  const std::size_t index = refractor - 2;
  const auto& built = interpretation.refractData.cData;
  if (index >= built.size() || index >= interpretation.phnt_A.size() ||
      index >= interpretation.phnt_R.size() || built[index].x.size() < 2) {
    return choice;
  }
  const std::vector<double>& x = built[index].x;
  const phantom& forward = interpretation.phnt_A[index];
  const phantom& reverse = interpretation.phnt_R[index];
  if (forward.points.size() < 2 || reverse.points.size() < 2) return choice;
  const double spacing = medianGap(x);
  const double tAB = std::max(forward.reciprocalTime, reverse.reciprocalTime);

  int most = kMostSpacings;
  Common common;
  for (; most > 0; --most) {
    common = commonOf(x, forward, reverse, most * spacing);
    if (common.size() >= kLeastReceivers) break;
  }
  if (most > 0) choice.receivers = common.size();
  const console::Silence silence;
  for (int k = -kMostSpacings; k <= kMostSpacings; ++k) {
    XYTried tried{k * spacing, kUnknown, kUnknown};
    if (choice.receivers > 0 && std::abs(k) <= most) {
      judge(x, tVAt(tried.xy, forward, reverse, x, tAB), common, tried);
    }
    choice.tried.push_back(tried);
  }
  if (choice.receivers == 0) return choice;
  const double lines = std::sqrt(static_cast<double>(common.lines()));
  choice.smoothest =
      leastOf(choice.tried, &XYTried::roughness, kLeastRoughness, kRoughnessChance / lines);
  choice.mostEven =
      leastOf(choice.tried, &XYTried::unevenness, kLeastUnevenness, kUnevennessChance / lines);
  return choice;
}

}  // namespace talvesk
