#pragma once

#include "io/TravelTimeFile.h"
#include "model/Recordings.h"

#include <string>
#include <vector>

namespace talvesk {

struct Survey;

namespace python {

/// How files become a survey.
struct Reading {
  ShotReader reader = ShotReader::kRules;
  TravelTimeReading picks;
  bool asRecorded = false;  ///< time counts from the first sample, wherever the shot was
};

/// Shot files, or one file of picks, or one project: what talvesk-batch makes of the same files.
/// Files that cannot be read raise an Error; what is repaired or left out is a warning.
Survey readSurvey(const std::vector<std::string>& paths, const Reading& reading,
                  std::vector<std::string>& warnings);

/// Sample 0 of every trace becomes that at the shot, where recording began before it.
void countFromShot(Survey& survey, std::vector<std::string>& warnings);

/// Saves a project (*.tvsk).
void saveProject(const std::string& path, const Survey& survey, std::vector<std::string>& warnings);

/// Writes the picks in the travel-time format that the suffix tells; what such a file cannot hold
/// is a warning.
void writePicks(const std::string& path, const Survey& survey, std::vector<std::string>& warnings);

}  // namespace python
}  // namespace talvesk
