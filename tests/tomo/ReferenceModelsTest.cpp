#include "TestRefraction.h"
#include "numerics/Medians.h"
#include "tomo/fitted/GridTracer.h"
#include "tomo/fitted/ReferenceModels.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using namespace testing;

constexpr PickQuality kClean;
constexpr PickQuality kField = {0.0005, 0.05};

const ReferenceModel* find(const ReferenceModels& made, ReferenceKind kind) {
  for (const ReferenceModel& model : made.models) {
    if (model.kind == kind) return &model;
  }
  return nullptr;
}

std::string refusals(const ReferenceModels& made) {
  std::string all;
  for (const Message& each : made.refused) all += each.english() + "\n";
  return all;
}

/// Median of |value / true - 1| along the line.
double medianError(const ReferenceModel& model, const std::vector<double>& values,
                   const std::function<double(double x)>& truth) {
  std::vector<double> errors;
  for (std::size_t i = 0; i < values.size(); ++i) {
    errors.push_back(std::fabs(values[i] / truth(model.positions[i]) - 1.0));
  }
  return medianOf(errors, 1.0);
}

TEST(GradientReference, hasTheVelocityWhereRaysTurn) {
  struct Case {
    double v0, k;
    PickQuality quality;
    double mean, most;  // relative errors
  };
  for (const Case& c : {Case{400, 40, kClean, 0.002, 0.01}, Case{800, 15, kClean, 0.002, 0.01},
                        Case{400, 40, kField, 0.015, 0.04}, Case{800, 15, kField, 0.01, 0.02}}) {
    SCOPED_TRACE(c.v0);
    const ReferenceModels made =
        referenceModels(pickLine(steadyGradient(c.v0, c.k), c.quality), *lineGrid());
    const ReferenceModel* model = find(made, ReferenceKind::kGradient);
    ASSERT_NE(model, nullptr) << refusals(made);
    const double reach = c.v0 / c.k * (std::sqrt(1 + std::pow(c.k * 94 / (2 * c.v0), 2)) - 1);
    double sum = 0.0, most = 0.0;
    int count = 0;
    for (std::size_t i = 0; i < model->profile.depths.size(); ++i) {
      const double depth = model->profile.depths[i];
      if (depth > reach) continue;
      const double error = std::fabs(model->profile.velocities[i] / (c.v0 + c.k * depth) - 1.0);
      sum += error;
      most = std::max(most, error);
      ++count;
    }
    EXPECT_GT(count, 20);
    EXPECT_LT(sum / count, c.mean);
    EXPECT_LT(most, c.most);
  }
}

TEST(LayeredReference, findsPlaneRefractorsBelowNoiseAndGrossErrors) {
  struct Case {
    double v1, v2, depth, dip;
  };
  for (const Case& c : {Case{500, 2000, 6, 0.0}, Case{400, 1500, 3, 0.0}, Case{500, 2000, 4, 0.087},
                        Case{600, 2500, 5, 0.052}, Case{700, 2500, 12, -0.07}}) {
    SCOPED_TRACE(c.depth);
    const FitData data = pickLine(planeRefractor(c.v1, c.v2, c.depth, c.dip), kField);
    const ReferenceModels made = referenceModels(data, *lineGrid());
    const ReferenceModel* model = find(made, ReferenceKind::kTwoLayers);
    ASSERT_NE(model, nullptr) << refusals(made);
    EXPECT_NEAR(medianOf(model->nearVelocities, 0.0), c.v1, 0.02 * c.v1);
    EXPECT_NEAR(model->refractors[0].velocity, c.v2, 0.02 * c.v2);
    const auto truth = [&c](double x) { return c.depth + std::tan(c.dip) * (x - 1.0); };
    EXPECT_LT(medianError(*model, model->refractors[0].depths, truth), 0.05);
  }
}

TEST(LayeredReference, stripsThreeLayers) {
  const FitData data = pickLine(threeLayers(400, 1200, 3500, 3, 8), kField);
  const ReferenceModels made = referenceModels(data, *lineGrid());
  const ReferenceModel* model = find(made, ReferenceKind::kThreeLayers);
  ASSERT_NE(model, nullptr) << refusals(made);
  EXPECT_NEAR(medianOf(model->nearVelocities, 0.0), 400, 8);
  EXPECT_NEAR(model->refractors[0].velocity, 1200, 36);
  EXPECT_NEAR(model->refractors[1].velocity, 3500, 140);  // 2 % is one deviation of such noise
  EXPECT_LT(medianError(*model, model->refractors[0].depths, [](double) { return 3.0; }), 0.05);
  EXPECT_LT(medianError(*model, model->refractors[1].depths, [](double) { return 11.0; }), 0.05);
}

