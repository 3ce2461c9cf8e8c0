#include "doctor/Doctor.h"
#include "doctor/PickedLine.h"
#include "doctor/ReciprocityTable.h"
#include "model/Mending.h"

#include <limits>
#include <random>

#include <gmock/gmock.h>

namespace talvesk::doctor {
namespace {

using namespace testing;
using ::testing::HasSubstr;

/// Shots at geophones, so that nothing has to be interpolated: eight of them, 6 m apart.
LinePlan atGeophones() {
  LinePlan plan;
  plan.shots = {0.0, 6.0, 12.0, 18.0, 24.0, 30.0, 36.0, 42.0};
  plan.samples = 400;
  return plan;
}

TomoDocument pickedLine(const std::vector<double>& late = {},
                        const LinePlan& plan = atGeophones()) {
  TomoDocument document = soundLine(plan);
  pickLine(document, late);
  return document;
}

std::vector<std::size_t> named(const ReciprocityTable& table) {
  std::vector<std::size_t> shots;
  for (std::size_t i = 0; i < table.shots.size(); ++i) {
    if (table.shots[i].standsOut()) shots.push_back(i);
  }
  return shots;
}

void removePicks(TomoDocument& document, std::size_t shot, std::size_t from, std::size_t to) {
  for (std::size_t t = from; t <= to; ++t) {
    document.ttArray.edit()[shot].ttMisurati.edit()[t] = kNoTime;
  }
}

TEST(ReciprocityTable, findsNoDifferenceWhereEveryWayBackTakesAsLong) {
  const ReciprocityTable table = reciprocityOf(pickedLine());
  ASSERT_EQ(table.pairs.size(), 28U);
  for (const ReciprocalTimes& pair : table.pairs) EXPECT_NEAR(pair.difference(), 0.0, 1e-12);
  EXPECT_EQ(table.pairs[0].thereTrace, 3U);  // of the shot at 0 m, at 6 m
  EXPECT_EQ(table.pairs[0].backTrace, 0U);
  EXPECT_EQ(table.pairs[0].error, 0.0);
  EXPECT_TRUE(named(table).empty());
  for (const ShotReciprocity& shot : table.shots) EXPECT_EQ(shot.pairs, 7U);
}

TEST(ReciprocityTable, namesTheShotsThatAreLateOrEarlyAndByHowMuch) {
  struct Case {
    const char* name;
    std::vector<double> late;
    std::vector<std::size_t> named;
  };
  const std::vector<Case> cases = {{"late", {0, 0, 0.003}, {2}},
                                   {"early", {0, 0, 0, 0, -0.002}, {4}},
                                   {"at the end of the line", {0.003}, {0}},
                                   {"two of them", {0, 0.003, 0, 0, 0, -0.005}, {1, 5}},
                                   {"less than a sample", {0, 0, 0.0002}, {}},
                                   {"all alike", std::vector<double>(8, 0.003), {}}};
  for (const Case& each : cases) {
    const TomoDocument document = pickedLine(each.late);
    const ReciprocityTable table = reciprocityOf(document);
    EXPECT_EQ(named(table), each.named) << each.name;
    for (const std::size_t shot : each.named) {
      EXPECT_NEAR(table.shots[shot].shift, each.late[shot], 1e-5) << each.name;
      EXPECT_NEAR(*table.shots[shot].mend, each.late[shot], 1e-9) << each.name;
      EXPECT_EQ(table.shots[shot].pairs, 7U);
    }
  }
}

TEST(ReciprocityTable, mendsALateShotByTheShiftThatItNames) {
  TomoDocument document = pickedLine({0, 0, 0.003});
  const ReciprocityTable before = reciprocityOf(document);
  EXPECT_NEAR(before.shots[2].rms, 0.003, 1e-9);
  EXPECT_NEAR(before.shots[5].rms, 0.003 / std::sqrt(7.0), 1e-9);
  EXPECT_FALSE(lateShot(document, before, 1).has_value());
  const std::optional<Finding> finding = lateShot(document, before, 2);
  ASSERT_TRUE(finding && finding->proposal);
  EXPECT_THAT(finding->text.english(), HasSubstr("the record is 3 ms late"));
  ASSERT_TRUE(carryOut(*finding, *finding->proposal, document).ok());
  EXPECT_NEAR(mendsOfRecord(document, 2).timeShift, 0.003, 1e-12);
  const ReciprocityTable after = reciprocityOf(document);
  EXPECT_TRUE(named(after).empty());
  EXPECT_EQ(after.pairs.size(), before.pairs.size());
  EXPECT_LT(after.rms, 1e-6);
}

TEST(ReciprocityTable, countsPicksWithinHalfASpacingAndNotAcrossAShot) {
  struct Case {
    const char* name;
    double first;  ///< metres, of two shots beside geophones from 0 to 46 m, 2 m apart
    double second;
    std::size_t pairs;
  };
  const Case cases[] = {{"between geophones", 5.0, 31.0, 1},
                        {"half a spacing beyond the end", -1.0, 31.0, 1},
                        {"farther beyond the end", -1.2, 31.0, 0},
                        {"both beyond", -0.8, 46.9, 1},
                        {"in one place", 7.0, 7.0, 0},
                        {"at one geophone", 8.0, 8.0, 0},
                        {"both in one place beyond", -0.8, -0.8, 0},
                        {"one behind the other", -0.8, -0.4, 0},
                        {"between the same two geophones", 6.5, 7.5, 0},
                        {"next to each other", 5.0, 7.0, 1}};
  for (const Case& each : cases) {
    LinePlan plan = atGeophones();
    plan.shots = {each.first, each.second};
    const ReciprocityTable table = reciprocityOf(pickedLine({}, plan));
    ASSERT_EQ(table.pairs.size(), each.pairs) << each.name;
    // A curve bends between two geophones, and beyond the last one.
    for (const auto& pair : table.pairs) EXPECT_LT(std::fabs(pair.difference()), 2e-4) << each.name;
  }
}

TEST(ReciprocityTable, takesNoTimeFromAGap) {
  TomoDocument document = pickedLine();
  removePicks(document, 1, 11, 13);  // around 24 m
  ReciprocityTable table = reciprocityOf(document);
  EXPECT_EQ(table.pairs.size(), 27U);
  EXPECT_EQ(table.shots[4].pairs, 6U);
  EXPECT_TRUE(named(table).empty());

  document = pickedLine();
  removePicks(document, 1, 12, 12);  // one trace alone is bridged
  table = reciprocityOf(document);
  EXPECT_EQ(table.pairs.size(), 28U);
}

TEST(ReciprocityTable, needsEnoughPairsToNameAShot) {
  LinePlan plan = atGeophones();
  plan.shots = {0.0, 18.0, 36.0};
  EXPECT_TRUE(named(reciprocityOf(pickedLine({0, 0.003}, plan))).empty());
  plan.shots = {0.0, 12.0, 24.0, 36.0};
  EXPECT_EQ(named(reciprocityOf(pickedLine({0, 0.003}, plan))), std::vector<std::size_t>{1});
}

TEST(ReciprocityTable, isNotMisledByOnePickThatIsFarOff) {
  TomoDocument document = pickedLine({0, 0, 0, 0.003});
  document.ttArray.edit()[6].ttMisurati.edit()[3] += 0.030;  // to the shot at 6 m
  const ReciprocityTable table = reciprocityOf(document);
  EXPECT_EQ(named(table), std::vector<std::size_t>{3});
  EXPECT_NEAR(*table.shots[3].mend, 0.003, 1e-9);
  ASSERT_EQ(table.worstPairs(3).size(), 3U);
  const ReciprocalTimes& worst = table.pairs[table.worstPairs(3).front()];
  EXPECT_EQ(worst.first, 1U);
  EXPECT_EQ(worst.second, 6U);
  EXPECT_EQ(worst.backTrace, 3U);
}

TEST(ReciprocityTable, seldomNamesAShotForTheScatterOfItsPicks) {
  std::mt19937 random(7);
  std::normal_distribution<double> noise(0.0, 0.001);
  std::size_t shots = 0;
  std::size_t wrong = 0;
  std::size_t found = 0;
  for (int line = 0; line < 40; ++line) {
    TomoDocument document = pickedLine({0, 0, 0, 0.006});
    for (TravelTime& record : document.ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) {
        if (hasPick(time)) time += noise(random);
      }
    }
    for (const std::size_t shot : named(reciprocityOf(document))) ++(shot == 3 ? found : wrong);
    shots += 8;
  }
  EXPECT_LE(wrong, 3U) << "of " << shots;
  EXPECT_GE(found, 38U);
}

/// Crews whose clocks all wander have no shot that is late against the others.
TEST(ReciprocityTable, namesOnlyTheExceptions) {
  std::vector<double> late = {0.001, -0.0012, 0.0004, -0.0003, 0.0008, -0.0011, 0.0005, -0.0006};
  EXPECT_TRUE(named(reciprocityOf(pickedLine(late))).empty());
  late[4] = 0.006;
  EXPECT_EQ(named(reciprocityOf(pickedLine(late))), std::vector<std::size_t>{4});
}

/// A line that rolls along has hardly more pairs than shots: any shifts fit most of them.
TEST(ReciprocityTable, namesNoShotWhereFewPairsFitByChance) {
  std::mt19937 random(11);
  std::normal_distribution<double> noise(0.0, 0.008);
  std::size_t wrong = 0;
  for (int line = 0; line < 40; ++line) {
    TomoDocument document = pickedLine();
    for (std::size_t shot = 0; shot < 8; ++shot) {
      for (std::size_t t = 0; t < 24; ++t) {
        double& time = document.ttArray.edit()[shot].ttMisurati.edit()[t];
        const std::size_t other = t / 3;
        const std::size_t apart = other > shot ? other - shot : shot - other;
        time = apart <= 1 || (shot % 4 == 0 && apart == 2) ? time + 0.1 + noise(random) : kNoTime;
      }
    }
    wrong += named(reciprocityOf(document)).size();
  }
  EXPECT_LE(wrong, 3U) << "of 320 shots";
}

TEST(ReciprocityTable, tellsTheErrorOfADifferenceWhereBothPicksTellTheirs) {
  TomoDocument document = pickedLine();
  document.ttArray.edit()[0].setError(3, 0.003);
  document.ttArray.edit()[1].setError(0, 0.004);
  document.ttArray.edit()[0].setError(6, 0.003);  // the shot at 12 m does not tell its own
  const ReciprocityTable table = reciprocityOf(document);
  EXPECT_NEAR(table.pairs[0].error, 0.005, 1e-12);
  EXPECT_EQ(table.pairs[1].error, 0.0);
}

TEST(ReciprocityTable, offersNoMendWhereThereIsNoRecording) {
  TomoDocument document = pickedLine({0, 0, 0.003});
  document.recordings.edit() = {};
  const ReciprocityTable table = reciprocityOf(document);
  EXPECT_EQ(named(table), std::vector<std::size_t>{2});
  EXPECT_FALSE(lateShot(document, table, 2).has_value());
}

TEST(ReciprocityTable, staysSaneWithStrangePositionsAndTimes) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  TomoDocument document = pickedLine({0, 0, 0.003});
  document.ttArray.edit()[1].shotPos2d.x = nan;
  document.line.edit().goephonesStringSet[0][5].x = nan;
  document.ttArray.edit()[4].ttMisurati.edit()[2] = std::numeric_limits<double>::infinity();
  document.ttArray.edit()[6].ttMisurati.edit().resize(4);
  document.ttArray.edit()[7].indexStesa = 40;
  const ReciprocityTable table = reciprocityOf(document);
  EXPECT_GT(table.pairs.size(), 5U);
  EXPECT_TRUE(std::isfinite(table.rms));
  EXPECT_EQ(table.shots[1].pairs, 0U);

  EXPECT_TRUE(reciprocityOf(TomoDocument()).pairs.empty());
  TomoDocument heap = pickedLine();
  for (Point2D& geophone : heap.line.edit().goephonesStringSet[0]) geophone.x = 3.0;
  EXPECT_TRUE(reciprocityOf(heap).pairs.empty());
}

TEST(ReciprocityTable, saysWhyThereAreNoPairs) {
  TomoDocument document = soundLine(atGeophones());
  EXPECT_EQ(whyNoPairs(document).english(), "There are no picks yet.");
  document.ttArray.edit()[2].ttMisurati.edit()[4] = 0.02;
  EXPECT_EQ(whyNoPairs(document).english(), "Only one shot has picks.");
  document.ttArray.edit()[5].ttMisurati.edit()[4] = 0.02;
  EXPECT_THAT(whyNoPairs(document).english(), HasSubstr("No two shots have picks within half"));
}

}  // namespace
}  // namespace talvesk::doctor
