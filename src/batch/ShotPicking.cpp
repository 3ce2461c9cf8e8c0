#include "batch/ShotPicking.h"

#include "base/TextNumber.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/ProjectFiles.h"
#include "batch/SurveyedPlaces.h"
#include "io/ElevationTable.h"
#include "io/NamedPositions.h"
#include "io/ReadingComparison.h"
#include "io/ShotLoader.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "io/project/projectReader.h"
#include "model/ElevationProfile.h"
#include "model/Parameters.h"
#include "model/Recordings.h"
#include "model/SurveyFacts.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "processing/FirstBreak.h"
#include "processing/NoiseReduction.h"
#include "processing/ShotFilters.h"
#include "processing/ShotTime.h"
#include "processing/joint/JointPicker.h"
#include "session/PickEdits.h"
#include "session/TableRules.h"

#include <algorithm>
#include <ostream>
#include <set>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

/// Every file that fails has its line; the last one is the status.
Status load(const ShotOptions& options, TomoDocument& document) {
  ShotLoader loader;
  std::vector<ReadShotFile> files;
  for (const std::string& path : options.files) {
    files.push_back(loader.read(path, document, options.reader));
    if (options.reader == ShotReader::kStandard) continue;
    const auto fuller = readFuller(files.back());
    if (fuller) warnOfLosses(path, fuller->losses);
  }
  Status status;
  for (const ShotFileOutcome& outcome : appendShots(std::move(files), document)) {
    for (const std::string& warning : outcome.warnings) warn(outcome.path + ": " + warning);
    if (outcome.status.ok()) continue;
    if (!status.ok()) failed(status.message());
    status = outcome.status;
  }
  return status;
}

Status readPositions(const std::string& path, const std::string& separator,
                     const WantedPositions& wanted, std::vector<Point2D>& positions) {
  PositionTable table;
  bool byName = false;
  Status status = readPositions(path, separator, wanted, table, byName);
  if (!status.ok()) return status;
  for (const std::string& remark : describe(table.remarks)) warn(path + ": " + remark);
  if (byName) warn(path + ": it was read by the names of its columns");
  if (!byName && cutsNumbers(lookAtGeometryFile(path), separator)) {
    warn(path + ": numbers were cut at their decimal commas; they need points");
  }
  status = positionsOf(table, positions);
  return status.ok() ? status : Status::failure(path + ": " + status.message());
}

Status placeGeophones(const ShotOptions& options, TomoDocument& document) {
  std::vector<Point2D> geophones;
  const std::vector<TraceSet>& traceSets = document.recordings->traceSets;
  const WantedPositions wanted = {PositionsOf::kGeophones,
                                  traceSets.empty() ? 0 : traceSets.front().size(), 0};
  Status status = readPositions(options.geophones, options.separator, wanted, geophones);
  if (!status.ok()) return status;
  for (std::size_t i = 0; i < document.recordings->traceSets.size(); ++i) {
    TraceSet& traces = document.recordings.edit().traceSets[i];
    if (traces.size() != geophones.size()) {
      return Status::failure(options.geophones + ": " + std::to_string(geophones.size()) +
                             " geophones do not fit the " + std::to_string(traces.size()) +
                             " traces of " + document.recordings->filenames[i]);
    }
    for (std::size_t t = 0; t < traces.size(); ++t) traces[t].receiverPosition = geophones[t];
    document.ttArray.edit()[i].indexStesa = 0;
  }
  document.line.edit().goephonesStringSet = {std::move(geophones)};
  return {};
}

