#include "TestInversion.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/RayRecomputation.h"

#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fewIterations;
using testing::linesOf;
using testing::twoLayers;

TEST(RayRecomputation, bringsBackRaysAndTimesAndChangesNoModel) {
  TomoDocument line = twoLayers(1.0);
  Log log;
  {
    const testing::ConsoleCapture console;
    ASSERT_TRUE(runInversion(line, fewIterations(1, 1), log).status.ok());
  }
  TomoDocument loaded = twoLayers(1.0);
  loaded.model.edit().grid =
      std::make_unique<Grid>(line.model->grid->sharedGeometry(), line.model->grid->slownesses());
  loaded.result.edit().has_tomographic_info = true;
  loaded.result.edit().rays = {{7}};
  const testing::ConsoleCapture console;
  ASSERT_TRUE(recomputeRays(loaded, log).ok());
  EXPECT_EQ(loaded.model->grid->slownesses(), line.model->grid->slownesses());
  EXPECT_EQ(loaded.result->rays.size(), 5u * 24u);
  EXPECT_EQ(loaded.result->coorcount, std::vector<double>(line.model->grid->cellCount(), 0.0));
  EXPECT_EQ(loaded.result->hitCounts, std::vector<std::uint32_t>(line.model->grid->cellCount(), 0));
  EXPECT_EQ(linesOf(console.out()),
            (std::vector<std::string>{
                " --- Creating and running thread 0", " --- Creating and running thread 1",
                " --- Creating and running thread 2", " --- Creating and running thread 3",
                " --- Creating and running thread 4"}));

  // The times are those that the next iteration of the inversion begins with.
  std::vector<double> slownesses;
  const testing::ConsoleCapture quiet;
  ASSERT_TRUE(line.runTomography_fast(slownesses, 1, 1, 2, false, 3, log).ok());
  EXPECT_EQ(loaded.result->rays, line.result->rays);
  for (std::size_t s = 0; s < 5; ++s) {
    EXPECT_EQ(loaded.ttArray[s].ttCalcolati, line.ttArray[s].ttCalcolati);
  }
}

TEST(RayRecomputation, failsWithoutAGridOrAVelocity) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument line = twoLayers();
  line.model.edit().editGrid().setSlowness(2, std::numeric_limits<double>::infinity());
  EXPECT_FALSE(recomputeRays(line, log).ok());
  line.model.edit().grid.reset();
  EXPECT_FALSE(recomputeRays(line, log).ok());
}

}  // namespace
}  // namespace talvesk
