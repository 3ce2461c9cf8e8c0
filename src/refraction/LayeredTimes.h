#pragma once

#include "refraction/LayeredGround.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <tuple>
#include <vector>

namespace talvesk {

/// First arrivals through layered ground, by the least time of any way that a wave can take: down
/// to a boundary, along it or, where it is hollow, straight through the refractor below it, and up
/// again, all points free to move. For plane boundaries that is the head wave of the closed forms;
/// boundaries may undulate and velocities change along them. Ways down and up are straight within a
/// layer; what is slow along them is taken as it changes over x. Where the velocity of the first
/// layer grows with depth, they take the mean of what they go through, and the direct wave is a
/// diving one.
///
/// Time and memory go with the square of the number of nodes, once for a boundary, and the time for
/// the second boundary so for every point that is met the first time.
class LayeredTimes {
 public:
  explicit LayeredTimes(LayeredGround ground);

  const LayeredGround& ground() const { return mGround; }
  /// 1 is the direct wave, then the refractors.
  std::uint32_t layers() const { return static_cast<std::uint32_t>(mGround.boundaries.size()) + 1; }

  /// The wave of a layer from a shot to every receiver, seconds; not a number where the layer is
  /// none of the ground, or a position is no number.
  std::vector<double> times(std::uint32_t layer, const Point2D& shot,
                            const std::vector<Point2D>& receivers);

 private:
  /// Per node a line of times to all nodes.
  class Table {
   public:
    explicit Table(std::size_t nodes) : mNodes(nodes), mTimes(nodes * nodes, 0.0) {}
    double* row(std::size_t i) { return mTimes.data() + i * mNodes; }
    const double* row(std::size_t i) const { return mTimes.data() + i * mNodes; }

   private:
    std::size_t mNodes;
    std::vector<double> mTimes;
  };

  /// Through the first layer from a point of the surface. \param depth of `to` below the surface
  double throughFirst(const Point2D& from, const Point2D& to, double depth) const;
  double direct(const Point2D& from, const Point2D& to) const;
  double slownessOver(double from, double to) const;
  const std::vector<double>& down(std::uint32_t layer, const Point2D& from);
  std::vector<double> findDown(std::uint32_t layer, const Point2D& from) const;
  std::vector<double> along(const Table& table, const std::vector<double>& down,
                            bool rightward) const;
  Table alongBoundary(const LayeredGround::Boundary& boundary) const;
  Table betweenBoundaries() const;

  LayeredGround mGround;
  std::vector<double> mFirst;   ///< per node: slowness of the first layer, summed up over x
  std::vector<Table> mAlong;    ///< per boundary
  std::vector<Table> mBetween;  ///< from the first boundary to the second; none without one
  /// By layer, x and z of a point of the surface: its ways down to the top of the layer.
  std::map<std::tuple<std::uint32_t, double, double>, std::vector<double>> mDown;
};

}  // namespace talvesk
