#include "refraction/WaveFit.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include <Eigen/Cholesky>
#include <Eigen/Core>

namespace talvesk {
namespace {

constexpr double kTuning = 2.385;      // of the Cauchy weights: 95 % efficient on normal errors
constexpr double kLeastScale = 0.02;   // of the errors of picks
constexpr double kUsualDip = 0.15;     // standard deviation of a delay's slope over slowness
constexpr double kUsualChange = 0.15;  // of a velocity from knot to knot
constexpr double kDeepest = 1e6;       // metres
constexpr int kMostRounds = 25;
constexpr int kFirstRounds = 5;  // until gross picks of a first idea are known
constexpr std::size_t kPlacesOfBreaks = 11;
constexpr std::size_t kEnoughPicks = 2500;  // to find where to begin

double sumOf(const std::vector<double>& shares, const std::vector<double>& values) {
  return std::inner_product(shares.begin(), shares.end(), values.begin(), 0.0);
}

}  // namespace

double robustWeight(double scaled) {
  const double u = scaled / kTuning;
  return 1.0 / (1.0 + u * u);
}

double robustCost(double scaled) {
  const double u = scaled / kTuning;
  return std::log1p(u * u);
}

double divingOffset(double offset, double growth) {
  return growth > 0.0 ? 2.0 / growth * std::asinh(0.5 * growth * offset) : offset;
}

double divingDepth(double offset, double growth) {
  return growth > 0.0 ? (std::hypot(1.0, 0.5 * growth * offset) - 1.0) / growth : 0.0;
}

double WaveModel::time(std::size_t wave, double from, double to) const {
  const Wave& own = waves[wave];
  double time = sumOf((wave == 0 ? top : slownesses).sharesOver(from, to), own.slowness);
  if (wave == 0 && from != to) {
    const double offset = std::fabs(to - from);
    time *= divingOffset(offset, growth) / offset;
  }
  if (!own.delay.empty()) time += delayAt(wave, from) + delayAt(wave, to);
  return time;
}

std::size_t WaveModel::earliest(double from, double to) const {
  std::size_t first = 0;
  double least = std::numeric_limits<double>::infinity();
  for (std::size_t wave = 0; wave < waves.size(); ++wave) {
    const double t = time(wave, from, to);
    if (t < least) {
      least = t;
      first = wave;
    }
  }
  return first;
}

double WaveModel::slownessAt(std::size_t wave, double x) const {
  return sumOf((wave == 0 ? top : slownesses).sharesAt(x), waves[wave].slowness);
}

double WaveModel::delayAt(std::size_t wave, double x) const {
  const Wave& own = waves[wave];
  return own.delay.empty() ? 0.0 : sumOf(delays.sharesAt(x), own.delay) + own.relief * relief.at(x);
}

double WaveModel::delayThroughFirst(double depth, double slowness, double horizontal) const {
  if (!(slowness > horizontal)) return 0.0;
  if (!(growth > 0.0)) {
    return depth * std::sqrt(slowness * slowness - horizontal * horizontal);
  }
  // The integral of the vertical slowness, down to where the wave would turn.
  const auto integral = [&](double factor) {
    const double s = std::max(slowness, horizontal * factor);
    return std::sqrt(s * s - horizontal * horizontal * factor * factor) -
           slowness * std::acosh(s / (horizontal * factor));
  };
  const double bottom =
      std::clamp(1.0 + growth * std::min(depth, growsTo), 1.0, slowness / horizontal);
  const double steady = slowness / bottom;
  return (integral(bottom) - integral(1.0)) / growth +
         std::max(0.0, depth - growsTo) *
             std::sqrt(std::max(0.0, steady * steady - horizontal * horizontal));
}

std::optional<double> WaveModel::depthAt(std::size_t wave, double x) const {
  if (wave < 1 || wave >= waves.size()) return std::nullopt;
  const double surface = slownessAt(0, x);
  const double first = slownessAt(1, x);
  const double delay = delayAt(1, x);
  const auto through = [&](double depth) { return delayThroughFirst(depth, surface, first); };
  // The depth whose delay is the one that was fitted.
  double low = 0.0;
  double high = 1.0;
  while (through(high) < delay) {
    high *= 2.0;
    if (high > kDeepest) return std::nullopt;
  }
  while (high - low > 1e-9 * high) {
    const double middle = 0.5 * (low + high);
    (through(middle) < delay ? low : high) = middle;
  }
  if (wave == 1) return high;
  const double second = slownessAt(2, x);
  if (!(first > second)) return std::nullopt;
  const double rest = delayAt(2, x) - delayThroughFirst(high, surface, second);
  return high + rest / std::sqrt(first * first - second * second);
}

double WaveModel::velocity(std::size_t wave) const {
  const std::vector<double>& own = waves[wave].slowness;
  return static_cast<double>(own.size()) / std::accumulate(own.begin(), own.end(), 0.0);
}

/// What each pick has of each unknown, the same for all head waves.
struct WaveFitter::Rows {
  AlongLine tops;
  AlongLine slownesses;
  AlongLine delays;
  double growth = 0.0;
  Course surface;            ///< metres above its mean
  Eigen::MatrixXd slowness;  ///< of a head wave, picks by knots, metres
  Eigen::MatrixXd direct;    ///< the same of the direct wave
  Eigen::MatrixXd delay;     ///< picks by knots
  Eigen::VectorXd relief;    ///< of shot and receiver together, metres
  Eigen::VectorXd time;
  Eigen::VectorXd sigma;

