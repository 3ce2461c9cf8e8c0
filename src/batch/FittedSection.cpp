#include "batch/FittedSection.h"

#include "base/Log.h"
#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/Interrupt.h"
#include "batch/ProjectFiles.h"
#include "io/KnownGroundFile.h"
#include "io/Survey.h"
#include "io/project/projectReader.h"
#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "model/TomographyOutcome.h"
#include "numerics/Medians.h"
#include "session/TableRules.h"
#include "tomo/SecondLook.h"
#include "tomo/fitted/CertaintyRun.h"
#include "view/SectionCertainty.h"

#include <cmath>
#include <iostream>

namespace talvesk {
namespace {

constexpr std::size_t kMostSuspectsNamed = 12;

FittedSettings settingsOf(const InvertOptions& options) {
  FittedSettings settings = options.fitted;
  settings.reference = options.reference;
  settings.holdKnown = !options.constraints.empty();
  settings.singleThread = options.parameters.singleThread;
  settings.threads = options.parameters.threads;
  FittedOptions& fit = settings.fit;
  fit.minVelocity = options.minVelocity.value_or(fit.minVelocity);
  fit.maxVelocity = options.maxVelocity.value_or(fit.maxVelocity);
  fit.mostIterations = options.iterations.value_or(fit.mostIterations);
  return settings;
}

/// Adds the models that are not of the picks to what a fit may start from.
Status addGiven(const InvertOptions& options, const Survey& survey, FittedSettings& settings) {
  const std::optional<GivenModel> layers =
      layersModel(survey.interpretation->refractData, survey.document);
  if (layers) settings.given.push_back(*layers);
  if (!isProjectFile(options.reference)) return {};
  LoadedProject project;
  const Status status = readProject(options.reference, project);
  if (!status.ok()) return status;
  const std::shared_ptr<const Grid> grid = project.document.model->grid;
  if (grid == nullptr || grid->cellCount() == 0) {
    return Status::failure(options.reference + ": the project has no section to start from");
  }
  settings.given.push_back(sectionModel(project.document, survey.document));
  settings.reference = keyOf(ReferenceKind::kFile);
  return {};
}

std::string inMilliseconds(double seconds) {
  return formatDouble(std::round(seconds * 1e5) / 100.0 + 0.0);  // no -0
}

std::string threeDigits(double value) {
  return Message::number(value, 3).english();
}

/// "shot 3, receiver 7 late by 21.3 ms".
std::string nameOf(const SuspectPick& pick) {
  return "shot " + std::to_string(pick.record + 1) + ", receiver " +
         std::to_string(pick.receiver + 1) + (pick.residual < 0.0 ? " late by " : " early by ") +
         inMilliseconds(std::fabs(pick.residual)) + " ms";
}

/// What the section does not go with, and what the grid could not hold.
void warnAboutKnown(const KnownFit& known) {
  for (const Message& unused : known.unused) warn(unused);
  for (const KnownFit::Departure& each : known.missed()) {
    warn("the section does not go with known ground: " + each.name.english() + ", off by " +
         threeDigits(each.inErrors) + " of its errors");
  }
}

}  // namespace

Status takeKnownGround(const InvertOptions& options, Survey& survey) {
  const bool fits = options.method == InversionMethod::kFitted;
  if (options.constraints.empty()) {
    if (fits && !survey.document.known->empty()) {
      warn(
          "the project knows of ground that the section is not held to; --constraints project "
          "holds it");
    }
    return {};
  }
  if (options.constraints == kProjectsOwn) {
    return survey.document.known->empty()
               ? Status::failure(options.input + ": it knows of no ground to hold the section to")
               : Status();
  }
  return editSurvey(Edit::kKnownGround, survey, [&](Survey& next) {
    return readKnownGround(options.constraints, next.document.known.edit());
  });
}

ReferencedRun fitSection(const InvertOptions& options, const Channels& channels, Survey& survey,
                         Log& log) {
  listenForInterrupt(Interruptible::kAtOnce, !options.quiet);
  FittedSettings settings = settingsOf(options);
  ReferencedRun run;
  run.fit.run.status = addGiven(options, survey, settings);
  if (!run.fit.run.status.ok()) return run;
  Progress progress(channels.progress, std::cerr);
  const Grid& grid = *survey.document.model->grid;
  progress.begin("Tracing the models that it can start from through " +
                 std::to_string(grid.righe()) + " rows and " + std::to_string(grid.col()) +
                 " columns of cells");
  const Status edited = editSurvey(Edit::kInversion, survey, [&](Survey& next) {
    run = fitFromReference(
        next.document, settings, log, [&](const FittedRunProgress& state) { progress.show(state); },
        interruptRequested);
    return run.fit.run.status;
  });
  progress.finish();
  if (run.fit.run.status.ok()) run.fit.run.status = edited;
  return run;
}

void warnAboutCertainty(const TomoDocument& document) {
  if (!document.result->certainty || document.model->grid == nullptr) return;
  const CertaintyNote note = certaintyNoteOf(document);
  if (note.picksChanged) {
    warn("how sure the section is was found out with other picks than there are now");
  }
  if (!note.fits()) {
    warn("the certainty is that of other sections: this one lies beyond two deviations in " +
         shortNumber(note.percentBeyond) + " % of the cells with rays");
  }
}

Status findCertainty(const InvertOptions& options, const Channels& channels, Survey& survey) {
  if (interruptRequested()) {
    warn("How sure the section is was not found out: stopped before");
    return {};
  }
  const FittedSettings fitted = settingsOf(options);
  CertaintySettings settings;
  settings.members = *options.members;
  settings.errors = fitted.errors;
  settings.holdKnown = fitted.holdKnown;
  settings.singleThread = fitted.singleThread;
  settings.threads = fitted.threads;
  settings.ensemble = {fitted.fit, static_cast<std::uint64_t>(options.seed), options.isovalues, {}};
  Progress progress(channels.progress, std::cerr);
  int done = 0;
  Status status = editSurvey(Edit::kCertainty, survey, [&](Survey& next) {
    TomographyOutcome& outcome = next.document.result.edit();
    const std::unique_ptr<Ensemble> ensemble = ensembleOf(next.document, settings);
    Certainty certainty;
    const Status run = runCertainty(
        *ensemble, next.document, settings, certainty,
        [&](const EnsembleProgress& state) { progress.show(state); }, interruptRequested);
    done = ensemble->done();
    if (run.ok() && certainty.members > 0) outcome.certainty = std::move(certainty);
    return run;
  });
  progress.finish();
  warnAboutCertainty(survey.document);
  if (status.ok() && done < settings.members) {
    warn("How sure the section is rests on " + std::to_string(done) + " of " +
         std::to_string(settings.members) + " members: stopped by the user");
  }
  return status;
}

void warnAboutFit(const FittedRunResult& fit) {
  const bool told = fit.end == FitEnd::kTarget || fit.end == FitEnd::kStopped;
  if (!told || !fit.lateShots.empty()) warn(fit.outcome);
  if (fit.known) warnAboutKnown(*fit.known);
}

void warnAboutPicks(const TomoDocument& document) {
  if (const std::size_t raised = raisedErrors(document); raised > 0) {
    const std::string least = formatDouble(kLeastPickError * 1000.0);
    warn(std::to_string(raised) + " picks state errors below " + least + " ms; they count as " +
         least + " ms");
  }
  const std::vector<SuspectPick> suspects = suspectsOf(document);
  if (suspects.empty()) return;
  const ChiSquare fit = sectionChiSquareOf(document);
  std::string text = std::to_string(suspects.size()) + " of " + std::to_string(fit.count) +
                     " picks are suspect and left out of chi-square, off by more than " +
                     threeDigits(fit.limit) + " of their errors: ";
  for (std::size_t i = 0; i < suspects.size() && i < kMostSuspectsNamed; ++i) {
    text += (i > 0 ? "; " : "") + nameOf(suspects[i]);
  }
  if (suspects.size() > kMostSuspectsNamed) {
    text += " and " + std::to_string(suspects.size() - kMostSuspectsNamed) +
            " more, all of which --json names";
  }
  warn(text);
}

void summarizeFit(const ReferencedRun& run, std::ostream& out) {
  const FittedRunResult& fit = run.fit;
  out << fit.outcome << "\n";
  for (const ReferenceModel& model : run.references.models) {
    const bool taken = keyOf(model.kind) == fit.reference;
    out << (taken ? "Started from: " : "Not from: ") << model.name << ", " << model.description
        << ", chi-square " << threeDigits(model.fit.chi2) << "\n";
  }
  for (const Message& refused : run.references.refused) out << "Not from: " << refused << "\n";
  out << "Iterations: " << fit.run.iterationsDone
      << (fit.run.stopped ? ", stopped by the user" : "") << "; kept " << fit.kept << "\n";
  if (fit.known) {
    out << "Known ground: " << fit.known->all.size() << " conditions, RMS in their errors "
        << threeDigits(fit.known->rms()) << "; beyond " << KnownFit::kHonoured << " errors "
        << fit.known->missed().size() << "; fixed cells " << fit.known->fixedCells << "\n";
  }
  if (fit.statics.empty()) return;
  out << "Time shifts of shots: [ms]";
  for (const double shift : fit.statics) {
    out << ' ' << (std::isfinite(shift) ? inMilliseconds(shift) : "-");
  }
  out << "\n";
}

void summarizeCertainty(const Certainty& certainty, std::ostream& out) {
  std::vector<double> spreads;
  for (std::size_t cell = 0; cell < certainty.touched.size(); ++cell) {
    if (certainty.touched[cell] > 0) spreads.push_back(certainty.spread(cell));
  }
  out << "Certainty: " << certainty.members << " members";
  if (certainty.leftOut > 0) out << ", " << certainty.leftOut << " left out";
  out << "; spread where rays pass [%] " << formatDouble(medianOf(spreads, 0.0), 3) << "\n";
}

}  // namespace talvesk
