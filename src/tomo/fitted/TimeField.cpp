#include "tomo/fitted/TimeField.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace talvesk {
namespace {

constexpr std::uint32_t kNotWaiting = SearchField::kNotQueued;
constexpr std::uint32_t kBucketMask = 0x7FFFFFFFU;
constexpr double kMostBuckets = 65536.0;
constexpr double kNever = std::numeric_limits<double>::infinity();

double distance(const Point2D& a, const Point2D& b) {
  const double dx = a.x - b.x;
  const double dz = a.z - b.z;
  return std::sqrt(dx * dx + dz * dz);
}

/// A piece of a cell's boundary with times that change linearly along it, seen from a cell of
/// slowness s: the waves that leave it inside make one angle with it.
class Front {
 public:
  Front(const Point2D& a, const Point2D& b, double timeA, double timeB, double s)
      : mA(a), mTimeA(timeA), mLength(distance(a, b)) {
    if (!(mLength > 0.0)) return;
    mX = (b.x - a.x) / mLength;
    mZ = (b.z - a.z) / mLength;
    mGradient = (timeB - timeA) / mLength;
    const double normal = s * s - mGradient * mGradient;
    if (!(normal > 0.0)) return;
    mNormal = std::sqrt(normal);
    mSlant = mGradient / mNormal;
  }

  bool radiates() const { return mNormal > 0.0; }

  /// Where the wave to `p` leaves the piece, metres from a; outside of 0 .. length: from no place
  /// between a and b.
  double origin(const Point2D& p, double& time) const {
    const double dx = p.x - mA.x;
    const double dz = p.z - mA.z;
    const double along = dx * mX + dz * mZ;
    const double across = std::fabs(dx * mZ - dz * mX);
    time = mTimeA + mGradient * along + across * mNormal;
    return along - across * mSlant;
  }
  double length() const { return mLength; }
  double timeAt(double origin) const { return mTimeA + mGradient * origin; }
  Point2D at(double origin) const { return {mA.x + mX * origin, mA.z + mZ * origin}; }

 private:
  Point2D mA;
  double mTimeA;
  double mLength;
  double mX = 0.0, mZ = 0.0;  ///< direction from a to b
  double mGradient = 0.0, mNormal = 0.0, mSlant = 0.0;
};

/// Whether node k of a ring lies on the side that steps i to i + 1 of the ring belong to.
bool onSideOf(std::uint32_t k, std::uint32_t i) {
  const std::uint32_t first = i / CellMesh::kSteps * CellMesh::kSteps;
  return (k + CellMesh::kRing - first) % CellMesh::kRing <= CellMesh::kSteps;
}

}  // namespace

bool SurfacePoint::isIn(std::uint32_t cell) const {
  return std::find(cells.begin(), cells.end(), cell) != cells.end();
}

struct TimeField::Around {
  double s = 0.0;  ///< slowness of the cell
  CellMesh::Ring ring{};
  std::array<Point2D, CellMesh::kRing> at;
};

struct TimeField::Step {
  double arrival = kNever;  ///< at the point that is looked back from
  double time = kNever;     ///< at `leg.exit`
  RayLeg leg;
  std::uint32_t node = CellMesh::kNone;  ///< where the exit is one
  std::uint32_t place = 0;               ///< step of the cell's ring where it is none
};

TimeField::Around TimeField::around(std::uint32_t cell) const {
  Around a;
  a.s = (*mSlowness)[cell];
  a.ring = mMesh->ring(cell);
  for (std::uint32_t k = 0; k < CellMesh::kRing; ++k) a.at[k] = mMesh->node(a.ring[k]);
  return a;
}

bool TimeField::isSettled(std::uint32_t node) const {
  return mWaiting[node] == kNotWaiting && mTime[node] < kNever;
}

void TimeField::spread(const SurfacePoint& source, const std::vector<double>& slownesses) {
  mSlowness = &slownesses;
  mTime.assign(mMesh->nodeCount(), kNever);
  mWaiting.assign(mMesh->nodeCount(), kNotWaiting);
  start(source);
  for (std::uint32_t current = 0; !mBuckets.empty(); current = (current + 1) & kBucketMask) {
    BucketRing::Bucket& bucket = mBuckets.at(current);
    for (std::uint32_t i = 0; i < bucket.size; ++i) {  // it may grow meanwhile
      const std::uint32_t node = bucket.nodes[i];
      if (mWaiting[node] != current) continue;
      mWaiting[node] = kNotWaiting;
      settle(node);
    }
    mBuckets.drop(bucket);
  }
}

void TimeField::start(const SurfacePoint& source) {
  mSource = source;
  const auto [fastest, slowest] = std::minmax_element(mSlowness->begin(), mSlowness->end());
  double longest = mMesh->longestChord();
  for (const std::uint32_t cell : source.cells) {
    for (const std::uint32_t n : mMesh->ring(cell)) {
      longest = std::max(longest, distance(source.at, mMesh->node(n)));
    }
  }
  const double width =
      std::max(mMesh->shortestStep() * *fastest, longest * *slowest / kMostBuckets);
  mBucketsPerSecond = 1.0 / width;
  mBuckets.reset(static_cast<std::uint32_t>(longest * *slowest * mBucketsPerSecond) + 3);
  for (const std::uint32_t cell : source.cells) {
    for (const std::uint32_t n : mMesh->ring(cell)) {
      offer(n, distance(source.at, mMesh->node(n)) * (*mSlowness)[cell]);
    }
  }
}

