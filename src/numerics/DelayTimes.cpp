#include "numerics/DelayTimes.h"

#include "numerics/RobustFit.h"

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
constexpr std::size_t kNodeGaps = 5;  // positions from one place of a varying slowness to the next
constexpr std::size_t kMostPieces = 24;  // between them, or memory grows with the line's square

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

/// The places between which the slowness of a refractor varies evenly, as indices of positions.
std::vector<std::size_t> nodesOf(const LinePicks& line, AlongRefractor along) {
  const std::size_t last = line.positions.size() - 1;
  if (along == AlongRefractor::kOneSlowness) return {0};
  std::vector<std::size_t> nodes;
  const std::size_t pieces = std::clamp<std::size_t>(last / kNodeGaps, 1, kMostPieces);
  for (std::size_t i = 0; i <= pieces; ++i) nodes.push_back(i * last / pieces);
  return nodes;
}

/// How much the slowness at each node counts in that at a position.
void addNodeShares(const LinePicks& line, const std::vector<std::size_t>& nodes, std::size_t at,
                   double share, std::vector<double>& shares) {
  const auto after = std::upper_bound(nodes.begin(), nodes.end(), at);
  const auto right = std::min(static_cast<std::size_t>(after - nodes.begin()), nodes.size() - 1);
  const std::size_t left = right - 1;
  const std::vector<double>& x = line.positions;
  const double part = (x[at] - x[nodes[left]]) / (x[nodes[right]] - x[nodes[left]]);
  shares[left] += share * (1.0 - part);
  shares[right] += share * part;
}

/// The part of a pick's time that the way along the refractor takes.
Terms alongTerms(const LinePicks& line, const std::vector<std::size_t>& nodes, std::size_t first,
                 double reach, const LinePick& pick) {
  if (nodes.size() == 1) return {{first, pick.offset / reach}};
  std::vector<double> shares(nodes.size(), 0.0);
  for (const RobustFit::Term& share : sharesOf(line, pick)) {
    addNodeShares(line, nodes, share.unknown, share.factor, shares);
  }
  Terms terms;
  for (std::size_t i = 0; i < shares.size(); ++i) {
    if (shares[i] != 0.0) terms.push_back({first + i, shares[i] * pick.offset / reach});
  }
  return terms;
}

void expectEvenness(const LinePicks& line, const std::vector<std::size_t>& nodes, double time,
                    RobustFit& fit) {
  const std::size_t n = line.positions.size();
  for (std::size_t i = 0; i + 1 < nodes.size(); ++i) {
    const double gaps = (line.positions[nodes[i + 1]] - line.positions[nodes[i]]) / line.gap;
    fit.expect({{n + i, -1.0}, {n + i + 1, 1.0}}, 0.0, kVariety * time * std::sqrt(gaps / 10.0));
  }
}

/// Takes the slownesses of a solution over, \param reach metres that they are multiplied by in it.
void takeSlownesses(const LinePicks& line, const std::vector<std::size_t>& nodes, double reach,
                    const std::vector<double>& solution, DelayTimes& result) {
  const std::size_t n = line.positions.size();
  if (nodes.size() == 1) {
    result.slowness = solution[n] / reach;
    return;
  }
  for (std::size_t at = 0; at < n; ++at) {
    std::vector<double> shares(nodes.size(), 0.0);
    addNodeShares(line, nodes, at, 1.0, shares);
    double slowness = 0.0;
    for (std::size_t i = 0; i < nodes.size(); ++i) slowness += shares[i] * solution[n + i] / reach;
    result.slownesses.push_back(slowness);
  }
  LinePick whole;
  whole.receiver = n - 1;
  result.slowness = meanSlowness(line, result.slownesses, whole);
}

}  // namespace

double DelayTimes::at(const LinePicks& line, const LinePick& pick) const {
  const double mean = slownesses.empty() ? slowness : meanSlowness(line, slownesses, pick);
  return delaysOf(line, pick) + pick.offset * mean;
}

double DelayTimes::delaysOf(const LinePicks& line, const LinePick& pick) const {
  double sum = 0.0;
  for (const RobustFit::Term& term : endTerms(line, *this, pick)) {
    sum += term.factor * delays[term.unknown];
  }
  return sum;
}

DelayTimes fitDelays(const LinePicks& line, const std::vector<LinePick>& used,
                     const DelayTimes& guess, AlongRefractor along) {
  const std::size_t n = line.positions.size();
  const double reach = line.positions.back() - line.positions.front();
  const std::vector<std::size_t> nodes = nodesOf(line, along);
  RobustFit fit(n + nodes.size());
  std::vector<bool> seen(n, false);
  for (const LinePick& pick : used) {
    Terms terms = endTerms(line, guess, pick);
    for (const RobustFit::Term& term : terms) seen[term.unknown] = true;
    const Terms ways = alongTerms(line, nodes, n, reach, pick);
    terms.insert(terms.end(), ways.begin(), ways.end());
    fit.measure(terms, pick.time, pick.sigma, pick.time - guess.at(line, pick));
  }
  expectSmoothness(line, fit);
  expectEvenness(line, nodes, guess.slowness * reach, fit);
  DelayTimes result;
  result.shifts = guess.shifts;
  RobustFit::Solution solved = fit.solve();
  std::vector<double>& solution = solved.unknowns;
  if (solution.empty()) return result;
  result.decided = solved.decided;
  takeSlownesses(line, nodes, reach, solution, result);
  solution.resize(n);
  result.delays = std::move(solution);
  result.told = seen;

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
