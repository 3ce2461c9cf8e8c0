#pragma once

#include "base/Point2D.h"
#include "base/Status.h"
#include "model/Parameters.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// First breaks of whole gathers at once: the path of first arrivals that goes best through the
/// onsets of all channels of a shot, see ArrivalPath.h and OnsetTrace.h, then each where it begins,
/// see PickRefinement.h, with an error for every pick, see PickError.h. Beside the picker of single
/// traces in FirstBreak.h, which stays as it is.

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

/// Picks the shots, in two passes: what the records of other shots say of the same way, where shot
/// and geophone change places within half a spacing, holds back later picks in the second. Sets
/// times, and that they wait to be confirmed. Traces that take no part stay as they are. The result
/// does not depend on the number of threads. \param goOn asked between shots, from the calling
/// thread; false stops \return failure, and nothing changed, when no shot has traces with a place
/// and a sample interval
Status pickJointly(TomoDocument& document, const std::vector<std::int32_t>& shots,
                   const JointPickOptions& options, JointPickOutcome& outcome,
                   const std::function<bool()>& goOn = nullptr);

/// Fills a shot: picks that a person made stay and the others go through them, whatever
/// options.keepConfirmed says. Those under the guide are within its reach or left out; the nearer
/// to it the likelier. Without points it guides nothing. Otherwise as pickJointly(). \return
/// failure, and nothing changed, when the shot has no traces with a place and a sample interval, or
/// the guide holds what is not finite or a negative reach
Status fillAlong(TomoDocument& document, std::int32_t shot, const GuideLine& guide,
                 const JointPickOptions& options, JointPickOutcome& outcome);

}  // namespace talvesk
