#include "Samples.h"
#include "io/HeadedPicks.h"
#include "io/TravelTimeFile.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TravelTimeData read(const std::string& text, std::optional<TimeUnit> unit = std::nullopt,
                    const char* path = "a.csv") {
  TravelTimeData data;
  const Status status = parseTravelTimes(text, path, data, {false, unit});
  EXPECT_TRUE(status.ok()) << status.message() << text;
  return data;
}

/// The survey of Samples.h without its pick of 0, which such a table does not tell from none.
void expectTheSurvey(const TravelTimeData& data, const std::string& text) {
  ASSERT_EQ(data.records.size(), 2u) << text;
  EXPECT_THAT(data.strings,
              ElementsAre(ElementsAre(Point2D{0, 100}, Point2D{5, 101}, Point2D{10, 102})))
      << text;
  EXPECT_EQ(data.records[0].shotPos2d, (Point2D{-2.5, 99})) << text;
  EXPECT_EQ(data.records[1].shotPos2d, (Point2D{12.5, 102.5})) << text;
  EXPECT_THAT(data.records[0].ttMisurati, ElementsAre(0.0055, 0.01025, kNoTime)) << text;
  EXPECT_THAT(data.records[1].ttMisurati, ElementsAre(0.03, 0.02, kNoTime)) << text;
}

const std::string kTable =
    "sx,sz,gx,gz,t (ms)\n"
    "-2.5,99,5,101,10.25\n-2.5,99,0,100,5.5\n-2.5,99,10,102,\n"
    "12.5,102.5,0,100,30\n12.5,102.5,5,101,20\n";

TEST(HeadedPicks, areReadWhateverSeparatesAndMarksTheirNumbers) {
  const std::string commas = replaced(replaced(kTable, ",", ";"), ".", ",");
  const std::string utf16 = [] {
    std::string text = "\xFF\xFE";
    for (const char c : kTable) text += {c, '\0'};
    return text;
  }();
  const std::string texts[] = {
      kTable,
      replaced(kTable, ",", ";"),
      replaced(kTable, ",", "\t"),
      commas,
      replaced(kTable, "\n", "\r\n"),
      "\xEF\xBB\xBF" + kTable,
      utf16,
      replaced(replaced(replaced(kTable, "10,102,", "10,102,-"), ",", "  "), "t (ms)", "t [ms]"),
      replaced(kTable, "-2.5,99,5,", "\"-2.5\", \"99\" ,\"5\","),
      replaced(kTable, "sx,sz,gx,gz,t (ms)",
               "\"Shot X (m)\",shotElevation,x_receiver,zg,\"first break [ms]\""),
      "line 7\n\n# picked by hand\n#" + kTable + "\n# end\n",
      replaced(replaced(kTable, "t (ms)", "t (ms),comment"), "10.25\n",
               "10.25," + std::string(400, 'x') + "\n")};
  for (const std::string& text : texts) expectTheSurvey(read(text), text.substr(0, 60));
}

TEST(HeadedPicks, takeUnitsFromTheHeadingOrFromTheUser) {
  const std::string seconds = replaced(kTable, "t (ms)", "time");
  const struct {
    const char* heading;
    std::optional<TimeUnit> unit;
    double time;
  } cases[] = {{"t [s]", std::nullopt, 10.25},
               {"time_s", TimeUnit::kMilliseconds, 10.25},  // the file knows better
               {"traveltime (msec)", TimeUnit::kSeconds, 0.01025},
               {"time", TimeUnit::kSeconds, 10.25},
               {"time", TimeUnit::kMilliseconds, 0.01025}};
  for (const auto& c : cases) {
    const TravelTimeData data = read(replaced(kTable, "t (ms)", c.heading), c.unit);
    ASSERT_EQ(data.records.size(), 2u);
    EXPECT_EQ(data.records[0].ttMisurati[1], c.time) << c.heading;
  }
  const TestFolder folder;
  TravelTimeData data;
  const std::string path = folder.put("a.csv", seconds);
  EXPECT_THAT(readTravelTimes(path, data).message(),
              HasSubstr("line 1: the heading does not say whether its times are in ms or in s"));
  EXPECT_TRUE(asksForTimeUnit(path));
  EXPECT_FALSE(asksForTimeUnit(folder.put("b.csv", kTable)));
  EXPECT_FALSE(asksForTimeUnit(folder.put("c.csv", kCsv)));
  EXPECT_TRUE(readTravelTimes(path, data, {true, TimeUnit::kSeconds}).ok());
}

