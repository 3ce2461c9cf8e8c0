#include "figures/RefractionFigure.h"
#include "figures/RefractionItems.h"
#include "refraction/BuildProfiles.h"
#include "support/ConsoleCapture.h"
#include "support/RefractionLines.h"

#include <QByteArray>
#include <QImage>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

TEST(RefractionFigure, paintsTheLayersWhereTheyLie) {
  const testing::ConsoleCapture console;
  refractionDataStructure::Interpretation all;
  const TomoDocument line =
      testing::standardDippingLine(testing::threeDippingLayers(), all.ttLayer);
  ASSERT_TRUE(buildProfiles(shotArrivals(line), all).built);
  QByteArray bytes;
  PlotPlace place;
  RefractionFigureOptions options;
  ASSERT_TRUE(renderRefractionFigure(line, all, options, FigureFormat::kPng, bytes, &place).ok());
  const QImage image = QImage::fromData(bytes);
  const auto colorAt = [&](double x, double elevation) {
    const double perMm = options.dpi / 25.4;
    return image.pixelColor(static_cast<int>(place.xToMm(x) * perMm),
                            static_cast<int>(place.yToMm(elevation) * perMm));
  };
  // Half way into each layer at 75 m: 3.75 m and 19.5 m are the depths of the refractors.
  const QColor layers[] = {colorAt(75, 98), colorAt(75, 88), colorAt(75, 79)};
  for (std::uint32_t layer = 1; layer <= 3; ++layer) {
    EXPECT_NEAR(layers[layer - 1].hueF(), layerColor(layer).hueF(), 0.03) << layer;
  }
  EXPECT_EQ(colorAt(75, 101), QColor(Qt::white));
}

TEST(RefractionFigure, hasNothingToDrawWithoutADepth) {
  TomoDocument line = testing::testLine(4, 5.0, {0});
  QByteArray bytes;
  const Status status = renderRefractionFigure(line, {}, {}, FigureFormat::kPng, bytes);
  EXPECT_FALSE(status.ok());
  EXPECT_TRUE(bytes.isEmpty());
}

TEST(RefractionFigure, saysThatPicksHaveChangedSince) {
  const testing::ConsoleCapture console;
  refractionDataStructure::Interpretation all;
  TomoDocument line = testing::standardDippingLine(testing::twoDippingLayers(), all.ttLayer);
  ASSERT_TRUE(buildProfiles(shotArrivals(line), all).built);
  const auto says = [&] {
    QByteArray svg;
    EXPECT_TRUE(renderRefractionFigure(line, all, {}, FigureFormat::kSvg, svg).ok());
    return svg.contains("Picks have changed since this was built");
  };
  EXPECT_FALSE(says());
  line.ttArray.edit()[3].ttMisurati.edit()[8] = kUnpicked;
  EXPECT_TRUE(says());
}

}  // namespace
}  // namespace talvesk
