#include "numerics/NormalNumbers.h"

#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

TEST(NormalNumbers, areTheSameOnEveryMachine) {
  NormalNumbers numbers(1, 0);
  for (const double expected : {-50576.0, 121264.0, 106976.0, 41108.0})
    EXPECT_EQ(numbers.next() * 131072.0, expected);
}

TEST(NormalNumbers, areNormalAndOfTheirOwnForEverySeedAndStream) {
  constexpr int kCount = 20000;
  double mean = 0.0, square = 0.0, together = 0.0, otherSeed = 0.0;
  int beyondTwo = 0;
  NormalNumbers one(5, 0), other(5, 1), third(6, 0);
  for (int i = 0; i < kCount; ++i) {
    const double value = one.next();
    mean += value / kCount;
    square += value * value / kCount;
    together += value * other.next() / kCount;
    otherSeed += value * third.next() / kCount;
    if (std::fabs(value) > 2.0) ++beyondTwo;
  }
  EXPECT_NEAR(mean, 0.0, 0.03);
  EXPECT_NEAR(square, 1.0, 0.03);
  EXPECT_NEAR(together, 0.0, 0.03);
  EXPECT_NEAR(otherSeed, 0.0, 0.03);
  EXPECT_NEAR(beyondTwo / static_cast<double>(kCount), 0.0455, 0.005);
}

}  // namespace
}  // namespace talvesk
