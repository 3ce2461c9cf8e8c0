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

/// "shot 3, receiver 7 late by 21.3 ms".
std::string nameOf(const SuspectPick& pick) {
  return "shot " + std::to_string(pick.record + 1) + ", receiver " +
         std::to_string(pick.receiver + 1) + (pick.residual < 0.0 ? " late by " : " early by ") +
         inMilliseconds(std::fabs(pick.residual)) + " ms";
}

}  // namespace

FittedRunResult fitSection(const InvertOptions& options, const Channels& channels, Survey& survey,
                           Log& log) {
  listenForInterrupt(!options.quiet);
  const FittedSettings settings = settingsOf(options);
  Progress progress(channels.progress, std::cerr, settings.fit.mostIterations);
  FittedRunResult result;
  const Status edited = editSurvey(Edit::kInversion, survey, [&](Survey& next) {
    result = runFittedInversion(
        next.document, settings, log, [&](const FittedRunProgress& state) { progress.show(state); },
        interruptRequested);
    return result.run.status;
  });
  progress.finish();
  if (result.run.status.ok()) result.run.status = edited;
  return result;
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

void summarizeFit(const FittedRunResult& fit, std::ostream& out) {
  out << fit.outcome << "\n"
      << "Iterations: " << fit.run.iterationsDone
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
