#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "batch/SurveyedPlaces.h"
#include "io/Survey.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"

#include <ostream>
#include <vector>

namespace talvesk {

int run(const ConvertOptions& options) {
  std::vector<OutputFile> outputs = {{"OUT", options.output}};
  std::vector<std::string> inputs = {options.input};
  const SurveyedPlaceOptions& surveyed = options.surveyed;
  if (!surveyed.json.empty()) outputs.push_back({"--positions-json", surveyed.json});
  if (!surveyed.table.empty()) inputs.push_back(surveyed.table);
  const Channels channels = openChannels(outputs, options.quiet);
  const Status places = checkOutputFiles(outputs, inputs);
  if (places.code() == kWrongUsage) return wrongUsage("convert", places.message());
  if (!places.ok()) return failed(places.message());

  TravelTimeData data;
  std::vector<Message> losses;
  Status status = readPicks(options.input, options.picks, data);
  Survey survey;
  if (status.ok()) status = placeBySurvey(surveyed, inputs, *channels.summary, data, survey);
  if (status.ok()) status = writeTravelTimes(options.output, data, losses);
  if (!status.ok()) return failed(status.message());
  for (const std::string& loss : losses) warn(options.output + ": " + loss);
  if (survey.document.map->geoCoord_isSet) {
    warn(options.output +
         ": such a file does not hold the place of the line on the map; a project does");
  }
  *channels.summary << "Wrote " << options.output << ": " << data.records.size() << " shots"
                    << std::endl;
  return kDone;
}

}  // namespace talvesk
