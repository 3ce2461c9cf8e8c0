#include "model/ChiSquare.h"
#include "model/Mending.h"
#include "session/FullSurvey.h"
#include "session/Session.h"
#include "session/TakeShifts.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fullSurvey;
using testing::isSame;

/// A survey as of a travel-time file, with a fit that found shifts, kept as a run.
Survey picksOnly() {
  Survey survey = fullSurvey();
  TomoDocument& document = survey.document;
  document.recordings = {};
  FitRecord fit;
  fit.shifts.assign(document.ttArray.size(), {0.002, 0.0});
  document.result.edit().lastInversion->fit = fit;
  document.runs.edit()[0].record.fit = fit;
  document.ttArray.edit()[0].setError(4, 0.0007);
  return survey;
}

TEST(TakeShifts, addsToWhatIsMendedInOneStep) {
  Session session;
  session.open(fullSurvey(), true);
  ASSERT_EQ(takeShifts({{1, 0.001, true, true}}, session).done, 1);
  const Survey before = session.survey();
  const TakenShifts taken = takeShifts({{1, 0.002, true, true}}, session);
  EXPECT_EQ(taken.done, 1);
  EXPECT_TRUE(taken.failures.empty());
  EXPECT_DOUBLE_EQ(mendsOfRecord(session.document(), 1).timeShift, 0.003);
  EXPECT_FALSE(mendsOfRecord(session.document(), 0).any());
  EXPECT_EQ(session.document().ttArray[1].ttMisurati[4], testing::firstBreak(4) - 0.003);
  session.undo();
  EXPECT_TRUE(isSame(session.survey(), before));
}

TEST(TakeShifts, movesThePicksOfShotsWithoutARecording) {
  for (const double late : {0.002, -0.002}) {
    Session session;
    session.open(picksOnly(), true);
    const Survey before = session.survey();
    const TakenShifts taken = takeShifts({{0, late, false, true}}, session);
    EXPECT_EQ(taken.done, 1);
    EXPECT_EQ(taken.picksOnly, 1);
    const TomoDocument& document = session.document();
    EXPECT_EQ(document.ttArray[0].ttMisurati[4], testing::firstBreak(4) - late);
    EXPECT_EQ(document.ttArray[0].errorOf(4), 0.0007);
    EXPECT_TRUE(document.ttArray[0].waits(2));
    EXPECT_EQ(document.ttArray[1].ttMisurati[4], testing::firstBreak(4));
    EXPECT_EQ(outstandingShift(document, 0), 0.0) << "not counted a second time";
    EXPECT_EQ(document.runs[0].record.fit->shifts[0].late, 0.0) << "nor when the run is used";
    EXPECT_EQ(outstandingShift(document, 1), 0.002);
    session.undo();
    EXPECT_TRUE(isSame(session.survey(), before));
  }
}

TEST(TakeShifts, movesNoPickBeforeItsShot) {
  Session session;
  session.open(picksOnly(), true);
  const std::size_t steps = session.steps();
  const TakenShifts taken = takeShifts({{0, 5.0, false, true}}, session);
  EXPECT_EQ(taken.done, 0);
  ASSERT_EQ(taken.failures.size(), 1U);
  EXPECT_EQ(taken.failures[0].english().rfind("shot 1: with 5000 ms less", 0), 0U)
      << taken.failures[0];
  EXPECT_EQ(session.steps(), steps);
}

TEST(TakeShifts, isNoStepWhereNothingCanBeShifted) {
  Session session;
  session.open(fullSurvey(), true);
  const std::size_t steps = session.steps();
  const TakenShifts taken = takeShifts({{0, 100.0, true, true}}, session);
  EXPECT_EQ(taken.done, 0);
  EXPECT_EQ(taken.failures.size(), 1U);
  EXPECT_EQ(session.steps(), steps);
}

}  // namespace
}  // namespace talvesk
