#include "tomo/fitted/References.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/ShotShifts.h"
#include "tomo/fitted/SurveyFit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <exception>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

struct Named {
  ReferenceKind kind;
  const char* key;
};

constexpr std::array<Named, 8> kNamed = {{{ReferenceKind::kGradient, "gradient"},
                                          {ReferenceKind::kTwoLayers, "two-layers"},
                                          {ReferenceKind::kThreeLayers, "three-layers"},
                                          {ReferenceKind::kOverburdenGradient, "overburden"},
                                          {ReferenceKind::kDefault, "default"},
                                          {ReferenceKind::kPresent, "start"},
                                          {ReferenceKind::kLayers, "layers"},
                                          {ReferenceKind::kFile, "file"}}};

bool ofPicks(const ReferenceModel& model) {
  return model.kind == ReferenceKind::kGradient || model.kind == ReferenceKind::kTwoLayers ||
         model.kind == ReferenceKind::kThreeLayers ||
         model.kind == ReferenceKind::kOverburdenGradient;
}

/// \param slownesses of the cells, taken into the bounds
ReferenceModel givenModel(ReferenceKind kind, std::vector<double> slownesses,
                          const VelocityBounds& bounds) {
  ReferenceModel model;
  model.kind = kind;
  model.name = nameOf(kind);
  for (double& slowness : slownesses) {
    slowness = std::clamp(slowness, 1.0 / bounds.greatest, 1.0 / bounds.least);
  }
  const auto [fastest, slowest] = std::minmax_element(slownesses.begin(), slownesses.end());
  model.description = Message::tr("%1 to %2")
                          .arg(Message::velocity(std::round(1.0 / *slowest), 1))
                          .arg(Message::velocity(std::round(1.0 / *fastest), 1));
  model.slownesses = std::move(slownesses);
  return model;
}

Status unsupported(const References& references, const std::string& key) {
  const std::optional<ReferenceKind> kind = referenceKindOf(key);
  if (!kind) return Status::failure(Message::tr("There is no reference model \"%1\".").arg(key));
  if (*kind == ReferenceKind::kLayers) {
    return Status::failure(
        Message::tr("There is no layered interpretation to start from. Build one first."));
  }
  const std::string name = nameOf(*kind).english();
  for (const Message& refused : references.refused) {
    if (refused.english().rfind(name, 0) == 0) {
      return Status::failure(
          Message::tr("The picks do not support the reference model. %1").arg(refused));
    }
  }
  return Status::failure(
      Message::tr("The picks do not support the reference model \"%1\".").arg(nameOf(*kind)));
}

constexpr int kTrialIterations = 15;  // of each of several fits

/// What "best" stands for, in the order in which it is tried; else the model of the key.
std::vector<const ReferenceModel*> candidatesOf(const References& references,
                                                const std::string& key) {
  const ReferenceModel* first = find(references, key);
  if (first == nullptr) return {};
  std::vector<const ReferenceModel*> candidates{first};
  if (key != kBestReference) return candidates;
  for (const ReferenceModel& model : references.models) {
    const bool fits = ofPicks(model) || model.kind == ReferenceKind::kDefault;
    if (fits && &model != first) candidates.push_back(&model);
  }
  return candidates;
}

/// Whether a fit leaves nothing to be hoped from another model.
bool convincing(const FittedRunResult& fit) {
  const bool fits = fit.end == FitEnd::kTarget || fit.end == FitEnd::kFitsBetter;
  return fits && fewSuspects(fit.fit);
}

bool nearer(const FittedRunResult& a, const FittedRunResult& b) {
  const bool reached = a.end == FitEnd::kTarget;
  if (reached != (b.end == FitEnd::kTarget)) return reached;
  // Gross errors are suspect with every model: only far fewer suspects speak for another one than
  // that whose times come nearest.
  if (reached) return 2 * a.fit.suspects.size() < b.fit.suspects.size();
  return distanceOf(a.fit) < distanceOf(b.fit);
}

/// Names the fits that another one was better than.
Message withOthers(const Message& outcome, const std::vector<ReferenceTrial>& trials,
                   const std::string& kept) {
  Message others;
  Message taken;
  for (const ReferenceTrial& trial : trials) {
    if (trial.reference == kept) {
      taken = trial.name;
      continue;
    }
    const Message one = Message::tr("%1: chi-square %2, suspects %3")
                            .arg(trial.name)
                            .arg(Message::number(trial.fit.chi2, 3))
                            .arg(trial.fit.suspects.size());
    others = others.empty() ? one : Message::tr("%1; %2").arg(others).arg(one);
  }
  if (others.empty()) return outcome;
  return Message::tr(
             "%1 The fit from the model \"%2\" is kept, as those from others come less near "
             "to the picks: %3.")
      .arg(outcome)
      .arg(taken)
      .arg(others);
}

/// Fits from one model after the other until one convinces; the document gets the nearest.
class Trials {
 public:
  Trials(TomoDocument& document, const FittedSettings& settings, Log& log,
         const std::function<void(const FittedRunProgress&)>& progress,
         const std::function<bool()>& cancelled)
      : mDocument(document),
        mKept(document),
        mSettings(settings),
        mLog(log),
        mProgress(progress),
        mCancelled(cancelled) {}

  void make(const std::vector<const ReferenceModel*>& candidates, ReferencedRun& run) {
    for (const ReferenceModel* model : candidates) {
      if (!tryOne(*model, candidates.size() > 1, run)) break;
    }
    if (run.trials.empty()) return;
    goOnWithNearest(candidates, run);
    mDocument = std::move(mKept);
    run.fit.outcome = withOthers(run.fit.outcome, run.trials, run.fit.reference);
  }

