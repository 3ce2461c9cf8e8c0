#include "refraction/MarkEdits.h"
#include "support/RefractionLines.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::layerStruct;

/// Two shots at 0 and 20 m over geophones every 5 m from 0 to 20 m, all arrivals at 500 m/s.
struct Line {
  Line() : document(testing::testLine(5, 5.0, {0, 20})) {
    testing::pickTwoLayers(document, 500, 50000, 1e6);
    document.ttArray.edit()[1].ttMisurati.edit()[2] = kNoTime;
    shots = shotArrivals(document);
    refractionDataStructure::Interpretation all;
    fitToSurvey(document, all);
    marks = all.ttLayer;
  }
  TomoDocument document;
  std::vector<ShotArrivals> shots;
  std::vector<layerStruct> marks;
};

TEST(MarkEdits, goBackAndForth) {
  Line line;
  auto after = line.marks;
  assignLayer(line.shots, {{0, 1}, {0, 2}, {1, 3}}, 2, after);
  after[1].enabled = false;
  const MarksChange change(line.marks, after);
  EXPECT_FALSE(change.isEmpty());
  auto marks = line.marks;
  change.redo(marks);
  EXPECT_EQ(marks[0].layer, (std::vector<std::uint32_t>{0, 2, 2, 0, 0}));
  EXPECT_EQ(marks[1].layer, (std::vector<std::uint32_t>{0, 0, 0, 2, 0}));
  EXPECT_FALSE(marks[1].enabled);
  change.undo(marks);
  EXPECT_EQ(marks[0].layer, line.marks[0].layer);
  EXPECT_TRUE(marks[1].enabled);
  EXPECT_TRUE(MarksChange(line.marks, marks).isEmpty());
}

TEST(MarkEdits, takePicksThatAreThere) {
  Line line;
  assignLayer(line.shots, {{1, 2}, {0, 99}, {9, 0}}, 3, line.marks);
  for (const layerStruct& own : line.marks) {
    EXPECT_EQ(own.layer, std::vector<std::uint32_t>(5, 0));
  }
}

TEST(BranchReading, isThatOfTheSideWithMostPicks) {
  Line line;
  line.marks[1].layer[0] = 1;
  const auto reading = readBranch(line.shots, {{1, 1}, {1, 3}, {0, 2}}, 1, line.marks);
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->shot, 1U);
  EXPECT_EQ(reading->side, Side::kLeft);
  EXPECT_EQ(reading->picks, 3U) << "with the pick that is marked already";
  ASSERT_TRUE(reading->velocity);
  EXPECT_NEAR(*reading->velocity, 500.0, 1e-6);

  EXPECT_FALSE(readBranch(line.shots, {}, 1, line.marks));
  EXPECT_FALSE(readBranch(line.shots, {{0, 1}}, 0, line.marks));
  const auto single = readBranch(line.shots, {{0, 1}}, 2, line.marks);
  ASSERT_TRUE(single);
  EXPECT_FALSE(single->velocity);
}

}  // namespace
}  // namespace talvesk
