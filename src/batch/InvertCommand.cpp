#include "base/TextNumber.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/FittedSection.h"
#include "batch/Images.h"
#include "batch/Interrupt.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "batch/Reports.h"
#include "batch/Resolution.h"
#include "batch/ResultJson.h"
#include "batch/RunList.h"
#include "batch/ShotPicking.h"
#include "export/GriddedText.h"
#include "export/ResidualText.h"
#include "grid/GridBuilder.h"
#include "io/project/projectReader.h"
#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/LeftOut.h"
#include "model/Residuals.h"
#include "model/SurveyFacts.h"
#include "model/TomographyOutcome.h"
#include "session/TableRules.h"
#include "tomo/ForwardPass.h"
#include "tomo/GridPreview.h"

#include <cmath>
#include <iostream>
#include <utility>

namespace talvesk {
namespace {

Status checkDepth(const GridSettings& settings, const SurveyProfile& profile) {
  const std::string depth = formatDouble(settings.maxDepth);
  if (settings.maxDepth > profile.arrayLength) {
    return Status::failure("The depth of " + depth + " m is greater than the array length, " +
                           formatDouble(profile.arrayLength) + " m");
  }
  const GridSize size =
      gridSizeFor(profile.arrayLength, settings.maxDepth, settings.cellSize, settings.nodes);
  if (size.righe > 0) return {};
  return Status::failure("A depth of " + depth + " m with cells of " +
                         formatDouble(settings.cellSize) +
                         " m makes a grid without rows; choose a greater depth or smaller cells");
}

std::vector<std::string> inputsOf(const InvertOptions& options) {
  std::vector<std::string> files = surveyFiles(options.input, options.shots);
  if (!options.constraints.empty() && options.constraints != kProjectsOwn) {
    files.push_back(options.constraints);
  }
  return files;
}

/// A project continues from the grid that it has, as it would in the window.
bool continues(const InvertOptions& options, const TomoDocument& document) {
  return !options.ownGrid && document.model->grid != nullptr &&
         document.model->grid->cellCount() > 0;
}

Status setUpModel(const InvertOptions& options, Survey& survey, Log& log) {
  if (continues(options, survey.document)) return {};
  SurveyProfile profile;
  GridSettings settings = proposeGrid(survey.document, profile, log);
  if (!profile.hasGeometry()) {
    return Status::failure(inputsOf(options).front() +
                           ": no two geophones have different positions");
  }
  if (options.cellSize) settings.cellSize = *options.cellSize;
  if (options.depth) settings.maxDepth = *options.depth;
  settings.nodes = static_cast<std::uint32_t>(options.nodes);
  settings.searches = searchThreads(options.parameters.singleThread, options.parameters.threads);
  Status status = checkDepth(settings, profile);
  if (!status.ok()) return status;
  status = editSurvey(Edit::kGrid, survey,
                      [&](Survey& next) { return setUpGrid(next.document, settings, log); });
  if (!status.ok() || options.layers.empty()) return status;
  status = editSurvey(Edit::kStartingModel, survey, [&](Survey& next) {
    return applyLayers(next.document, options.layers, options.layerFill);
  });
  if (status.ok() || !options.layerFill.spline || !checkSharpLayers(options.layers).ok()) {
    return status;
  }
  return Status::failure(status.message() + " Or keep their jumps with --sharp-layers.");
}

/// What the window would ask about; nobody is there to answer.
void warnAboutChoices(const TomographyParameters& parameters, const TomoDocument& document,
                      bool fits) {
  if (!document.picksComplete()) {
    warn("uncomplete set of picks; the inversion is run anyway");
  }
  if (!fits && parameters.minVelocity > parameters.maxVelocity) {
    warn("the minimum velocity is above the maximum; every cell that changes ends at the maximum");
  }
}

std::string otherCellSizes(const TomoDocument& document) {
  const Grid& grid = *document.model->grid;
  const NearestSizes nearest = reachingCellSizes(
      document.surveyProfile(), {grid.righe() * grid.aLato(), grid.aLato(), grid.nV()});
  std::string sizes;
  for (const std::optional<double>& size : {nearest.smaller, nearest.larger}) {
    if (size) sizes += (sizes.empty() ? "" : " or ") + formatDouble(*size);
  }
  return sizes;
}

/// Names what the grid does not reach before hours are spent without it. Fails when nothing is left
/// to fit the model to.
Status tellWhatIsLeftOut(const TomoDocument& document) {
  const LeftOut left = leftOut(document, findExcluded(document));
  for (const std::string& line : describe(left, document)) warn(line);
  const bool beyond = !left.shotsBeyond.empty() || !left.geophones.empty();
  const std::string sizes = beyond ? otherCellSizes(document) : "";
  if (!sizes.empty()) warn("The nearest cell sizes that reach all: --cell-size " + sizes);
  if (left.picksUsed() > 0) return {};
  return Status::failure("Not a single pick can be used: all " + std::to_string(left.of) +
                         " are of shots or receivers that are left out; nothing was inverted");
}

TomographyParameters parametersOf(const InvertOptions& options, const TomoDocument& document) {
  TomographyParameters parameters = options.parameters;
  parameters.errors = options.fitted.errors;
  parameters.minVelocity = options.minVelocity.value_or(document.model->minVelocity);
  parameters.maxVelocity = options.maxVelocity.value_or(document.model->maxVelocity);
  parameters.externalIterations = options.iterations.value_or(parameters.externalIterations);
  return parameters;
}

TomographyResult invert(const InvertOptions& options, const TomographyParameters& parameters,
                        const Channels& channels, Survey& survey, Log& log) {
  listenForInterrupt(Interruptible::kExternalIterations, !options.quiet);
  Progress progress(channels.progress, std::cerr, parameters.externalIterations);
  TomographyResult result;
  const Status edited = editSurvey(Edit::kInversion, survey, [&](Survey& next) {
    result = runInversion(
        next.document, parameters, log,
        [&](const TomographyProgress& state) { progress.show(state); }, interruptRequested);
    return Status();  // what the completed iterations found is kept with one that failed
  });
  progress.finish();
  if (result.status.ok()) result.status = edited;
  return result;
}

std::string rmsText(const SectionMisfit& misfit) {
  return "RMS [ms] " + formatDouble(misfit.rmse * 1000.0) + "; [%] " +
         formatDouble(misfit.relativeRms * 100.0);
}

/// The misfit of the section that was found, along fresh rays: of all picks as they are, and of
/// what chi-square counts where that is something else.
void summarizeSection(const TomoDocument& document, std::ostream& out) {
  const SectionMisfit misfit = sectionMisfitOf(document);
  if (misfit.count == 0) return;
  const ChiSquare fit = sectionChiSquareOf(document);
  const PickErrorRule rule = errorRuleOf(document);
  out << "Section: " << rmsText(misfit) << "; mean [ms] " << formatDouble(misfit.bias * 1000.0)
      << "; of all " << misfit.count << " picks as they are\n";
  if (!fit.suspects.empty() || fit.shifted) {
    out << "Section" << (fit.suspects.empty() ? "" : " without suspects")
        << (fit.shifted ? " with the time shifts of shots" : "") << ": "
        << rmsText(trustedMisfitOf(document)) << "\n";
  }
  out << "Chi-square: " << formatDouble(fit.chi2) << "; of all picks " << formatDouble(fit.all)
      << "; suspects " << fit.suspects.size() << "; picks without errors of their own [ms] "
      << formatDouble(rule.floor * 1000.0) << " or [%] " << formatDouble(rule.share * 100.0) << "\n"
      << "Largest difference: [ms] " << formatDouble(misfit.maxAbs * 1000.0) << "; shot "
      << misfit.maxShot + 1 << ", receiver " << misfit.maxReceiver + 1 << "\n";
}

void summarizeGrid(const TomoDocument& document, std::ostream& out) {
  const Grid& grid = *document.model->grid;
  out << "Grid: " << grid.righe() << " rows, " << grid.col() << " columns of "
      << formatDouble(grid.aLato()) << " m, " << grid.nV() << " nodes per side\n";
}

void summarizeFitted(const TomoDocument& document, const ReferencedRun& referenced,
                     std::ostream& out) {
  const FittedRunResult& fit = referenced.fit;
  summarizeGrid(document, out);
  summarizeFit(referenced, out);
  if (document.result->certainty) summarizeCertainty(*document.result->certainty, out);
  summarizeSection(document, out);
  out << "Computing time: [s] " << formatDouble(fit.run.computingSeconds) << "\n"
      << "Picks used: " << fit.fit.count << " of "
      << leftOut(document, document.result->excluded).of << std::endl;
}

/// Which iteration the section is of, where it need not be the last.
void summarizeCoarseToFine(const TomographyResult& result, std::ostream& out) {
  if (!result.coarseToFine) return;
  const CoarseToFineResult& all = *result.coarseToFine;
  out << "From coarse to fine: iteration " << all.kept << " of " << result.iterationsDone
      << " is kept, smoothing radius " << all.radii[static_cast<std::size_t>(all.kept) - 1]
      << "; section RMS [ms] without gross errors after each:";
  for (std::size_t i = 1; i < all.sections.size(); ++i) {
    out << ' ' << formatDouble(std::round(all.sections[i].trimmed * 1e6) / 1000.0);
  }
  out << "\n";
}

void summarize(const TomographyParameters& parameters, const TomoDocument& document,
               const TomographyResult& result, std::ostream& out) {
  const Misfit& misfit = result.misfit;
  summarizeGrid(document, out);
  out << "External iterations: " << result.iterationsDone << " of " << parameters.externalIterations
      << (result.stopped ? ", stopped by the user" : "") << "\n";
  summarizeCoarseToFine(result, out);
  summarizeSection(document, out);
  out << "Computing time: [s] " << formatDouble(result.computingSeconds) << "\n"
      << "Last solver pass:\n"
      << "Elapsed time: [s] " << formatDouble(result.elapsedSeconds) << "\n"
      << "RMSE: [ms] " << formatDouble(misfit.rmse * 1000.0) << "; [%] "
      << formatDouble(misfit.relativeRms * 100.0) << "\n"
      << "MaxError: [ms] " << formatDouble(misfit.maxError * 1000.0) << "; [%] "
      << formatDouble(misfit.maxRelativeError * 100.0) << "\n"
      << "Picks used: " << misfit.count << " of " << leftOut(document, document.result->excluded).of
      << std::endl;
}

/// Tries every output: a picture that cannot be drawn must not cost the numbers.
int writeResults(const InvertOptions& options, const LoadedProject& project,
                 const TomographyResult& result, const ReferencedRun* fit,
                 const ResolutionReport* resolution) {
  const TomoDocument& document = project.document;
  OutputAttempts attempt;
  attempt(options.json, [&](const auto& path) {
    return writeOutput(path, inversionJson(document, result, fit, resolution));
  });
  attempt(options.gridded, [&](const auto& path) {
    announceGriddedText(path);
    return writeGriddedText(path, document, {options.lineY, options.zOffset});
  });
  attempt(options.otte, [&](const auto& path) { return writePicks(path, document); });
  attempt(options.residuals,
          [&](const auto& path) { return writeResiduals(path, residualTableOf(document)); });
  attempt(options.project, [&](const auto& path) { return writeProject(path, project); });
  for (const std::string& image : options.images) {
    attempt(image, [&](const auto& path) {
      return writeSectionFigure(document, sectionFigure(options), path);
    });
  }
  attempt(resolution == nullptr || resolution->tests.empty() ? "" : options.resolutionImage,
          [&](const auto& path) { return drawResolution(*resolution, document, path); });
  attempt(options.report, [&](const auto& path) {
    return writeReportFile({document, &*project.interpretation}, options.reportFields,
                           sectionFigure(options), path);
  });
  return attempt.exitCode();
}

}  // namespace

int run(const InvertOptions& options) {
  std::vector<OutputFile> outputs = {{"--gridded", options.gridded},
                                     {"--otte", options.otte},
                                     {"--residuals", options.residuals},
                                     {"--json", options.json},
                                     {"--project", options.project},
                                     {"--report", options.report},
                                     {"--resolution-image", options.resolutionImage}};
  for (const std::string& image : options.images) outputs.push_back({"--image", image});
  const Channels channels = openChannels(outputs, options.quiet, options.verbose);
  const Status places = checkOutputFiles(outputs, inputsOf(options));
  if (places.code() == kWrongUsage) return wrongUsage("invert", places.message());
  if (!places.ok()) return failed(places.message());
  if (!options.images.empty() || !(options.report + options.resolutionImage).empty()) {
    prepareDrawing();
  }

  Log log;
  LoadedProject project;
  TomoDocument& document = project.document;
  PickingManner manner;
  const unsigned threads =
      searchThreads(options.parameters.singleThread, options.parameters.threads);
  manner.threads = threads;
  manner.quiet = options.quiet;
  manner.summary = channels.summary;
  Status status = readSurvey(options.input, options.picks, options.shots, manner, project);
  if (status.ok()) status = checkPicks(document, inputsOf(options));
  if (status.ok() && !options.run.empty()) status = chooseRun(options.run, threads, project, log);
  if (status.ok()) status = takeKnownGround(options, project);
  if (status.ok()) status = setUpModel(options, project, log);
  if (status.ok()) status = tellWhatIsLeftOut(document);
  if (!status.ok()) return failed(status.message());
  const TomographyParameters parameters = parametersOf(options, document);
  const bool fits = options.method == InversionMethod::kFitted;
  if (!options.quiet) warnAboutChoices(parameters, document, fits);

  std::optional<ReferencedRun> fit;
  if (fits) fit = fitSection(options, channels, project, log);
  const TomographyResult result =
      fits ? fit->fit.run : invert(options, parameters, channels, project, log);
  // What the completed iterations found is not lost with the one that failed.
  int runCode = result.status.ok() ? kDone : failed(result.status.message());
  if (fit ? !found(fit->fit) : result.iterationsDone == 0) {
    return runCode != kDone ? runCode
                            : failed("stopped before anything was found; nothing was written");
  }
  if (fit) warnAboutFit(fit->fit);
  warnAboutPicks(document);
  for (const Message& gone : result.runsGone) {
    warn("the list of inversion runs is full; its oldest has gone: " + gone.english());
  }
  if (fit && options.members) {
    const Status sure = findCertainty(options, channels, project);
    if (!sure.ok()) runCode = failed(sure.message());
  }
  std::optional<ResolutionReport> resolution;
  if (options.resolution) resolution = resolve(options, document);
  const int exitCode = writeResults(options, project, result, fit ? &*fit : nullptr,
                                    resolution ? &*resolution : nullptr);
  if (fit) {
    summarizeFitted(document, *fit, *channels.summary);
  } else {
    summarize(parameters, document, result, *channels.summary);
  }
  if (resolution) summarizeResolution(*resolution, *channels.summary);
  if (resolution && !resolution->status.ok()) return failed(resolution->status.message());
  return runCode != kDone ? runCode : exitCode;
}

}  // namespace talvesk
