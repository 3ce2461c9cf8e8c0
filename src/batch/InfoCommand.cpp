#include "base/TextNumber.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/ResultJson.h"
#include "batch/RunList.h"
#include "batch/SurveyedPlaces.h"
#include "grid/SurveyProfile.h"
#include "io/FileFormats.h"
#include "io/ReadingComparison.h"
#include "io/SegyFile.h"
#include "io/ShotFile.h"
#include "io/ShotLoader.h"
#include "io/Survey.h"
#include "io/TraceHeaders.h"
#include "io/TravelTimeFile.h"
#include "io/project/projectReader.h"
#include "model/Recordings.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

std::string padded(std::string text, std::size_t width) {
  text.resize(std::max(text.size(), width), ' ');
  return text;
}

void describe(const std::string& file, const TravelTimeData& data, std::ostream& out) {
  std::vector<Point2D> shots;
  std::size_t geophones = 0;
  for (const auto& string : data.strings) geophones += string.size();
  for (const TravelTime& record : data.records) shots.push_back(record.shotPos2d);
  const SurveyProfile profile = measureSurvey(data.strings, shots);
  out << asOneLine(file) << "\n  format      " << data.format << "\n  strings     "
      << data.strings.size() << "\n  geophones   " << geophones << "\n  shots       "
      << data.records.size() << "\n"
      << picksText(data.records);
  if (profile.hasGeometry()) {
    out << "  spacing     " << formatDouble(profile.minSpacing) << " m (smallest)\n";
  }
  if (!profile.x.empty()) {
    out << "  line        " << formatDouble(profile.minX) << " to " << formatDouble(profile.maxX)
        << " m\n";
  }
}

/// "7", or "7 to 9" where the traces differ.
std::string spanText(const ReadingSummary::Span& span, double factor = 1.0) {
  const std::string least = formatDouble(factor * span.least);
  return span.least == span.most ? least : least + " to " + formatDouble(factor * span.most);
}

std::string place(const Point2D& point) {
  return formatDouble(point.x) + " m, elevation " + formatDouble(point.z) + " m";
}

/// What a reading says in the lines of the table of readings, as far as it says anything.
std::vector<std::string> columnOf(const ReadShotFile& file) {
  if (!file.outcome.status.ok()) return {"not read"};
  constexpr double kMsPerSecond = 1000.0;
  const ReadingSummary summary = summaryOf(file);
  std::vector<std::string> column = {file.outcome.format, std::to_string(summary.shots),
                                     std::to_string(summary.traces)};
  if (summary.traces == 0) return column;
  const auto holdsTraces = [](const auto& shot) { return !shot.data.traces.empty(); };
  const auto& first = *std::find_if(file.shots.begin(), file.shots.end(), holdsTraces);
  const auto& last = *std::find_if(file.shots.rbegin(), file.shots.rend(), holdsTraces);
  const std::vector<std::string> values = {spanText(summary.samples),
                                           spanText(summary.sampleInterval, kMsPerSecond) + " ms",
                                           spanText(summary.delay, kMsPerSecond) + " ms",
                                           place(first.data.traces.front().source),
                                           place(first.data.traces.front().receiver),
                                           "to " + place(last.data.traces.back().receiver)};
  column.insert(column.end(), values.begin(), values.end());
  return column;
}

/// Both readings of a shot file, side by side.
void describe(const std::string& file, const ReadShotFile& byRules, const ReadShotFile& byStandard,
              std::ostream& out) {
  static const std::vector<std::string> kLabels = {
      "", "format", "shots", "traces", "samples", "interval", "delay", "source", "receivers", ""};
  std::vector<std::string> left = columnOf(byRules);
  std::vector<std::string> right = columnOf(byStandard);
  left.insert(left.begin(), "by the program's rules");
  right.insert(right.begin(), "by the standard");
  std::size_t width = 0;
  for (const std::string& text : left) width = std::max(width, text.size());
  out << asOneLine(file) << '\n';
  for (std::size_t i = 0; i < std::max(left.size(), right.size()); ++i) {
    const std::string& text = i < left.size() ? left[i] : std::string();
    out << asOneLine("  " + padded(kLabels[i], 12) + padded(text, width + 3) +
                     (i < right.size() ? right[i] : std::string()))
        << '\n';
  }
}

/// What the command makes of the files one after the other.
class Inventory {
 public:
  Inventory(const InfoOptions& options, std::ostream& out) : mOptions(options), mOut(out) {}

  void add(const std::string& file) {
    if (isProjectFile(file)) return addProject(file);
    const bool picks = travelTimeFormatOf(file) != nullptr || holdsTravelTimes(file);
    picks ? addTravelTimes(file) : addShot(file);
  }

  int exitCode() const { return mExitCode; }
  /// Of one project or of all shot files, at the places of the table that was given.
  const Survey& survey() const { return mSurvey; }

  /// Reads the shot files as one survey, where somebody asks for more than what each holds. What
  /// cannot be read of them has been told already.
  void joinShots() {
    const bool wanted = !mOptions.headers.empty() || !mOptions.surveyed.table.empty();
    if (!wanted || !mTellsOfShots) return;
    ShotLoader().load(mOptions.files, mSurvey.document, mOptions.reader);
    if (mSurvey.document.recordings->traceSets.empty()) return;
    const Status status = placeBySurvey(mOptions.surveyed, inputs(), mOut, mSurvey);
    if (status.ok()) return;
    mExitCode = failed(status.message());
    mSurvey = {};  // of nothing else a table of headers was asked for
  }

