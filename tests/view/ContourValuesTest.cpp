#include "view/ContourLines.h"
#include "view/SectionViewSettings.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto kVelocity = SectionQuantity::kVelocity;

TEST(ContourValues, divideTheRangeIntoOnePartMoreThanThereAreValues) {
  ContourSettings settings;
  settings.numberOfValues = 3;
  settings.customValues = {500.0};
  EXPECT_THAT(contourValues(settings, kVelocity, {1000.0, 3000.0}),
              ElementsAre(1500.0, 2000.0, 2500.0));
}

TEST(ContourValues, keepCustomOnesAtTheEndsAndDropThoseBeyond) {
  ContourSettings settings;
  settings.customized = true;
  settings.customValues = {900.0, 3000.0, std::nan(""), 1000.0, 999.9, 3000.1, 900.0, 1000.0};
  EXPECT_THAT(contourValues(settings, kVelocity, {1000.0, 3000.0}), ElementsAre(1000.0, 3000.0));
}

TEST(ContourValues, areBoundedAndNoneInARangeThatIsNoRange) {
  ContourSettings settings;
  settings.numberOfValues = std::numeric_limits<int>::max();
  EXPECT_EQ(contourValues(settings, kVelocity, {0.0, 1.0}).size(),
            SectionSceneOptions::kMaxContours);
  const double infinite = std::numeric_limits<double>::infinity();
  for (const bool customized : {false, true}) {
    settings.customized = customized;
    settings.customValues = {5.0};
    settings.numberOfValues = 4;
    EXPECT_THAT(contourValues(settings, kVelocity, {5.0, 5.0}), IsEmpty());
    EXPECT_THAT(contourValues(settings, kVelocity, {6.0, 5.0}), IsEmpty());
    EXPECT_THAT(contourValues(settings, kVelocity, {0.0, infinite}), IsEmpty());
    EXPECT_THAT(contourValues(settings, kVelocity, {std::nan(""), 5.0}), IsEmpty());
  }
}

TEST(ContourValues, areRoundWhereRoundOnesAreAskedFor) {
  EXPECT_THAT(roundValues({250.0, 2000.0}, 5), ElementsAre(500.0, 1000.0, 1500.0, 2000.0));
  EXPECT_THAT(roundValues({-0.25, 0.31}, 6), ElementsAre(-0.2, -0.1, 0.0, 0.1, 0.2, 0.3));
  EXPECT_THAT(roundValues({0.0, 10.0}, 5), ElementsAre(0.0, 2.0, 4.0, 6.0, 8.0));
  const double infinite = std::numeric_limits<double>::infinity();
  for (const ValueRange& none : {ValueRange{5.0, 5.0}, ValueRange{6.0, 5.0},
                                 ValueRange{0.0, infinite}, ValueRange{1e17, 1e17 + 100.0}}) {
    EXPECT_THAT(roundValues(none, 15), IsEmpty());
  }
}

TEST(ContourValues, areProposedForTheQuantityShownAndSpareAListOfOnesOwn) {
  const ContourSettings first = proposedContours({}, SectionQuantity::kLaplacian, {0.0, 100.0});
  EXPECT_TRUE(first.onLaplacian && first.customized && !first.onProfile);
  EXPECT_EQ(first.laplacianValues.size(), 11U);
  EXPECT_THAT(first.customValues, IsEmpty());
  ContourSettings own;
  own.customValues = {7.0};
  own = proposedContours(own, SectionQuantity::kVelocity, {0.0, 100.0});
  EXPECT_TRUE(own.onProfile && !own.customized);
  EXPECT_THAT(own.customValues, ElementsAre(7.0));
  ContourSettings equal;
  equal.onProfile = true;
  equal = proposedContours(equal, SectionQuantity::kVerticalGradient, {0.0, 100.0});
  EXPECT_TRUE(equal.onVerticalGradient && !equal.customized) << "the values are chosen already";
}

TEST(ContourValues, areProposedRoundWhereNoneOfTheListLiesInTheRange) {
  ContourSettings own;
  own.customized = own.onProfile = true;
  own.customValues = {7.0, 700.0};
  const auto proposed = [&own](const ValueRange& range) {
    return proposedContours(own, kVelocity, range).customValues;
  };
  EXPECT_THAT(proposed({5.0, 10.0}), ElementsAre(7.0, 700.0)) << "one does";
  EXPECT_THAT(proposed({800.0, 802.5}).size(), 13U);
  EXPECT_THAT(proposed({10.0, 10.0}), ElementsAre(7.0, 700.0)) << "there are no others";
  own.customized = false;
  EXPECT_THAT(proposed({800.0, 802.5}), ElementsAre(7.0, 700.0)) << "it is not in use";
}

}  // namespace
}  // namespace talvesk
