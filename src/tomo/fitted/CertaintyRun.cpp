#include "tomo/fitted/CertaintyRun.h"

#include "model/GroundModel.h"
#include "model/PickFingerprint.h"
#include "model/TomoDocument.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/SurveyFit.h"

#include <exception>

namespace talvesk {
namespace {

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
  return certainty;
}

}  // namespace

std::unique_ptr<Ensemble> ensembleOf(const TomoDocument& document,
                                     const CertaintySettings& settings) {
  const Grid& grid = *document.model->grid;
  EnsembleOptions options = settings.ensemble;
  if (options.fit.start.empty()) options.fit.start = grid.slownesses();
  return std::make_unique<Ensemble>(grid.sharedGeometry(), picksToFit(document, settings.errors),
                                    std::move(options));
}

Status runCertainty(Ensemble& ensemble, const TomoDocument& document,
                    const CertaintySettings& settings, Certainty& certainty,
                    const std::function<void(const EnsembleProgress&)>& progress,
                    const std::function<bool()>& cancelled) {
  try {
    const unsigned threads = settings.singleThread ? 1U : searchThreads();
    const Status status = ensemble.run(settings.members, threads, progress,
                                       [&] { return !cancelled || !cancelled(); });
    if (ensemble.counts().members() > 0) certainty = gathered(ensemble, document, settings);
    if (!status.ok() || ensemble.counts().members() > 0 || ensemble.done() < settings.members) {
      return status;
    }
    return Status::failure(
        Message::tr("None of the %1 members explains the picks to within their errors; how sure "
                    "the section is stays unknown.")
            .arg(settings.members));
  } catch (const std::exception& error) {
    return Status::failure(
        Message::tr("How sure the section is could not be found out: %1").arg(error.what()));
  }
}

}  // namespace talvesk
