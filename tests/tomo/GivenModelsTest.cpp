#include "TestInversion.h"
#include "tomo/fitted/GivenModels.h"
#include "tomo/fitted/References.h"

#include <cmath>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::twoLayers;

double velocityAt(const TomoDocument& onto, const GivenModel& model, double x, double depth) {
  const Grid& grid = *onto.model->grid;
  const auto column = static_cast<std::size_t>((x + onto.model->xOffset) / grid.aLato());
  const auto row = static_cast<std::size_t>(depth / grid.aLato());
  return 1.0 / model.slownesses[row * grid.col() + column];
}

TEST(GivenModels, haveTheVelocitiesOfAnotherSectionWhereItHasThem) {
  const TomoDocument line = twoLayers();
  const GivenModel same = sectionModel(line, line);
  const std::vector<double> own = line.model->grid->slownesses();
  ASSERT_EQ(same.slownesses.size(), own.size());
  for (std::size_t cell = 0; cell < own.size(); ++cell) {
    EXPECT_NEAR(same.slownesses[cell], own[cell], 1e-12 * own[cell]) << cell;
  }
}

TEST(GivenModels, followTheRefractorsThatAreKnown) {
  const TomoDocument line = twoLayers();
  refractionDataStructure::processingData layers;
  EXPECT_FALSE(layersModel(layers, line).has_value());
  layers.v1 = 400.0;
  layers.cData.resize(1);
  layers.cData[0].x = {10.0, 20.0, 30.0};
  layers.cData[0].depth = {2.0, std::nan(""), 4.0};
  layers.cData[0].velocity = {1800.0, 5000.0, 2200.0};
  const std::optional<GivenModel> model = layersModel(layers, line);
  ASSERT_TRUE(model.has_value());
  EXPECT_EQ(model->kind, ReferenceKind::kLayers);
  EXPECT_NEAR(velocityAt(line, *model, 10.0, 0.5), 400.0, 1e-6);
  EXPECT_NEAR(velocityAt(line, *model, 1.0, 5.5), 1800.0, 1e-6);
  EXPECT_NEAR(velocityAt(line, *model, 35.0, 5.5), 2200.0, 1e-6);
  EXPECT_NEAR(velocityAt(line, *model, 20.0, 5.5), 2000.0, 30.0);
}

TEST(GivenModels, standAmongTheReferencesAndAreNoneOfThePicks) {
  const TomoDocument line = twoLayers();
  FittedSettings settings;
  settings.given.push_back(sectionModel(line, line));
  const References references = *referencesOf(line, settings, {});
  const ReferenceModel* given = find(references, "file");
  ASSERT_NE(given, nullptr);
  EXPECT_TRUE(given->fit.known);
  EXPECT_NE(find(references, kBestReference)->kind, ReferenceKind::kFile);
}

}  // namespace
}  // namespace talvesk
