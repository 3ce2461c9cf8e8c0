#include "session/FullSurvey.h"
#include "session/RemoveShots.h"
#include "session/Session.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fullSurvey;

TEST(RemoveShots, takeAllThatBelongsToThemAndNothingElse) {
  Survey survey = fullSurvey(4);
  const Survey before = survey;
  auto& marks = survey.interpretation.edit().ttLayer;
  for (std::uint32_t shot = 0; shot < 4; ++shot) marks[shot].layer[0] = shot % 4;
  Session session;
  session.open(survey, true);
  ASSERT_TRUE(session
                  .apply(Edit::kRemoveShot,
                         [](Survey& edited) {
                           removeShots({1, 2, 99}, edited);
                           return Status();
                         })
                  .ok());
  const TomoDocument& document = session.document();
  ASSERT_EQ(document.ttArray.size(), 2U);
  EXPECT_EQ(document.ttArray[1].shotPos2d.x, before.document.ttArray[3].shotPos2d.x);
  EXPECT_EQ(document.ttArray[1].traceSetID, 1);
  ASSERT_EQ(document.recordings->traceSets.size(), 2U);
  EXPECT_TRUE(document.recordings->traceSets[1][5].samples.isSharedWith(
      before.document.recordings->traceSets[3][5].samples));
  EXPECT_EQ(document.recordings->filenames[1], before.document.recordings->filenames[3]);
  EXPECT_EQ(document.line->goephonesStringSet.size(), 1U);
  const auto& left = session.survey().interpretation->ttLayer;
  ASSERT_EQ(left.size(), 2U);
  EXPECT_EQ(left[1].shotID, 1U);
  EXPECT_EQ(left[1].layer[0], 3U);
  EXPECT_EQ(session.survey().interpretation->refractData.v1, 0.0) << "the profile is void";
  EXPECT_FALSE(document.result->has_tomographic_info);
  session.undo();
  EXPECT_EQ(session.document().ttArray.size(), 4U);
  EXPECT_TRUE(session.document().recordings.isSharedWith(survey.document.recordings));
}

TEST(RemoveShots, ofPicksOnlyAndOfAll) {
  Survey survey = fullSurvey(2);
  survey.document.recordings = {};
  removeShots({0}, survey);
  ASSERT_EQ(survey.document.ttArray.size(), 1U);
  EXPECT_EQ(survey.document.ttArray[0].traceSetID, 0) << "a record is its own set";
  removeShots({0}, survey);
  EXPECT_TRUE(survey.document.ttArray.empty());
  removeShots({0}, survey);
  EXPECT_EQ(survey.document.line->goephonesStringSet.size(), 1U);
}

}  // namespace
}  // namespace talvesk
