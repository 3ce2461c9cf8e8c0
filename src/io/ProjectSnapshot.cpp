#include "io/ProjectSnapshot.h"

#include "model/GeographicsCoord.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"

#include <utility>

namespace talvesk {
namespace {

std::size_t bytesOf(const Trace& trace) {
  const std::size_t samples = trace.samples.size() + trace.samplesDX.size() +
                              trace.samplesSX.size() + trace.filtered.size();
  return sizeof(Trace) + samples * sizeof(double);
}

TomoDocument copyWithoutTraces(const TomoDocument& document) {
  TomoDocument copy;
  copy.title = document.title;
  copy.recordings.edit().filenames = document.recordings->filenames;
  copy.recordings.edit().filenames_DX = document.recordings->filenames_DX;
  copy.recordings.edit().filenames_SX = document.recordings->filenames_SX;
  copy.recordings.edit().waveType = document.recordings->waveType;
  copy.line.edit().shotPositions = document.line->shotPositions;
  copy.ttArray.edit() = document.ttArray;
  copy.line.edit().goephonesStringSet = document.line->goephonesStringSet;
  copy.map.edit().geoCoord = document.map->geoCoord;
  copy.map.edit().geoCoord_isSet = document.map->geoCoord_isSet;
  if (document.model->grid != nullptr)
    copy.model.edit().grid = std::make_unique<Grid>(*document.model->grid);
  copy.model.edit().xOffset = document.model->xOffset;
  copy.model.edit().surface = document.model->surface;
  copy.model.edit().proposedCellSizes = document.model->proposedCellSizes;
  copy.model.edit().layers = document.model->layers;
  copy.result.edit().lastInversion = document.result->lastInversion;
  copy.model.edit().minVelocity = document.model->minVelocity;
  copy.model.edit().maxVelocity = document.model->maxVelocity;
  copy.result.edit().has_tomographic_info = document.result->has_tomographic_info;
  copy.result.edit().smoothedResult = document.result->smoothedResult;
  copy.result.edit().timesOfSection = document.result->timesOfSection;
  copy.result.edit().RMSE_tomography = document.result->RMSE_tomography;
  copy.result.edit().info_density = document.result->info_density;
  copy.result.edit().coorcount = document.result->coorcount;
  copy.result.edit().hitCounts = document.result->hitCounts;
  copy.result.edit().coverageLimit = document.result->coverageLimit;
  return copy;
}

}  // namespace

bool ProjectSnapshot::copyTraces(const TomoDocument& document, std::size_t bytes) {
  const std::vector<TraceSet>& sets = document.recordings->traceSets;
  std::size_t copied = 0;
  while (copied < bytes) {
    const bool setDone =
        mTraceSets.empty() || mTraceSets.back().size() == sets[mTraceSets.size() - 1].size();
    if (setDone) {
      if (mTraceSets.size() == sets.size()) return true;
      const std::size_t traces = sets[mTraceSets.size()].size();
      mTraceSets.emplace_back().reserve(traces);
      copied += sizeof(TraceSet);
      continue;
    }
    TraceSet& copy = mTraceSets.back();
    copy.push_back(sets[mTraceSets.size() - 1][copy.size()]);
    copied += bytesOf(copy.back());
  }
  return false;
}

LoadedProject ProjectSnapshot::complete(
    const TomoDocument& document, const refractionDataStructure::Interpretation& interpretation,
    const ColorPaletteList& palettes, const SectionViewSettings& section,
    const SharedFolder& folder) {
  TomoDocument copy = copyWithoutTraces(document);
  copy.recordings.edit().traceSets = std::move(mTraceSets);
  return {std::move(copy), interpretation, palettes, section, {}, folder, {}};
}

}  // namespace talvesk
