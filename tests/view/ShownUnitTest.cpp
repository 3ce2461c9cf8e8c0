#include "support/InFeet.h"
#include "view/AxisTicks.h"
#include "view/ContourLines.h"
#include "view/SectionScene.h"
#include "view/ShownUnit.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::Pointwise;

std::vector<double> shown(const AxisTicks& ticks) {
  std::vector<double> numbers;
  for (const double value : ticks.major) numbers.push_back(value * ticks.factor);
  return numbers;
}

TEST(ShownUnit, isTheFootOfWhateverHasALength) {
  const struct {
    std::string inside;
    std::string name;
    double ofOne;
  } facts[] = {{"m", "ft", 1.0 / 0.3048},
               {"m/s", "ft/s", 1.0 / 0.3048},
               {quantityUnit(SectionQuantity::kLaplacian), "1/(ft\xC2\xB7s)", 0.3048},
               {quantityUnit(SectionQuantity::kVerticalGradient), "1/s", 1.0},
               {"1/m", "1/ft", 0.3048},
               {"MPa", "MPa", 1.0},
               {"%", "%", 1.0},
               {"ms", "ms", 1.0},
               {"", "", 1.0}};
  for (const auto& fact : facts) {
    EXPECT_EQ(shownUnit(fact.inside).name, fact.inside);
    EXPECT_EQ(shownUnit(fact.inside).shown(0.1), 0.1);
    const testing::InFeet feet;
    EXPECT_EQ(shownUnit(fact.inside).name, fact.name);
    EXPECT_DOUBLE_EQ(shownUnit(fact.inside).shown(1.0), fact.ofOne);
  }
}

TEST(AxisTicks, areRoundInTheUnitShownAndLieWhereTheValuesAre) {
  EXPECT_THAT(shownTicks(0.0, 100.0, 5, "m").major, ElementsAre(0, 20, 40, 60, 80, 100));
  EXPECT_EQ(shownTicks(0.0, 100.0, 5, "m").minor, axisTicks(0.0, 100.0, 5).minor);
  const testing::InFeet feet;
  const AxisTicks ticks = shownTicks(0.0, 100.0, 5, "m");
  EXPECT_THAT(shown(ticks), Pointwise(DoubleNear(1e-9), {0.0, 100.0, 200.0, 300.0}));
  EXPECT_NEAR(ticks.major[1], 30.48, 1e-9);
  EXPECT_EQ(ticks.decimals, 0);
  EXPECT_THAT(shown(shownTicks(0.0, 100.0, 5, "ms")), ElementsAre(0, 20, 40, 60, 80, 100));
  // A tenth of a metre is a third of a foot: the places follow what is shown.
  EXPECT_EQ(shownTicks(0.0, 0.9, 10, "m").decimals, 1);
}

TEST(ContourValues, areRoundInTheUnitShown) {
  const ValueRange range{300.0, 3000.0};
  EXPECT_EQ(shownRoundValues(range, 15, "m/s"), roundValues(range, 15));
  const testing::InFeet feet;
  const std::vector<double> values = shownRoundValues(range, 15, "m/s");
  ASSERT_GT(values.size(), 4U);
  EXPECT_NEAR(values.front(), 304.8, 1e-9) << "1000 ft/s";
  EXPECT_NEAR((values[1] - values[0]) / 0.3048, 1000.0, 1e-6);
}

}  // namespace
}  // namespace talvesk
