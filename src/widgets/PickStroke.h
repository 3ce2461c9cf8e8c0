#pragma once

#include "widgets/TraceLayout.h"

#include <functional>
#include <map>

namespace talvesk {

/// The times that a drag of the mouse gives to traces, before they become an edit.
class PickStroke {
 public:
  enum class Kind {
    Run,    ///< every trace passed gets the time at which the pointer passed it
    Move,   ///< the trace of the start gets the time of the pointer, wherever that goes
    Remove  ///< every trace passed loses its pick
  };
  /// The time to set on a trace that the pointer passed at a time, seconds: drawn to a feature, or
  /// kept within the record.
  using Adjust = std::function<double(int trace, double time)>;

  /// \param trace where the button went down \param time seconds
  void begin(Kind kind, int trace, double time, const Adjust& adjust);
  /// The pointer went on to a trace and time. Traces between the last one and this get times on the
  /// straight way there. \param trace -1, or any for Kind::Move: stays on its trace
  void moveTo(int trace, double time, const TraceLayout& layout, const Adjust& adjust);
  void clear() { mTimes.clear(); }

  bool active() const { return !mTimes.empty(); }
  Kind kind() const { return mKind; }
  /// Measured times wanted, seconds, by trace; kNoTime removes.
  const std::map<int, double>& times() const { return mTimes; }

 private:
  void set(int trace, double time, const Adjust& adjust);

  Kind mKind = Kind::Run;
  std::map<int, double> mTimes;
  int mLastTrace = -1;
  double mLastTime = 0.0;
};

}  // namespace talvesk
