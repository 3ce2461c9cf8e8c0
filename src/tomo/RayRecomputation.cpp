#include "tomo/RayRecomputation.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/SurveyFit.h"

#include <exception>
#include <optional>
#include <string>

namespace talvesk {
namespace {

Status trace(TomoDocument& document, TraceCrew& crew, Log& log, ThreadLines lines) {
  try {
    const SharedVector<std::vector<std::uint32_t>> earlier = std::move(document.result.edit().rays);
    document.result.edit().rays = {};
    ForwardPass pass(document, earlier, crew, log, lines);
    const Status status = pass.run("", nullptr, nullptr);
    if (!status.ok()) return status;
    pass.takeRays(document.result.edit().rays.edit());
    const std::optional<InversionRecord>& run = document.result->lastInversion;
    if (run && run->fit) traceFittedTimes(document, crew.width());
    document.result.edit().timesOfSection = true;
    return status;
  } catch (const std::exception& error) {
    return Status::failure(Message::tr("The rays could not be traced: %1").arg(error.what()));
  }
}

}  // namespace

Status traceSection(TomoDocument& document, unsigned threads, Log& log) {
  TraceCrew crew(threads);
  return traceSection(document, crew, log);
}

Status traceSection(TomoDocument& document, TraceCrew& crew, Log& log) {
  if (const Status status = checkTraceable(document); !status.ok()) return status;
  return trace(document, crew, log, ThreadLines::kSilent);
}

Status recomputeRays(TomoDocument& document, Log& log) {
  if (const Status status = checkTraceable(document); !status.ok()) return status;
  const std::size_t cells = document.model->grid->cellCount();
  if (document.result->coorcount.size() != cells || document.result->hitCounts.size() != cells) {
    document.result.edit().coorcount.assign(cells, 0.0);
    document.result.edit().hitCounts.assign(cells, 0);
  }
  TraceCrew crew(searchThreads());
  return trace(document, crew, log, ThreadLines::kTold);
}

}  // namespace talvesk
