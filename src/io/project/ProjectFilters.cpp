#include "io/project/ProjectFilters.h"

#include "model/Recordings.h"

#include <algorithm>
#include <utility>

namespace talvesk {

std::optional<FiltersMember> filterStepsOf(const TomoDocument& document) {
  FiltersMember member;
  for (std::size_t set = 0; set < document.recordings->traceSets.size(); ++set) {
    std::vector<FilterStep> steps = filtersOf(*document.recordings, set);
    if (!steps.empty()) member.sets.push_back({static_cast<std::uint32_t>(set), std::move(steps)});
  }
  if (member.sets.empty()) return std::nullopt;
  return member;
}

Status installFilterSteps(FiltersMember member, TomoDocument& document) {
  const std::size_t sets = document.recordings->traceSets.size();
  for (const StoredFilters& stored : member.sets) {
    if (stored.set >= sets || !std::all_of(stored.steps.begin(), stored.steps.end(), isSound)) {
      return Status::failure(
          Message::tr("it tells of traces that are not there, or of filters that are not known"));
    }
  }
  Recordings& recordings = document.recordings.edit();
  for (StoredFilters& stored : member.sets) {
    recordings.noteOf(stored.set).filters = std::move(stored.steps);
  }
  return {};
}

}  // namespace talvesk
