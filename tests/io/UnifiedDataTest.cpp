#include "Samples.h"
#include "io/TravelTimeFile.h"
#include "io/UnifiedDataFile.h"
#include "support/CommaLocale.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Shots at positions 1 and 5, geophones at 2, 3 and 4; the geophone in the middle is a shot, too.
const std::string kUnified =
    "5 # shot/geophone points\n#x\tz\n-2.5 99\n0 100\n5 101\n10 102\n12.5 102.5\n"
    "5 # measurements\n#s g t err valid\n"
    "1 2 0.0055 0.001 1\n1 3 0.01025 0.002 1\n1 4 0.02 0.001 0\n5 2 0.03 0.001 1\n5 3 0.02 0 1\n";

TravelTimeData read(const std::string& text, const char* path = "a.sgt") {
  TravelTimeData data;
  const Status status = parseTravelTimes(text, path, data);
  EXPECT_TRUE(status.ok()) << status.message();
  return data;
}

TEST(UnifiedData, becomesOneStringWithATimePerShotAndGeophone) {
  const CommaNumbers locale;
  const TravelTimeData data = read(kUnified);
  EXPECT_EQ(data.format, "sgt");
  EXPECT_THAT(data.strings,
              ElementsAre(ElementsAre(Point2D{0, 100}, Point2D{5, 101}, Point2D{10, 102})));
  ASSERT_EQ(data.records.size(), 2u);
  EXPECT_EQ(data.records[1].shotPos2d, (Point2D{12.5, 102.5}));
  EXPECT_EQ(data.records[1].traceSetID, 1);
  EXPECT_THAT(data.records[0].ttMisurati, ElementsAre(0.0055, 0.01025, kNoTime));
  EXPECT_THAT(data.records[1].ttMisurati, ElementsAre(0.03, 0.02, kNoTime));
  EXPECT_THAT(errorsOf(data), ElementsAre(ElementsAre(0.001, 0.002, 0), ElementsAre(0.001, 0, 0)));
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("1 times are marked as not valid")));
}

TEST(UnifiedData, isToldByItsContentUnderEverySuffix) {
  for (const char* path : {"a.dat", "a.txt", "a.csv", "a.SGT", "a"}) {
    EXPECT_EQ(read(kUnified, path).format, "sgt") << path;
  }
  const TestFolder folder;
  EXPECT_TRUE(holdsTravelTimes(folder.put("picks.dat", kUnified)));
  EXPECT_FALSE(
      holdsTravelTimes(folder.put("shot.dat", std::string("\x55\x3A\1\0\n", 5) + kUnified)));
  EXPECT_FALSE(holdsTravelTimes(folder.path()));
  EXPECT_FALSE(holdsTravelTimes(folder.put("a.otte", kOtte)));
}

struct Variant {
  const char* what;
  std::string text;
  std::vector<Point2D> geophones;
  const char* warning;  ///< null: none but that of the sample
};

