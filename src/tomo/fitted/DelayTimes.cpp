#include "tomo/fitted/DelayTimes.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

// What is expected of delays and slownesses before any pick is looked at, as one deviation: how
// much the slope of delays changes from one gap of the line to the next, how much they differ, and
// how much the slowness near the surface changes over ten gaps.
constexpr double kBend = 0.5;         // sigmas per gap
constexpr double kDifference = 30.0;  // sigmas per gap
constexpr double kVariety = 0.15;     // of the slowness

using Terms = std::vector<RobustFit::Term>;

void expectSmoothness(const LinePicks& line, RobustFit& fit) {
  const std::vector<double>& x = line.positions;
  for (std::size_t i = 0; i + 1 < x.size(); ++i) {
    const double right = line.gap / (x[i + 1] - x[i]);
    fit.expect({{i, -right}, {i + 1, right}}, 0.0, kDifference * line.sigma);
    if (i == 0) continue;
    const double left = line.gap / (x[i] - x[i - 1]);
    fit.expect({{i - 1, left}, {i, -left - right}, {i + 1, right}}, 0.0, kBend * line.sigma);
  }
}

/// How much each position's slowness counts in the mean between two of them: as if slownesses ran
/// evenly from one to the next.
Terms sharesOf(const LinePicks& line, const LinePick& pick) {
  const std::size_t from = std::min(pick.source, pick.receiver);
  const std::size_t to = std::max(pick.source, pick.receiver);
  const double whole = line.positions[to] - line.positions[from];
  Terms shares;
  for (std::size_t i = from; i <= to; ++i) {
    const double left = i > from ? line.positions[i] - line.positions[i - 1] : 0.0;
    const double right = i < to ? line.positions[i + 1] - line.positions[i] : 0.0;
    shares.push_back({i, 0.5 * (left + right) / whole});
  }
  return shares;
}

/// How much each position's delay counts in a pick's: as if delays ran evenly between positions.
Terms endTerms(const LinePicks& line, const DelayTimes& refractor, const LinePick& pick) {
  Terms terms;
  const auto add = [&](std::size_t from, std::size_t to) {
    const std::vector<double>& x = line.positions;
    const double shift =
        refractor.shifts.empty() ? 0.0 : std::min(refractor.shifts[from], 0.5 * pick.offset);
    const double place = x[from] + (to > from ? shift : -shift);
    const auto after = std::upper_bound(x.begin(), x.end(), place);
    const auto right = std::min(static_cast<std::size_t>(after - x.begin()), x.size() - 1);
    const std::size_t left = right - 1;
    const double part = std::clamp((place - x[left]) / (x[right] - x[left]), 0.0, 1.0);
    if (part < 1.0) terms.push_back({left, 1.0 - part});
    if (part > 0.0) terms.push_back({right, part});
  };
  add(pick.source, pick.receiver);
  add(pick.receiver, pick.source);
  return terms;
}

}  // namespace

double DelayTimes::delaysOf(const LinePicks& line, const LinePick& pick) const {
  double sum = 0.0;
  for (const RobustFit::Term& term : endTerms(line, *this, pick)) {
    sum += term.factor * delays[term.unknown];
  }
  return sum;
}

DelayTimes fitDelays(const LinePicks& line, const std::vector<LinePick>& used,
                     const DelayTimes& guess) {
  const std::size_t n = line.positions.size();
  const double reach = line.positions.back() - line.positions.front();
  RobustFit fit(n + 1);
  std::vector<bool> seen(n, false);
  for (const LinePick& pick : used) {
    Terms terms = endTerms(line, guess, pick);
    for (const RobustFit::Term& term : terms) seen[term.unknown] = true;
    terms.push_back({n, pick.offset / reach});
    fit.measure(terms, pick.time, pick.sigma, pick.time - guess.at(line, pick));
  }
  expectSmoothness(line, fit);
  DelayTimes result;
  result.shifts = guess.shifts;
  RobustFit::Solution solved = fit.solve();
  std::vector<double>& solution = solved.unknowns;
  if (solution.empty()) return result;
  result.decided = solved.decided;
  result.slowness = solution.back() / reach;
  solution.pop_back();
  result.delays = std::move(solution);

  const auto first =
      static_cast<std::size_t>(std::find(seen.begin(), seen.end(), true) - seen.begin());
  std::size_t last = n - 1;
  while (last > first && !seen[last]) --last;
  for (std::size_t i = 0; i < n; ++i) {
    result.delays[i] = std::max(0.0, result.delays[std::clamp(i, first, last)]);
  }
  return result;
}

double meanSlowness(const LinePicks& line, const std::vector<double>& slownesses,
                    const LinePick& pick) {
  double mean = 0.0;
  for (const RobustFit::Term& share : sharesOf(line, pick)) {
    mean += share.factor * slownesses[share.unknown];
  }
  return mean;
}

RobustFit::Solution fitNearSlownesses(const LinePicks& line, const std::vector<LinePick>& used,
                                      double mean) {
  const std::size_t n = line.positions.size();
  RobustFit fit(n);
  for (const LinePick& pick : used) {
    Terms terms = sharesOf(line, pick);
    for (RobustFit::Term& term : terms) term.factor *= pick.distance;
    fit.measure(terms, pick.time, pick.sigma, pick.time - pick.distance * mean);
  }
  for (std::size_t i = 0; i + 1 < n; ++i) {
    const double gaps = (line.positions[i + 1] - line.positions[i]) / line.gap;
    fit.expect({{i, -1.0}, {i + 1, 1.0}}, 0.0, kVariety * mean * std::sqrt(gaps / 10.0));
  }
  RobustFit::Solution solved = fit.solve();
  for (double& p : solved.unknowns) p = std::clamp(p, 0.5 * mean, 2.0 * mean);
  return solved;
}

}  // namespace talvesk
