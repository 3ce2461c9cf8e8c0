#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "model/Mending.h"
#include "session/FullSurvey.h"
#include "session/PickEdits.h"
#include "session/RemoveShots.h"
#include "session/Session.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fullSurvey;
using testing::isSame;

Session::Change mending(std::size_t set, ShotMends mends) {
  return [set, mends](Survey& survey) { return setMends(set, mends, survey.document); };
}

ShotMends late(double seconds) {
  ShotMends mends;
  mends.timeShift = seconds;
  return mends;
}

ShotMends disabled() {
  ShotMends mends;
  mends.disabled = true;
  return mends;
}

/// All shots at one place, so that they can be stacked.
Survey repeats(std::size_t shots) {
  Survey survey = fullSurvey(shots, 12, 2000);
  for (TravelTime& record : survey.document.ttArray.edit()) record.shotPos2d = {9.0, 0.0};
  return survey;
}

TEST(MendEdit, isOneStepThatLeavesResultAndProfileStale) {
  Session session;
  session.open(fullSurvey(), true);
  const Survey before = session.survey();
  ASSERT_TRUE(session.apply(Edit::kMend, mending(1, late(0.001))).ok());
  EXPECT_EQ(session.undoText().english(), "Mend recordings");
  EXPECT_TRUE(session.document().result->has_tomographic_info);
  const Survey mended = session.survey();
  EXPECT_EQ(mended.document.ttArray[1].ttMisurati[4], testing::firstBreak(4) - 0.001);
  session.undo();
  EXPECT_TRUE(isSame(session.survey(), before));
  session.redo();
  EXPECT_TRUE(isSame(session.survey(), mended));
}

TEST(MendEdit, costsTheSamplesThatItMadeAndNoMore) {
  Session session;
  session.open(fullSurvey(3, 24, 4000), true);
  ShotMends one;
  one.traces = {{true, false, 0.0}};
  ASSERT_TRUE(session.apply(Edit::kMend, mending(1, one)).ok());
  EXPECT_LT(session.undoMemory(), 100U << 10) << "what was recorded is kept as the original";
  session.undo();
  EXPECT_LT(session.undoMemory(), 100U << 10);
  EXPECT_GE(session.undoMemory(), 4000U * sizeof(double)) << "the killed trace is not";
}

TEST(MendEdit, isGivenToNoShotThatIsRemoved) {
  Survey survey = repeats(5);
  TomoDocument& document = survey.document;
  ShotMends stack;
  stack.stackedWith = {0, 4};
  ASSERT_TRUE(setMends(0, disabled(), document).ok());
  ASSERT_TRUE(setMends(2, stack, document).ok());
  stack.stackedWith = {0};
  ASSERT_TRUE(setMends(3, stack, document).ok());
  ASSERT_TRUE(setMends(4, late(0.002), document).ok());
  removeShots({0}, survey);
  const Recordings& left = *document.recordings;
  EXPECT_FALSE(mendsOf(left, 0).any());
  EXPECT_EQ(mendsOf(left, 1).stackedWith, std::vector<std::int32_t>{3});
  EXPECT_FALSE(mendsOf(left, 2).any()) << "nothing is left to be stacked with";
  EXPECT_EQ(mendsOf(left, 3).timeShift, 0.002);
  ASSERT_TRUE(setMends(1, {}, document).ok());
  ASSERT_TRUE(setMends(3, {}, document).ok());
  for (std::size_t set = 0; set < 4; ++set) {
    EXPECT_EQ(left.traceSets[set][3].samples,
              repeats(1).document.recordings->traceSets[0][3].samples)
        << set;
  }
  EXPECT_TRUE(document.recordings->originals.empty());
}

TEST(MendEdit, leavesNoPlaceForPicksByHand) {
  TomoDocument document = fullSurvey().document;
  ShotMends killed;
  killed.traces = {{true, false, 0.0}};
  ASSERT_TRUE(setMends(0, disabled(), document).ok());
  ASSERT_TRUE(setMends(1, killed, document).ok());
  const std::vector<PickChange> two = {{0, 0.02, false}, {1, 0.02, false}};
  EXPECT_EQ(mayPick(document, 0, two).message(),
            "Shot 1 is disabled and takes no picks; Mend recording enables it.");
  EXPECT_EQ(mayPick(document, 1, two).message(),
            "Trace 1 is killed and takes no pick; Mend recording brings it back.");
  EXPECT_TRUE(mayPick(document, 2, two).ok());
  EXPECT_TRUE(mayPick(document, 0, {{1, kNoTime, false}}).ok()) << "there is nothing to set";
  for (const std::int32_t shot : {0, 1}) changePicks(document, shot, two);
  EXPECT_FALSE(hasPick(document.ttArray[0].ttMisurati[1]));
  EXPECT_FALSE(hasPick(document.ttArray[1].ttMisurati[0]));
  EXPECT_EQ(document.ttArray[1].ttMisurati[1], 0.02);
}

TEST(MendEdit, leavesNoPlaceForImportedPicks) {
  TomoDocument document = fullSurvey().document;
  TravelTimeData data;
  data.strings = document.line->goephonesStringSet;
  data.records = document.ttArray;
  ASSERT_TRUE(setMends(0, disabled(), document).ok());
  fitToRecords(data, document);
  ASSERT_EQ(data.warnings.size(), 1U);
  EXPECT_EQ(data.warnings[0].english(),
            "shot 1: picks left out, as the shot is disabled or their traces are killed: 12");
  data.records[0].ttMisurati = fullSurvey().document.ttArray[0].ttMisurati;
  ASSERT_TRUE(importTravelTimes(std::move(data), document).ok());
  EXPECT_EQ(*document.ttArray[0].ttMisurati, std::vector<double>(12, kUnpicked));
  EXPECT_TRUE(hasPick(document.ttArray[1].ttMisurati[0]));
}

}  // namespace
}  // namespace talvesk
