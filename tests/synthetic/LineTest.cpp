#include "synthetic/Line.h"

#include <cmath>
#include <vector>

#include <gmock/gmock.h>

namespace talvesk::synthetic {
namespace {

TEST(SyntheticLine, isTheSameForOneSeedAndHasTheErrorsItTells) {
  std::vector<Pick> exact(20000, Pick{0, 1, 0.1});
  Noise noise;
  noise.seed = 5;
  const std::vector<Pick> once = withErrors(exact, noise);
  const std::vector<Pick> again = withErrors(exact, noise);
  noise.gross = 0.05;
  const std::vector<Pick> gross = withErrors(exact, noise);
  double squares = 0.0;
  int off = 0;
  for (std::size_t i = 0; i < exact.size(); ++i) {
    ASSERT_EQ(once[i].time, again[i].time);
    squares += std::pow(once[i].time - 0.1, 2);
    if (std::fabs(gross[i].time - 0.1) > 0.015) ++off;
  }
  EXPECT_NEAR(std::sqrt(squares / 20000.0), 0.0005, 0.00001);
  EXPECT_NEAR(off, 1000, 100);
}

TEST(SyntheticLine, hasShotsBetweenGeophonesAndBesideThem) {
  const Spread spread = evenSpread(48, 2.0, 9);
  EXPECT_THAT(spread.shots, ::testing::ElementsAre(-1, 11, 23, 35, 47, 59, 71, 83, 95));
}

}  // namespace
}  // namespace talvesk::synthetic
