#pragma once

#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "support/TestGrids.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace talvesk::testing {

/// A survey that begins at 100 m, over a grid of square cells of 1 m with 6 nodes per side.
/// \param velocity m/s of a row and a column; \param relief metres, 0 is level ground at 100 m
inline TomoDocument sectionDocument(
    std::uint32_t rows, std::uint32_t columns, double relief,
    const std::function<double(std::uint32_t, std::uint32_t)>& velocity) {
  TomoDocument document;
  document.model.edit().surface = hills(columns, relief);
  document.model.edit().xOffset = -99.0;  // the leftmost point, at 100 m, sits at grid x = 1 m
  std::vector<double> slownesses;
  for (std::uint32_t row = 0; row < rows; ++row) {
    for (std::uint32_t column = 0; column < columns; ++column) {
      slownesses.push_back(1.0 / velocity(row, column));
    }
  }
  document.model.edit().grid = std::make_unique<Grid>(
      std::make_shared<GridGeometry>(GridSize{rows, columns, 6, 1.0}, document.model->surface),
      slownesses);
  std::vector<Point2D> geophones;
  for (double x = 1.0; x <= columns - 1.0; x += 2.0) {
    geophones.push_back({x - document.model->xOffset, document.model->surface(x)});
  }
  TravelTime record;
  record.shotPos2d = {2.0 - document.model->xOffset, document.model->surface(2.0)};
  record.ttMisurati.edit().assign(geophones.size(), 0.01);
  document.line.edit().goephonesStringSet.push_back(geophones);
  document.ttArray.edit().push_back(record);
  return document;
}

}  // namespace talvesk::testing
