#include "Samples.h"
#include "io/CsvPickFile.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class EveryFormat : public ::testing::TestWithParam<std::pair<const char*, const std::string*>> {
 protected:
  std::string path() const { return std::string("line.") + GetParam().first; }
  const std::string& text() const { return *GetParam().second; }
  ConsoleCapture console;
  TravelTimeData data;
};

INSTANTIATE_TEST_SUITE_P(Readers, EveryFormat,
                         ::testing::Values(std::pair{"otte", &kOtte}, std::pair{"txt", &kTxCurves},
                                           std::pair{"xyz", &kPickTable}, std::pair{"csv", &kCsv}),
                         [](const auto& format) { return std::string(format.param.first); });

void expectTheSurvey(const TravelTimeData& data) {
  ASSERT_EQ(data.strings.size(), 1u);
  EXPECT_THAT(data.strings[0], ElementsAre(Point2D{0, 100}, Point2D{5, 101}, Point2D{10, 102}));
  ASSERT_EQ(data.records.size(), 2u);
  EXPECT_EQ(data.records[0].shotPos2d, (Point2D{-2.5, 99}));
  EXPECT_EQ(data.records[1].shotPos2d, (Point2D{12.5, 102.5}));
  EXPECT_THAT(data.records[0].ttMisurati, ElementsAre(0.0055, 0.01025, kNoTime));
  EXPECT_THAT(data.records[1].ttMisurati, ElementsAre(0.03, 0.02, kUnpicked));
  for (int i = 0; i < 2; ++i) {
    const TravelTime& record = data.records[static_cast<std::size_t>(i)];
    EXPECT_THAT(record.ttCalcolati, ElementsAre(kNoTime, kNoTime, kNoTime));
    EXPECT_EQ(record.traceSetID, i);
    EXPECT_EQ(record.indexStesa, 0);
  }
}

TEST_P(EveryFormat, restoresTheSameSurvey) {
  ASSERT_TRUE(parseTravelTimes(text(), path(), data).ok());
  EXPECT_EQ(data.format, GetParam().first);
  EXPECT_THAT(data.warnings, IsEmpty());
  expectTheSurvey(data);
}

TEST_P(EveryFormat, dropsAPickThatIsAboveAnHourAndNamesIt) {
  const std::string late = replaced(text(), "10.25", "3600001");
  ASSERT_TRUE(parseTravelTimes(late, path(), data).ok());
  EXPECT_THAT(data.records[0].ttMisurati, ElementsAre(0.0055, kNoTime, kNoTime));
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("shot 1, trace 2 (3.6e+06 ms, above an hour)")));
}

TEST_P(EveryFormat, takesLineEndsWithCarriageReturns) {
  ASSERT_TRUE(parseTravelTimes(replaced(text(), "\n", "\r\n"), path(), data).ok());
  expectTheSurvey(data);
}

TEST_P(EveryFormat, doesWithoutTheLastLineEndAndWithBlankLinesAfterIt) {
  ASSERT_TRUE(parseTravelTimes(text().substr(0, text().size() - 1), path(), data).ok());
  expectTheSurvey(data);
  ASSERT_TRUE(parseTravelTimes(text() + "\r\n \n\n", path(), data).ok());
  EXPECT_THAT(data.warnings, IsEmpty());
  expectTheSurvey(data);
}

TEST_P(EveryFormat, tellsThatItIgnoredAByteOrderMark) {
  ASSERT_TRUE(parseTravelTimes("\xEF\xBB\xBF" + text(), path(), data).ok());
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("byte order mark")));
  EXPECT_THAT(console.error(), HasSubstr("Warning: " + path() + ": the byte order mark"));
  expectTheSurvey(data);
}

TEST_P(EveryFormat, readsPointsWhateverTheLocale) {
  const CommaNumbers locale;
  if (!locale.found()) GTEST_SKIP() << "no locale with decimal commas is installed";
  ASSERT_TRUE(parseTravelTimes(text(), path(), data).ok());
  expectTheSurvey(data);
}

TEST_P(EveryFormat, refusesNumbersThatAreNotFinite) {
  for (const char* number : {"nan", "inf", "-inf", "1e999"}) {
    const Status status = parseTravelTimes(replaced(text(), "10.25", number), path(), data);
    EXPECT_FALSE(status.ok()) << number;
    EXPECT_THAT(status.message(), HasSubstr(path() + ", line ")) << number;
  }
  EXPECT_THAT(data.records, IsEmpty());
}

