#pragma once

#include "tomo/SearchField.h"
#include "tomo/fitted/CellMesh.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace talvesk {

/// A point on the surface, and the one or two cells of the top row that it belongs to.
struct SurfacePoint {
  Point2D at;  ///< metres, z downward
  std::vector<std::uint32_t> cells;

  bool isIn(std::uint32_t cell) const;
};

/// A cell that a ray crosses on its way from a receiver to the source, and where it leaves it.
struct RayLeg {
  std::uint32_t cell = 0;
  Point2D exit;
};

/// A leg down a field of times.
struct FieldStep {
  static constexpr double kNever = std::numeric_limits<double>::infinity();

  double arrival = kNever;  ///< at the point that is looked back from, seconds
  double time = kNever;     ///< at `leg.exit`
  RayLeg leg;
  std::uint32_t node = CellMesh::kNone;  ///< where the exit is one
  std::uint32_t place = 0;               ///< step of the cell's ring where it is none
};

/// First arrivals of one source at the nodes of a mesh, found in the order of their times. A node
/// is reached from the nodes of its cells and from between them, where times are interpolated
/// linearly (Asakawa and Kawanaka 1993, Seismic ray tracing using linear traveltime interpolation,
/// Geophysical Prospecting 41, 99-111). The times are good to a few per mille and only guide the
/// rays, whose own times are far better.
///
/// Holds the memory of a search; for one thread at a time.
class TimeField {
 public:
  explicit TimeField(const CellMesh& mesh) : mMesh(&mesh) {}

  /// \param slownesses s/m per cell, all positive; must outlive the queries
  void spread(const SurfacePoint& source, const std::vector<double>& slownesses);

  /// Ways to leave a receiver's cells towards the source, the earliest first: one for every side of
  /// a cell whose wave comes at most kRival of its time after the first.
  void departures(const SurfacePoint& receiver, std::vector<FieldStep>& steps) const;

  /// The way from a receiver down the field to the source, where the last leg ends.
  void descend(const FieldStep& departure, std::vector<RayLeg>& legs) const;

 private:
  void start(const SurfacePoint& source);
  void settle(std::uint32_t node);
  void reachAcross(const CellMesh::Ring& ring, double s, std::uint32_t from, std::uint32_t partner,
                   std::uint32_t later);
  void offer(std::uint32_t node, double time);
  template <typename Visit>
  void lookAround(std::uint32_t cell, const Point2D& from, double below, bool nodesOnly,
                  Visit visit) const;
  bool isSettled(std::uint32_t node) const;

  const CellMesh* mMesh;
  const std::vector<double>* mSlowness = nullptr;
  SurfacePoint mSource;
  double mBucketsPerSecond = 1.0;
  std::int64_t mNow = 0;                ///< bucket that is being worked through
  std::vector<double> mTime;            ///< seconds per node; infinite: not reached
  std::vector<std::uint32_t> mWaiting;  ///< bucket per node
  BucketRing mBuckets;
};

}  // namespace talvesk