Status placeShots(const ShotOptions& options, TomoDocument& document) {
  std::vector<Point2D> shots;
  const WantedPositions wanted = {PositionsOf::kShots, document.recordings->traceSets.size(), 0};
  Status status = readPositions(options.shots, options.separator, wanted, shots);
  if (!status.ok()) return status;
  if (shots.size() != document.recordings->traceSets.size()) {
    return Status::failure(
        options.shots + ": " + std::to_string(shots.size()) + " shots do not fit " +
        std::to_string(document.recordings->traceSets.size()) + " recorded shots");
  }
  for (std::size_t i = 0; i < shots.size(); ++i) {
    for (Trace& trace : document.recordings.edit().traceSets[i]) trace.sourcePosition = shots[i];
    document.ttArray.edit()[i].shotPos2d = shots[i];
    document.line.edit().shotPositions[i] = shots[i].x;
  }
  return {};
}

/// Shots at 0 under geophones with elevations would pull the ground down to them. Those that a file
/// of positions puts there stay.
Status levelShots(const ShotOptions& options, Survey& survey) {
  SurveyGeometry geometry = geometryOf(survey.document);
  const std::size_t off = shotsNotLevelled(geometry).size();
  if (off == 0) return {};
  if (!options.shots.empty()) {
    warn(options.shots + ": all shots are at elevation 0, the geophones are not; they stay there");
    return {};
  }
  interpolateShotElevations(geometry);
  const Status moved = editSurvey(Edit::kGeometry, survey, [&](Survey& next) {
    applyGeometry(geometry, next.document);
    return Status();
  });
  if (!moved.ok()) return moved;
  warn("all shots are at elevation 0, the geophones are not: " + std::to_string(off) +
       " shots were put on the line of the geophones");
  return {};
}

/// The screening goes by distances, and without them removes every pick.
void warnOfHeap(const TomoDocument& document) {
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const auto string = static_cast<std::size_t>(document.ttArray[i].indexStesa);
    const std::vector<Point2D>& geophones = document.line->goephonesStringSet[string];
    std::set<double> places;
    for (const Point2D& geophone : geophones) places.insert(geophone.x);
    if (places.size() == geophones.size()) continue;
    const std::string heap =
        places.size() == 1 ? "all receivers are at one place, so that no pick can be plausible"
                           : std::to_string(geophones.size()) + " receivers are at only " +
                                 std::to_string(places.size()) +
                                 " places, and picks are judged by those distances";
    warn(document.recordings->filenames[i] + ": " + heap +
         "; give their positions with --geophones and --shots");
  }
}

}  // namespace

Status countFromShot(const ShotOptions& options, std::ostream& out, Survey& survey) {
  const std::vector<TraceSet>& traceSets = survey.document.recordings->traceSets;
  const auto early = [](const Trace& trace) { return trace.delay < 0.0; };
  const bool anyEarly = std::any_of(traceSets.begin(), traceSets.end(), [&](const TraceSet& set) {
    return std::any_of(set.begin(), set.end(), early);
  });
  if (!anyEarly) return {};
  if (options.asRecorded) {
    out << "Records start before the shot; times count from their first sample, as asked for.\n";
    return {};
  }
  ShotTimeOutcome outcome;
  const Status counted = editSurvey(Edit::kShotTime, survey, [&](Survey& next) {
    outcome = countTimeFromShot(next.document);
    return Status();
  });
  if (!counted.ok()) return counted;
  if (outcome.shortened > 0) {
    out << "Records start before the shot: up to " << outcome.mostDropped
        << " samples were left out of " << outcome.shortened
        << " traces, and time counts from the shot.\n";
  }
  for (const Message& note : outcome.notes) warn(note);
  if (outcome.leftAsRecorded > 0) {
    warn(std::to_string(outcome.leftAsRecorded) +
         " traces end before the shot, or their delay is no number of samples; their times count "
         "from the first sample");
  }
  return {};
}