TEST(Suffix, choosesTheReaderByExactComparison) {
  const struct {
    const char* path;
    bool known;
  } cases[] = {{"a.xyz", true},   {"a.XYZ", true},     {"a.Xyz", false}, {"a.otte", true},
               {"a.OTTE", false}, {"a.otte ", false},  {"otte", false},  {"folder.otte/a", false},
               {"", false},       {"a.xyz.gz", false}, {"a", false}};
  for (const auto& c : cases) {
    const ConsoleCapture console;
    TravelTimeData data;
    const std::string& text =
        std::string(c.path).find("otte") == std::string::npos ? kPickTable : kOtte;
    EXPECT_EQ(parseTravelTimes(text, c.path, data).ok(), c.known) << c.path;
    const std::string complaint = std::string("Invalid input TT file : ") + c.path + "\n";
    EXPECT_EQ(console.error(), c.known ? "" : complaint);
  }
}

struct Refused {
  const char* path;
  std::string text;
  const char* message;            ///< of the status, after the path
  const char* console = nullptr;  ///< a message of the format itself
};

const std::vector<Refused> kRefused = {
    // Exchange format.
    {"a.otte", "otte " + kOtte.substr(4), "line 1: the first line is \"otte \""},
    {"a.otte", "OTTE" + kOtte.substr(4), "line 1: the first line is \"OTTE\""},
    {"a.otte", "", "line 1: the first line is \"\""},
    {"a.otte", "otte\n", "line 2: the format version is missing"},
    {"a.otte", replaced(kOtte, "\n2\n1\n", "\nx\n1\n"), "line 3: the format constant 2 \"x\""},
    {"a.otte", replaced(kOtte, "10.25", "ten"), "line 11: the time \"ten\" is not a number"},
    {"a.otte", replaced(kOtte, "10.25", ""), "line 11: the time \"\" is not a number"},
    {"a.otte", replaced(kOtte, "100;101;", "100;"),
     "line 6: there are 3 geophone distances but 2 elevations"},
    {"a.otte", replaced(kOtte, "99;102.5;", "99;"), "line 8: there are 2 shot distances but 1 ele"},
    {"a.otte", kOtte + "0\n2\n1;\n", "line 15: there are more records than the 2 shot positions"},
    {"a.otte", kOtte.substr(0, kOtte.find("0\n1\n30")), "line 12: the file ends after 1 record of"},
    {"a.otte", replaced(kOtte, "0\n1\n30", "1\n1\n30"), "line 12: the record names string 1 of 1"},
    {"a.otte", replaced(kOtte, "0\n1\n30", "-1\n1\n30"), "line 12: the record names string -1"},
    {"a.otte", replaced(kOtte, "20;0;", "20;0;7;"), "line 14: there are 4 times for 3 geophones"},
    {"a.otte", replaced(kOtte, "\n2\n1\n", "\n2\n2000000000\n"),
     "the file names 2000000000 strings for 3 geophones"},
    {"a.otte", replaced(kOtte, "\n2\n1\n", "\n2\n-1\n"), "the file names -1 strings"},
    {"a.otte", replaced(kOtte, "\n2\n1\n", "\n2\n0\n"), "the file names 0 strings"},
    {"a.otte", replaced(kOtte, "\n2\n1\n", "\n2\n9999999999\n"), "line 4: the number of geophone"},
    // T-x curves.
    {"a.txt", "", "line 1: the line begins with \"\" where \"TX_CURVE\" must stand"},
    {"a.txt", "TX_CURVES\n", "line 1: the line begins with \"TX_CURVES\""},
    {"a.txt", replaced(kTxCurves, "VERSION:", "VERSION"), "line 2: the line begins with \"VERSION"},
    {"a.txt", replaced(kTxCurves, "INFO", "INFOS"), "line 21: the line \"INFO\" is missing"},
    {"a.txt", replaced(kTxCurves, "ELEVATION 1", "ELEVATION"), "line 5: \"ELEVATION\" stands with"},
    {"a.txt", replaced(kTxCurves, "SHOTS 2", "SHOTS"), "line 6: \"TOTAL_NUMBER_OF_SHOTS\" stands"},
    {"a.txt", replaced(kTxCurves, "SHOTS 2", "SHOTS -2"),
     "line 6: the TOTAL_NUMBER_OF_SHOTS is ne"},
    {"a.txt", replaced(kTxCurves, "SHOTS 2", "SHOTS 2000000000"),
     "the line \"SEISMIC_DATA_FILE_NAME\" is missing"},
    {"a.txt", replaced(kTxCurves, " one.dat", ""), "line 8: \"SEISMIC_DATA_FILE_NAME\" stands"},
    {"a.txt", replaced(kTxCurves, "RECEIVERS 3", "RECEIVERS"), "line 10: \"NUMBER_OF_RECEIVERS\""},
    {"a.txt", replaced(kTxCurves, "RECEIVERS 3", "RECEIVERS 4"),
     "line 14: the receiver line holds 0 values instead of 4"},
    {"a.txt", replaced(kTxCurves, "RECEIVERS 3", "RECEIVERS 2"),
     "line 13: the line begins with \"3\" where \"SEISMIC_DATA_FILE_NAME\" must stand"},
    {"a.txt", replaced(kTxCurves, "2 5 101 10.25", "2 5 101"),
     "line 12: the receiver line holds 3"},
    {"a.txt", replaced(kTxCurves, "10.25", "10.25 9"), "line 12: the receiver line holds more"},
    {"a.txt", replaced(kTxCurves, "-2.5 99", "here"), "line 9: the shot distance \"here\" is not"},
    // Sectioned pick table.
    {"a.xyz", "Shot number, Shot elevation \n", "line 1: Invalid header : Shot number, Shot ele",
     "Invalid header : Shot number, Shot elevation \n"},
    {"a.xyz", replaced(kPickTable, "FBP times", "FBP"), "line 13: Invalid header : FBP",
     "Invalid header : FBP\n"},
    {"a.xyz", replaced(kPickTable, "102.5 99", "102.5"), "line 3: Invalid match : 102.5: 1 value",
     "Invalid match : 102.5\n"},
    {"a.xyz", replaced(kPickTable, "3 7\n-2.5", "3 8\n-2.5"), "line 6: Invalid shot ids : 3 8",
     "Invalid shot ids : 3 8\n"},
    {"a.xyz", replaced(kPickTable, "3 7\n-2.5 12.5", "3\n-2.5"), "line 6: shot 7 has no distance"},
    {"a.xyz", replaced(kPickTable, "3 1 2\n102 ", "1 2\n"), "line 12: Invalid phone list : 1 2",
     "Invalid phone list : 1 2\n"},
    {"a.xyz", replaced(kPickTable, "3 1 2\n", "4 1 2\n"), "line 12: Invalid phone ids : 4 1 2",
     "Invalid phone ids : 4 1 2\n"},
    {"a.xyz", replaced(kPickTable, "3 1 2\n", "1 1 2\n"), "line 12: receiver 3 has no elevation"},
    {"a.xyz", replaced(kPickTable, "30 20 0", "30 20"), "line 15: Invalid times : 30 20: 2 times",
     "Invalid times : 30 20\n"},
    {"a.xyz", replaced(kPickTable, "30 20 0\n", ""), "line 15: Invalid times : : 0 times of shot 7",
     "Invalid times : \n"},
    {"a.xyz", replaced(kPickTable, "7 3\n", "99999999999 3\n"), "line 2: the number \"99999999999"},
    // Comma-separated picks.
    {"a.csv", "", "line 1: the first line names no receiver"},
    {"a.csv", ";;1;2\n;;1;2;3\n", "line 2: there are 3 elevations for 2 receivers"},
    {"a.csv", replaced(kCsv, "10.25", "x"), "line 3: invalid stod argument: the first-break time",
     "invalid stod argument\n"},
    {"a.csv", replaced(kCsv, "10.25", ""),
     "line 3: invalid stod argument: the first-break time \"\"", "invalid stod argument\n"},
    {"a.csv", replaced(kCsv, "10.25", "1e999"), "line 3: stod argument out of range: the first-bre",
     "stod argument out of range\n"},
    {"a.csv", replaced(kCsv, "20;0", "20;0;1"), "line 4: there are 4 times for 3 receivers"},
    {"a.csv", kCsv + "5\n", "line 5: the shot has no elevation"},
};

