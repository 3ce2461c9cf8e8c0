#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "refraction/BuildProfiles.h"
#include "refraction/elastic/ElasticSurveys.h"
#include "refraction/elastic/MatchWaves.h"
#include "support/RefractionLines.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using Q = ElasticQuantity;

const double kNone = std::numeric_limits<double>::quiet_NaN();

/// A wave with one refractor at receivers from 0 m on, over a level surface at 100 m.
LayeredWave waveOf(double v1, double v2, double depth, double spacing = 2.0, int receivers = 11,
                   double first = 0.0) {
  LayeredWave wave;
  WaveLayer upper;
  WaveLayer lower;
  for (int i = 0; i < receivers; ++i) {
    const double x = first + i * spacing;
    wave.surface.push_back({x, 100.0});
    upper.x.push_back(x);
    upper.velocity.push_back({v1, kNone});
    upper.top.push_back({0.0, 0.0});
    lower.x.push_back(x);
    lower.velocity.push_back({v2, kNone});
    lower.top.push_back({depth, kNone});
  }
  wave.layers = {upper, lower};
  return wave;
}

std::vector<double> placesOf(const ElasticLayer& layer) {
  std::vector<double> places;
  for (const ElasticPoint& point : layer.points) places.push_back(point.x);
  return places;
}

std::vector<std::string> textsOf(const std::vector<Message>& messages) {
  return {messages.begin(), messages.end()};
}

ElasticLine matched(const LayeredWave& p, const LayeredWave& s,
                    const ElasticOptions& options = {}) {
  ElasticLine line;
  const Status status = matchWaves(p, s, options, line);
  EXPECT_TRUE(status.ok()) << status.message();
  return line;
}

TEST(ElasticLine, matchesLayersByNumberAndPlacesByDistance) {
  const ElasticLine line = matched(waveOf(600, 1800, 5, 2.0, 4), waveOf(300, 700, 5, 3.0, 3, 1.0));
  ASSERT_EQ(line.layers.size(), 2U);
  EXPECT_THAT(line.remarks, IsEmpty());
  for (const ElasticLayer& layer : line.layers) {
    EXPECT_THAT(placesOf(layer), ElementsAre(1.0, 2.0, 4.0, 6.0));
  }
  EXPECT_NEAR(line.layers[0].median(Q::kRatio), 2.0, 1e-12);
  EXPECT_NEAR(line.layers[1].median(Q::kRatio), 18.0 / 7.0, 1e-12);
  EXPECT_EQ(line.layers[1].points[0].elevation, 100.0);
}

TEST(ElasticLine, takesReceiversAHairApartAsOne) {
  const ElasticLine line = matched(waveOf(600, 1800, 5, 2.0, 3), waveOf(300, 700, 5, 2.0, 3, 2e-4));
  EXPECT_THAT(placesOf(line.layers[0]), ElementsAre(0.0, 2.0, 4.0));
  EXPECT_EQ(line.layers[0].count(ElasticVerdict::kUnknown), 0U);
}

TEST(ElasticLine, interpolatesOnlyBetweenKnownNeighbours) {
  LayeredWave s = waveOf(300, 700, 5, 4.0, 4);
  s.layers[1].velocity = {{600, 6}, {800, 10}, {kNone, kNone}, {900, 9}};
  const ElasticLine line = matched(waveOf(600, 1800, 5), s);
  const std::vector<ElasticPoint>& points = line.layers[1].points;
  EXPECT_THAT(placesOf(line.layers[1]), ElementsAre(0, 2, 4, 6, 8, 10, 12));
  EXPECT_NEAR(points[1].state[Q::kVs].value, 700.0, 1e-9);
  EXPECT_NEAR(points[1].state[Q::kVs].sigma, 8.0, 1e-9);
  for (const std::size_t i : {3U, 4U, 5U}) {
    EXPECT_EQ(points[i].state.verdict, ElasticVerdict::kUnknown);
    EXPECT_EQ(points[i].state[Q::kVp].value, 1800.0);
  }
  EXPECT_THAT(textsOf(line.remarks),
              Contains("Layer 2: at 3 of 7 places a velocity is not known."));
}

