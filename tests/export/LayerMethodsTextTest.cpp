#include "export/LayerMethodsText.h"
#include "refraction/methods/MethodComparison.h"

#include <cmath>
#include <sstream>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

const double kNone = std::nan("");

MethodLayer layerOf(std::uint32_t number, double depth, double velocity, Support support) {
  MethodLayer layer;
  layer.layer = number;
  layer.depth = {depth};
  layer.velocity = {velocity};
  layer.depthSupport = {support};
  layer.velocitySupport = {Support::kPicks};
  return layer;
}

std::string textOf(const MethodComparison& comparison, char separator) {
  std::ostringstream text;
  tellLayerMethods(text, comparison, separator);
  return text.str();
}

TEST(LayerMethodsText, hasALinePerRefractorAndGeophone) {
  MethodComparison comparison;
  comparison.results.resize(2);
  comparison.results[0].layers = {layerOf(2, 4.5, 1800.0, Support::kPhantom)};
  comparison.results[1].method = LayerMethod::kPlusMinus;
  comparison.results[1].layers = {layerOf(2, kNone, kNone, Support::kPicks),
                                  layerOf(3, 20.0, kNone, Support::kPicks)};
  for (MethodResult& result : comparison.results) result.receivers = {{7.5, 101.25}};
  comparison.results[0].layers[0].depthBand = {{4.0}, {4.5}};
  comparison.disagreements = {{2, {true}, {false}}};
  EXPECT_EQ(textOf(comparison, ','),
            "layer,position_m,elevation_m,reciprocal_depth_m,reciprocal_depth_error_m,"
            "reciprocal_velocity_m_s,reciprocal_velocity_error_m_s,reciprocal_carried_by,"
            "plus_minus_depth_m,plus_minus_depth_error_m,plus_minus_velocity_m_s,"
            "plus_minus_velocity_error_m_s,plus_minus_carried_by,disagree_in\n"
            "2,7.5,101.25,4.5,0.25,1800,,phantom,,,,,,depth\n"
            "3,7.5,101.25,,,,,,20,,,,picks,\n");
  EXPECT_EQ(textOf(comparison, '\t').find(','), std::string::npos);
}

}  // namespace
}  // namespace talvesk
