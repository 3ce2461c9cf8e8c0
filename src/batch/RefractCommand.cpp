#include "base/TextNumber.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/Images.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/RefractionJson.h"
#include "batch/Reports.h"
#include "batch/ShotPicking.h"
#include "batch/StartModel.h"
#include "figures/RefractionFigure.h"
#include "io/LayerFile.h"
#include "io/project/projectReader.h"
#include "model/TomographyOutcome.h"
#include "refraction/Branches.h"
#include "refraction/BuildProfiles.h"
#include "refraction/LayerProposal.h"
#include "refraction/Profile.h"
#include "session/TableRules.h"
#include "tomo/RayRecomputation.h"
#include "view/RefractorLines.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;

Status markLayers(const RefractOptions& options, const TomoDocument& document,
                  const std::vector<ShotArrivals>& shots, Interpretation& interpretation) {
  fitToSurvey(document, interpretation);
  if (options.layers.empty()) {
    if (hasMarks(interpretation.ttLayer)) return {};  // those of the project
    interpretation.ttLayer = proposeLayers(shots, interpretation.ttLayer);
    return {};
  }
  LayerMarks marks;
  const Status status = readLayerMarks(options.layers, document, marks);
  if (!status.ok()) return status;
  for (std::size_t shot = 0; shot < marks.size(); ++shot) {
    interpretation.ttLayer[shot].layer = std::move(marks[shot]);
  }
  return {};
}

ProfileOutcome interpret(const RefractOptions& options, const std::vector<ShotArrivals>& shots,
                         Interpretation& interpretation) {
  if (options.xy) {
    chooseXY(interpretation, 2, *options.xy);
    chooseXY(interpretation, 3, *options.xy);
  }
  return buildProfiles(shots, interpretation);
}

std::string reasonOf(const ProfileOutcome& outcome, const ShotPairReach& reach) {
  if (outcome.warnings.empty()) return "there is nothing to build a profile of";
  const RefractionWarning& last = outcome.warnings.back();
  if (last.kind != RefractionWarning::Kind::kNoShotPair) return last.text();
  if (!reach.hasShots()) return last.text() + ": no shot has picks of layer 2";
  return last.text() + ": shots with picks of layer 2 reach from " + formatDouble(reach.firstShot) +
         " to " + formatDouble(reach.lastShot) + " m, but geophones from " +
         formatDouble(reach.firstReceiver) + " to " + formatDouble(reach.lastReceiver) + " m";
}

std::string rangeOf(const std::vector<double>& values, const std::string& unit) {
  std::vector<double> known;
  std::copy_if(values.begin(), values.end(), std::back_inserter(known),
               [](double value) { return std::isfinite(value); });
  if (known.empty()) return "unknown";
  const auto ends = std::minmax_element(known.begin(), known.end());
  return formatDouble(*ends.first, 4) + " to " + formatDouble(*ends.second, 4) + ' ' + unit;
}

void summarize(const Interpretation& interpretation, std::ostream& out) {
  const auto& results = interpretation.refractData;
  out << "Layer 1: "
      << (std::isfinite(results.v1) ? formatDouble(results.v1, 4) + " m/s" : "no velocity") << '\n';
  for (std::size_t i = 0; i < results.cData.size(); ++i) {
    const computedData& refractor = results.cData[i];
    out << "Layer " << i + 2 << ": shots " << interpretation.phnt_A[i].shotID + 1 << " and "
        << interpretation.phnt_R[i].shotID + 1 << ", " << refractor.x.size()
        << " receivers, velocity " << rangeOf(refractor.velocity, "m/s") << ", depth "
        << rangeOf(refractor.depth, "m") << '\n';
  }
  out.flush();
}

/// Tries every output: a picture that cannot be drawn must not cost the numbers.
int writeResults(const RefractOptions& options, const LoadedProject& project,
                 const std::vector<RefractionWarning>& warnings) {
  const TomoDocument& document = project.document;
  const Interpretation& interpretation = *project.interpretation;
  OutputAttempts attempt;
  attempt(options.json, [&](const auto& path) {
    return writeOutput(path, refractionJson(interpretation, warnings));
  });
  attempt(options.table, [&](const auto& path) {
    return writeOutput(path, profileTable(interpretation.refractData));
  });
  attempt(options.project, [&](const auto& path) { return writeProject(path, project); });
  for (const std::string& image : options.images) {
    attempt(image, [&](const auto& path) {
      return writeRefractionFigure(document, interpretation.refractData, {}, path);
    });
  }
  attempt(options.report, [&](const auto& path) {
    return writeReportFile({document, &interpretation}, options.reportFields,
                           sectionFigureOptions(project.section, project.palettes->current(),
                                                refractorLines(interpretation)),
                           path);
  });
  return attempt.exitCode();
}

std::vector<OutputFile> outputsOf(const RefractOptions& options) {
  std::vector<OutputFile> outputs = {{"--json", options.json},
                                     {"--table", options.table},
                                     {"--project", options.project},
                                     {"--report", options.report}};
  for (const std::string& image : options.images) outputs.push_back({"--image", image});
  return outputs;
}

std::vector<std::string> inputsOf(const RefractOptions& options) {
  std::vector<std::string> inputs = surveyFiles(options.input, options.shots);
  if (!options.layers.empty()) inputs.push_back(options.layers);
  return inputs;
}

/// The section of a project is drawn in a report, and its rays are not in the project.
Status prepareReport(const RefractOptions& options, TomoDocument& document) {
  if (options.report.empty() || !document.result->has_tomographic_info) return {};
  Log log;
  return recomputeRays(document, log);
}

}  // namespace

int run(const RefractOptions& options) {
  const std::vector<OutputFile> outputs = outputsOf(options);
  const Channels channels = openChannels(outputs, options.quiet, options.verbose);
  const Status places = checkOutputFiles(outputs, inputsOf(options));
  if (places.code() == kWrongUsage) return wrongUsage("refract", places.message());
  if (!places.ok()) return failed(places.message());
  if (!options.images.empty() || !options.report.empty()) prepareDrawing();

  LoadedProject project;
  TomoDocument& document = project.document;
  PickingManner manner;
  manner.quiet = options.quiet;
  manner.summary = channels.summary;
  Status status = readSurvey(options.input, options.picks, options.shots, manner, project);
  if (!status.ok()) return failed(status.message());
  if (!options.quiet && !document.picksComplete()) {
    warn("uncomplete set of picks; the interpretation is run anyway");
  }

  const std::vector<ShotArrivals> shots = shotArrivals(document);
  ProfileOutcome outcome;
  status = editSurvey(Edit::kRefraction, project, [&](Survey& next) {
    Interpretation& work = next.interpretation.edit();
    Status marked = markLayers(options, document, shots, work);
    if (marked.ok()) outcome = interpret(options, shots, work);
    return marked;
  });
  if (!status.ok()) return failed(status.message());
  const Interpretation& interpretation = *project.interpretation;
  if (!outcome.built) {
    return failed(reasonOf(outcome, shotPairReach(shots, interpretation.ttLayer, 2)));
  }
  // What is left out or replaced is told even who wants to hear nothing else.
  for (const RefractionWarning& warning : outcome.warnings) warn(warning.text());
  if (options.startModel) {
    status = putStartModel(*options.startModel, project);
    if (!status.ok()) return failed(status.message());
  }
  status = prepareReport(options, document);
  if (!status.ok()) return failed(status.message());
  const int exitCode = writeResults(options, project, outcome.warnings);
  summarize(interpretation, *channels.summary);
  return exitCode;
}

}  // namespace talvesk
