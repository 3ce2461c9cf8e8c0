#include "model/GroundModel.h"
#include "support/SectionDocument.h"
#include "view/ElasticSection.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::sectionDocument;
using Q = ElasticQuantity;

/// A level section of 10 by 4 cells whose velocity grows with depth.
TomoDocument ground(double slower, double relief = 0.0) {
  return sectionDocument(4, 10, relief, [slower](std::uint32_t row, std::uint32_t) {
    return (600.0 + 200.0 * row) / slower;
  });
}

ElasticSection matched(const TomoDocument& p, const TomoDocument& s,
                       const ElasticOptions& options = {}) {
  ElasticSection section;
  const Status status = matchSections(p, s, options, section);
  EXPECT_TRUE(status.ok()) << status.message();
  return section;
}

TEST(ElasticSection, hasModuliWhereBothSectionsAreDrawn) {
  TomoDocument p = ground(1.0, 3.0);
  TomoDocument s = ground(2.0, 3.0);
  p.model.edit().editGrid().setDraw(0, false);
  s.model.edit().editGrid().setDraw(15, false);
  const ElasticSection section = matched(p, s);
  ASSERT_EQ(section.cells.size(), 38U);
  for (const ElasticCell& cell : section.cells) {
    EXPECT_NE(cell.cell, 0U);
    EXPECT_NE(cell.cell, 15U);
    EXPECT_NEAR(cell.state[Q::kRatio].value, 2.0, 1e-9);
    EXPECT_NEAR(cell.depth, cell.cell / 10 + 0.5, 0.6);
  }
  EXPECT_EQ(section.cells.front().cell, 1U);
  EXPECT_NEAR(section.cells.front().centre.x, 100.5, 1e-9);
  EXPECT_NEAR(section.cells.front().state[Q::kShear].value, 2000.0 * 300.0 * 300.0, 1.0);
  ASSERT_EQ(section.remarks.size(), 1U);
  EXPECT_THAT(section.remarks[0].english(), HasSubstr("1 of the 39 cells of P lie where"));
  const CellValues values = cellValuesOf(section, Q::kShear, "G0", "MPa", 40);
  EXPECT_TRUE(std::isnan(values.values[0]));
  EXPECT_NEAR(values.values[1], 180.0, 1e-6);
}

/// The other grid lies 3 m along the line and 50 m lower, with cells half as large.
TEST(ElasticSection, matchesByDistanceAndDepthBelowTheSurface) {
  const TomoDocument p = ground(1.0);
  TomoDocument s = ground(2.0);
  Splines::LinearSpline low;
  low.build({0.0, 10.0}, {50.0, 50.0});
  GroundModel& model = s.model.edit();
  std::vector<double> slownesses;
  for (int row = 0; row < 4; ++row) slownesses.insert(slownesses.end(), 20, 1.0 / (200.0 + row));
  model.grid = std::make_shared<Grid>(std::make_shared<GridGeometry>(GridSize{4, 20, 6, 0.5}, low),
                                      slownesses);
  ElasticOptions options;
  options.shift = 3.0;
  const ElasticSection section = matched(p, s, options);
  ASSERT_EQ(section.cells.size(), 14U) << "7 columns, 2 m deep";
  EXPECT_NEAR(section.cells.front().centre.x, 102.5, 1e-9);
  EXPECT_NEAR(section.cells.front().state[Q::kVs].value, 200.5, 0.51);
  EXPECT_EQ(section.remarks.size(), 2U);
  EXPECT_THAT(section.remarks.back().english(), HasSubstr("lie up to 50 m apart"));
}

TEST(ElasticSection, saysWhatNoGroundIs) {
  EXPECT_THAT(matched(ground(1.0), ground(1.0)).remarks[0].english(),
              HasSubstr("In 40 of 40 cells S is not slower than P"));
  EXPECT_THAT(matched(ground(1.0), ground(1.25)).remarks[0].english(),
              HasSubstr("In 40 of 40 cells Vp/Vs is below 1.41"));
  EXPECT_THAT(matched(ground(1.0), ground(2.0)).remarks, IsEmpty());
  ElasticOptions layered;
  layered.density.layers = {1800.0, 2200.0};
  const ElasticSection section = matched(ground(1.0), ground(2.0), layered);
  EXPECT_EQ(section.cells.back().state[Q::kDensity].value, 1800.0);
  EXPECT_THAT(section.remarks[0].english(), HasSubstr("all of it has the first density"));
}

TEST(ElasticSection, needsTwoSectionsThatOverlap) {
  ElasticSection section;
  section.cells.resize(3);
  ElasticOptions far;
  far.shift = 500.0;
  const Status outcomes[] = {matchSections(TomoDocument(), ground(2.0), {}, section),
                             matchSections(ground(1.0), TomoDocument(), {}, section),
                             matchSections(ground(1.0), ground(2.0), far, section)};
  std::vector<std::string> why;
  for (const Status& outcome : outcomes) why.push_back(outcome.message());
  EXPECT_THAT(why,
              ElementsAre("The project of P has no section.", "The project of S has no section.",
                          "The sections of P and S have no cell in common."));
  EXPECT_EQ(section.cells.size(), 3U);
}

}  // namespace
}  // namespace talvesk
