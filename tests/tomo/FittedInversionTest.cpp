#include "tomo/TestFit.h"

#include <numeric>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fitLine;
using testing::FitLine;
using testing::FitLineSize;
using testing::gradientTimes;
using testing::medianVelocityError;
using testing::twoLayerTimes;

FittedResult fit(const FitLine& line, const FittedOptions& options, unsigned threads = 2) {
  const auto tracer = line.tracer(threads);
  return FittedInversion(line.geometry->size(), line.data, *tracer, options).run();
}

/// As a reference from the picks would have it.
std::vector<double> twoLayerModel(const FitLine& line, double v1, double v2, double depth) {
  std::vector<double> slownesses;
  for (std::size_t c = 0; c < line.geometry->cellCount(); ++c) {
    slownesses.push_back(1.0 / (line.depth(c) < depth ? v1 : v2));
  }
  return slownesses;
}

void spoilEveryTwentieth(FitLine& line) {
  for (std::size_t i = 0; i < line.data.picks.size(); i += 20) {
    line.data.picks[i].time += i % 40 == 0 ? 0.02 : 0.03;
  }
}

TEST(FittedInversion, findsSteadyGradientsWithinAPercent) {
  const FitLineSize usual{48, 2.0, 9, 24.0, 0.5, 0.0005};
  for (const auto& [v0, k] : {std::pair(400.0, 50.0), {800.0, 100.0}}) {
    SCOPED_TRACE(v0);
    const FitLine line = fitLine(usual, gradientTimes(v0, k));
    const FittedResult result = fit(line, line.options());
    ASSERT_TRUE(result.status.ok()) << result.status.message();
    EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
    EXPECT_NEAR(result.fit.chi2, 1.0, 0.05);
    EXPECT_LE(result.iterations, 15);
    const auto truth = [v0 = v0, k = k](double z) { return v0 + k * z; };
    EXPECT_LT(medianVelocityError(line, result, truth), 0.01);
  }
}

TEST(FittedInversion, keepsSharpGroundOfItsReference) {
  const double depth = 4.0;
  const FitLine line = fitLine({}, twoLayerTimes(500.0, 2000.0, depth));
  FittedOptions options = line.options();
  options.start = twoLayerModel(line, 520.0, 1900.0, depth);
  const FittedResult result = fit(line, options);
  EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
  const auto truth = [&](double z) { return z < depth ? 500.0 : 2000.0; };
  EXPECT_LT(medianVelocityError(line, result, truth), 0.03);
}

TEST(FittedInversion, explainsPicksOverADippingRefractor) {
  const FitLine line = fitLine({}, twoLayerTimes(500.0, 1800.0, 2.5, 0.08));
  const FittedResult result = fit(line, line.options());
  EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
  EXPECT_TRUE(result.fit.suspects.empty());
}

TEST(FittedInversion, hardlyHeedsGrossErrorsAndNamesThem) {
  const FitLine clean = fitLine({}, gradientTimes(400.0, 50.0));
  FitLine spoilt = clean;
  spoilEveryTwentieth(spoilt);
  const FittedResult result = fit(spoilt, spoilt.options());
  EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
  const auto truth = [](double z) { return 400.0 + 50.0 * z; };
  EXPECT_LT(medianVelocityError(spoilt, result, truth),
            medianVelocityError(clean, fit(clean, clean.options()), truth) + 0.01);
  ASSERT_FALSE(result.fit.suspects.empty());
  for (std::size_t i = 0; i < spoilt.data.picks.size(); i += 20) {
    EXPECT_TRUE(std::count(result.fit.suspects.begin(), result.fit.suspects.end(), i)) << i;
  }
  EXPECT_GT(result.fit.all, 50.0);

  FittedOptions plain = spoilt.options();
  plain.robust = false;
  EXPECT_GT(medianVelocityError(spoilt, fit(spoilt, plain), truth), 0.02) << "or the test is lame";
}

