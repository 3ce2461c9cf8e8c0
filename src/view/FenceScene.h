#pragma once

#include "base/Status.h"
#include "view/ColorPalette.h"
#include "view/ContourLines.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A place on the map with its elevation, metres.
struct FencePoint {
  double east = 0.0;
  double north = 0.0;
  double z = 0.0;
};

/// A section that stands upright on its line.
struct FencePanel {
  std::string name;                 ///< UTF-8
  SectionMesh mesh;                 ///< which cells are drawn; its corners are those of the line
  std::vector<FencePoint> corners;  ///< the same on the map
  std::vector<double> velocities;   ///< per cell, m/s
  std::vector<FencePoint> surface;  ///< its upper edge, along the line
  FencePoint low;                   ///< of the drawn cells
  FencePoint high;
};

/// Of the drawn cells, m/s.
ValueRange velocityRange(const FencePanel& panel);

/// Sections of several lines at their places on the map, coloured alike.
struct FenceScene {
  std::vector<FencePanel> panels;

  /// Of all panels; the unit cube without any.
  FencePoint low() const;
  FencePoint high() const;
};

/// Low and high corner of what a frame stands around: all panels, and some width for a line that
/// runs along an axis of the map.
std::pair<FencePoint, FencePoint> frameBox(const FenceScene& scene);

/// Puts the section of a document up. Fails, with the scene as it was, without a drawn cell and
/// where the line leaves the numbers. \param place of a survey distance (metres), z is not asked
Status addFencePanel(const TomoDocument& document, const std::string& name,
                     const std::function<FencePoint(double x)>& place, FenceScene& scene);

/// How a fence is looked at: a parallel projection from a direction.
struct FenceCamera {
  static constexpr double kLeastTilt = 0.0;  ///< degrees above the level
  static constexpr double kMostTilt = 90.0;  ///< straight from above

  double azimuth = 20.0;  ///< degrees, the direction of view, clockwise from north
  double tilt = 30.0;     ///< degrees that it looks down
  double exaggeration = 1.0;
  double metresPerPixel = 1.0;
  FencePoint centre;  ///< in the middle of the picture

  /// Pixels from the middle of the picture, rightward and upward.
  struct Offset {
    double right = 0.0;
    double up = 0.0;
  };
  Offset project(const FencePoint& point) const;

  void turnBy(double turned, double tilted);  ///< degrees
  void panBy(double right, double up);        ///< pixels that the picture moves
  /// All of a scene in a picture of that size, pixels, from the same direction.
  void fit(const FenceScene& scene, double width, double height);
};

}  // namespace talvesk
