#pragma once

#include <cstddef>
#include <vector>

namespace talvesk {

struct Desk;

/// Asks, where new recordings start before their shot, whether times are to count from it.
/// \param sets trace sets that are new, from 0
void askForShotTime(Desk& desk, const std::vector<std::size_t>& sets);

/// Lets the times of all records that still begin before their shot count from it; their picks move
/// with the traces.
void countTimesFromShot(Desk& desk);

}  // namespace talvesk
