#include "doctor/FindingParts.h"
#include "doctor/NeighbourTimes.h"
#include "doctor/Placing.h"
#include "doctor/StationLine.h"
#include "doctor/StationReading.h"
#include "doctor/SurveyChecks.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr std::size_t kFewestShots = 2;  // on each side of a geophone
constexpr double kOffLine = 0.5;         // of the spacing: less is the ground, or the blow's place
constexpr double kExchanged = 0.4;       // of the distance between two exchanged channels

/// How far along the line a geophone is from its place, metres, as the shots of one side have it.
struct Offset {
  double metres = 0.0;
  double scatter = 0.0;
  std::size_t shots = 0;
};

Offset offsetFrom(const Shots& shots, std::size_t geophone, bool left) {
  std::vector<double> values;
  for (const ShotView* shot : shots) {
    if ((shot->offset(geophone) > 0.0) != left || !isClear(shot->onsets[geophone])) continue;
    const std::optional<NeighbourTime> around = timeByNeighbours(*shot, geophone);
    if (!around || std::fabs(around->pace) < 1.0 / 6000.0) continue;
    values.push_back((shot->onsets[geophone].time - around->time) / around->pace);
  }
  Offset offset;
  offset.shots = values.size();
  offset.metres = medianOf(values, 0.0);
  std::vector<double> off;
  for (const double value : values) off.push_back(std::fabs(value - offset.metres));
  offset.scatter = 1.4826 * medianOf(std::move(off), 0.0);
  return offset;
}

/// A geophone that both sides put elsewhere by the same way.
std::optional<double> misplacement(const Shots& shots, std::size_t geophone, double spacing) {
  const Offset left = offsetFrom(shots, geophone, true);
  const Offset right = offsetFrom(shots, geophone, false);
  if (left.shots < kFewestShots || right.shots < kFewestShots) return std::nullopt;
  const double mean = 0.5 * (left.metres + right.metres);
  const double least = std::min(std::fabs(left.metres), std::fabs(right.metres));
  const double error =
      0.5 * std::hypot(left.scatter / std::sqrt(static_cast<double>(left.shots)),
                       right.scatter / std::sqrt(static_cast<double>(right.shots)));
  if (left.metres * right.metres <= 0.0 || least < kOffLine * spacing ||
      least < 0.5 * std::fabs(mean) || std::fabs(mean) < 4.0 * error) {
    return std::nullopt;
  }
  return mean;
}

void checkString(const Shots& shots, std::vector<Finding>& findings) {
  const std::vector<Point2D>& geophones = shots.front()->geophones;
  const double spacing = spacingOf(geophones);
  std::vector<std::pair<std::size_t, double>> off;
  for (std::size_t g = 0; g < geophones.size(); ++g) {
    if (const auto metresOff = misplacement(shots, g, spacing)) off.emplace_back(g, *metresOff);
  }
  std::vector<bool> done(off.size(), false);
  std::vector<Point2D> points = geophones;
  for (std::size_t i = 0; i < off.size(); ++i) {
    for (std::size_t k = i + 1; k < off.size() && !done[i]; ++k) {
      const auto [a, toA] = off[i];
      const auto [b, toB] = off[k];
      const double apart = geophones[b].x - geophones[a].x;
      const double slack = std::max(0.75 * spacing, kExchanged * std::fabs(apart));
      if (done[k] || std::fabs(toA - apart) > slack || std::fabs(toB + apart) > slack) continue;
      done[i] = done[k] = true;
      std::swap(points[a], points[b]);
      Finding finding = aboutShot(
          Finding::Kind::kMovedTrace, *shots.front(), 0.8,
          Message::tr("exchanged: over all shots the arrivals of trace %1 belong to the place of "
                      "trace %2, and the other way round")
              .arg(a + 1)
              .arg(b + 1));
      finding.traces = {a, b};
      finding.proposal = moveGeophones(points);
      findings.push_back(std::move(finding));
    }
  }
  for (std::size_t i = 0; i < off.size(); ++i) {
    if (done[i]) continue;
    const auto [g, metresOff] = off[i];
    points[g].x = geophones[g].x + roundest(metresOff, 0.15 * spacing);
    Finding finding = aboutShot(
        Finding::Kind::kGeophoneOffLine, *shots.front(), 0.7,
        Message::tr("off the line: geophone %1 is said to be at %2; from both sides its arrivals "
                    "are those of %3")
            .arg(g + 1)
            .arg(Message::length(geophones[g].x, 5))
            .arg(Message::length(geophones[g].x + metresOff, 5)));
    finding.traces = {g};
    finding.expected = arrivalsOver(*shots.front(), points);
    finding.proposal = moveGeophones(points);
    findings.push_back(std::move(finding));
  }
}

}  // namespace

std::vector<Finding> checkGeophoneLine(const std::vector<const ShotView*>& shots) {
  std::vector<Finding> findings;
  Shots laid;
  for (const ShotView* shot : shots) {
    if (!isHeap(shot->geophones)) laid.push_back(shot);
  }
  for (const auto& [string, users] : byString(laid)) checkString(users, findings);
  return findings;
}

}  // namespace talvesk::doctor
