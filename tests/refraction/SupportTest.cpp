#include "refraction/BuildProfiles.h"
#include "refraction/Support.h"
#include "support/ConsoleCapture.h"
#include "support/DelayTimeLine.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;

/// The shots nearest to the ends of the spread stand at -1.25 m and, behind it, at 148.75 m. Their
/// own arrivals of the refractor begin some receivers away.
struct Line {
  LayerPicks picks = testing::delayTimePicks({});
  Interpretation interpretation = picks.interpretation;

  RefractorSupport support(double xy = 0.0) {
    const testing::ConsoleCapture console;
    chooseXY(interpretation, 2, xy);
    EXPECT_TRUE(buildProfiles(picks.shots, interpretation).built);
    return supportOf(picks.shots, interpretation, 2);
  }
  Support at(const std::vector<Support>& support, double x) const {
    const computedData& data = interpretation.refractData.cData[0];
    for (std::size_t j = 0; j < data.x.size(); ++j) {
      if (data.x[j] == x) return support[j];
    }
    ADD_FAILURE() << "no receiver at " << x;
    return Support::kPicks;
  }
};

TEST(Support, isThatOfOtherShotsNearTheEndShots) {
  Line line;
  const RefractorSupport support = line.support();
  EXPECT_EQ(line.at(support.depth, 75.0), Support::kPicks);
  EXPECT_EQ(line.at(support.depth, 10.0), Support::kPhantom) << "the direct wave comes first there";
  EXPECT_EQ(line.at(support.depth, 140.0), Support::kPhantom);
}

TEST(Support, ofVelocitiesEndsBeforeTheLastReceiver) {
  Line line;
  const RefractorSupport support = line.support();
  const double first = line.interpretation.refractData.cData[0].x.front();
  EXPECT_NE(line.at(support.depth, first), Support::kExtrapolated);
  EXPECT_EQ(line.at(support.velocity, first), Support::kExtrapolated);
  EXPECT_NE(line.at(support.velocity, first + 2.5), Support::kExtrapolated);
}

TEST(Support, endsAnXYBeforeTheCurves) {
  Line line;
  const RefractorSupport support = line.support(7.5);
  const double last = line.interpretation.refractData.cData[0].x.back();
  EXPECT_EQ(line.at(support.depth, last), Support::kExtrapolated);
  EXPECT_EQ(line.at(support.depth, last - 5.0), Support::kExtrapolated);
  EXPECT_NE(line.at(support.depth, last - 7.5), Support::kExtrapolated);
}

TEST(Support, isAGapWhereNeitherCurveHasArrivalsForALongWay) {
  Line line;
  for (auto& marks : line.interpretation.ttLayer) {
    for (const std::size_t i : {29, 30, 31}) marks.layer[i] = 0;
  }
  EXPECT_EQ(line.at(line.support().depth, 70.0), Support::kPicks);
  // The points read for 70 m lie at 74 and 66 m; the first of them between 70 and 80.
  EXPECT_EQ(line.at(line.support(4.0).depth, 70.0), Support::kGap);
}

}  // namespace
}  // namespace talvesk
