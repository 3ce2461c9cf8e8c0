#pragma once

#include "io/standard/Seg2Trace.h"
#include "io/standard/StandardReading.h"

#include <vector>

namespace talvesk {

/// Deals the traces of a file out to its shots: by SHOT_SEQUENCE_NUMBER where it differs between
/// traces, else by SOURCE_LOCATION. Fills shots and split of the reading, with the warnings of each
/// shot; adds to those of the file.
/// \param traces at least one
void dealToShots(std::vector<Seg2Trace> traces, StandardReading& reading);

}  // namespace talvesk
