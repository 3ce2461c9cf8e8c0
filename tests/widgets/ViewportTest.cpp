#include "widgets/Viewport.h"

#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using Step = Viewport::Step;

const ViewWindow kWhole{0.0, 100.0, 0.0, 1.0};
const ViewWindow kOpening{0.0, 50.0, 0.0, 0.5};
const Viewport::Clock::time_point kStart;

class ViewportTest : public ::testing::Test {
 protected:
  ViewportTest() { viewport.setExtent({kWhole, kOpening, 1.0, 0.01}); }
  Viewport viewport;
};

TEST_F(ViewportTest, opensAtHomeAndFollowsItUntilTheUserGoesElsewhere) {
  EXPECT_EQ(viewport.window(), kOpening);
  const ViewWindow later{0.0, 60.0, 0.0, 0.7};
  viewport.setExtent({kWhole, later, 1.0, 0.01});
  EXPECT_EQ(viewport.window(), later);
  viewport.show({20.0, 30.0, 0.1, 0.2}, Step::New);
  viewport.setExtent({kWhole, kOpening, 1.0, 0.01});
  EXPECT_EQ(viewport.window(), (ViewWindow{20.0, 30.0, 0.1, 0.2}));
  EXPECT_TRUE(viewport.home());
  viewport.setExtent({kWhole, later, 1.0, 0.01});
  EXPECT_EQ(viewport.window(), later) << "one who came home follows again";
}

TEST_F(ViewportTest, staysWithinAnExtentThatShrinks) {
  viewport.show({80.0, 100.0, 0.75, 1.0}, Step::New);
  viewport.setExtent({{0.0, 50.0, 0.0, 0.5}, {0.0, 50.0, 0.0, 0.5}, 1.0, 0.01});
  EXPECT_EQ(viewport.window(), (ViewWindow{30.0, 50.0, 0.25, 0.5}));
}

TEST_F(ViewportTest, zoomsAboutAPlaceAndNoFartherThanTheLeastAndTheWhole) {
  EXPECT_TRUE(viewport.zoomAbout(10.0, 0.4, 2.0, 1.0));
  EXPECT_EQ(viewport.window(), (ViewWindow{5.0, 30.0, 0.0, 0.5}));
  viewport.zoomAbout(10.0, 0.4, 1e9, 1e9);
  EXPECT_NEAR(viewport.window().width(), 1.0, 1e-12);
  EXPECT_NEAR(viewport.window().height(), 0.01, 1e-12);
  viewport.zoomAbout(10.0, 0.4, 1e-9, 1e-9);
  EXPECT_EQ(viewport.window(), kWhole);
  EXPECT_FALSE(viewport.zoomAbout(10.0, 0.4, 0.5, 0.5)) << "no step without a change";
  viewport.zoomAbout(std::numeric_limits<double>::quiet_NaN(), 0.4, 2.0, 2.0);
  EXPECT_EQ(viewport.window(), kWhole);
}

TEST_F(ViewportTest, smallStepsCloseInTimeAreGoneBackFromTogether) {
  auto now = kStart;
  for (const double right : {40.0, 30.0, 20.0}) {
    viewport.show({0.0, right, 0.0, 0.5}, Step::Continuing, now);
    now += Viewport::kPause / 2;
  }
  now += Viewport::kPause;
  viewport.show({0.0, 10.0, 0.0, 0.5}, Step::Continuing, now);
  EXPECT_TRUE(viewport.goBack());
  EXPECT_EQ(viewport.window().right, 20.0) << "after a pause a new step";
  viewport.goBack();
  EXPECT_EQ(viewport.window(), kOpening);
  EXPECT_FALSE(viewport.goBack());
  viewport.goForward();
  viewport.goForward();
  EXPECT_EQ(viewport.window().right, 10.0);
  EXPECT_FALSE(viewport.goForward());
}

TEST_F(ViewportTest, aStepOfAnotherKindEndsTheSmallOnes) {
  viewport.show({0.0, 40.0, 0.0, 0.5}, Step::Continuing, kStart);
  viewport.show({0.0, 30.0, 0.0, 0.5}, Step::New, kStart);
  viewport.show({0.0, 20.0, 0.0, 0.5}, Step::Continuing, kStart);
  viewport.goBack();
  EXPECT_EQ(viewport.window().right, 30.0);
  viewport.goBack();
  EXPECT_EQ(viewport.window().right, 40.0);
}

TEST_F(ViewportTest, aDragIsOneStepOnceItHasArrived) {
  const ViewWindow before{20.0, 30.0, 0.1, 0.2};
  viewport.show(before, Step::Silent);
  EXPECT_FALSE(viewport.arriveFrom(before));
  for (int i = 0; i < 5; ++i) viewport.pan(2.0, 0.0, Step::Silent);
  EXPECT_FALSE(viewport.canGoBack());
  EXPECT_TRUE(viewport.arriveFrom(before));
  viewport.goBack();
  EXPECT_EQ(viewport.window(), before);
  EXPECT_FALSE(viewport.canGoBack());
}

}  // namespace
}  // namespace talvesk
