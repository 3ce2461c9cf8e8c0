#include "model/TomoDocument.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "model/Annotations.h"
#include "model/GroundModel.h"
#include "model/KeptRun.h"
#include "model/KnownGround.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"

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

/// Nobody misses the picks of a shot that takes no part.
bool isDisabled(const Recordings& recordings, const TravelTime& record) {
  return record.traceSetID >= 0 &&
         mendsOf(recordings.mends, static_cast<std::size_t>(record.traceSetID)).disabled;
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
TomoDocument::TomoDocument(const TomoDocument&) = default;
TomoDocument& TomoDocument::operator=(const TomoDocument&) = default;
TomoDocument::TomoDocument(TomoDocument&&) noexcept = default;
TomoDocument& TomoDocument::operator=(TomoDocument&&) noexcept = default;

void TomographyOutcome::clear() {
  std::vector<double> density = std::move(info_density);
  *this = TomographyOutcome();
  info_density = std::move(density);
}

void TomographyOutcome::setCoverageLimit(std::vector<Point2D> centres) {
  coverageLimit = std::move(centres);
  coverageSpline.reset();
  if (coverageLimit.size() < 2) return;
  coverageSpline = splineThrough<Splines::BesselSpline>(coverageLimit);
}

Grid& GroundModel::editGrid() {
  if (grid.use_count() != 1) grid = std::make_shared<Grid>(*grid);
  return const_cast<Grid&>(*grid);
}

void TomoDocument::clearInversion() {
  result.edit().clear();
  const auto computed = [](const TravelTime& record) {
    return std::any_of(record.ttCalcolati.begin(), record.ttCalcolati.end(),
                       [](double time) { return time != kNoTime; });
  };
  if (std::none_of(ttArray.begin(), ttArray.end(), computed)) return;
  for (TravelTime& record : ttArray.edit()) {
    record.ttCalcolati = std::vector<double>(record.ttCalcolati.size(), kNoTime);
  }
}

void TomoDocument::clearModelAndResults() {
  GroundModel& ground = model.edit();
  ground.grid.reset();
  ground.xOffset = 0.0;
  ground.surface = Splines::LinearSpline();
  proposedCellSizes = {};
  result.edit().info_density.clear();
  clearInversion();
}

bool TomoDocument::picksComplete() const {
  std::size_t total = 0;
  std::size_t notZero = 0;
  for (const TravelTime& record : ttArray) {
    if (isDisabled(*recordings, record)) continue;
    total += record.ttMisurati.size();
    for (const double time : record.ttMisurati) notZero += time != 0.0 ? 1 : 0;
  }
  return notZero > total / 2;
}

int TomoDocument::findTrace(std::int32_t set, std::int32_t trace, const Trace*& out) const {
  out = nullptr;
  const std::vector<TraceSet>& traceSets = recordings->traceSets;
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
  const std::vector<TraceSet>& traceSets = recordings->traceSets;
  const auto set = static_cast<std::size_t>(record.traceSetID);
  return record.traceSetID >= 0 && set < traceSets.size() ? &traceSets[set] : nullptr;
}

TraceSet* TomoDocument::editTracesOf(const TravelTime& record) {
  if (tracesOf(record) == nullptr) return nullptr;
  return &recordings.edit().traceSets[static_cast<std::size_t>(record.traceSetID)];
}

std::vector<Point2D> TomoDocument::receiversOf(const TravelTime& record) const {
  const auto string = static_cast<std::size_t>(record.indexStesa);
  const std::vector<std::vector<Point2D>>& strings = line->goephonesStringSet;
  if (record.indexStesa >= 0 && string < strings.size() && !strings[string].empty()) {
    return strings[string];
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
  return measureSurvey(line->goephonesStringSet, shotPoints());
}

std::vector<Point2D> TomoDocument::elevationProfile() const {
  const std::vector<Point2D> shots = shotPoints();
  const Extent extent = lineExtent(line->goephonesStringSet, shots);
  std::map<double, double> elevations;
  const auto take = [&](const Point2D& point) {
    if (!isFinite(point) || !extent.holds(point.x)) return;
    if (elevations.emplace(point.x, point.z).second) {
      console::out() << formatDouble(point.x) << " insert\n";
    }
  };
  for (const auto& string : line->goephonesStringSet) {
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
