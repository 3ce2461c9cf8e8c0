#include "base/TextNumber.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/ResultJson.h"
#include "grid/SurveyProfile.h"
#include "io/FileFormats.h"
#include "io/ShotFile.h"
#include "io/TravelTimeFile.h"
#include "model/SurveyFacts.h"

#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

void describe(const std::string& file, const TravelTimeData& data, std::ostream& out) {
  std::vector<Point2D> shots;
  std::size_t geophones = 0;
  std::size_t times = 0;
  std::size_t picks = 0;
  for (const auto& string : data.strings) geophones += string.size();
  for (const TravelTime& record : data.records) {
    shots.push_back(record.shotPos2d);
    times += record.ttMisurati.size();
    picks += pickCount(record);
  }
  const SurveyProfile profile = measureSurvey(data.strings, shots);
  out << asOneLine(file) << "\n  format      " << data.format << "\n  strings     "
      << data.strings.size() << "\n  geophones   " << geophones << "\n  shots       "
      << data.records.size() << "\n  picks       " << picks << " of " << times << " times\n";
  if (profile.hasGeometry()) {
    out << "  spacing     " << formatDouble(profile.minSpacing) << " m (smallest)\n";
  }
  if (!profile.x.empty()) {
    out << "  line        " << formatDouble(profile.minX) << " to " << formatDouble(profile.maxX)
        << " m\n";
  }
}

/// "7", or "7 to 9" where the traces differ.
template <typename ValueOf>
std::string span(const std::vector<ShotRecord>& traces, ValueOf valueOf) {
  double least = valueOf(traces.front());
  double greatest = least;
  for (const ShotRecord& trace : traces) {
    least = std::min(least, valueOf(trace));
    greatest = std::max(greatest, valueOf(trace));
  }
  const std::string text = formatDouble(least);
  return least == greatest ? text : text + " to " + formatDouble(greatest);
}

std::string place(const Point2D& point) {
  return formatDouble(point.x) + " m, elevation " + formatDouble(point.z) + " m";
}

void describe(const std::string& file, const ShotFileData& data, std::ostream& out) {
  out << asOneLine(file) << "\n  format      " << data.format << "\n  traces      "
      << data.traces.size() << '\n';
  if (data.traces.empty()) return;
  out << "  samples     "
      << span(data.traces,
              [](const ShotRecord& t) { return static_cast<double>(t.samples.size()); })
      << "\n  interval    "
      << span(data.traces, [](const ShotRecord& t) { return t.sampleInterval * 1000.0; })
      << " ms\n  delay       "
      << span(data.traces, [](const ShotRecord& t) { return t.delay * 1000.0; })
      << " ms\n  source      " << place(data.traces.front().source) << "\n  receivers   "
      << place(data.traces.front().receiver) << "\n              to "
      << place(data.traces.back().receiver) << '\n';
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

  /// A single file that is no shot file has nothing to say when it cannot be read.
  bool hasJson() const {
    return mExitCode == kDone || mOptions.files.size() > 1 ||
           shotFormatOf(mOptions.files.front()) != nullptr;
  }
  std::string json() const {
    return mOptions.files.size() == 1 ? mValues.front() : jsonArray(mValues);
  }

 private:
  static Status neitherKind(const std::string& file) {
    return Status::failure(file + ": its suffix is not of a travel-time file (" +
                               travelTimeSuffixes() + ") or a shot file (" + shotSuffixes() +
                               ") or a project (.tvsk)",
                           kUnknownSuffix);
  }

  void addTravelTimes(const std::string& file) {
    TravelTimeData data;
    const Status status = readPicks(file, mOptions.picks, data);
    take(file, status, data, [&] { return travelTimesJson(data); });
  }

  void addProject(const std::string& file) {
    LoadedProject project;
    const Status status = readProject(file, project);
    take(file, status, project, [&] { return projectJson(project); });
  }

  void addShot(const std::string& file) {
    ShotFileData data;
    const Status status =
        shotFormatOf(file) != nullptr ? readShotFile(file, mState, data) : neitherKind(file);
    for (const std::string& warning : data.warnings) warn(file + ": " + warning);
    take(file, status, data, [&] { return shotFileJson(data, mOptions.samples); });
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
  int mExitCode = kDone;
};

}  // namespace

int run(const InfoOptions& options) {
  const std::vector<OutputFile> outputs = {{"--json", options.json}};
  const Channels channels = openChannels(outputs, false);
  const Status places = checkOutputFiles(outputs, options.files);
  if (places.code() == kWrongUsage) return wrongUsage("info", places.message());
  if (!places.ok()) return failed(places.message());

  Inventory inventory(options, *channels.summary);
  for (const std::string& file : options.files) inventory.add(file);
  channels.summary->flush();
  if (options.json.empty() || !inventory.hasJson()) return inventory.exitCode();
  const Status written = writeOutput(options.json, inventory.json());
  return written.ok() ? inventory.exitCode() : failed(written.message());
}

}  // namespace talvesk
