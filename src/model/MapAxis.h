#pragma once

#include "base/Point2D.h"
#include "base/Status.h"
#include "model/MapCourse.h"

#include <vector>

namespace talvesk {

/// What surveyed geophones make the line of a survey.
enum class LineShape {
  kFitted,       ///< straight, with the least sum of squared offsets across it
  kThroughEnds,  ///< straight, through the first and the last geophone
  kBent          ///< from geophone to geophone
};

/// The line of a survey on the map. It begins where its first geophone stands beside it, and goes
/// on straight before its first corner and beyond its last one.
class MapAxis {
 public:
  /// Where a place lies by the line.
  struct Foot {
    double along = 0.0;   ///< metres from the first corner
    double across = 0.0;  ///< metres, positive to the right of who walks along it
  };

  MapAxis() = default;  ///< without corners; to be filled by through()

  /// Status failure, and `axis` as it was, for places that give no direction.
  /// \param geophones in their order along the line, finite
  static Status through(const std::vector<MapPoint>& geophones, LineShape shape, MapAxis& axis);

  /// Of the geophones that the line was made of, in their order. Those of a bent line stand on it.
  const std::vector<Foot>& geophones() const { return mGeophones; }
  /// By the part of the line that is nearest.
  Foot footOf(const MapPoint& place) const;
  MapPoint at(double along) const;

  const std::vector<MapPoint>& corners() const { return mCorners; }  ///< two of a straight line

 private:
  explicit MapAxis(std::vector<MapPoint> corners);

  std::vector<MapPoint> mCorners;
  std::vector<double> mAlong;  ///< of the corners
  std::vector<Foot> mGeophones;
};

/// Turns distances of the map into lengths along the ground: those of the straight pieces from one
/// known point of it to the next. Beyond the outermost points the ground is taken as level.
class GroundLength {
 public:
  /// \param ground distance on the map and elevation, finite, at least one point, in any order
  explicit GroundLength(std::vector<Point2D> ground);

  /// Metres; 0 at the first known point, negative before it.
  double at(double along) const;

 private:
  std::vector<double> mAlong;   ///< ascending, each once
  std::vector<double> mLength;  ///< along the ground
};

}  // namespace talvesk
