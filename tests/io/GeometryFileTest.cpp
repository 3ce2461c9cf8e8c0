#include "io/GeometryFile.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

GeometryRecords parsed(std::string_view text, const std::string& separator, bool labelled = false) {
  PositionTable table;
  EXPECT_TRUE(parseRecords(text, "a.csv", separator, labelled, table).ok()) << text;
  return table.records;
}

TEST(GeometryFile, returnsWhatWasWrittenWithEverySeparator) {
  const GeometryRecords records = {{0.0, 101.25}, {5.0, -3e-7}, {1234567.0, 1e20}};
  const struct {
    const char* separator;
    const char* geophones;
    const char* shots;
  } kCases[] = {
      {";", "0;101.25\n5;-3e-07\n1.23457e+06;1e+20\n", "shot_id_1;0;101.25\n"},
      {",", "0,101.25\n5,-3e-07\n1.23457e+06,1e+20\n", "shot_id_1,0,101.25\n"},
      {kBlankSeparator, "0 101.25\n5 -3e-07\n1.23457e+06 1e+20\n", "shot_id_1 0 101.25\n"},
  };
  for (const auto& [separator, geophones, shots] : kCases) {
    const TestFolder folder;
    const std::string path = folder.file("line.csv");
    ASSERT_TRUE(writeRecords(path, separator, records).ok());
    EXPECT_EQ(TestFolder::get(path), geophones);
    PositionTable read;
    ASSERT_TRUE(readRecords(path, separator, read).ok());
    EXPECT_EQ(read.records, (GeometryRecords{{0.0, 101.25}, {5.0, -3e-7}, {1234570.0, 1e20}}));

    ASSERT_TRUE(
        writeLabelledRecords(path, separator, {std::string(kShotLabel) + "1"}, {records.front()})
            .ok());
    EXPECT_EQ(TestFolder::get(path), shots);
    ASSERT_TRUE(readLabelledRecords(path, separator, read).ok());
    EXPECT_EQ(read.records, (GeometryRecords{{0.0, 101.25}}));
    EXPECT_THAT(describe(read.remarks), IsEmpty());
  }
}

TEST(GeometryFile, convertsFieldsLikeTheStandardFunction) {
  EXPECT_THAT(parsed("12 m;x\r\n ;0x10;7;\n", ";"),
              ElementsAre(ElementsAre(12, 0), ElementsAre(0, 16, 7)));
  EXPECT_THAT(parsed("1  2", kBlankSeparator), ElementsAre(ElementsAre(1, 0, 2)));
  EXPECT_THAT(parsed("\n1;2\n\n\n", ";"), ElementsAre(IsEmpty(), ElementsAre(1, 2)));
  EXPECT_THAT(parsed("only a label\n", ";", true), IsEmpty());
  EXPECT_THAT(parsed("", ";"), IsEmpty());
}

TEST(GeometryFile, hasNoPositionsWhenReadWithAnotherSeparator) {
  const GeometryRecords records = parsed("1.5;2.5\n3;4\n", ",");
  EXPECT_THAT(records, ElementsAre(ElementsAre(1.5), ElementsAre(3)));
  std::vector<Point2D> positions = {{9, 9}};
  const Status status = positionsOf({records, {}}, positions);
  EXPECT_EQ(status.code(), 1);
  EXPECT_THAT(status.message(), HasSubstr("line 1"));
  EXPECT_THAT(positions, ElementsAre(Point2D{9, 9}));
  ASSERT_TRUE(positionsOf({parsed("1.5;2.5;9\n3;4\n", ";"), {}}, positions).ok());
  EXPECT_THAT(positions, ElementsAre(Point2D{1.5, 2.5}, Point2D{3, 4}));
}

/// As a spreadsheet saves "Unicode text".
std::string utf16(const std::string& ascii, bool bigEndian, bool mark) {
  std::string bytes = !mark ? "" : bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : ascii) {
    bytes += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
  }
  return bytes;
}