TEST(LayeredReference, seesTheGradientAboveARefractor) {
  struct Case {
    double v0, k, v2, depth;
  };
  for (const Case& c : {Case{400, 40, 3000, 10}, Case{300, 60, 2500, 8}}) {
    SCOPED_TRACE(c.k);
    const FitData data = pickLine(gradientOverRefractor(c.v0, c.k, c.v2, c.depth), kField);
    const ReferenceModels made = referenceModels(data, *lineGrid());
    const ReferenceModel* model = find(made, ReferenceKind::kOverburdenGradient);
    ASSERT_NE(model, nullptr) << refusals(made);
    EXPECT_NEAR(model->nearVelocities[0], c.v0, 0.02 * c.v0);
    EXPECT_NEAR(model->gradient, c.k, 0.2 * c.k);
    EXPECT_NEAR(model->refractors[0].velocity, c.v2, 0.02 * c.v2);
    EXPECT_LT(medianError(*model, model->refractors[0].depths, [&](double) { return c.depth; }),
              0.05);
  }
}

/// Waves that go down to where they meet a refractor of changing depth, along it, and up again.
Arrivals unevenRefractor(double v1, double v2, const std::function<double(double x)>& depth) {
  return [=](double s, double r) {
    const double x = std::fabs(r - s);
    double head = x / v2;
    for (const double from : {s, r}) {
      const double way = from == std::min(s, r) ? 1.0 : -1.0;
      double least = 1e9;
      for (double along = 0.0; along < 0.5 * x; along += 0.05) {
        const double down = std::hypot(along, depth(from + way * along)) / v1;
        least = std::min(least, down - along / v2);
      }
      head += least;
    }
    return std::min(x / v1, head);
  };
}

TEST(LayeredReference, placesDelaysWhereWavesMeetTheRefractor) {
  struct Case {
    const char* what;
    std::function<double(double)> depth;
    double ninth;  // of ten depths are better than this
  };
  const Case cases[] = {{"step", [](double x) { return x < 48.0 ? 4.0 : 7.0; }, 0.1},
                        {"waves", [](double x) { return 8.0 + 2.0 * std::sin(x / 9.0); }, 0.05}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const FitData data = pickLine(unevenRefractor(600, 2000, c.depth), kField);
    const ReferenceModels made = referenceModels(data, *lineGrid());
    const ReferenceModel* model = find(made, ReferenceKind::kTwoLayers);
    ASSERT_NE(model, nullptr) << refusals(made);
    const ReferenceRefractor& refractor = model->refractors[0];
    EXPECT_NEAR(refractor.velocity, 2000, 40);
    EXPECT_LT(medianError(*model, refractor.depths, c.depth), 0.03);
    std::vector<double> errors;
    for (std::size_t i = 0; i < model->positions.size(); ++i) {
      errors.push_back(std::fabs(refractor.depths[i] / c.depth(model->positions[i]) - 1.0));
    }
    std::sort(errors.begin(), errors.end());
    EXPECT_LT(errors[errors.size() * 9 / 10], c.ninth);
  }
}

// Rays through the cells must take the time that the model's own method says.
TEST(ReferenceModels, areAsGoodByRaysAsByTheirOwnMethod) {
  struct Case {
    const char* what;
    Arrivals arrivals;
    ReferenceKind best;
  };
  const Case cases[] = {
      {"gradient", steadyGradient(400, 40), ReferenceKind::kGradient},
      {"refractor", planeRefractor(500, 2000, 6.2, 0.0), ReferenceKind::kTwoLayers},
      {"dip", planeRefractor(600, 2500, 5, 0.052), ReferenceKind::kTwoLayers},
      {"layers", threeLayers(400, 1200, 3500, 3, 8), ReferenceKind::kThreeLayers},
      {"overburden", gradientOverRefractor(300, 60, 2500, 8), ReferenceKind::kOverburdenGradient}};
  const auto grid = lineGrid();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const FitData data = pickLine(c.arrivals, {0.0005, 0.0});
    ReferenceModels made = referenceModels(data, *grid);
    ReferenceModel steady;
    steady.name = "steady ground";
    steady.slownesses.assign(grid->cellCount(), 1.0 / 900);
    made.models.insert(made.models.begin(), steady);
    GridTracer tracer(grid, data, 1);
    ASSERT_TRUE(rankByStart(made.models, data, tracer, {}));
    EXPECT_EQ(made.models.front().kind, c.best);
    EXPECT_LT(made.models.front().fit.chi2, 1.5);
    EXPECT_EQ(made.models.back().name.english(), "steady ground");
  }
}

