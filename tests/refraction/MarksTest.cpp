#include "model/SurveyLine.h"
#include "support/RefractionLines.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;

Interpretation marked(std::size_t shots, std::size_t traces) {
  Interpretation all;
  for (std::uint32_t i = 0; i < shots; ++i) {
    all.ttLayer.push_back({});
    all.ttLayer.back().shotID = i;
    all.ttLayer.back().layer.assign(traces, 2);
  }
  all.refractData.cData.resize(1);
  return all;
}

TEST(Marks, stayWithShotsThatAreStillThere) {
  TomoDocument line = testing::testLine(4, 5.0, {0, 10, 20});
  Interpretation all = marked(2, 4);
  all.ttLayer[1].enabled = false;
  EXPECT_FALSE(fitToSurvey(line, all)) << "a shot more takes nothing away";
  ASSERT_EQ(all.ttLayer.size(), 3U);
  EXPECT_EQ(all.ttLayer[1].layer[3], 2U);
  EXPECT_FALSE(all.ttLayer[1].enabled);
  EXPECT_EQ(all.ttLayer[2].layer, std::vector<std::uint32_t>(4, 0));
  EXPECT_EQ(all.refractData.cData.size(), 1U);
}

TEST(Marks, areForgottenWithWhatTheyWereFor) {
  struct Case {
    const char* what;
    std::size_t shots, traces;
  };
  for (const Case& c : {Case{"a shot is gone", 3, 4}, Case{"other traces", 2, 5}}) {
    TomoDocument line = testing::testLine(4, 5.0, {0, 10});
    Interpretation all = marked(c.shots, c.traces);
    EXPECT_TRUE(fitToSurvey(line, all)) << c.what;
    EXPECT_EQ(all.ttLayer.size(), 2U);
    EXPECT_EQ(all.ttLayer[0].layer.size(), 4U);
    EXPECT_TRUE(all.refractData.cData.empty()) << c.what;
  }
}

TEST(Marks, ofNoLayerCountAsNone) {
  TomoDocument line = testing::testLine(2, 5.0, {0});
  Interpretation all = marked(1, 2);
  all.ttLayer[0].layer = {7, 3};
  all.ttLayer[0].trasla = {1.0, 2.0, 3.0};
  fitToSurvey(line, all);
  EXPECT_EQ(all.ttLayer[0].layer, (std::vector<std::uint32_t>{0, 3}));
  EXPECT_EQ(all.ttLayer[0].trasla.size(), 2U);
}

TEST(Arrivals, areFinitePicksUpToTheShorterOfRecordAndString) {
  TomoDocument line = testing::testLine(4, 5.0, {0});
  line.ttArray.edit()[0].ttMisurati.edit() = {0.01, kNoTime, std::nan(""), 0.02, 0.03, 0.04};
  line.line.edit().goephonesStringSet[0][3].x = std::numeric_limits<double>::infinity();
  auto shots = shotArrivals(line);
  EXPECT_EQ(shots[0].times, (std::vector<double>{0.01, 0, 0, 0}));
  line.ttArray.edit()[0].ttMisurati.edit().resize(2);
  shots = shotArrivals(line);
  EXPECT_EQ(shots[0].receivers.size(), 2U);
  line.ttArray.edit()[0].indexStesa = 9;
  EXPECT_TRUE(shotArrivals(line)[0].receivers.empty());
}

}  // namespace
}  // namespace talvesk
