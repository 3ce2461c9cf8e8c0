#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// What is put right of one trace of a recording. The time is mended time.
struct TraceMend {
  bool killed = false;       ///< its samples count for nothing: all are zero
  bool reversed = false;     ///< its samples change their sign
  double mutedBefore = 0.0;  ///< seconds; samples before are zero; 0 mutes none
  /// Its samples are so many times as large, kLeastGain to kMostGain; 1 leaves them as they are.
  double gain = 1.0;

  static constexpr double kLeastGain = 0.01;
  static constexpr double kMostGain = 100.0;

  bool any() const { return killed || reversed || mutedBefore > 0.0 || gain != 1.0; }
};

bool operator==(const TraceMend& a, const TraceMend& b);

/// A pick as the record has it, before the mends.
struct RecordedPick {
  std::uint32_t channel = 0;  ///< of the record, from 0: order and geophones may be reversed
  double time = 0.0;          ///< seconds of recorded time
  bool waits = false;         ///< for confirmation
  double error = 0.0;         ///< one standard deviation, seconds; 0: not known
};

/// What is put right of the recording of one shot: kept beside the data, never in them, so that it
/// can be taken back years later. The trace sets of a survey hold what comes of it.
struct ShotMends {
  /// Seconds, a whole number of sample intervals. Positive: the record was late, and mended time is
  /// recorded time less the shift.
  double timeShift = 0.0;
  bool disabled = false;  ///< the shot has no picks and takes no part in anything
  /// The channels of the record run against the geophones: the last trace is at the first of them.
  bool orderReversed = false;
  /// Trace sets, from 0, of the same shot point and spread whose mended samples are averaged with
  /// those of this one. Their own stacks do not count, and neither do traces killed in them.
  std::vector<std::int32_t> stackedWith;
  std::vector<TraceMend> traces;  ///< by geophone; shorter where the rest has none
  /// By ascending channel, filled by setMends(): every pick that the shot had when its mends were
  /// given. One that has no place among the mended times, for its shot is disabled, its trace
  /// killed, or it would lie before the shot, comes back from here; and one that is taken back
  /// unchanged is the very number that it was. Where the shot has another pick now, that one
  /// counts.
  std::vector<RecordedPick> picks;

  bool any() const;             ///< whatever is put right
  bool changesSamples() const;  ///< all but a shot that is only disabled
};

/// Whether both put right the same; the picks that they keep are not looked at.
bool samePurpose(const ShotMends& a, const ShotMends& b);

/// Mends of a trace set; none where it has none. \param mends of a survey, per trace set
const ShotMends& mendsOf(const std::vector<ShotMends>& mends, std::size_t set);

/// Mends of a trace, by geophone; none where it has none.
const TraceMend& mendOf(const ShotMends& mends, std::size_t trace);

/// Whether a trace may have a pick: its shot is not disabled, and it is not killed.
bool takesPart(const ShotMends& mends, std::size_t trace);

}  // namespace talvesk
