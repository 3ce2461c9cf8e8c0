#include "model/Mending.h"
#include "session/FullSurvey.h"
#include "session/Session.h"
#include "session/TakeShifts.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fullSurvey;
using testing::isSame;

TEST(TakeShifts, addsToWhatIsMendedInOneStepAndLeavesOutShotsWithoutARecording) {
  Session session;
  session.open(fullSurvey(), true);
  ASSERT_EQ(takeShifts({{1, 0.001, true, true}}, session).done, 1);
  const Survey before = session.survey();
  const TakenShifts taken = takeShifts({{0, 0.002, false, true}, {1, 0.002, true, true}}, session);
  EXPECT_EQ(taken.done, 1);
  EXPECT_TRUE(taken.failures.empty());
  EXPECT_DOUBLE_EQ(mendsOfRecord(session.document(), 1).timeShift, 0.003);
  EXPECT_FALSE(mendsOfRecord(session.document(), 0).any());
  EXPECT_EQ(session.document().ttArray[1].ttMisurati[4], testing::firstBreak(4) - 0.003);
  session.undo();
  EXPECT_TRUE(isSame(session.survey(), before));
}

TEST(TakeShifts, isNoStepWhereNothingCanBeShifted) {
  Session session;
  session.open(fullSurvey(), true);
  const std::size_t steps = session.steps();
  EXPECT_EQ(takeShifts({{0, 0.002, false, true}}, session).done, 0);
  const TakenShifts taken = takeShifts({{0, 100.0, true, true}}, session);
  EXPECT_EQ(taken.done, 0);
  EXPECT_EQ(taken.failures.size(), 1U);
  EXPECT_EQ(session.steps(), steps);
}

}  // namespace
}  // namespace talvesk
