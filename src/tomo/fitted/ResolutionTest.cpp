#include "tomo/fitted/ResolutionTest.h"

#include "numerics/Medians.h"
#include "tomo/fitted/MemberNoise.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace talvesk {
namespace {

constexpr double kLeastSquares = 2.0;  // of the pattern in covered ground that can be judged

/// 1, -1 or 0: faster, slower or as the background.
int signAt(ResolutionPattern pattern, double x, double depth, double size) {
  const auto across = static_cast<std::int64_t>(std::floor(x / size));
  const auto down = static_cast<std::int64_t>(std::floor(depth / size));
  switch (pattern) {
    case ResolutionPattern::kSpikes:
      return across % 3 == 1 && down % 3 == 1 ? 1 : 0;
    case ResolutionPattern::kLayers:
      return down % 2 == 0 ? 1 : -1;
    case ResolutionPattern::kCheckerboard:
      break;
  }
  return (across + down) % 2 == 0 ? 1 : -1;
}

Status check(const ResolutionSettings& settings, const GridSize& size,
             const std::vector<double>& background, const FitData& data) {
  if (!(settings.size > 0.0) || !std::isfinite(settings.size)) {
    return Status::failure(Message::tr("The size of the pattern must be positive; %1 is not.")
                               .arg(Message::length(settings.size)));
  }
  if (settings.size < size.aLato) {
    return Status::failure(
        Message::tr("The pattern has %1, less than a cell of the grid, which has %2; choose a "
                    "larger one.")
            .arg(Message::length(settings.size))
            .arg(Message::length(size.aLato)));
  }
  if (!(settings.strength > 0.0) || !(settings.strength < 1.0)) {
    return Status::failure(
        Message::tr("The strength of the pattern must be above 0 and below 100 %; %1 % is not.")
            .arg(settings.strength * 100.0));
  }
  if (data.picks.empty()) {
    return Status::failure(Message::tr("There are no picks to test the resolution with."));
  }
  const bool sound = background.size() == size.cellCount() &&
                     std::all_of(background.begin(), background.end(),
                                 [](double s) { return s > 0.0 && s < 1.0; });
  if (sound) return {};
  return Status::failure(
      Message::tr("The section to be disturbed has velocities that cannot be computed with."));
}

double middleOf(std::size_t row, const GridSize& size) {
  return (static_cast<double>(row) + 0.5) * size.aLato;
}

/// Sums of the products of what was put in and what came back.
struct Products {
  double tt = 0.0, tr = 0.0, rr = 0.0;
  std::size_t cells = 0;

  void add(const Products& other) {
    tt += other.tt;
    tr += other.tr;
    rr += other.rr;
    cells += other.cells;
  }
};

std::vector<Products> productsByRow(const GridSize& size, const ResolutionResult& result) {
  std::vector<Products> rows(size.righe);
  for (std::size_t c = 0; c < result.truth.size(); ++c) {
    if (!result.covered[c]) continue;
    const double t = std::log(result.truth[c]);
    const double r = std::log(result.recovered[c]);
    rows[c / size.col].add({t * t, t * r, r * r, 1});
  }
  return rows;
}

std::vector<DepthResolution> compare(const GridSize& size, const ResolutionResult& result) {
  const std::vector<Products> rows = productsByRow(size, result);
  const double least = kLeastSquares * std::pow(result.settings.size / size.aLato, 2);
  const auto reach = static_cast<std::size_t>(0.5 * result.settings.size / size.aLato);
  std::vector<DepthResolution> depths;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    Products sum;
    for (std::size_t i = row - std::min(row, reach); i < rows.size() && i <= row + reach; ++i) {
      sum.add(rows[i]);
    }
    const bool known = static_cast<double>(sum.cells) >= least && sum.tt > 0.0;
    const double none = std::nan("");
    const double scale = std::sqrt(sum.tt * sum.rr);
    depths.push_back({middleOf(row, size), sum.cells,
                      known ? (scale > 0.0 ? sum.tr / scale : 0.0) : none,
                      known ? sum.tr / sum.tt : none});
  }
  return depths;
}

/// The picks that a survey of the disturbed ground would have. \return false when it was stopped
bool measure(const ResolutionSettings& settings, const std::vector<double>& disturbed,
             RayTracer& tracer, const std::function<bool()>& goOn, FitData& data) {
  TracedRays traced;
  if (!tracer.trace(disturbed, traced, goOn)) return false;
  for (std::size_t i = 0; i < data.picks.size(); ++i) data.picks[i].time = traced.times[i];
  if (settings.noise) data = perturbedPicks(std::move(data), settings.seed, 0);
  return true;
}

