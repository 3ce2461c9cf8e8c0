#include "model/GeoTransformer.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using ::testing::HasSubstr;

constexpr double kPi = 3.14159265358979323846;
constexpr double kMillimetre = 1e-8;  ///< in degrees, about

/// Metres along the meridian from the equator, by quadrature of the ellipse's radius of curvature.
double meridianArc(double degrees, double flattening) {
  const double e2 = flattening * (2.0 - flattening);
  const auto radius = [e2](double angle) {
    return 6378137.0 * (1.0 - e2) / std::pow(1.0 - e2 * std::pow(std::sin(angle), 2), 1.5);
  };
  const int steps = 2000;
  const double h = degrees * kPi / 180.0 / steps;
  double sum = radius(0.0) + radius(steps * h);
  for (int i = 1; i < steps; ++i) sum += (i % 2 == 1 ? 4.0 : 2.0) * radius(i * h);
  return sum * h / 3.0;
}

TEST(GeoTransformer, placesKnownPointsEastingFirstWhateverTheOrderOfTheSystem) {
  const ConsoleCapture console;
  const testing::CommaNumbers commas;
  const double wgs84 = 1.0 / 298.257223563;
  const double grs80 = 1.0 / 298.257222101;
  const struct {
    const char* what;
    int epsg;
    double easting, northing;
    LonLat expected;
    double tolerance;  ///< degrees
  } cases[] = {
      // On the central meridian northing is the scaled arc of the ellipse.
      {"Italy", 32632, 500000.0, 0.9996 * meridianArc(45.0, wgs84), {9.0, 45.0}, kMillimetre},
      {"Poland, northing first by definition",
       2180,
       500000.0,
       0.9993 * meridianArc(52.0, grs80) - 5300000.0,
       {19.0, 52.0},
       kMillimetre},
      // What PROJ's own tool says of points beside the central meridian.
      {"Verona", 32632, 652000.0, 5074000.0, {10.956078145340, 45.802816454347}, kMillimetre},
      {"Warsaw", 2180, 637000.0, 487000.0, {21.006704108492, 52.231977418917}, kMillimetre},
      // The water tower of the Ordnance Survey's guide to coordinate systems; without the survey's
      // grid of shifts good to some metres.
      {"Caister", 27700, 651409.804, 313177.450, {1.716051944, 52.657978611}, 5e-5},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    const GeoTransformer transformer(c.epsg);
    ASSERT_TRUE(transformer.status().ok()) << transformer.status().message();
    LonLat place;
    ASSERT_TRUE(transformer.transform(c.easting, c.northing, place));
    EXPECT_NEAR(place.longitude, c.expected.longitude, c.tolerance);
    EXPECT_NEAR(place.latitude, c.expected.latitude, c.tolerance);
  }
}

TEST(GeoTransformer, takesEastingOfThePoleFromItsEastingAxis) {
  const ConsoleCapture console;
  const GeoTransformer transformer(32661);  // northing first, pole at 2000 km, 2000 km
  LonLat place;
  ASSERT_TRUE(transformer.transform(2000000.0, 1000000.0, place));
  EXPECT_NEAR(place.longitude, 0.0, 1e-9) << "northing falls towards Greenwich";
  ASSERT_TRUE(transformer.transform(3000000.0, 2000000.0, place));
  EXPECT_NEAR(place.longitude, 90.0, 1e-9);
}

TEST(GeoTransformer, saysWhichSystemAndPrintsThatItAsksProj) {
  const ConsoleCapture console;
  EXPECT_EQ(GeoTransformer(32632).systemName(), "WGS 84 / UTM zone 32N");
  EXPECT_EQ(console.error(), "PROJ\n");
}

TEST(GeoTransformer, refusesSystemsThatWouldMisplaceALine) {
  const struct {
    int epsg;
    const char* message;
  } cases[] = {
      {999999, "EPSG:999999 is no reference system"},
      {0, "EPSG:0 is no reference system"},
      {-32632, "EPSG:-32632 is no reference system"},
      {4326, "EPSG:4326 (WGS 84) is not a projected system"},
      {5773, "is not a projected system"},
      {2263, "another unit than the metre: US survey foot"},
      {2053, "counts westward and southward"},
  };
  for (const auto& c : cases) {
    const ConsoleCapture console;
    const GeoTransformer transformer(c.epsg);
    EXPECT_THAT(transformer.status().message(), HasSubstr(c.message));
    LonLat place{1.0, 2.0};
    EXPECT_FALSE(transformer.transform(500000.0, 5000000.0, place));
    EXPECT_EQ(place.longitude, 1.0);
    EXPECT_EQ(place.latitude, 2.0);
  }
}

TEST(GeoTransformer, leavesWhatItCannotPlace) {
  const ConsoleCapture console;
  const GeoTransformer transformer(32632);
  LonLat place{1.0, 2.0};
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e300}) {
    EXPECT_FALSE(transformer.transform(bad, 5000000.0, place)) << bad;
    EXPECT_EQ(place.longitude, 1.0);
  }
}

TEST(GeoTransformer, projectsPlacesBackToWhereTheyCameFrom) {
  const ConsoleCapture console;
  const struct {
    LonLat place;
    int zone;
  } cases[] = {{{10.956078145340, 45.802816454347}, 32632},
               {{-47.93, -21.4}, 32723},
               {{5.3, 60.4}, 32632},
               {{15.6, 78.2}, 32633},
               {{180.0, 10.0}, 32601},
               {{-179.9, -10.0}, 32701}};
  for (const auto& c : cases) {
    ASSERT_EQ(utmSystemOf(c.place), c.zone);
    const GeoTransformer utm(c.zone);
    MapPoint point;
    ASSERT_TRUE(utm.project(c.place, point));
    LonLat back;
    ASSERT_TRUE(utm.transform(point.easting, point.northing, back));
    EXPECT_NEAR(std::remainder(back.longitude - c.place.longitude, 360.0), 0.0, kMillimetre);
    EXPECT_NEAR(back.latitude, c.place.latitude, kMillimetre);
  }
  MapPoint verona;
  ASSERT_TRUE(GeoTransformer(32632).project({10.956078145340, 45.802816454347}, verona));
  EXPECT_NEAR(verona.easting, 652000.0, 1e-3);
  EXPECT_NEAR(verona.northing, 5074000.0, 1e-3);
  EXPECT_FALSE(GeoTransformer(32632).project({10.0, 91.0}, verona));
  EXPECT_FALSE(GeoTransformer(32632).project({std::nan(""), 45.0}, verona));
  EXPECT_FALSE(GeoTransformer(4326).project({10.0, 45.0}, verona));
  EXPECT_EQ(utmSystemOf({200.0, 45.0}), 0);
}

}  // namespace
}  // namespace talvesk
