#pragma once

#include "grid/GridBuilder.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace talvesk::testing {

/// A line of one geophone string and shots, nothing picked. The ground rises and falls by `relief`.
inline TomoDocument testLine(int geophones, double spacing, const std::vector<double>& shots,
                             double relief = 0.0) {
  const auto elevation = [relief](double x) { return 100.0 + relief * std::sin(x / 11.0); };
  TomoDocument line;
  line.line.edit().goephonesStringSet.emplace_back();
  for (int i = 0; i < geophones; ++i) {
    line.line.edit().goephonesStringSet[0].push_back({i * spacing, elevation(i * spacing)});
  }
  for (const double x : shots) {
    TravelTime record;
    record.shotPos2d = {x, elevation(x)};
    record.ttMisurati.edit().assign(static_cast<std::size_t>(geophones), kUnpicked);
    record.traceSetID = static_cast<std::int32_t>(line.ttArray.size());
    line.ttArray.edit().push_back(record);
  }
  return line;
}

/// First arrivals over a level layer on a faster half-space: the earlier of direct and head wave.
inline void pickTwoLayers(TomoDocument& line, double v1, double v2, double thickness) {
  const double delay = 2.0 * thickness * std::sqrt(1.0 / (v1 * v1) - 1.0 / (v2 * v2));
  for (TravelTime& record : line.ttArray.edit()) {
    const auto& string = line.line->goephonesStringSet[record.indexStesa];
    for (std::size_t i = 0; i < string.size(); ++i) {
      const double offset = std::fabs(string[i].x - record.shotPos2d.x);
      record.ttMisurati.edit()[i] = std::min(offset / v1, offset / v2 + delay);
    }
  }
}

/// A grid under the line with the default model, without the log of the grid command.
inline void putGrid(TomoDocument& line, double maxDepth, double cellSize, std::uint32_t nodes = 6) {
  const SurveyProfile profile = line.surveyProfile();
  line.model.edit().surface = profile.surface();
  line.model.edit().xOffset = profile.xOffset;
  line.model.edit().grid = buildDefaultGrid(
      gridSizeFor(profile.arrayLength, maxDepth, cellSize, nodes), line.model->surface);
  line.result.edit().info_density.assign(line.model->grid->cellCount(), -1.0);
}

}  // namespace talvesk::testing
