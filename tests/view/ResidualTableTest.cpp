#include "model/ChiSquare.h"
#include "model/Residuals.h"
#include "support/SectionDocument.h"
#include "support/TestSurveys.h"
#include "view/ResidualTable.h"
#include "view/SectionScene.h"

#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr double kMs = 1e-3;

/// Takes what the records hold for times through a section.
void fresh(TomoDocument& line) {
  line.result.edit().has_tomographic_info = true;
  line.result.edit().timesOfSection = true;
}

/// Shots that were not fired in the order of the line, picked, and computed times as they are.
TomoDocument line(const std::vector<double>& shots = {12.0, 0.0, 24.0}) {
  TomoDocument made = testing::testLine(13, 2.0, shots);
  testing::pickTwoLayers(made, 450.0, 1800.0, 3.0);
  for (TravelTime& record : made.ttArray.edit()) {
    for (double& time : record.ttMisurati.edit()) time += 5.0 * kMs;
    record.ttCalcolati = record.ttMisurati;
  }
  fresh(made);
  return made;
}

double& computed(TomoDocument& document, std::size_t record, std::size_t receiver) {
  return document.ttArray.edit()[record].ttCalcolati.edit()[receiver];
}

TEST(ResidualTable, holdsTheFiguresThatTheMisfitIsMadeOf) {
  TomoDocument survey = line();
  computed(survey, 1, 3) += 0.7 * kMs;
  computed(survey, 2, 12) -= 30.0 * kMs;
  survey.ttArray.edit()[0].ttMisurati.edit()[4] = kUnpicked;
  survey.ttArray.edit()[1].setError(3, 2.0 * kMs);
  const ResidualTable table = residualTableOf(survey);
  ASSERT_TRUE(table.known);
  EXPECT_EQ(table.picks.size(), 38U);
  double squares = 0.0;
  for (const PickResidual& pick : table.picks) squares += pick.residual * pick.residual;
  EXPECT_NEAR(std::sqrt(squares / 38.0), sectionMisfitOf(survey).rmse, 1e-15);

  ASSERT_EQ(table.rows.size(), 3U);
  EXPECT_EQ(table.rows[0].record, 1U) << "along the line";
  EXPECT_EQ(table.columns.size(), 13U);
  EXPECT_EQ(table.pickAt(1, 4), ResidualTable::kNone);
  const PickResidual& own = table.picks[table.pickAt(0, 3)];
  EXPECT_EQ(own.record, 1U);
  EXPECT_DOUBLE_EQ(own.offset, 6.0);
  EXPECT_NEAR(own.value(ResidualUnit::kMilliseconds), 0.7, 1e-9);
  EXPECT_NEAR(own.value(ResidualUnit::kErrors), 0.35, 1e-9);
  EXPECT_FALSE(own.suspect);
  EXPECT_TRUE(table.picks[table.pickOf(2, 12)].suspect);
  EXPECT_EQ(table.pickOf(0, 4), ResidualTable::kNone);

  survey.result.edit().timesOfSection = false;
  EXPECT_FALSE(residualTableOf(survey).known);
  EXPECT_TRUE(residualTableOf(survey).picks.empty());
}

/// Strings that overlap share columns; geophones of one string that stand at one place do not, and
/// those of no known place keep one each: no pick is hidden behind another.
TEST(ResidualTable, hasACellForEveryPick) {
  TomoDocument survey = line();
  auto& strings = survey.line.edit().goephonesStringSet;
  strings.push_back(strings[0]);
  for (Point2D& geophone : strings[1]) geophone.x += 10.0;
  strings[1][12] = strings[1][11];
  strings[1].pop_back();
  survey.ttArray.edit()[2].indexStesa = 1;
  strings[1][0] = strings[1][1];
  const ResidualTable table = residualTableOf(survey);
  EXPECT_EQ(table.picks.size(), 39U);
  std::size_t shown = 0;
  for (const std::size_t cell : table.cells) shown += cell != ResidualTable::kNone ? 1 : 0;
  EXPECT_EQ(shown, 39U);
  EXPECT_TRUE(std::isinf(table.columns.back().x));
}

