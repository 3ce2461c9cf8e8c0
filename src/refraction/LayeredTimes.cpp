#include "refraction/LayeredTimes.h"

#include "refraction/WaveFit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr double kOnePlace = 1e-6;  // of the spacing of nodes

/// The least of values over evenly spread nodes, between nodes by the parabola through the least
/// one and its neighbours. \param value called with begin to end - 1
template <typename Value>
double leastOf(std::size_t begin, std::size_t end, Value value) {
  std::size_t at = begin;
  double least = value(begin);
  for (std::size_t i = begin + 1; i < end; ++i) {
    const double v = value(i);
    if (v < least) {
      least = v;
      at = i;
    }
  }
  if (at == begin || at + 1 == end) return least;
  const double left = value(at - 1);
  const double right = value(at + 1);
  const double bend = left - 2.0 * least + right;
  const double lean = right - left;
  return bend > 0.0 ? least - lean * lean / (8.0 * bend) : least;
}

/// Integral of slowness over x, per node.
std::vector<double> runningSlowness(const std::vector<double>& x,
                                    const std::vector<double>& slowness) {
  std::vector<double> sums(x.size(), 0.0);
  for (std::size_t i = 1; i < x.size(); ++i) {
    sums[i] = sums[i - 1] + 0.5 * (slowness[i - 1] + slowness[i]) * (x[i] - x[i - 1]);
  }
  return sums;
}

}  // namespace

LayeredTimes::LayeredTimes(LayeredGround ground) : mGround(std::move(ground)) {
  if (!mGround.firstSlowness.empty()) mFirst = runningSlowness(mGround.x, mGround.firstSlowness);
  for (const auto& boundary : mGround.boundaries) mAlong.push_back(alongBoundary(boundary));
  if (mGround.boundaries.size() > 1) mBetween.push_back(betweenBoundaries());
}

/// From every node to all that lie to its right, and so back: the shortest way that stays below the
/// boundary, a string pulled tight under its low points (the lower hull of the nodes between).
LayeredTimes::Table LayeredTimes::alongBoundary(const LayeredGround::Boundary& boundary) const {
  const std::size_t n = mGround.x.size();
  const std::vector<double>& x = mGround.x;
  const std::vector<double>& z = boundary.elevation;
  const std::vector<double> slow = runningSlowness(x, boundary.slowness);
  Table table(n);
  std::vector<std::size_t> hull;
  for (std::size_t i = 0; i < n; ++i) {
    hull.assign(1, i);
    for (std::size_t j = i + 1; j < n; ++j) {
      while (hull.size() > 1) {
        const std::size_t a = hull[hull.size() - 2];
        const std::size_t b = hull.back();
        if ((z[b] - z[a]) * (x[j] - x[b]) < (z[j] - z[b]) * (x[b] - x[a])) break;
        hull.pop_back();
      }
      const std::size_t from = hull.back();
      const double dx = x[j] - x[from];
      const double time =
          table.row(i)[from] + (slow[j] - slow[from]) * std::hypot(dx, z[j] - z[from]) / dx;
      table.row(i)[j] = time;
      table.row(j)[i] = time;
      hull.push_back(j);
    }
  }
  return table;
}

/// Per node of the second boundary the straight ways from all nodes of the first.
LayeredTimes::Table LayeredTimes::betweenBoundaries() const {
  const std::size_t n = mGround.x.size();
  const auto& upper = mGround.boundaries[0];
  const auto& lower = mGround.boundaries[1];
  const std::vector<double> slow = runningSlowness(mGround.x, upper.slowness);
  Table table(n);
  for (std::size_t c = 0; c < n; ++c) {
    double* row = table.row(c);
    for (std::size_t a = 0; a < n; ++a) {
      const double dx = mGround.x[c] - mGround.x[a];
      const double way = std::hypot(dx, upper.elevation[a] - lower.elevation[c]);
      row[a] = way * (a == c ? upper.slowness[a] : (slow[c] - slow[a]) / dx);
    }
  }
  return table;
}

