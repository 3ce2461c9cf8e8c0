#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ShotDocument.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

std::vector<double> elevations(const GeophoneString& string) {
  std::vector<double> z;
  for (const GeometryPlace& place : string) z.push_back(place.z);
  return z;
}

/// Two shots of three traces with picks, grid and results pretended.
TomoDocument survey() {
  TomoDocument document = shotDocument(2, 3, 8);
  document.line.edit().shotPositions = {9.0, 13.0};
  document.result.edit().has_tomographic_info = true;
  for (TravelTime& record : document.ttArray.edit()) record.ttCalcolati.edit().assign(3, 0.01);
  return document;
}

std::shared_ptr<SWavePair> pairAt(double source, std::size_t traces) {
  auto pair = std::make_shared<SWavePair>();
  pair->fileDX = "dx.dat";
  pair->fileSX = "sx.dat";
  for (std::size_t i = 0; i < traces; ++i) {
    Trace& trace = pair->traces.emplace_back();
    trace.waveKind = Trace::kSWavePair;
    trace.sourcePosition = {source, 0.0};
    trace.receiverPosition = {10.0 + 2.0 * static_cast<double>(i), 0.0};
  }
  return pair;
}

TEST(SurveyGeometry, leftAsItIsChangesNothing) {
  TomoDocument document = survey();
  document.line.edit().goephonesStringSet[0][1].z = kNone;
  const SurveyGeometry geometry = geometryOf(document);
  EXPECT_FALSE(geometryDiffers(geometry, document));
  EXPECT_FALSE(applyGeometry(geometry, document));
  EXPECT_TRUE(document.result->has_tomographic_info);
}

TEST(SurveyGeometry, appliedForgetsResultsAndKeepsPicks) {
  const std::pair<const char*, void (*)(SurveyGeometry&)> kEdits[] = {
      {"geophone moved", [](SurveyGeometry& g) { g.strings[0][2].x = 15.0; }},
      {"geophone added",
       [](SurveyGeometry& g) {
         g.strings[0].push_back({16.0, 1.0, true});
       }},
      {"string added", [](SurveyGeometry& g) { g.strings.push_back(g.strings[0]); }},
      {"shot raised", [](SurveyGeometry& g) { g.shots[1].place.z = 2.0; }},
      {"shot of another string", [](SurveyGeometry& g) { g.shots[1].string = -1; }},
  };
  for (const auto& [name, edit] : kEdits) {
    SCOPED_TRACE(name);
    TomoDocument document = survey();
    document.proposedCellSizes = std::vector<double>{0.5};
    SurveyGeometry geometry = geometryOf(document);
    edit(geometry);
    EXPECT_TRUE(applyGeometry(geometry, document));
    EXPECT_THAT(*document.proposedCellSizes, ElementsAre(0.5)) << "the first proposal stays";
    EXPECT_FALSE(geometryDiffers(geometry, document));
    EXPECT_FALSE(document.result->has_tomographic_info);
    EXPECT_DOUBLE_EQ(document.ttArray[1].ttMisurati[2], firstBreak(2));
    EXPECT_THAT(document.ttArray[1].ttCalcolati, ElementsAre(kNoTime, kNoTime, kNoTime));
    EXPECT_EQ(document.recordings->waveType, WaveType::P);
    EXPECT_EQ(document.line->shotPositions[1], geometry.shots[1].place.x);
  }
}

TEST(SurveyGeometry, worksOnPicksWithoutTraces) {
  TomoDocument document = survey();
  document.recordings.edit().traceSets.clear();
  document.recordings.edit().filenames.clear();
  document.line.edit().shotPositions.clear();
  SurveyGeometry geometry = geometryOf(document);
  EXPECT_EQ(geometry.shots[0].traces, 3U);
  geometry.shots[0].place.x = 8.0;
  EXPECT_TRUE(applyGeometry(geometry, document));
  EXPECT_EQ(document.ttArray[0].shotPos2d.x, 8.0);
  EXPECT_THAT(document.line->shotPositions, SizeIs(0));

  document.line.edit().shotPositions = {8.0, 13.0};  // as an import leaves them
  geometry.shots[1].place.x = 14.0;
  EXPECT_TRUE(applyGeometry(geometry, document));
  EXPECT_THAT(document.line->shotPositions, ElementsAre(8.0, 14.0));
}

