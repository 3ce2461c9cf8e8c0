#include "batch/FittedSection.h"

#include "base/Log.h"
#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/Interrupt.h"
#include "io/Survey.h"
#include "session/TableRules.h"

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

void warnAboutFit(const FittedRunResult& fit) {
  if (fit.end != FitEnd::kTarget && fit.end != FitEnd::kStopped) warn(fit.outcome);
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

}  // namespace talvesk