TEST(ElasticLine, shiftsTheDistancesOfS) {
  ElasticOptions options;
  options.shift = 100.0;
  const ElasticLine line =
      matched(waveOf(600, 1800, 5, 2.0, 5, 100.0), waveOf(300, 700, 5, 2.0, 3), options);
  EXPECT_THAT(placesOf(line.layers[0]), ElementsAre(100.0, 102.0, 104.0));
}

TEST(ElasticLine, refusesWhatCannotBeMatched) {
  struct Row {
    LayeredWave p;
    LayeredWave s;
    const char* why;
  };
  const LayeredWave good = waveOf(600, 1800, 5);
  const Row rows[] = {
      {LayeredWave(), good, "The project of P has no layered profile"},
      {good, LayeredWave(), "The project of S has no layered profile"},
      {good, waveOf(300, 700, 5, 2.0, 11, 50.0),
       "P and S have no place in common: P was interpreted from 0 m to 20 m, S from 50 m to 70 m"},
  };
  for (const Row& row : rows) {
    ElasticLine line;
    line.layers.resize(7);
    const Status status = matchWaves(row.p, row.s, {}, line);
    EXPECT_FALSE(status.ok());
    EXPECT_THAT(status.message(), HasSubstr(row.why));
    EXPECT_EQ(line.layers.size(), 7U);
  }
}

