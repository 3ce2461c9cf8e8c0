#include "model/SurveyedOutcome.h"

#include "base/IndexRanges.h"
#include "base/PlainText.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kFarShare = 0.5;     ///< of the spacing: offsets across the line
constexpr double kDoubleShare = 0.1;  ///< of the spacing: geophones that are one
constexpr double kGapShare = 0.2;     ///< of what a gap should be
constexpr std::size_t kMostRowsNamed = 10;

/// The geophones with a row, by their place among the points.
std::vector<std::size_t> surveyedGeophones(const SurveyedOutcome& outcome) {
  std::vector<std::size_t> geophones;
  for (std::size_t i = 0; i < outcome.points.size(); ++i) {
    const SurveyedPoint& point = outcome.points[i];
    if (!point.shot && point.row != SurveyedPoint::kNoRow) geophones.push_back(i);
  }
  return geophones;
}

/// Those whose gap to the one before is not what `expected` says; NaN there says nothing.
template <class Expected>
std::vector<std::size_t> gapsAgainst(const SurveyedOutcome& outcome,
                                     const std::vector<std::size_t>& geophones, Expected expected) {
  std::vector<std::size_t> found;
  for (std::size_t i = 1; i < geophones.size(); ++i) {
    const SurveyedPoint& a = outcome.points[geophones[i - 1]];
    const SurveyedPoint& b = outcome.points[geophones[i]];
    if (b.index != a.index + 1) continue;
    const double gap = expected(a, b);
    const double misfit = std::fabs(std::fabs(b.after.x - a.after.x) - gap);
    if (misfit > kGapShare * gap) found.push_back(geophones[i]);
  }
  return found;
}

/// Against the gaps so far or, where hardly any of those is right, against the usual spacing.
std::vector<std::size_t> gapsOf(const SurveyedOutcome& outcome,
                                const std::vector<std::size_t>& geophones) {
  std::vector<std::size_t> found =
      gapsAgainst(outcome, geophones, [](const SurveyedPoint& a, const SurveyedPoint& b) {
        return std::fabs(b.before.x - a.before.x);
      });
  if (2 * found.size() <= geophones.size()) return found;
  return gapsAgainst(outcome, geophones,
                     [&](const SurveyedPoint&, const SurveyedPoint&) { return outcome.spacing; });
}

std::vector<std::size_t> doublesOf(const SurveyedOutcome& outcome,
                                   std::vector<std::size_t> geophones) {
  std::stable_sort(geophones.begin(), geophones.end(), [&](std::size_t a, std::size_t b) {
    return outcome.points[a].after.x < outcome.points[b].after.x;
  });
  std::vector<std::size_t> found;
  for (std::size_t i = 1; i < geophones.size(); ++i) {
    const SurveyedPoint& a = outcome.points[geophones[i - 1]];
    const SurveyedPoint& b = outcome.points[geophones[i]];
    const double apart = std::hypot(b.after.x - a.after.x, b.across - a.across);
    if (apart < kDoubleShare * outcome.spacing) found.push_back(geophones[i]);
  }
  std::sort(found.begin(), found.end());
  return found;
}

/// Along a bent line all geophones advance; there a sharp turn is what looks wrong.
std::vector<std::size_t> backwardOf(const SurveyedOutcome& outcome,
                                    const std::vector<MapPoint>& places, LineShape shape,
                                    const std::vector<std::size_t>& geophones) {
  std::vector<std::size_t> found;
  const double whole =
      outcome.points[geophones.back()].after.x - outcome.points[geophones.front()].after.x;
  for (std::size_t i = 1; i < geophones.size(); ++i) {
    const double step =
        outcome.points[geophones[i]].after.x - outcome.points[geophones[i - 1]].after.x;
    if (shape != LineShape::kBent) {
      if (step * whole < 0.0) found.push_back(geophones[i]);
      continue;
    }
    if (i < 2) continue;
    const MapPoint& a = places[geophones[i - 2]];
    const MapPoint& b = places[geophones[i - 1]];
    const MapPoint& c = places[geophones[i]];
    const double ahead = (b.easting - a.easting) * (c.easting - b.easting) +
                         (b.northing - a.northing) * (c.northing - b.northing);
    if (ahead < 0.0) found.push_back(geophones[i]);
  }
  return found;
}

