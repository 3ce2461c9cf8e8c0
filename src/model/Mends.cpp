#include "model/Mends.h"

#include <algorithm>

namespace talvesk {

bool ShotMends::any() const {
  return timeShift != 0.0 || disabled || orderReversed || !stackedWith.empty() ||
         std::any_of(traces.begin(), traces.end(), [](const TraceMend& trace) {
           return trace.killed || trace.reversed || trace.mutedBefore > 0.0;
         });
}

}  // namespace talvesk
