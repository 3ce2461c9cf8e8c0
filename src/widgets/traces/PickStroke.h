#pragma once

#include "widgets/traces/TraceLayout.h"

#include <functional>
#include <map>

namespace talvesk {

/// The times that a drag of the mouse gives to traces, before they become an edit.
class PickStroke {
 public:
  enum class Kind {
    Run,    ///< every trace gets the time at which the pointer came nearest to it, or crossed it
    Move,   ///< the trace of the start gets the time of the pointer, wherever that goes
    Remove  ///< every trace passed loses its pick
  };
  /// The time to set on a trace that the pointer passed at a time as drawn, seconds: the true one,
  /// drawn to a feature, or kept within the record.
  using Adjust = std::function<double(int trace, double time)>;

  /// Where the pointer is.
  struct Place {
    double position = 0.0;  ///< in the layout
    double time = 0.0;      ///< seconds, as drawn
  };

  /// \param trace where the button went down
  void begin(Kind kind, int trace, const Place& place, const TraceLayout& layout,
             const Adjust& adjust);
  /// The pointer went straight on to a place, over the traces between the last one and this. While
  /// a run has one trace, that follows the pointer up and down. A stroke keeps to the side of the
  /// shot that it began on, where the other one is folded over it. \param trace -1, or any for
  /// Kind::Move: stays on its trace
  void moveTo(int trace, const Place& place, const TraceLayout& layout, const Adjust& adjust);
  /// A pick that was to be moved is drawn over: the stroke is a run from where it began.
  void drawOn() { mKind = Kind::Run; }
  void clear() { mTimes.clear(); }

  bool active() const { return !mTimes.empty(); }
  Kind kind() const { return mKind; }
  /// Measured times wanted, seconds, by trace; kNoTime removes.
  const std::map<int, double>& times() const { return mTimes; }

 private:
  void set(int trace, double time, const Adjust& adjust);
  void enter(int trace);
  void approach(const Place& to, const TraceLayout& layout);

  Kind mKind = Kind::Run;
  std::map<int, double> mTimes;
  int mTrace = -1;            ///< the one that the pointer is at
  Place mPlace;               ///< of the pointer
  double mNearestTime = 0.0;  ///< of the pointer, where it was nearest to the trace, as drawn
  double mNearestAway = 0.0;  ///< how far away that was
};

}  // namespace talvesk
