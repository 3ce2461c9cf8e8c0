#include "model/ElevationProfile.h"

#include "model/SurveyGeometry.h"
#include "numerics/Splines.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

/// Ascending, with one point at every x.
std::vector<Point2D> ordered(std::vector<Point2D> points) {
  std::stable_sort(points.begin(), points.end(),
                   [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  std::vector<Point2D> result;
  for (std::size_t i = 0; i < points.size();) {
    double sum = 0.0;
    const std::size_t first = i;
    for (; i < points.size() && points[i].x == points[first].x; ++i) sum += points[i].z;
    result.push_back({points[first].x, sum / static_cast<double>(i - first)});
  }
  return result;
}

std::unique_ptr<Splines::Spline> splineOf(ElevationProfile::Course course) {
  if (course == ElevationProfile::Course::kSmooth) return std::make_unique<Splines::BesselSpline>();
  return std::make_unique<Splines::LinearSpline>();
}

}  // namespace

ElevationProfile::ElevationProfile(std::vector<Point2D> points, Course course)
    : mPoints(ordered(std::move(points))) {
  if (mPoints.size() < 2) return;
  std::vector<double> x;
  std::vector<double> z;
  for (const Point2D& point : mPoints) {
    x.push_back(point.x);
    z.push_back(point.z);
  }
  mSpline = splineOf(course);
  mSpline->build(x, z);
}

ElevationProfile::~ElevationProfile() = default;

double ElevationProfile::at(double x) const {
  constexpr double kMillimetres = 1000.0;  // nobody surveys finer
  if (mSpline == nullptr) return mPoints.front().z;
  const double elevation = (*mSpline)(std::clamp(x, firstX(), lastX()));
  return std::round(elevation * kMillimetres) / kMillimetres;
}

bool ElevationProfile::covers(double x) const {
  return x >= firstX() && x <= lastX();
}

ElevationOutcome layOnto(const ElevationProfile& profile, SurveyGeometry& geometry) {
  ElevationOutcome outcome;
  const auto lay = [&](GeometryPlace& place, std::size_t& count) {
    if (!std::isfinite(place.x)) return;
    place.z = profile.at(place.x);
    place.typed = true;
    ++count;
    if (!profile.covers(place.x)) ++outcome.beyond;
  };
  for (GeophoneString& string : geometry.strings) {
    for (GeometryPlace& place : string) lay(place, outcome.geophones);
  }
  for (GeometryShot& shot : geometry.shots) lay(shot.place, outcome.shots);
  return outcome;
}

}  // namespace talvesk
