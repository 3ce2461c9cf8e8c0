#include "model/Annotations.h"
#include "model/KeptRun.h"
#include "model/KnownGround.h"
#include "session/EditTable.h"
#include "session/FullSurvey.h"
#include "session/Session.h"
#include "support/TestFolder.h"

#include <set>
#include <sstream>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fullSurvey;
using testing::isSame;

/// Makes a part another than it was.
void touch(Part part, Survey& survey) {
  TomoDocument& document = survey.document;
  switch (part) {
    case Part::kRecordings:
      document.recordings.edit().filenames.emplace_back("other.dat");
      break;
    case Part::kPicks:
      document.ttArray.edit()[1].ttMisurati.edit()[3] = 0.0777;
      break;
    case Part::kGeometry:
      document.line.edit().shotPositions.push_back(1.0);
      break;
    case Part::kModel:
      document.model.edit().maxVelocity = 4444.0;
      break;
    case Part::kResult:
      document.result.edit().smoothedResult = true;
      break;
    case Part::kMarks:
      survey.interpretation.edit().ttLayer[0].layer[0] = 2;
      break;
    case Part::kProfile:
      survey.interpretation.edit().refractData.v1 = 444.0;
      break;
    case Part::kLook:
      document.title += "!";
      break;
    case Part::kMap:
      document.map.edit().geoCoord.CRS = 4326;
      break;
    case Part::kRuns:
      document.runs.edit().emplace_back();
      break;
    case Part::kKnown:
      document.known.edit().depths.push_back({"P2", 3.0, 4.0});
      break;
    case Part::kAnnotations:
      document.annotations.edit().isolines.emplace_back();
      break;
    case Part::kView:
      survey.section.rays = !survey.section.rays;
      break;
  }
}

bool isForgotten(Part part, const Survey& survey) {
  Survey forgotten = survey;
  forgetPart(part, forgotten);
  return differingParts(forgotten, survey).empty();
}

TEST(EditTable, hasOneWholeRowForEveryEdit) {
  std::set<Edit> edits;
  for (const EditRule& rule : editTable()) {
    EXPECT_TRUE(edits.insert(rule.edit).second) << rule.text;
    EXPECT_FALSE(rule.text.empty());
    EXPECT_EQ(std::string(rule.fates).find_first_not_of(".CVGS"), std::string::npos) << rule.text;
    EXPECT_EQ(std::string(rule.fates).size(), kParts.size() - 1) << rule.text;
    EXPECT_EQ(&ruleOf(rule.edit), &rule);
  }
  EXPECT_EQ(edits.size(), static_cast<std::size_t>(Edit::kMapPosition) + 1);
}

/// The page that explains the table has the same cells.
TEST(EditTable, isTheOneOfTheDocuments) {
  const std::string page = testing::TestFolder::get(TALVESK_EDITS);
  ASSERT_FALSE(page.empty());
  std::vector<std::string> rows;
  std::istringstream lines(page);
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("| `k", 0) != 0) continue;
    std::string fates;
    for (std::size_t at = line.find(" | "); fates.size() < kParts.size() - 1; at += 4) {
      fates += line.at(at + 3);
    }
    rows.push_back(fates);
  }
  ASSERT_EQ(rows.size(), editTable().size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i], editTable()[i].fates) << editTable()[i].text;
  }
}

/// Every cell of the table: what is kept cannot be touched, what is void is forgotten, and
/// whatever happened is taken back and done again whole.
TEST(EditTable, isWhatHappens) {
  for (const EditRule& rule : editTable()) {
    for (const Part part : kParts) {
      Session session;
      session.open(fullSurvey(), true);
      const Survey before = session.survey();
      const Status status = session.apply(rule.edit, [part](Survey& survey) {
        touch(part, survey);
        return Status();
      });
      const Fate fate = rule.fate(part);
      const bool allowed = fate != Fate::kKept && fate != Fate::kStale;
      const std::string cell = rule.text.english() + ", part " + std::to_string(int(part));
      EXPECT_EQ(status.ok(), allowed) << cell;
      if (!allowed) {
        EXPECT_TRUE(isSame(session.survey(), before)) << cell;
        EXPECT_FALSE(session.modified() || session.canUndo()) << cell;
        continue;
      }
      for (const Part other : kParts) {
        if (rule.fate(other) == Fate::kVoid) {
          EXPECT_TRUE(isForgotten(other, session.survey())) << cell << " forgets " << int(other);
        }
      }
      const Survey after = session.survey();
      if (!session.canUndo()) {
        EXPECT_EQ(part, Part::kView) << cell << ": only the view is no edit";
        continue;
      }
      EXPECT_TRUE(session.modified()) << cell;
      session.undo();
      EXPECT_TRUE(isSame(session.survey(), before) || part == Part::kView) << cell;
      EXPECT_FALSE(session.modified()) << cell;
      session.redo();
      EXPECT_TRUE(isSame(session.survey(), after)) << cell;
      EXPECT_TRUE(session.modified()) << cell;
    }
  }
}

TEST(EditTable, partsAreToldApart) {
  const Survey survey = fullSurvey();
  for (const Part part : kParts) {
    Survey other = survey;
    EXPECT_TRUE(differingParts(survey, other).empty());
    touch(part, other);
    for (const Part each : kParts) {
      EXPECT_EQ(differingParts(survey, other).has(each), each == part)
          << int(part) << ' ' << int(each);
    }
  }
}

TEST(EditTable, recordsGetMarksOfTheirOwn) {
  Session session;
  session.open(fullSurvey(), true);
  ASSERT_TRUE(session
                  .apply(Edit::kOpenShots,
                         [](Survey& survey) {
                           TravelTime record = survey.document.ttArray[0];
                           record.traceSetID = 3;
                           survey.document.ttArray.edit().push_back(record);
                           return Status();
                         })
                  .ok());
  const auto& marks = session.survey().interpretation->ttLayer;
  ASSERT_EQ(marks.size(), 4U);
  EXPECT_EQ(marks[3].layer, std::vector<std::uint32_t>(12, 0));
  EXPECT_EQ(marks[0].layer, std::vector<std::uint32_t>(12, 1));
}

}  // namespace
}  // namespace talvesk