void TimeField::offer(std::uint32_t node, double time) {
  if (!(time < mTime[node])) return;
  mTime[node] = time;
  const auto bucket =
      static_cast<std::uint32_t>(static_cast<std::int64_t>(time * mBucketsPerSecond)) & kBucketMask;
  if (mWaiting[node] == bucket) return;
  mWaiting[node] = bucket;
  mBuckets.push(bucket, node);
}

void TimeField::settle(std::uint32_t node) {
  const double time = mTime[node];
  mMesh->forEachCellAt(node, [&](std::uint32_t cell, std::uint32_t k) {
    const Around a = around(cell);
    for (std::uint32_t i = 0; i < CellMesh::kRing; ++i) {
      if (mTime[a.ring[i]] > time) {
        offer(a.ring[i], time + a.s * distance(a.at[i], mMesh->node(node)));
      }
    }
    reachAcross(a, k, (k + 1) % CellMesh::kRing);
    reachAcross(a, k, (k + CellMesh::kRing - 1) % CellMesh::kRing);
  });
}

void TimeField::reachAcross(const Around& cell, std::uint32_t from, std::uint32_t partner) {
  if (!isSettled(cell.ring[partner])) return;
  const double timeA = mTime[cell.ring[from]];
  const double timeB = mTime[cell.ring[partner]];
  const Front front(cell.at[from], cell.at[partner], timeA, timeB, cell.s);
  if (!front.radiates()) return;
  const double first = std::min(timeA, timeB);
  const std::uint32_t place = (from + 1) % CellMesh::kRing == partner ? from : partner;
  for (std::uint32_t k = 0; k < CellMesh::kRing; ++k) {
    if (!(mTime[cell.ring[k]] > first) || onSideOf(k, place)) continue;
    double time = 0.0;
    const double origin = front.origin(cell.at[k], time);
    if (origin > 0.0 && origin < front.length()) offer(cell.ring[k], time);
  }
}

void TimeField::findStep(std::uint32_t cell, const Point2D& from, double below, bool nodesOnly,
                         Step& best) const {
  const Around a = around(cell);
  const auto consider = [&](double arrival, double time, const Point2D& exit, std::uint32_t node,
                            std::uint32_t place) {
    if (time < below && arrival < best.arrival) best = {arrival, time, {cell, exit}, node, place};
  };
  if (mSource.isIn(cell)) {
    consider(a.s * distance(from, mSource.at), 0.0, mSource.at, CellMesh::kNone, 0);
  }
  for (std::uint32_t k = 0; k < CellMesh::kRing; ++k) {
    const double time = mTime[a.ring[k]];
    consider(time + a.s * distance(from, a.at[k]), time, a.at[k], a.ring[k], k);
  }
  if (nodesOnly) return;
  for (std::uint32_t k = 0; k < CellMesh::kRing; ++k) {
    const std::uint32_t next = (k + 1) % CellMesh::kRing;
    const Front front(a.at[k], a.at[next], mTime[a.ring[k]], mTime[a.ring[next]], a.s);
    if (!front.radiates()) continue;
    double arrival = 0.0;
    const double origin = front.origin(from, arrival);
    if (!(origin > 0.0 && origin < front.length())) continue;
    consider(arrival, front.timeAt(origin), front.at(origin), CellMesh::kNone, k);
  }
}

void TimeField::descend(const SurfacePoint& receiver, std::vector<RayLeg>& legs) const {
  legs.clear();
  std::vector<std::uint32_t> cells = receiver.cells;
  Point2D from = receiver.at;
  double below = kNever;
  // A ray that winds for so long has met a flaw of the interpolation; from node to node the times
  // fall for certain.
  const std::size_t patience = 8 * (std::size_t{mMesh->rows()} + mMesh->cols());
  while (true) {
    Step step;
    for (const std::uint32_t cell : cells) {
      findStep(cell, from, below, legs.size() > patience, step);
    }
    if (step.arrival == kNever) {
      // Interpolated times need not fall: on to the earlier end of the piece, which is a node.
      for (const std::uint32_t cell : cells) {
        findStep(cell, from, std::nextafter(below, kNever), true, step);
      }
    }
    if (step.arrival == kNever) throw std::runtime_error("a ray has lost its way to the source");
    legs.push_back(step.leg);
    if (step.time == 0.0 && step.node == CellMesh::kNone && step.leg.exit == mSource.at) return;
    from = step.leg.exit;
    below = step.time;
    cells.clear();
    if (step.node != CellMesh::kNone) {
      mMesh->forEachCellAt(step.node,
                           [&](std::uint32_t cell, std::uint32_t) { cells.push_back(cell); });
      continue;
    }
    const std::uint32_t other = mMesh->beyond(step.leg.cell, step.place / CellMesh::kSteps);
    cells.push_back(step.leg.cell);
    if (other != CellMesh::kNone) cells.push_back(other);
  }
}

}  // namespace talvesk
