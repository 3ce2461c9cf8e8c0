#pragma once

#include "base/Message.h"
#include "base/Point2D.h"
#include "model/Mends.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvesk::doctor {

/// A change of the survey that would put a finding right. Geometry belongs to the survey and is
/// edited there; the rest are mends, kept beside the data.
struct Proposal {
  enum class Kind {
    kTimeShift,      ///< seconds, of the shot
    kKillTraces,     ///< the traces
    kReverseTraces,  ///< polarity of the traces
    kMuteTraces,     ///< seconds, of the traces
    kReverseOrder,   ///< of the channels of the shot
    kMoveShot,       ///< points[0]
    kMoveGeophones,  ///< points, one per geophone, of the string of the shot
    kStack,          ///< the shots others into the shot; the others are disabled
    kDisableShot
  };

  Kind kind = Kind::kTimeShift;
  double seconds = 0.0;
  std::vector<std::size_t> traces;  ///< from 0
  std::vector<std::size_t> others;  ///< shots, from 0
  std::vector<Point2D> points;      ///< metres
};

/// Something doubtful about a recording.
struct Finding {
  enum class Kind {
    kShotPosition,
    kStationNumbers,
    kRepeatedPositions,
    kReversedOrder,
    kDoubledTrace,
    kMovedTrace,
    kGeophoneOffLine,
    kTriggerTime,
    kDeadTrace,
    kClippedTrace,
    kNoisyTrace,
    kReversedPolarity,
    kMistimedTrace,
    kSampleIntervals,
    kRepeatedShot,
    kOverlappingSpreads,
    kNoElevations
  };

  Kind kind = Kind::kDeadTrace;
  std::optional<std::size_t> shot;  ///< from 0; none when it concerns the survey
  std::vector<std::size_t> traces;  ///< from 0; empty when it concerns the whole shot
  Message text;                     ///< what is doubtful, with the figures that say so
  double confidence = 0.0;          ///< 0 to 1
  std::optional<Proposal> proposal;
  /// What shows it, drawn over distance: (x in metres, seconds) of what was measured and of what it
  /// should be. Either may be empty.
  std::vector<Point2D> measured;
  std::vector<Point2D> expected;
};

/// Whether it proposes something and is that sure of it, percent.
inline bool isSure(const Finding& finding, double percent) {
  return finding.proposal && 100.0 * finding.confidence >= percent;
}

}  // namespace talvesk::doctor
