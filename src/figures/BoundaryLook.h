#pragma once

#include "base/Point2D.h"
#include "model/RefractionDataStructure.h"
#include "refraction/Support.h"

#include <vector>

namespace talvesk {

struct Band;

/// How the top of a refractor is drawn: elevation over x, metres. Where the depth is not known
/// there is nothing.
struct BoundaryLook {
  std::vector<std::vector<Point2D>> carried;    ///< lines between receivers that picks carry
  std::vector<std::vector<Point2D>> uncarried;  ///< lines from or to others, which are dashed
  std::vector<std::vector<Point2D>> bands;      ///< outlines of where errors of picks may put it
};

/// \param support of the depths; empty where it is not known, which draws no dashes
/// \param band of the depths, metres below the surface; null for none
BoundaryLook boundaryLook(const refractionDataStructure::computedData& refractor,
                          const std::vector<Support>& support, const Band* band);

}  // namespace talvesk
