#include "io/Survey.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "session/AddBlowPair.h"
#include "session/Session.h"
#include "support/ShotDocument.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using testing::shotDocument;

TEST(AddBlowPair, isOneStepWithTheGeophonesOfTheFirst) {
  Session session;
  Survey survey;
  survey.document = shotDocument(2, 4, 80);
  session.open(survey, true);
  BlowPair pair;
  ASSERT_TRUE(layOver(session.document(), {0}, {1}, {}, pair).ok());
  const auto add = [&](Survey& changed) { return addBlowPair(pair, BlowPair::kSum, changed); };
  ASSERT_TRUE(session.apply(Edit::kOpenShots, add, Message::tr("Add sum of two shots")).ok());
  const TomoDocument& document = session.document();
  ASSERT_EQ(document.ttArray.size(), 3U);
  EXPECT_EQ(document.line->goephonesStringSet.size(), 1U);
  EXPECT_EQ(document.ttArray[2].indexStesa, 0);
  EXPECT_EQ(document.ttArray[2].shotPos2d.x, document.ttArray[0].shotPos2d.x);
  const Recordings& recordings = *document.recordings;
  EXPECT_EQ(recordings.traceSets[2][1].samples[70],
            recordings.traceSets[0][1].samples[70] + recordings.traceSets[1][1].samples[70]);
  EXPECT_NE(recordings.traceSets[2][1].samples[70], 0.0);
  EXPECT_EQ(recordings.notes[2].nameInFile, "sum of shots 1 and 2");
  EXPECT_EQ(session.undoText().english(), "Add sum of two shots");
  session.undo();
  EXPECT_EQ(session.document().ttArray.size(), 2U);
  EXPECT_FALSE(session.modified());
}

TEST(AddBlowPair, isRefusedByASurveyThatTakesNoShots) {
  Survey survey;
  survey.document = shotDocument(2, 4, 80);
  BlowPair pair;
  ASSERT_TRUE(layOver(survey.document, {0}, {1}, {}, pair).ok());
  survey.document.recordings.edit().waveType = WaveType::S;
  const Status status = addBlowPair(pair, BlowPair::kDifference, survey);
  EXPECT_THAT(status.message(), HasSubstr("S-wave pairs"));
  EXPECT_EQ(survey.document.ttArray.size(), 2U);
  pair.noSum = Message("no");
  survey.document.recordings.edit().waveType = WaveType::P;
  EXPECT_FALSE(addBlowPair(pair, BlowPair::kDifference, survey).ok());
}

}  // namespace
}  // namespace talvesk
