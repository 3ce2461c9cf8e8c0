#include "TestInversion.h"
#include "model/ChiSquare.h"
#include "model/KeptRun.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/fitted/References.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::twoLayers;

ReferencedRun fitFrom(const std::string& reference, TomoDocument& line) {
  const testing::ConsoleCapture console;
  FittedSettings settings;
  settings.reference = reference;
  Log log;
  return fitFromReference(line, settings, log);
}

TEST(References, putTheBestOfThePicksModelsFirst) {
  const References references = *referencesOf(twoLayers(), {}, {});
  ASSERT_GE(references.models.size(), 4U);
  EXPECT_EQ(find(references, kBestReference), &references.models.front());
  EXPECT_EQ(find(references, "two-layers")->kind, ReferenceKind::kTwoLayers);
  EXPECT_EQ(find(references, "start")->slownesses, twoLayers().model->grid->slownesses());
  EXPECT_EQ(find(references, "nothing"), nullptr);
  for (const ReferenceModel& model : references.models) EXPECT_TRUE(model.fit.known);
  EXPECT_LT(find(references, "best")->fit.chi2, find(references, "default")->fit.chi2);
}

TEST(References, fallBackToThePresentSectionWhereThePicksSupportNone) {
  References references = *referencesOf(twoLayers(), {}, {});
  references.models.erase(references.models.begin(), references.models.end() - 2);
  ASSERT_NE(find(references, kBestReference), nullptr);
  EXPECT_EQ(find(references, kBestReference)->kind, ReferenceKind::kPresent);
}

TEST(References, areNamedByTheFitThatTookThem) {
  TomoDocument line = twoLayers();
  const ReferencedRun run = fitFrom(kBestReference, line);
  ASSERT_TRUE(run.fit.run.status.ok()) << run.fit.run.status.message();
  EXPECT_EQ(run.fit.reference, keyOf(run.references.models.front().kind));
  EXPECT_EQ(line.result->lastInversion->fit->reference, run.fit.reference);
  TomoDocument other = twoLayers();
  EXPECT_EQ(fitFrom("default", other).fit.reference, "default");
  EXPECT_NE(other.model->grid->slownesses(), line.model->grid->slownesses());
}

TEST(References, thatThePicksDoNotSupportAreRefusedWithTheReason) {
  TomoDocument line = twoLayers();
  // One shot, in the middle of three geophones: nothing bends.
  for (std::size_t s = 0; s < line.ttArray.size(); ++s) {
    for (std::size_t i = 0; i < 24; ++i) {
      if (s != 2 || i < 10 || i > 13) line.ttArray.edit()[s].ttMisurati.edit()[i] = kNoTime;
    }
  }
  const std::vector<double> before = line.model->grid->slownesses();
  const ReferencedRun run = fitFrom("three-layers", line);
  EXPECT_FALSE(run.fit.run.status.ok());
  EXPECT_NE(run.fit.run.status.message().find("Three layers: "), std::string::npos)
      << run.fit.run.status.message();
  EXPECT_EQ(line.model->grid->slownesses(), before);
  EXPECT_FALSE(line.result->has_tomographic_info);
}

TEST(References, leaveTheDocumentAloneWhenTheyAreStopped) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  Log log;
  const ReferencedRun run = fitFromReference(line, {}, log, {}, [] { return true; });
  EXPECT_TRUE(run.fit.run.status.ok());
  EXPECT_TRUE(run.fit.run.stopped);
  EXPECT_EQ(run.fit.run.iterationsDone, 0);
  EXPECT_FALSE(line.result->has_tomographic_info);
}

