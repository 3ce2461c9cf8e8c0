#pragma once

#include "base/Status.h"
#include "model/SurveyedMatch.h"
#include "model/SurveyedOutcome.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

// Positions on the map, as surveyors and GPS receivers give them, become distances along the line.

enum class LengthAlong {
  kHorizontal,  ///< of the map
  kSlope        ///< along the ground, from geophone to geophone
};

struct SurveyedOptions {
  LineShape shape = LineShape::kFitted;
  LengthAlong length = LengthAlong::kHorizontal;
  StationsBy stations = StationsBy::kNumber;
  /// Distance of the first geophone that was surveyed, metres; none: the least that they have now.
  std::optional<double> start;
  bool fromOtherEnd = false;  ///< distances count against the way that they do now
  std::int32_t epsg = 0;      ///< of easting and northing; 0: not known, no map position
};

/// What the geometry becomes with what was surveyed, to the millimetre. Geophones and shots that
/// have no row are placed between those that have by where they stand now.
/// \return failure, and `outcome` as it was, where fewer than two geophones have a row, where these
/// give no direction, and for lengths along the ground where a geophone lacks its elevation
Status placeSurveyed(const std::vector<SurveyedRow>& rows, const SurveyedOptions& options,
                     const SurveyGeometry& geometry, SurveyedOutcome& outcome);

/// Takes the positions into the document that they were made for, and its map position where that
/// is known. \return whether anything changed
bool applySurveyed(const SurveyedOutcome& outcome, TomoDocument& document);

}  // namespace talvesk
