#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/OutputFiles.h"
#include "io/TravelTimeData.h"
#include "io/TravelTimeFile.h"
#include "model/TomoDocument.h"

#include <ostream>
#include <utility>

namespace talvesk {

int run(const ConvertOptions& options) {
  const std::vector<OutputFile> outputs = {{"OUT", options.output}};
  const Channels channels = openChannels(outputs, options.quiet);
  const Status places = checkOutputFiles(outputs, {options.input});
  if (places.code() == kWrongUsage) return wrongUsage("convert", places.message());
  if (!places.ok()) return failed(places.message());

  TravelTimeData data;
  Status status = readPicks(options.input, data);
  TomoDocument document;
  if (status.ok()) status = importTravelTimes(std::move(data), document);
  if (status.ok()) status = writeTravelTimes(options.output, document);
  if (!status.ok()) return failed(status.message());
  *channels.summary << "Wrote " << options.output << ": " << document.ttArray.size() << " shots"
                    << std::endl;
  return kDone;
}

}  // namespace talvesk