TEST(UnifiedData, takesElevationsFromWhereTheyStand) {
  const std::string flat = replaced(
      replaced(
          replaced(replaced(replaced(kUnified, "-2.5 99", "-2.5"), "0 100", "0"), "5 101", "5"),
          "10 102", "10"),
      "12.5 102.5", "12.5");
  const std::string three = replaced(
      replaced(replaced(replaced(replaced(kUnified, "-2.5 99", "-2.5 7 99"), "0 100", "0 7 100"),
                        "5 101", "5 7 101"),
               "10 102", "10 7 102"),
      "12.5 102.5", "12.5 7 102.5");
  const std::string upInY = replaced(
      replaced(replaced(replaced(replaced(kUnified, "-2.5 99", "-2.5 99 0"), "0 100", "0 100 0"),
                        "5 101", "5 101 0"),
               "10 102", "10 102 0"),
      "12.5 102.5", "12.5 102.5 0");
  const std::vector<Point2D> up = {{0, 100}, {5, 101}, {10, 102}};
  const std::vector<Point2D> level = {{0, 0}, {5, 0}, {10, 0}};
  const Variant variants[] = {
      {"no line of axes", replaced(kUnified, "#x\tz\n", ""), up, nullptr},
      {"called y", replaced(kUnified, "#x\tz", "# X Y"), up, nullptr},
      {"carriage returns", replaced(kUnified, "\n", "\r\n"), up, nullptr},
      {"third of three", three, up, "the second of three coordinates was not read"},
      {"second of three", upInY, up, "the second one was taken for the elevation"},
      {"none", flat, level, nullptr},
      {"topography", flat + "2 # topography\n#x z\n-10 98\n40 108\n", up, nullptr},
      {"topography of nothing", kUnified + "0\n", up, nullptr},
      {"topography besides", kUnified + "1\n0 7\n", up, "the topography was not used"}};
  for (const Variant& variant : variants) {
    const TravelTimeData data = read(variant.text);
    ASSERT_EQ(data.strings.size(), 1u) << variant.what;
    EXPECT_EQ(data.strings[0], variant.geophones) << variant.what;
    EXPECT_EQ(data.warnings.size(), variant.warning == nullptr ? 1u : 2u) << variant.what;
    if (variant.warning != nullptr) {
      EXPECT_THAT(data.warnings, Contains(HasSubstr(variant.warning))) << variant.what;
    }
  }
}

TEST(UnifiedData, takesMillisecondsAndColumnsInAnyOrder) {
  const TravelTimeData data =
      read("3\n0\n5\n10\n2\n# err/ms t/ms g s\n2 10.25 2 1\n1 5.5 2 3 # near\n");
  EXPECT_THAT(data.records[0].ttMisurati, ElementsAre(0.01025));
  EXPECT_THAT(data.records[1].ttMisurati, ElementsAre(0.0055));
  EXPECT_THAT(errorsOf(data), ElementsAre(ElementsAre(0.002), ElementsAre(0.001)));
}

TEST(UnifiedData, tellsWhatItLeavesOut) {
  const struct {
    std::string text;
    const char* warning;
  } cases[] = {
      {replaced(kUnified, "5 3 0.02 0 1", "5 3 0 0 1"), "1 times are not above 0"},
      {replaced(kUnified, "5 3 0.02 0 1", "5 2 0.02 0 1"), "had one already; the first of them"},
      {replaced(replaced(kUnified, "5 # shot", "6 # shot"), "\n5 # mea", "\n90 90\n5 # mea"),
       "1 positions are no shot and no geophone"},
      {kUnified + "0\nmore\n", "line 16 and what follows it was ignored"}};
  for (const auto& c : cases) EXPECT_THAT(read(c.text).warnings, Contains(HasSubstr(c.warning)));
}

TEST(UnifiedData, refusesWhatDoesNotHangTogether) {
  const struct {
    std::string text;
    const char* reason;
  } cases[] = {
      {replaced(kUnified, "5 3 0.02", "6 3 0.02"),
       "line 14: the shot \"6\" is none of the 5 posit"},
      {replaced(kUnified, "5 3 0.02", "5 0 0.02"), "line 14: the receiver \"0\" is none of the 5"},
      {replaced(kUnified, "5 3 0.02", "5 1.5 0.02"), "line 14: the receiver \"1.5\" is none"},
      {replaced(kUnified, "5 3 0.02", "5 3 nan"), "line 14: the time \"nan\" is not finite"},
      {replaced(kUnified, "5 3 0.02 0 1\n", "5 3\n"), "line 14: the line holds 2 values"},
      {replaced(kUnified, "5 3 0.02 0 1\n", ""), "the file ends after 4 of 5 lines"},
      {replaced(kUnified, "5 # mea", "2000000000 # mea"), "ends after 5 of 2000000000 lines"},
      {replaced(kUnified, "5 # sh", "-5 # sh"), "line 1: the number of positions is negative"},
      {replaced(kUnified, "#s g t", "#s g rhoa"), "no columns \"s\", \"g\" and \"t\" are named"},
      {replaced(kUnified, "#s g t", "#s g t/min"), "the unit of the column \"t/min\" is none"},
      {replaced(kUnified, "5 101", "5 1e99"), "line 5: the position \"1e99\" is out of range"},
      {"1\n0\n0\n#s g t\n", "the file holds no measurement"}};
  for (const auto& c : cases) {
    TravelTimeData data;
    data.format = "kept";
    EXPECT_THAT(parseTravelTimes(c.text, "a.sgt", data).message(), HasSubstr(c.reason));
    EXPECT_EQ(data.format, "kept");
  }
}

