#pragma once

#include "tomo/fitted/CellMesh.h"
#include "tomo/fitted/ShotRays.h"
#include "tomo/fitted/TimeField.h"

#include <cstdint>
#include <vector>

namespace talvesk {

/// The side between two cells, on which a ray may cross anywhere.
struct RayCrossing {
  Point2D first;       ///< a corner
  Point2D span;        ///< from there to the other corner
  double place = 0.0;  ///< 0 .. 1 along the span
  double slope = 0.0;  ///< what a unit of `place` adds to the time, seconds

  Point2D at() const { return {first.x + place * span.x, first.z + place * span.z}; }
};

/// Takes a ray to the least time by Fermat's principle. As long as it crosses the same sides, its
/// time is a convex function of where it crosses them, and Newton's method finds the least one.
/// Where it is held at a corner it may pass on the other side of it; that is tried next.
///
/// Holds memory only; for one thread at a time.
class RayBending {
 public:
  explicit RayBending(const CellMesh& mesh);

  /// \param legs of a ray from `from`, each beginning where the one before ends
  /// \param pieces the bent ray
  void bend(const Point2D& from, const std::vector<RayLeg>& legs,
            const std::vector<double>& slownesses, std::vector<RayPiece>& pieces);

 private:
  struct Path {
    Point2D from, to;
    std::vector<std::uint32_t> cells;    ///< neighbours share a side
    std::vector<RayCrossing> crossings;  ///< between them, one less

    Point2D start(std::size_t i) const { return i == 0 ? from : crossings[i - 1].at(); }
    Point2D end(std::size_t i) const { return i == crossings.size() ? to : crossings[i].at(); }
  };

  void enter(Path& path, std::uint32_t cell, const Point2D& at) const;
  RayCrossing crossing(std::uint32_t from, std::uint32_t into, const Point2D& near) const;
  double time(const Path& path) const;
  void loosen(Path& path) const;
  void descend(Path& path);
  void relax(Path& path) const;
  double straighten(Path& path);
  void findStep(Path& path);
  bool passCorners(Path& path);
  bool passCorner(Path& path, std::size_t i);

  const CellMesh* mMesh;
  const std::vector<double>* mSlowness = nullptr;
  double mTiny = 0.0;  ///< metres; rounds the corner that a length has at zero
  double mWorth = 0.0;  ///< seconds that passing a corner must gain
  Path mPath, mTrial, mWindow;
  std::vector<double> mStep, mDiagonal, mUpper;
};

}  // namespace talvesk
