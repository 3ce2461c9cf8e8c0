#include "tomo/fitted/CertaintyRun.h"

#include "base/Fingerprint.h"
#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "model/PickFingerprint.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/SurveyFit.h"

#include <cmath>
#include <exception>

namespace talvesk {
namespace {

std::uint64_t rounded(double slowness) {
  return static_cast<std::uint64_t>(std::llround(1000.0 / slowness));
}

/// The section of a document as it was before a project rounded it, where that is known.
const std::vector<double>& sectionOf(const TomoDocument& document) {
  const std::optional<Certainty>& known = document.result->certainty;
  if (known && known->state && isStateOf(*known->state, document)) return known->state->start;
  return document.model->grid->slownesses();
}

void takeVariation(const EnsembleVariation& vary, Fingerprint& key) {
  key.take(std::uint64_t{vary.smoothing.size()});
  for (const double factor : vary.smoothing) key.take(factor);
  for (const auto* list : {&vary.robust, &vary.blocky, &vary.statics}) {
    key.take(std::uint64_t{list->size()});
    for (const bool value : *list) key.take(std::uint64_t{value});
  }
}

}  // namespace

std::unique_ptr<Ensemble> ensembleOf(const TomoDocument& document,
                                     const CertaintySettings& settings) {
  const Grid& grid = *document.model->grid;
  EnsembleOptions options = settings.ensemble;
  if (options.fit.start.empty()) options.fit.start = sectionOf(document);
  if (settings.holdKnown) options.fit.known = knownCellsOf(document);
  return std::make_unique<Ensemble>(grid.sharedGeometry(), picksToFit(document, settings.errors),
                                    std::move(options));
}

std::unique_ptr<Ensemble> resumedEnsemble(const TomoDocument& document,
                                          const CertaintySettings& settings) {
  const std::optional<Certainty>& known = document.result->certainty;
  if (known && known->state && known->state->key == ensembleKey(document, settings) &&
      isStateOf(*known->state, document)) {
    auto ensemble = ensembleOf(document, settings);
    if (ensemble->add(*known->state)) return ensemble;
  }
  return ensembleOf(document, settings);
}

bool isStateOf(const EnsembleState& state, const TomoDocument& document) {
  if (document.model->grid == nullptr) return false;
  const std::vector<double>& section = document.model->grid->slownesses();
  return state.numbers() <= EnsembleState::kMostNumbers &&
         state.members.size() <= static_cast<std::size_t>(Ensemble::kMostMembers) &&
         std::equal(state.start.begin(), state.start.end(), section.begin(), section.end(),
                    [](double a, double b) {
                      return std::isfinite(a) && a > 0.0 && rounded(a) == rounded(b);
                    });
}

CertaintySettings certaintySettings(const TomoDocument& document) {
  CertaintySettings settings;
  const std::optional<InversionRecord>& run = document.result->lastInversion;
  if (!run || !run->fit) return settings;
  FittedOptions& fit = settings.ensemble.fit;
  fit.minVelocity = run->minVelocity;
  fit.maxVelocity = run->maxVelocity;
  fit.robust = run->fit->robust;
  fit.blocky = run->fit->blocky;
  fit.statics = run->fit->statics;
  settings.holdKnown = run->fit->known != 0;
  fit.triggerError = run->fit->triggerError;
  settings.errors = {run->fit->errorFloor, run->fit->errorShare};
  return settings;
}

std::uint64_t ensembleKey(const TomoDocument& document, const CertaintySettings& settings) {
  Fingerprint key;
  const EnsembleOptions& options = settings.ensemble;
  const FittedOptions& fit = options.fit;
  const Grid& grid = *document.model->grid;
  const FitData data = picksToFit(document, settings.errors);
  for (const FitPick& pick : data.picks) {
    key.take(std::uint64_t{pick.record} << 32 | pick.receiver);
    key.take(pick.time);
    key.take(pick.sigma);
  }
  for (const FitShot& shot : data.shots) {
    key.take(shot.source);
    for (const double x : shot.receivers) key.take(x);
  }
  for (const double z : grid.geometry().surfaceProfile()) key.take(z);
  for (const auto* model : {&grid.slownesses(), &fit.start}) {
    for (const double slowness : *model) key.take(rounded(slowness));
  }
  for (const double value : {grid.aLato(), fit.minVelocity, fit.maxVelocity, fit.triggerError}) {
    key.take(value);
  }
  for (const double isovalue : options.isovalues) key.take(isovalue);
  key.take(std::uint64_t{fit.robust} << 2 | std::uint64_t{fit.blocky} << 1 |
           std::uint64_t{fit.statics});
  key.take(static_cast<std::uint64_t>(fit.mostIterations));
  key.take(options.seed);
  key.take(settings.holdKnown ? fingerprintOf(*document.known) : std::uint64_t{0});
  if (options.vary.any()) takeVariation(options.vary, key);
  return key.value();
}

Certainty gathered(const Ensemble& ensemble, const TomoDocument& document,
                   const CertaintySettings& settings) {
  Certainty certainty;
  const EnsembleCounts& counts = ensemble.counts();
  certainty.members = counts.members();
  certainty.leftOut = ensemble.leftOut();
  certainty.seed = settings.ensemble.seed;
  certainty.velocities = counts.velocities();
  certainty.deviations = counts.deviations();
  certainty.touched = counts.touched();
  certainty.bands = counts.bands();
  for (const EnsembleModel& model : ensemble.models()) {
    certainty.models.push_back({model.name.english(), model.chi2, model.members});
  }
  certainty.picks = fingerprintOfPicks(document.ttArray);
  EnsembleState state = ensemble.state();
  state.key = ensembleKey(document, settings);
  if (state.numbers() <= EnsembleState::kMostNumbers) {
    certainty.state = std::make_shared<const EnsembleState>(std::move(state));
  }
  return certainty;
}

Status runCertainty(Ensemble& ensemble, const TomoDocument& document,
                    const CertaintySettings& settings, Certainty& certainty,
                    const std::function<void(const EnsembleProgress&)>& progress,
                    const std::function<bool()>& cancelled) {
  try {
    const Status status =
        ensemble.run(settings.range(), searchThreads(settings.singleThread, settings.threads),
                     progress, [&] { return !cancelled || !cancelled(); });
    if (ensemble.counts().members() > 0) certainty = gathered(ensemble, document, settings);
    if (!status.ok() || ensemble.counts().members() > 0 ||
        !ensemble.openOf(settings.range()).empty()) {
      return status;
    }
    return Status::failure(
        Message::tr("None of the %1 members explains the picks to within their errors; how sure "
                    "the section is stays unknown.")
            .arg(settings.members - settings.first));
  } catch (const std::exception& error) {
    return Status::failure(
        Message::tr("How sure the section is could not be found out: %1").arg(error.what()));
  }
}

}  // namespace talvesk