TEST(References, areTriedOneAfterTheOtherUntilOneExplainsThePicks) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  FittedSettings settings;
  settings.reference = kBestReference;
  settings.errors = {1e-5, 0.0};  // which no section meets
  settings.fit.mostIterations = 2;
  Log log;
  std::vector<std::string> told;
  const ReferencedRun run = fitFromReference(
      line, settings, log,
      [&](const FittedRunProgress& state) { told.push_back(state.from.english()); });
  ASSERT_TRUE(run.fit.run.status.ok()) << run.fit.run.status.message();
  ASSERT_EQ(run.trials.size(), run.references.models.size() - 1) << "all but the present section";
  EXPECT_EQ(run.trials.front().reference, keyOf(run.references.models.front().kind));
  EXPECT_EQ(run.trials.back().reference, "default");
  EXPECT_TRUE(told.front().empty());
  EXPECT_EQ(told.back(), "Default model");
  for (const ReferenceTrial& trial : run.trials) {
    EXPECT_LE(distanceOf(run.fit.fit), distanceOf(trial.fit)) << trial.reference;
    EXPECT_NE(run.fit.outcome.english().find(trial.name.english()), std::string::npos);
  }
  EXPECT_EQ(line.result->lastInversion->fit->chi2, run.fit.fit.chi2);
  EXPECT_EQ(line.runs->size(), 1U) << "of which one is kept";

  settings.reference = "default";
  EXPECT_EQ(fitFromReference(line, settings, log).trials.size(), 1U) << "as the user wants it";
}

TEST(References, keepTheNearestSoFarWhenTheirTrialsAreStopped) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  FittedSettings settings;
  settings.reference = kBestReference;
  settings.errors = {1e-5, 0.0};
  settings.fit.mostIterations = 2;
  Log log;
  bool second = false;
  const ReferencedRun run = fitFromReference(
      line, settings, log, [&](const FittedRunProgress& state) { second = !state.from.empty(); },
      [&] { return second; });
  EXPECT_TRUE(run.fit.run.stopped);
  EXPECT_EQ(run.trials.size(), 2U);
  EXPECT_TRUE(line.result->has_tomographic_info);
}

TEST(SecondLook, proposesShiftsForAShotThatSeemsLate) {
  TomoDocument line = twoLayers();
  for (double& time : line.ttArray.edit()[2].ttMisurati.edit()) time += 0.005;
  const ReferencedRun run = fitFrom("default", line);
  ASSERT_TRUE(run.fit.run.status.ok()) << run.fit.run.status.message();
  ASSERT_EQ(run.fit.lateShots.size(), 1U) << run.fit.outcome;
  EXPECT_EQ(run.fit.lateShots.front().record, 2U);
  // With two partners alone the trigger error holds it back.
  EXPECT_GT(run.fit.lateShots.front().late, 0.0025);
  EXPECT_LT(run.fit.lateShots.front().late, 0.0055);
  EXPECT_NE(run.fit.outcome.english().find("Shot 3 seems late by"), std::string::npos);
  EXPECT_EQ(secondLook(line).seeming().size(), 1U);
  TomoDocument onTime = twoLayers();
  EXPECT_TRUE(fitFrom("default", onTime).fit.lateShots.empty());
}

TEST(SecondLook, namesCellsAtTheLimitsWithTheirPlace) {
  TomoDocument line = twoLayers();
  const ReferencedRun run = fitFrom("start", line);
  ASSERT_TRUE(run.fit.run.status.ok()) << run.fit.run.status.message();
  // One crossed cell at the greatest velocity, the rest well within the limits.
  const Grid& grid = *line.model->grid;
  const auto column = static_cast<std::uint32_t>(line.model->xOffset + 9.5);
  const std::uint32_t cell = grid.cellIndex(1, column);
  ASSERT_GT(line.result->hitCounts[cell], 0U);
  std::vector<double> slownesses(grid.cellCount(), 1.0 / 700.0);
  slownesses[cell] = 1.0 / line.result->lastInversion->maxVelocity;
  line.model.edit().grid = std::make_shared<const Grid>(grid.sharedGeometry(), slownesses);
  const SecondLook look = secondLook(line);
  ASSERT_TRUE(look.known);
  EXPECT_EQ(look.atLeast.cells, 0U);
  EXPECT_EQ(look.atGreatest.cells, 1U);
  EXPECT_DOUBLE_EQ(look.atGreatest.left, column - line.model->xOffset);
  EXPECT_DOUBLE_EQ(look.atGreatest.top, 1.0);
  EXPECT_DOUBLE_EQ(look.atGreatest.bottom, 2.0);
  line.result.edit().timesOfSection = false;
  EXPECT_FALSE(secondLook(line).known);
}

}  // namespace
}  // namespace talvesk
