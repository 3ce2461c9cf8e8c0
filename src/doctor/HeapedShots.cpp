#include "doctor/FindingParts.h"
#include "doctor/GeometryCheck.h"
#include "doctor/Placing.h"
#include "doctor/StationReading.h"
#include "numerics/Medians.h"

#include <cmath>
#include <set>
#include <string>
#include <utility>

namespace talvesk::doctor {
namespace {

using Kind = Finding::Kind;
using Side = SourceStation::Side;

/// First place and spacing of geophones that lie on a line over their stations, as round as the
/// line leaves open.
std::vector<Point2D> evenly(const StationLine& line, std::size_t count, const Shots& inside,
                            const std::vector<double>& coordinates,
                            const std::vector<double>& places) {
  const double spacing = roundest(line.slope, line.slopeError);
  std::vector<double> starts;
  for (std::size_t i = 0; i < inside.size(); ++i) {
    if (line.fits[i]) starts.push_back(places[i] - spacing * coordinates[i]);
  }
  const double first = roundest(medianOf(starts, line.at0), 0.3 * std::fabs(spacing));
  std::vector<Point2D> points;
  for (std::size_t i = 0; i < count; ++i) {
    points.push_back({std::round((first + spacing * static_cast<double>(i)) * 1e6) / 1e6, 0.0});
  }
  return points;
}

/// Whether the elevations of geophones at one place are not those of that place.
bool hasElevations(const ShotView& shot) {
  std::set<double> places;
  std::set<double> elevations;
  for (const Point2D& geophone : shot.geophones) {
    places.insert(geophone.x);
    elevations.insert(geophone.z);
  }
  return elevations.size() > places.size();
}

}  // namespace

void checkHeapedShots(const std::vector<const ShotView*>& shots, std::vector<Finding>& findings) {
  const Shots inside = insiders(shots);
  std::vector<double> stations;
  for (const ShotView* shot : inside) stations.push_back(shot->station.station);
  const std::optional<Reading> reading = bestReading(shots, stations, kStationTolerance);
  std::vector<Point2D> points;
  if (reading) {
    std::vector<double> places;
    for (std::size_t i = 0; i < shots.size(); ++i) {
      if (shots[i]->station.side == Side::kInside) places.push_back(reading->places[i]);
    }
    points = evenly(reading->line, shots.front()->traces->size(), inside, stations, places);
  }
  for (auto& [string, users] : byString(shots)) {
    const ShotView& shot = *users.front();
    std::set<double> distinct;
    for (const Point2D& geophone : shot.geophones) distinct.insert(geophone.x);
    Message text = Message::tr("%1 geophones are said to be at %2 places only")
                       .arg(shot.geophones.size())
                       .arg(distinct.size());
    if (reading) {
      text = Message::tr(
                 "%1; over %2 shots the least times move by one channel as the shot "
                 "moves by %3, so geophone 1 is at %4 and the last one at %5")
                 .arg(std::move(text))
                 .arg(reading->line.fitCount)
                 .arg(Message::length(reading->line.slope, 5))
                 .arg(Message::length(points.front().x, 5))
                 .arg(Message::length(points.back().x, 5));
    }
    Finding finding = aboutShot(Kind::kRepeatedPositions, shot,
                                reading ? confidenceOf(reading->line) : 1.0, std::move(text));
    finding.measured = arrivalsOver(shot, reading ? points : shot.geophones);
    if (reading) {
      std::vector<Point2D> moved = points;
      for (std::size_t i = 0; i < moved.size() && hasElevations(shot); ++i) {
        moved[i].z = shot.geophones[i].z;
      }
      finding.proposal = moveGeophones(std::move(moved));
    }
    findings.push_back(std::move(finding));
  }
  for (std::size_t i = 0; reading && i < shots.size(); ++i) {
    const ShotView& shot = *shots[i];
    const bool moved = reading->places[i] != shot.source.x;
    // The elevations that go with such positions are those of the recorder, too.
    if (!moved && (shot.source.z == 0.0 || hasElevations(shot))) continue;
    Finding finding = aboutShot(
        Kind::kShotPosition, shot, confidenceOf(reading->line),
        moved ? Message::tr("the shot is said to be at %1; the name of the file says %2, and the "
                            "least times of the survey follow the names")
                    .arg(Message::length(shot.source.x, 5))
                    .arg(Message::length(reading->places[i], 5))
              : Message::tr("the shot is said to be at an elevation of %1, and the geophones have "
                            "none that could be theirs")
                    .arg(Message::length(shot.source.z, 5)));
    finding.measured = arrivalsOver(shot, points);
    finding.expected = veeAround(shot, points, reading->places[i]);
    finding.proposal = moveShot({reading->places[i], hasElevations(shot) ? shot.source.z : 0.0});
    findings.push_back(std::move(finding));
  }
}

}  // namespace talvesk::doctor
