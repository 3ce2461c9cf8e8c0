#pragma once

#include "numerics/NormalNumbers.h"
#include "tomo/fitted/FitData.h"

#include <cstdint>

namespace talvesk {

/// Picks as they might have come out as well: each moved by a normal share of its error, none to
/// less than a tenth of its time. A function of its arguments alone.
FitData perturbedPicks(FitData data, std::uint64_t seed, std::uint64_t member);

/// A whole number of 64 even bits, which has nothing to do with those of other members, other
/// seeds, other draws and the errors of picks. \param draw what it is for
std::uint64_t memberDraw(std::uint64_t seed, std::uint64_t member, std::uint64_t draw);

}  // namespace talvesk
