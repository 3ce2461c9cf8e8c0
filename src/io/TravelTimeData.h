#pragma once

#include "base/Message.h"
#include "base/Point2D.h"
#include "model/TravelTime.h"

#include <cstddef>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What a travel-time file holds: a survey of picks without its traces.
struct TravelTimeData {
  std::string format;  ///< "otte", "txt", "xyz", "csv", "sgt" or "table"
  std::vector<std::vector<Point2D>> strings;
  std::vector<TravelTime> records;
  std::vector<Message> warnings;  ///< what was repaired or ignored while reading
};

/// Whether the error of any pick is known.
bool tellsErrors(const TravelTimeData& data);

/// The picks of a survey.
TravelTimeData travelTimesOf(const TomoDocument& document);

/// Why a reader gave a file up.
struct Refusal {
  std::size_t line = 0;  ///< from 1
  Message reason;        ///< what is wrong, without file and line
  /// What the console is told instead, where the format has a message of its own; empty: the
  /// reason, headed by file and line.
  std::string consoleText;
};

}  // namespace talvesk
