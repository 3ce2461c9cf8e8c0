#include "numerics/Splines.h"

#include <cmath>
#include <limits>
#include <random>
#include <stdexcept>

#include <gmock/gmock.h>

namespace Splines {
namespace {

using ::testing::AllOf;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

using Nodes = std::vector<double>;

template <typename Kind>
Kind through(const Nodes& x, const Nodes& y, Kind spline = Kind()) {
  spline.build(x, y);
  return spline;
}

template <typename Call>
std::string errorOf(Call call) {
  try {
    call();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "no error";
}

Nodes mapped(const Nodes& x, double (*f)(double)) {
  Nodes y;
  for (const double at : x) y.push_back(f(at));
  return y;
}

double cubic(double x) {
  return ((0.5 * x - 2.0) * x + 3.0) * x - 7.0;
}
double cubicD(double x) {
  return (1.5 * x - 4.0) * x + 3.0;
}
double cubicDD(double x) {
  return 3.0 * x - 4.0;
}

TEST(LinearSpline, isStraightBetweenNodesAndConstantBeyond) {
  const auto spline = through<LinearSpline>({1.0, 2.0, 4.0}, {10.0, 30.0, 20.0});
  const double cases[][3] = {// x, value, slope
                             {-5.0, 10.0, 0.0}, {1.0, 10.0, 20.0}, {1.25, 15.0, 20.0},
                             {2.0, 30.0, -5.0}, {3.0, 25.0, -5.0}, {4.0, 20.0, -5.0},
                             {4.001, 20.0, 0.0}};
  for (const auto& [x, value, slope] : cases) {
    EXPECT_DOUBLE_EQ(spline(x), value) << x;
    EXPECT_DOUBLE_EQ(spline.D(x), slope) << x;
    EXPECT_EQ(spline.DD(x), 0.0);
    EXPECT_EQ(spline.DDD(x), 0.0);
  }
}

TEST(LinearSpline, ofOneNodeThrowsAtThatNodeOnly) {
  const auto spline = through<LinearSpline>({3.0}, {8.0});
  EXPECT_EQ(spline(2.999), 8.0);
  EXPECT_EQ(spline(1e9), 8.0);
  EXPECT_THAT(errorOf([&] { (void)spline(3.0); }),
              AllOf(StartsWith("In spline: LinearSpline line: "),
                    EndsWith("file: Splines.cpp\n\nsearch(3) empty spline")));
}

TEST(LinearSpline, withoutNodesThrows) {
  EXPECT_THAT(errorOf([] { (void)LinearSpline("tV")(0.0); }),
              AllOf(StartsWith("In spline: tV line: "),
                    EndsWith("\nin LinearSpline::operator(), npts == 0!")));
}

TEST(Spline, findsTheIntervalAndStaysInsideAtTheEnds) {
  const auto spline = through<LinearSpline>({0.0, 1.0, 2.0, 5.0}, {0.0, 0.0, 0.0, 0.0});
  const std::pair<double, int> cases[] = {{0.0, 0},  {0.5, 0},  {1.0, 1}, {4.9, 2}, {5.0, 2},
                                          {99.0, 2}, {-1.0, 0}, {1.5, 1}, {0.2, 0}, {2.0, 2}};
  for (const auto& [x, interval] : cases) EXPECT_EQ(spline.search(x), interval) << x;
  EXPECT_EQ(through<LinearSpline>({0.0, 1.0}, {0.0, 0.0}).search(1.0), 0);
}

TEST(Spline, checksTheRangeOnRequest) {
  const auto linear = through({1.0, 3.5}, {0.0, 1.0}, LinearSpline("curve", true));
  const auto bessel = through({1.0, 3.5}, {0.0, 1.0}, BesselSpline("curve", true));
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const Spline* spline :
       {static_cast<const Spline*>(&linear), static_cast<const Spline*>(&bessel)}) {
    EXPECT_NO_THROW((void)(*spline)(1.0));
    EXPECT_NO_THROW((void)(*spline)(3.5));
    EXPECT_THAT(errorOf([&] { (void)(*spline)(3.75); }),
                AllOf(StartsWith("In spline: curve line: "),
                      EndsWith("\nmethod search( 3.75 ) out of range: [1, 3.5]")));
    EXPECT_THROW((void)(*spline)(0.99), std::runtime_error);
    EXPECT_THROW((void)spline->D(nan), std::runtime_error);
  }
}

TEST(Spline, takesTheShorterOfBothLists) {
  EXPECT_EQ(through<BesselSpline>({0.0, 1.0, 2.0}, {5.0, 6.0}).npts(), 2U);
  EXPECT_EQ(through<CubicSpline>({0.0, 1.0}, {5.0, 6.0, 7.0}).npts(), 2U);
}

TEST(Spline, saysThatItsStorageIsExhaustedBeforeItReadsANode) {
  const double node = 0.0;
  LinearSpline linear;
  BesselSpline bessel;
  CubicSpline cubicSpline;
  for (Spline* spline : {static_cast<Spline*>(&linear), static_cast<Spline*>(&bessel),
                         static_cast<Spline*>(&cubicSpline)}) {
    EXPECT_THAT(errorOf([&] { spline->build(&node, &node, 0x80000000U); }),
                HasSubstr("(2147483648) -- SplineMalloc EXAUSTED\n"));
  }
}

TEST(Spline, answersTheSameWhateverWasAskedBefore) {
  std::mt19937 random(7);
  const auto unit = [&] { return static_cast<double>(random()) / 4294967296.0; };
  for (const bool sorted : {true, false}) {
    Nodes x, y;
    for (int i = 0; i < 60; ++i) {
      const double step = static_cast<double>(random() % 3);  // repeated abscissae too
      x.push_back(sorted ? (x.empty() ? 0.0 : x.back() + step) : 40.0 * unit());
      y.push_back(unit());
    }
    const auto asked = through<BesselSpline>(x, y);
    for (int i = 0; i < 2000; ++i) {
      const double at = std::floor(70.0 * unit()) - 5.0 + (i % 2 ? unit() : 0.0);
      const double value = asked(at);
      EXPECT_EQ(value, through<BesselSpline>(x, y)(at)) << at;
      EXPECT_TRUE(std::isfinite(value)) << at;
    }
  }
}

TEST(BesselSpline, reproducesALineWithItsEnds) {
  const auto spline = through<BesselSpline>({0.0, 2.0, 4.0}, {1.0, 5.0, 9.0});
  EXPECT_THAT(spline.Yp(), ElementsAre(2.0, 2.0, 2.0));
  for (const double x : {-3.0, 0.0, 0.3, 2.0, 3.7, 4.0, 8.0}) {
    EXPECT_DOUBLE_EQ(spline(x), 1.0 + 2.0 * x);
    EXPECT_NEAR(spline.D(x), 2.0, 1e-12);
    EXPECT_NEAR(spline.DD(x), 0.0, 1e-12);
  }
}

TEST(BesselSpline, weighsTheChordsInsideButNotAtTheEnds) {
  // y = x^2 at uneven nodes: exact inside; at the ends exact for even spacing only.
  const auto spline = through<BesselSpline>({0.0, 1.0, 4.0, 6.0}, {0.0, 1.0, 16.0, 36.0});
  EXPECT_THAT(spline.Yp(),
              ElementsAre(DoubleNear(1.5 * 1.0 - 0.5 * 5.0, 1e-14), DoubleNear(2.0, 1e-14),
                          DoubleNear(8.0, 1e-14), DoubleNear(1.5 * 10.0 - 0.5 * 5.0, 1e-14)));
  const auto two = through<BesselSpline>({0.0, 2.0}, {0.0, 3.0});
  EXPECT_THAT(two.Yp(), ElementsAre(1.5, 1.5));
}

TEST(BesselSpline, startsANewRunAtARepeatedAbscissa) {
  const auto spline = through<BesselSpline>({0.0, 1.0, 2.0, 2.0, 3.0}, {0.0, 1.0, 2.0, 10.0, 7.0});
  EXPECT_THAT(spline.Yp(), ElementsAre(1.0, 1.0, 1.0, -3.0, -3.0));
  EXPECT_DOUBLE_EQ(spline(1.5), 1.5);
  EXPECT_DOUBLE_EQ(spline(2.0), 10.0);
  EXPECT_DOUBLE_EQ(spline(2.5), 8.5);
}

TEST(BesselSpline, staysFiniteWhereTheEndsAreRepeated) {
  const auto spline = through<BesselSpline>({0.0, 0.0, 1.0, 1.0}, {5.0, 1.0, 2.0, 9.0});
  EXPECT_DOUBLE_EQ(spline(-1.0), 0.0);
  EXPECT_DOUBLE_EQ(spline(0.0), 1.0);
  EXPECT_DOUBLE_EQ(spline(1.0), 2.0);
  const auto point = through<BesselSpline>({1.0, 1.0}, {3.0, 4.0});
  EXPECT_EQ(point(1.0), 3.0);
  EXPECT_EQ(point.D(7.0), 0.0);
}

TEST(BesselSpline, refusesFewerThanTwoNodes) {
  EXPECT_THAT(errorOf([] { through<BesselSpline>({1.0}, {1.0}); }),
              AllOf(StartsWith("In spline: BesselSpline line: "),
                    EndsWith("\nBesselSpline::build(): npts = 1 not enought points")));
}

TEST(CubicSpline, reproducesACubicOfTheSameEndCurvature) {
  const Nodes x = {-2.0, -1.5, 0.0, 0.7, 3.0, 4.0};
  const auto spline =
      through(x, mapped(x, cubic), CubicSpline("c", false, cubicDD(-2.0), cubicDD(4.0)));
  for (double at = -4.0; at <= 6.0; at += 0.125) {  // beyond both ends too
    EXPECT_NEAR(spline(at), cubic(at), 1e-11) << at;
    EXPECT_NEAR(spline.D(at), cubicD(at), 1e-11) << at;
    EXPECT_NEAR(spline.DD(at), cubicDD(at), 1e-10) << at;
    EXPECT_NEAR(spline.DDD(at), 3.0, 1e-9) << at;
  }
}

TEST(CubicSpline, hasContinuousSecondDerivativesAndTheGivenEnds) {
  const Nodes x = {0.0, 2.5, 4.99, 5.0, 11.0, 12.0};
  const Nodes y = {300.0, 850.0, 1400.0, 1400.0, 2500.0, 900.0};
  const auto spline = through(x, y, CubicSpline("c", false, 3.0, -4.0));
  for (std::size_t k = 0; k < x.size(); ++k) EXPECT_NEAR(spline(x[k]), y[k], 1e-9);
  // In an interval the second derivative is linear: continue it from inside to both its nodes.
  for (std::size_t k = 1; k + 1 < x.size(); ++k) {
    const double before = (x[k - 1] + x[k]) / 2.0;
    const double fromLeft = spline.DD(before) + spline.DDD(before) * (x[k] - before);
    EXPECT_NEAR(fromLeft, spline.DD(x[k]), 1e-6 * (1.0 + std::abs(fromLeft))) << k;
  }
  EXPECT_NEAR(spline.DD(0.0), 3.0, 1e-9);
  EXPECT_NEAR(spline.DD(12.0), -4.0, 1e-8);
}

TEST(CubicSpline, throughTwoNodesIsALineWhenItsEndsAreNotCurved) {
  const auto spline = through<CubicSpline>({1.0, 3.0}, {2.0, 8.0});
  EXPECT_DOUBLE_EQ(spline(2.0), 5.0);
  EXPECT_DOUBLE_EQ(spline(5.0), 14.0);
}

TEST(CubicSpline, refusesWhatItCannotPassThrough) {
  EXPECT_THAT(errorOf([] { through<CubicSpline>({}, {}); }),
              EndsWith("CubicSpline::build(): npts = 0 not enought points"));
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const Nodes& x : {Nodes{0.0, 1.0, 1.0}, Nodes{0.0, 2.0, 1.0}, Nodes{0.0, nan, 1.0}}) {
    EXPECT_THAT(errorOf([&] {
                  through<CubicSpline>(x, {0.0, 0.0, 0.0});
                }),
                HasSubstr("is not greater than the node before it"));
  }
}

}  // namespace
}  // namespace Splines