TEST(Readers, nameFileLineAndFaultOfWhatTheyRefuse) {
  for (const Refused& c : kRefused) {
    const ConsoleCapture console;
    TravelTimeData data;
    data.format = "kept";
    const Status status = parseTravelTimes(c.text, c.path, data);
    ASSERT_FALSE(status.ok()) << c.message;
    EXPECT_EQ(status.code(), 1);
    EXPECT_THAT(status.message(), HasSubstr(c.message));
    EXPECT_THAT(status.message(), HasSubstr(std::string(c.path) + ", line "));
    EXPECT_EQ(console.error(), c.console != nullptr ? c.console : status.message() + "\n");
    EXPECT_EQ(data.format, "kept") << c.message;
  }
}

struct Tolerated {
  const char* path;
  std::string text;
  const char* warning;
};

const std::vector<Tolerated> kTolerated = {
    {"a.otte", replaced(kOtte, "1.0", "2.7"), "the format version \"2.7\" was read as \"1.0\""},
    {"a.otte", replaced(kOtte, "\n2\n1\n", "\n3\n1\n"), "line 3 holds 3, not 2"},
    {"a.otte", kOtte.substr(0, kOtte.size() - 2), "does not end in \";\""},
    {"a.otte", replaced(kOtte, "20;0;", "20;"), "record 1 holds 2 times for 3 geophones"},
    {"a.txt", kTxCurves + "SEISMIC_DATA_FILE_NAME", "line 21 and what follows it was ignored"},
    {"a.xyz", replaced(kPickTable, "30 20 0", "30  0"), "line 15: \"\" is not a number and was"},
    {"a.xyz", replaced(kPickTable, "30 20 0", "30 - 0"), "line 15: \"-\" is not a number and was"},
    {"a.xyz", replaced(kPickTable, "7 3\n102.5 99", "7 3 3\n102.5 1 99"),
     "number 3 is named twice"},
    {"a.xyz", kPickTable + "1 2 3\n", "line 16 and what follows it was ignored"},
    {"a.csv", replaced(kCsv, ";102\n", "\n"), "1 receiver without an elevation were taken"},
    {"a.csv", replaced(kCsv, "20;0", "20"), "line 4: only 2 times for 3 receivers"},
    {"a.csv", kCsv + "\n1;2;3\n", "line 6 and what follows it was ignored"},
    {"a.csv", ";;0;5\n;;1;1\n", "the file holds no shot"},
};

