#include "tomo/fitted/SurveyFit.h"

#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"
#include "tomo/fitted/FineTracer.h"
#include "tomo/fitted/KnownCells.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// \param takes whether a receiver takes part; \param sigma its error, seconds
template <typename Takes, typename Sigma>
FitData gather(const TomoDocument& document, Takes takes, Sigma sigma) {
  std::vector<std::vector<bool>> out(document.ttArray.size());
  for (std::size_t s = 0; s < out.size(); ++s) {
    out[s].assign(document.ttArray[s].ttMisurati.size(), false);
  }
  for (const ExcludedPosition& each : findExcluded(document)) {
    std::vector<bool>& shot = out[static_cast<std::size_t>(each.shot)];
    if (each.receiver < 0) {
      shot.assign(shot.size(), true);
    } else {
      shot[static_cast<std::size_t>(each.receiver)] = true;
    }
  }
  const double offset = document.model->xOffset;
  FitData data;
  for (std::size_t s = 0; s < out.size(); ++s) {
    const TravelTime& record = document.ttArray[s];
    FitShot shot;
    shot.record = static_cast<std::uint32_t>(s);
    shot.source = record.shotPos2d.x + offset;
    shot.firstPick = data.picks.size();
    for (std::size_t i = 0; i < out[s].size(); ++i) {
      if (out[s][i] || !takes(record, i)) continue;
      const auto& string = document.line->goephonesStringSet[record.indexStesa];
      if (i >= string.size()) break;
      shot.receivers.push_back(string[i].x + offset);
      data.picks.push_back(
          {shot.record, static_cast<std::uint32_t>(i), record.ttMisurati[i], sigma(record, i)});
    }
    if (!shot.receivers.empty()) data.shots.push_back(std::move(shot));
  }
  return data;
}

}  // namespace

FitData picksToFit(const TomoDocument& document, const PickErrorRule& errors) {
  return gather(
      document,
      [](const TravelTime& record, std::size_t i) { return hasPick(record.ttMisurati[i]); },
      [&](const TravelTime& record, std::size_t i) { return sigmaOf(record, i, errors); });
}

FitData receiversToTrace(const TomoDocument& document) {
  return gather(
      document, [](const TravelTime&, std::size_t) { return true; },
      [](const TravelTime&, std::size_t) { return 0.0; });
}

std::shared_ptr<const KnownCells> knownCellsOf(const TomoDocument& document) {
  if (document.known->empty()) return nullptr;
  const Grid& grid = *document.model->grid;
  return std::make_shared<KnownCells>(
      knownCells(*document.known, grid.geometry(), document.model->xOffset));
}

std::unique_ptr<RayTracer> fitTracer(const std::shared_ptr<const GridGeometry>& geometry,
                                     const FitData& data, unsigned threads) {
  return std::make_unique<FineTracer>(*geometry, data, threads);
}

void putTimes(const FitData& data, const std::vector<double>& times, TomoDocument& document) {
  std::vector<TravelTime>& records = document.ttArray.edit();
  for (const FitShot& shot : data.shots) {
    std::vector<double>& computed = records[shot.record].ttCalcolati.edit();
    for (std::size_t k = 0; k < shot.receivers.size(); ++k) {
      const std::size_t i = shot.firstPick + k;
      computed[data.picks[i].receiver] = times[i];
    }
  }
}

void traceFittedTimes(TomoDocument& document, unsigned threads) {
  const Grid& grid = *document.model->grid;
  const FitData data = receiversToTrace(document);
  TracedRays traced;
  fitTracer(grid.sharedGeometry(), data, threads)->trace(grid.slownesses(), traced, {});
  putTimes(data, traced.times, document);
}

}  // namespace talvesk
