#pragma once

#include "doctor/SurveyView.h"

#include <cstddef>
#include <vector>

namespace talvesk::doctor {

/// Whether an arrival is sharp enough to compare clocks by.
inline bool isSharp(const Onset& onset) {
  return onset.found && onset.signalToNoise >= 10.0;
}

/// What two records say of the difference of their clocks.
struct ClockPair {
  std::size_t a = 0;
  std::size_t b = 0;
  double difference = 0.0;  ///< seconds, clock of a less that of b
  double error = 0.0;       ///< seconds
  double atX = 0.0;         ///< metres: where a recorded what is compared
  double time = 0.0;        ///< seconds, of a there
};

/// By how much the record of a shot is late, seconds, as far as its own arrivals say: it lies
/// between `least` and `most`, for nothing travels faster or slower.
struct ClockBounds {
  bool known = false;
  double least = 0.0;
  double most = 0.0;
  double likely = 0.0;
  double error = 0.0;
};

ClockBounds clockBounds(const ShotView& shot);

/// Reciprocal times, and the times of records of one shot point.
std::vector<ClockPair> clockPairs(const std::vector<const ShotView*>& shots);

/// By how much each record is late.
struct ClockShift {
  double seconds = 0.0;
  double error = 0.0;     ///< of it beside the other records, one standard deviation
  std::size_t pairs = 0;  ///< that agree with it
};

/// The shifts that go best with all bounds and pairs, those that contradict the rest counting less
/// and less (least squares reweighted after P. J. Huber, 1964, Robust estimation of a location
/// parameter).
std::vector<ClockShift> clockShifts(const std::vector<ClockBounds>& bounds,
                                    const std::vector<ClockPair>& pairs);

}  // namespace talvesk::doctor
