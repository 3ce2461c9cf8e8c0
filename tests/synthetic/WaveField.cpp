#include "synthetic/WaveField.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <queue>
#include <utility>

namespace talvesk::synthetic {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kSamples = 4;      // a side, of the mean around a point
constexpr double kAbove = 2.0;   // steps above the surface that count as ground
constexpr double kAtOnce = 2.5;  // steps around the source whose times are set
constexpr double kNear = 2.0;    // metres around the source where times are divided by even ones

double meanSlowness(const Ground& ground, double x, double z, double step) {
  double sum = 0.0;
  for (int i = 0; i < kSamples; ++i) {
    const double atX = x + ((i + 0.5) / kSamples - 0.5) * step;
    const double surface = ground.elevation(atX);
    for (int j = 0; j < kSamples; ++j) {
      const double atZ = z + ((j + 0.5) / kSamples - 0.5) * step;
      sum += 1.0 / ground.velocity(atX, std::max(0.0, surface - atZ));
    }
  }
  return sum / (kSamples * kSamples);
}

}  // namespace

Raster rasterOf(const Ground& ground, double left, double right, double depth, double step) {
  Raster raster;
  raster.left = left;
  raster.step = step;
  raster.columns = static_cast<std::size_t>(std::ceil((right - left) / step)) + 1;
  double lowest = kInfinity, highest = -kInfinity;
  for (std::size_t column = 0; column < raster.columns; ++column) {
    lowest = std::min(lowest, ground.elevation(raster.x(column)));
    highest = std::max(highest, ground.elevation(raster.x(column)));
  }
  raster.bottom = lowest - depth;
  raster.rows = static_cast<std::size_t>(std::ceil((highest - raster.bottom) / step + kAbove)) + 1;
  raster.slownesses.assign(raster.columns * raster.rows, 0.0);
  for (std::size_t row = 0; row < raster.rows; ++row) {
    for (std::size_t column = 0; column < raster.columns; ++column) {
      const double x = raster.x(column), z = raster.z(row);
      if (z > ground.elevation(x) + kAbove * step) continue;
      raster.slownesses[row * raster.columns + column] = meanSlowness(ground, x, z, step);
    }
  }
  return raster;
}

/// A component of the gradient at a point: factor * u - rest, for the unknown u of the point.
/// `sign` is that of the component where waves come from the neighbour it was made with.
struct WaveField::Slope {
  bool known = false;
  double factor = 0.0;
  double rest = 0.0;
  double sign = 1.0;
  double from = kInfinity;  ///< seconds, of the neighbour
};

WaveField::WaveField(const Ground& ground, const Raster& raster, double source)
    : mGround(ground),
      mRaster(raster),
      mSourceX(source),
      mSourceZ(ground.elevation(source)),
      mSourceSlowness(1.0 / ground.velocity(source, 0.0)),
      mTimes(raster.slownesses.size(), kInfinity),
      mKnown(raster.slownesses.size(), false) {
  start();
  march();
}

double WaveField::distance(std::size_t point) const {
  return std::hypot(mRaster.x(point % mRaster.columns) - mSourceX,
                    mRaster.z(point / mRaster.columns) - mSourceZ);
}

double WaveField::evenTime(std::size_t point) const {
  return mSourceSlowness * distance(point);
}

void WaveField::start() {
  for (std::size_t point = 0; point < mTimes.size(); ++point) {
    const double slowness = mRaster.slownesses[point];
    if (slowness == 0.0 || distance(point) > kAtOnce * mRaster.step) continue;
    mTimes[point] = 0.5 * (mSourceSlowness + slowness) * distance(point);
    mKnown[point] = true;
  }
}

/// \param even, evenSlope time of even ground that the unknown is a multiple of, and its
/// derivative; 1 and 0 where the unknown is the time itself
WaveField::Slope WaveField::slopeAlong(std::size_t point, std::ptrdiff_t stride, std::size_t index,
                                       std::size_t count, double even, double evenSlope) const {
  Slope slope;
  const auto neighbour = [&](int steps) {
    return static_cast<std::size_t>(static_cast<std::ptrdiff_t>(point) + steps * stride);
  };
  const auto inside = [&](int steps) {
    const std::ptrdiff_t at = static_cast<std::ptrdiff_t>(index) + steps;
    return at >= 0 && at < static_cast<std::ptrdiff_t>(count) && mKnown[neighbour(steps)];
  };
  int side = 0;
  for (const int each : {-1, 1}) {
    if (!inside(each) || mTimes[neighbour(each)] >= slope.from) continue;
    slope.from = mTimes[neighbour(each)];
    side = each;
  }
  if (side == 0) return slope;
  const bool divided = evenSlope != 0.0 || even != 1.0;
  const auto unknownAt = [&](std::size_t at) {
    if (!divided) return mTimes[at];
    const double time = evenTime(at);
    return time > 0.0 ? mTimes[at] / time : 1.0;
  };
  const double first = unknownAt(neighbour(side));
  const bool second = inside(2 * side) && mTimes[neighbour(2 * side)] <= slope.from;
  const double scale = even / mRaster.step;
  slope.known = true;
  slope.sign = -side;
  slope.factor = slope.sign * scale * (second ? 1.5 : 1.0) + evenSlope;
  slope.rest =
      slope.sign * scale * (second ? 2.0 * first - 0.5 * unknownAt(neighbour(2 * side)) : first);
  return slope;
}