TEST(SurveyGeometry, takesAPairForAnEmptySurveyAndForAShot) {
  TomoDocument document;
  SurveyGeometry geometry;
  addPair(geometry, pairAt(9.0, 3));
  addPair(geometry, pairAt(17.0, 3));
  EXPECT_THAT(geometry.strings, SizeIs(1)) << "equal receivers are one string";
  EXPECT_TRUE(applyGeometry(geometry, document));
  EXPECT_EQ(document.recordings->waveType, WaveType::S);
  EXPECT_THAT(document.recordings->traceSets, SizeIs(2));
  EXPECT_THAT(document.recordings->traceSets[1], SizeIs(3));
  EXPECT_THAT(document.recordings->filenames, ElementsAre("", ""));
  EXPECT_THAT(document.recordings->filenames_DX, ElementsAre("dx.dat", "dx.dat"));
  EXPECT_THAT(document.recordings->filenames_SX, ElementsAre("sx.dat", "sx.dat"));
  EXPECT_EQ(document.ttArray[1].traceSetID, 1);
  EXPECT_EQ(document.ttArray[1].shotPos2d.x, 17.0);
  EXPECT_THAT(document.ttArray[1].ttMisurati, ElementsAre(0.0, 0.0, 0.0));
  EXPECT_EQ(shotFile(document, 1), "dx.dat");

  document.ttArray.edit()[0].ttMisurati.edit() = {0.1, 0.2, 0.3};
  document.ttArray.edit()[1].ttMisurati.edit() = {0.1, 0.2, 0.3};
  geometry = geometryOf(document);
  geometry.shots[1].pair = pairAt(99.0, 2);
  EXPECT_TRUE(applyGeometry(geometry, document));
  EXPECT_EQ(document.ttArray[1].shotPos2d.x, 17.0) << "the shot stays where it was put";
  EXPECT_THAT(document.ttArray[1].ttMisurati, ElementsAre(0.0, 0.0));
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(0.1, 0.2, 0.3));
}

TEST(Elevations, countAsTypedUnlessAllAreZero) {
  TomoDocument document = survey();
  EXPECT_FALSE(geometryOf(document).strings[0][1].typed);
  document.line.edit().goephonesStringSet[0][2].z = 5.0;
  EXPECT_TRUE(geometryOf(document).strings[0][1].typed);
}

TEST(Elevations, areInterpolatedBetweenTypedOnesAlongTheLine) {
  const struct {
    const char* name;
    GeophoneString string;
    std::vector<double> z;
    std::size_t filled;
  } kCases[] = {
      {"between and beyond",
       {{0, 9}, {2, 10, true}, {5, kNone}, {12, 20, true}, {15, kNone}},
       {10, 10, 13, 20, 20},
       3},
      {"by distance, not by number", {{4, 8, true}, {0, 0, true}, {1, kNone}}, {8, 0, 2}, 1},
      {"one typed", {{0, kNone}, {5, 7, true}}, {7, 7}, 1},
      {"none typed", {{0, 3}, {5, 4}}, {3, 4}, 0},
      {"to the millimetre", {{0, 0, true}, {1, 9}, {3, 1, true}}, {0, 0.333, 1}, 1},
      {"unknown distances stay", {{0, 1, true}, {kNone, 6}, {4, kNone}}, {1, 6, 1}, 1},
  };
  for (auto [name, string, z, filled] : kCases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(interpolateElevations(string), filled);
    EXPECT_EQ(elevations(string), z);
  }
}

TEST(Elevations, ofShotsComeFromTheGeophonesAround) {
  SurveyGeometry geometry = geometryOf(survey());
  for (GeometryPlace& place : geometry.strings[0]) place.z = 2.0 * place.x;
  geometry.shots[0].place = {11.0, kNone};
  geometry.shots[1].place = {30.0, 5.0, true};
  EXPECT_EQ(interpolateShotElevations(geometry), 1U);
  EXPECT_EQ(geometry.shots[0].place.z, 22.0);
  EXPECT_EQ(geometry.shots[1].place.z, 5.0);
}

TEST(Autofill, spacesGeophonesAndKeepsElevations) {
  GeophoneString string = {{7, 100, true}, {8, 101, true}};
  autofill(string, -4.0, 2.5, 3);
  ASSERT_THAT(string, SizeIs(3));
  EXPECT_EQ(string[0].x, -4.0);
  EXPECT_EQ(string[2].x, 1.0);
  EXPECT_EQ(string[1].z, 101.0);
  EXPECT_TRUE(std::isnan(string[2].z));
  autofill(string, 10.0, -1.0, 2);
  EXPECT_EQ(string[1].x, 9.0);
  EXPECT_THAT(string, SizeIs(2));
}

TEST(Strings, areRemovedWithTheirShotsGivenToAnother) {
  SurveyGeometry geometry;
  geometry.strings.resize(3);
  geometry.shots.resize(3);
  for (int i = 0; i < 3; ++i) geometry.shots[static_cast<std::size_t>(i)].string = i;
  removeString(geometry, 1, 0);
  EXPECT_THAT(geometry.strings, SizeIs(2));
  EXPECT_THAT(shotsOfString(geometry, 0), ElementsAre(0U, 1U));
  EXPECT_THAT(shotsOfString(geometry, 1), ElementsAre(2U));
  removeString(geometry, 7, 0);
  EXPECT_THAT(geometry.strings, SizeIs(2));
}

}  // namespace
}  // namespace talvesk