TEST(GeometryFile, readsWhatSpreadsheetsSaveInEveryEncoding) {
  const std::string text = "0;101.5\r\n2;102\r\n";
  for (const std::string& bytes :
       {text, "\xEF\xBB\xBF" + text, utf16(text, false, true), utf16(text, true, true),
        utf16(text, false, false), utf16(text, true, false)}) {
    PositionTable table;
    ASSERT_TRUE(parseRecords(bytes, "a.csv", ";", false, table).ok());
    EXPECT_EQ(table.records, (GeometryRecords{{0, 101.5}, {2, 102}}));
    EXPECT_THAT(describe(table.remarks), IsEmpty());
    const TestFolder folder;
    EXPECT_EQ(lookAtGeometryFile(folder.put("a.csv", bytes)).separator, ";");
  }
}

TEST(GeometryFile, skipsAHeadingAndSaysSo) {
  const struct {
    const char* text;
    bool labelled;
    const char* heading;  ///< null where the line is read
  } kCases[] = {{"x (m);z (m)\n1;2\n", false, "x (m);z (m)"},
                {"\xEF\xBB\xBFinformation;height\n1;2\n", false, "information;height"},
                {"shot 1;distance;elevation\nshot_id_1;1;2\n", true, "shot 1;distance;elevation"},
                {"x;12 m\n1;2\n", false, nullptr},
                {"shot_id_1;1;2\n", true, nullptr},
                {"\n1;2\n", false, nullptr},
                {";\n1;2\n", false, nullptr}};
  for (const auto& [text, labelled, heading] : kCases) {
    PositionTable table;
    ASSERT_TRUE(parseRecords(text, "a.csv", ";", labelled, table).ok()) << text;
    EXPECT_EQ(table.records.back(), (std::vector<double>{1, 2})) << text;
    EXPECT_EQ(table.remarks.skippedHeading, heading != nullptr) << text;
    if (heading != nullptr) {
      EXPECT_EQ(table.records.size(), 1U);
      EXPECT_EQ(table.remarks.heading, heading);
    }
  }
  PositionTable words;
  ASSERT_TRUE(parseRecords("x;z\n1;2\n3\n", "a.csv", ";", false, words).ok());
  std::vector<Point2D> positions;
  EXPECT_THAT(positionsOf(words, positions).message(), HasSubstr("line 3"));
}

TEST(GeometryFile, countsAndNamesEveryFieldThatItTakesAsZero) {
  PositionTable table;
  ASSERT_TRUE(
      parseRecords("0;1\n;two\n3;-\x1b[2J;note\n0x;5 m\n", "a.csv", ";", false, table).ok());
  EXPECT_EQ(table.records, (GeometryRecords{{0, 1}, {0, 0}, {3, 0, 0}, {0, 5}}));
  EXPECT_THAT(describe(table.remarks),
              ElementsAre("3 fields that are no numbers were taken as 0: line 2 \"\", line 2 "
                          "\"two\", line 3 \"- [2J\""));
  std::string many = "0;0\n";
  for (int i = 0; i < 1000; ++i) many += "1;x\n";
  ASSERT_TRUE(parseRecords(many, "a.csv", ";", false, table).ok());
  EXPECT_EQ(table.remarks.zeroCount, 1000U);
  EXPECT_EQ(table.remarks.zeros.size(), TableRemarks::kNamedZeros);
  EXPECT_THAT(describe(table.remarks).front(), HasSubstr("line 21 \"x\" and 980 more"));
}