double WaveField::update(std::size_t column, std::size_t row) const {
  const std::size_t point = row * mRaster.columns + column;
  const double slowness = mRaster.slownesses[point];
  const double away = distance(point);
  const bool divided = away < kNear;
  const double even = divided ? evenTime(point) : 1.0;
  const double alongX = divided ? mSourceSlowness * (mRaster.x(column) - mSourceX) / away : 0.0;
  const double alongZ = divided ? mSourceSlowness * (mRaster.z(row) - mSourceZ) / away : 0.0;
  const auto stride = static_cast<std::ptrdiff_t>(mRaster.columns);
  const Slope x = slopeAlong(point, 1, column, mRaster.columns, even, alongX);
  const Slope z = slopeAlong(point, stride, row, mRaster.rows, even, alongZ);
  const double along = std::min(x.from, z.from) + slowness * mRaster.step;
  if (!x.known || !z.known) return along;
  const double a = x.factor * x.factor + z.factor * z.factor;
  const double b = x.factor * x.rest + z.factor * z.rest;
  const double c = x.rest * x.rest + z.rest * z.rest - slowness * slowness;
  const double root = b * b - a * c;
  if (root < 0.0) return along;
  const double unknown = (b + std::sqrt(root)) / a;
  const bool upwind = x.sign * (x.factor * unknown - x.rest) >= 0.0 &&
                      z.sign * (z.factor * unknown - z.rest) >= 0.0;
  return upwind ? std::max(even * unknown, std::min(x.from, z.from)) : along;
}

void WaveField::march() {
  using Entry = std::pair<double, std::size_t>;
  std::priority_queue<Entry, std::vector<Entry>, std::greater<>> front;
  const auto reach = [&](std::size_t point) {
    const std::size_t column = point % mRaster.columns, row = point / mRaster.columns;
    const auto tryAt = [&](std::size_t c, std::size_t r) {
      const std::size_t next = r * mRaster.columns + c;
      if (mKnown[next] || mRaster.slownesses[next] == 0.0) return;
      const double time = update(c, r);
      if (time >= mTimes[next]) return;
      mTimes[next] = time;
      front.emplace(time, next);
    };
    if (column > 0) tryAt(column - 1, row);
    if (column + 1 < mRaster.columns) tryAt(column + 1, row);
    if (row > 0) tryAt(column, row - 1);
    if (row + 1 < mRaster.rows) tryAt(column, row + 1);
  };
  for (std::size_t point = 0; point < mTimes.size(); ++point) {
    if (mKnown[point]) reach(point);
  }
  while (!front.empty()) {
    const Entry next = front.top();
    front.pop();
    if (mKnown[next.second]) continue;
    mKnown[next.second] = true;
    reach(next.second);
  }
}

double WaveField::at(double x) const {
  const double z = mGround.elevation(x);
  const double column = (x - mRaster.left) / mRaster.step;
  const double row = (z - mRaster.bottom) / mRaster.step;
  const double left = std::min(std::floor(column), static_cast<double>(mRaster.columns) - 2.0);
  const double below = std::floor(row);
  const double away = std::hypot(x - mSourceX, z - mSourceZ);
  double sum = 0.0;
  for (const int i : {0, 1}) {
    for (const int j : {0, 1}) {
      const std::size_t point = static_cast<std::size_t>(below + j) * mRaster.columns +
                                static_cast<std::size_t>(left + i);
      const double weight =
          (1.0 - std::fabs(column - left - i)) * (1.0 - std::fabs(row - below - j));
      if (weight <= 0.0) continue;
      // Near the source times are a cone, and its multiple is what runs evenly.
      const double even = evenTime(point);
      sum += weight * (away >= kNear ? mTimes[point] : even > 0.0 ? mTimes[point] / even : 1.0);
    }
  }
  return away >= kNear ? sum : sum * mSourceSlowness * away;
}

}  // namespace talvesk::synthetic
