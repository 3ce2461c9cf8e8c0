#include "tomo/fitted/TimeField.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace talvesk {
namespace {

constexpr std::uint32_t kNotWaiting = ~std::uint32_t{0};
constexpr std::int64_t kBucketMask = 0x7FFFFFFFU;
constexpr double kMostBuckets = 65536.0;
constexpr double kFlat = 1e-9;
constexpr double kNever = FieldStep::kNever;
// Of two waves that come so close together, relative to their time, the field may have the wrong
// one first.
constexpr double kRival = 0.003;

double distance(const Point2D& a, const Point2D& b) {
  const double dx = a.x - b.x;
  const double dz = a.z - b.z;
  return std::sqrt(dx * dx + dz * dz);
}

/// A piece of a cell's boundary whose ends have times, seen from a cell of slowness s. Between the
/// ends the times are interpolated linearly, which finds where a wave leaves the piece. advance()
/// corrects for the roundness of a wave that spreads from the source: without that, near a source
/// direct waves would be late and lose against refracted ones.
class Front {
 public:
  Front(const Point2D& a, const Point2D& b, double timeA, double timeB, double s)
      : mA(a), mX(b.x - a.x), mZ(b.z - a.z), mTime(timeA), mRise(timeB - timeA) {
    const double square = mX * mX + mZ * mZ;
    const double normal = s * s * square - mRise * mRise;
    if (!(normal > 0.0)) return;
    mNormal = std::sqrt(normal);
    mSlant = mRise / mNormal;
    mPerSquare = 1.0 / square;
  }

  bool radiates() const { return mNormal > 0.0; }

  /// Where the wave to `p` leaves the piece: 0 at a, 1 at b; outside: from no place between them.
  double origin(const Point2D& p, double& time) const {
    const double dx = p.x - mA.x;
    const double dz = p.z - mA.z;
    const double along = (dx * mX + dz * mZ) * mPerSquare;
    const double across = std::fabs(dx * mZ - dz * mX) * mPerSquare;
    time = mTime + mRise * along + across * mNormal;
    // A point of the piece itself is reached from its ends.
    return across > kFlat ? along - across * mSlant : -1.0;
  }
  /// By how much a round wave passes the place earlier than the interpolation says, seconds.
  double advance(double origin, const Point2D& source) const {
    const double x = mA.x + 0.5 * mX - source.x;
    const double z = mA.z + 0.5 * mZ - source.z;
    const double square = x * x + z * z;
    const double across = x * mZ - z * mX;
    return 0.5 * (mTime + 0.5 * mRise) * (across * across) / (square * square) * origin *
           (1.0 - origin);
  }
  double timeAt(double origin) const { return mTime + mRise * origin; }
  Point2D at(double origin) const { return {mA.x + mX * origin, mA.z + mZ * origin}; }

 private:
  Point2D mA;
  double mX, mZ;  ///< from a to b
  double mTime, mRise;
  double mNormal = 0.0, mSlant = 0.0, mPerSquare = 0.0;
};

/// Nodes of a ring, one bit each.
using RingSet = std::uint32_t;

template <typename Visit>
void forEach(RingSet set, Visit visit) {
  for (; set != 0; set &= set - 1) visit(static_cast<std::uint32_t>(__builtin_ctz(set)));
}

/// The nodes of the side that steps i to i + 1 of a ring belong to.
RingSet sideOf(std::uint32_t i) {
  constexpr RingSet kAll = (1U << CellMesh::kRing) - 1;
  constexpr RingSet kSide = (1U << (CellMesh::kSteps + 1)) - 1;
  const std::uint32_t first = i / CellMesh::kSteps * CellMesh::kSteps;
  return (kSide << first | kSide >> (CellMesh::kRing - first)) & kAll;
}

}  // namespace

bool SurfacePoint::isIn(std::uint32_t cell) const {
  return std::find(cells.begin(), cells.end(), cell) != cells.end();
}

bool TimeField::isSettled(std::uint32_t node) const {
  return mWaiting[node] == kNotWaiting && mTime[node] < kNever;
}

void TimeField::spread(const SurfacePoint& source, const std::vector<double>& slownesses) {
  mSlowness = &slownesses;
  mTime.assign(mMesh->nodeCount(), kNever);
  mWaiting.assign(mMesh->nodeCount(), kNotWaiting);
  start(source);
  for (; !mBuckets.empty(); ++mNow) {
    const auto current = static_cast<std::uint32_t>(mNow & kBucketMask);
    BucketRing::Bucket& bucket = mBuckets.at(current);
    for (std::uint32_t i = 0; i < bucket.size; ++i) {  // it may grow meanwhile
      const std::uint32_t node = bucket.waiting[i];
      if (mWaiting[node] != current) continue;
      mWaiting[node] = kNotWaiting;
      settle(node);
    }
    mBuckets.drop(bucket);
  }
}

void TimeField::start(const SurfacePoint& source) {
  mSource = source;
  mNow = 0;
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
  // Waves from between nodes may come earlier than the later of the two, which is settled now.
  const std::int64_t due = std::max(static_cast<std::int64_t>(time * mBucketsPerSecond), mNow);
  const auto bucket = static_cast<std::uint32_t>(due & kBucketMask);
  if (mWaiting[node] == bucket) return;
  mWaiting[node] = bucket;
  mBuckets.push(bucket, node);
}