TEST(ReferenceModels, keepTheirOrderBesideGrossErrors) {
  const auto grid = lineGrid();
  FitData data = pickLine(planeRefractor(500, 2000, 6, 0.0));
  for (const std::size_t i : {40U, 200U, 333U}) data.picks[i].time += 0.2;
  ReferenceModels made = referenceModels(data, *grid);
  GridTracer tracer(grid, data, 1);
  ASSERT_TRUE(rankByStart(made.models, data, tracer, {}));
  EXPECT_EQ(made.models.front().kind, ReferenceKind::kTwoLayers);
  EXPECT_GT(made.models.front().fit.chi2, 1000.0);
  EXPECT_LT(made.models.front().fit.huber, 10.0);
}

TEST(ReferenceModels, comeFirstByFewerUnknownsWhereTheyFitAlike) {
  const auto grid = lineGrid();
  const FitData data = pickLine(planeRefractor(500, 2000, 6, 0.0));
  GridTracer tracer(grid, data, 1);
  ReferenceModel plain = referenceModels(data, *grid).models.at(1);
  ASSERT_GT(plain.decided, 2.0);
  ReferenceModel rich = plain;
  rich.decided += 20.0;
  std::vector<ReferenceModel> models = {rich, plain};
  ASSERT_TRUE(rankByStart(models, data, tracer, {}));
  EXPECT_EQ(models.front().decided, plain.decided);
  EXPECT_EQ(models.front().fit.huber, models.back().fit.huber);
}

TEST(ReferenceModels, stayAsTheyAreWhenRankingIsStopped) {
  const auto grid = lineGrid();
  const FitData data = pickLine(planeRefractor(500, 2000, 6, 0.0));
  ReferenceModels made = referenceModels(data, *grid);
  const ReferenceKind first = made.models.front().kind;
  GridTracer tracer(grid, data, 1);
  int asked = 0;
  EXPECT_FALSE(rankByStart(made.models, data, tracer, [&asked] { return ++asked < 12; }));
  EXPECT_EQ(made.models.front().kind, first);
  for (const ReferenceModel& model : made.models) EXPECT_FALSE(model.fit.known);
}

TEST(ReferenceModels, hangBelowTheSurface) {
  const std::vector<double> x = {0.0, 30.0, 60.0, 200.0};
  const auto grid = lineGrid(x, {10.0, 10.0, 16.0, 16.0});
  const ReferenceModels made = referenceModels(pickLine(planeRefractor(500, 2000, 6, 0.0)), *grid);
  const ReferenceModel* model = find(made, ReferenceKind::kTwoLayers);
  ASSERT_NE(model, nullptr) << refusals(made);
  for (const std::uint32_t column : {10U, 180U}) {
    const double surface = column == 10 ? 10.0 : 16.0;
    for (std::uint32_t row = 0; row < grid->righe(); ++row) {
      const std::uint32_t cell = row * grid->col() + column;
      const double depth = grid->cellCentre(cell).z + surface;
      if (std::fabs(depth - 6.0) < 0.5) continue;
      const double velocity = depth < 6.0 ? 500.0 : 2000.0;
      EXPECT_NEAR(1.0 / model->slownesses[cell], velocity, 0.04 * velocity) << depth;
    }
  }
}

/// A line of one shot for every row of times.
FitData table(const std::vector<double>& sources, const std::vector<double>& receivers,
              const std::function<double(double offset)>& time) {
  FitData data;
  for (const double source : sources) {
    FitShot shot{static_cast<std::uint32_t>(data.shots.size()), source, receivers,
                 data.picks.size()};
    for (std::uint32_t i = 0; i < receivers.size(); ++i) {
      data.picks.push_back({shot.record, i, time(std::fabs(receivers[i] - source)), 0.0005});
    }
    data.shots.push_back(shot);
  }
  return data;
}

