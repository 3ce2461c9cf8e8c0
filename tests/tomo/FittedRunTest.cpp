#include "TestInversion.h"
#include "model/ChiSquare.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/GridSetup.h"
#include "tomo/RayRecomputation.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/CertaintyRun.h"
#include "tomo/fitted/FittedRun.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::twoLayers;

struct Fitted {
  TomoDocument line = twoLayers(1.5);
  FittedRunResult result;
};

Fitted run(FittedSettings settings = {}, const std::function<bool()>& cancelled = {}) {
  const testing::ConsoleCapture console;
  Fitted fitted;
  Log log;
  fitted.result = runFittedInversion(fitted.line, settings, log, {}, cancelled);
  return fitted;
}

TEST(FittedRun, leavesADocumentWhoseFiguresAreThoseOfItsSection) {
  const Fitted fitted = run();
  ASSERT_TRUE(fitted.result.run.status.ok()) << fitted.result.run.status.message();
  const TomographyOutcome& outcome = *fitted.line.result;
  const SectionMisfit shown = sectionMisfitOf(fitted.line);
  EXPECT_GT(shown.count, 0);
  EXPECT_EQ(shown.rmse, fitted.result.run.sectionMisfit.rmse);
  EXPECT_EQ(shown.rmse, outcome.lastInversion->sectionHistory.back().rmse);
  EXPECT_EQ(outcome.RMSE_tomography, shown.relativeRms * 100.0);
  const ChiSquare chi2 = chiSquareOf(fitted.line, residualsOf(fitted.line), {});
  EXPECT_EQ(chi2.count, fitted.result.fit.count);
  EXPECT_DOUBLE_EQ(chi2.chi2, fitted.result.fit.chi2);
  EXPECT_DOUBLE_EQ(chi2.all, fitted.result.fit.all);
  ASSERT_TRUE(outcome.lastInversion->fit);
  EXPECT_EQ(outcome.lastInversion->fit->chi2, fitted.result.fit.chi2);
  EXPECT_EQ(outcome.rays->size(), 5U * 24U);
  EXPECT_FALSE(outcome.coverageLimit.empty());
  for (const TravelTime& record : fitted.line.ttArray) {
    for (const double time : record.ttCalcolati) EXPECT_NE(time, kNoTime);
  }
}

TEST(FittedRun, keepsItsTimesWhenRaysAreTracedAnew) {
  const Fitted fitted = run();
  TomoDocument again = fitted.line;
  const testing::ConsoleCapture console;
  Log log;
  ASSERT_TRUE(recomputeRays(again, log).ok());
  EXPECT_EQ(sectionMisfitOf(again).rmse, fitted.result.run.sectionMisfit.rmse);
  again.result.edit().lastInversion.reset();
  ASSERT_TRUE(recomputeRays(again, log).ok());
  EXPECT_NE(sectionMisfitOf(again).rmse, fitted.result.run.sectionMisfit.rmse)
      << "times along nodes are others";
}

TEST(FittedRun, leavesTheDocumentAsItWasWithoutAStep) {
  const TomoDocument before = twoLayers(1.5);
  const auto expectUntouched = [&](const Fitted& fitted) {
    EXPECT_EQ(fitted.result.run.iterationsDone, 0);
    EXPECT_FALSE(fitted.line.result->has_tomographic_info);
    EXPECT_FALSE(fitted.line.result->lastInversion);
    EXPECT_EQ(fitted.line.model->grid->slownesses(), before.model->grid->slownesses());
    for (std::size_t s = 0; s < before.ttArray.size(); ++s) {
      EXPECT_EQ(*fitted.line.ttArray[s].ttCalcolati, *before.ttArray[s].ttCalcolati);
    }
  };
  const Fitted stopped = run({}, [] { return true; });
  EXPECT_TRUE(stopped.result.run.status.ok());
  EXPECT_TRUE(stopped.result.run.stopped);
  expectUntouched(stopped);
  FittedSettings bad;
  bad.fit.minVelocity = 9000.0;
  const Fitted failed = run(bad);
  EXPECT_FALSE(failed.result.run.status.ok());
  expectUntouched(failed);
}

TEST(FittedRun, namesSuspectsAndShiftsByTheirRecords) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  line.ttArray.edit()[0].ttMisurati.edit().assign(24, kNoTime);  // takes no part
  line.ttArray.edit()[3].ttMisurati.edit()[5] += 0.04;
  FittedSettings settings;
  settings.fit.statics = true;
  Log log;
  const FittedRunResult result = runFittedInversion(line, settings, log);
  ASSERT_TRUE(result.run.status.ok()) << result.run.status.message();
  ASSERT_EQ(result.suspects.size(), 1U);
  EXPECT_EQ(result.suspects[0].record, 3U);
  EXPECT_EQ(result.suspects[0].receiver, 5U);
  EXPECT_NEAR(result.suspects[0].residual, -0.04, 0.005);
  ASSERT_EQ(result.statics.size(), 5U);
  EXPECT_TRUE(std::isnan(result.statics[0]));
  EXPECT_FALSE(std::isnan(result.statics[1]));
}