TEST(GeometryFile, refusesLongLinesAndNumbersThatFitNoDouble) {
  const std::string limit(256, '1');
  EXPECT_THAT(parsed("a;" + limit.substr(2), ";"), ElementsAre(ElementsAre(0, ::testing::_)));
  const struct {
    std::string text;
    const char* reason;
  } kCases[] = {{"1;2\n" + limit + "1\n", "line 2: the line holds more than 256"},
                {"1;2\n3;1e999\n", "line 2: a number is out of range"},
                {"1;inf\n", "line 1: a number is out of range or not finite"},
                {"nan;1\n", "line 1: a number is out of range or not finite"}};
  for (const auto& [text, reason] : kCases) {
    PositionTable table = {{{9}}, {}};
    const Status status = parseRecords(text, "a.csv", ";", false, table);
    EXPECT_EQ(status.code(), 1);
    EXPECT_THAT(status.message(), HasSubstr("a.csv, " + std::string(reason)));
    EXPECT_EQ(table.records, (GeometryRecords{{9}}));
  }
}

TEST(GeometryFile, takesAsManyPositionsAsAShotFileHasTracesAndRefusesFarMore) {
  const TestFolder folder;
  std::string text;
  for (int i = 0; i < 65535; ++i) text += "123456.789;-1234.56789012345\n";
  const std::string path = folder.put("line.csv", text);
  PositionTable table;
  ASSERT_TRUE(readRecords(path, ";", table).ok());
  EXPECT_EQ(table.records.size(), 65535U);

  // Records of next to nothing cost many times the file.
  folder.put("line.csv", std::string((std::size_t{2} << 20) + 1, '\n'));
  const Status status = readRecords(path, ";", table);
  EXPECT_EQ(status.code(), 1);
  EXPECT_THAT(status.message(), HasSubstr("more than the limit"));
  EXPECT_EQ(table.records.size(), 65535U);
}

TEST(GeometryFile, saysWhichFileCannotBeReadOrWritten) {
  PositionTable table;
  for (const Status& status :
       {readRecords("/no/a.csv", ";", table), readLabelledRecords("/no/a.csv", ";", table),
        writeRecords("/no/a.csv", ";", table.records),
        writeLabelledRecords("/no/a.csv", ";", {}, {}),
        writeLabelledRecords("/no/a.csv", ";", {"one"}, {})}) {
    EXPECT_EQ(status.code(), 1);
    EXPECT_THAT(status.message(), HasSubstr("/no/a.csv"));
  }
}

TEST(GeometryFile, looksAsItWasWritten) {
  struct Case {
    const char* text;
    const char* separator;
    bool decimalCommas;
    const char* cutWith;  ///< separators with which numbers are cut
  };
  const Case cases[] = {{"0;606.4\n5;605.1\n", ";", false, ""},
                        {"0;606\n5;605,1\n", ";", true, " ;"},
                        {"shot_id_1, 0, 606.4\n", ",", false, ""},
                        {"0,606.4\n", ",", true, " ;"},
                        {"0 606,4\n", ",", true, " ;"},
                        {"0 606.4\n1;2\n", " ", false, ""},
                        {"", " ", false, ""}};
  for (const Case& c : cases) {
    const TestFolder folder;
    const GeometryFileLook look = lookAtGeometryFile(folder.put("look.csv", c.text));
    EXPECT_EQ(look.separator, c.separator) << c.text;
    EXPECT_EQ(look.decimalCommas, c.decimalCommas) << c.text;
    for (const char* separator : {" ", ";", ","}) {
      EXPECT_EQ(cutsNumbers(look, separator),
                std::string(c.cutWith).find(separator) != std::string::npos)
          << c.text << " with " << separator;
    }
  }
  EXPECT_EQ(lookAtGeometryFile("no such file").separator, " ");
}

TEST(GeometryFile, namesEndInCsvByTheLetter) {
  EXPECT_EQ(withCsvSuffix("line1"), "line1.csv");
  EXPECT_EQ(withCsvSuffix("line1.csv"), "line1.csv");
  EXPECT_EQ(withCsvSuffix("line1.CSV"), "line1.CSV.csv");
  EXPECT_EQ(withCsvSuffix("csv"), "csv.csv");
}

}  // namespace
}  // namespace talvesk