void expectSound(const ReferenceModels& made, const GridGeometry& grid, std::size_t picks) {
  EXPECT_EQ(made.models.size() + made.refused.size(), 4U);
  for (const ReferenceModel& model : made.models) {
    SCOPED_TRACE(model.name.english());
    ASSERT_EQ(model.slownesses.size(), grid.cellCount());
    ASSERT_EQ(model.times.size(), picks);
    std::vector<double> numbers = model.times;
    for (const auto* more : {&model.slownesses, &model.nearVelocities, &model.curve.times,
                             &model.profile.depths, &model.profile.velocities}) {
      numbers.insert(numbers.end(), more->begin(), more->end());
    }
    for (const ReferenceRefractor& refractor : model.refractors) {
      numbers.insert(numbers.end(), refractor.depths.begin(), refractor.depths.end());
      numbers.insert(numbers.end(), {refractor.velocity, refractor.crossOver});
    }
    for (const double number : numbers) ASSERT_TRUE(std::isfinite(number) && number >= 0.0);
    for (const double slowness : model.slownesses) {
      ASSERT_GE(slowness, 1.0 / 8000.0);
      ASSERT_LE(slowness, 1.0 / 50.0);
    }
  }
}

TEST(ReferenceModels, areSoundWhateverThePicksAre) {
  std::vector<double> line;
  for (int i = 0; i < 24; ++i) line.push_back(1.0 + 4.0 * i);
  std::mt19937 random(3);
  const auto two = [](double x) { return std::min(x / 400, x / 2000 + 0.012); };
  const auto any = [&random](double) { return 1e-3 * static_cast<double>(random() % 200); };
  struct Case {
    const char* what;
    FitData data;
  };
  const Case cases[] = {
      {"no picks", {}},
      {"one pick", table({1}, {5}, two)},
      {"two geophones", table({1, 30, 90}, {20, 40}, two)},
      {"one shot", table({1}, line, two)},
      {"one shot in the middle", table({47}, line, two)},
      {"shots far off", table({1}, {80, 84, 88, 92, 96}, two)},
      {"one place", table({5, 5, 5}, {5, 5}, two)},
      {"times all equal", table({1, 45, 93}, line, [](double) { return 0.03; })},
      {"times that fall", table({1, 45, 93}, line, [](double x) { return 0.2 - 0.001 * x; })},
      {"times of zero", table({1, 45, 93}, line, [](double) { return 0.0; })},
      {"no rhyme", table({1, 20, 45, 70, 93}, line, any)},
      {"too slow", table({1, 45, 93}, line, [](double x) { return x / 20; })},
      {"too fast", table({1, 45, 93}, line, [](double x) { return x / 20000; })},
      {"slower with offset", table({1, 45, 93}, line, [](double x) { return x * x * 1e-5; })},
      {"off the scale", table({1, 45, 93}, line, [](double x) { return 1e300 * x; })},
      {"a thousand years",
       table({1, 45, 93}, line, [&](double x) { return x > 90 ? 3e10 : two(x); })},
      {"no number",
       table({1, 45, 93}, line, [](double) { return std::numeric_limits<double>::quiet_NaN(); })}};
  const auto grid = lineGrid();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    expectSound(referenceModels(c.data, *grid), *grid, c.data.picks.size());
  }
}

TEST(ReferenceModels, sayWhyTheyAreRefused) {
  std::vector<double> line;
  for (int i = 0; i < 24; ++i) line.push_back(1.0 + 4.0 * i);
  const ReferenceModels made =
      referenceModels(table({1, 45, 93}, line, [](double x) { return x / 600; }), *lineGrid());
  ASSERT_EQ(made.models.size(), 1U);
  EXPECT_EQ(made.models[0].kind, ReferenceKind::kGradient);
  EXPECT_EQ(made.refused.front().english(),
            "Two layers: the times over offset show no cross-over to a faster branch");
}

TEST(ReferenceModels, areTheSameFromManyThreads) {
  const auto grid = lineGrid();
  const FitData data = pickLine(threeLayers(400, 1200, 3500, 3, 8), kField);
  const ReferenceModels once = referenceModels(data, *grid);
  std::vector<ReferenceModels> made(3);
  std::vector<std::thread> threads;
  for (ReferenceModels& each : made) {
    threads.emplace_back([&each, &data, &grid] { each = referenceModels(data, *grid); });
  }
  for (std::thread& thread : threads) thread.join();
  for (const ReferenceModels& each : made) {
    ASSERT_EQ(each.models.size(), once.models.size());
    for (std::size_t i = 0; i < once.models.size(); ++i) {
      EXPECT_EQ(each.models[i].slownesses, once.models[i].slownesses);
    }
  }
}

}  // namespace
}  // namespace talvesk
