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
  /// those of this one.
  std::vector<std::int32_t> stackedWith;
  std::vector<TraceMend> traces;  ///< by geophone; shorter where the rest has none
  /// The picks, in seconds of mended time, that were set aside with a disabled shot or a killed
  /// trace, by geophone; kUnpicked where there is none. They come back with it.
  std::vector<double> setAside;

  bool any() const;
};

}  // namespace talvesk
