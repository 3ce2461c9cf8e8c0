#include "view/SectionViewSettings.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ContourValues, divideTheRangeIntoOnePartMoreThanThereAreValues) {
  ContourSettings settings;
  settings.numberOfValues = 3;
  settings.customValues = {500.0};
  EXPECT_THAT(contourValues(settings, {1000.0, 3000.0}), ElementsAre(1500.0, 2000.0, 2500.0));
}

TEST(ContourValues, keepCustomOnesAtTheEndsAndDropThoseBeyond) {
  ContourSettings settings;
  settings.customized = true;
  settings.customValues = {900.0, 3000.0, std::nan(""), 1000.0, 999.9, 3000.1, 900.0, 1000.0};
  EXPECT_THAT(contourValues(settings, {1000.0, 3000.0}), ElementsAre(1000.0, 3000.0));
}

TEST(ContourValues, areBoundedAndNoneInARangeThatIsNoRange) {
  ContourSettings settings;
  settings.numberOfValues = std::numeric_limits<int>::max();
  EXPECT_EQ(contourValues(settings, {0.0, 1.0}).size(), SectionSceneOptions::kMaxContours);
  const double infinite = std::numeric_limits<double>::infinity();
  for (const bool customized : {false, true}) {
    settings.customized = customized;
    settings.customValues = {5.0};
    settings.numberOfValues = 4;
    EXPECT_THAT(contourValues(settings, {5.0, 5.0}), IsEmpty());
    EXPECT_THAT(contourValues(settings, {6.0, 5.0}), IsEmpty());
    EXPECT_THAT(contourValues(settings, {0.0, infinite}), IsEmpty());
    EXPECT_THAT(contourValues(settings, {std::nan(""), 5.0}), IsEmpty());
  }
}

}  // namespace
}  // namespace talvesk
