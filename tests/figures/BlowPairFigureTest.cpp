#include "figures/BlowPairFigure.h"
#include "support/PanelPicture.h"
#include "support/ShotDocument.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;

bool isBlue(const QColor& color) {
  return color.blue() > 120 && color.red() < 80;
}
bool isVermilion(const QColor& color) {
  return color.red() > 150 && color.blue() < 80;
}

struct Drawn {
  QImage image;
  std::vector<GatherPanelPlace> panels;
};

/// Overlay, difference and sum of shots 1 and 2, whose geophones stand from 10 to 30 m.
Drawn drawn(double first, double second) {
  TomoDocument document = shotDocument(2, 11, 400);
  document.ttArray.edit()[0].shotPos2d.x = first;
  document.ttArray.edit()[1].shotPos2d.x = second;
  BlowPair pair;
  EXPECT_TRUE(layOver(document, {0}, {1}, {}, pair).ok());
  BlowPairLook look;
  look.picks = false;
  FigureDrawing drawing;
  Drawn result;
  const Status status = prepareBlowPair(pair, look, drawing, &result.panels);
  EXPECT_TRUE(status.ok()) << status.message();
  result.image = pictureOf(drawing);
  return result;
}

TEST(BlowPairFigure, hasAStarOfEachShotOverEveryPanel) {
  const Drawn apart = drawn(7.0, 33.0);
  ASSERT_EQ(apart.panels.size(), 3U);
  for (const GatherPanelPlace& panel : apart.panels) {
    EXPECT_LT(panel.low, 7.0);
    EXPECT_GT(panel.high, 33.0);
    EXPECT_TRUE(hasColorAt(apart.image, panel, 7.0, 0.0, isBlue));
    EXPECT_FALSE(hasColorAt(apart.image, panel, 7.0, 0.0, isVermilion));
    EXPECT_TRUE(hasColorAt(apart.image, panel, 33.0, 0.0, isVermilion));
    EXPECT_FALSE(hasColorAt(apart.image, panel, 33.0, 0.0, isBlue));
  }
}

TEST(BlowPairFigure, sharesAStarWhereBothShotsAreAtOnePlace) {
  const Drawn one = drawn(7.0, 7.0);
  for (const GatherPanelPlace& panel : one.panels) {
    EXPECT_TRUE(hasColorAt(one.image, panel, 7.0, 0.0, isBlue, -4, -1));
    EXPECT_TRUE(hasColorAt(one.image, panel, 7.0, 0.0, isVermilion, 1, 4));
  }
}

TEST(BlowPairFigure, leavesAShotThatIsFarAwayOut) {
  const Drawn far = drawn(7.0, 900.0);
  EXPECT_LT(far.panels.front().high, 40.0);
  EXPECT_TRUE(hasColorAt(far.image, far.panels.front(), 7.0, 0.0, isBlue));
}

}  // namespace
}  // namespace talvesk