TEST(Readers, tellWhatTheyRepairedOrIgnored) {
  for (const Tolerated& c : kTolerated) {
    const ConsoleCapture console;
    TravelTimeData data;
    ASSERT_TRUE(parseTravelTimes(c.text, c.path, data).ok()) << c.warning << console.error();
    EXPECT_THAT(data.warnings, ::testing::Contains(HasSubstr(c.warning)));
    EXPECT_THAT(console.error(), HasSubstr(c.warning));
  }
}

TEST(OtteReader, printsTheVersionWordEvenWhenItRefusesTheRest) {
  for (const std::string& text : {kOtte, replaced(kOtte, "10.25", "x")}) {
    const ConsoleCapture console;
    TravelTimeData data;
    (void)parseTravelTimes(text, "a.otte", data);
    EXPECT_EQ(console.out(), "1.0\n");
  }
}

TEST(CsvReader, takesLinesOfTheFullLengthAndNotOneMore) {
  const std::string longLine = "12.5;102.5;" + std::string(238, '0') + ";20;30";
  const std::string text = ";;0;5;10\r\n;;1;1;1\r\n" + longLine;
  TravelTimeData data;
  EXPECT_FALSE(readCsvPicks(text + ";\r\n", data));
  const auto refusal = readCsvPicks(text + "0;\r\n", data);
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->line, 3u);
  EXPECT_THAT(refusal->reason.english(), HasSubstr("holds 257 characters, more than the limit"));
}

