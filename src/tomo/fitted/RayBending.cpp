#include "tomo/fitted/RayBending.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kMostSteps = 12;        ///< of Newton's method; four to six are usual
constexpr int kMostHalvings = 6;      ///< of a step that leads too far
constexpr int kMostRounds = 4;        ///< of passing corners; the second seldom finds any
constexpr double kLittleGain = 1e-5;  ///< of the time; less than a step usually brings
constexpr double kEnoughGain = 1e-7;  ///< of the time; a tenth of a microsecond in a second
constexpr double kRounding[] = {3e-2, 1e-3, 1e-4};
constexpr double kWorth = 1e-5;       ///< of the time: what passing a corner must gain
constexpr double kSmallTurn = 1e-3;  ///< square of an angle that is always looked at
constexpr double kNear = 1e-3;       ///< of a side, to a corner
constexpr double kOff = 0.1;         ///< of a side: where crossings near a corner begin

Point2D operator-(const Point2D& a, const Point2D& b) {
  return {a.x - b.x, a.z - b.z};
}
double dot(const Point2D& a, const Point2D& b) {
  return a.x * b.x + a.z * b.z;
}
double length(const Point2D& v) {
  return std::sqrt(dot(v, v));
}

/// Whether a crossing ends up in a corner, perhaps because its side goes no further.
bool inCorner(const RayCrossing& c) {
  return c.place < kNear || c.place > 1.0 - kNear;
}

}  // namespace

RayBending::RayBending(const CellMesh& mesh) : mMesh(&mesh), mTiny(1e-4 * mesh.longestChord()) {}

void RayBending::bend(const Point2D& from, const std::vector<RayLeg>& legs,
                      const std::vector<double>& slownesses, std::vector<RayPiece>& pieces) {
  mSlowness = &slownesses;
  Path& path = mPath;
  path.from = from;
  path.to = legs.back().exit;
  path.cells.clear();
  path.crossings.clear();
  Point2D at = from;
  for (const RayLeg& leg : legs) {
    enter(path, leg.cell, at);
    at = leg.exit;
  }
  loosen(path);
  mWorth = kWorth * straighten(path);
  for (int round = 0; round < kMostRounds && passCorners(path); ++round) descend(path);

  pieces.clear();
  for (std::size_t i = 0; i < path.cells.size(); ++i) {
    pieces.push_back({path.cells[i], length(path.end(i) - path.start(i))});
  }
}

RayCrossing RayBending::crossing(std::uint32_t from, std::uint32_t into,
                                 const Point2D& near) const {
  const std::uint32_t side = mMesh->sideTowards(from, into);
  RayCrossing c;
  c.first = mMesh->corner(from, side);
  c.span = mMesh->corner(from, (side + 1) % 4) - c.first;
  const double square = dot(c.span, c.span);
  if (square > 0.0) c.place = std::clamp(dot(near - c.first, c.span) / square, 0.0, 1.0);
  return c;
}

/// Lets a path go on into `cell`, crossing near `at`. A cell that it only turned in is left out.
void RayBending::enter(Path& path, std::uint32_t cell, const Point2D& at) const {
  std::vector<std::uint32_t>& cells = path.cells;
  if (cells.empty()) {
    cells.push_back(cell);
    return;
  }
  const std::uint32_t last = cells.back();
  if (cell == last) return;
  if (cells.size() > 1 && cells[cells.size() - 2] == cell) {
    cells.pop_back();
    path.crossings.pop_back();
    return;
  }
  if (mMesh->sideTowards(last, cell) == CellMesh::kNone) {
    // Across a corner: by way of the faster of the two cells beside.
    const std::uint32_t cols = mMesh->cols();
    const std::uint32_t beside = last / cols * cols + cell % cols;
    const std::uint32_t above = cell / cols * cols + last % cols;
    enter(path, (*mSlowness)[beside] < (*mSlowness)[above] ? beside : above, at);
    enter(path, cell, at);
    return;
  }
  path.crossings.push_back(crossing(last, cell, at));
  cells.push_back(cell);
}

