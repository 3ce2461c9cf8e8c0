#pragma once

#include "io/standard/Seg2Trace.h"

#include <string>
#include <vector>

namespace talvesk {

/// Gives the records of a file the positions of their headers, in metres.
/// \param units UNITS of the file header in capitals
/// \param warnings what is missing, was converted or looks wrong is added
void placeTraces(const std::string& units, std::vector<Seg2Trace>& traces,
                 std::vector<Message>& warnings);

}  // namespace talvesk
