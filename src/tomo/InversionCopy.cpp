#include "tomo/InversionCopy.h"

#include <algorithm>

namespace talvesk {
namespace {

void copyResults(TomoDocument& to, const TomoDocument& from) {
  to.grid = std::make_unique<Grid>(*from.grid);
  to.has_tomographic_info = from.has_tomographic_info;
  to.smoothedResult = from.smoothedResult;
  to.timesOfSection = from.timesOfSection;
  to.sectionHistory = from.sectionHistory;
  to.RMSE_tomography = from.RMSE_tomography;
  to.info_density = from.info_density;
  to.coorcount = from.coorcount;
  to.hitCounts = from.hitCounts;
  to.rays = from.rays;
  to.excluded = from.excluded;
  to.coverageLimit = from.coverageLimit;
  to.coverageSpline = from.coverageSpline;
  to.lastInversion = from.lastInversion;
}

}  // namespace

TomoDocument inversionCopy(const TomoDocument& document) {
  TomoDocument copy;
  copy.ttArray = document.ttArray;
  copy.goephonesStringSet = document.goephonesStringSet;
  copy.xOffset = document.xOffset;
  copy.surface = document.surface;
  copy.minVelocity = document.minVelocity;
  copy.maxVelocity = document.maxVelocity;
  copyResults(copy, document);
  return copy;
}

void takeInversion(TomoDocument& document, const TomoDocument& copy) {
  copyResults(document, copy);
  const std::size_t records = std::min(document.ttArray.size(), copy.ttArray.size());
  for (std::size_t s = 0; s < records; ++s) {
    document.ttArray[s].ttCalcolati = copy.ttArray[s].ttCalcolati;
  }
}

}  // namespace talvesk