namespace {

Status filter(const ShotOptions& options, const std::vector<std::int32_t>& shots, Survey& survey) {
  FilterOutcome outcome;
  std::vector<Message> notes;
  const Status done = editSurvey(Edit::kFilter, survey, [&](Survey& next) {
    TomoDocument& document = next.document;
    if (options.filter == PickFilter::kAgc) outcome = agcShots(document, shots);
    if (options.filter == PickFilter::kHushel) outcome = reduceNoise(document, shots);
    if (options.filter == PickFilter::kBand) {
      outcome = bandFilterShots(document, shots, options.band);
    }
    if (options.filter == PickFilter::kNotch) {
      outcome = notchShots(document, shots, options.notch, false);
    }
    if (options.filter == PickFilter::kVelocity) {
      outcome = velocityFilterShots(document, shots, options.velocity, false, notes);
    }
    return Status();
  });
  if (!done.ok()) return done;
  for (const Message& note : notes) warn(note);
  if (outcome.failed == 0) return {};
  if (outcome.filtered == 0) return outcome.status;
  warn(std::to_string(outcome.failed) + " of " + std::to_string(outcome.failed + outcome.filtered) +
       " traces cannot be filtered and are not picked; " + outcome.status.message());
  return {};
}

Status pickAlongTheLine(const ShotOptions& options, const PickingManner& manner,
                        const std::vector<std::int32_t>& shots, TomoDocument& document) {
  JointPickOptions joint;
  joint.useFiltered = options.filter != PickFilter::kNone;
  joint.threads = manner.threads;
  JointPickOutcome outcome;
  const Status status = pickJointly(document, shots, joint, outcome);
  if (!status.ok()) return status;
  *manner.summary << "Picked along the line: " << outcome.good << " picks are sure to "
                  << formatDouble(parameters::kGoodPick.value) << " ms, " << outcome.doubtful
                  << " are doubtful.\n";
  if (outcome.mended > 0) {
    *manner.summary << outcome.mended
                    << " traces are of disabled shots or killed and left unpicked.\n";
  }
  return status;
}

void summarize(const ShotOptions& options, const TomoDocument& document, std::ostream& out) {
  std::size_t traces = 0;
  std::size_t picks = 0;
  for (const TravelTime& record : document.ttArray) {
    traces += record.ttMisurati.size();
    picks += pickCount(record);
  }
  out << "Shots: " << document.ttArray.size() << ", traces: " << traces
      << ", geophone strings: " << document.line->goephonesStringSet.size() << "\n"
      << "Filter: " << nameOf(options.filter) << "\n"
      << "Picks: " << picks << " accepted, " << traces - picks << " rejected" << std::endl;
}

/// Gives all geophones and shots the elevations of a table; nothing where none was given.
Status layOntoElevations(const ElevationOptions& options, std::ostream& out, Survey& survey) {
  if (options.table.empty()) return {};
  std::vector<Point2D> points;
  Status status = readElevationTable(options.table, points);
  if (!status.ok()) return status;
  const ElevationProfile profile(std::move(points), options.smooth
                                                        ? ElevationProfile::Course::kSmooth
                                                        : ElevationProfile::Course::kStraight);
  ElevationOutcome outcome;
  status = editSurvey(Edit::kGeometry, survey, [&](Survey& next) {
    SurveyGeometry geometry = geometryOf(next.document);
    outcome = layOnto(profile, geometry);
    applyGeometry(geometry, next.document);
    return Status();
  });
  if (!status.ok()) return status;
  out << "Elevations of " << options.table << ": " << outcome.geophones << " geophones, "
      << outcome.shots << " shots\n";
  if (outcome.beyond > 0) {
    warn(options.table + ": " + std::to_string(outcome.beyond) +
         " positions lie beyond its ends and got the elevation there");
  }
  return {};
}

}  // namespace

Status layOntoTables(const std::string& file, const ShotOptions& options, std::ostream& out,
                     Survey& survey) {
  const Status status = placeBySurvey(options.surveyed, surveyFiles(file, options), out, survey);
  return status.ok() ? layOntoElevations(options.elevations, out, survey) : status;
}

