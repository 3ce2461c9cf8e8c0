#pragma once

#include "base/Point2D.h"

#include <optional>

namespace talvesk {

struct SectionScene;

/// What lies at a position of a section. What is not known there is not there.
struct SectionReading {
  Point2D position;                ///< metres: survey x and elevation
  std::optional<double> depth;     ///< metres below the surface, negative above it; along the line
  std::optional<double> velocity;  ///< m/s, of the drawn cell
  std::optional<double> value;     ///< of the drawn cell, in the quantity that the section shows
};

SectionReading readSection(const SectionScene& scene, const Point2D& position);

}  // namespace talvesk
