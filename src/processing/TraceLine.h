#pragma once

#include "base/Status.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace talvesk {

class TomoDocument;

/// The traces of a shot as they stand along the line at one spacing, which filters over several
/// traces need.
struct TraceLine {
  static constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

  /// By place, ascending along the line: trace of the set, from 0; kNone where there is none.
  std::vector<std::size_t> traces;
  double spacing = 0.0;     ///< metres, above 0
  double interval = 0.0;    ///< seconds, above 0
  std::size_t samples = 0;  ///< of every trace, above 0
  std::size_t missing = 0;  ///< places without a trace, or with one that is zero: killed, or dead
};

/// Geophones stand evenly where no distance is off a whole number of spacings by more than this
/// part of one: a survey is laid out no better, and the shortest wave that it can tell apart is two
/// spacings long.
inline constexpr double kUnevenSpacing = 0.05;

/// \param shot trace set of the document, from 0 \param ofFiltered looks at the filtered copies
/// \return failure, which says what is in the way: unknown, equal or uneven distances, fewer than
/// four traces, traces of different lengths or intervals, samples that are no numbers, more places
/// without a trace than with one
Status findTraceLine(const TomoDocument& document, std::int32_t shot, bool ofFiltered,
                     TraceLine& line);

}  // namespace talvesk
