#include "Samples.h"
#include "io/OtteFile.h"
#include "io/TravelTimeFile.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A survey of strings of the given sizes, and one shot into each of the named ones.
TomoDocument survey(const std::vector<std::size_t>& sizes, const std::vector<int>& shots) {
  TomoDocument document;
  double x = -1.0 / 3.0;
  for (const std::size_t size : sizes) {
    auto& string = document.line.edit().goephonesStringSet.emplace_back();
    for (std::size_t i = 0; i < size; ++i, x += 2.0) string.push_back({x, 600.0 + std::sin(x)});
  }
  for (const int string : shots) {
    TravelTime record;
    record.indexStesa = string;
    record.traceSetID = static_cast<int>(document.ttArray.size());
    record.shotPos2d = {7.0 * record.traceSetID + 1e-7, 601.25};
    for (std::size_t i = 0; i < sizes[static_cast<std::size_t>(string)]; ++i) {
      record.ttMisurati.edit().push_back(i % 7 == 3 ? kNoTime : 0.001 * std::sqrt(3.0 * double(i)));
    }
    document.ttArray.edit().push_back(record);
  }
  return document;
}

std::vector<std::size_t> sizesOf(const std::vector<std::vector<Point2D>>& strings) {
  std::vector<std::size_t> sizes;
  for (const auto& string : strings) sizes.push_back(string.size());
  return sizes;
}

void expectSixDigits(double read, double written) {
  EXPECT_NEAR(read, written, 5e-6 * std::abs(written) + 1e-300);
}

TEST(OtteWriter, writesEveryLineOfTheFormat) {
  const ConsoleCapture console;
  TravelTimeData data;
  ASSERT_TRUE(parseTravelTimes(kOtte, "a.otte", data).ok());
  TomoDocument document;
  document.line.edit().goephonesStringSet = data.strings;
  document.ttArray.edit() = data.records;
  EXPECT_EQ(formatOtte(document), kOtte);
}

TEST(OtteWriter, writesWhatTheReaderRestores) {
  const TomoDocument document = survey({24, 24}, {0, 1, 0, 1, 1});
  const TestFolder folder;
  const std::string path = folder.file("restored.otte");
  const ConsoleCapture console;
  ASSERT_TRUE(writeTravelTimes(path, document).ok());
  TravelTimeData data;
  ASSERT_TRUE(readTravelTimes(path, data).ok());
  EXPECT_THAT(data.warnings, IsEmpty());
  EXPECT_THAT(sizesOf(data.strings), ElementsAre(24, 24));
  for (std::size_t s = 0; s < 2; ++s) {
    for (std::size_t i = 0; i < 24; ++i) {
      expectSixDigits(data.strings[s][i].x, document.line->goephonesStringSet[s][i].x);
      expectSixDigits(data.strings[s][i].z, document.line->goephonesStringSet[s][i].z);
    }
  }
  ASSERT_EQ(data.records.size(), 5u);
  for (std::size_t i = 0; i < 5; ++i) {
    const TravelTime& written = document.ttArray[i];
    EXPECT_EQ(data.records[i].indexStesa, written.indexStesa);
    EXPECT_EQ(data.records[i].traceSetID, written.traceSetID);
    expectSixDigits(data.records[i].shotPos2d.x, written.shotPos2d.x);
    ASSERT_EQ(data.records[i].ttMisurati.size(), 24u);
    for (std::size_t j = 0; j < 24; ++j) {
      expectSixDigits(data.records[i].ttMisurati[j], written.ttMisurati[j]);
    }
  }
}

TEST(OtteWriter, restoresAnEmptySurveyAndOneWithoutShots) {
  const ConsoleCapture console;
  for (const auto& sizes : {std::vector<std::size_t>{}, {0}, {3}, {2, 2, 2}}) {
    TravelTimeData data;
    ASSERT_TRUE(parseTravelTimes(formatOtte(survey(sizes, {})), "a.otte", data).ok());
    EXPECT_EQ(sizesOf(data.strings), sizes);
    EXPECT_THAT(data.records, IsEmpty());
  }
  EXPECT_EQ(formatOtte(TomoDocument()), "otte\n1.0\n2\n0\n\n\n\n\n");
}

TEST(OtteWriter, writesATimeThatIsNotFiniteAsNoPick) {
  const ConsoleCapture console;
  TomoDocument document = survey({4}, {0});
  document.ttArray.edit()[0].ttMisurati.edit() = {std::nan(""), HUGE_VAL, 1e308,
                                                  2.2250738585072014e-311};
  TravelTimeData data;
  ASSERT_TRUE(parseTravelTimes(formatOtte(document), "a.otte", data).ok());
  EXPECT_THAT(data.records[0].ttMisurati, ElementsAre(kNoTime, kNoTime, kNoTime, 0.0));
}

TEST(OtteWriter, leavesTheOldFileWhenAPositionIsNotFinite) {
  const TestFolder folder;
  const std::string path = folder.put("kept.otte", "old");
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const bool ofShot : {false, true}) {
    TomoDocument document = survey({2, 2}, {0, 1});
    (ofShot ? document.ttArray.edit()[1].shotPos2d.z
            : document.line.edit().goephonesStringSet[1][0].x) = nan;
    const ConsoleCapture console;
    const Status status = writeTravelTimes(path, document);
    EXPECT_THAT(status.message(), HasSubstr(ofShot ? "shot 2 has" : "a geophone of string 2 has"));
    EXPECT_EQ(console.error(), status.message() + "\n");
    EXPECT_EQ(TestFolder::get(path), "old");
  }
}

