#include "tomo/TestFit.h"
#include "tomo/fitted/Ensemble.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fitLine;
using testing::FitLine;
using testing::FitLineSize;
using ::testing::HasSubstr;

/// Level ground of three layers, of which a first arrival shows two: a head wave along the second
/// is overtaken before it is the first.
struct HiddenLayer {
  double v1 = 400.0, v2 = 900.0, v3 = 2500.0;
  double depth1 = 3.0, depth2 = 5.0;

  double velocity(double z) const { return z < depth1 ? v1 : z < depth2 ? v2 : v3; }
  double head(double distance, double fastest) const {
    double time = distance / fastest;
    const auto leg = [&](double thickness, double v) {
      time += 2.0 * thickness * std::sqrt(1.0 / (v * v) - 1.0 / (fastest * fastest));
    };
    leg(depth1, v1);
    if (fastest > v2) leg(depth2 - depth1, v2);
    return time;
  }
  double time(double source, double receiver) const {
    const double distance = std::fabs(receiver - source);
    double time = distance / v1;
    // A head wave begins where its wave meets the layer at its critical angle.
    const double least2 = 2.0 * depth1 * v1 / std::sqrt(v2 * v2 - v1 * v1);
    if (distance >= least2) time = std::min(time, head(distance, v2));
    const double least3 = 2.0 * (depth1 * v1 / std::sqrt(v3 * v3 - v1 * v1) +
                                 (depth2 - depth1) * v2 / std::sqrt(v3 * v3 - v2 * v2));
    if (distance >= least3) time = std::min(time, head(distance, v3));
    return time;
  }
};

/// What two layers look like from the picks, whose hidden one is taken for the first.
std::vector<double> referenceOf(const FitLine& line, double depth) {
  std::vector<double> slownesses;
  for (std::size_t c = 0; c < line.geometry->cellCount(); ++c) {
    slownesses.push_back(1.0 / (line.depth(c) < depth ? 400.0 : 2500.0));
  }
  return slownesses;
}

class HeldFit : public ::testing::Test {
 protected:
  HiddenLayer ground;
  FitLine line = fitLine(FitLineSize{32, 2.0, 9, 12.0, 0.5, 0.0005},
                         [this](double a, double b) { return ground.time(a, b); });

  FittedOptions options() const {
    FittedOptions options;
    options.start = referenceOf(line, 4.0);
    return options;
  }
  std::shared_ptr<const KnownCells> cellsOf(const KnownGround& known) const {
    EXPECT_EQ(faultOf(known).english(), "");
    return std::make_shared<KnownCells>(knownCells(known, *line.geometry, 1.0));
  }
  FittedResult fit(const FittedOptions& options, unsigned threads = 2) const {
    const auto tracer = line.tracer(threads);
    return FittedInversion(line.geometry->size(), line.data, *tracer, options).run();
  }
  std::uint32_t cellAt(double x, double depth) const {
    const double side = line.geometry->aLato();
    return static_cast<std::uint32_t>(depth / side) * line.geometry->col() +
           static_cast<std::uint32_t>((x + 1.0) / side);
  }
  /// Of the velocity between two depths and two places, relative, on the average.
  double error(const FittedResult& result, double x0, double x1, double z0, double z1) const {
    double sum = 0.0;
    int count = 0;
    for (double x = x0; x < x1; x += 0.5) {
      for (double z = z0; z < z1; z += 0.5, ++count) {
        sum += std::fabs(
            std::log(result.slownesses[cellAt(x + 0.25, z + 0.25)] * ground.velocity(z + 0.25)));
      }
    }
    return sum / count;
  }
  KnownBorehole borehole(double x) const {
    return {"B1", x, 0.0, {{0, 3, 400, 20}, {3, 5, 900, 45}, {5, 9, 2500, 125}}};
  }
};

TEST_F(HeldFit, aBoreholeShowsTheLayerThatPicksHide) {
  const FittedResult free = fit(options());
  ASSERT_TRUE(free.status.ok());
  FittedOptions held = options();
  held.known = cellsOf({{borehole(31.0)}, {}, {}});
  EXPECT_TRUE(held.known->unused.empty());
  const FittedResult result = fit(held);
  ASSERT_TRUE(result.status.ok()) << result.status.message();
  EXPECT_NEAR(result.fit.chi2, 1.0, 0.2) << describe(result);
  // Beside the borehole, too, for ground is alike along a row.
  for (const double x : {26.0, 36.0}) {
    const double with = error(result, x - 2.0, x + 2.0, 3.0, 5.0);
    const double without = error(free, x - 2.0, x + 2.0, 3.0, 5.0);
    EXPECT_LT(with, 0.5 * without) << x;
    EXPECT_LT(with, 0.2) << x;
  }
  const KnownFit known = fitOf(*held.known, line.geometry->size(), result.slownesses);
  EXPECT_EQ(known.all.size(), 3U);
  EXPECT_TRUE(known.missed().empty());
  EXPECT_LT(known.rms(), 1.0);
  EXPECT_FALSE(fitOf(*held.known, line.geometry->size(), free.slownesses).missed().empty())
      << "or it is no knowledge";
}

