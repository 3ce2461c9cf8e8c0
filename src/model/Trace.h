#pragma once

#include "base/Point2D.h"
#include "base/Samples.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace talvesk {

/// One recorded channel of one shot file.
struct Trace {
  static constexpr std::uint32_t kSWavePair =
      2;                                         ///< built from two recordings of opposite polarity
  static constexpr std::uint32_t kFromFile = 3;  ///< read from a shot file
  static constexpr std::uint32_t kUnknown = 4;

  std::uint32_t waveKind = kUnknown;
  Samples samples;    ///< as displayed and picked
  Samples samplesDX;  ///< source struck in one direction (pairs only)
  Samples samplesSX;  ///< source struck in the opposite direction (pairs only)
  Samples filtered;   ///< after the current filter chain; empty without one
  Point2D sourcePosition;
  double sampleInterval = std::numeric_limits<double>::max();  ///< seconds
  Point2D receiverPosition;
  double furtherValue1 = std::numeric_limits<double>::max();
  double furtherValue2 = 0.0;
  double furtherValue3 = std::numeric_limits<double>::max();
  double delay = 0.0;  ///< recording delay, seconds, never positive
  std::int32_t furtherValue4 = std::numeric_limits<std::int32_t>::max();
  std::size_t droppedSamples = 0;  ///< taken off the front, so that sample 0 is at the shot
};

/// The traces of one shot file, in channel order.
using TraceSet = std::vector<Trace>;

/// Takes samples off the front of a trace, raw and components alike, as far as there are any.
void dropFirstSamples(Trace& trace, std::size_t count);

}  // namespace talvesk