TEST(UnifiedData, refusesMoreShotsTimesGeophonesThanALineHas) {
  const std::size_t count = 30000;
  std::string text = std::to_string(count) + "\n";
  std::string times;
  for (std::size_t i = 1; i <= count; ++i) {
    text += std::to_string(i) + "\n";
    times += std::to_string(i) + ' ' + std::to_string(count + 1 - i) + " 1\n";
  }
  TravelTimeData data;
  const auto refusal = readUnifiedData(text + std::to_string(count) + "\n#s g t\n" + times, data);
  ASSERT_TRUE(refusal);
  EXPECT_THAT(refusal->reason.english(), HasSubstr("30000 shots and 30000 geophones are far too"));
}

TEST(UnifiedData, comesBackAsItWasWritten) {
  TravelTimeData data = read(replaced(kUnified, "0.001 0\n", "0.001 1\n"));
  data.strings[0][1].x = 566245.87654321;  // digits that the exchange format does not keep
  data.records[0].ttMisurati.edit()[0] = 1.0 / 3.0;
  const TravelTimeData back = read(formatUnifiedData(data));
  EXPECT_THAT(back.strings[0], ElementsAre(data.strings[0][0], data.strings[0][2],
                                           data.strings[0][1]));  // along the line
  ASSERT_EQ(back.records.size(), 2u);
  EXPECT_EQ(back.records[1].shotPos2d, data.records[1].shotPos2d);
  EXPECT_THAT(back.records[0].ttMisurati, ElementsAre(1.0 / 3.0, 0.02, 0.01025));
  EXPECT_THAT(back.records[1].ttMisurati, ElementsAre(0.03, kNoTime, 0.02));
  EXPECT_THAT(errorsOf(back)[0], ElementsAre(0, 0.001, 0.002));
  EXPECT_THAT(back.warnings, IsEmpty());
}

TEST(UnifiedData, writesNoErrorsThatNobodyTold) {
  const std::string text = formatUnifiedData(read(kOtte, "a.otte"));
  EXPECT_THAT(text, HasSubstr("4 # measurements\n#s g t valid\n1 2 0.0055 1\n1 3 0.01025 1\n"));
  EXPECT_FALSE(tellsErrors(read(text)));
}

TEST(UnifiedData, saysWhatDoesNotComeBackFromIt) {
  TravelTimeData data = read(kOtte, "a.otte");
  data.records.push_back(data.records[0]);
  data.records.push_back(data.records[0]);
  data.records[3].ttMisurati.edit().assign(3, kNoTime);
  const TestFolder folder;
  std::vector<Message> losses;
  ASSERT_TRUE(writeTravelTimes(folder.file("a.sgt"), data, losses).ok());
  EXPECT_THAT(losses, ElementsAre(HasSubstr("1 shots have no pick"), HasSubstr("1 geophones have"),
                                  HasSubstr("1 shots lie at the place of another one")));
  data.records[0].setError(1, 0.001);
  ASSERT_TRUE(writeTravelTimes(folder.file("a.otte"), data, losses).ok());
  EXPECT_THAT(losses, ElementsAre(HasSubstr("no place for the errors of the picks")));
  ASSERT_TRUE(writeTravelTimes(folder.file("a.sgt"), data, losses).ok());
  EXPECT_THAT(losses, Contains(HasSubstr("the error of 5 picks is not known")));
}

}  // namespace
}  // namespace talvesk
