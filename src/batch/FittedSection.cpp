#include "batch/FittedSection.h"

#include "base/Log.h"
#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/Interrupt.h"
#include "io/Survey.h"
#include "model/TomographyOutcome.h"
#include "numerics/Medians.h"
#include "session/TableRules.h"
#include "tomo/fitted/CertaintyRun.h"

#include <cmath>
#include <iostream>

namespace talvesk {
namespace {

constexpr std::size_t kMostSuspectsNamed = 12;

FittedSettings settingsOf(const InvertOptions& options) {
  FittedSettings settings = options.fitted;
  settings.reference = options.reference;
  settings.singleThread = options.parameters.singleThread;
  FittedOptions& fit = settings.fit;
  fit.minVelocity = options.minVelocity.value_or(fit.minVelocity);
  fit.maxVelocity = options.maxVelocity.value_or(fit.maxVelocity);
  fit.mostIterations = options.iterations.value_or(fit.mostIterations);
  return settings;
}

std::string inMilliseconds(double seconds) {
  return formatDouble(std::round(seconds * 1e5) / 100.0);
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

}  // namespace

ReferencedRun fitSection(const InvertOptions& options, const Channels& channels, Survey& survey,
                         Log& log) {
  listenForInterrupt(!options.quiet);
  const FittedSettings settings = settingsOf(options);
  Progress progress(channels.progress, std::cerr, settings.fit.mostIterations);
  ReferencedRun run;
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

Status findCertainty(const InvertOptions& options, const Channels& channels, Survey& survey) {
  if (interruptRequested()) {
    warn("How sure the section is was not found out: stopped before");
    return {};
  }
  const FittedSettings fitted = settingsOf(options);
  CertaintySettings settings;
  settings.members = *options.members;
  settings.errors = fitted.errors;
  settings.singleThread = fitted.singleThread;
  settings.ensemble = {fitted.fit, static_cast<std::uint64_t>(options.seed), options.isovalues};
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
  if (status.ok() && done < settings.members) {
    warn("How sure the section is rests on " + std::to_string(done) + " of " +
         std::to_string(settings.members) + " members: stopped by the user");
  }
  return status;
}

void warnAboutFit(const FittedRunResult& fit) {
  const bool told = fit.end == FitEnd::kTarget || fit.end == FitEnd::kStopped;
  if (!told || !fit.lateShots.empty()) warn(fit.outcome);
  if (fit.suspects.empty()) return;
  std::string text = std::to_string(fit.suspects.size()) + " of " + std::to_string(fit.fit.count) +
                     " picks are suspect and left out of chi-square: ";
  for (std::size_t i = 0; i < fit.suspects.size() && i < kMostSuspectsNamed; ++i) {
    text += (i > 0 ? "; " : "") + nameOf(fit.suspects[i]);
  }
  if (fit.suspects.size() > kMostSuspectsNamed) {
    text += " and " + std::to_string(fit.suspects.size() - kMostSuspectsNamed) +
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
      << (fit.run.stopped ? ", stopped by the user" : "") << "\n"
      << "Chi-square: " << formatDouble(fit.fit.chi2) << "; of all picks "
      << formatDouble(fit.fit.all) << "; suspects " << fit.suspects.size() << "\n";
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
