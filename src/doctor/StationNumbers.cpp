#include "doctor/FindingParts.h"
#include "doctor/GeometryCheck.h"
#include "doctor/Placing.h"
#include "doctor/StationReading.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr double kFirst = 0.3;  // spacings by which the first place may be rounded

/// Geophones that are numbered, one after the other, and not measured.
bool countStations(const std::vector<Point2D>& geophones) {
  for (std::size_t i = 1; i < geophones.size(); ++i) {
    if (std::fabs(geophones[i].x - geophones[i - 1].x) != 1.0) return false;
  }
  return true;
}

bool areWhole(const Shots& shots) {
  return std::all_of(shots.begin(), shots.end(), [](const ShotView* shot) {
    return shot->source.x == std::round(shot->source.x);
  });
}

/// The median of y - slope * x over the points of a line.
double startOf(const StationLine& line, const std::vector<double>& x, const std::vector<double>& y,
               double slope) {
  std::vector<double> starts;
  for (std::size_t i = 0; i < x.size(); ++i) {
    if (line.fits[i]) starts.push_back(y[i] - slope * x[i]);
  }
  return medianOf(std::move(starts), line.at0);
}

double toMicrometres(double metresLong) {
  return std::round(metresLong * 1e6) / 1e6;
}

/// \param places of the shots among the geophones, by their arrivals and as they are said to be
void placeShots(const Shots& shots, const StationLine& line, const std::vector<double>& places,
                const std::vector<double>& numbers, std::vector<Finding>& findings) {
  const double spacing = spacingOf(shots.front()->geophones);
  const double found = 1.0 / line.slope;
  const double error = line.slopeError * found * found;
  // Stations are those of the geophones, if that can be.
  const double step = std::fabs(std::fabs(found) - spacing) <= error ? std::copysign(spacing, found)
                                                                     : roundest(found, error);
  const double first = roundest(startOf(line, numbers, places, step), kFirst * spacing);
  for (const ShotView* shot : shots) {
    const double x = toMicrometres(first + step * shot->source.x);
    Finding finding = aboutShot(
        Finding::Kind::kStationNumbers, *shot, confidenceOf(line),
        Message::tr("the shot's position %1 counts stations: over %2 shots the least times move by "
                    "%3 for each 1 in the position")
            .arg(Message::number(shot->source.x, 5))
            .arg(line.fitCount)
            .arg(Message::length(found, 5)));
    finding.proposal = moveShot({x, shot->source.z});
    finding.expected = veeAround(*shot, shot->geophones, x);
    findings.push_back(std::move(finding));
  }
}

void placeGeophones(const Shots& shots, const StationLine& line, const std::vector<double>& places,
                    const std::vector<double>& numbers, std::vector<Finding>& findings) {
  const double spacing = spacingOf(shots.front()->geophones);
  const double scale = roundest(line.slope * spacing, line.slopeError * spacing) / spacing;
  // The first geophone of the first string stands at a round place.
  const double origin = shots.front()->geophones.front().x;
  const double first = roundest(startOf(line, places, numbers, scale) + scale * origin,
                                kFirst * std::fabs(scale) * spacing);
  for (const auto& [string, users] : byString(shots)) {
    const ShotView& shot = *users.front();
    std::vector<Point2D> points = shot.geophones;
    for (Point2D& point : points) {
      point.x = toMicrometres(first + scale * (point.x - origin));
    }
    Finding finding = aboutShot(
        Finding::Kind::kStationNumbers, shot, confidenceOf(line),
        Message::tr("the positions of the geophones are no metres: over %1 shots the least times "
                    "move by 1 as the shot moves by %2; geophones %3 apart from %4 on have them "
                    "beside the shots")
            .arg(line.fitCount)
            .arg(Message::length(line.slope, 5))
            .arg(Message::length(scale * spacing, 5))
            .arg(Message::length(points.front().x, 5)));
    finding.expected = veeAround(shot, points, shot.source.x);
    finding.proposal = moveGeophones(std::move(points));
    findings.push_back(std::move(finding));
  }
}

}  // namespace

bool findStationNumbers(const std::vector<const ShotView*>& shots, std::vector<Finding>& findings) {
  const Shots inside = insiders(shots);
  const std::vector<double> places = placesByArrivals(inside);
  const double spacing = spacingOf(shots.front()->geophones);
  const std::optional<Reading> reading = claimedReading(shots, places, kStationTolerance * spacing);
  if (!reading) return false;
  std::vector<double> numbers;
  for (const ShotView* shot : inside) numbers.push_back(shot->source.x);
  const bool ofShots = !countStations(shots.front()->geophones) && areWhole(shots);
  (ofShots ? placeShots : placeGeophones)(shots, reading->line, places, numbers, findings);
  return true;
}

}  // namespace talvesk::doctor