TEST(ReadTravelTimes, takesPickTablesOfLongerLinesThanTheirReaderAndSaysSo) {
  const std::string wide = replaced(kCsv, "12.5;102.5", "12.5;102.5" + std::string(250, '0'));
  for (const char* path : {"a.csv", "a.txt", "a.tab"}) {
    TravelTimeData data;
    ASSERT_TRUE(parseTravelTimes(wide, path, data).ok()) << path;
    expectTheSurvey(data);
  }
  TravelTimeData data;
  ASSERT_TRUE(parseTravelTimes(wide, "a.csv", data).ok());
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("it was read as a pick table of long lines")));
  // With a fault of its own both reasons are told, that of the suffix first.
  const Status status = parseTravelTimes(replaced(wide, "30;20", "30;x"), "a.csv", data);
  EXPECT_THAT(status.message(), HasSubstr("a.csv, line 4: the line holds 267 characters"));
  EXPECT_THAT(status.message(), HasSubstr("line 4: invalid stod argument"));
}

TEST(TxCurveReader, takesAMissingShotElevationFromTheReceivers) {
  const struct {
    const char* location;
    double elevation;
  } cases[] = {{"2.5", 100.5}, {"10", 102.0}, {"-3", 100.0}, {"40", 102.0}, {"7.5 90", 90.0}};
  for (const auto& c : cases) {
    TravelTimeData data;
    const std::string text = replaced(kTxCurves, "-2.5 99", c.location);
    ASSERT_TRUE(parseTravelTimes(text, "a.txt", data).ok());
    EXPECT_DOUBLE_EQ(data.records[0].shotPos2d.z, c.elevation) << c.location;
  }
}

TEST(TxCurveReader, laysEverythingLevelWithoutTheElevationFlag) {
  TravelTimeData data;
  const std::string text = replaced(kTxCurves, "ELEVATION 1", "ELEVATION 0");
  ASSERT_TRUE(parseTravelTimes(text, "a.txt", data).ok());
  EXPECT_THAT(data.strings[0], ElementsAre(Point2D{0, 0}, Point2D{5, 0}, Point2D{10, 0}));
  EXPECT_EQ(data.records[0].shotPos2d, (Point2D{-2.5, 0}));
}

TEST(TxCurveReader, givesEachSpreadItsStringInTheOrderOfAppearance) {
  std::string text = "TX_CURVE\nVERSION:\nINFO\nELEVATION 0\nTOTAL_NUMBER_OF_SHOTS 3\n";
  for (const char* receivers : {"1 9 0 1\n2 8 0 1\n", "1 0 0 1\n2 5 0 1\n", "1 9 0 7\n2 8 0 7\n"}) {
    text += "SEISMIC_DATA_FILE_NAME a\nSHOT_LOCATION 0\nNUMBER_OF_RECEIVERS 2\n";
    text += receivers;
  }
  TravelTimeData data;
  ASSERT_TRUE(parseTravelTimes(text, "a.txt", data).ok());
  EXPECT_THAT(data.strings, ElementsAre(ElementsAre(Point2D{9, 0}, Point2D{8, 0}),
                                        ElementsAre(Point2D{0, 0}, Point2D{5, 0})));
  EXPECT_EQ(data.records[0].indexStesa, 0);
  EXPECT_EQ(data.records[1].indexStesa, 1);
  EXPECT_EQ(data.records[2].indexStesa, 0);
}

TEST(ReadTravelTimes, saysWhichFileItCannotOpen) {
  for (const std::string path : {"/no/such/file.otte", "/no/such/file.csv"}) {
    const ConsoleCapture console;
    TravelTimeData data;
    const Status status = readTravelTimes(path, data);
    EXPECT_EQ(console.error(), "File " + path + " cannot be open.\n");
    EXPECT_THAT(status.message(), HasSubstr("File " + path + " cannot be open."));
    EXPECT_EQ(status.code(), 1);
  }
}

TEST(ReadTravelTimes, refusesAFolderWithASuitableName) {
  const TestFolder area;
  const std::string folder = area.file("dir.otte");
  ASSERT_TRUE(QDir().mkdir(QString::fromStdString(folder)));
  const ConsoleCapture console;
  TravelTimeData data;
  EXPECT_FALSE(readTravelTimes(folder, data).ok());
  EXPECT_EQ(console.error(), "File " + folder + " cannot be open.\n");
}

}  // namespace
}  // namespace talvesk
