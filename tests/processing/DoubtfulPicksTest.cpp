#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "processing/DoubtfulPicks.h"

#include <cmath>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

constexpr double kMs = 1e-3;

/// Twelve geophones 2 m apart and a shot at every fourth, picked without a fault at 500 m/s, sure
/// to 1 ms; nobody has confirmed anything.
class DoubtfulPicks : public ::testing::Test {
 protected:
  DoubtfulPicks() {
    std::vector<Point2D> geophones;
    for (int i = 0; i < 12; ++i) geophones.push_back({2.0 * i, 0.0});
    mDocument.line.edit().goephonesStringSet.push_back(geophones);
    for (const double x : {0.0, 8.0, 16.0}) {
      TravelTime record;
      record.shotPos2d = {x, 0.0};
      for (const Point2D& geophone : geophones) {
        record.ttMisurati.edit().push_back(5.0 * kMs + std::fabs(geophone.x - x) / 500.0);
      }
      for (std::size_t t = 0; t < geophones.size(); ++t) {
        record.setWaiting(t, true);
        record.setError(t, kMs);
      }
      mDocument.ttArray.edit().push_back(record);
    }
  }

  TravelTime& record(std::size_t shot) { return mDocument.ttArray.edit()[shot]; }
  void repick(std::size_t shot, std::size_t trace, double later, double error = kMs) {
    record(shot).ttMisurati.edit()[trace] += later;
    record(shot).setError(trace, error);
  }
  /// As an inversion that fits every pick but for so much, now one way and now the other.
  void invert(double misfit) {
    for (TravelTime& each : mDocument.ttArray.edit()) {
      each.ttCalcolati = each.ttMisurati;
      for (std::size_t t = 0; t < each.ttCalcolati.size(); ++t) {
        each.ttCalcolati.edit()[t] += t % 2 == 0 ? misfit : -misfit;
      }
    }
    mDocument.result.edit().has_tomographic_info = true;
    mDocument.result.edit().timesOfSection = true;
  }
  std::vector<std::pair<int, int>> doubtful() const {
    std::vector<std::pair<int, int>> places;
    for (const DoubtfulPick& each : reviewPicks(mDocument).doubtful) {
      places.emplace_back(each.shot, each.trace);
    }
    return places;
  }

  TomoDocument mDocument;
};

TEST_F(DoubtfulPicks, areNoneWhereAllAgree) {
  const PickReview review = reviewPicks(mDocument);
  EXPECT_TRUE(review.doubtful.empty());
  EXPECT_EQ(review.waiting, 36U);
  EXPECT_EQ(review.settled, 0U);
  EXPECT_EQ(review.unknown, 0U);
}

TEST_F(DoubtfulPicks, areThoseOfALargeErrorTheLargestFirst) {
  record(1).setError(3, 2.5 * kMs);  // still good
  record(1).setError(7, 2.6 * kMs);
  record(2).setError(10, 4.1 * kMs);
  record(0).setError(1, 2.6 * kMs);
  ASSERT_THAT(doubtful(), ElementsAre(Pair(2, 10), Pair(0, 1), Pair(1, 7)));
  const DoubtfulPick worst = reviewPicks(mDocument).doubtful.front();
  EXPECT_DOUBLE_EQ(worst.error.value(), 4.1 * kMs);
  EXPECT_FALSE(worst.residual || worst.reciprocal);
  EXPECT_DOUBLE_EQ(worst.severity, 4.1 / 2.5);
}

TEST_F(DoubtfulPicks, areOffTheListOnceConfirmedOrRemoved) {
  record(1).setError(7, 5.0 * kMs);
  record(2).setError(10, 4.0 * kMs);
  record(1).setWaiting(7, false);
  record(2).ttMisurati.edit()[10] = kNoTime;
  const PickReview review = reviewPicks(mDocument);
  EXPECT_TRUE(review.doubtful.empty());
  EXPECT_EQ(review.settled, 1U);
  EXPECT_EQ(review.waiting, 34U);
}

TEST_F(DoubtfulPicks, areThoseFarFromTheSectionForWhatItFitsElsewhere) {
  invert(0.5 * kMs);
  record(1).ttCalcolati.edit()[6] += 6.2 * kMs;
  record(0).setError(9, 2.4 * kMs);
  record(0).ttCalcolati.edit()[9] += 6.0 * kMs;  // within 2.5 of its larger error
  ASSERT_THAT(doubtful(), ElementsAre(Pair(1, 6)));
  EXPECT_NEAR(reviewPicks(mDocument).doubtful.front().residual.value(), 6.7 * kMs, 1e-9);

  invert(4.0 * kMs);
  record(1).ttCalcolati.edit()[6] += 6.2 * kMs;
  EXPECT_TRUE(doubtful().empty()) << "a section that fits badly accuses nobody";
}