Message namesOf(const SurveyedFinding& finding, const SurveyedOutcome& outcome) {
  std::vector<std::size_t> geophones;
  std::vector<std::size_t> shots;
  for (const std::size_t i : finding.points) {
    const SurveyedPoint& point = outcome.points[i];
    (point.shot ? shots : geophones).push_back(point.index);
  }
  const Message ofGeophones = geophones.size() == 1
                                  ? Message::tr("geophone %1").arg(Message(ranges(geophones)))
                                  : Message::tr("geophones %1").arg(Message(ranges(geophones)));
  const Message ofShots = shots.size() == 1 ? Message::tr("shot %1").arg(Message(ranges(shots)))
                                            : Message::tr("shots %1").arg(Message(ranges(shots)));
  if (shots.empty()) return ofGeophones;
  if (geophones.empty()) return ofShots;
  return Message::tr("%1 and %2").arg(ofGeophones).arg(ofShots);
}

/// By their lines, which an editor finds, and their names.
Message namesOf(const std::vector<std::size_t>& named, const std::vector<SurveyedRow>& rows) {
  std::string lines;
  for (std::size_t i = 0; i < std::min(named.size(), kMostRowsNamed); ++i) {
    const SurveyedRow& row = rows[named[i]];
    lines += (i > 0 ? ", " : "") + std::to_string(row.line);
    if (!row.name.empty()) lines += " (" + quoted(row.name) + ")";
  }
  if (named.size() == 1) return Message::tr("line %1").arg(Message(lines));
  if (named.size() <= kMostRowsNamed) return Message::tr("lines %1").arg(Message(lines));
  return Message::tr("lines %1 and %2 more").arg(Message(lines)).arg(named.size() - kMostRowsNamed);
}

}  // namespace

void findDoubtful(const std::vector<MapPoint>& places, LineShape shape, SurveyedOutcome& outcome) {
  const auto tell = [&](SurveyedFault fault, std::vector<std::size_t> points) {
    if (!points.empty()) outcome.findings.push_back({fault, std::move(points), {}});
  };
  std::vector<std::size_t> far;
  for (std::size_t i = 0; i < outcome.points.size(); ++i) {
    if (std::fabs(outcome.points[i].across) > kFarShare * outcome.spacing) far.push_back(i);
  }
  const std::vector<std::size_t> geophones = surveyedGeophones(outcome);
  tell(SurveyedFault::kFarAcross, std::move(far));
  tell(SurveyedFault::kDoubled, doublesOf(outcome, geophones));
  tell(SurveyedFault::kRunsBack, backwardOf(outcome, places, shape, geophones));
  tell(SurveyedFault::kGap, gapsOf(outcome, geophones));
}

Message describe(const SurveyedFinding& finding, const SurveyedOutcome& outcome,
                 const std::vector<SurveyedRow>& rows) {
  const Message spacing = Message::length(outcome.spacing, 3);
  switch (finding.fault) {
    case SurveyedFault::kRowUnused:
      return Message::tr("Not used, for no geophone or shot of the survey is there: %1")
          .arg(namesOf(finding.rows, rows));
    case SurveyedFault::kRowTwice:
      return Message::tr("Not used, for a row above is of the same geophone or shot: %1")
          .arg(namesOf(finding.rows, rows));
    case SurveyedFault::kBetween:
      return Message::tr(
                 "Without a row, placed among those that have one by the distances so "
                 "far: %1")
          .arg(namesOf(finding, outcome));
    case SurveyedFault::kLeft:
      return Message::tr("Without a row, left where nothing tells how they stand to the others: %1")
          .arg(namesOf(finding, outcome));
    case SurveyedFault::kNoElevation:
      return Message::tr("Without an elevation, raised to the line between the others: %1")
          .arg(namesOf(finding, outcome));
    case SurveyedFault::kFarAcross:
      return Message::tr("Farther from the line than half the spacing of %1: %2")
          .arg(spacing)
          .arg(namesOf(finding, outcome));
    case SurveyedFault::kDoubled:
      return Message::tr("Hardly apart from their neighbours: %1").arg(namesOf(finding, outcome));
    case SurveyedFault::kRunsBack:
      return Message::tr("The line runs back to %1; an exchanged row or number?")
          .arg(namesOf(finding, outcome));
    case SurveyedFault::kGap:
      return Message::tr("Not as far from the geophone before as expected: %1")
          .arg(namesOf(finding, outcome));
  }
  return {};
}

}  // namespace talvesk