 private:
  /// Where no fit has come to its end, the nearest one may take all iterations that are allowed.
  void goOnWithNearest(const std::vector<const ReferenceModel*>& candidates, ReferencedRun& run) {
    const bool cut = run.fit.end == FitEnd::kIterations && candidates.size() > 1;
    if (!cut || run.fit.run.stopped || mSettings.fit.mostIterations <= kTrialIterations) return;
    const std::string nearest = run.fit.reference;
    for (const ReferenceModel* model : candidates) {
      if (keyOf(model->kind) == nearest) tryOne(*model, false, run);
    }
  }

  /// \return whether another one is to be tried
  bool tryOne(const ReferenceModel& model, bool several, ReferencedRun& run) {
    FittedSettings settings = mSettings;
    settings.reference = keyOf(model.kind);
    settings.fit.start = model.slownesses;
    settings.fit.reference = model.slownesses;
    if (several)
      settings.fit.mostIterations = std::min(settings.fit.mostIterations, kTrialIterations);
    TomoDocument copy = mDocument;
    const bool first = run.trials.empty();
    FittedRunResult fit = runFittedInversion(
        copy, settings, mLog,
        [&](FittedRunProgress state) {
          if (!mProgress) return;
          if (!first) state.from = model.name;
          mProgress(state);
        },
        mCancelled);
    const bool stopped = fit.run.stopped;
    const bool goOn = found(fit) && !stopped && !convincing(fit);
    if (found(fit)) {
      const auto same = [&](const ReferenceTrial& trial) {
        return trial.reference == settings.reference;
      };
      run.trials.erase(std::remove_if(run.trials.begin(), run.trials.end(), same),
                       run.trials.end());
      run.trials.push_back(
          {settings.reference, model.name, fit.end, fit.fit, fit.run.iterationsDone});
      if (first || nearer(fit, run.fit)) {
        run.fit = std::move(fit);
        mKept = std::move(copy);
      }
    } else if (first) {
      run.fit = std::move(fit);
    } else {
      if (!fit.run.status.ok()) mLog.write(fit.run.status.text());
    }
    run.fit.run.stopped = stopped;
    return goOn;
  }

  TomoDocument& mDocument;
  TomoDocument mKept;
  const FittedSettings& mSettings;
  Log& mLog;
  const std::function<void(const FittedRunProgress&)>& mProgress;
  const std::function<bool()>& mCancelled;
};

}  // namespace

const char* keyOf(ReferenceKind kind) {
  for (const Named& each : kNamed) {
    if (each.kind == kind) return each.key;
  }
  return "given";
}

std::optional<ReferenceKind> referenceKindOf(const std::string& key) {
  for (const Named& each : kNamed) {
    if (each.key == key) return each.kind;
  }
  return std::nullopt;
}

const ReferenceModel* find(const References& references, const std::string& key) {
  const auto first = [&](const auto& wanted) -> const ReferenceModel* {
    const auto found = std::find_if(references.models.begin(), references.models.end(), wanted);
    return found == references.models.end() ? nullptr : &*found;
  };
  if (key != kBestReference) {
    return first([&](const ReferenceModel& model) { return key == keyOf(model.kind); });
  }
  const ReferenceModel* best = first(ofPicks);
  if (best != nullptr) return best;
  return first([](const ReferenceModel& model) { return model.kind == ReferenceKind::kPresent; });
}

std::optional<References> referencesOf(const TomoDocument& document, const FittedSettings& settings,
                                       const std::function<bool()>& goOn) {
  const Grid& grid = *document.model->grid;
  const VelocityBounds bounds{settings.fit.minVelocity, settings.fit.maxVelocity};
  const FitData data = picksToFit(document, settings.errors);
  const unsigned threads = searchThreads(settings.singleThread, settings.threads);
  const auto tracer = fitTracer(grid.sharedGeometry(), data, threads);
  const FitData onTime = picksOnTime(data, settings.fit.triggerError);
  ReferenceModels made = referenceModels(onTime, grid.geometry(), bounds);
  References references{std::move(made.models), std::move(made.refused)};
  std::vector<ReferenceModel>& models = references.models;
  models.push_back(givenModel(ReferenceKind::kDefault, defaultSlownesses(grid.geometry()), bounds));
  models.push_back(givenModel(ReferenceKind::kPresent, grid.slownesses(), bounds));
  for (const GivenModel& given : settings.given) {
    models.push_back(givenModel(given.kind, given.slownesses, bounds));
  }
  if (!rankByStart(models, settings.fit.statics ? onTime : data, *tracer, goOn))
    return std::nullopt;
  std::stable_partition(models.begin(), models.end(), ofPicks);
  return references;
}

ReferencedRun fitFromReference(TomoDocument& document, const FittedSettings& settings, Log& log,
                               const std::function<void(const FittedRunProgress&)>& progress,
                               const std::function<bool()>& cancelled) {
  ReferencedRun run;
  FittedRunResult& result = run.fit;
  result.run.status = checkTraceable(document);
  if (!result.run.status.ok()) return run;
  if (!(settings.fit.minVelocity < settings.fit.maxVelocity)) {
    result = runFittedInversion(document, settings, log);  // which says what is wrong
    return run;
  }
  try {
    std::optional<References> references =
        referencesOf(document, settings, [&] { return !cancelled || !cancelled(); });
    if (!references) {
      result.run.stopped = true;
      return run;
    }
    run.references = std::move(*references);
  } catch (const std::exception& error) {
    result.run.status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
    return run;
  }
  const std::vector<const ReferenceModel*> candidates =
      candidatesOf(run.references, settings.reference);
  if (candidates.empty()) {
    result.run.status = unsupported(run.references, settings.reference);
    return run;
  }
  Trials(document, settings, log, progress, cancelled).make(candidates, run);
  return run;
}

}  // namespace talvesk
