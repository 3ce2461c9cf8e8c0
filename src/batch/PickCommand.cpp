#include "base/Console.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/Images.h"
#include "batch/OutputFiles.h"
#include "batch/ResultJson.h"
#include "batch/ShotPicking.h"

#include <sstream>

namespace talvesk {
namespace {

/// The writer tells the console of surveys that its format cannot hold.
Status writePicks(const PickOptions& options, const TomoDocument& document) {
  std::ostringstream remarks;
  std::ostream& before = console::error();
  console::setError(remarks);
  const Status status = writeTravelTimes(options.otte, document);
  console::setError(before);
  if (status.ok() && !options.quiet && !remarks.str().empty()) warn(remarks.str());
  return status;
}

}  // namespace

int run(const PickOptions& options) {
  const Channels channels =
      openChannels(options.json == kStandardOutput, options.quiet, options.verbose);
  std::vector<OutputFile> outputs = {{"--otte", options.otte}, {"--json", options.json}};
  for (const std::string& image : options.images) outputs.push_back({"--image", image});
  const Status places = checkOutputFiles(outputs, filesOf(options.shots));
  if (places.code() == kWrongUsage) return wrongUsage("pick", places.message());
  if (!places.ok()) return failed(places.message());
  if (!options.images.empty()) prepareDrawing();

  TomoDocument document;
  PickingManner manner;
  manner.quiet = options.quiet;
  manner.verbose = options.verbose;
  manner.summary = channels.summary;
  Status status = pickShotFiles(options.shots, manner, document);
  if (status.ok()) status = checkPicks(document, options.shots.files);
  if (status.ok()) status = writePicks(options, document);
  if (!status.ok()) return failed(status.message());

  int exitCode = kDone;
  if (!options.json.empty()) {
    const std::string filter = nameOf(options.shots.filter);
    status = writeOutput(options.json, picksJson(document, filter));
    if (!status.ok()) exitCode = failed(status.message());
  }
  for (const std::string& image : options.images) {
    status = drawGathers(document, options.shots.filter != PickFilter::kNone, image);
    if (!status.ok()) exitCode = failed(status.message());
  }
  return exitCode;
}

}  // namespace talvesk
