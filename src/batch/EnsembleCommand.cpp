#include "base/StreamPlace.h"
#include "base/TextNumber.h"
#include "batch/CertaintyJson.h"
#include "batch/Commands.h"
#include "batch/Diagnostics.h"
#include "batch/Failure.h"
#include "batch/FittedSection.h"
#include "batch/Interrupt.h"
#include "batch/OutputFiles.h"
#include "batch/ProjectFiles.h"
#include "export/CertaintyTable.h"
#include "io/EnsembleFile.h"
#include "io/project/projectReader.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "session/TableRules.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/CertaintyRun.h"
#include "tomo/fitted/SurveyFit.h"

#include <chrono>
#include <ctime>
#include <iostream>
#include <optional>

namespace talvesk {
namespace {

using Clock = std::chrono::steady_clock;

double secondsBetween(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double>(to - from).count();
}

/// What a run of the command has come to.
struct EnsembleRun {
  Status status;
  bool found = false;   ///< a certainty, be it of some members only
  int missing = 0;      ///< members that were asked for and are not done
  int fitted = 0;       ///< members that this run has fitted
  double models = 0.0;  ///< seconds
  double members = 0.0;
  double processor = 0.0;  ///< seconds of all threads, for the members
};

CertaintySettings settingsOf(const EnsembleRunOptions& options, const TomoDocument& document) {
  CertaintySettings settings = certaintySettings(document);
  settings.members = options.members;
  settings.first = options.from - 1;
  settings.threads = options.threads;
  settings.ensemble.seed = static_cast<std::uint64_t>(options.seed);
  settings.ensemble.isovalues = options.isovalues;
  settings.ensemble.vary = options.vary;
  return settings;
}

/// File of finished members; empty: nothing is kept.
std::string keepPlace(const EnsembleRunOptions& options) {
  if (!options.keep.empty()) return options.keep;
  if (options.out.empty() || isStreamPlace(options.out)) return {};
  return options.out + ".members";
}

/// The ensemble with all members that are done, wherever they are kept.
Status gatherMembers(const EnsembleRunOptions& options, const EnsembleKeeper& keeper,
                     std::uint64_t key, Ensemble& ensemble) {
  if (Status status = keeper.load(ensemble); !status.ok()) {
    return Status::failure(status.message() + "; remove it or name another file by --keep");
  }
  for (const std::string& file : options.add) {
    if (Status status = addMembers(file, key, ensemble); !status.ok()) return status;
  }
  return {};
}

EnsembleRun runMembers(const EnsembleRunOptions& options, const Channels& channels,
                       const CertaintySettings& settings, EnsembleKeeper& keeper, Survey& survey) {
  listenForInterrupt(Interruptible::kAtOnce, !options.quiet);
  EnsembleRun run;
  Progress progress(channels.progress, std::cerr);
  run.status = editSurvey(Edit::kCertainty, survey, [&](Survey& next) {
    const TomoDocument& document = next.document;
    const std::unique_ptr<Ensemble> ensemble = resumedEnsemble(document, settings);
    const std::uint64_t key = ensembleKey(document, settings);
    Status status = gatherMembers(options, keeper, key, *ensemble);
    if (!status.ok()) return status;
    const int before = ensemble->done();
    const Clock::time_point begin = Clock::now();
    std::optional<Clock::time_point> fitted;
    std::clock_t processor = std::clock();
    Certainty certainty;
    status = runCertainty(
        *ensemble, document, settings, certainty,
        [&](const EnsembleProgress& state) {
          if (!fitted && state.models == state.ofModels) {
            fitted = Clock::now();
            processor = std::clock();
          }
          progress.show(state);
          keeper.keep(*ensemble);
        },
        interruptRequested);
    const Clock::time_point end = Clock::now();
    run.missing = static_cast<int>(ensemble->openOf(settings.range()).size());
    run.fitted = ensemble->done() - before;
    run.models = secondsBetween(begin, fitted.value_or(end));
    run.members = secondsBetween(fitted.value_or(end), end);
    run.processor = static_cast<double>(std::clock() - processor) / CLOCKS_PER_SEC;
    if (ensemble->done() > 0) {
      const Status kept = keeper.save(*ensemble);
      if (!kept.ok()) warn("finished members are not kept: " + kept.message());
    }
    run.found = status.ok() && ensemble->fits() != nullptr && certainty.members > 0;
    if (run.found) next.document.result.edit().certainty = std::move(certainty);
    return status;
  });
  progress.finish();
  return run;
}

template <typename Value, typename Text>
Json namesOf(const std::vector<Value>& values, Text text) {
  Json list = Json::array();
  for (const Value value : values) list.push_back(text(value));
  return list;
}

Json variationJson(const EnsembleVariation& vary) {
  Json json = Json::object();
  const auto flag = [](bool value) { return value; };
  if (!vary.smoothing.empty()) json["smoothing"] = vary.smoothing;
  if (!vary.blocky.empty()) json["blocky"] = namesOf(vary.blocky, flag);
  if (!vary.robust.empty()) json["robust"] = namesOf(vary.robust, flag);
  if (!vary.statics.empty()) json["statics"] = namesOf(vary.statics, flag);
  return json;
}

std::string ensembleJson(const EnsembleRunOptions& options, const TomoDocument& document,
                         const EnsembleRun& run) {
  const Grid& grid = *document.model->grid;
  Json size = Json::object();
  size["righe"] = grid.righe();
  size["col"] = grid.col();
  size["nV"] = grid.nV();
  size["aLato"] = grid.aLato();
  size["x_offset"] = document.model->xOffset;
  Json json = Json::object();
  json["grid"] = std::move(size);
  json["from"] = options.from;
  json["to"] = options.members;
  json["missing"] = run.missing;
  json["vary"] = variationJson(options.vary);
  json["fitted_now"] = run.fitted;
  json["models_s"] = run.models;
  json["members_s"] = run.members;
  json["members_cpu_s"] = run.processor;
  json["certainty"] = certaintyJson(document);
  return linePerKey(json) + "\n";
}

int writeResults(const EnsembleRunOptions& options, const LoadedProject& project,
                 const EnsembleRun& run) {
  const TomoDocument& document = project.document;
  OutputAttempts attempt;
  attempt(options.json, [&](const auto& path) {
    return writeOutput(path, ensembleJson(options, document, run));
  });
  attempt(options.table, [&](const auto& path) { return writeCertaintyTable(path, document); });
  attempt(options.depths, [&](const auto& path) { return writeDepthTable(path, document); });
  attempt(options.out, [&](const auto& path) { return writeProject(path, project); });
  return attempt.exitCode();
}

/// Where finished members are once the outputs are written: in the project, unless it cannot hold
/// them or its writing has failed.
void settleKeeping(const EnsembleRunOptions& options, const TomoDocument& document,
                   const EnsembleRun& run, bool written, EnsembleKeeper& keeper) {
  const std::string place = keepPlace(options);
  if (place.empty() || !options.keep.empty() || run.missing > 0 || !written) return;
  if (document.result->certainty->state != nullptr) {
    keeper.remove();
  } else {
    warn("the finished members are more than a project holds; they stay in " + place +
         ", from which the same command goes on with more of them");
  }
}

void summarize(const EnsembleRun& run, const TomoDocument& document, std::ostream& out) {
  for (const CertaintyModel& model : document.result->certainty->models) {
    out << "Model: " << model.name << ", chi-square " << formatDouble(model.chi2, 4) << ", members "
        << model.members << "\n";
  }
  summarizeCertainty(*document.result->certainty, out);
  out << "Computing time: [s] models " << formatDouble(run.models, 4) << ", " << run.fitted
      << (run.fitted == 1 ? " member " : " members ") << formatDouble(run.members, 4) << std::endl;
}

}  // namespace

int run(const EnsembleRunOptions& options) {
  const std::string place = keepPlace(options);
  const std::vector<OutputFile> outputs = {{"--out", options.out},
                                           {"--json", options.json},
                                           {"--table", options.table},
                                           {"--depths", options.depths},
                                           {"--keep", place}};
  const Channels channels = openChannels(outputs, options.quiet);
  std::vector<std::string> inputs = options.add;
  inputs.push_back(options.project);
  const Status places = checkOutputFiles(outputs, inputs);
  if (places.code() == kWrongUsage) return wrongUsage("ensemble", places.message());
  if (!places.ok()) return failed(places.message());

  LoadedProject project;
  TomoDocument& document = project.document;
  Status status = readProject(options.project, project);
  if (status.ok()) status = checkTraceable(document);
  if (status.ok() && picksToFit(document, {}).picks.empty()) {
    status = Status::failure(options.project + ": its section has no picks that it could explain");
  }
  if (!status.ok()) return failed(status.message());
  const CertaintySettings settings = settingsOf(options, document);
  EnsembleKeeper keeper(place, ensembleKey(document, settings));
  const EnsembleRun run = runMembers(options, channels, settings, keeper, project);
  if (!run.status.ok()) return failed(run.status.message());
  const std::string goOn =
      place.empty() ? "" : "; the same command goes on from there, by " + place;
  if (!run.found) {
    return failed("stopped before the first member was done; nothing was written");
  }
  if (document.result->certainty->members < 2 && options.writesResults()) {
    return failed(
        "only one member counts, which does not tell how sure the section is; nothing "
        "was written" +
        goOn);
  }
  warnAboutCertainty(document);
  if (run.missing > 0) {
    warn("How sure the section is rests on " +
         std::to_string(options.members - options.from + 1 - run.missing) + " of " +
         std::to_string(options.members - options.from + 1) + " members: stopped by the user" +
         goOn);
  }
  const int exitCode = writeResults(options, project, run);
  settleKeeping(options, document, run, exitCode == kDone, keeper);
  summarize(run, document, *channels.summary);
  return exitCode;
}

}  // namespace talvesk