TEST(HeadedPicks, takeColumnsNamedShotAndGeophoneForPositionsAndSaySo) {
  const TravelTimeData data = read("Source\tReceiver\ttime (s)\n-2.5\t5\t0.01\n-2.5\t0\t0.005\n");
  EXPECT_THAT(data.strings[0], ElementsAre(Point2D{0, 0}, Point2D{5, 0}));
  EXPECT_THAT(data.warnings, Contains(HasSubstr("\"Source\" and \"Receiver\" were taken for pos")));
  // Beside positions they are names, and tell two shots of one place apart.
  const TravelTimeData two = read("shot,sx,gx,t_ms\nA,1,5,7\nB,1,5,8\nA,1,0,3\n");
  ASSERT_EQ(two.records.size(), 2u);
  EXPECT_THAT(two.records[0].ttMisurati, ElementsAre(0.003, 0.007));
  EXPECT_THAT(two.records[1].ttMisurati, ElementsAre(kNoTime, 0.008));
}

TEST(HeadedPicks, putShotsWithoutElevationsOnTheLineOfTheGeophones) {
  const TravelTimeData data =
      read("sx (ft),gx,elevation,t_ms,err\n0,0,10,1,0.2\n0,20,20,30,\n10,0,10,5,1\n");
  EXPECT_DOUBLE_EQ(data.records[1].shotPos2d.x, 3.048);
  EXPECT_DOUBLE_EQ(data.records[1].shotPos2d.z, 11.524);
  EXPECT_THAT(data.warnings, Contains(HasSubstr("were put on the line of the geophones")));
  EXPECT_THAT(errorsOf(data), ElementsAre(ElementsAre(0.0002, 0.0), ElementsAre(0.001, 0.0)));
}

TEST(HeadedPicks, joinAUnitToTheNameBeforeItEvenIfThatIsEmpty) {
  EXPECT_FALSE(looksLikeHeadedPicks("sx gx \"\" (ms)\n0 5 7\n"));
  const TravelTimeData data = read("sx gx \"\" t (ms)\n0 5 - 7\n");
  EXPECT_THAT(data.records[0].ttMisurati, ElementsAre(0.007));
}

TEST(HeadedPicks, countRowsThatAreNoPicks) {
  const TravelTimeData data =
      read("sx,gx,t_ms,valid\n0,5,nan,1\n0,6,NA,1\n0,7,-99000,1\n0,8,0,1\n0,9,9,0\n0,10,10,1\n");
  EXPECT_THAT(data.records[0].ttMisurati,
              ElementsAre(kNoTime, kNoTime, kNoTime, kNoTime, kNoTime, 0.01));
  EXPECT_THAT(data.warnings, Contains(HasSubstr("5 of 6 rows have no time above 0")));
}

TEST(HeadedPicks, refuseRowsThatCannotBePlaced) {
  const struct {
    std::string text;
    const char* reason;
  } cases[] = {
      {replaced(kTable, "12.5,102.5,0", "here,102.5,0"),
       "line 5: the shot distance \"here\" is not"},
      {replaced(kTable, "12.5,102.5,0", "12.5,102.5,"),
       "line 5: the receiver distance \"\" is not"},
      {replaced(kTable, "12.5,102.5,0", "12.5,inf,0"), "line 5: the shot elevation \"inf\" is out"},
      {replaced(kTable, "12.5,102.5,0", "1e10,102.5,0"),
       "line 5: the shot distance \"1e10\" is out"},
      {replaced(kTable, ",30", ",soon"), "line 5: the time \"soon\" is not a number"},
      {replaced(replaced(kTable, ",", ";"), "12.5", "1.012,5"), "the shot distance \"1.012,5\""},
      {"sx,gx,t_ms\n", "line 2: no row follows the heading"}};
  for (const auto& c : cases) {
    TravelTimeData data;
    const Status status = parseTravelTimes(c.text, "a.csv", data);
    EXPECT_THAT(status.message(), HasSubstr(c.reason));
    EXPECT_THAT(status.message(), HasSubstr("a.csv, line 1: "));  // what the reader of .csv says
    EXPECT_THAT(data.records, IsEmpty());
  }
}

TEST(HeadedPicks, leaveOtherFilesToTheReaderOfTheirSuffix) {
  for (const auto& [text, path] : {std::pair{kCsv, "a.csv"}, std::pair{kOtte, "a.otte"}}) {
    TravelTimeData data;
    EXPECT_FALSE(looksLikeHeadedPicks(text));
    ASSERT_TRUE(parseTravelTimes(text, path, data, {true, TimeUnit::kSeconds}).ok());
    EXPECT_EQ(data.records[0].ttMisurati[1], 0.01025) << path;
  }
}

}  // namespace
}  // namespace talvesk
