#include "view/GradientHandles.h"
#include "view/PaletteRepair.h"

#include <limits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;

/// Handles at the given values of a scale from 0 to 1000.
GradientHandles handlesAt(const std::vector<int>& values) {
  ColorPalette palette;
  palette.min_db = 0.0;
  palette.max_db = 1000.0;
  for (const int value : values) {
    palette.color_gradient.add({value / 1000.0, 0.5, 0.25, value / 1000.0});
  }
  return GradientHandles(palette);
}

std::vector<int> valuesOf(const GradientHandles& handles) {
  std::vector<int> values;
  for (std::size_t i = 0; i < handles.count(); ++i) values.push_back(handles.value(i));
  return values;
}

TEST(GradientHandles, standBetweenTheTruncatedEndsOfTheScale) {
  ColorPalette palette = *ColorPaletteList().find("Silva viridis");
  palette.min_db = 250.9;
  palette.max_db = 3500.9;
  EXPECT_THAT(valuesOf(GradientHandles(palette)), ElementsAre(250, 1063, 1875, 2688, 3500));
  palette.min_db = 0.2;
  palette.max_db = 0.7;
  EXPECT_THAT(valuesOf(GradientHandles(palette)), ElementsAre(0, 0, 1, 1, 1));
}

TEST(GradientHandles, keepTheirDistanceFromANeighbourAndNeverPassOne) {
  const struct {
    std::vector<int> values;
    std::size_t index;
    int wanted, stands;
  } facts[] = {
      {{0, 300, 600, 1000}, 1, 450, 450},
      {{0, 300, 600, 1000}, 1, 1, 1},  // above the neighbour, however close
      {{0, 300, 600, 1000}, 1, 0, 50},
      {{0, 300, 600, 1000}, 1, -70, 50},
      {{0, 300, 600, 1000}, 1, 599, 599},
      {{0, 300, 600, 1000}, 1, 600, 550},
      {{0, 300, 600, 1000}, 1, 5000, 550},
      {{0, 300, 600, 1000}, 2, 300, 350},
      {{0, 300, 600, 1000}, 0, 20, 0},
      {{0, 300, 600, 1000}, 3, 900, 1000},
      {{0, 300, 320, 360, 1000}, 2, 400, 310},
      {{0, 300, 320, 340, 1000}, 2, 400, 320},  // 290 would pass the one before
      {{0, 300, 320, 340, 1000}, 2, 100, 320},
      {{0, 300, 300, 301, 1000}, 2, 400, 300},  // no room at all
      {{0, 300, 300, 300, 1000}, 2, 400, 300},
  };
  for (const auto& fact : facts) {
    GradientHandles handles = handlesAt(fact.values);
    EXPECT_EQ(handles.move(fact.index, fact.wanted), fact.stands) << fact.wanted;
    EXPECT_EQ(handles.value(fact.index), fact.stands) << fact.wanted;
    EXPECT_EQ(handles.value(0), 0);
    EXPECT_EQ(handles.value(handles.count() - 1), 1000);
  }
}

TEST(GradientHandles, comeBackToTheValueThatTheyWereMovedTo) {
  ColorPalette palette = *ColorPaletteList().find("Silva viridis");
  GradientHandles handles(palette);
  for (int value = 251; value < 1875; ++value) {
    ASSERT_EQ(handles.move(1, value), value);
    ASSERT_EQ(handles.value(1), value);
  }
  EXPECT_EQ(handles.value(1), 1874);
}

TEST(GradientHandles, keepThePictureWhenOneIsPutBetweenTwo) {
  GradientHandles handles = handlesAt({0, 400, 1000});
  const RgbColor before = handles.gradient().colorAt(0.7);
  EXPECT_EQ(handles.insertBeside(2), 2U);
  EXPECT_THAT(valuesOf(handles), ElementsAre(0, 400, 700, 1000));
  EXPECT_DOUBLE_EQ(handles.gradient().points()[2].mr, before.r);
  EXPECT_EQ(handles.insertBeside(0), 1U);
  EXPECT_THAT(valuesOf(handles), ElementsAre(0, 200, 400, 700, 1000));
  GradientHandles crowded = handlesAt({0, 1, 1000});
  EXPECT_FALSE(crowded.insertBeside(0).has_value());
  GradientHandles full = handlesAt(std::vector<int>(kMostGradientStops, 0));
  EXPECT_FALSE(full.insertBeside(kMostGradientStops - 1).has_value());
}

TEST(GradientHandles, loseAllButTheirEnds) {
  GradientHandles handles = handlesAt({0, 400, 1000});
  EXPECT_FALSE(handles.remove(0));
  EXPECT_FALSE(handles.remove(2));
  EXPECT_TRUE(handles.remove(1));
  EXPECT_THAT(valuesOf(handles), ElementsAre(0, 1000));
}

TEST(GradientHandles, stayInPlaceOnAnotherScale) {
  GradientHandles handles = handlesAt({0, 250, 1000});
  EXPECT_FALSE(handles.setScale(10, 10));
  EXPECT_TRUE(handles.setScale(-1000, 3000));
  EXPECT_THAT(valuesOf(handles), ElementsAre(-1000, 0, 3000));
  EXPECT_TRUE(handles.setScale(-1000000000, 1000000000)) << "the widest there is";
  EXPECT_EQ(handles.move(1, std::numeric_limits<int>::max()), 1000000000 - 50);
}

}  // namespace
}  // namespace talvesk