double RayBending::time(const Path& path) const {
  double sum = 0.0;
  Point2D at = path.from;
  for (std::size_t i = 0; i < path.cells.size(); ++i) {
    const Point2D next = path.end(i);
    const Point2D v = next - at;
    sum += (*mSlowness)[path.cells[i]] * std::sqrt(dot(v, v) + mTiny * mTiny);
    at = next;
  }
  return sum;
}

/// Moves crossings that meet in a corner apart: a piece without length has no direction in which
/// the time falls.
void RayBending::loosen(Path& path) const {
  for (std::size_t i = 1; i < path.crossings.size(); ++i) {
    RayCrossing& a = path.crossings[i - 1];
    RayCrossing& b = path.crossings[i];
    if (length(b.at() - a.at()) > mTiny) continue;
    for (RayCrossing* c : {&a, &b}) c->place = std::clamp(c->place, kOff, 1.0 - kOff);
  }
}

/// Moves the crossings to where the time is least, and returns it.
double RayBending::straighten(Path& path) {
  for (const double round : kRounding) {
    mTiny = round * mMesh->longestChord();
    descend(path);
  }
  return time(path);
}

void RayBending::descend(Path& path) {
  double least = time(path);
  for (int step = 0; step < kMostSteps; ++step) {
    findStep(path);
    const double before = least;
    mTrial.crossings = path.crossings;
    double part = 1.0;
    for (int halving = 0; halving <= kMostHalvings; ++halving, part *= 0.5) {
      for (std::size_t i = 0; i < path.crossings.size(); ++i) {
        path.crossings[i].place = std::clamp(mTrial.crossings[i].place + part * mStep[i], 0.0, 1.0);
      }
      const double reached = time(path);
      if (reached < least) {
        least = reached;
        break;
      }
    }
    if (!(least < before)) path.crossings = mTrial.crossings;
    if (before - least > kLittleGain * before) continue;
    // Corners have cut the step short; one by one the crossings find what remains.
    relax(path);
    least = time(path);
    if (before - least < kEnoughGain * before) return;
  }
}

/// Moves one crossing after the other. Each step uses a curvature that the true one never exceeds,
/// so that the time falls for certain.
void RayBending::relax(Path& path) const {
  for (std::size_t i = 0; i < path.crossings.size(); ++i) {
    RayCrossing& c = path.crossings[i];
    double slope = 0.0;
    double curvature = 0.0;
    const auto add = [&](const Point2D& v, std::uint32_t cell) {
      const double s = (*mSlowness)[cell] / std::sqrt(dot(v, v) + mTiny * mTiny);
      slope += s * dot(v, c.span);
      curvature += s * dot(c.span, c.span);
    };
    add(c.at() - path.start(i), path.cells[i]);
    add(c.at() - path.end(i + 1), path.cells[i + 1]);
    if (curvature > 0.0) c.place = std::clamp(c.place - slope / curvature, 0.0, 1.0);
  }
}

