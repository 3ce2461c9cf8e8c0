#include "doctor/Doctor.h"
#include "doctor/SyntheticLine.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "session/Session.h"
#include "session/TakeProposals.h"
#include "tomo/GridSetup.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace doctor::testing;
using doctor::Finding;
using doctor::Proposal;
using ::testing::HasSubstr;

class TakingProposals : public ::testing::Test {
 protected:
  void open(const std::function<void(TomoDocument&)>& spoil) {
    Survey survey;
    survey.document = soundLine();
    spoil(survey.document);
    Log nowhere;
    ASSERT_TRUE(setUpGrid(survey.document, {8.0, 1.0, 4}, nowhere).ok());
    session.open(survey, true);
  }
  std::vector<TakenProposal> proposals() {
    std::vector<TakenProposal> all;
    for (const Finding& finding : doctor::checkRecordings(session.document())) {
      if (finding.proposal) all.push_back({finding, *finding.proposal});
    }
    return all;
  }
  bool hasGrid() { return session.document().model->grid != nullptr; }

  Session session;
};

TEST_F(TakingProposals, isAStepForGeometryAndOneForMends) {
  open([](TomoDocument& document) {
    placeShot(document, 3, 39.0);
    scaleTrace(document, 1, 4, 0.0);
    scaleTrace(document, 6, 9, 0.0);
  });
  const auto taken = proposals();
  ASSERT_EQ(taken.size(), 3U);
  const TakenOutcome outcome = takeProposals(taken, session);
  EXPECT_EQ(outcome.done, 3U);
  EXPECT_TRUE(outcome.failures.empty());
  EXPECT_TRUE(proposals().empty());
  EXPECT_FALSE(hasGrid());
  session.undo();
  session.undo();
  EXPECT_FALSE(session.canUndo());
  EXPECT_EQ(proposals().size(), 3U);
  EXPECT_TRUE(hasGrid());
}

TEST_F(TakingProposals, keepsWhatRestsOnTheGeometryWhereThatStays) {
  open([](TomoDocument& document) { scaleTrace(document, 1, 4, 0.0); });
  auto taken = proposals();
  ASSERT_EQ(taken.size(), 1U);
  TakenProposal nowhere = taken.front();
  nowhere.proposal = {};
  nowhere.proposal.kind = Proposal::Kind::kMoveShot;
  taken.push_back(nowhere);
  const TakenOutcome outcome = takeProposals(taken, session);
  EXPECT_EQ(outcome.done, 1U);
  ASSERT_EQ(outcome.failures.size(), 1U);
  EXPECT_THAT(outcome.failures[0].english(), HasSubstr("a position is missing"));
  EXPECT_TRUE(hasGrid());
  EXPECT_EQ(session.undoText().english(), "Mend recordings");
}

}  // namespace
}  // namespace talvesk
