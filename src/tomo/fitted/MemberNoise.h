#pragma once

#include "numerics/NormalNumbers.h"
#include "tomo/fitted/FitData.h"

#include <cstdint>

namespace talvesk {

/// Picks as they might have come out as well: each moved by a normal share of its error, none to
/// less than a tenth of its time. A function of its arguments alone.
FitData perturbedPicks(FitData data, std::uint64_t seed, std::uint64_t member);

}  // namespace talvesk