TEST_F(HeldFit, aKnownDepthMovesTheRefractor) {
  FittedOptions held = options();
  KnownGround known;
  known.depths = {{"P1", 16.0, 5.0, 0.25, 1, 1500.0}, {"P2", 46.0, 5.0, 0.25, 1, 1500.0}};
  held.known = cellsOf(known);
  const KnownFit before = fitOf(*held.known, line.geometry->size(), held.start);
  ASSERT_EQ(before.all.size(), 2U);
  EXPECT_NEAR(before.all[0].inErrors, -1.0 / 0.25, 1.2) << "the start has it a metre too high";
  const FittedResult result = fit(held);
  const KnownFit after = fitOf(*held.known, line.geometry->size(), result.slownesses);
  EXPECT_TRUE(after.missed().empty()) << after.all[0].inErrors << ' ' << after.all[1].inErrors;
  EXPECT_NEAR(result.fit.chi2, 1.0, 0.2) << describe(result);
  EXPECT_EQ(fitOf(*held.known, line.geometry->size(), fit(options()).slownesses).missed().size(),
            2U)
      << "or it is no knowledge";
}

TEST_F(HeldFit, fixedCellsStayAsTheyAreBeyondTheLimits) {
  FittedOptions held = options();
  KnownGround known;
  known.bodies = {{"W", 330.0, {{30, 0}, {33, 0}, {33, 1}, {30, 1}}}};
  held.minVelocity = 350.0;
  held.known = cellsOf(known);
  ASSERT_EQ(held.known->fixed.size(), 12U);
  const FittedResult result = fit(held);
  ASSERT_GT(result.iterations, 0);
  int fixed = 0;
  for (std::size_t c = 0; c < result.slownesses.size(); ++c) {
    const bool isFixed = result.slownesses[c] == 1.0 / 330.0;
    fixed += isFixed ? 1 : 0;
    EXPECT_TRUE(isFixed || result.slownesses[c] <= 1.0 / 350.0);
  }
  EXPECT_EQ(fixed, 12);
  EXPECT_EQ(result.slownesses[cellAt(31.0, 0.3)], 1.0 / 330.0);
}

TEST_F(HeldFit, membersOfAnEnsembleHoldItToo) {
  EnsembleOptions ensemble;
  ensemble.fit = options();
  ensemble.fit.mostIterations = 4;
  KnownGround known = {{borehole(31.0)}, {}, {}};
  known.bodies = {{"W", 600.0, {{10, 0}, {12, 0}, {12, 1}, {10, 1}}}};
  ensemble.fit.known = cellsOf(known);
  Ensemble members(line.geometry, line.data, ensemble);
  ASSERT_TRUE(members.run(3, 2).ok());
  ASSERT_GT(members.counts().members(), 0);
  const Quantiles velocities = members.counts().velocities();
  EXPECT_NEAR(velocities.low[cellAt(11.0, 0.3)], 600.0, 1.0);
  EXPECT_NEAR(velocities.high[cellAt(11.0, 0.3)], 600.0, 1.0);
  EXPECT_NEAR(velocities.median[cellAt(31.0, 4.0)], 900.0, 100.0);
}

TEST_F(HeldFit, isTheSameWithAnyNumberOfThreadsAndAsWithoutWhereNothingIsKnown) {
  FittedOptions held = options();
  held.known = cellsOf({{borehole(31.0)}, {{"P1", 16.0, 5.0, 0.25, 0, 1500.0}}, {}});
  EXPECT_EQ(fit(held, 1).slownesses, fit(held, 3).slownesses);
  FittedOptions none = options();
  none.known = cellsOf({});
  EXPECT_EQ(fit(none).slownesses, fit(options()).slownesses);
}

TEST_F(HeldFit, saysWhatTheGridCannotHold) {
  KnownGround known;
  known.boreholes = {{"far", 500.0, 0.0, {{0, 1, 400}}},
                     {"deep", 10.0, 0.0, {{0, 3, 400}, {3, 40, 2500}}},
                     {"thin", 12.0, 0.0, {{0, 1.05, 400}, {1.05, 1.15, 900}, {1.15, 3, 500}}}};
  known.depths = {{"low", 20.0, 11.9, 0.0, 0, 1500.0}, {"high", 20.0, 0.2, 0.0, 0, 500.0}};
  known.bodies = {{"away", 2000.0, {{300, 0}, {310, 0}, {310, 5}}}};
  const auto cells = cellsOf(known);
  std::vector<std::string> unused;
  for (const Message& each : cells->unused) unused.push_back(each.english());
  EXPECT_THAT(unused,
              ::testing::UnorderedElementsAre(
                  HasSubstr("borehole far"), HasSubstr("borehole deep reaches 40 m"),
                  HasSubstr("borehole thin, 1.05 m to 1.15 m"), HasSubstr("known depth low"),
                  HasSubstr("known depth high"), HasSubstr("body away")));
  for (const KnownCells::Pull& pull : cells->pulls) {
    EXPECT_LT(pull.cell, line.geometry->cellCount());
    EXPECT_GT(pull.sigma, 0.0);
  }
  // The time straight down through the cell that three layers share is that of the layers.
  const std::uint32_t shared = cellAt(12.0, 1.1);
  for (const KnownCells::Pull& pull : cells->pulls) {
    if (pull.cell != shared) continue;
    EXPECT_NEAR(0.5 * std::exp(pull.logSlowness), 0.05 / 400 + 0.1 / 900 + 0.35 / 500, 1e-9);
  }
}

}  // namespace
}  // namespace talvesk
