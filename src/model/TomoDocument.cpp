#include "model/TomoDocument.h"

#include "base/Console.h"
#include "base/TextNumber.h"

#include <cmath>
#include <limits>
#include <map>
#include <ostream>

namespace talvesk {
namespace {

struct Extent {
  double first = std::numeric_limits<double>::infinity();
  double last = -std::numeric_limits<double>::infinity();

  void take(const Point2D& point) {
    if (point.x < first) first = point.x;
    if (point.x > last) last = point.x;
  }
  bool holds(double x) const { return x >= first && x <= last; }
};

bool isKnown(const Point2D& point) {
  return std::isfinite(point.x) && std::isfinite(point.z);
}

/// Where the line begins and ends: its geophones, or its shots when no geophone is known.
Extent lineExtent(const std::vector<std::vector<Point2D>>& strings,
                  const std::vector<Point2D>& shots) {
  Extent extent;
  for (const auto& string : strings) {
    for (const Point2D& geophone : string) {
      if (isKnown(geophone)) extent.take(geophone);
    }
  }
  if (extent.first <= extent.last) return extent;
  for (const Point2D& shot : shots) {
    if (isKnown(shot)) extent.take(shot);
  }
  return extent;
}

template <typename SplineKind>
double elevationBy(const std::vector<Point2D>& profile, double x) {
  if (profile.empty()) return 0.0;
  if (profile.size() == 1) return profile.front().z;
  std::vector<double> distances;
  std::vector<double> elevations;
  for (const Point2D& point : profile) {
    distances.push_back(point.x);
    elevations.push_back(point.z);
  }
  SplineKind spline;
  spline.build(distances, elevations);
  return spline(x);
}

}  // namespace

TomoDocument::TomoDocument() = default;
TomoDocument::~TomoDocument() = default;
TomoDocument::TomoDocument(TomoDocument&&) noexcept = default;
TomoDocument& TomoDocument::operator=(TomoDocument&&) noexcept = default;

void TomoDocument::clearModelAndResults() {
  grid.reset();
  xOffset = 0.0;
  surface = Splines::LinearSpline();
  proposedCellSizes.clear();
  has_tomographic_info = false;
  smoothedResult = false;
  RMSE_tomography = -1.0;
  info_density.clear();
  coorcount.clear();
  hitCounts.clear();
  rays.clear();
  excluded.clear();
  coverageLimit.clear();
  coverageSpline.reset();
  lastInversion.reset();
}

bool TomoDocument::picksComplete() const {
  std::size_t total = 0;
  std::size_t notZero = 0;
  for (const TravelTime& record : ttArray) {
    total += record.ttMisurati.size();
    for (const double time : record.ttMisurati) notZero += time != 0.0 ? 1 : 0;
  }
  return notZero > total / 2;
}

int TomoDocument::findTrace(std::int32_t set, std::int32_t trace, const Trace*& out) const {
  out = nullptr;
  if (traceSets.empty()) {
    console::error() << "[ERROR] No trace exists. " << std::endl;
    return -1;
  }
  if (set < 0 || static_cast<std::size_t>(set) >= traceSets.size()) {
    console::error() << "[ERROR] Trace set " << set << " does not exist." << std::endl;
    return -1;
  }
  const TraceSet& traces = traceSets[static_cast<std::size_t>(set)];
  if (trace < 0 || static_cast<std::size_t>(trace) >= traces.size()) {
    console::error() << "[ERROR] Trace " << trace << " does not exist." << std::endl;
    return -1;
  }
  out = &traces[static_cast<std::size_t>(trace)];
  return 0;
}

std::vector<Point2D> TomoDocument::shotPoints() const {
  std::vector<Point2D> points;
  points.reserve(ttArray.size());
  for (const TravelTime& record : ttArray) points.push_back(record.shotPos2d);
  return points;
}

SurveyProfile TomoDocument::surveyProfile() const {
  return measureSurvey(goephonesStringSet, shotPoints());
}

std::vector<Point2D> TomoDocument::elevationProfile() const {
  const std::vector<Point2D> shots = shotPoints();
  const Extent extent = lineExtent(goephonesStringSet, shots);
  std::map<double, double> elevations;
  const auto take = [&](const Point2D& point) {
    if (!isKnown(point) || !extent.holds(point.x)) return;
    if (elevations.emplace(point.x, point.z).second) {
      console::out() << formatDouble(point.x) << " insert\n";
    }
  };
  for (const auto& string : goephonesStringSet) {
    for (const Point2D& geophone : string) take(geophone);
  }
  for (const Point2D& shot : shots) take(shot);

  std::vector<Point2D> profile;
  profile.reserve(elevations.size());
  for (const auto& [x, z] : elevations) profile.push_back({x, z});
  return profile;
}

double TomoDocument::elevationAt(double x) const {
  return elevationBy<Splines::LinearSpline>(elevationProfile(), x);
}

double TomoDocument::smoothElevationAt(double x) const {
  return elevationBy<Splines::BesselSpline>(elevationProfile(), x);
}

}  // namespace talvesk