  /// A single file that is no shot file has nothing to say when it cannot be read.
  bool hasJson() const { return mExitCode == kDone || mOptions.files.size() > 1 || mTellsOfShots; }
  std::string json() const {
    return mOptions.files.size() == 1 ? mValues.front() : jsonArray(mValues);
  }

 private:
  /// Over which no outcome of the positions is written.
  std::vector<std::string> inputs() const {
    std::vector<std::string> all = mOptions.files;
    all.push_back(mOptions.surveyed.table);
    return all;
  }

  static Status neitherKind(const std::string& file) {
    return Status::failure(file + ": its suffix is not of a travel-time file (" +
                               travelTimeSuffixes() + ") or a shot file (" + shotSuffixes() +
                               ") or a project (.tvsk)",
                           kUnknownSuffix);
  }

  void addTravelTimes(const std::string& file) {
    TravelTimeData data;
    TravelTimeReading reading = mOptions.picks;
    reading.byContent = mOptions.reader == ShotReader::kStandard;
    Status status = readPicks(file, reading, data);
    Survey survey;
    if (status.ok()) status = placeBySurvey(mOptions.surveyed, inputs(), mOut, data, survey);
    take(file, status, data, [&] { return travelTimesJson(data); });
  }

  void addProject(const std::string& file) {
    LoadedProject project;
    Status status = readProject(file, project);
    if (status.ok()) status = placeBySurvey(mOptions.surveyed, inputs(), mOut, project);
    if (status.ok() && !mOptions.headers.empty()) mSurvey = project;
    take(file, status, project, [&] { return projectJson(project); });
    if (status.ok() && mOptions.listRuns && mOptions.json.empty()) listRuns(project.document, mOut);
    if (status.ok() && mOptions.json.empty()) tellSamplesOnDisk(mOut);
  }

  ReadShotFile readByRules(const std::string& file) {
    if (shotFormatOf(file) != nullptr) return readShotFileBy(ShotReader::kRules, file, mState);
    ReadShotFile refused;
    refused.outcome.status = neitherKind(file);
    return refused;
  }

  /// The reader that was asked for decides about success, and about the warnings to be told.
  void addShot(const std::string& file) {
    const ReadShotFile byRules = readByRules(file);
    const ReadShotFile byStandard = readShotFileBy(ShotReader::kStandard, file, mState);
    const bool standard = mOptions.reader == ShotReader::kStandard;
    const ShotFileOutcome& outcome = standard ? byStandard.outcome : byRules.outcome;
    const std::vector<Message> losses = lostByRules(byRules, byStandard);
    for (const std::string& warning : outcome.warnings) warn(file + ": " + warning);
    if (!standard && !losses.empty()) warnOfLosses(file, losses);
    if (!outcome.status.ok()) mExitCode = failed(outcome.status.message());
    if (shotFormatOf(file) != nullptr || byStandard.outcome.status.ok()) mTellsOfShots = true;
    if (!mOptions.json.empty()) {
      mValues.push_back(shotFileJson(file, byRules, byStandard, losses, mOptions.samples));
    } else if (byRules.outcome.status.ok() || byStandard.outcome.status.ok()) {
      describe(file, byRules, byStandard, mOut);
    }
  }

  template <typename Data, typename ToJson>
  void take(const std::string& file, const Status& status, const Data& data, ToJson toJson) {
    if (!status.ok()) {
      mExitCode = failed(status.message());
      mValues.push_back(unreadableJson(file, status));
    } else if (mOptions.json.empty()) {
      describe(file, data, mOut);
    } else {
      mValues.push_back(toJson());
    }
  }

  const InfoOptions& mOptions;
  std::ostream& mOut;
  SegyState mState;  ///< what the readers of SEG-Y and SU pass on from file to file
  std::vector<std::string> mValues;
  Survey mSurvey;
  bool mTellsOfShots = false;
  int mExitCode = kDone;
};

Status writeHeaders(const std::string& path, TomoDocument document) {
  TraceHeaders headers(std::move(document));
  if (headers.rows() == 0) return Status::failure(path + ": there are no traces");
  std::vector<Message> notes;
  headers.addFieldsOfFiles(notes);
  for (const Message& note : notes) warn(note);
  if (!headers.fieldsLeftOut().empty()) warn(path + ": " + headers.fieldsLeftOut().english());
  return writeTraceHeaders(path, headers);
}

}  // namespace

int run(const InfoOptions& options) {
  std::vector<OutputFile> outputs = {{"--json", options.json}, {"--headers", options.headers}};
  if (!options.surveyed.json.empty()) {
    outputs.push_back({"--positions-json", options.surveyed.json});
  }
  const Channels channels = openChannels(outputs, false);
  std::vector<std::string> inputs = options.files;
  if (!options.surveyed.table.empty()) inputs.push_back(options.surveyed.table);
  const Status places = checkOutputFiles(outputs, inputs);
  if (places.code() == kWrongUsage) return wrongUsage("info", places.message());
  if (!places.ok()) return failed(places.message());

  Inventory inventory(options, *channels.summary);
  for (const std::string& file : options.files) inventory.add(file);
  inventory.joinShots();
  channels.summary->flush();
  int code = inventory.exitCode();
  const bool any = code == kDone || !inventory.survey().document.recordings->traceSets.empty();
  if (!options.headers.empty() && any) {
    const Status written = writeHeaders(options.headers, inventory.survey().document);
    if (!written.ok()) code = failed(written.message());
  }
  if (options.json.empty() || !inventory.hasJson()) return code;
  const Status written = writeOutput(options.json, inventory.json());
  return written.ok() ? code : failed(written.message());
}

}  // namespace talvesk
