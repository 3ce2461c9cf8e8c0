#include "io/IsovalueFile.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(IsovalueFile, isWrittenAscendingWhateverTheOrderOfTheValues) {
  const testing::TestFolder folder;
  const std::string path = folder.file("values.csv");
  const struct {
    const char *separator, *text;
  } facts[] = {{";", "-2.5;true\n300;true\n1e+06;true\n"},
               {"(blank space)", "-2.5 true\n300 true\n1e+06 true\n"},
               {" ", "-2.5 true\n300 true\n1e+06 true\n"},
               {",", "-2.5,true\n300,true\n1e+06,true\n"}};
  const testing::CommaStreams streams;
  for (const auto& fact : facts) {
    ASSERT_TRUE(writeIsovalues(path, fact.separator, {300.0, 1e6, -2.5}).ok());
    EXPECT_EQ(testing::TestFolder::get(path), fact.text);
  }
}

TEST(IsovalueFile, bringsEveryValueBackToItsLastDigit) {
  const testing::TestFolder folder;
  const std::string path = folder.file("values.csv");
  const double odd = 3487.6562500000005;
  ASSERT_TRUE(writeIsovalues(path, ";", {odd, 0.1}).ok());
  std::string text;
  ASSERT_TRUE(readIsovalueText(path, text).ok());
  const testing::CommaNumbers numbers;
  EXPECT_THAT(parseIsovalues(text, path, ";").values, ElementsAre(0.1, odd));
}

TEST(IsovalueFile, tellsTheValuesThatItReads) {
  const testing::ConsoleCapture console;
  const IsovalueRead read = parseIsovalues("500;true\r\n250.5;true\r\n\r\n", "a.csv", ";");
  EXPECT_TRUE(read.status.ok());
  EXPECT_THAT(read.values, ElementsAre(500.0, 250.5));
  EXPECT_EQ(console.out(), "Value : 500\nValue : 250.5\n");
}

TEST(IsovalueFile, stopsAtTheFirstLineWhoseFirstFieldIsNotANumberAsAWhole) {
  const testing::ConsoleCapture console;
  const struct {
    std::string text;
    const char* separator;
    std::size_t values, line;
  } facts[] = {
      {"500;true\n600;true\n", ",", 0, 1},
      {"500,true\n600,true\n", " ", 0, 1},
      {"500 true\n", ";", 0, 1},
      {"500;true\n600 m;true\n700;true\n", ";", 1, 2},
      {"500;true\n\n700;true\n", ";", 1, 2},
      {"500;true\n;true\n", ";", 1, 2},
      {"nan;true\n", ";", 0, 1},
      {"1e999;true\n", ";", 0, 1},
      {"500;true\n600;" + std::string(253, 't') + "\n", ";", 1, 2},
      {"500;true\n600;" + std::string(252, 't') + "\n", ";", 2, 0},
      {"500", ";", 1, 0},
      {"", ";", 0, 0},
  };
  for (const auto& fact : facts) {
    const IsovalueRead read = parseIsovalues(fact.text, "a.csv", fact.separator);
    EXPECT_EQ(read.values.size(), fact.values) << fact.text;
    EXPECT_EQ(read.invalidLine, fact.line) << fact.text;
    EXPECT_EQ(read.status.ok(), fact.line == 0) << fact.text;
  }
}

TEST(IsovalueFile, passesOverAHeadingAndUnderstandsOtherEncodings) {
  const testing::ConsoleCapture console;
  const std::string little(
      "\xFF\xFE"
      "7\0;\0t\0\n\0"
      "8\0;\0t\0",
      16);
  const struct {
    std::string text;
    bool heading;
  } facts[] = {{"Velocity (m/s);shown\n7;true\n8;true\n", true},
               {"\xEF\xBB\xBF"
                "7;true\n8;true\n",
                false},
               {little, false}};
  for (const auto& fact : facts) {
    const IsovalueRead read = parseIsovalues(fact.text, "a.csv", ";");
    EXPECT_TRUE(read.status.ok()) << read.status.message();
    EXPECT_THAT(read.values, ElementsAre(7.0, 8.0));
    EXPECT_EQ(read.remarks.skippedHeading, fact.heading);
  }
  EXPECT_EQ(parseIsovalues("only words\n\n", "a.csv", ";").invalidLine, 1U);
  EXPECT_EQ(parseIsovalues("words\nmore words\n7\n", "a.csv", ";").invalidLine, 2U);
}

TEST(IsovalueFile, isBoundedInItsValues) {
  const testing::ConsoleCapture console;
  std::string text;
  for (std::size_t i = 0; i <= kMostIsovalues; ++i) text += "1;true\n";
  const IsovalueRead read = parseIsovalues(text, "a.csv", ";");
  EXPECT_EQ(read.values.size(), kMostIsovalues);
  EXPECT_THAT(read.status.message(), HasSubstr("more than 1000"));
  EXPECT_EQ(read.invalidLine, 0U);
}

TEST(IsovalueFile, takesItsSuffixInLettersOfEitherCase) {
  const struct {
    const char *name, *suffixed;
  } facts[] = {{"line1", "line1.csv"},     {"line1.CSV", "line1.CSV"},
               {"line1.Csv", "line1.Csv"}, {"line1.txt", "line1.txt.csv"},
               {"csv", "csv.csv"},         {"", ".csv"}};
  for (const auto& fact : facts) EXPECT_EQ(withIsovalueSuffix(fact.name), fact.suffixed);
}

}  // namespace
}  // namespace talvesk