TEST(FittedRun, findsOutHowSureItIsInTheWayOfTheFit) {
  TomoDocument line = run().line;
  FitRecord& fit = *line.result.edit().lastInversion->fit;
  fit.statics = true;
  fit.triggerError = 0.007;
  const CertaintySettings settings = certaintySettings(line);
  EXPECT_TRUE(settings.ensemble.fit.statics);
  EXPECT_EQ(settings.ensemble.fit.triggerError, 0.007);
}

TEST(FittedRun, tellsWhichPicksAreSuspectByWhatLimit) {
  const std::vector<double> fitting = {0.5, -1.0, 0.8, -0.3, 1.2, 6.0};
  const ChiSquare good = chiSquareOf(fitting);
  EXPECT_EQ(good.limit, kSuspectErrors);
  EXPECT_EQ(good.suspects, (std::vector<std::size_t>{5}));
  EXPECT_EQ(good.beyond, 1U);
  const std::vector<double> notYet = {5.5, -6.0, 8.0, -3.0, 7.0, 60.0};
  const ChiSquare poor = chiSquareOf(notYet);
  EXPECT_GT(poor.limit, 8.0) << "3.5 robust deviations";
  EXPECT_EQ(poor.suspects, (std::vector<std::size_t>{5}));
  EXPECT_EQ(poor.beyond, 5U);
}

TEST(FittedRun, countsErrorsThatAreTakenAsLarger) {
  TomoDocument line = run().line;
  EXPECT_EQ(raisedErrors(line), 0U);
  line.ttArray.edit()[1].setError(3, 1e-7);
  line.ttArray.edit()[1].setError(4, 0.001);
  EXPECT_EQ(raisedErrors(line), 1U);
  EXPECT_EQ(secondLook(line).raised, 1U);
  EXPECT_EQ(sigmaOf(line.ttArray[1], 3, {}), kLeastPickError);
}

TEST(FittedRun, leavesSuspectsOutOfTheRmsBesideItsChiSquare) {
  TomoDocument line = run().line;
  line.ttArray.edit()[3].ttMisurati.edit()[5] += 0.05;
  const ChiSquare fit = sectionChiSquareOf(line);
  ASSERT_EQ(fit.suspects.size(), 1U);
  const SectionMisfit all = sectionMisfitOf(line);
  const SectionMisfit trusted = trustedMisfitOf(line);
  EXPECT_EQ(trusted.count, all.count - 1);
  EXPECT_LT(trusted.rmse, 0.5 * all.rmse);
  EXPECT_LT(trusted.maxAbs, 0.01);
}

TEST(FittedRun, knowsHowSureItIsUntilTheSectionChanges) {
  Fitted fitted = run();
  CertaintySettings settings = certaintySettings(fitted.line);
  EXPECT_EQ(settings.ensemble.fit.maxVelocity, FittedOptions().maxVelocity);
  settings.members = 3;
  const std::unique_ptr<Ensemble> ensemble = ensembleOf(fitted.line, settings);
  Certainty certainty;
  const Status status = runCertainty(*ensemble, fitted.line, settings, certainty);
  ASSERT_TRUE(status.ok()) << status.message();
  EXPECT_EQ(certainty.members + certainty.leftOut, 3);
  EXPECT_EQ(certainty.velocities.median.size(), fitted.line.model->grid->cellCount());
  fitted.line.result.edit().certainty = certainty;

  const std::uint64_t key = ensembleKey(fitted.line, settings);
  settings.members = 9;
  EXPECT_EQ(ensembleKey(fitted.line, settings), key) << "more members go on from the first";
  settings.ensemble.seed = 5;
  EXPECT_NE(ensembleKey(fitted.line, settings), key);

  const testing::ConsoleCapture console;
  Log log;
  TomoDocument smoothed = fitted.line;
  ASSERT_TRUE(smoothGrid(smoothed, kUsualSmoothing, 1, false, log).ok());
  EXPECT_FALSE(smoothed.result->certainty);
  TomoDocument again = fitted.line;
  ASSERT_TRUE(runFittedInversion(again, {}, log).run.status.ok());
  EXPECT_FALSE(again.result->certainty);
  TomographyParameters parameters;
  parameters.externalIterations = 1;
  ASSERT_TRUE(runInversion(fitted.line, parameters, log).status.ok());
  EXPECT_FALSE(fitted.line.result->certainty);
}

}  // namespace
}  // namespace talvesk
