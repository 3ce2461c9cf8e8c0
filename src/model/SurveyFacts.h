#pragma once

#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cstddef>

namespace talvesk {

// What is asked of a survey in many places: whether there are picks, filtered copies, results.

/// How many traces of a record have a pick.
inline std::size_t pickCount(const TravelTime& record) {
  return static_cast<std::size_t>(
      std::count_if(record.ttMisurati.begin(), record.ttMisurati.end(), hasPick));
}

inline bool hasPicks(const TravelTime& record) {
  return std::any_of(record.ttMisurati.begin(), record.ttMisurati.end(), hasPick);
}

/// Whether any record has a pick.
inline bool hasPicks(const TomoDocument& document) {
  return std::any_of(document.ttArray.begin(), document.ttArray.end(),
                     [](const TravelTime& record) { return hasPicks(record); });
}

/// Whether any trace has a filtered copy.
inline bool hasFilteredCopy(const TraceSet& traces) {
  return std::any_of(traces.begin(), traces.end(),
                     [](const Trace& trace) { return !trace.filtered.empty(); });
}

/// Whether the information density is known of any cell: there has been an inversion.
inline bool hasInformationDensity(const TomoDocument& document) {
  return std::any_of(document.result->info_density.begin(), document.result->info_density.end(),
                     [](double density) { return density >= 0.0; });
}

}  // namespace talvesk
