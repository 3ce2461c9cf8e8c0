#include "figures/FigureFile.h"
#include "figures/LayerMethodsFigure.h"
#include "refraction/methods/MethodComparison.h"
#include "support/ConsoleCapture.h"
#include "support/TestFolder.h"

#include <QByteArray>
#include <cmath>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

MethodResult resultOf(LayerMethod method, std::vector<double> depths, Support support) {
  MethodResult result;
  result.method = method;
  MethodLayer layer;
  layer.velocity.assign(depths.size(), 1800.0);
  layer.depthSupport.assign(depths.size(), support);
  for (std::size_t j = 0; j < depths.size(); ++j) {
    result.receivers.push_back({5.0 * static_cast<double>(j), 0.0});
  }
  layer.depth = std::move(depths);
  result.layers.push_back(std::move(layer));
  return result;
}

std::string svgOf(const MethodComparison& comparison) {
  const testing::TestFolder folder;
  const std::string path = folder.file("methods.svg");
  EXPECT_TRUE(writeLayerMethodsFigure(comparison, {}, path).ok());
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool has(const std::string& text, const char* part) {
  return text.find(part) != std::string::npos;
}

TEST(LayerMethodsFigure, namesTheMethodsThatHaveADepthAndWhatDashesAre) {
  const double none = std::nan("");
  MethodComparison comparison;
  comparison.results = {
      resultOf(LayerMethod::kReciprocal, {5.0, 6.0, none, 7.0, 7.0}, Support::kPicks),
      resultOf(LayerMethod::kIntercept, {none, none, none, none, none}, Support::kPicks)};
  const std::string svg = svgOf(comparison);
  EXPECT_TRUE(has(svg, "Reciprocal"));
  EXPECT_FALSE(has(svg, "Intercept times")) << "it has nothing to draw";
  EXPECT_TRUE(has(svg, "Distance [m]"));
  EXPECT_TRUE(has(svg, "Depth [m]"));
  EXPECT_FALSE(has(svg, "dashed"));
  EXPECT_FALSE(has(svg, "shaded"));

  comparison.results.push_back(
      resultOf(LayerMethod::kPlusMinus, {5.5, 6.5, 6.5, 6.5, 6.5}, Support::kExtrapolated));
  comparison.results[0].layers[0].depthBand = {{4.0, 5.0, none, 6.0, 6.0},
                                               {6.0, 7.0, none, 8.0, 8.0}};
  const std::string more = svgOf(comparison);
  EXPECT_TRUE(has(more, "dashed: not carried by picks there"));
  EXPECT_TRUE(has(more, "shaded: 68 of 100 results of moved picks"));
  EXPECT_FALSE(has(more, "hollow"));
}

TEST(LayerMethodsFigure, isNoneWithoutADepth) {
  MethodComparison comparison;
  FigureDrawing drawing;
  EXPECT_FALSE(prepareLayerMethodsFigure(comparison, {}, drawing).ok());
  comparison.results = {
      resultOf(LayerMethod::kReciprocal, {std::nan(""), std::nan("")}, Support::kPicks)};
  const Status status = prepareLayerMethodsFigure(comparison, {}, drawing);
  EXPECT_EQ(status.message(), "No method gives a depth.");
}

}  // namespace
}  // namespace talvesk