Status loadShotFiles(const ShotOptions& options, Survey& survey) {
  TomoDocument& document = survey.document;
  Status status = load(options, document);
  if (status.ok() && !options.geophones.empty()) status = placeGeophones(options, document);
  if (status.ok() && !options.shots.empty()) status = placeShots(options, document);
  const bool tables = !(options.elevations.table + options.surveyed.table).empty();
  if (!status.ok() || tables) return status;
  return levelShots(options, survey);
}

Status pickShotFiles(const ShotOptions& options, const PickingManner& manner, Survey& survey) {
  TomoDocument& document = survey.document;
  Status status = loadShotFiles(options, survey);
  if (status.ok()) status = layOntoTables({}, options, *manner.summary, survey);
  if (!status.ok()) return status;

  std::vector<std::int32_t> shots;
  for (std::size_t i = 0; i < document.recordings->traceSets.size(); ++i) {
    if (!document.recordings->traceSets[i].empty()) shots.push_back(static_cast<std::int32_t>(i));
  }
  if (shots.empty()) return Status::failure("the shot files hold no traces");
  tellSamplesOnDisk(*manner.summary);
  if (!manner.quiet) warnOfHeap(document);
  status = countFromShot(options, *manner.summary, survey);
  if (status.ok()) status = filter(options, shots, survey);
  if (status.ok()) {
    status = editSurvey(Edit::kAutoPick, survey, [&](Survey& next) {
      if (options.method == PickMethod::kJoint) {
        return pickAlongTheLine(options, manner, shots, next.document);
      }
      Status picked =
          pickShots(next.document, shots, options.filter != PickFilter::kNone, manner.threads);
      for (const std::int32_t shot : shots) markPicksAutomatic(next.document, shot);
      const Message early = describePicksAtFirstSample(next.document, shots);
      if (!early.empty() && !manner.quiet) warn(early);
      return picked;
    });
  }
  if (status.ok()) summarize(options, document, *manner.summary);
  return status;
}

Status readSurvey(const std::string& file, const TravelTimeReading& picks, const ShotOptions& shots,
                  const PickingManner& manner, LoadedProject& project) {
  if (file.empty()) return pickShotFiles(shots, manner, project);
  if (isProjectFile(file)) {
    const Status status = readProject(file, project);
    return status.ok() ? layOntoTables(file, shots, *manner.summary, project) : status;
  }
  TravelTimeData data;
  TravelTimeReading reading = picks;
  reading.byContent = shots.reader == ShotReader::kStandard;
  Status status = readPicks(file, reading, data);
  if (!status.ok()) return status;
  status = importTravelTimes(std::move(data), project.document);
  return status.ok() ? layOntoTables(file, shots, *manner.summary, project) : status;
}

Status checkPicks(const TomoDocument& document, const std::vector<std::string>& files) {
  if (hasPicks(document)) return {};
  const std::string others = files.size() > 1 ? " and the other files" : "";
  return Status::failure(files.front() + others +
                         ": not a single usable pick; nothing was written");
}

std::vector<std::string> surveyFiles(const std::string& file, const ShotOptions& shots) {
  if (file.empty()) return filesOf(shots);
  std::vector<std::string> files = {file};
  for (const std::string& table : {shots.surveyed.table, shots.elevations.table}) {
    if (!table.empty()) files.push_back(table);
  }
  return files;
}

std::vector<std::string> filesOf(const ShotOptions& options) {
  std::vector<std::string> files = options.files;
  for (const std::string& geometry :
       {options.geophones, options.shots, options.surveyed.table, options.elevations.table}) {
    if (!geometry.empty()) files.push_back(geometry);
  }
  return files;
}

std::string nameOf(PickFilter filter) {
  switch (filter) {
    case PickFilter::kAgc:
      return "agc";
    case PickFilter::kHushel:
      return "hushel";
    case PickFilter::kBand:
      return "band";
    case PickFilter::kNotch:
      return "notch";
    case PickFilter::kVelocity:
      return "velocity";
    case PickFilter::kNone:
      break;
  }
  return "none";
}

}  // namespace talvesk
