#pragma once

#include "base/Status.h"
#include "model/FilterSteps.h"
#include "model/TomoDocument.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

struct StoredFilters {
  std::uint32_t set = 0;  ///< trace set, from 0
  std::vector<FilterStep> steps;
};

/// By what filters the filtered copies of traces were made.
struct FiltersMember {
  std::vector<StoredFilters> sets;
};

/// None where nothing is known of any copy.
std::optional<FiltersMember> filterStepsOf(const TomoDocument& document);
/// Fails, with the document as it was, for trace sets that are not there, and for filters that the
/// program does not have.
Status installFilterSteps(FiltersMember member, TomoDocument& document);

}  // namespace talvesk
