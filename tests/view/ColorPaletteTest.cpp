#include "support/ConsoleCapture.h"
#include "view/ColorPalette.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;

TEST(ColorPalette, offersEightPalettesThatCannotBeEdited) {
  std::vector<std::string> names;
  const ColorPaletteList list;
  for (const ColorPalette& palette : list.palettes()) {
    names.push_back(palette.name);
    EXPECT_FALSE(palette.is_editable) << palette.name;
    EXPECT_EQ(palette.n_colors, 64) << palette.name;
    EXPECT_EQ(palette.min_db, 250.0) << palette.name;
    EXPECT_EQ(palette.max_db, 3500.0) << palette.name;
  }
  EXPECT_THAT(names,
              ElementsAre("Silva viridis", "Vulcanic magma", "Black to White", "White to Black",
                          "Blue to red", "Tropical parula", "Dark rainbow", "Early winter"));
}

TEST(ColorPalette, everyGradientAscendsFromZeroToOne) {
  const std::vector<std::size_t> stops{2, 2, 6, 7, 7, 6, 2, 5, 5};  // by type
  for (int type = kFirstGradientType; type <= kLastGradientType; ++type) {
    ColorGradient gradient;
    buildGradient(gradient, type);
    const auto& points = gradient.points();
    ASSERT_EQ(points.size(), stops[static_cast<std::size_t>(type)]) << type;
    EXPECT_EQ(points.front().mval, 0.0) << type;
    EXPECT_EQ(points.back().mval, 1.0) << type;
    for (std::size_t i = 1; i < points.size(); ++i) {
      EXPECT_LT(points[i - 1].mval, points[i].mval) << type;
    }
  }
}

TEST(ColorPalette, keepsPositionsAsSinglePrecisionNumbers) {
  const ColorPaletteList list;
  const auto& parula = list.find("Tropical parula")->color_gradient.points();
  EXPECT_EQ(parula[1].mval, 0.20000000298023224);
  EXPECT_EQ(parula[2].mr, 0.33);  // a fraction; its neighbours are bytes
  EXPECT_EQ(parula[2].mb, 245.0 / 255.0);
  EXPECT_EQ(list.find("Early winter")->color_gradient.points()[3].mval, static_cast<double>(0.55F));
}

TEST(ColorPalette, anUnknownGradientTypeIsToldAndChangesNothing) {
  ColorGradient gradient;
  buildGradient(gradient, 1);
  const testing::ConsoleCapture console;
  buildGradient(gradient, 9);
  buildGradient(gradient, -1);
  EXPECT_EQ(gradient.points().size(), 2U);
  EXPECT_EQ(console.error(), "Unknown gradient type. \nUnknown gradient type. \n");
}

TEST(ColorPalette, aGradientTypeIsAddedToTheStopsThatThereAre) {
  ColorGradient gradient;
  buildGradient(gradient, 5);
  buildGradient(gradient, 1);
  ASSERT_EQ(gradient.points().size(), 8U);
  EXPECT_EQ(gradient.points()[0].mr, 59.0 / 255.0);
  EXPECT_EQ(gradient.points()[7].mr, 1.0);
}

TEST(ColorPalette, blendsBetweenStopsAndHoldsTheEnds) {
  const ColorGradient gradient = ColorPaletteList().find("Blue to red")->color_gradient;
  const struct {
    double t, red, blue;
  } facts[] = {
      {-3.0, 0.0, 1.0}, {0.0, 0.0, 1.0}, {0.25, 0.25, 0.75}, {1.0, 1.0, 0.0}, {7.0, 1.0, 0.0}};
  for (const auto& fact : facts) {
    EXPECT_DOUBLE_EQ(gradient.colorAt(fact.t).r, fact.red) << fact.t;
    EXPECT_DOUBLE_EQ(gradient.colorAt(fact.t).b, fact.blue) << fact.t;
  }
}

TEST(ColorTable, samplesTheGradientAtTheCentreOfEachClass) {
  const ColorTable table(*ColorPaletteList().find("Black to White"));
  ASSERT_EQ(table.size(), 64);
  for (int i = 0; i < table.size(); ++i) EXPECT_DOUBLE_EQ(table[i].g, (i + 0.5) / 64.0) << i;
}

TEST(ColorTable, findsTheClassOfEveryValue) {
  const ColorTable table(*ColorPaletteList().find("Silva viridis"),
                         {300.0, 3500.0});  // 50 m/s each
  const struct {
    double value;
    int index;
  } facts[] = {
      {-1e300, 0},       {300.0, 0},   {349.9, 0},   {350.1, 1},
      {3449.9, 62},      {3450.1, 63}, {3500.0, 63}, {std::numeric_limits<double>::infinity(), 63},
      {std::nan(""), -1}};
  for (const auto& fact : facts) EXPECT_EQ(table.indexOf(fact.value), fact.index) << fact.value;
  for (int i = 0; i < table.size(); ++i) {
    const ValueRange range = table.classRange(i);
    EXPECT_EQ(table.indexOf(0.5 * (range.min + range.max)), i);
  }
}

TEST(ColorTable, boundsTheNumberOfColorsThatAPaletteAsksFor) {
  ColorPalette palette = ColorPaletteList().current();
  palette.n_colors = -5;
  EXPECT_EQ(ColorTable(palette).size(), 1);
  palette.n_colors = std::numeric_limits<int>::max();
  EXPECT_EQ(ColorTable(palette).size(), ColorTable::kMaxColors);
}

TEST(ColorPaletteList, keepsTheCurrentPaletteWhenOthersGo) {
  ColorPaletteList list;
  for (const char* name : {"first", "second", "third"}) {
    ColorPalette palette;
    palette.name = name;
    list.add(palette);
  }
  ASSERT_TRUE(list.select(9));
  EXPECT_TRUE(list.remove(8));
  EXPECT_EQ(list.current().name, "second");
  EXPECT_TRUE(list.remove(9));
  EXPECT_EQ(list.current().name, "second");
  EXPECT_TRUE(list.remove(8));
  EXPECT_EQ(list.current().name, "Early winter");
}

TEST(ColorPaletteList, refusesToTouchBuiltInPalettesAndWhatIsNotThere) {
  ColorPaletteList list;
  EXPECT_FALSE(list.remove(0));
  EXPECT_FALSE(list.rename(0, "mine"));
  EXPECT_FALSE(list.select(8));
  EXPECT_FALSE(list.remove(8));
  EXPECT_EQ(list.size(), 8U);
  EXPECT_EQ(list.current().name, "Silva viridis");
}

}  // namespace
}  // namespace talvesk
