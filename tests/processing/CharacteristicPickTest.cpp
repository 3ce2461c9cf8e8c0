#include "Signals.h"
#include "processing/CharacteristicPick.h"

#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// The formula sample by sample, without any shortcut.
std::int32_t byTheFormula(const std::vector<double>& x, double mean, int window) {
  const auto n = static_cast<int>(x.size());
  double maximum = 0.0;
  std::int32_t index = -1;
  for (int i = window; i <= n - window - 1; ++i) {
    double before = 0.0;
    double after = 0.0;
    for (int j = i - window; j <= i; ++j) before += (x[j] - mean) * (x[j] - mean);
    for (int j = i; j <= i + window - 1; ++j) after += (x[j] - mean) * (x[j] - mean);
    const double value = std::fabs(x[i] - mean) * std::pow(after / before, 3.0);
    if (value > maximum) {
      maximum = value;
      index = i;
    }
  }
  return index;
}

TEST(CharacteristicPick, isTheFormulaAtEveryLengthAndStrength) {
  std::mt19937 random(3);
  std::normal_distribution<double> normal;
  const double scales[] = {1.0, 1e-160, 1e-60, 1e-20, 1e30, 1e100, 1e153};
  for (int n = 0; n < 150; ++n) {
    for (const double scale : scales) {
      std::vector<double> x;
      // Every third trace jumps between strengths, so that ratios reach both ends of the range.
      for (int i = 0; i < n; ++i) {
        const double jump = n % 3 == 0 ? std::pow(10.0, 4.0 * normal(random)) : 1.0;
        x.push_back(scale * jump * normal(random));
      }
      for (const int window : {1, 5, 20}) {
        ASSERT_EQ(characteristicPick(x, 0.1 * scale, window), byTheFormula(x, 0.1 * scale, window))
            << n << " samples of " << scale << ", window " << window;
      }
    }
  }
}

TEST(CharacteristicPick, needsMoreThanTwoWindows) {
  const std::vector<double> ones(60, 1.0);
  const auto pick = [&](std::ptrdiff_t n) {
    return characteristicPick({ones.data(), static_cast<std::size_t>(n)}, 0.0, kPickWindow);
  };
  for (const int n : {0, 1, 39, 40}) EXPECT_EQ(pick(n), -1) << n;
  for (const int n : {41, 42, 60}) EXPECT_EQ(pick(n), 20) << n;  // the first of equals
  EXPECT_EQ(characteristicPick(ones, 0.0, 0), -1);
  EXPECT_EQ(characteristicPick(ones, 0.0, -3), -1);
  EXPECT_EQ(characteristicPick(ones, 0.0, std::numeric_limits<int>::max()), -1);
}

TEST(CharacteristicPick, findsAnArrivalWhateverTheOffset) {
  for (const int at : {60, 61, 400, 1000, 1800}) {
    std::vector<double> x = testing::arrival(2000, static_cast<std::size_t>(at));
    double mean = 0.0;
    for (const double value : x) mean += value / 2000.0;
    const std::int32_t picked = characteristicPick(x, mean, kPickWindow);
    EXPECT_THAT(picked, testing::justBefore(at));
    for (double& value : x) value += 4096.0;
    EXPECT_EQ(characteristicPick(x, mean + 4096.0, kPickWindow), picked);
  }
}

TEST(CharacteristicPick, takesSilenceBeforeTheBreakAsInfinitelyBetter) {
  std::vector<double> x(200, 0.0);
  x[100] = 1e-3;
  x[130] = 1e6;
  EXPECT_EQ(characteristicPick(x, 0.0, kPickWindow), byTheFormula(x, 0.0, kPickWindow));
  EXPECT_EQ(characteristicPick(std::vector<double>(200, 7.0), 7.0, kPickWindow), -1);
}

TEST(CharacteristicPick, passesWhatIsNoNumberBy) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  std::vector<double> x = testing::arrival(2000, 1000);
  x[400] = nan;
  EXPECT_THAT(characteristicPick(x, 0.0, kPickWindow), testing::justBefore(1000));
  EXPECT_EQ(characteristicPick(x, nan, kPickWindow), -1);
  EXPECT_EQ(characteristicPick(std::vector<double>(99, nan), 0.0, kPickWindow), -1);
}

}  // namespace
}  // namespace talvesk