/// Newton's step of all crossings that are not held at a corner, and the slopes where they are. The
/// matrix has three diagonals, as only neighbours share a piece.
void RayBending::findStep(Path& path) {
  const std::size_t n = path.crossings.size();
  mStep.assign(n, 0.0);
  mDiagonal.assign(n, 0.0);
  mUpper.assign(n, 0.0);
  for (RayCrossing& c : path.crossings) c.slope = 0.0;
  for (std::size_t i = 0; i <= n; ++i) {
    const Point2D v = path.end(i) - path.start(i);
    const double l = std::sqrt(dot(v, v) + mTiny * mTiny);
    const double s = (*mSlowness)[path.cells[i]] / l;
    RayCrossing* const a = i > 0 ? &path.crossings[i - 1] : nullptr;
    RayCrossing* const b = i < n ? &path.crossings[i] : nullptr;
    const double va = a != nullptr ? dot(v, a->span) / l : 0.0;
    const double vb = b != nullptr ? dot(v, b->span) / l : 0.0;
    if (a != nullptr) {
      a->slope -= s * l * va;
      mDiagonal[i - 1] += s * (dot(a->span, a->span) - va * va);
    }
    if (b != nullptr) {
      b->slope += s * l * vb;
      mDiagonal[i] += s * (dot(b->span, b->span) - vb * vb);
    }
    if (a != nullptr && b != nullptr) mUpper[i - 1] = -s * (dot(a->span, b->span) - va * vb);
  }
  for (std::size_t i = 0; i < n; ++i) {
    const RayCrossing& c = path.crossings[i];
    if (!((c.place <= 0.0 && c.slope > 0.0) || (c.place >= 1.0 && c.slope < 0.0))) {
      mStep[i] = -path.crossings[i].slope;
      mDiagonal[i] *= 1.0 + 1e-9;
      continue;
    }
    mDiagonal[i] = 1.0;
    mUpper[i] = 0.0;
    if (i > 0) mUpper[i - 1] = 0.0;
  }
  for (std::size_t i = 1; i < n; ++i) {
    const double f = mDiagonal[i - 1] > 0.0 ? mUpper[i - 1] / mDiagonal[i - 1] : 0.0;
    mDiagonal[i] -= f * mUpper[i - 1];
    mStep[i] -= f * mStep[i - 1];
  }
  for (std::size_t i = n; i-- > 0;) {
    if (i + 1 < n) mStep[i] -= mUpper[i] * mStep[i + 1];
    mStep[i] = mDiagonal[i] > 0.0 ? mStep[i] / mDiagonal[i] : 0.0;
  }
}

bool RayBending::passCorners(Path& path) {
  bool any = false;
  for (std::size_t i = 0; i < path.crossings.size(); ++i) {
    if (inCorner(path.crossings[i]) && passCorner(path, i)) any = true;
  }
  return any;
}

/// Tries the other way around the corner that holds crossing i, between the fixed ends of the cells
/// around, and takes it when it is faster.
bool RayBending::passCorner(Path& path, std::size_t i) {
  const std::uint32_t a = path.cells[i];
  const std::uint32_t b = path.cells[i + 1];
  const std::uint32_t side = mMesh->sideTowards(a, b);
  const RayCrossing& c = path.crossings[i];
  const bool atFirst = c.place < 0.5;
  // Crossings may have been laid from the other cell, but `first` is a corner of both.
  const bool sameWay = mMesh->corner(a, side) == c.first;
  const std::uint32_t other = (side + (atFirst == sameWay ? 3 : 1)) % 4;
  const std::uint32_t besideA = mMesh->beyond(a, other);
  const std::uint32_t besideB = mMesh->beyond(b, other);
  if (besideA == CellMesh::kNone || besideB == CellMesh::kNone) return false;

  // A turn saves the square of its angle at most, which slower cells easily cost.
  const std::vector<double>& s = *mSlowness;
  const double here = std::min(s[a], s[b]);
  const double turn = c.slope / (here * length(c.span));
  if (std::min(s[besideA], s[besideB]) > here * (1.0 + kSmallTurn + turn * turn)) return false;

  const std::size_t first = i >= 2 ? i - 2 : 0;
  const std::size_t last = std::min(i + 3, path.crossings.size());  // cells first .. last
  Path& way = mWindow;
  way.from = path.start(first);
  way.to = path.end(last);
  way.cells.assign(path.cells.begin() + first, path.cells.begin() + last + 1);
  way.crossings.assign(path.crossings.begin() + first, path.crossings.begin() + last);
  const double before = time(way);

  way.cells.clear();
  way.crossings.clear();
  const Point2D corner = c.at();
  for (std::size_t k = first; k <= last; ++k) {
    enter(way, path.cells[k], k > first ? path.start(k) : corner);
    if (k != i) continue;
    for (const std::uint32_t cell : {besideA, besideB}) {
      enter(way, cell, corner);
    }
  }
  loosen(way);
  if (!(straighten(way) < before - mWorth)) return false;

  path.cells.erase(path.cells.begin() + first, path.cells.begin() + last + 1);
  path.cells.insert(path.cells.begin() + first, way.cells.begin(), way.cells.end());
  path.crossings.erase(path.crossings.begin() + first, path.crossings.begin() + last);
  path.crossings.insert(path.crossings.begin() + first, way.crossings.begin(), way.crossings.end());
  return true;
}

}  // namespace talvesk
