#pragma once

#include "base/Status.h"
#include "batch/Options.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;
struct LoadedProject;
struct Survey;

/// How talvesk-batch goes about it, apart from the options of the shot files.
struct PickingManner {
  unsigned threads = 0;             ///< 0: as many as the machine has processors
  bool quiet = false;               ///< no warnings but of what is lost
  std::ostream* summary = nullptr;  ///< what the user came to know
};

/// Loads shot files into an empty survey and takes positions from geometry files. One file that
/// cannot be read, or geometry that does not fit the files, fails the whole. Leaves the tables
/// of places and elevations to the next function, for which shots at 0 stay there.
Status loadShotFiles(const ShotOptions& options, Survey& survey);

/// Gives geophones and shots the places of a table of surveyed positions, then the elevations of
/// another one; nothing where none was given.
/// \param file of the survey; empty for shot files
Status layOntoTables(const std::string& file, const ShotOptions& options, std::ostream& out,
                     Survey& survey);

/// Counts time from the shot where records begin before it, unless asked not to, and says so.
Status countFromShot(const ShotOptions& options, std::ostream& out, Survey& survey);

/// loadShotFiles(), then counts time from the shot, filters, picks every trace and screens every
/// shot. One file that cannot be read, or
/// geometry that does not fit the files, fails the whole: a survey with a shot missing would be
/// another survey.
Status pickShotFiles(const ShotOptions& options, const PickingManner& manner, Survey& survey);

/// A survey with picks: that of the project or travel-time file, or without one that of
/// pickShotFiles(). What only a project holds is left as it was by the others.
Status readSurvey(const std::string& file, const TravelTimeReading& picks, const ShotOptions& shots,
                  const PickingManner& manner, LoadedProject& project);

/// Fails when not a single trace has a pick: there is nothing to write or to invert.
/// \param files that the survey came from
Status checkPicks(const TomoDocument& document, const std::vector<std::string>& files);

/// The files that readSurvey() takes.
std::vector<std::string> surveyFiles(const std::string& file, const ShotOptions& shots);

/// The shot files, then the geometry files.
std::vector<std::string> filesOf(const ShotOptions& options);

/// "none", "agc", "hushel" or "band".
std::string nameOf(PickFilter filter);

}  // namespace talvesk
