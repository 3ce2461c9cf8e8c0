#pragma once

#include "view/GatherMapping.h"

namespace talvesk {

/// What a trace is scaled by before the gain.
enum class TraceNormalise {
  EachTrace,  ///< its own largest deflection: every trace is as wide as the others
  WholeShot   ///< the largest deflection of the shot: amplitudes of traces compare
};

/// What a pick set near it is drawn to.
enum class PickSnap {
  None,
  Onset,         ///< where the noise ends, by the Akaike information criterion
  ZeroCrossing,  ///< nearest sign change
  Peak           ///< strongest near peak or trough
};

/// How a shot is shown and picked. The first seven are the user's settings of the same names.
struct TraceViewOptions {
  bool fillWiggle = true;     ///< fill the positive lobes
  bool zoomIn = false;        ///< open on the part of the record that holds first breaks
  bool cutHorizontal = true;  ///< a wiggle ends at the neighbouring trace
  bool showFiltered = true;   ///< the filtered copy where there is one, else the raw samples
  bool showAllTraces =
      false;               ///< open on all traces, however narrow; else on as many as are legible
  bool twoColors = false;  ///< fill positive and negative lobes, each in its colour
  bool errorBars = true;   ///< how far picks may be off, where that is known

  bool byDistance = false;  ///< traces at their distance along the line, else by channel
  GatherManner manner;      ///< by offset goes before by distance
  double gain = 1.0;        ///< kMinGain to kMaxGain; others are brought within
  TraceNormalise normalise = TraceNormalise::EachTrace;

  PickSnap snap = PickSnap::None;
  double snapRadius = 0.004;  ///< how far a pick may be drawn, seconds; at least eight samples
  double pickError = 0.0;     ///< that picks set by hand get, seconds; 0: none is told
  bool magnifier = false;     ///< enlarge what is around the cursor

  bool showAllPicks = false;       ///< picks of the other shots at the same geophones
  bool showComputedTimes = false;  ///< times through the current velocity model
  bool showNeighbour = false;      ///< picks of the nearest other shot of the string
  bool showReciprocal = false;  ///< what other shots say of the same ways, in the other direction
  bool showOnlyTraces = false;  ///< neither picks nor guides; picking rests
  bool airWave = false;         ///< line of the sound that travels through the air
  double airVelocity = 340.0;   ///< m/s, above 0

  static constexpr double kMinGain = 0.01;
  static constexpr double kMaxGain = 1e5;
};

inline bool operator==(const TraceViewOptions& a, const TraceViewOptions& b) {
  return a.fillWiggle == b.fillWiggle && a.zoomIn == b.zoomIn &&
         a.cutHorizontal == b.cutHorizontal && a.showFiltered == b.showFiltered &&
         a.showAllTraces == b.showAllTraces && a.twoColors == b.twoColors &&
         a.errorBars == b.errorBars && a.byDistance == b.byDistance && a.manner == b.manner &&
         a.gain == b.gain && a.normalise == b.normalise && a.snap == b.snap &&
         a.snapRadius == b.snapRadius && a.pickError == b.pickError && a.magnifier == b.magnifier &&
         a.showAllPicks == b.showAllPicks && a.showComputedTimes == b.showComputedTimes &&
         a.showNeighbour == b.showNeighbour && a.showReciprocal == b.showReciprocal &&
         a.showOnlyTraces == b.showOnlyTraces && a.airWave == b.airWave &&
         a.airVelocity == b.airVelocity;
}
inline bool operator!=(const TraceViewOptions& a, const TraceViewOptions& b) {
  return !(a == b);
}

}  // namespace talvesk