TEST(OtteWriter, failsWhereItCannotWrite) {
  const ConsoleCapture console;
  const Status status = writeTravelTimes("/no/such/folder/a.otte", survey({2}, {0}));
  EXPECT_FALSE(status.ok());
  EXPECT_THAT(console.error(), HasSubstr("/no/such/folder/a.otte"));
}

TEST(OtteWriter, warnsOfStringsThatTheFormatCannotTellApart) {
  const struct {
    std::vector<std::size_t> sizes;
    std::vector<int> shots;
    bool told;
  } cases[] = {{{3, 4}, {0, 1}, false},
               {{3, 4}, {1}, false},
               {{3, 4}, {}, true},
               {{3, 4, 5}, {0}, true},
               {{3, 4, 4}, {0}, false}};
  const TestFolder folder;
  for (const auto& c : cases) {
    const ConsoleCapture console;
    EXPECT_TRUE(writeTravelTimes(folder.file("lossy.otte"), survey(c.sizes, c.shots)).ok());
    EXPECT_EQ(!console.error().empty(), c.told) << console.error();
  }
}

/// A file of so many strings and geophones, and a record of so many times into each named string.
std::string fileOf(int strings, int geophones, const std::vector<std::pair<int, int>>& records) {
  const auto row = [](std::size_t n) {
    std::string text;
    for (std::size_t i = 0; i < n; ++i) text += std::to_string(i) + ";";
    return text + "\n";
  };
  const std::string positions = row(static_cast<std::size_t>(geophones));
  const std::string shots = row(records.size());
  std::string text =
      "otte\n1.0\n2\n" + std::to_string(strings) + "\n" + positions + positions + shots + shots;
  for (const auto& [string, times] : records) {
    text += std::to_string(string) + "\n0\n" + row(static_cast<std::size_t>(times));
  }
  return text;
}

TEST(OtteReader, takesRecordsWithoutATraceSetInTheirOrder) {
  const ConsoleCapture console;
  TravelTimeData data;
  const std::string picksOnly =
      replaced(replaced(kOtte, "0\n0\n5", "0\n-1\n5"), "0\n1\n30", "0\n-1\n30");
  ASSERT_TRUE(parseTravelTimes(picksOnly, "a.otte", data).ok());
  EXPECT_EQ(data.records.at(0).traceSetID, 0);
  EXPECT_EQ(data.records.at(1).traceSetID, 1);
  EXPECT_THAT(data.warnings, ElementsAre(HasSubstr("record 0 names trace set -1"),
                                         HasSubstr("record 1 names trace set -1")));
}

TEST(OtteReader, sizesTheStringsByTheRecordsThatNameThem) {
  const struct {
    int strings;
    int geophones;
    std::vector<std::pair<int, int>> records;  ///< string, times
    std::vector<std::size_t> sizes;            ///< empty: refused
    const char* told;
  } cases[] = {
      {1, 5, {{0, 5}}, {5}, ""},
      {1, 5, {{0, 3}}, {5}, "record 0 holds 3 times for 5 geophones"},
      {2, 5, {{0, 2}, {1, 3}}, {2, 3}, ""},
      {2, 5, {{1, 3}, {0, 2}, {1, 3}}, {2, 3}, ""},
      {3, 8, {{1, 4}}, {2, 4, 2}, ""},
      {3, 9, {{1, 4}}, {3, 4, 2}, "do not share 5 geophones equally"},
      {3, 4, {{1, 4}}, {0, 4, 0}, ""},
      {3, 2, {{0, 0}, {2, 0}, {1, 2}}, {0, 2, 0}, ""},
      {5, 2, {{0, 0}, {1, 2}}, {}, "the file names 5 strings for 2 geophones and 2 shots"},
      {2, 5, {{0, 1}, {0, 2}, {1, 3}}, {2, 3}, "record 0 holds 1 time for 2 geophones"},
      {2, 5, {{0, 1}, {1, 3}}, {}, "no string claims the last 1 geophone"},
      {2, 5, {{0, 3}, {1, 3}}, {}, "the records need 6 geophones in 2 strings, the file holds 5"},
      {2, 5, {{0, 5}, {0, 2}, {1, 3}}, {}, "the records need 8 geophones"},
  };
  for (const auto& c : cases) {
    const ConsoleCapture console;
    TravelTimeData data;
    const Status status =
        parseTravelTimes(fileOf(c.strings, c.geophones, c.records), "a.otte", data);
    EXPECT_EQ(status.ok(), !c.sizes.empty()) << c.told;
    EXPECT_EQ(sizesOf(data.strings), c.sizes) << c.told;
    EXPECT_THAT(console.error(), HasSubstr(c.told));
    EXPECT_EQ(console.error().empty(), *c.told == '\0') << console.error();
    if (c.sizes.size() == 2) {
      EXPECT_EQ(data.strings[1][0].x, double(c.sizes[0])) << c.told;
    }
  }
}

}  // namespace
}  // namespace talvesk
