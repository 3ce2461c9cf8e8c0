#include "model/TomoDocument.h"

#include "base/Console.h"
#include "base/TextNumber.h"

#include <algorithm>
#include <limits>
#include <map>
#include <ostream>
#include <utility>

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

/// Where the line begins and ends: its geophones, or its shots when no geophone is known.
Extent lineExtent(const std::vector<std::vector<Point2D>>& strings,
                  const std::vector<Point2D>& shots) {
  Extent extent;
  for (const auto& string : strings) {
    for (const Point2D& geophone : string) {
      if (isFinite(geophone)) extent.take(geophone);
    }
  }
  if (extent.first <= extent.last) return extent;
  for (const Point2D& shot : shots) {
    if (isFinite(shot)) extent.take(shot);
  }
  return extent;
}

template <typename SplineKind>
SplineKind splineThrough(const std::vector<Point2D>& points) {
  std::vector<double> x;
  std::vector<double> z;
  for (const Point2D& point : points) {
    x.push_back(point.x);
    z.push_back(point.z);
  }
  SplineKind spline;
  spline.build(x, z);
  return spline;
}

template <typename SplineKind>
double elevationBy(const std::vector<Point2D>& profile, double x) {
  if (profile.empty()) return 0.0;
  if (profile.size() == 1) return profile.front().z;
  return splineThrough<SplineKind>(profile)(x);
}

}  // namespace

TomoDocument::TomoDocument() = default;
TomoDocument::~TomoDocument() = default;
TomoDocument::TomoDocument(TomoDocument&&) noexcept = default;
TomoDocument& TomoDocument::operator=(TomoDocument&&) noexcept = default;

void TomoDocument::clearInversion() {
  has_tomographic_info = false;
  smoothedResult = false;
  RMSE_tomography = -1.0;
  timesOfSection = false;
  sectionHistory.clear();
  for (TravelTime& record : ttArray) {
    std::fill(record.ttCalcolati.begin(), record.ttCalcolati.end(), kNoTime);
  }
  coorcount.clear();
  hitCounts.clear();
  rays.clear();
  excluded.clear();
  coverageLimit.clear();
  coverageSpline.reset();
  lastInversion.reset();
}

void TomoDocument::clearModelAndResults() {
  grid.reset();
  xOffset = 0.0;
  surface = Splines::LinearSpline();
  proposedCellSizes.clear();
  info_density.clear();
  clearInversion();
}

void TomoDocument::setCoverageLimit(std::vector<Point2D> centres) {
  coverageLimit = std::move(centres);
  coverageSpline.reset();
  if (coverageLimit.size() < 2) return;
  coverageSpline = splineThrough<Splines::BesselSpline>(coverageLimit);
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

const TraceSet* TomoDocument::tracesOf(const TravelTime& record) const {
  const auto set = static_cast<std::size_t>(record.traceSetID);
  return record.traceSetID >= 0 && set < traceSets.size() ? &traceSets[set] : nullptr;
}

TraceSet* TomoDocument::tracesOf(const TravelTime& record) {
  return const_cast<TraceSet*>(std::as_const(*this).tracesOf(record));
}

std::vector<Point2D> TomoDocument::receiversOf(const TravelTime& record) const {
  const auto string = static_cast<std::size_t>(record.indexStesa);
  if (record.indexStesa >= 0 && string < goephonesStringSet.size() &&
      !goephonesStringSet[string].empty()) {
    return goephonesStringSet[string];
  }
  std::vector<Point2D> receivers;
  if (const TraceSet* traces = tracesOf(record)) {
    for (const Trace& trace : *traces) receivers.push_back(trace.receiverPosition);
  }
  return receivers;
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
    if (!isFinite(point) || !extent.holds(point.x)) return;
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
