#pragma once

#include "base/Status.h"
#include "processing/joint/JointPickOptions.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// First breaks of whole gathers at once: the path of first arrivals that goes best through the
/// onsets of all channels of a shot, see ArrivalPath.h and OnsetTrace.h, then each where it begins,
/// see PickRefinement.h, in agreement with its neighbours, see ArrivalSmoothing.h, with an error
/// for every pick, see PickError.h. Beside the picker of single traces in FirstBreak.h, which stays
/// as it is.

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
/// to it the likelier. Without points it guides nothing. Otherwise as pickJointly().
///
/// \return failure, and nothing changed, when the shot has no traces with a place and a sample
/// interval, or the guide holds what is not finite or a negative reach
Status fillAlong(TomoDocument& document, std::int32_t shot, const GuideLine& guide,
                 const JointPickOptions& options, JointPickOutcome& outcome);

}  // namespace talvesk
