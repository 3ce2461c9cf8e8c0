#include "base/LengthUnit.h"
#include "figures/report/ReportBuilder.h"
#include "model/MapLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>

// How a line runs on the map that is not told by its ends.

namespace talvesk::report {
namespace {

constexpr double kDegrees = 180.0 / 3.14159265358979323846;
constexpr double kLeastTurn = 1.0;  ///< degrees; less is how well positions are surveyed

struct CourseFigures {
  std::size_t corners = 0;  ///< where it turns
  double onMap = 0.0;       ///< metres, from corner to corner
  double straight = 0.0;    ///< metres, from end to end
  double right = 0.0;       ///< metres that it goes to the right of that straight line
  double left = 0.0;        ///< the same
};

double turnAt(const MapPoint& before, const MapPoint& at, const MapPoint& after) {
  const double east = at.easting - before.easting;
  const double north = at.northing - before.northing;
  const double nextEast = after.easting - at.easting;
  const double nextNorth = after.northing - at.northing;
  return kDegrees * std::fabs(std::atan2(east * nextNorth - north * nextEast,
                                         east * nextEast + north * nextNorth));
}

CourseFigures figuresOf(const std::vector<MapVertex>& course) {
  CourseFigures figures;
  const MapPoint& first = course.front().place;
  const double east = course.back().place.easting - first.easting;
  const double north = course.back().place.northing - first.northing;
  figures.straight = std::hypot(east, north);
  for (std::size_t i = 1; i < course.size(); ++i) {
    const MapPoint& before = course[i - 1].place;
    const MapPoint& at = course[i].place;
    figures.onMap += std::hypot(at.easting - before.easting, at.northing - before.northing);
    if (i + 1 == course.size()) break;
    if (turnAt(before, at, course[i + 1].place) > kLeastTurn) ++figures.corners;
    if (!(figures.straight > 0.0)) continue;
    const double across =
        ((at.easting - first.easting) * north - (at.northing - first.northing) * east) /
        figures.straight;
    figures.right = std::max(figures.right, across);
    figures.left = std::max(figures.left, -across);
  }
  return figures;
}

QString length(double metres) {
  return ReportWords::tr("%1 %2", "length, unit")
      .arg(number(shownLength(metres), 2), QLatin1String(lengthUnitName()));
}

}  // namespace

void addCourse(ReportBuilder& builder) {
  const std::vector<MapVertex>& course = courseOf(builder.source.document);
  if (course.size() < 2) return;
  const CourseFigures figures = figuresOf(course);
  ReportTable facts = ReportTable::ofFacts();
  facts.rows = {
      {ReportWords::tr("Points on the map"), QString::number(course.size())},
      {ReportWords::tr("Corners of more than 1°"), QString::number(figures.corners)},
      {ReportWords::tr("Length along the line"),
       length(course.back().distance - course.front().distance)},
      {ReportWords::tr("Length on the map"), length(figures.onMap)},
      {ReportWords::tr("Straight from end to end"), length(figures.straight)},
      {ReportWords::tr("Farthest from that straight line, to the right"), length(figures.right)},
      {ReportWords::tr("The same to the left"), length(figures.left)}};
  builder.table(ReportWords::tr("Course of the line between its ends"), facts);
}

}  // namespace talvesk::report