TEST_F(DoubtfulPicks, doNotFollowTimesThatAreNotThoseOfTheSection) {
  invert(0.5 * kMs);
  record(1).ttCalcolati.edit()[6] += 20.0 * kMs;
  ASSERT_EQ(doubtful().size(), 1U);
  mDocument.result.edit().timesOfSection = false;
  EXPECT_TRUE(doubtful().empty());
}

TEST_F(DoubtfulPicks, areBothEndsOfAWayWhoseTimesDoNotAgree) {
  repick(0, 8, 5.0 * kMs);  // shot at 0 to the geophone at 16 m, where the third shot is
  ASSERT_THAT(doubtful(), ElementsAre(Pair(0, 8), Pair(2, 0)));
  const PickReview review = reviewPicks(mDocument);
  EXPECT_NEAR(review.doubtful[0].reciprocal.value(), -5.0 * kMs, 1e-12);
  EXPECT_NEAR(review.doubtful[1].reciprocal.value(), 5.0 * kMs, 1e-12);
  record(0).setWaiting(8, false);
  EXPECT_THAT(doubtful(), ElementsAre(Pair(2, 0))) << "the one that a person confirmed is settled";
}

TEST_F(DoubtfulPicks, listBothNeighboursOfAShotBetweenThem) {
  record(2).shotPos2d.x = 17.0;
  for (std::size_t t = 0; t < 12; ++t) {
    const double x = 2.0 * static_cast<double>(t);
    repick(2, t, (std::fabs(x - 17.0) - std::fabs(x - 16.0)) / 500.0);
  }
  ASSERT_TRUE(doubtful().empty()) << "curves are compared at the place of the shot";
  repick(0, 8, 10.0 * kMs);
  EXPECT_THAT(doubtful(), ElementsAre(Pair(0, 8), Pair(0, 9), Pair(2, 0)));
}

TEST_F(DoubtfulPicks, tellOfHowManyNothingIsKnown) {
  for (std::size_t t = 0; t < 12; ++t) record(0).setError(t, 0.0);
  // Of the first shot, the geophones at the three shots have times of the other direction.
  EXPECT_EQ(reviewPicks(mDocument).unknown, 10U);
  repick(0, 8, 8.0 * kMs, 0.0);
  EXPECT_THAT(doubtful(), ElementsAre(Pair(0, 8), Pair(2, 0)))
      << "without an error, a pick counts as one that is just good";
}

TEST_F(DoubtfulPicks, areNothingToSearchForInAnEmptySurvey) {
  const PickReview review = reviewPicks(TomoDocument());
  EXPECT_TRUE(review.doubtful.empty());
  EXPECT_EQ(review.waiting + review.settled, 0U);
}

TEST(DoubtfulWalk, goesOnFromAPickThatIsNoLongerListed) {
  const std::vector<DoubtfulPick> picks = {
      {2, 4, 3.0, {}, {}, {}}, {0, 1, 2.0, {}, {}, {}}, {1, 5, 2.0, {}, {}, {}}};
  const auto step = [&](const DoubtfulPick* from, bool forward) {
    const ReviewStep at = stepThrough(picks, from, forward);
    return std::make_pair(static_cast<int>(at.index), at.anew);
  };
  EXPECT_EQ(step(nullptr, true), std::make_pair(0, false));
  EXPECT_EQ(step(nullptr, false), std::make_pair(2, false));
  EXPECT_EQ(step(&picks[0], true), std::make_pair(1, false));
  EXPECT_EQ(step(&picks[1], false), std::make_pair(0, false));
  EXPECT_EQ(step(&picks[2], true), std::make_pair(0, true));
  EXPECT_EQ(step(&picks[0], false), std::make_pair(2, true));
  const DoubtfulPick gone = {7, 7, 2.5, {}, {}, {}};
  EXPECT_EQ(step(&gone, true), std::make_pair(1, false));
  EXPECT_EQ(step(&gone, false), std::make_pair(0, false));
}

}  // namespace
}  // namespace talvesk