TEST(FittedInversion, findsTheShiftOfAShotThatIsLate) {
  FitLine line = fitLine({}, gradientTimes(400.0, 50.0));
  const FitShot& late = line.data.shots[2];
  for (std::size_t i = 0; i < late.receivers.size(); ++i) {
    line.data.picks[late.firstPick + i].time += 0.005;
  }
  FittedOptions options = line.options();
  options.statics = true;
  const FittedResult result = fit(line, options);
  EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
  ASSERT_EQ(result.statics.size(), line.data.shots.size());
  EXPECT_NEAR(std::accumulate(result.statics.begin(), result.statics.end(), 0.0), 0.0, 1e-9);
  const double mean = 0.005 / static_cast<double>(result.statics.size());
  for (std::size_t s = 0; s < result.statics.size(); ++s) {
    EXPECT_NEAR(result.statics[s], (s == 2 ? 0.005 : 0.0) - mean, 0.0004) << s;
  }
  EXPECT_TRUE(result.fit.suspects.empty());
  const FittedResult without = fit(line, line.options());
  EXPECT_FALSE(without.fit.suspects.empty()) << "it needs the shift";
}

/// Errors that are stated too large leave room for a shift that is found by half.
TEST(FittedInversion, findsALateShotAndThreeGrossPicksWhereErrorsAreLarge) {
  const double depth = 4.0;
  FitLine line = fitLine({}, twoLayerTimes(500.0, 2000.0, depth));
  for (FitPick& pick : line.data.picks) pick.sigma = 0.0008;
  const FitShot& late = line.data.shots[2];
  for (std::size_t i = 0; i < late.receivers.size(); ++i) {
    line.data.picks[late.firstPick + i].time += 0.005;
  }
  const std::vector<std::size_t> gross{5, late.firstPick + 12, line.data.picks.size() - 3};
  for (const std::size_t i : gross) line.data.picks[i].time += 0.025;
  FittedOptions options = line.options();
  options.start = twoLayerModel(line, 500.0, 2000.0, depth);
  options.statics = true;
  const FittedResult result = fit(line, options);
  EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
  EXPECT_EQ(result.fit.suspects, gross);
  const double mean = 0.005 / static_cast<double>(result.statics.size());
  for (std::size_t s = 0; s < result.statics.size(); ++s) {
    EXPECT_NEAR(result.statics[s], (s == 2 ? 0.005 : 0.0) - mean, 0.0005) << s;
  }
  options.statics = false;
  const std::vector<std::size_t> without = fit(line, options).fit.suspects;
  const auto ofLateShot = std::count_if(without.begin(), without.end(), [&](std::size_t i) {
    return i >= late.firstPick && i < late.firstPick + late.receivers.size();
  });
  EXPECT_GT(ofLateShot, 5) << "of 23";
}

TEST(FittedInversion, smoothsAStartThatFitsBetterThanTheErrorsDemand) {
  const double depth = 4.0;
  FitLine line = fitLine({}, twoLayerTimes(500.0, 2000.0, depth));
  for (FitPick& pick : line.data.picks) pick.sigma = 0.001;
  FittedOptions options = line.options();
  options.start = twoLayerModel(line, 500.0, 2000.0, depth);
  const FittedResult result = fit(line, options);
  ASSERT_LT(result.chi2History.front(), 0.5) << "or the test is lame";
  EXPECT_EQ(result.end, FitEnd::kTarget);
  EXPECT_NEAR(result.fit.chi2, 1.0, 0.05);
  EXPECT_GT(result.kept, 0);
  EXPECT_LE(result.iterations, 10);
  EXPECT_NE(describe(result).english().find("smoothed"), std::string::npos) << describe(result);
  const std::size_t columns = line.geometry->col();
  const auto steepest = [&](const std::vector<double>& slownesses) {
    double most = 0.0;
    for (std::size_t c = columns; c < slownesses.size(); ++c) {
      most = std::max(most, std::fabs(std::log(slownesses[c] / slownesses[c - columns])));
    }
    return most;
  };
  EXPECT_LT(steepest(result.slownesses), 0.8 * steepest(options.start));
}

