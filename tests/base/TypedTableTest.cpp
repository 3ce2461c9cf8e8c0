#include "base/TypedTable.h"

#include <cmath>
#include <limits>
#include <string>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;

constexpr double kEmpty = -1e300;  // stands for NaN, which equals nothing

TEST(TypedNumber, followsTheUsersDecimalMarkWhereTheTextDoesNotTell) {
  constexpr double kNone = kEmpty;
  const struct {
    const char* text;
    double withPoint;
    double withComma;
  } kCases[] = {
      {"12", 12, 12},
      {" -3.5\t", -3.5, -3.5},
      {"3,5", 3.5, 3.5},
      {"+,5", 0.5, 0.5},
      {"1,250", 1250, 1.25},
      {"1.250", 1.25, 1.25},
      {"-12,500", -12500, -12.5},
      {"1,2500", 1.25, 1.25},
      {"1.234,5", 1234.5, 1234.5},
      {"1,234.5", 1234.5, 1234.5},
      {"1.234.567", 1234567, 1234567},
      {"1,234,567", 1234567, 1234567},
      {"2e3", 2000, 2000},
      {"2,5e1", 25, 25},
      {"", kNone, kNone},
      {"x", kNone, kNone},
      {"5 m", kNone, kNone},
      {"1 2", kNone, kNone},
      {"0x10", kNone, kNone},
      {"nan", kNone, kNone},
      {"inf", kNone, kNone},
      {"1e999", kNone, kNone},
      {"--1", kNone, kNone},
      {",", kNone, kNone},
  };
  for (const auto& [text, withPoint, withComma] : kCases) {
    SCOPED_TRACE(text);
    double value = kNone;
    EXPECT_EQ(parseTyped(text, false, value), withPoint != kNone);
    EXPECT_EQ(value, withPoint);
    value = kNone;
    EXPECT_EQ(parseTyped(text, true, value), withComma != kNone);
    EXPECT_EQ(value, withComma);
  }
}

TypedTable parsed(const std::string& text, bool decimalComma = false) {
  TypedTable table;
  TableRemarks remarks;
  const Status status = parseTypedTable(text, decimalComma, 100, table, remarks);
  EXPECT_TRUE(status.ok()) << status.message();
  for (auto& row : table) {
    for (double& value : row) value = std::isnan(value) ? kEmpty : value;
  }
  return table;
}

TEST(TypedTable, takesTheSeparatorFromTheText) {
  const struct {
    const char* text;
    TypedTable rows;
  } kCases[] = {
      {"0\t100\r\n2\t101,5\r\n", {{0, 100}, {2, 101.5}}},
      {"0;100\n2;101.5\n", {{0, 100}, {2, 101.5}}},
      {"0,100.5\n2,101\n", {{0, 100.5}, {2, 101}}},
      {"0, 100\n2, 101\n", {{0, 100}, {2, 101}}},
      {"0  100\n 2 101\n", {{0, 100}, {2, 101}}},
      {"0,5 100\n2 101,5\n", {{0.5, 100}, {2, 101.5}}},
      {"5\n6\n7", {{5}, {6}, {7}}},
      {"x (m)\tz (m)\n0\t1\n", {{0, 1}}},
      {"1\t\n\t2\n", {{1, kEmpty}, {kEmpty, 2}}},
      {"\t\n3\t4\n", {{kEmpty, kEmpty}, {3, 4}}},
      {"1\n\n2\n\n\n", {{1}, {kEmpty}, {2}}},
      {"\"1,5\"\t\"2\"\n", {{1.5, 2}}},
      {"", {}},
      {"\n\n", {}},
  };
  for (const auto& [text, rows] : kCases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(parsed(text), rows);
  }
}

TEST(TypedTable, takesCommasForDecimalMarksWhereTheUserWritesThemSo) {
  const std::string column = "0,5\n2,25\n";
  EXPECT_EQ(parsed(column, true), (TypedTable{{0.5}, {2.25}}));
  EXPECT_EQ(parsed(column, false), (TypedTable{{0, 5}, {2, 25}}));
  EXPECT_EQ(parsed("0.5,100.5\n2,101\n", true), (TypedTable{{0.5, 100.5}, {2, 101}}));
  EXPECT_EQ(parsed("0,5;100,5\n", true), (TypedTable{{0.5, 100.5}}));
}

TEST(TypedTable, saysWhichLineItSkippedAsAHeading) {
  TypedTable table;
  TableRemarks remarks;
  ASSERT_TRUE(parseTypedTable("\xEF\xBB\xBFx (m)\tz\n1\t2\n", true, 9, table, remarks).ok());
  EXPECT_TRUE(remarks.skippedHeading);
  EXPECT_EQ(remarks.heading, "x (m) z");
  ASSERT_TRUE(parseTypedTable("\xEF\xBB\xBF,5\t2\n1\t2\n", true, 9, table, remarks).ok());
  EXPECT_FALSE(remarks.skippedHeading);
  EXPECT_EQ(table, (TypedTable{{0.5, 2}, {1, 2}}));
}

TEST(TypedTable, refusesWordsAndTooMuch) {
  TypedTable table = {{7}};
  TableRemarks remarks;
  Status status = parseTypedTable("1\t2\n3\tten\n", false, 100, table, remarks);
  EXPECT_THAT(status.message(), HasSubstr("line 2: \"ten\" is no number"));
  status = parseTypedTable("1\n2\n3\n", false, 2, table, remarks);
  EXPECT_THAT(status.message(), HasSubstr("more than 2 rows"));
  EXPECT_FALSE(parseTypedTable("words", false, 100, table, remarks).ok());
  status = parseTypedTable("5 m\t7 m\n3\t4\n", false, 100, table, remarks);
  EXPECT_THAT(status.message(), HasSubstr("line 1: \"5 m\" is no number"));
  EXPECT_EQ(table, (TypedTable{{7}}));
  EXPECT_FALSE(remarks.skippedHeading);
}

}  // namespace
}  // namespace talvesk
