#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "support/ConsoleCapture.h"

#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using ::testing::ElementsAre;

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TravelTime record(std::vector<double> measured, Point2D shot = {}) {
  TravelTime record;
  record.shotPos2d = shot;
  record.ttMisurati.edit() = std::move(measured);
  return record;
}

struct Picks {
  std::vector<std::vector<double>> records;
  bool complete;
};

class PicksComplete : public ::testing::TestWithParam<Picks> {};

TEST_P(PicksComplete, whenMoreThanHalfAreNotZero) {
  TomoDocument document;
  for (const auto& times : GetParam().records) document.ttArray.edit().push_back(record(times));
  EXPECT_EQ(document.picksComplete(), GetParam().complete);
}

INSTANTIATE_TEST_SUITE_P(Documents, PicksComplete,
                         ::testing::Values(Picks{{}, false},                     //
                                           Picks{{{}}, false},                   //
                                           Picks{{{0.0}}, false},                //
                                           Picks{{{0.01}}, true},                //
                                           Picks{{{0.01, 0.0}}, false},          //
                                           Picks{{{0.01}, {0.02, 0.0}}, true},   // 2 > 3 / 2
                                           Picks{{{0.0, 0.0}, {0.02}}, false},   // 1 > 3 / 2
                                           Picks{{{kNan, kNoTime, 0.0}}, true},  // both count
                                           Picks{{{-0.0, -0.0, 0.1}}, false}));

TEST(FindTrace, tellsWhatDoesNotExist) {
  struct Case {
    std::int32_t set;
    std::int32_t trace;
    const char* error;
  };
  TomoDocument document;
  const Trace* found = nullptr;
  {
    const ConsoleCapture console;
    EXPECT_EQ(document.findTrace(0, 0, found), -1);
    EXPECT_EQ(console.error(), "[ERROR] No trace exists. \n");
  }
  document.recordings.edit().traceSets = {TraceSet(2), TraceSet(0)};
  for (const auto& [set, trace, error] : {Case{0, 2, "[ERROR] Trace 2 does not exist.\n"},
                                          Case{1, 0, "[ERROR] Trace 0 does not exist.\n"},
                                          Case{0, -1, "[ERROR] Trace -1 does not exist.\n"},
                                          Case{2, 0, "[ERROR] Trace set 2 does not exist.\n"},
                                          Case{-1, 0, "[ERROR] Trace set -1 does not exist.\n"}}) {
    const ConsoleCapture console;
    found = &document.recordings->traceSets[0][0];
    EXPECT_EQ(document.findTrace(set, trace, found), -1);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(console.error(), error);
  }
  EXPECT_EQ(document.findTrace(0, 1, found), 0);
  EXPECT_EQ(found, &document.recordings->traceSets[0][1]);
}

TEST(Receivers, areTheGeophonesElseWhereTheTracesSay) {
  TomoDocument document;
  document.line.edit().goephonesStringSet = {{{1.0, 2.0}, {3.0, 4.0}}, {}};
  document.recordings.edit().traceSets.resize(2);
  document.recordings.edit().traceSets[1].resize(1);
  document.recordings.edit().traceSets[1][0].receiverPosition = {7.0, 8.0};
  const std::vector<Point2D> geophones = {{1.0, 2.0}, {3.0, 4.0}};
  const std::vector<Point2D> headers = {{7.0, 8.0}};
  const struct {
    std::int32_t string, set;
    std::vector<Point2D> receivers;
  } cases[] = {{0, 1, geophones}, {0, -1, geophones}, {1, 1, headers}, {-1, 1, headers},
               {2, 1, headers},   {1, 0, {}},         {1, 2, {}},      {1, -1, {}}};
  for (const auto& [string, set, receivers] : cases) {
    TravelTime times;
    times.indexStesa = string;
    times.traceSetID = set;
    EXPECT_EQ(document.receiversOf(times), receivers) << string << ", " << set;
    EXPECT_EQ(document.tracesOf(times) != nullptr, set == 0 || set == 1) << set;
  }
}

TomoDocument hillLine() {
  TomoDocument document;
  document.line.edit().goephonesStringSet = {{{10.0, 1.0}, {0.0, 5.0}},
                                             {{10.0, 99.0}, {20.0, 3.0}}};
  document.ttArray.edit() = {record({}, {5.0, 9.0}), record({}, {-4.0, 50.0}),
                             record({}, {20.5, 50.0}), record({}, {0.0, 50.0})};
  return document;
}

TEST(Elevation, profileHoldsEveryDistanceOfTheLineOnce) {
  const ConsoleCapture console;
  EXPECT_THAT(hillLine().elevationProfile(), ElementsAre(Point2D{0.0, 5.0}, Point2D{5.0, 9.0},
                                                         Point2D{10.0, 1.0}, Point2D{20.0, 3.0}));
  EXPECT_EQ(console.out(), "10 insert\n0 insert\n20 insert\n5 insert\n");
}

TEST(Elevation, isLinearBetweenKnownPointsAndLevelBeyond) {
  const ConsoleCapture console;
  const TomoDocument document = hillLine();
  EXPECT_DOUBLE_EQ(document.elevationAt(2.5), 7.0);
  EXPECT_DOUBLE_EQ(document.elevationAt(15.0), 2.0);
  EXPECT_DOUBLE_EQ(document.elevationAt(-4.0), 5.0);
  EXPECT_DOUBLE_EQ(document.elevationAt(30.0), 3.0);
}

TEST(Elevation, smoothVariantRunsThroughTheKnownPoints) {
  const ConsoleCapture console;
  TomoDocument document;
  document.line.edit().goephonesStringSet = {
      {{0.0, 0.0}, {1.0, 1.0}, {2.0, 4.0}, {3.0, 9.0}, {4.0, 16.0}}};
  for (const double x : {0.0, 0.5, 1.5, 3.0, 3.25}) {
    EXPECT_NEAR(document.smoothElevationAt(x), x * x, 1e-12) << x;
  }
  EXPECT_NEAR(document.elevationAt(1.5), 2.5, 1e-12);
}

TEST(Elevation, makesDoWithFewPoints) {
  const ConsoleCapture console;
  TomoDocument document;
  EXPECT_EQ(document.elevationAt(3.0), 0.0);
  EXPECT_EQ(document.smoothElevationAt(3.0), 0.0);
  document.ttArray.edit() = {record({}, {3.0, 7.0}), record({}, {kNan, 8.0}),
                             record({}, {4.0, kNan})};
  EXPECT_THAT(document.elevationProfile(), ElementsAre(Point2D{3.0, 7.0}));
  EXPECT_EQ(document.elevationAt(3.0), 7.0);
  EXPECT_EQ(document.smoothElevationAt(99.0), 7.0);
}

TEST(TomoDocument, measuresStringsAndShotsForTheGrid) {
  const SurveyProfile profile = hillLine().surveyProfile();
  EXPECT_EQ(profile.minX, -4.0);
  EXPECT_EQ(profile.maxX, 20.5);
  EXPECT_EQ(profile.minSpacing, 10.0);
  EXPECT_TRUE(profile.hasGeometry());
  EXPECT_FALSE(TomoDocument().surveyProfile().hasGeometry());
}

}  // namespace
}  // namespace talvesk
