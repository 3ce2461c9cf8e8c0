#include "model/FilterSteps.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {

std::vector<FilterStep> filtersOf(const Recordings& recordings, std::size_t set) {
  if (set >= recordings.notes.size() || set >= recordings.traceSets.size()) return {};
  const TraceSet& traces = recordings.traceSets[set];
  const bool any = std::any_of(traces.begin(), traces.end(),
                               [](const Trace& trace) { return !trace.filtered.empty(); });
  return any ? recordings.notes[set].filters : std::vector<FilterStep>();
}

void noteFilter(TomoDocument& document, const std::vector<std::int32_t>& shots,
                const FilterStep& step, bool ofFiltered) {
  Recordings& recordings = document.recordings.edit();
  for (const std::int32_t shot : shots) {
    const auto set = static_cast<std::size_t>(shot);
    if (shot < 0 || set >= recordings.traceSets.size()) continue;
    std::vector<FilterStep>& steps = recordings.noteOf(set).filters;
    if (!ofFiltered) steps.clear();
    steps.push_back(step);
  }
}

}  // namespace talvesk
