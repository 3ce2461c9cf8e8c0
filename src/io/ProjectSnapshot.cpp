#include "io/ProjectSnapshot.h"

namespace talvesk {
namespace {

TomoDocument copyOf(const TomoDocument& document) {
  TomoDocument copy;
  copy.title = document.title;
  copy.filenames = document.filenames;
  copy.filenames_DX = document.filenames_DX;
  copy.filenames_SX = document.filenames_SX;
  copy.waveType = document.waveType;
  copy.shotPositions = document.shotPositions;
  copy.traceSets = document.traceSets;
  copy.ttArray = document.ttArray;
  copy.goephonesStringSet = document.goephonesStringSet;
  copy.geoCoord = document.geoCoord;
  copy.geoCoordIsSet = document.geoCoordIsSet;
  if (document.grid != nullptr) copy.grid = std::make_unique<Grid>(*document.grid);
  copy.xOffset = document.xOffset;
  copy.surface = document.surface;
  copy.proposedCellSizes = document.proposedCellSizes;
  copy.layers = document.layers;
  copy.lastInversion = document.lastInversion;
  copy.minVelocity = document.minVelocity;
  copy.maxVelocity = document.maxVelocity;
  copy.hasTomographicInfo = document.hasTomographicInfo;
  copy.RMSE_tomography = document.RMSE_tomography;
  copy.info_density = document.info_density;
  copy.coverageLimit = document.coverageLimit;
  return copy;
}

}  // namespace

LoadedProject snapshotOf(const TomoDocument& document,
                         const refractionDataStructure::Interpretation& interpretation,
                         const ColorPaletteList& palettes, const SectionViewSettings& section,
                         const SharedFolder& folder) {
  return {copyOf(document), interpretation, palettes, section, folder};
}

}  // namespace talvesk
