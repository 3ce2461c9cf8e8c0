#include "refraction/PicksFingerprint.h"
#include "support/TestProjects.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using refractionDataStructure::computedData;
using refractionDataStructure::processingData;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::IsNan;
using ::testing::Not;
using ::testing::SizeIs;

const double kNan = std::nan("");

processingData profile() {
  computedData refractor;
  refractor.x = {0, 5, 10};
  refractor.elevation = {100, 100, 100};
  refractor.tG = {0.002, 0.003, std::numeric_limits<double>::infinity()};
  refractor.velocity = {kNan, 1510, 1520};
  refractor.depth = {kNan, 3.1, kNan};
  processingData results;
  results.cData = {refractor};
  results.v1 = kNan;
  results.v2 = refractor.velocity;
  results.picks = std::numeric_limits<std::uint64_t>::max();
  return results;
}

TEST_F(ProjectTest, keepsWhatIsNotKnownOfAProfileWithoutWordsForIt) {
  project.interpretation.edit().refractData = profile();
  ASSERT_EQ(save(), 0);
  EXPECT_EQ(project.interpretation->refractData.cData[0].depth[1], 3.1);
  EXPECT_TRUE(std::isnan(project.interpretation->refractData.v1)) << "the survey is left alone";
  const std::string xml = entriesOf(archive()).at("refraction.xml");
  for (const char* word : {"nan", "inf"}) EXPECT_THAT(xml, Not(HasSubstr(word)));
  EXPECT_THAT(xml, HasSubstr("<v1>-99</v1>"));

  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_THAT(reader.warnings(), IsEmpty()) << "nothing is lost";
  const processingData& results = back.interpretation->refractData;
  EXPECT_THAT(results.v1, IsNan());
  EXPECT_THAT(results.v2, ElementsAre(IsNan(), 1510, 1520));
  EXPECT_THAT(results.cData[0].velocity, ElementsAre(IsNan(), 1510, 1520));
  EXPECT_THAT(results.cData[0].depth, ElementsAre(IsNan(), 3.1, IsNan()));
  EXPECT_THAT(results.cData[0].tG, ElementsAre(0.002, 0.003, IsNan()));
  EXPECT_EQ(results.picks, std::numeric_limits<std::uint64_t>::max());
}

TEST_F(ProjectTest, losesVelocitiesAndDepthsThatNoGroundHasWithAWord) {
  project.interpretation.edit().refractData = profile();
  ASSERT_EQ(save(), 0);
  auto entries = entriesOf(archive());
  std::string& xml = entries["refraction.xml"];
  xml = with(xml, "<v1>-99<", "<v1>nan<");
  xml = with(xml, "3.1000000000000001", "1e15");
  xml = with(xml, "1520", "1e17");  // the first one is that of the refractor
  LoadedProject back;
  ASSERT_EQ(load(pack("old.tvsk", entries), back), 0) << reader.message();
  ASSERT_THAT(reader.repairs(), SizeIs(1));
  EXPECT_THAT(reader.repairs()[0], HasSubstr("refraction.xml: 2 velocities and depths"));
  const processingData& results = back.interpretation->refractData;
  EXPECT_THAT(results.cData[0].velocity, ElementsAre(IsNan(), 1510, IsNan()));
  EXPECT_THAT(results.cData[0].depth, ElementsAre(IsNan(), IsNan(), IsNan()));
  EXPECT_THAT(results.v1, IsNan());
}

TEST_F(ProjectTest, knowsAfterLoadingWhetherPicksChangedSinceTheProfile) {
  project.interpretation.edit().refractData = profile();
  project.interpretation.edit().refractData.picks = fingerprintOf(shotArrivals(project.document));
  ASSERT_EQ(save(), 0);
  LoadedProject back;
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_FALSE(picksChangedSince(back.document, back.interpretation->refractData));

  project.document.ttArray.edit()[0].ttMisurati.edit()[2] += 1e-6;
  ASSERT_EQ(save(), 0);
  ASSERT_EQ(load(archive(), back), 0) << reader.message();
  EXPECT_TRUE(picksChangedSince(back.document, back.interpretation->refractData));

  auto entries = entriesOf(archive());
  entries["refraction.xml"] = without(entries["refraction.xml"], "picks");
  ASSERT_EQ(load(pack("old.tvsk", entries), back), 0) << reader.message();
  EXPECT_FALSE(picksChangedSince(back.document, back.interpretation->refractData))
      << "an earlier version did not keep them";
}

}  // namespace
}  // namespace talvesk
