#pragma once

#include "base/Point2D.h"
#include "doctor/Geophones.h"
#include "doctor/Onsets.h"
#include "doctor/SourceStation.h"
#include "model/TomoDocument.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace talvesk::doctor {

/// One shot as the checks look at it.
struct ShotView {
  std::size_t shot = 0;              ///< of the document, from 0
  const TraceSet* traces = nullptr;  ///< never null
  std::size_t string = 0;            ///< of the survey's strings; meaningless without `placed`
  bool placed = false;               ///< its string has as many geophones as it has traces
  Point2D source;                    ///< as the survey has it
  std::vector<Point2D> geophones;    ///< as the survey has them, one per trace
  /// The traces in the order of their geophones along the line; of channels where nobody knows.
  std::vector<std::size_t> order;
  std::vector<std::size_t> rank;  ///< of each trace in that order
  std::vector<bool> killed;       ///< by a mend, one per trace
  std::string name;               ///< of its file, without folder and suffix
  ShotOnsets onsets;              ///< one per trace
  SourceStation station;

  double offset(std::size_t trace) const { return geophones[trace].x - source.x; }
};

/// What all checks share: the shots that take part, with their first arrivals. The document must
/// stay as it is meanwhile.
struct SurveyView {
  const TomoDocument* document = nullptr;
  std::vector<ShotView> shots;  ///< without those that are disabled or have no traces
};

/// \param goOn asked between shots; after false the shots that are left have no arrivals
SurveyView viewOf(const TomoDocument& document, const std::function<bool()>& goOn);

}  // namespace talvesk::doctor
