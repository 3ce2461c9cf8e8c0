#include "synthetic/Line.h"
#include "synthetic/WaveField.h"
#include "tomo/TestFit.h"
#include "tomo/fitted/ReferenceModels.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <utility>

#include <gmock/gmock.h>

namespace talvesk::synthetic {
namespace {

using talvesk::testing::FitLine;
using talvesk::testing::FitLineSize;

/// The small sister of scripts/study: the whole way from picks to a section, on short lines.
struct Case {
  const char* name;
  Ground ground;
  double depth;  ///< of the grid, metres
  double most;   ///< median error of the velocity where rays pass
  double gross;  ///< share of gross errors
  ReferenceKind best;
};

FitLine lineOver(const Case& each) {
  FitLineSize size;
  size.depth = each.depth;
  size.cell = 0.5;
  const auto raster = std::make_shared<Raster>(
      rasterOf(each.ground, -2.0, 48.0, each.depth + 4.0, size.cell / 5.0));
  std::map<double, std::shared_ptr<WaveField>> fields;
  const auto time = [&](double source, double receiver) {
    std::shared_ptr<WaveField>& field = fields[source];
    if (!field) field = std::make_shared<WaveField>(each.ground, *raster, source);
    return field->at(receiver);
  };
  FitLine line = talvesk::testing::fitLine(size, time);
  std::vector<Pick> picks;
  for (const FitPick& pick : line.data.picks) picks.push_back({pick.record, 0, pick.time});
  picks = withErrors(std::move(picks), {0.0, each.gross, 7});
  for (std::size_t i = 0; i < picks.size(); ++i) line.data.picks[i].time = picks[i].time;
  return line;
}

FittedResult fitted(const FitLine& line, ReferenceKind best) {
  const auto tracer = line.tracer();
  ReferenceModels models = referenceModels(line.data, *line.geometry);
  if (models.models.empty() || !rankByStart(models.models, line.data, *tracer, {})) return {};
  EXPECT_EQ(models.models.front().kind, best);
  FittedOptions options = line.options();
  options.start = models.models.front().slownesses;
  options.reference = options.start;
  return FittedInversion(line.geometry->size(), line.data, *tracer, options).run();
}

/// Median of |v / true - 1| over cells with rays.
double velocityError(const Case& each, const FitLine& line, const FittedResult& result) {
  std::vector<bool> covered(result.slownesses.size(), false);
  for (const std::uint32_t cell : result.traced.rays.cells) covered[cell] = true;
  const double side = line.geometry->aLato();
  std::vector<double> errors;
  for (std::size_t cell = 0; cell < covered.size(); ++cell) {
    if (!covered[cell]) continue;
    const double x = (static_cast<double>(cell % line.geometry->col()) + 0.5) * side - 1.0;
    double slowness = 0.0;
    for (int i = 0; i < 10; ++i) {
      const double depth = line.depth(cell) + (i - 4.5) / 10.0 * side;
      slowness += 0.1 / each.ground.velocity(x, depth);
    }
    errors.push_back(std::fabs(slowness / result.slownesses[cell] - 1.0));
  }
  const auto middle = errors.begin() + static_cast<std::ptrdiff_t>(errors.size() / 2);
  std::nth_element(errors.begin(), middle, errors.end());
  return *middle;
}

TEST(Study, findsTheGroundOfShortLines) {
  const auto falling = [](double x) { return 2.5 + 0.05 * x; };
  const std::vector<Case> cases = {
      {"gradient", gradientGround(500.0, 50.0), 16.0, 0.02, 0.0, ReferenceKind::kGradient},
      {"dip", layeredGround({500.0, 2000.0}, {falling}), 12.0, 0.03, 0.0,
       ReferenceKind::kTwoLayers},
      {"waves below a gradient", wavyGround(400.0, 40.0, 3000.0, 9.0, 25.0, 0.5), 15.0, 0.05, 0.0,
       ReferenceKind::kOverburdenGradient},
      {"dip, gross errors", layeredGround({500.0, 2000.0}, {falling}), 12.0, 0.03, 0.05,
       ReferenceKind::kTwoLayers},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    const FitLine line = lineOver(each);
    const FittedResult result = fitted(line, each.best);
    ASSERT_TRUE(result.status.ok()) << result.status.message();
    ASSERT_FALSE(result.slownesses.empty());
    EXPECT_GT(result.fit.chi2, 0.8);
    EXPECT_LT(result.fit.chi2, 1.15);
    EXPECT_LE(result.iterations, 15);
    EXPECT_LT(velocityError(each, line, result), each.most);
    if (each.gross == 0.0) continue;
    EXPECT_GT(result.fit.suspects.size(), 4U);
    EXPECT_LT(result.fit.suspects.size(), 16U);
  }
}

}  // namespace
}  // namespace talvesk::synthetic
