#include "widgets/traces/PickStroke.h"

#include "model/TravelTime.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {

void PickStroke::begin(Kind kind, int trace, const Place& place, const TraceLayout& layout,
                       const Adjust& adjust) {
  mKind = kind;
  mTimes.clear();
  mPlace = place;
  enter(trace);
  approach(place, layout);
  set(trace, place.time, adjust);
}

void PickStroke::set(int trace, double time, const Adjust& adjust) {
  mTimes[trace] = mKind == Kind::Remove ? kNoTime : adjust(trace, time);
}

void PickStroke::enter(int trace) {
  mTrace = trace;
  mNearestAway = std::numeric_limits<double>::infinity();
}

/// On a steep arrival the time changes much across the width of a trace: it is that at the trace
/// which counts, not that where the pointer went on to the next one.
void PickStroke::approach(const Place& to, const TraceLayout& layout) {
  const double at = layout.position(mTrace);
  const double way = to.position - mPlace.position;
  const double part = way == 0.0 ? 1.0 : std::clamp((at - mPlace.position) / way, 0.0, 1.0);
  const double away = std::fabs(mPlace.position + part * way - at);
  if (away > mNearestAway) return;
  mNearestAway = away;
  mNearestTime = mPlace.time + part * (to.time - mPlace.time);
}

void PickStroke::moveTo(int trace, const Place& place, const TraceLayout& layout,
                        const Adjust& adjust) {
  if (!active()) return;
  if (mKind == Kind::Move) {
    approach(place, layout);
    mPlace = place;
    return set(mTrace, place.time, adjust);
  }
  if (trace < 0) trace = mTrace;
  if (!layout.sameSide(trace, mTrace)) trace = layout.nearestBeside(mTrace, place.position);
  approach(place, layout);
  if (trace != mTrace || mTimes.size() > 1) {
    set(mTrace, mNearestTime, adjust);
  } else {
    set(mTrace, place.time, adjust);
  }
  const int step = layout.rank(trace) < layout.rank(mTrace) ? -1 : 1;
  for (int at = mTrace; at != trace;) {
    at = layout.stepped(at, step);
    if (!layout.sameSide(at, mTrace)) continue;
    enter(at);
    approach(place, layout);
    set(mTrace, mNearestTime, adjust);
  }
  mPlace = place;
}

}  // namespace talvesk
