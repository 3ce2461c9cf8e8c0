#include "TestInversion.h"
#include "model/ChiSquare.h"
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

TEST(SecondLook, namesCellsAtTheLimitsWithTheirPlace) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  FittedSettings settings;
  settings.reference = "best";
  settings.fit.maxVelocity = 1000.0;  // the half-space has 1800
  Log log;
  ASSERT_TRUE(fitFromReference(line, settings, log).fit.run.status.ok());
  const SecondLook look = secondLook(line);
  ASSERT_TRUE(look.known);
  EXPECT_EQ(look.greatest, 1000.0);
  EXPECT_GT(look.atGreatest.cells, 0U);
  EXPECT_GT(look.atGreatest.top, 1.0) << "below the layer, from 3 m on";
  EXPECT_GT(look.drawn, look.withoutRays.cells);
  line.result.edit().timesOfSection = false;
  EXPECT_FALSE(secondLook(line).known);
}

}  // namespace
}  // namespace talvesk
