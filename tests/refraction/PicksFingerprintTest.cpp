#include "refraction/BuildProfiles.h"
#include "refraction/PicksFingerprint.h"
#include "support/ConsoleCapture.h"
#include "support/RefractionLines.h"

#include <utility>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using refractionDataStructure::processingData;
using testing::ConsoleCapture;

TEST(Fingerprint, ofAProfileTellsWhetherPicksHaveChanged) {
  const ConsoleCapture console;
  Interpretation interpretation;
  TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  const processingData& results = interpretation.refractData;
  EXPECT_FALSE(picksChangedSince(line, results)) << "there is no profile";
  ASSERT_TRUE(buildProfiles(shotArrivals(line), interpretation).built);
  EXPECT_FALSE(picksChangedSince(line, results));

  double& pick = line.ttArray.edit()[5].ttMisurati.edit()[20];
  const double before = pick;
  for (const double other : {before + 1e-9, kUnpicked, kNoTime}) {
    pick = other;
    EXPECT_TRUE(picksChangedSince(line, results)) << other;
  }
  pick = before;
  EXPECT_FALSE(picksChangedSince(line, results)) << "as it was";
  double& removed = line.ttArray.edit()[2].ttMisurati.edit()[7];
  std::swap(pick, removed);
  EXPECT_TRUE(picksChangedSince(line, results)) << "the same times at other traces";
  interpretation.refractData.picks = 0;
  EXPECT_FALSE(picksChangedSince(line, results)) << "it does not know them";
}

}  // namespace
}  // namespace talvesk
