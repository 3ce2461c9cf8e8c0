#include "io/ProjectSnapshot.h"

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
  copy.filenames = document.filenames;
  copy.filenames_DX = document.filenames_DX;
  copy.filenames_SX = document.filenames_SX;
  copy.waveType = document.waveType;
  copy.shotPositions = document.shotPositions;
  copy.ttArray = document.ttArray;
  copy.goephonesStringSet = document.goephonesStringSet;
  copy.geoCoord = document.geoCoord;
  copy.geoCoord_isSet = document.geoCoord_isSet;
  if (document.grid != nullptr) copy.grid = std::make_unique<Grid>(*document.grid);
  copy.xOffset = document.xOffset;
  copy.surface = document.surface;
  copy.proposedCellSizes = document.proposedCellSizes;
  copy.layers = document.layers;
  copy.lastInversion = document.lastInversion;
  copy.minVelocity = document.minVelocity;
  copy.maxVelocity = document.maxVelocity;
  copy.has_tomographic_info = document.has_tomographic_info;
  copy.smoothedResult = document.smoothedResult;
  copy.timesOfSection = document.timesOfSection;
  copy.RMSE_tomography = document.RMSE_tomography;
  copy.info_density = document.info_density;
  copy.coorcount = document.coorcount;
  copy.hitCounts = document.hitCounts;
  copy.coverageLimit = document.coverageLimit;
  return copy;
}

}  // namespace

bool ProjectSnapshot::copyTraces(const TomoDocument& document, std::size_t bytes) {
  const std::vector<TraceSet>& sets = document.traceSets;
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
  copy.traceSets = std::move(mTraceSets);
  return {std::move(copy), interpretation, palettes, section, {}, folder};
}

}  // namespace talvesk