  /// \param top of the direct wave, roughly, s/m \param even what velocities keep to, s/m
  std::optional<Wave> solve(const Eigen::VectorXd& weights, bool first, double top,
                            double even) const;
  std::optional<Wave> fitOwn(const std::vector<std::size_t>& assigned, std::size_t wave,
                             Eigen::VectorXd trust, int rounds, double& top,
                             std::optional<double> even = {}) const;
  Eigen::VectorXd timesOf(const Wave& wave) const;
  std::optional<double> directOffset(const std::vector<std::size_t>& waves) const;
  bool breaksAt(const std::vector<Wave>& waves, const std::vector<std::size_t>& earliest) const;
  bool predict(const std::vector<Wave>& waves, FittedWaves& fit) const;
};

/// Least squares with what is known of any ground: refractors are rather level, velocities rather
/// the same from knot to knot.
std::optional<Wave> WaveFitter::Rows::solve(const Eigen::VectorXd& weights, bool first, double top,
                                            double even) const {
  const Eigen::MatrixXd& over = first ? direct : slowness;
  const Eigen::Index p = over.cols();
  const Eigen::Index m = first ? 0 : delay.cols() + 1;
  Eigen::MatrixXd rows(over.rows(), p + m);
  rows.leftCols(p) = over;
  if (!first) {
    rows.middleCols(p, m - 1) = delay;
    rows.rightCols(1) = relief;
  }
  Eigen::MatrixXd normal = rows.transpose() * weights.asDiagonal() * rows;
  const Eigen::MatrixXd told = normal;
  const Eigen::VectorXd right = rows.transpose() * (weights.cwiseProduct(time));
  const auto tie = [&normal](Eigen::Index a, double deviation) {
    const double weight = 1.0 / (deviation * deviation);
    normal(a, a) += weight;
    normal(a + 1, a + 1) += weight;
    normal(a, a + 1) -= weight;
    normal(a + 1, a) -= weight;
  };
  for (Eigen::Index k = 0; k + 1 < p; ++k) tie(k, kUsualChange * even);
  for (Eigen::Index k = 0; k + 2 < m; ++k) tie(p + k, kUsualDip * top * delays.spacing());
  // A refractor may follow the surface or be level below it.
  if (!first) normal(p + m - 1, p + m - 1) += 1.0 / (top * top);
  const auto solver = normal.ldlt();
  const Eigen::VectorXd found = solver.solve(right);
  if (!found.allFinite()) return std::nullopt;
  Wave wave;
  wave.unknowns = std::clamp(solver.solve(told).trace(), 1.0, static_cast<double>(p + m));
  wave.slowness.assign(found.data(), found.data() + p);
  if (!first) {
    wave.delay.assign(found.data() + p, found.data() + p + m - 1);
    wave.relief = found[p + m - 1];
  }
  const double mean =
      std::accumulate(wave.slowness.begin(), wave.slowness.end(), 0.0) / static_cast<double>(p);
  if (!(mean > 0.0)) return std::nullopt;
  for (double& s : wave.slowness) s = std::clamp(s, 0.3 * mean, 3.0 * mean);
  return wave;
}

Eigen::VectorXd WaveFitter::Rows::timesOf(const Wave& wave) const {
  using Values = Eigen::Map<const Eigen::VectorXd>;
  if (wave.delay.empty()) return direct * Values(wave.slowness.data(), direct.cols());
  return slowness * Values(wave.slowness.data(), slowness.cols()) +
         delay * Values(wave.delay.data(), delay.cols()) + relief * wave.relief;
}

/// One wave through the picks assigned to it; nothing for too few. The first, the direct wave, sets
/// `top`.
/// \param trust of each pick \param rounds in which this trust is found anew from how they fit
/// \param even what velocities keep to, s/m; none: `top`
std::optional<Wave> WaveFitter::Rows::fitOwn(const std::vector<std::size_t>& assigned,
                                             std::size_t wave, Eigen::VectorXd trust, int rounds,
                                             double& top, std::optional<double> even) const {
  std::vector<Eigen::Index> own;
  for (Eigen::Index i = 0; i < time.size(); ++i) {
    if (assigned[static_cast<std::size_t>(i)] == wave) own.push_back(i);
  }
  if (own.size() < kLeastPicksOfPiece) return std::nullopt;
  if (wave == 0) top = time(own).sum() / direct(own, Eigen::all).sum();
  std::optional<Wave> found;
  for (int round = 0; round < rounds; ++round) {
    Eigen::VectorXd weights = Eigen::VectorXd::Zero(time.size());
    for (const Eigen::Index i : own) weights[i] = trust[i] / (sigma[i] * sigma[i]);
    found = solve(weights, wave == 0, top, even.value_or(top));
    if (!found || round + 1 == rounds) break;
    const Eigen::VectorXd off = (time - timesOf(*found)).cwiseQuotient(sigma);
    std::vector<double> scaled;
    for (const Eigen::Index i : own) scaled.push_back(off[i]);
    const double scale = std::max(kLeastScale, robustDeviation(scaled));
    for (const Eigen::Index i : own) trust[i] = robustWeight(off[i] / scale);
  }
  return found;
}

/// The offset that hardly any direct wave goes beyond: that of the last tenth of its picks; none
/// without any.
std::optional<double> WaveFitter::Rows::directOffset(const std::vector<std::size_t>& waves) const {
  std::vector<double> offsets;
  for (Eigen::Index i = 0; i < time.size(); ++i) {
    if (waves[static_cast<std::size_t>(i)] == 0) offsets.push_back(slowness.row(i).sum());
  }
  if (offsets.empty()) return std::nullopt;
  const auto last = offsets.begin() + static_cast<std::ptrdiff_t>(9 * offsets.size() / 10);
  std::nth_element(offsets.begin(), last, offsets.end());
  return *last;
}

/// Whether the first refractor is faster than the direct wave has become where it is overtaken.
bool WaveFitter::Rows::breaksAt(const std::vector<Wave>& waves,
                                const std::vector<std::size_t>& earliest) const {
  if (waves.size() < 2 || growth == 0.0) return true;
  const auto offset = directOffset(earliest);
  if (!offset) return false;
  const auto meanOf = [](const std::vector<double>& s) {
    return std::accumulate(s.begin(), s.end(), 0.0) / static_cast<double>(s.size());
  };
  const double apparent = meanOf(waves[0].slowness) / std::hypot(1.0, 0.5 * growth * *offset);
  return meanOf(waves[1].slowness) * kLeastVelocityRise <= apparent;
}

/// Times, the earliest wave and the cost; false when the waves are none of a ground.
bool WaveFitter::Rows::predict(const std::vector<Wave>& waves, FittedWaves& fit) const {
  const Eigen::Index n = time.size();
  Eigen::VectorXd least = Eigen::VectorXd::Constant(n, std::numeric_limits<double>::infinity());
  fit.wave.assign(static_cast<std::size_t>(n), 0);
  double above = 0.0;
  for (std::size_t k = 0; k < waves.size(); ++k) {
    const Eigen::VectorXd times = timesOf(waves[k]);
    const std::vector<double>& s = waves[k].slowness;
    const double mean = std::accumulate(s.begin(), s.end(), 0.0) / static_cast<double>(s.size());
    if (k > 0 && !(mean * kLeastVelocityRise <= above)) return false;
    above = mean;
    for (Eigen::Index i = 0; i < n; ++i) {
      if (times[i] < least[i]) {
        least[i] = times[i];
        fit.wave[static_cast<std::size_t>(i)] = k;
      }
    }
  }
  fit.times.assign(least.data(), least.data() + n);
  if (!breaksAt(waves, fit.wave)) return false;
  fit.cost = 0.0;
  for (Eigen::Index i = 0; i < n; ++i) fit.cost += robustCost((time[i] - least[i]) / sigma[i]);
  return std::isfinite(fit.cost);
}

WaveFitter::WaveFitter(const std::vector<WeighedPick>& picks, WaveDetail detail,
                       const Course& relief)
    : mPicks(picks) {
  double first = std::numeric_limits<double>::infinity();
  double last = -first;
  for (const WeighedPick& pick : picks) {
    first = std::min({first, pick.from, pick.to});
    last = std::max({last, pick.from, pick.to});
  }
  const auto n = static_cast<Eigen::Index>(picks.size());
  const AlongLine slownesses(first, last, detail.slownessKnots);
  const AlongLine top(first, last, detail.topKnots);
  const AlongLine delays(first, last, detail.delayKnots);
  mRows = std::make_unique<Rows>(
      Rows{top, slownesses, delays, detail.growth, relief, {}, {}, {}, {}, {}, {}});
  mRows->slowness.resize(n, static_cast<Eigen::Index>(slownesses.knots()));
  mRows->direct.resize(n, static_cast<Eigen::Index>(top.knots()));
  mRows->delay.resize(n, static_cast<Eigen::Index>(delays.knots()));
  mRows->relief.resize(n);
  mRows->time.resize(n);
  mRows->sigma.resize(n);
  for (Eigen::Index i = 0; i < n; ++i) {
    const WeighedPick& pick = picks[static_cast<std::size_t>(i)];
    const auto over = slownesses.sharesOver(pick.from, pick.to);
    const auto from = delays.sharesAt(pick.from);
    const auto to = delays.sharesAt(pick.to);
    for (std::size_t k = 0; k < over.size(); ++k) {
      mRows->slowness(i, static_cast<Eigen::Index>(k)) = over[k];
    }
    const auto near = top.sharesOver(pick.from, pick.to);
    const double bent = divingOffset(pick.offset(), detail.growth) / pick.offset();
    for (std::size_t k = 0; k < near.size(); ++k) {
      mRows->direct(i, static_cast<Eigen::Index>(k)) = near[k] * bent;
    }
    for (std::size_t k = 0; k < from.size(); ++k) {
      mRows->delay(i, static_cast<Eigen::Index>(k)) = from[k] + to[k];
    }
    mRows->relief[i] = relief.at(pick.from) + relief.at(pick.to);
    mRows->time[i] = pick.time;
    mRows->sigma[i] = pick.sigma;
  }
}

WaveFitter::~WaveFitter() = default;

std::optional<FittedWaves> WaveFitter::fit(std::vector<std::size_t> start,
                                           std::size_t waves) const {
  const auto n = static_cast<Eigen::Index>(mPicks.size());
  std::optional<FittedWaves> best;
  Eigen::VectorXd trust = Eigen::VectorXd::Ones(n);
  std::vector<std::size_t> assigned = std::move(start);
  for (int round = 0; round < kMostRounds; ++round) {
    FittedWaves now{
        {mRows->tops, mRows->slownesses, mRows->delays, mRows->surface, {}, mRows->growth, 0.0},
        {},
        {},
        0.0,
        0.0};
    if (mRows->growth > 0.0) now.unknowns = 1.0;
    double top = 0.0;
    for (std::size_t k = 0; k < waves; ++k) {
      const auto wave = mRows->fitOwn(assigned, k, trust, round == 0 ? kFirstRounds : 1, top);
      if (!wave) return best;
      now.unknowns += wave->unknowns;
      now.model.waves.push_back(*wave);
    }
    if (!mRows->predict(now.model.waves, now)) return best;
    now.model.growsTo = divingDepth(mRows->directOffset(now.wave).value_or(0.0), mRows->growth);
    std::vector<double> scaled(mPicks.size());
    for (std::size_t i = 0; i < scaled.size(); ++i) {
      scaled[i] = (mPicks[i].time - now.times[i]) / mPicks[i].sigma;
    }
    const double scale = std::max(kLeastScale, robustDeviation(scaled));
    for (Eigen::Index i = 0; i < n; ++i) {
      trust[i] = robustWeight(scaled[static_cast<std::size_t>(i)] / scale);
    }
    const bool settled = assigned == now.wave && best &&
                         std::fabs(best->cost - now.cost) < 1e-6 * (1.0 + best->cost);
    assigned = now.wave;
    if (!best || now.cost < best->cost) best = std::move(now);
    if (settled) break;
  }
  return best;
}

std::optional<WaveModel> WaveFitter::fitAssigned(const std::vector<std::size_t>& wave,
                                                 const WaveModel& about) const {
  WaveModel model{mRows->tops, mRows->slownesses, mRows->delays, mRows->surface,
                  {},          mRows->growth,     about.growsTo};
  const Eigen::VectorXd trust = Eigen::VectorXd::Ones(static_cast<Eigen::Index>(mPicks.size()));
  double top = 0.0;
  for (std::size_t k = 0; k < about.waves.size(); ++k) {
    auto own = mRows->fitOwn(wave, k, trust, kFirstRounds, top, 1.0 / about.velocity(k));
    if (!own) return std::nullopt;
    model.waves.push_back(std::move(*own));
  }
  return model;
}

namespace {

/// Every so many picks, so that a large survey is searched as fast as a small one.
std::vector<WeighedPick> enoughOf(const std::vector<WeighedPick>& picks) {
  const std::size_t step = 1 + picks.size() / kEnoughPicks;
  std::vector<WeighedPick> some;
  for (std::size_t i = 0; i < picks.size(); i += step) some.push_back(picks[i]);
  return some;
}

/// Offsets behind which a share of the picks lie: places to try for a cross-over.
std::vector<double> placesOfBreaks(const std::vector<WeighedPick>& picks) {
  std::vector<double> offsets;
  for (const WeighedPick& pick : picks) offsets.push_back(pick.offset());
  std::sort(offsets.begin(), offsets.end());
  std::vector<double> places;
  for (std::size_t i = 1; i <= kPlacesOfBreaks; ++i) {
    const double place = offsets[i * (offsets.size() - 1) / (kPlacesOfBreaks + 1)];
    if (places.empty() || place > places.back()) places.push_back(place);
  }
  return places;
}

std::vector<std::size_t> wavesByOffset(const std::vector<WeighedPick>& picks,
                                       const std::vector<double>& breaks) {
  std::vector<std::size_t> waves;
  waves.reserve(picks.size());
  for (const WeighedPick& pick : picks) {
    const auto at = std::lower_bound(breaks.begin(), breaks.end(), pick.offset());
    waves.push_back(static_cast<std::size_t>(at - breaks.begin()));
  }
  return waves;
}

}  // namespace

std::optional<FittedWaves> searchWaves(const std::vector<WeighedPick>& all, std::size_t waves,
                                       const Course& relief) {
  const std::vector<WeighedPick> picks = enoughOf(all);
  if (picks.size() < waves * kLeastPicksOfPiece) return std::nullopt;
  const WaveFitter fitter(picks, {}, relief);
  std::optional<FittedWaves> best;
  const auto attempt = [&](const std::vector<double>& breaks) {
    auto fit = fitter.fit(wavesByOffset(picks, breaks), waves);
    if (fit && (!best || fit->cost < best->cost)) best = std::move(fit);
  };
  const std::vector<double> places = placesOfBreaks(picks);
  if (waves == 1) attempt({});
  for (std::size_t i = 0; waves > 1 && i < places.size(); ++i) {
    if (waves == 2) attempt({places[i]});
    for (std::size_t j = i + 1; waves == 3 && j < places.size(); ++j) {
      attempt({places[i], places[j]});
    }
  }
  return best;
}

}  // namespace talvesk