TEST(FittedInversion, returnsAStartOnTargetAsItIs) {
  const double depth = 4.0;
  FitLine line = fitLine({}, twoLayerTimes(500.0, 2000.0, depth));
  FittedOptions options = line.options();
  options.start = twoLayerModel(line, 500.0, 2000.0, depth);
  const double chi2 = fit(line, options).chi2History.front();
  for (FitPick& pick : line.data.picks) pick.sigma *= std::sqrt(chi2);
  const FittedResult result = fit(line, options);
  EXPECT_EQ(result.end, FitEnd::kTarget);
  EXPECT_EQ(result.iterations, 0);
  for (std::size_t c = 0; c < options.start.size(); ++c) {
    EXPECT_DOUBLE_EQ(result.slownesses[c], options.start[c]);
  }
  EXPECT_NEAR(result.fit.chi2, 1.0, 1e-9);
  EXPECT_EQ(result.traced.times.size(), line.data.picks.size());
}

TEST(FittedInversion, saysHowManyPicksASectionLeavesOut) {
  for (const std::size_t gross : {1U, 3U}) {
    FitLine line = fitLine({}, gradientTimes(400.0, 50.0));
    for (std::size_t i = 0; i < gross; ++i) line.data.picks[20 + 45 * i].time += 0.025;
    const FittedResult result = fit(line, line.options());
    EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
    EXPECT_EQ(result.fit.suspects.size(), gross);
    const std::string number = gross == 1 ? "all but one of the " : "all but 3 of the ";
    EXPECT_NE(describe(result).english().find(number), std::string::npos) << describe(result);
  }
}

TEST(FittedInversion, neverFitsByLeavingOutMoreThanATenth) {
  FitLine line = fitLine({}, gradientTimes(400.0, 50.0));
  const FitShot& nonsense = line.data.shots[2];
  for (std::size_t i = 0; i < nonsense.receivers.size(); ++i) {
    line.data.picks[nonsense.firstPick + i].time = 0.01 + 0.037 * static_cast<double>(i % 5);
  }
  const FittedResult result = fit(line, line.options());
  EXPECT_TRUE(result.end == FitEnd::kNoGain || result.end == FitEnd::kIterations);
  EXPECT_EQ(describe(result).english().find("target not reached"), 0U) << describe(result);
}

TEST(FittedInversion, letsGoOfStepsInTheWrongPlaces) {
  const FitLine line = fitLine({}, twoLayerTimes(500.0, 2000.0, 3.0));
  FittedOptions options = line.options();
  options.start = twoLayerModel(line, 700.0, 1500.0, 8.0);
  const FittedResult result = fit(line, options);
  EXPECT_EQ(result.end, FitEnd::kTarget) << describe(result);
  EXPECT_LE(result.iterations, 15);
  EXPECT_TRUE(result.loosened);
  EXPECT_NE(result.reference, options.start);
  EXPECT_NE(describe(result).english().find("smoothed first"), std::string::npos);
  EXPECT_FALSE(fit(line, line.options()).loosened) << "it has no steps";
}

TEST(FittedInversion, isTheSameWithAnyNumberOfThreads) {
  const FitLine line = fitLine({}, twoLayerTimes(500.0, 1800.0, 2.5, 0.08));
  FittedOptions options = line.options();
  options.statics = true;
  options.blocky = true;
  const FittedResult one = fit(line, options, 1);
  const FittedResult three = fit(line, options, 3);
  EXPECT_GT(one.iterations, 1);
  EXPECT_EQ(one.slownesses, three.slownesses);
  EXPECT_EQ(one.chi2History, three.chi2History);
  EXPECT_EQ(one.statics, three.statics);
}

TEST(FittedInversion, holdsTheVelocityLimits) {
  const FitLine line = fitLine({}, gradientTimes(400.0, 80.0));
  FittedOptions options = line.options();
  options.minVelocity = 450.0;
  options.maxVelocity = 700.0;
  const FittedResult result = fit(line, options);
  ASSERT_TRUE(result.status.ok());
  const auto [least, most] =
      std::minmax_element(result.slownesses.begin(), result.slownesses.end());
  EXPECT_DOUBLE_EQ(*least, 1.0 / 700.0) << "picks ask for more";
  EXPECT_GE(*least, 1.0 / 700.0);
  EXPECT_DOUBLE_EQ(*most, 1.0 / 450.0);
  EXPECT_LE(*most, 1.0 / 450.0);
}

