#pragma once

#include "base/Point2D.h"
#include "model/Parameters.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// What goes into picking along the line and what comes out of it, see JointPicker.h.

struct JointPickOptions {
  double slowest = parameters::kSlowestJoint.initial;  ///< apparent velocity, m/s
  double fastest = parameters::kFastestJoint.initial;  ///< m/s, above `slowest`
  double worst = parameters::kWorstPick.initial;       ///< ms; picks of a larger error are left out
  bool useFiltered = false;    ///< pick the filtered samples where there are any
  bool keepConfirmed = false;  ///< picks that a person made stay, and the rest follows them
  unsigned threads = 0;        ///< 0 takes as many as the machine has processors
};

struct JointPickOutcome {
  std::size_t traces = 0;    ///< of the shots, those that cannot be picked among them
  std::size_t good = 0;      ///< picks of an error up to parameters::kGoodPick
  std::size_t doubtful = 0;  ///< picks of a larger one
  std::size_t kept = 0;      ///< that a person made
  std::size_t mended = 0;    ///< traces that mends leave no pick, of disabled shots among them
  bool stopped = false;      ///< nothing was changed
  /// Per shot in the order given, per trace: one standard deviation in seconds; not a number where
  /// nothing was picked.
  std::vector<std::vector<double>> errors;
};

/// Where a person drew the first breaks of a shot, roughly.
struct GuideLine {
  /// x: receiver along the line, metres; z: seconds from the first sample, as picks are. In any
  /// order; traces before the first and behind the last have no guide.
  std::vector<Point2D> points;
  double reach = 10e-3;  ///< seconds that a pick may be off the line, at least 0
};

}  // namespace talvesk
