#pragma once

#include "base/Message.h"
#include "base/Point2D.h"
#include "base/Samples.h"

#include <string>
#include <vector>

namespace talvesk {

/// One channel of a shot file, as a reader delivers it.
struct ShotRecord {
  Samples samples;  ///< finite; by the program's rules the last one is always 0
  Point2D source;   ///< finite; z is 0 where the format or the file has no elevation
  Point2D receiver;
  double delay = 0.0;           ///< recording delay, seconds, never positive
  double sampleInterval = 0.0;  ///< seconds; 0 when the file does not tell
};

/// What a shot file holds.
struct ShotFileData {
  std::string format;              ///< "seg2", "segy", "su" or "mseed"
  std::vector<ShotRecord> traces;  ///< in channel order; may be empty
  std::vector<Message> warnings;   ///< what was repaired, ignored or looks odd, without the path
};

}  // namespace talvesk
