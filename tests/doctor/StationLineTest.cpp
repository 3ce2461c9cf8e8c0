#include "doctor/StationLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk::doctor {
namespace {

TEST(StationLine, goesThroughMostPoints) {
  const std::vector<double> stations = {3.1, 12.9, 22.9, 32.8, 43.0, 10.0};
  const std::vector<double> places = {50.0, 40.0, 30.0, 20.0, 10.0, 0.0};
  const auto line = lineThrough(stations, places, 1.5);
  ASSERT_TRUE(line.has_value());
  EXPECT_NEAR(line->slope, -1.0, 0.02);
  EXPECT_NEAR(line->at0, 53.0, 0.3);
  EXPECT_EQ(line->fitCount, 5U);
  EXPECT_FALSE(line->fits[5]);
}

TEST(StationLine, isNoneWherePointsSayNothing) {
  EXPECT_FALSE(lineThrough({}, {}, 1.0).has_value());
  EXPECT_FALSE(lineThrough({1.0, 9.0}, {1.0, 2.0}, 1.0).has_value()) << "any two lie on a line";
  EXPECT_FALSE(lineThrough({1.0, 9.0, 20.0}, {5.0, 5.0, 5.0}, 1.0).has_value());
  EXPECT_FALSE(lineThrough({3.0, 3.1, 3.2}, {1.0, 2.0, 3.0}, 1.0).has_value());
  EXPECT_FALSE(
      lineThrough({1.0, 20.0, 9.0, 5.0, 14.0}, {1.0, 2.0, 3.0, 4.0, 5.0}, 1.0).has_value());
}

TEST(Roundest, hasAsFewDigitsAsTheErrorAllows) {
  EXPECT_EQ(roundest(1.98, 0.05), 2.0);
  EXPECT_EQ(roundest(53.02, 0.3), 53.0);
  EXPECT_EQ(roundest(-4.9, 0.3), -5.0);
  EXPECT_EQ(roundest(2.46, 0.1), 2.5);
  EXPECT_EQ(roundest(0.05, 0.3), 0.0);
  EXPECT_NEAR(roundest(1.234567, 0.0), 1.234567, 1e-4);
}

TEST(Names, tellTheirNumbers) {
  const auto values = [](const char* name) {
    std::vector<double> list;
    for (const NameNumber& number : numbersIn(name)) list.push_back(number.value);
    return list;
  };
  EXPECT_THAT(values("10m"), ::testing::ElementsAre(10.0));
  EXPECT_THAT(values("line2_-5"), ::testing::ElementsAre(2.0, -5.0));
  EXPECT_THAT(values("2018-03-07"), ::testing::ElementsAre(2018.0, 3.0, 7.0));
  EXPECT_THAT(values("shot 2,5m"), ::testing::ElementsAre(2.5));
  EXPECT_THAT(values("record"), ::testing::IsEmpty());
  EXPECT_TRUE(numbersIn("20m")[0].metres);
  EXPECT_TRUE(numbersIn("20m_b")[0].metres);
  EXPECT_FALSE(numbersIn("20may")[0].metres);
  EXPECT_EQ(numbersIn(std::string(400, '9')).size(), 0U) << "no double holds it";
}

TEST(Names, thatOnlyCountUpAreNoPositions) {
  EXPECT_THAT(positionsByName({"101", "102", "103"}), ::testing::IsEmpty());
  EXPECT_THAT(positionsByName({"0m", "1m", "2m"}), ::testing::SizeIs(1));
  EXPECT_THAT(positionsByName({"a1_0", "a2_20", "a3_10"}),
              ::testing::ElementsAre(::testing::ElementsAre(0.0, 20.0, 10.0)));
  EXPECT_THAT(positionsByName({"10m", "nothing"}), ::testing::IsEmpty());
}

}  // namespace
}  // namespace talvesk::doctor
