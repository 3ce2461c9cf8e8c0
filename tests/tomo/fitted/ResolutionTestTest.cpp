#include "../TestFit.h"
#include "tomo/fitted/ResolutionTest.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::FitLine;

FitLine line() {
  return testing::fitLine({}, testing::gradientTimes(400.0, 40.0));
}

ResolutionSettings board(double size, double strength = 0.15) {
  ResolutionSettings settings;
  settings.size = size;
  settings.strength = strength;
  return settings;
}

ResolutionResult test(const FitLine& line, const ResolutionSettings& settings,
                      unsigned threads = 2) {
  return testResolution(line.geometry->size(), line.data, *line.tracer(threads), line.start,
                        settings);
}

TEST(ResolutionPattern, changesWhereItsSizeSays) {
  const GridSize size{6, 8, 6, 1.0};
  const auto rowsOf = [&](ResolutionPattern pattern) {
    ResolutionSettings settings = board(2.0);
    settings.pattern = pattern;
    std::string rows;
    const std::vector<double> values = resolutionPattern(size, settings);
    for (std::size_t c = 0; c < values.size(); ++c) {
      rows += values[c] > 1.1 ? '+' : values[c] < 0.9 ? '-' : '.';
      if (c % size.col + 1 == size.col) rows += '\n';
    }
    return rows;
  };
  EXPECT_EQ(rowsOf(ResolutionPattern::kCheckerboard),
            "++--++--\n++--++--\n--++--++\n--++--++\n++--++--\n++--++--\n");
  EXPECT_EQ(rowsOf(ResolutionPattern::kSpikes),
            "........\n........\n..++....\n..++....\n........\n........\n");
  EXPECT_EQ(rowsOf(ResolutionPattern::kLayers),
            "++++++++\n++++++++\n--------\n--------\n++++++++\n++++++++\n");
}

TEST(ResolutionTest, bringsBackLargeSquaresNearTheSurfaceAndNoTinyOnes) {
  const FitLine survey = line();
  const ResolutionResult large = test(survey, board(6.0));
  ASSERT_TRUE(large.status.ok()) << large.status.message();
  ASSERT_EQ(large.byDepth.size(), 12U);
  EXPECT_GT(large.byDepth[1].correlation, 0.75);
  EXPECT_GT(large.byDepth[1].share, 0.4);
  EXPECT_LT(large.byDepth[1].share, 1.2);
  const ResolutionResult tiny = test(survey, board(1.0));
  ASSERT_TRUE(tiny.status.ok());
  EXPECT_LT(tiny.byDepth[3].correlation, 0.5);
  EXPECT_LT(tiny.byDepth[3].share, 0.3);

  const auto smallest = smallestResolved({tiny, large});
  EXPECT_EQ(smallest[1].size, 6.0);
  EXPECT_TRUE(std::isnan(smallest.back().size)) << "no ray goes down there";
}

TEST(ResolutionTest, seesLessThroughLargerErrors) {
  FitLine survey = line();
  const ResolutionResult sharp = test(survey, board(4.0));
  for (FitPick& pick : survey.data.picks) pick.sigma *= 8.0;
  const ResolutionResult blurred = test(survey, board(4.0));
  ASSERT_TRUE(sharp.status.ok() && blurred.status.ok());
  EXPECT_GT(sharp.byDepth[1].correlation, blurred.byDepth[1].correlation + 0.2);
}

TEST(ResolutionTest, isAFunctionOfItsArgumentsAlone) {
  FitLine survey = line();
  const ResolutionResult one = test(survey, board(4.0), 1);
  const ResolutionResult three = test(survey, board(4.0), 3);
  EXPECT_EQ(one.recovered, three.recovered);
  for (FitPick& pick : survey.data.picks) pick.time = 1.0;
  EXPECT_EQ(test(survey, board(4.0)).recovered, one.recovered)
      << "measured times count for nothing";
  ResolutionSettings other = board(4.0);
  other.seed = 2;
  EXPECT_NE(test(survey, other).recovered, one.recovered);
  other.noise = false;
  const ResolutionResult exact = test(survey, other);
  other.seed = 1;
  EXPECT_EQ(test(survey, other).recovered, exact.recovered);
}

TEST(ResolutionTest, stopsWhenAsked) {
  const FitLine survey = line();
  int asked = 0;
  const ResolutionResult result =
      testResolution(survey.geometry->size(), survey.data, *survey.tracer(), survey.start,
                     board(4.0), {}, [&] { return ++asked < 12; });
  EXPECT_TRUE(result.status.ok());
  EXPECT_TRUE(result.stopped);
  EXPECT_TRUE(result.byDepth.empty());
}

TEST(ResolutionTest, saysWhatItCannotTest) {
  const FitLine survey = line();
  const auto refusal = [&](const ResolutionSettings& settings) {
    const ResolutionResult result = test(survey, settings);
    EXPECT_FALSE(result.status.ok());
    return result.status.message();
  };
  EXPECT_NE(refusal(board(0.5)).find("less than a cell"), std::string::npos);
  EXPECT_NE(refusal(board(-1.0)).find("must be positive"), std::string::npos);
  EXPECT_NE(refusal(board(4.0, 1.0)).find("strength"), std::string::npos);
}

TEST(SmallestResolved, isNotHeldForASizeBelowOneThatIsNot) {
  const auto of = [](double size, double correlation) {
    ResolutionResult result;
    result.settings.size = size;
    result.byDepth = {{1.0, 9, correlation, correlation}};
    return result;
  };
  const double none = std::nan("");
  EXPECT_EQ(smallestResolved({of(2, 0.71), of(4, 0.8)})[0].size, 2.0);
  EXPECT_EQ(smallestResolved({of(4, 0.8), of(2, 0.69)})[0].size, 4.0);
  EXPECT_TRUE(std::isnan(smallestResolved({of(2, 0.9), of(4, 0.5)})[0].size));
  EXPECT_EQ(smallestResolved({of(2, 0.9), of(8, none)})[0].size, 2.0);
  EXPECT_TRUE(smallestResolved({}).empty());
}

TEST(SizesToTry, beginWithTheGeophonesAndFitTheGrid) {
  const FitLine survey = line();
  const auto sizes = sizesToTry(survey.geometry->size(), survey.data);
  ASSERT_GE(sizes.size(), 3U);
  EXPECT_EQ(sizes.front(), 2.0);
  EXPECT_LE(sizes.back(), 6.0);
  EXPECT_TRUE(std::is_sorted(sizes.begin(), sizes.end()));
}

}  // namespace
}  // namespace talvesk
