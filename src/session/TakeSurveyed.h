#pragma once

#include "base/Status.h"
#include "io/SurveyedTable.h"
#include "model/SurveyedPositions.h"

#include <optional>
#include <string>

namespace talvesk {

struct Survey;

/// What became of a table of surveyed positions.
struct TakenPositions {
  StationsBy stations = StationsBy::kNumber;  ///< what its names were taken to count
  SurveyedReading reading;
  SurveyedOutcome outcome;
};

/// Gives geophones and shots the places of the table at `path`, by the columns that it proposes,
/// and the line its place on the map: see placeSurveyed(). Without a way back, as editSurvey().
/// \param options but for the stations; without a code, easting and northing are in the system of
/// the survey's map position, if it has one
/// \param stations none: what fits best
/// \return failure that names the file, the survey and `taken` as they were
Status takeSurveyed(const std::string& path, SurveyedOptions options,
                    const std::optional<StationsBy>& stations, Survey& survey,
                    TakenPositions& taken);

/// The same of rows that somebody has. \param name of them, in messages
Status takeSurveyed(const std::string& name, SurveyedReading reading, SurveyedOptions options,
                    const std::optional<StationsBy>& stations, Survey& survey,
                    TakenPositions& taken);

}  // namespace talvesk
