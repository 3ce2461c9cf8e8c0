#pragma once

#include "base/Message.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;
struct Recordings;

enum class FilterKind : std::int32_t {
  kAgc = 0,
  kHushel = 1,
  kBand = 2,
  kNotch = 3,
  kVelocity = 4
};

/// One filter that a filtered copy was made by, with the numbers that its user gave.
struct FilterStep {
  FilterKind kind = FilterKind::kAgc;
  /// Of the band: low-pass Hz and order, high-pass Hz and order, 0 and 0 of one that is not used.
  /// Of notches: Hz, multiples, quality. Of velocities: slowest and fastest in m/s (0: no limit),
  /// direction along the line (1 forth, -1 back, 0 both), 1 for what passes or 0 for what is
  /// rejected, taper in percent. The others have none.
  std::vector<double> numbers;
};

/// Whether it has the numbers of its kind, all finite.
bool isSound(const FilterStep& step);

Message describe(const FilterStep& step);

/// Filters of the filtered copy of a trace set, one after the other; empty where it has no copy, or
/// nothing is known of it.
std::vector<FilterStep> filtersOf(const Recordings& recordings, std::size_t set);

/// The filtered copies of shots (trace sets, from 0) have been made by a filter.
/// \param ofFiltered of the copies that they had before
void noteFilter(TomoDocument& document, const std::vector<std::int32_t>& shots,
                const FilterStep& step, bool ofFiltered);

}  // namespace talvesk
