#include "python/SurveyFiles.h"

#include "base/WorkingFolder.h"
#include "io/FileFormats.h"
#include "io/ShotLoader.h"
#include "io/Survey.h"
#include "io/TravelTimeData.h"
#include "io/project/ProjectWriter.h"
#include "io/project/projectReader.h"
#include "model/Recordings.h"
#include "model/SurveyGeometry.h"
#include "processing/ShotTime.h"
#include "python/Error.h"
#include "session/TableRules.h"

#include <utility>

namespace talvesk::python {
namespace {

std::string workingFolder() {
  const WorkingFolder folder = WorkingFolder::ofUser();
  if (folder.create()) return folder.path;
  throw Error("Cannot create the folder " + folder.path + ", where projects are put together");
}

void keep(const std::string& path, const std::vector<Message>& all,
          std::vector<std::string>& warnings) {
  for (const Message& warning : all) warnings.push_back(path + ": " + warning.english());
}

Survey readProject(const std::string& path, std::vector<std::string>& warnings) {
  LoadedProject project;
  projectReader reader;
  if (reader.load(path, workingFolder(), project) != 0) {
    throw Error(path + " is not a valid project: " + reader.message());
  }
  keep(path, reader.repairs(), warnings);
  keep(path, reader.warnings(), warnings);
  return project;
}

Survey readPicks(const std::string& path, const Reading& reading,
                 std::vector<std::string>& warnings) {
  TravelTimeData data;
  raiseUnless(readTravelTimes(path, data, reading.picks));
  keep(path, data.warnings, warnings);
  Survey survey;
  raiseUnless(importTravelTimes(std::move(data), survey.document));
  return survey;
}

/// Shots at 0 under geophones with elevations would pull the ground down to them.
void levelShots(Survey& survey, std::vector<std::string>& warnings) {
  SurveyGeometry geometry = geometryOf(survey.document);
  const std::size_t off = shotsNotLevelled(geometry).size();
  if (off == 0) return;
  interpolateShotElevations(geometry);
  raiseUnless(editSurvey(Edit::kGeometry, survey, [&](Survey& next) {
    applyGeometry(geometry, next.document);
    return Status();
  }));
  warnings.push_back("all shots are at elevation 0, the geophones are not: " + std::to_string(off) +
                     " shots were put on the line of the geophones");
}

Survey readShots(const std::vector<std::string>& paths, const Reading& reading,
                 std::vector<std::string>& warnings) {
  Survey survey;
  ShotLoader loader;
  for (const ShotFileOutcome& outcome : loader.load(paths, survey.document, reading.reader)) {
    raiseUnless(outcome.status);
    keep(outcome.path, outcome.warnings, warnings);
  }
  levelShots(survey, warnings);
  if (!reading.asRecorded) countFromShot(survey, warnings);
  return survey;
}

}  // namespace

void countFromShot(Survey& survey, std::vector<std::string>& warnings) {
  ShotTimeOutcome outcome;
  raiseUnless(editSurvey(Edit::kShotTime, survey, [&](Survey& next) {
    outcome = countTimeFromShot(next.document);
    return Status();
  }));
  for (const Message& note : outcome.notes) warnings.push_back(note.english());
  if (outcome.leftAsRecorded == 0) return;
  warnings.push_back(std::to_string(outcome.leftAsRecorded) +
                     " traces end before the shot, or their delay is no number of samples; their "
                     "times count from the first sample");
}

Survey readSurvey(const std::vector<std::string>& paths, const Reading& reading,
                  std::vector<std::string>& warnings) {
  if (paths.empty()) throw Error("There is no file to read");
  for (const std::string& path : paths) {
    const bool project = hasSuffixOf(projectFormat(), path);
    if (!project && travelTimeFormatOf(path) == nullptr && !holdsTravelTimes(path)) continue;
    if (paths.size() > 1) {
      throw Error(path + ": only one travel-time file or project can be read at a time");
    }
    return project ? readProject(path, warnings) : readPicks(path, reading, warnings);
  }
  return readShots(paths, reading, warnings);
}

void saveProject(const std::string& path, const Survey& survey,
                 std::vector<std::string>& warnings) {
  ProjectWriter writer;
  if (writer.save(path, workingFolder(), survey.document, survey.interpretation, survey.palettes,
                  survey.section, survey.own) != 0) {
    throw Error("The project " + path + " has not been saved: " + writer.message());
  }
  keep(path, writer.warnings(), warnings);
}

void writePicks(const std::string& path, const Survey& survey, std::vector<std::string>& warnings) {
  std::vector<Message> losses;
  raiseUnless(writeTravelTimes(path, travelTimesOf(survey.document), losses));
  keep(path, losses, warnings);
}

}  // namespace talvesk::python
