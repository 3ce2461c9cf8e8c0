#pragma once

#include "base/Status.h"
#include "batch/Options.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace talvesk {

struct Survey;
struct TravelTimeData;

/// --positions and what goes with it, for every kind of input. `options` must outlive the parsing.
void addSurveyedOptions(CLI::App& command, SurveyedPlaceOptions& options);

/// Gives geophones and shots the places of a table of surveyed positions, and the line its place on
/// the map; nothing where no table was given. What is doubtful is told on standard error.
/// \param out gets how far geophones are from the line
/// \param inputs of the command, over none of which the offsets are written
Status placeBySurvey(const SurveyedPlaceOptions& options, const std::vector<std::string>& inputs,
                     std::ostream& out, Survey& survey);

/// The same of a file of picks, whose positions become those that they have there. It has no place
/// on the map: that is of `survey`.
/// \param survey gets the picks, too; left empty where no table was given
Status placeBySurvey(const SurveyedPlaceOptions& options, const std::vector<std::string>& inputs,
                     std::ostream& out, TravelTimeData& picks, Survey& survey);

}  // namespace talvesk