TEST(FittedInversion, saysWhenTheTargetIsOutOfReach) {
  FitLine line = fitLine({}, gradientTimes(400.0, 50.0));
  for (FitPick& pick : line.data.picks) pick.sigma = 0.00005;  // a tenth of the truth
  const FittedResult result = fit(line, line.options());
  EXPECT_TRUE(result.end == FitEnd::kNoGain || result.end == FitEnd::kIterations);
  EXPECT_GT(result.fit.chi2, 1.05);
  EXPECT_EQ(describe(result).english().find("target not reached"), 0U) << describe(result);

  for (FitPick& pick : line.data.picks) pick.sigma = 0.01;
  EXPECT_EQ(fit(line, line.options()).end, FitEnd::kFitsBetter);
}

TEST(FittedInversion, keepsTheBestSectionWhenItIsStopped) {
  const FitLine line = fitLine({}, twoLayerTimes(500.0, 1800.0, 2.5, 0.08));
  const auto tracer = line.tracer();
  FittedInversion inversion(line.geometry->size(), line.data, *tracer, line.options());
  int done = 0;
  const FittedResult result = inversion.run(
      [&](const FitProgress& state) { done = state.iteration; }, [&] { return done < 2; });
  EXPECT_EQ(result.end, FitEnd::kStopped);
  EXPECT_EQ(result.iterations, 2);
  EXPECT_EQ(result.chi2History.size(), 3U);
  EXPECT_EQ(result.fit.chi2, result.chi2History[static_cast<std::size_t>(result.kept)]);
  EXPECT_EQ(result.traced.times.size(), line.data.picks.size());
}

TEST(FittedInversion, refusesWhatCannotBeFitted) {
  const FitLine line = fitLine({}, gradientTimes(400.0, 50.0));
  const auto refused = [&](FitLine data, FittedOptions options) {
    const FittedResult result = fit(data, options);
    EXPECT_FALSE(result.status.message().empty());
    return !result.status.ok();
  };
  FittedOptions options = line.options();
  options.start.pop_back();
  EXPECT_TRUE(refused(line, options));
  options = line.options();
  options.reference.assign(options.start.size(), 0.0);
  EXPECT_TRUE(refused(line, options));
  options = line.options();
  options.minVelocity = options.maxVelocity;
  EXPECT_TRUE(refused(line, options));
  FitLine broken = line;
  broken.data.picks[3].sigma = 0.0;
  EXPECT_TRUE(refused(broken, line.options()));
  broken.data = {};
  EXPECT_TRUE(refused(broken, line.options()));
}

/// Steps are only as good as this: a time changes with ln slowness by length times slowness.
TEST(FittedInversion, raysAreTheDerivativesOfTheTimes) {
  const FitLine line = fitLine({12, 2.0, 3, 8.0, 1.0, 0.0005}, gradientTimes(400.0, 50.0));
  const auto tracer = line.tracer();
  const auto timesWith = [&](double h, TracedRays& traced) {
    std::vector<double> slownesses = line.start;
    for (std::size_t c = 0; c < slownesses.size(); ++c) {
      const double column = static_cast<double>(c % line.geometry->col());
      slownesses[c] *= std::exp(h * std::sin(0.4 * column + 0.3 * line.depth(c)));
    }
    EXPECT_TRUE(tracer->trace(slownesses, traced, {}));
    return slownesses;
  };
  const double h = 0.01;
  TracedRays middle;
  TracedRays slower;
  TracedRays faster;
  timesWith(0.0, middle);
  timesWith(h, slower);
  timesWith(-h, faster);
  for (std::size_t i = 0; i < line.data.picks.size(); ++i) {
    double expected = 0.0;
    for (std::size_t k = middle.rays.first[i]; k < middle.rays.first[i + 1]; ++k) {
      const std::uint32_t c = middle.rays.cells[k];
      const double column = static_cast<double>(c % line.geometry->col());
      expected +=
          middle.rays.lengths[k] * line.start[c] * std::sin(0.4 * column + 0.3 * line.depth(c));
    }
    const double difference = (slower.times[i] - faster.times[i]) / (2.0 * h);
    EXPECT_NEAR(difference, expected, 0.02 * middle.times[i]) << i;
  }
}

}  // namespace
}  // namespace talvesk