void TimeField::settle(std::uint32_t node) {
  const double time = mTime[node];
  const Point2D at = mMesh->node(node);
  mMesh->forEachCellAt(node, [&](std::uint32_t cell, std::uint32_t k) {
    const CellMesh::Ring& ring = mMesh->ring(cell);
    RingSet later = 0;
    for (std::uint32_t i = 0; i < CellMesh::kRing; ++i) {
      if (mTime[ring[i]] > time) later |= 1U << i;
    }
    if (later == 0) return;
    const double s = (*mSlowness)[cell];
    forEach(later, [&](std::uint32_t i) {
      offer(ring[i], time + s * distance(mMesh->node(ring[i]), at));
    });
    reachAcross(ring, s, k, (k + 1) % CellMesh::kRing, later);
    reachAcross(ring, s, k, (k + CellMesh::kRing - 1) % CellMesh::kRing, later);
  });
}

/// Reaches the later nodes of a cell from between two neighbours of its ring.
void TimeField::reachAcross(const CellMesh::Ring& ring, double s, std::uint32_t from,
                            std::uint32_t partner, std::uint32_t later) {
  const std::uint32_t place = (from + 1) % CellMesh::kRing == partner ? from : partner;
  const RingSet reached = later & ~sideOf(place);
  if (reached == 0 || !isSettled(ring[partner])) return;
  const double timeA = mTime[ring[from]];
  const double timeB = mTime[ring[partner]];
  const Front front(mMesh->node(ring[from]), mMesh->node(ring[partner]), timeA, timeB, s);
  if (!front.radiates()) return;
  forEach(reached, [&](std::uint32_t k) {
    double time = 0.0;
    const double origin = front.origin(mMesh->node(ring[k]), time);
    if (!(origin > 0.0 && origin < 1.0)) return;
    // Never earlier than both ends: from every node an earlier one can be seen.
    const double round = time - front.advance(origin, mSource.at);
    if (round > std::min(timeA, timeB)) offer(ring[k], round);
  });
}

/// Calls visit(step) for the places of a cell from where a wave may come to `from`, as far as they
/// were reached before the time `below`.
template <typename Visit>
void TimeField::lookAround(std::uint32_t cell, const Point2D& from, double below, bool nodesOnly,
                           Visit visit) const {
  const CellMesh::Ring& ring = mMesh->ring(cell);
  const double s = (*mSlowness)[cell];
  if (mSource.isIn(cell) && below > 0.0) {
    visit(FieldStep{s * distance(from, mSource.at), 0.0, {cell, mSource.at}, CellMesh::kNone, 0});
  }
  for (std::uint32_t k = 0; k < CellMesh::kRing; ++k) {
    const double time = mTime[ring[k]];
    if (!(time < below)) continue;
    visit(FieldStep{time + s * distance(from, mMesh->node(ring[k])),
                    time,
                    {cell, mMesh->node(ring[k])},
                    ring[k],
                    k});
  }
  if (nodesOnly) return;
  for (std::uint32_t k = 0; k < CellMesh::kRing; ++k) {
    const std::uint32_t next = (k + 1) % CellMesh::kRing;
    const Front front(mMesh->node(ring[k]), mMesh->node(ring[next]), mTime[ring[k]],
                      mTime[ring[next]], s);
    if (!front.radiates()) continue;
    double arrival = 0.0;
    const double origin = front.origin(from, arrival);
    if (!(origin > 0.0 && origin < 1.0)) continue;
    const double time = front.timeAt(origin);
    if (!(time < below)) continue;
    visit(FieldStep{arrival, time, {cell, front.at(origin)}, CellMesh::kNone, k});
  }
}

void TimeField::departures(const SurfacePoint& receiver, std::vector<FieldStep>& steps) const {
  steps.clear();
  for (const std::uint32_t cell : receiver.cells) {
    std::array<FieldStep, 4> bySide;
    lookAround(cell, receiver.at, kNever, false, [&](const FieldStep& step) {
      FieldStep& best = bySide[step.place / CellMesh::kSteps];
      if (step.arrival < best.arrival) best = step;
    });
    for (const FieldStep& step : bySide) {
      if (step.arrival < kNever) steps.push_back(step);
    }
  }
  std::sort(steps.begin(), steps.end(),
            [](const FieldStep& a, const FieldStep& b) { return a.arrival < b.arrival; });
  const double latest = steps.front().arrival * (1.0 + kRival);
  while (steps.back().arrival > latest) steps.pop_back();
}

void TimeField::descend(const FieldStep& departure, std::vector<RayLeg>& legs) const {
  legs.clear();
  std::vector<std::uint32_t> cells;
  FieldStep step = departure;
  // A ray that winds for so long has met a flaw of the interpolation; from node to node the times
  // fall for certain.
  const std::size_t patience = 8 * (std::size_t{mMesh->rows()} + mMesh->cols());
  while (true) {
    legs.push_back(step.leg);
    if (step.time == 0.0) return;
    const Point2D from = step.leg.exit;
    const double below = step.time;
    const bool atNode = step.node != CellMesh::kNone;
    cells.clear();
    if (atNode) {
      mMesh->forEachCellAt(step.node,
                           [&](std::uint32_t cell, std::uint32_t) { cells.push_back(cell); });
    } else {
      const std::uint32_t other = mMesh->beyond(step.leg.cell, step.place / CellMesh::kSteps);
      cells.push_back(step.leg.cell);
      if (other != CellMesh::kNone) cells.push_back(other);
    }
    step = {};
    const auto choose = [&step](const FieldStep& s) {
      if (s.arrival < step.arrival) step = s;
    };
    for (const std::uint32_t cell : cells) {
      lookAround(cell, from, below, legs.size() > patience, choose);
    }
    if (step.arrival < kNever) continue;
    // Interpolated times need not fall: on to the earlier end of the piece, which is a node.
    for (const std::uint32_t cell : cells) {
      if (!atNode) lookAround(cell, from, std::nextafter(below, kNever), true, choose);
    }
    if (step.arrival == kNever) throw std::runtime_error("a ray has lost its way to the source");
  }
}

}  // namespace talvesk