TEST(ElasticLine, saysWhatDoesNotFit) {
  struct Row {
    const char* what;
    LayeredWave p;
    LayeredWave s;
    const char* remark;
  };
  const LayeredWave good = waveOf(600, 1800, 5);
  LayeredWave high = waveOf(300, 700, 5);
  high.surface[3].z += 4.5;
  LayeredWave single = waveOf(300, 700, 5);
  single.layers.pop_back();
  const Row rows[] = {
      {"the water table", waveOf(600, 1500, 4), waveOf(300, 700, 6),
       "Layer 2: at 11 of 11 places the depths of its top by P and by S differ by more than 20 % "
       "(median there 4 m by P, 6 m by S)."},
      {"exchanged", waveOf(300, 700, 5), waveOf(600, 1800, 5),
       "Layer 1: at 11 of 11 places S is not slower than P"},
      {"twice the same", good, good, "Layer 2: at 11 of 11 places S is not slower than P"},
      {"too fast an S", good, waveOf(500, 700, 5),
       "Layer 1: at 11 of 11 places Vp/Vs is below 1.41 and Poisson's ratio negative"},
      {"other heights", good, high, "The surfaces of P and S lie up to 4.5 m apart, at 6 m"},
      {"a layer more", good, single,
       "P has 2 layers and S has 1; what lies below layer 1 is known of one wave only"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_THAT(textsOf(matched(row.p, row.s).remarks), Contains(HasSubstr(row.remark)));
  }
  const ElasticLine apart = matched(rows[0].p, rows[0].s);
  EXPECT_TRUE(apart.layers[1].points[0].topsDiffer);
  EXPECT_FALSE(apart.layers[0].points[0].topsDiffer);
  ElasticOptions rock;
  rock.density.gardner = true;
  EXPECT_THAT(textsOf(matched(good, waveOf(300, 700, 5), rock).remarks),
              ElementsAre(HasSubstr("at 11 of 22 places Vp is less, and the density a guess")));
}

TEST(ElasticLine, toleratesDepthsWithinTheShareAskedFor) {
  ElasticOptions options;
  options.topTolerance = 50.0;
  EXPECT_THAT(matched(waveOf(600, 1500, 4), waveOf(300, 700, 6), options).remarks, IsEmpty());
}

TEST(ElasticSurveys, findPandSByRecordingsThenByVelocities) {
  TomoDocument p;
  TomoDocument s;
  const LayeredWave fast = waveOf(600, 1800, 5);
  const LayeredWave slow = waveOf(300, 700, 5);
  EXPECT_FALSE(seemExchanged(p, fast, s, slow));
  EXPECT_TRUE(seemExchanged(s, slow, p, fast));
  s.recordings.edit().waveType = WaveType::S;
  EXPECT_FALSE(seemExchanged(p, slow, s, fast));
  EXPECT_TRUE(seemExchanged(s, fast, p, slow));
  EXPECT_THAT(textsOf(compareSurveys(s, p, {})), ElementsAre(HasSubstr("they may be exchanged")));
  EXPECT_THAT(textsOf(compareSurveys(s, s, {})), ElementsAre(HasSubstr("both projects are of S")));
  EXPECT_THAT(compareSurveys(p, s, {}), IsEmpty());
}

TEST(ElasticSurveys, comparePlacesOnTheMap) {
  TomoDocument p = testing::testLine(11, 10.0, {0.0});
  TomoDocument s = testing::testLine(6, 10.0, {0.0});
  p.map.edit() = {{32632, 1000, 1100, 5000, 5000}, true};
  s.map.edit() = {{32632, 1030, 1080, 5000, 5000}, true};
  ElasticOptions options;
  EXPECT_THAT(textsOf(compareSurveys(p, s, options)),
              ElementsAre(HasSubstr("lie up to 30 m apart on the map")));
  options.shift = 30.0;
  EXPECT_THAT(compareSurveys(p, s, options), IsEmpty());
  s.map.edit().geoCoord.CRS = 32633;
  EXPECT_THAT(textsOf(compareSurveys(p, s, options)),
              ElementsAre(AllOf(HasSubstr("EPSG:32632"), HasSubstr("EPSG:32633"))));
}

/// A dipping refractor by both waves, from picks through profiles to moduli.
TEST(ElasticLine, comesFromPicksOfBothWaves) {
  const auto waveFrom = [](double slower, int members) {
    testing::DippingLayers ground = testing::twoDippingLayers();
    for (double& v : ground.velocities) v /= slower;
    refractionDataStructure::Interpretation interpretation;
    const TomoDocument document = testing::standardDippingLine(ground, interpretation.ttLayer);
    EXPECT_TRUE(buildProfiles(shotArrivals(document), interpretation).built);
    if (members == 0) return layeredWave(interpretation.refractData);
    BoundsOptions bounds;
    bounds.members = members;
    return layeredWave(document, interpretation, bounds);
  };
  const ElasticLine exact = matched(waveFrom(1.0, 0), waveFrom(2.5, 0));
  ASSERT_EQ(exact.layers.size(), 2U);
  EXPECT_FALSE(exact.hasErrors);
  for (const ElasticLayer& layer : exact.layers) {
    EXPECT_NEAR(layer.median(Q::kRatio), 2.5, 0.02);
    EXPECT_NEAR(layer.median(Q::kPoisson), 4.25 / 10.5, 0.005);
  }
  EXPECT_NEAR(exact.layers[0].median(Q::kShear), 2000.0 * 200.0 * 200.0, 1e6);

  const ElasticLine sure = matched(waveFrom(1.0, 12), waveFrom(2.5, 12));
  EXPECT_TRUE(sure.hasErrors);
  for (std::size_t i = 0; i < 2; ++i) {
    const ElasticState& state = sure.layers[i].points[sure.layers[i].points.size() / 2].state;
    const double relative = state[Q::kVp].sigma / state[Q::kVp].value;
    EXPECT_GT(relative, 1e-5);
    EXPECT_LT(relative, 0.2);
    EXPECT_GT(state[Q::kShear].sigma, 0.0);
    EXPECT_EQ(state[Q::kVp].value,
              exact.layers[i].points[sure.layers[i].points.size() / 2].state[Q::kVp].value);
  }
}

TEST(LayeredWave, holdsNoVelocityThatNoGroundHas) {
  refractionDataStructure::processingData results;
  results.v1 = 1e300;
  refractionDataStructure::computedData refractor;
  refractor.x = {0.0, 2.0, 1.0, 4.0};
  refractor.elevation = {1.0, 1.0, 1.0, 1.0};
  refractor.velocity = {1500.0, -3.0, 1500.0, kNone};
  refractor.depth = {3.0, 3.0, 3.0};
  results.cData = {refractor};
  const LayeredWave wave = layeredWave(results);
  ASSERT_EQ(wave.layers.size(), 2U);
  EXPECT_TRUE(std::isnan(wave.layers[0].velocity[0].value));
  EXPECT_THAT(wave.layers[1].x, ElementsAre(0.0, 2.0));
  EXPECT_EQ(wave.layers[1].velocity[0].value, 1500.0);
  EXPECT_TRUE(std::isnan(wave.layers[1].velocity[1].value));
  EXPECT_THAT(layeredWave(refractionDataStructure::processingData()).layers, IsEmpty());
}

}  // namespace
}  // namespace talvesk
