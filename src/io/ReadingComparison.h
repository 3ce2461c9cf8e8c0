#pragma once

#include "io/ReadShotFile.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk {

// The two readings of a shot file side by side. The program's rules read what the instruments write
// that they were made for; of other files they may lose much without a word.

/// What a reading amounts to, over the traces of all its shots; zeros where there is none.
struct ReadingSummary {
  struct Span {
    double least = 0.0;
    double most = 0.0;
  };

  std::size_t shots = 0;
  std::size_t traces = 0;
  Span samples;         ///< per trace
  Span sampleInterval;  ///< seconds
  Span delay;           ///< seconds
  Span sourceX;         ///< metres
  Span receiverX;       ///< metres
};
ReadingSummary summaryOf(const ReadShotFile& file);

/// Whether a reading by the program's rules may have lost something, going by that reading alone:
/// the standard is worth asking. Always so for SEG-Y and SU, of whose scalars, delays, elevations
/// and further records it shows nothing.
bool mayHaveLost(const ReadShotFile& byRules);

/// What the program's rules cannot carry of a file, a clause for each loss, without the path. Empty
/// when the standard cannot read the file, or finds what the rules find but for the scale of the
/// amplitudes and the last sample.
std::vector<Message> lostByRules(const ReadShotFile& byRules, const ReadShotFile& byStandard);

/// A reading by the standard that holds more than that by the program's rules.
struct FullerReading {
  ReadShotFile byStandard;
  std::vector<Message> losses;  ///< at least one
};

/// Reads a file again by the standard where that may help; none where it does not. The console
/// hears nothing of it.
std::optional<FullerReading> readFuller(const ReadShotFile& byRules);

}  // namespace talvesk
