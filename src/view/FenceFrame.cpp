#include "view/FenceFrame.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

namespace talvesk {
namespace {

constexpr double kNumberWidth = 75.0;   ///< pixels that a number needs beside the next
constexpr double kNumberHeight = 30.0;  ///< and one above the next
constexpr int kMostNumbers = 10;
constexpr double kShortest = 40.0;  ///< pixels; a shorter axis has no numbers

using Offset = FenceCamera::Offset;

double length(const Offset& a, const Offset& b) {
  return std::hypot(a.right - b.right, a.up - b.up);
}

class Builder {
 public:
  Builder(const FenceScene& scene, const FenceCamera& camera) : mCamera(camera) {
    std::tie(mLow, mHigh) = frameBox(scene);
  }

  FenceFrame build() const {
    FenceFrame frame;
    const double azimuth = mCamera.azimuth * 3.14159265358979323846 / 180.0;
    const double nearNorth = std::cos(azimuth) >= 0.0 ? mLow.north : mHigh.north;
    const double nearEast = std::sin(azimuth) >= 0.0 ? mLow.east : mHigh.east;
    frame.easting = axis({mLow.east, nearNorth, mLow.z}, {mHigh.east, nearNorth, mLow.z});
    frame.northing = axis({nearEast, mLow.north, mLow.z}, {nearEast, mHigh.north, mLow.z});
    for (const double east : {mLow.east, mHigh.east}) {
      frame.lines.push_back({{east, mLow.north, mLow.z}, {east, mHigh.north, mLow.z}});
    }
    for (const double north : {mLow.north, mHigh.north}) {
      frame.lines.push_back({{mLow.east, north, mLow.z}, {mHigh.east, north, mLow.z}});
    }
    for (const FencePoint& p : frame.easting.places) {
      frame.lines.push_back({{p.east, mLow.north, p.z}, {p.east, mHigh.north, p.z}});
    }
    for (const FencePoint& p : frame.northing.places) {
      frame.lines.push_back({{mLow.east, p.north, p.z}, {mHigh.east, p.north, p.z}});
    }
    const FencePoint foot = leftCorner();
    FencePoint top = foot;
    top.z = mHigh.z;
    frame.lines.push_back({foot, top});
    frame.elevation = axis(foot, top);
    frame.elevation.outward = {-1.0, 0.0};
    frame.elevation.middle = top;
    return frame;
  }

 private:
  /// From low to high along one coordinate.
  FenceFrame::Axis axis(const FencePoint& from, const FencePoint& to) const {
    FenceFrame::Axis axis;
    axis.middle = middleOf(from, to);
    const Offset middle = mCamera.project(axis.middle);
    const Offset centre = mCamera.project(middleOf(mLow, {mHigh.east, mHigh.north, mLow.z}));
    const double away = length(middle, centre);
    axis.outward =
        away > 0.0 ? Offset{(middle.right - centre.right) / away, (middle.up - centre.up) / away}
                   : Offset{0.0, -1.0};
    const Offset start = mCamera.project(from);
    const Offset end = mCamera.project(to);
    if (length(start, end) < kShortest) return axis;
    const double numbers = std::max(std::fabs(end.right - start.right) / kNumberWidth,
                                    std::fabs(end.up - start.up) / kNumberHeight);
    const int most = std::clamp(static_cast<int>(numbers), 1, kMostNumbers);
    const bool upright = from.z != to.z;
    if (upright) {
      axis.ticks = shownTicks(from.z, to.z, most, "m");
    } else if (from.east != to.east) {
      axis.ticks = axisTicks(from.east, to.east, most);
    } else {
      axis.ticks = axisTicks(from.north, to.north, most);
    }
    for (const double value : axis.ticks.major) {
      FencePoint place = from;
      (upright ? place.z : from.east != to.east ? place.east : place.north) = value;
      axis.places.push_back(place);
    }
    return axis;
  }

  static FencePoint middleOf(const FencePoint& a, const FencePoint& b) {
    return {0.5 * (a.east + b.east), 0.5 * (a.north + b.north), 0.5 * (a.z + b.z)};
  }

  FencePoint leftCorner() const {
    const std::array<FencePoint, 4> corners = {{{mLow.east, mLow.north, mLow.z},
                                                {mHigh.east, mLow.north, mLow.z},
                                                {mLow.east, mHigh.north, mLow.z},
                                                {mHigh.east, mHigh.north, mLow.z}}};
    return *std::min_element(corners.begin(), corners.end(),
                             [this](const FencePoint& a, const FencePoint& b) {
                               return mCamera.project(a).right < mCamera.project(b).right;
                             });
  }

  const FenceCamera& mCamera;
  FencePoint mLow;
  FencePoint mHigh;
};

}  // namespace

FenceFrame fenceFrame(const FenceScene& scene, const FenceCamera& camera) {
  if (scene.panels.empty()) return {};
  return Builder(scene, camera).build();
}

}  // namespace talvesk
