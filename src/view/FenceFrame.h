#pragma once

#include "view/AxisTicks.h"
#include "view/FenceScene.h"

#include <vector>

namespace talvesk {

/// The level grid below a fence with its easting and northing, and a scale of elevation at its
/// side.
struct FenceFrame {
  struct Line {
    FencePoint from;
    FencePoint to;
  };
  struct Axis {
    std::vector<FencePoint> places;  ///< of the numbers
    AxisTicks ticks;                 ///< as many majors; easting and northing in metres whatever is
                                     ///< shown, elevations in the unit shown
    FencePoint middle;               ///< beside which its name goes; of elevations the upper end
    FenceCamera::Offset outward;     ///< which side of it is free, a unit vector of the picture
  };
  std::vector<Line> lines;
  Axis easting;    ///< without numbers where it is too short in the picture
  Axis northing;   ///< the same
  Axis elevation;  ///< the same
};

/// On the sides that are next to who looks. Of nothing without a panel.
FenceFrame fenceFrame(const FenceScene& scene, const FenceCamera& camera);

}  // namespace talvesk
