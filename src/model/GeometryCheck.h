#pragma once

#include "model/SurveyGeometry.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// What is, or looks, wrong with a geometry.
enum class GeometryFault {
  NoPosition,       ///< empty, not a number or absurdly far away; blocks
  EmptyString,      ///< a string without geophones; blocks
  NoString,         ///< shots whose string does not exist; blocks
  MixedWaves,       ///< new S-wave pairs beside shots of one recording; blocks
  SamePlace,        ///< geophones of one string at one distance
  StepsBack,        ///< geophones that go against the direction of their string
  TwoElevations,    ///< geophones of different strings at one distance, at different elevations
  CountDiffers,     ///< shots with another number of traces than their string has geophones
  ShotFarOff,       ///< shots beyond an end of the line by more than its length
  ShotOffSurface,   ///< shots above or below the line by more than a quarter of its length
  ShotNotLevelled,  ///< shots without elevations of their own, where the line is not as high
  StringUnused      ///< no shot uses the string, and yet it shapes the surface
};

/// One thing to tell the user of. All indices count from 0.
struct GeometryMistake {
  GeometryFault fault = GeometryFault::NoPosition;
  int string = -1;                     ///< -1: it is about shots of whatever string
  std::vector<std::size_t> geophones;  ///< of the string; empty when it is about shots
  std::vector<std::size_t> shots;
  std::size_t traces = 0;  ///< of the shots, for CountDiffers
  int otherString = -1;    ///< for TwoElevations

  bool blocks() const { return fault <= GeometryFault::MixedWaves; }
};

/// Positions up to here are taken for meant, metres either way.
inline constexpr double kFarthestPosition = 1e7;

/// Everything that is wrong, what blocks first.
std::vector<GeometryMistake> geometryMistakes(const SurveyGeometry& geometry);

bool isUsable(const GeometryPlace& place);

}  // namespace talvesk