void run(const GridSize& size, FitData data, RayTracer& tracer,
         const std::vector<double>& background, const std::function<void(int)>& progress,
         const std::function<bool()>& goOn, ResolutionResult& result) {
  result.truth = resolutionPattern(size, result.settings);
  std::vector<double> disturbed = background;
  for (std::size_t c = 0; c < disturbed.size(); ++c) disturbed[c] /= result.truth[c];
  result.stopped = !measure(result.settings, disturbed, tracer, goOn, data);
  if (result.stopped) return;

  FittedOptions options = result.settings.fit;
  options.start = background;
  options.reference = background;
  FittedInversion inversion(size, data, tracer, std::move(options));
  const FittedResult fit = inversion.run(
      [&](const FitProgress& state) {
        if (progress) progress(state.iteration);
      },
      goOn);
  result.status = fit.status;
  result.stopped = fit.status.ok() && fit.end == FitEnd::kStopped;
  if (!result.status.ok() || result.stopped) return;
  result.covered.assign(background.size(), false);
  for (const std::uint32_t cell : fit.traced.rays.cells) result.covered[cell] = true;
  for (std::size_t c = 0; c < background.size(); ++c) {
    result.recovered.push_back(background[c] / fit.slownesses[c]);
  }
  result.fit = fit.fit;
  result.end = fit.end;
  result.iterations = fit.iterations;
  result.byDepth = compare(size, result);
}

}  // namespace

std::vector<double> resolutionPattern(const GridSize& size, const ResolutionSettings& settings) {
  std::vector<double> pattern;
  pattern.reserve(static_cast<std::size_t>(size.cellCount()));
  for (std::size_t row = 0; row < size.righe; ++row) {
    for (std::size_t column = 0; column < size.col; ++column) {
      const int sign =
          signAt(settings.pattern, middleOf(column, size), middleOf(row, size), settings.size);
      pattern.push_back(1.0 + sign * settings.strength);
    }
  }
  return pattern;
}

ResolutionResult testResolution(const GridSize& size, const FitData& data, RayTracer& tracer,
                                const std::vector<double>& background,
                                const ResolutionSettings& settings,
                                const std::function<void(int iteration)>& progress,
                                const std::function<bool()>& goOn) {
  ResolutionResult result;
  result.settings = settings;
  result.status = check(settings, size, background, data);
  if (!result.status.ok()) return result;
  try {
    run(size, data, tracer, background, progress, goOn, result);
  } catch (const std::exception& error) {
    result.status =
        Status::failure(Message::tr("The resolution test failed: %1").arg(error.what()));
  }
  return result;
}

std::vector<ResolvedSize> smallestResolved(const std::vector<ResolutionResult>& tests) {
  std::vector<const ResolutionResult*> ordered;
  for (const ResolutionResult& test : tests) ordered.push_back(&test);
  std::sort(ordered.begin(), ordered.end(),
            [](const auto* a, const auto* b) { return a->settings.size > b->settings.size; });
  std::vector<ResolvedSize> depths;
  if (ordered.empty()) return depths;
  for (std::size_t row = 0; row < ordered.front()->byDepth.size(); ++row) {
    ResolvedSize resolved{ordered.front()->byDepth[row].depth, std::nan("")};
    for (const ResolutionResult* test : ordered) {
      const double correlation = test->byDepth[row].correlation;
      if (std::isnan(correlation)) continue;
      if (correlation < kResolved) break;
      resolved.size = test->settings.size;
    }
    depths.push_back(resolved);
  }
  return depths;
}

std::vector<double> sizesToTry(const GridSize& size, const FitData& data) {
  constexpr double kStep = 1.5;
  constexpr std::size_t kMost = 8;
  std::vector<double> places;
  for (const FitShot& shot : data.shots) {
    places.insert(places.end(), shot.receivers.begin(), shot.receivers.end());
  }
  std::sort(places.begin(), places.end());
  places.erase(std::unique(places.begin(), places.end()), places.end());
  const double most = std::min(size.righe * size.aLato / 2.0, size.col * size.aLato / 4.0);
  std::vector<double> sizes;
  for (double each = std::max(medianGap(places), size.aLato); each <= most && sizes.size() < kMost;
       each *= kStep) {
    // Whole cells, so that patterns are as large as they are called.
    const double whole = std::round(each / size.aLato) * size.aLato;
    if (sizes.empty() || whole > sizes.back()) sizes.push_back(whole);
  }
  return sizes;
}

}  // namespace talvesk
