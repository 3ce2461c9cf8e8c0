#pragma once

#include "io/ShotRecord.h"

#include <string_view>
#include <vector>

namespace talvesk {

/// What a SEG-2 trace header says in words and numbers.
struct Seg2Strings {
  Point2D source;               ///< metres; 0 where not told
  Point2D receiver;             ///< metres
  double delay = 0.0;           ///< seconds, never positive
  double sampleInterval = 0.0;  ///< seconds; 0 unless hasInterval
  bool hasInterval = false;     ///< told, and a number each time that it was
  // Told, but with a number that is not finite or out of range, or a position with none at all; the
  // part of it that cannot be used is 0.
  bool badSource = false;
  bool badReceiver = false;
  bool badDelay = false;
};

/// Appends the words of a string area: what stands between blanks, line ends and zero bytes. In
/// place of the two bytes of length in front of each string stands an empty word, so that no value
/// is taken from the next string. An area that is no chain of such strings is taken as plain text.
void seg2Words(std::string_view area, std::vector<std::string_view>& words);

/// Reads the keywords "SAMPLE_INTERVAL", "SOURCE_LOCATION", "RECEIVER_LOCATION" and "DELAY"; what
/// cannot be read, and what elevations are found, is told on the console. Decimal commas are
/// accepted whatever the user's locale. Numbers that are out of range or not finite are not used.
Seg2Strings parseSeg2Strings(std::string_view area);

}  // namespace talvesk
