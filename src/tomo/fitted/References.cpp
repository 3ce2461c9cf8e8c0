#include "tomo/fitted/References.h"

#include "grid/GridBuilder.h"
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
  model.description =
      Message::tr("%1 to %2 m/s").arg(std::round(1.0 / *slowest)).arg(std::round(1.0 / *fastest));
  model.slownesses = std::move(slownesses);
  return model;
}

std::vector<double> defaultSlownesses(const Grid& grid) {
  std::vector<double> slownesses;
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    slownesses.insert(slownesses.end(), grid.col(), 1.0 / defaultVelocity(row * grid.aLato()));
  }
  return slownesses;
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
  const unsigned threads = settings.singleThread ? 1U : searchThreads();
  const auto tracer = fitTracer(grid.sharedGeometry(), data, threads);
  const FitData onTime = picksOnTime(data, settings.fit.triggerError);
  ReferenceModels made = referenceModels(onTime, grid.geometry(), bounds);
  References references{std::move(made.models), std::move(made.refused)};
  std::vector<ReferenceModel>& models = references.models;
  models.push_back(givenModel(ReferenceKind::kDefault, defaultSlownesses(grid), bounds));
  models.push_back(givenModel(ReferenceKind::kPresent, grid.slownesses(), bounds));
  for (const GivenModel& given : settings.given) {
    models.push_back(givenModel(given.kind, given.slownesses, bounds));
  }
  if (!rankByStart(models, settings.fit.statics ? onTime : data, *tracer, goOn))
    return std::nullopt;
  std::stable_partition(models.begin(), models.end(), ofPicks);
  return references;
}

ReferencedRun fitFromReference(TomoDocument& document, FittedSettings settings, Log& log,
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
  const ReferenceModel* model = find(run.references, settings.reference);
  if (model == nullptr) {
    result.run.status = unsupported(run.references, settings.reference);
    return run;
  }
  settings.reference = keyOf(model->kind);
  settings.fit.start = model->slownesses;
  settings.fit.reference = model->slownesses;
  result = runFittedInversion(document, settings, log, progress, cancelled);
  return run;
}

}  // namespace talvesk
