#include "widgets/PickStroke.h"

#include "model/TravelTime.h"

namespace talvesk {

void PickStroke::begin(Kind kind, int trace, double time, const Adjust& adjust) {
  mKind = kind;
  mTimes.clear();
  mLastTrace = trace;
  mLastTime = time;
  set(trace, time, adjust);
}

void PickStroke::set(int trace, double time, const Adjust& adjust) {
  mTimes[trace] = mKind == Kind::Remove ? kNoTime : adjust(trace, time);
}

void PickStroke::moveTo(int trace, double time, const TraceLayout& layout, const Adjust& adjust) {
  if (!active()) return;
  if (mKind == Kind::Move || trace < 0 || trace == mLastTrace) {
    set(mLastTrace, time, adjust);
    mLastTime = time;
    return;
  }
  const double from = layout.position(mLastTrace);
  const double way = layout.position(trace) - from;
  const int step = layout.rank(trace) < layout.rank(mLastTrace) ? -1 : 1;
  for (int passed = mLastTrace; passed != trace;) {
    passed = layout.stepped(passed, step);
    const double part = way == 0.0 ? 1.0 : (layout.position(passed) - from) / way;
    set(passed, mLastTime + part * (time - mLastTime), adjust);
  }
  mLastTrace = trace;
  mLastTime = time;
}

}  // namespace talvesk
