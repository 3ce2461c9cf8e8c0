#include "doctor/Doctor.h"
#include "doctor/SyntheticLine.h"
#include "model/Mending.h"

#include <limits>

#include <gtest/gtest.h>

namespace talvesk::doctor {
namespace {

using namespace testing;
using Kind = Proposal::Kind;

Finding about(std::size_t shot) {
  Finding finding;
  finding.shot = shot;
  return finding;
}

Proposal proposalOf(Kind kind) {
  Proposal proposal;
  proposal.kind = kind;
  return proposal;
}

TEST(CarryOut, refusesWhatDoesNotGoWithTheSurveyAndLeavesItAsItWas) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  struct Refused {
    const char* name;
    std::size_t shot;
    Proposal proposal;
  };
  std::vector<Refused> all;
  all.push_back({"no such shot", 99, proposalOf(Kind::kDisableShot)});
  all.push_back({"no such trace", 1, proposalOf(Kind::kKillTraces)});
  all.back().proposal.traces = {3, 24};
  all.push_back({"no position", 1, proposalOf(Kind::kMoveShot)});
  all.push_back({"position that is no number", 1, proposalOf(Kind::kMoveShot)});
  all.back().proposal.points = {{nan, 0.0}};
  all.push_back({"too few geophones", 1, proposalOf(Kind::kMoveGeophones)});
  all.back().proposal.points = {{1.0, 0.0}};
  all.push_back({"stack with itself", 1, proposalOf(Kind::kStack)});
  all.back().proposal.others = {1};
  all.push_back({"stack of two points", 1, proposalOf(Kind::kStack)});
  all.back().proposal.others = {2};
  all.push_back({"stack with nothing", 1, proposalOf(Kind::kStack)});
  all.back().proposal.others = {77};
  all.push_back({"shift beyond the record", 1, proposalOf(Kind::kTimeShift)});
  all.back().proposal.seconds = 50.0;
  for (const Refused& refused : all) {
    TomoDocument document = soundLine();
    const TomoDocument before = document;
    EXPECT_FALSE(carryOut(about(refused.shot), refused.proposal, document).ok()) << refused.name;
    EXPECT_TRUE(document.recordings.isSharedWith(before.recordings)) << refused.name;
    EXPECT_TRUE(document.line.isSharedWith(before.line)) << refused.name;
    EXPECT_TRUE(document.ttArray.isSharedWith(before.ttArray)) << refused.name;
  }
  TomoDocument document = soundLine();
  EXPECT_FALSE(carryOut(Finding(), proposalOf(Kind::kDisableShot), document).ok());
}

TEST(CarryOut, addsToTheMendsThatAShotHas) {
  TomoDocument document = soundLine();
  Proposal shift = proposalOf(Kind::kTimeShift);
  shift.seconds = 0.002;
  Proposal kill = proposalOf(Kind::kKillTraces);
  kill.traces = {2};
  Proposal reverse = proposalOf(Kind::kReverseTraces);
  reverse.traces = {2, 5};
  for (const Proposal& proposal : {shift, kill, shift, reverse}) {
    ASSERT_TRUE(carryOut(about(3), proposal, document).ok());
  }
  const ShotMends& mends = mendsOfRecord(document, 3);
  EXPECT_NEAR(mends.timeShift, 0.004, 1e-9);
  EXPECT_TRUE(mendOf(mends, 2).killed && mendOf(mends, 2).reversed);
  EXPECT_TRUE(mendOf(mends, 5).reversed);
}

TEST(CarryOut, takesMendsOfTracesAlongWhenTheOrderTurns) {
  TomoDocument document = soundLine();
  Proposal kill = proposalOf(Kind::kKillTraces);
  kill.traces = {2};
  ASSERT_TRUE(carryOut(about(0), kill, document).ok());
  ASSERT_TRUE(carryOut(about(0), proposalOf(Kind::kReverseOrder), document).ok());
  EXPECT_TRUE(mendOf(mendsOfRecord(document, 0), 21).killed);
  EXPECT_FALSE(mendOf(mendsOfRecord(document, 0), 2).killed);
}

TEST(CarryOut, letsShotsShareStringsThatHaveBecomeAlike) {
  TomoDocument document = soundLine();
  auto& strings = document.line.edit().goephonesStringSet;
  const std::vector<Point2D> right = strings[0];
  strings.insert(strings.begin(), right);
  for (Point2D& point : strings[0]) point.x = 5.64;
  for (TravelTime& record : document.ttArray.edit()) record.indexStesa = 1;
  document.ttArray.edit()[6].indexStesa = 0;
  Proposal move = proposalOf(Kind::kMoveGeophones);
  move.points = right;
  ASSERT_TRUE(carryOut(about(6), move, document).ok());
  ASSERT_EQ(document.line->goephonesStringSet.size(), 1U);
  EXPECT_EQ(document.line->goephonesStringSet[0], right);
  for (const TravelTime& record : document.ttArray) EXPECT_EQ(record.indexStesa, 0);
}

}  // namespace
}  // namespace talvesk::doctor