TEST(ResidualTable, marksShotsAndGeophonesThatAreOffAsOne) {
  TomoDocument survey = line({0.0, 6.0, 12.0, 18.0, 24.0, 3.0, 9.0, 15.0});
  std::vector<TravelTime>& records = survey.ttArray.edit();
  for (std::size_t shot = 0; shot < records.size(); ++shot) {
    for (std::size_t i = 0; i < 13; ++i) {
      double off = 0.2 * std::sin(7.0 * static_cast<double>(shot) + 3.0 * static_cast<double>(i));
      if (shot == 2) off += 2.0;
      if (i == 9) off -= 2.5;
      computed(survey, shot, i) += off * kMs;
    }
  }
  const ResidualTable table = residualTableOf(survey);
  for (const ResidualRow& row : table.rows) EXPECT_EQ(row.standsOut, row.record == 2);
  for (std::size_t i = 0; i < 13; ++i) EXPECT_EQ(table.columns[i].standsOut, i == 9) << i;

  const auto shots = spreadOfShots(table, ResidualUnit::kMilliseconds);
  ASSERT_EQ(shots.size(), 8U);
  EXPECT_EQ(shots[2].at, 3.0);
  EXPECT_NEAR(shots[2].median, 2.0, 0.2);
  EXPECT_LT(shots[2].low, shots[2].median);
  EXPECT_EQ(table.picks[shots[0].worst].receiver, 9U);
  const auto geophones = spreadOfGeophones(table, ResidualUnit::kErrors);
  EXPECT_EQ(geophones[9].at, 18.0);
  EXPECT_LT(geophones[9].median, -2.0);
}

TEST(ResidualTable, followsTheMedianAlongTheOffset) {
  TomoDocument survey = line();
  for (std::size_t shot = 0; shot < 3; ++shot) {
    for (std::size_t i = 0; i < 13; ++i) {
      const double offset =
          std::fabs(2.0 * static_cast<double>(i) - survey.ttArray[shot].shotPos2d.x);
      computed(survey, shot, i) += (offset > 10.0 ? 1.0 : -1.0) * kMs;
    }
  }
  const auto along = spreadOverOffset(residualTableOf(survey), ResidualUnit::kMilliseconds);
  ASSERT_GE(along.size(), 5U);
  EXPECT_NEAR(along.front().median, -1.0, 1e-9);
  EXPECT_NEAR(along.back().median, 1.0, 1e-9);
  for (std::size_t i = 1; i < along.size(); ++i) EXPECT_GT(along[i].at, along[i - 1].at);
}

TEST(ResidualTable, givesACellTheMeanOfItsRays) {
  TomoDocument survey =
      testing::sectionDocument(6, 20, 0.0, [](std::uint32_t, std::uint32_t) { return 800.0; });
  survey.ttArray.edit()[0].ttCalcolati = survey.ttArray[0].ttMisurati;
  fresh(survey);
  computed(survey, 0, 0) += 2.0 * kMs;
  computed(survey, 0, 1) += 4.0 * kMs;
  computed(survey, 0, 2) += 90.0 * kMs;  // suspect
  survey.ttArray.edit()[0].setError(1, 1.0 * kMs);
  const GridGeometry& geometry = survey.model->grid->geometry();
  const auto corner = [&](std::uint32_t line, std::uint32_t column) {
    return geometry.lineNode(line, column * (geometry.nV() - 1));
  };
  auto& rays = survey.result.edit().rays.edit();
  rays.assign(survey.ttArray[0].ttMisurati.size(), {});
  ASSERT_GT(rays.size(), 3U);
  rays[0] = {corner(2, 3), corner(3, 4)};
  rays[1] = {corner(2, 3), corner(3, 4), corner(4, 5), geometry.nodeCount() + 7};
  rays[2] = rays[1];
  const ResidualTable table = residualTableOf(survey);
  const auto values = residualsAlongRays(survey, table, ResidualUnit::kMilliseconds);
  ASSERT_TRUE(values.has_value());
  const Grid& grid = *survey.model->grid;
  EXPECT_NEAR(values->values[grid.cellIndex(2, 3)], 3.0, 1e-9);
  EXPECT_NEAR(values->values[grid.cellIndex(3, 4)], 4.0, 1e-9);
  EXPECT_TRUE(std::isnan(values->values[grid.cellIndex(2, 4)]));
  survey.result.edit().rays.edit().pop_back();
  EXPECT_FALSE(residualsAlongRays(survey, table, ResidualUnit::kMilliseconds).has_value());
}

TEST(ResidualTable, coloursUpToARoundNumberThatNearlyAllAreBelow) {
  std::vector<double> values(100, 0.3);
  values[0] = 50.0;
  values[1] = std::nan("");
  EXPECT_DOUBLE_EQ(residualLimit(values, ResidualUnit::kMilliseconds), 0.5);
  EXPECT_DOUBLE_EQ(residualLimit(values, ResidualUnit::kErrors), 1.0);
  values.assign(100, -3.2);
  EXPECT_DOUBLE_EQ(residualLimit(values, ResidualUnit::kErrors), 5.0);
  EXPECT_DOUBLE_EQ(residualLimit({}, ResidualUnit::kErrors), 1.0);
}

}  // namespace
}  // namespace talvesk