/// The mean slowness of the first layer between two places, s/m.
double LayeredTimes::slownessOver(double from, double to) const {
  const std::size_t last = mGround.x.size() - 1;
  const auto cellOf = [&](double x) {
    const double place = (x - mGround.x.front()) / mGround.spacing();
    return static_cast<std::size_t>(std::clamp(place, 0.0, static_cast<double>(last - 1)));
  };
  const auto slowness = [&](std::size_t i) {
    return (mFirst[i + 1] - mFirst[i]) / mGround.spacing();
  };
  const auto sum = [&](double x) {
    const std::size_t i = cellOf(x);
    return mFirst[i] + (x - mGround.x[i]) * slowness(i);
  };
  const double way = to - from;
  return std::fabs(way) > kOnePlace * mGround.spacing() ? (sum(to) - sum(from)) / way
                                                        : slowness(cellOf(from));
}

/// A straight way takes the mean slowness between the surface and the depth that it goes down to.
double LayeredTimes::throughFirst(const Point2D& from, const Point2D& to, double depth) const {
  const double distance = std::hypot(to.x - from.x, to.z - from.z);
  if (mFirst.empty()) return distance / mGround.firstVelocity;
  const double time = distance * slownessOver(from.x, to.x);
  const double growth = mGround.growth;
  if (!(growth * depth > 0.0)) return time;
  const double grown = std::min(depth, mGround.growsTo);
  const double below = (depth - grown) / (1.0 + growth * grown);
  return time * (std::log1p(growth * grown) / growth + below) / depth;
}

double LayeredTimes::direct(const Point2D& from, const Point2D& to) const {
  const double distance = std::hypot(to.x - from.x, to.z - from.z);
  if (mFirst.empty()) return distance / mGround.firstVelocity;
  return divingOffset(distance, mGround.growth) * slownessOver(from.x, to.x);
}

const std::vector<double>& LayeredTimes::down(std::uint32_t layer, const Point2D& from) {
  std::vector<double>& known = mDown[{layer, from.x, from.z}];
  if (known.empty()) known = findDown(layer, from);
  return known;
}

/// From a point of the surface to every node of the top of a layer.
std::vector<double> LayeredTimes::findDown(std::uint32_t layer, const Point2D& from) const {
  const std::size_t n = mGround.x.size();
  std::vector<double> first(n);
  for (std::size_t i = 0; i < n; ++i) {
    const double z = mGround.boundaries[0].elevation[i];
    const double depth = mGround.surface.empty() ? 0.0 : mGround.surface[i] - z;
    first[i] = throughFirst(from, {mGround.x[i], z}, depth);
  }
  if (layer == 2) return first;
  std::vector<double> second(n);
  for (std::size_t c = 0; c < n; ++c) {
    const double* between = mBetween[0].row(c);
    second[c] = leastOf(0, n, [&](std::size_t a) { return first[a] + between[a]; });
  }
  return second;
}

/// On to every node, in one direction.
std::vector<double> LayeredTimes::along(const Table& table, const std::vector<double>& down,
                                        bool rightward) const {
  const std::size_t n = down.size();
  std::vector<double> reached(n);
  for (std::size_t j = 0; j < n; ++j) {
    const double* row = table.row(j);
    reached[j] = leastOf(rightward ? 0 : j, rightward ? j + 1 : n,
                         [&](std::size_t i) { return down[i] + row[i]; });
  }
  return reached;
}

std::vector<double> LayeredTimes::times(std::uint32_t layer, const Point2D& shot,
                                        const std::vector<Point2D>& receivers) {
  std::vector<double> times(receivers.size(), kUnknown);
  if (layer < 1 || layer > layers() || !isFinite(shot)) return times;
  if (layer == 1) {
    for (std::size_t i = 0; i < receivers.size(); ++i) {
      times[i] = direct(shot, receivers[i]);
    }
    return times;
  }
  const Table& table = mAlong[layer - 2];
  const std::vector<double>& start = down(layer, shot);
  const std::vector<double> right = along(table, start, true);
  const std::vector<double> left = along(table, start, false);
  for (std::size_t i = 0; i < receivers.size(); ++i) {
    if (!isFinite(receivers[i])) continue;
    const std::vector<double>& up = down(layer, receivers[i]);
    const std::vector<double>& reached = receivers[i].x > shot.x ? right : left;
    times[i] = leastOf(0, reached.size(), [&](std::size_t j) { return reached[j] + up[j]; });
  }
  return times;
}

}  // namespace talvesk
