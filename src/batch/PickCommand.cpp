#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/Images.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/ReciprocityText.h"
#include "batch/ResultJson.h"
#include "batch/ShotPicking.h"
#include "io/project/projectReader.h"

namespace talvesk {
namespace {

/// Tries every output: a picture that cannot be drawn must not cost the picks.
int writeResults(const PickOptions& options, const LoadedProject& project,
                 const doctor::ReciprocityTable& reciprocity) {
  const TomoDocument& document = project.document;
  OutputAttempts attempt;
  attempt(options.otte, [&](const auto& path) { return writePicks(path, document); });
  attempt(options.sgt, [&](const auto& path) { return writePicksWithErrors(path, document); });
  attempt(options.project, [&](const auto& path) { return writeProject(path, project); });
  attempt(options.json, [&](const auto& path) {
    return writeOutput(path, picksJson(document, nameOf(options.shots.filter), reciprocity));
  });
  if (!options.images.empty()) warnOfOffsets(document, options.manner);
  for (const std::string& image : options.images) {
    const bool filtered = options.shots.filter != PickFilter::kNone;
    attempt(image, [&](const auto& path) {
      return options.sheetRows == 0
                 ? drawGathers(document, filtered, options.manner, path)
                 : drawGatherSheets(document, filtered, options.manner, options.sheetRows,
                                    options.sheetColumns, path);
    });
  }
  return attempt.exitCode();
}

}  // namespace

int run(const PickOptions& options) {
  std::vector<OutputFile> outputs = {{"--otte", options.otte},
                                     {"--sgt", options.sgt},
                                     {"--json", options.json},
                                     {"--project", options.project}};
  for (const std::string& image : options.images) outputs.push_back({"--image", image});
  const Channels channels = openChannels(outputs, options.quiet, options.verbose);
  const Status places = checkOutputFiles(outputs, filesOf(options.shots));
  if (places.code() == kWrongUsage) return wrongUsage("pick", places.message());
  if (!places.ok()) return failed(places.message());
  if (!options.images.empty()) prepareDrawing();

  LoadedProject project;
  PickingManner manner;
  manner.quiet = options.quiet;
  manner.summary = channels.summary;
  Status status = pickShotFiles(options.shots, manner, project);
  if (status.ok()) status = checkPicks(project.document, options.shots.files);
  if (!status.ok()) return failed(status.message());
  const doctor::ReciprocityTable reciprocity = doctor::reciprocityOf(project.document);
  tellReciprocity(reciprocity, project.document, *channels.summary);
  channels.summary->flush();
  return writeResults(options, project, reciprocity);
}

}  // namespace talvesk
