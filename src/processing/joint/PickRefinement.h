#pragma once

#include "processing/joint/OnsetTrace.h"

#include <vector>

namespace talvesk {

struct RefinedPick {
  double time = 0.0;       ///< seconds from the first sample
  double scatter = 0.0;    ///< seconds, see pickScatter()
  double beginning = 0.0;  ///< seconds, see beginningError()
  double arrival = 0.0;    ///< seconds, see arrivalError()
};

/// Where exactly an arrival begins that a path went through. The path goes by well smoothed
/// traces, whose onsets are early where an arrival stands far out of the noise; here its cut-off
/// rises with that. Six ways of picking a single trace move the result by most of what they
/// differ, see PickError.h. The break lies on average half an interval before the first sample
/// that shows it.
/// \param samples as recorded \param trace of these, as the path saw it \param time seconds from
/// the first sample
RefinedPick refinePick(Span<double> samples, const OnsetTrace& trace, double time, double stretch);

}  // namespace talvesk
