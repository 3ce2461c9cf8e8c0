#include "base/TextNumber.h"
#include "support/CommaLocale.h"

#include <chrono>
#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using namespace std::string_view_literals;

constexpr double kUntouched = 4711.0;

struct DoubleCase {
  std::string_view text;
  NumberError error;
  double value = kUntouched;
};

class ParseDouble : public ::testing::TestWithParam<DoubleCase> {};

TEST_P(ParseDouble, convertsAPrefixAndLeavesTheValueAloneOnFailure) {
  double value = kUntouched;
  EXPECT_EQ(parseDouble(GetParam().text, value), GetParam().error);
  EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseDouble,
    ::testing::Values(
        DoubleCase{"12.5", NumberError::kNone, 12.5},
        DoubleCase{" \t\n-3e2 m", NumberError::kNone, -300.0},
        DoubleCase{"+.5", NumberError::kNone, 0.5}, DoubleCase{"12 m", NumberError::kNone, 12.0},
        DoubleCase{"3,5", NumberError::kNone, 3.0}, DoubleCase{"1e", NumberError::kNone, 1.0},
        DoubleCase{"1.2.3", NumberError::kNone, 1.2}, DoubleCase{"0x10", NumberError::kNone, 16.0},
        DoubleCase{"7\0008"sv, NumberError::kNone, 7.0},
        DoubleCase{"-inf", NumberError::kNone, -std::numeric_limits<double>::infinity()},
        DoubleCase{"0.1", NumberError::kNone, 0.1}, DoubleCase{"", NumberError::kNotANumber},
        DoubleCase{"   ", NumberError::kNotANumber}, DoubleCase{"m 12", NumberError::kNotANumber},
        DoubleCase{"\0001"sv, NumberError::kNotANumber},
        DoubleCase{"+-1", NumberError::kNotANumber}, DoubleCase{",5", NumberError::kNotANumber},
        DoubleCase{"1e400", NumberError::kOutOfRange},
        DoubleCase{"-1e400", NumberError::kOutOfRange},
        DoubleCase{"1e-400", NumberError::kOutOfRange}));

TEST(TextNumber, takesWholeNumbersOnlyWhenNothingFollows) {
  for (const DoubleCase& expected :
       {DoubleCase{"12.5", NumberError::kNone, 12.5}, DoubleCase{" -3e2", NumberError::kNone, -300},
        DoubleCase{"12 ", NumberError::kNotANumber}, DoubleCase{"12m", NumberError::kNotANumber},
        DoubleCase{"1.2.3", NumberError::kNotANumber}, DoubleCase{"1,5", NumberError::kNotANumber},
        DoubleCase{"", NumberError::kNotANumber}, DoubleCase{"1e400", NumberError::kOutOfRange},
        DoubleCase{"7\0"sv, NumberError::kNotANumber}}) {
    double value = kUntouched;
    EXPECT_EQ(parseWholeDouble(expected.text, value), expected.error) << expected.text;
    EXPECT_EQ(value, expected.value) << expected.text;
  }
}

TEST(TextNumber, readsNumbersLongerThanAnyBuffer) {
  double value = 0.0;
  EXPECT_EQ(parseDouble(std::string(5000, '0') + "25.0" + std::string(5000, '0'), value),
            NumberError::kNone);
  EXPECT_EQ(value, 25.0);
  EXPECT_EQ(parseDouble(std::string(5000, '9'), value), NumberError::kOutOfRange);
}

TEST(TextNumber, recognisesNotANumber) {
  double value = 0.0;
  EXPECT_EQ(parseDouble("nan", value), NumberError::kNone);
  EXPECT_TRUE(std::isnan(value));
}

TEST(TextNumber, readsAHeadWithoutCopyingTheRestOfTheFile) {
  const std::string file = "1.5 " + std::string(std::size_t{1} << 26, 'x');
  const auto start = std::chrono::steady_clock::now();
  double sum = 0.0;
  for (int i = 0; i < 20000; ++i) {
    double value = 0.0;
    ASSERT_EQ(parseDouble(file, value), NumberError::kNone);
    sum += value;
  }
  EXPECT_EQ(sum, 30000.0);
  // Copying 64 MiB each time would take minutes.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(TextNumber, convertsIntegersAndReportsTheirRange) {
  int value = -1;
  EXPECT_EQ(parseInt(" +42;", value), NumberError::kNone);
  EXPECT_EQ(value, 42);
  EXPECT_EQ(parseInt("-2147483648", value), NumberError::kNone);
  EXPECT_EQ(value, std::numeric_limits<int>::min());
  EXPECT_EQ(parseInt("7.9", value), NumberError::kNone);
  EXPECT_EQ(value, 7);
  for (const char* text : {"", "+", "-", "+-3", "x", ".5"}) {
    EXPECT_EQ(parseInt(text, value), NumberError::kNotANumber) << text;
  }
  EXPECT_EQ(parseInt("2147483648", value), NumberError::kOutOfRange);
  EXPECT_EQ(parseInt(std::string(1000, '9'), value), NumberError::kOutOfRange);
  EXPECT_EQ(value, 7);
}

TEST(TextNumber, formatsLikeAStreamOfTheCLocale) {
  EXPECT_EQ(formatDouble(1234567.0), "1.23457e+06");
  EXPECT_EQ(formatDouble(0.1), "0.1");
  EXPECT_EQ(formatDouble(100000.0), "100000");
  EXPECT_EQ(formatDouble(-0.00001234), "-1.234e-05");
  EXPECT_EQ(formatDouble(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(formatDouble(1.0 / 3.0, 17), "0.33333333333333331");
  EXPECT_EQ(formatDouble(123.0, 0), "1e+02");
  EXPECT_EQ(formatDouble(-std::numeric_limits<double>::max(), 5000).substr(0, 5), "-1.79");
}

TEST(TextNumber, followsNoLocaleOfTheUser) {
  const testing::CommaNumbers locale;
  if (!locale.found()) GTEST_SKIP() << "no locale with decimal commas is installed";
  double value = 0.0;
  EXPECT_EQ(parseDouble("3.25", value), NumberError::kNone);
  EXPECT_EQ(value, 3.25);
  EXPECT_EQ(parseDouble("3,25", value), NumberError::kNone);
  EXPECT_EQ(value, 3.0);
  EXPECT_EQ(formatDouble(3.25), "3.25");
}

TEST(SplitFields, dropsOnlyTheEmptyRestAfterTheLastSeparator) {
  EXPECT_THAT(splitFields("a;b", ';'), ElementsAre("a", "b"));
  EXPECT_THAT(splitFields("a;b;", ';'), ElementsAre("a", "b"));
  EXPECT_THAT(splitFields("a;;", ';'), ElementsAre("a", ""));
  EXPECT_THAT(splitFields(";", ';'), ElementsAre(""));
  EXPECT_THAT(splitFields(" ", ';'), ElementsAre(" "));
  EXPECT_THAT(splitFields("", ';'), ElementsAre());
  EXPECT_THAT(splitFields("a\0b"sv, '\0'), ElementsAre("a", "b"));
}

}  // namespace
}  // namespace talvesk
