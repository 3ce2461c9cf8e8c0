#pragma once

#include "base/Console.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "tomo/GridSetup.h"

#include <cmath>

namespace talvesk::bench {

/// A line of geophones 2 m apart over gentle ground, with shots spread evenly along it and picks of
/// a ground whose velocity grows with depth (direct and turning rays in closed form).
inline TomoDocument survey(int geophones, int shots) {
  const auto elevation = [](double x) { return 100.0 + 1.5 * std::sin(x / 20.0); };
  TomoDocument document;
  document.line.edit().goephonesStringSet.emplace_back();
  for (int i = 0; i < geophones; ++i) {
    document.line.edit().goephonesStringSet[0].push_back({2.0 * i, elevation(2.0 * i)});
  }
  const double length = 2.0 * (geophones - 1);
  for (int s = 0; s < shots; ++s) {
    TravelTime record;
    record.shotPos2d.x = -1.0 + (length + 2.0) * s / (shots - 1);
    record.shotPos2d.z = elevation(record.shotPos2d.x);
    record.traceSetID = s;
    for (const Point2D& geophone : document.line->goephonesStringSet[0]) {
      const double offset = std::fabs(geophone.x - record.shotPos2d.x) + 0.1;
      const double k = 60.0, v0 = 400.0;
      record.ttMisurati.edit().push_back(2.0 / k * std::asinh(k * offset / (2.0 * v0)));
    }
    document.ttArray.edit().push_back(record);
  }
  return document;
}

/// The same with a grid of the given cells; quiet from then on.
inline TomoDocument surveyWithGrid(int geophones, int shots, double cellSize, double depth) {
  console::setOut(console::nowhere());
  TomoDocument document = survey(geophones, shots);
  Log log;
  const Status status = setUpGrid(document, {depth, cellSize, 6}, log);
  if (!status.ok()) console::error() << status.message() << '\n';
  return document;
}

}  // namespace talvesk::bench
