#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "model/TomoDocument.h"

#include <ostream>
#include <vector>

namespace talvesk {

int run(const ConvertOptions& options) {
  const std::vector<OutputFile> outputs = {{"OUT", options.output}};
  const Channels channels = openChannels(outputs, options.quiet);
  const Status places = checkOutputFiles(outputs, {options.input});
  if (places.code() == kWrongUsage) return wrongUsage("convert", places.message());
  if (!places.ok()) return failed(places.message());

  TravelTimeData data;
  std::vector<Message> losses;
  Status status = readPicks(options.input, options.picks, data);
  if (status.ok()) status = writeTravelTimes(options.output, data, losses);
  if (!status.ok()) return failed(status.message());
  for (const std::string& loss : losses) warn(options.output + ": " + loss);
  *channels.summary << "Wrote " << options.output << ": " << data.records.size() << " shots"
                    << std::endl;
  return kDone;
}

}  // namespace talvesk
