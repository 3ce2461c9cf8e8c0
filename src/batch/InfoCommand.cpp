#include "base/TextNumber.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "batch/ResultJson.h"
#include "grid/SurveyProfile.h"

#include <algorithm>
#include <ostream>

namespace talvesk {
namespace {

std::size_t pickCount(const TravelTime& record) {
  return static_cast<std::size_t>(
      std::count_if(record.ttMisurati.begin(), record.ttMisurati.end(), hasPick));
}

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
  out << file << "\n  format      " << data.format << "\n  strings     " << data.strings.size()
      << "\n  geophones   " << geophones << "\n  shots       " << data.records.size()
      << "\n  picks       " << picks << " of " << times << " times\n";
  if (profile.hasGeometry()) {
    out << "  spacing     " << formatDouble(profile.minSpacing) << " m (smallest)\n";
  }
  if (!profile.x.empty()) {
    out << "  line        " << formatDouble(profile.minX) << " to " << formatDouble(profile.maxX)
        << " m\n";
  }
}

}  // namespace

int run(const InfoOptions& options) {
  const Channels channels = openChannels(false);
  const Status places = checkOutputFiles({{"--json", options.json}}, options.files);
  if (places.code() == kWrongUsage) return wrongUsage("info", places.message());
  if (!places.ok()) return failed(places.message());

  int exitCode = kDone;
  std::vector<std::string> values;
  for (const std::string& file : options.files) {
    TravelTimeData data;
    const Status status = readPicks(file, data, false);
    if (!status.ok()) {
      exitCode = failed(status.message());
      values.push_back(unreadableJson(file, status.message()));
    } else if (options.json.empty()) {
      describe(file, data, *channels.summary);
    } else {
      values.push_back(travelTimesJson(data));
    }
  }
  channels.summary->flush();
  if (options.json.empty()) return exitCode;
  const bool single = options.files.size() == 1;
  if (single && exitCode != kDone) return exitCode;
  const Status written = writeOutput(options.json, single ? values.front() : jsonArray(values));
  return written.ok() ? exitCode : failed(written.message());
}

}  // namespace talvesk
