#pragma once

#include "io/TravelTimeFile.h"
#include "model/TomoDocument.h"
#include "tomo/TomographyRun.h"

#include <string>
#include <vector>

namespace talvesk {

// Results as JSON texts, in UTF-8, keys in a fixed order. Numbers are the shortest that read back
// to the same double; what is no finite number is null. Texts that are not UTF-8 have the wrong
// bytes replaced.

/// Grid, misfit and all cell values (cell order, row 0 at the surface) of a finished inversion, one
/// key per line. "elapsed_s" is the only value that differs between two runs. Misfit values are
/// null when no pick was used.
std::string inversionJson(const TomoDocument& document, const TomographyResult& result);

/// Positions in metres, times in seconds.
std::string travelTimesJson(const TravelTimeData& data);

/// Takes the place of a file that could not be read.
std::string unreadableJson(const std::string& file, const std::string& error);

/// Texts of JSON values as one array.
std::string jsonArray(const std::vector<std::string>& values);

}  // namespace talvesk
