#pragma once

#include "base/Message.h"
#include "base/Status.h"
#include "model/FilterParameters.h"
#include "processing/ShotFilters.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Waves of which apparent velocities, and which way along the line, pass or are rejected.
struct VelocityFilter {
  enum class Direction { kBoth, kForth, kBack };  ///< forth: towards greater distances

  double slowest = parameters::kSlowest.initial;  ///< m/s, above 0
  double fastest = parameters::kFastest.initial;  ///< m/s, above slowest; 0: no limit
  Direction direction = Direction::kBoth;
  bool rejects = false;
  /// Percent of the slowness at either limit over which the filter sets in, outside of the range,
  /// along a cosine.
  double taper = parameters::kVelocityTaper.initial;
};

Status checkVelocityFilter(const VelocityFilter& filter);

/// What a wave keeps, 0 to 1. \param frequency Hz, 0 and above \param wavenumber 1/m, positive
/// along the line
double weightOf(const VelocityFilter& filter, double frequency, double wavenumber);

/// All traces of the shots, each shot at once (FkTransform), into their filtered copies, which
/// filtersOf() tells of afterwards. A shot whose traces are not a TraceLine is left as it was and
/// counts as failed.
/// \param ofFiltered works on the filtered copies, where a trace has one
/// \param notes a line for each shot with places without a trace, which count as zero
FilterOutcome velocityFilterShots(TomoDocument& document, const std::vector<std::int32_t>& shots,
                                  const VelocityFilter& filter, bool ofFiltered,
                                  std::vector<Message>& notes);

}  // namespace talvesk
