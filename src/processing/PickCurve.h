#pragma once

#include "processing/joint/Reciprocity.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;
struct TravelTime;

/// The picks of a record at the places of their geophones; those without either are left out.
struct PickCurve {
  ArrivalCurve arrivals;            ///< times as picked
  std::vector<std::size_t> traces;  ///< of the points, from 0
};

/// Without points where the place of the shot is not known.
PickCurve pickCurveOf(const TomoDocument& document, const TravelTime& record);

}  // namespace talvesk
