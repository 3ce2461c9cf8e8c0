#pragma once

#include <string>
#include <vector>

#include "base/Point2D.h"
#include "base/Status.h"
#include "model/TomoDocument.h"
#include "model/TravelTime.h"

namespace talvesk {

/// What a travel-time file holds: a survey of picks without its traces.
struct TravelTimeData {
  std::string format;  ///< "otte", "txt", "xyz" or "csv"
  std::vector<std::vector<Point2D>> strings;
  std::vector<TravelTime> records;
  std::vector<std::string> warnings;  ///< what was repaired or ignored while reading
};

/// Reads ".otte", ".txt", ".xyz"/".XYZ" and ".csv"/".CSV" by the suffix, compared exactly. Failures
/// also go to the console's error stream.
Status readTravelTimes(const std::string& path, TravelTimeData& data);

/// Puts what was read into the document, or leaves the document as it was. A document with trace sets
/// keeps them and takes the times by trace set, provided that shots and traces agree in number; any
/// other gets new strings, shots and records, and loses its grid and results.
Status importTravelTimes(TravelTimeData data, TomoDocument& document);

/// readTravelTimes, then importTravelTimes. Returns 0 or 1; the message is the status's.
Status loadTravelTimes(const std::string& path, TomoDocument& document);

/// Writes the exchange format (".otte"), six significant digits, whole or not at all.
Status writeTravelTimes(const std::string& path, const TomoDocument& document);

}  // namespace talvesk
