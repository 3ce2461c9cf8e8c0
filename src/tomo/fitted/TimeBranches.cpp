#include "tomo/fitted/TimeBranches.h"

#include "numerics/Medians.h"
#include "numerics/RobustFit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kGroups = 48;    // of offsets
constexpr std::size_t kLeastNear = 2;  // groups of a branch from the shot
constexpr std::size_t kLeastFar = 3;   // groups of a branch of a refractor
constexpr int kLineRounds = 10;
constexpr int kCurvatures = 25;
constexpr int kSharpenings = 4;
constexpr int kFineSteps = 10;
constexpr double kFineStep = 1.04;
constexpr double kSlower = 1.1;  // a refractor is faster than what lies above by this

/// The picks of similar offset as one point.
struct Point {
  double offset, time;
  double weight;  ///< picks per sigma
};

/// Shape of a near branch: its time is that times the slowness at the surface.
double shapeAt(double offset, double curvature) {
  return curvature > 0.0 ? std::asinh(curvature * offset) / curvature : offset;
}

std::vector<Point> groupsOf(const LinePicks& line) {
  std::vector<Point> points;
  const std::size_t count = line.picks.size();
  const std::size_t size = std::max<std::size_t>(1, (count + kGroups - 1) / kGroups);
  std::vector<double> offsets, times, sigmas;
  for (std::size_t i = 0; i < count;) {
    const std::size_t end = count - i < 2 * size ? count : i + size;
    offsets.clear();
    times.clear();
    sigmas.clear();
    for (; i < end; ++i) {
      offsets.push_back(line.picks[i].offset);
      times.push_back(line.picks[i].time);
      sigmas.push_back(line.picks[i].sigma);
    }
    const double picks = static_cast<double>(times.size());
    points.push_back({medianOf(offsets, 0.0), medianOf(times, 0.0), picks / medianOf(sigmas, 1.0)});
  }
  return points;
}

/// The value that leaves the least weighted sum of absolute differences.
double weightedMedian(std::vector<std::pair<double, double>>& valuesAndWeights) {
  std::sort(valuesAndWeights.begin(), valuesAndWeights.end());
  double whole = 0.0;
  for (const auto& each : valuesAndWeights) whole += each.second;
  double sum = 0.0;
  for (const auto& each : valuesAndWeights) {
    sum += each.second;
    if (2.0 * sum >= whole) return each.first;
  }
  return 0.0;
}

/// The near branch of one curvature through points, and what it leaves of them.
NearBranch nearBranchOf(const std::vector<Point>& points, std::size_t count, double curvature,
                        double& misfit) {
  std::vector<std::pair<double, double>> ratios;
  ratios.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double shape = shapeAt(points[i].offset, curvature);
    ratios.emplace_back(points[i].time / shape, points[i].weight * shape);
  }
  const NearBranch branch{weightedMedian(ratios), curvature};
  misfit = 0.0;
  for (std::size_t i = 0; i < count; ++i) {
    misfit += points[i].weight * std::fabs(points[i].time - branch.at(points[i].offset));
  }
  return branch;
}

NearBranch nearBranch(const std::vector<Point>& points, std::size_t count, NearShape shape) {
  double least = 0.0;
  NearBranch best = nearBranchOf(points, count, 0.0, least);
  if (shape == NearShape::kStraight || count < 3) return best;
  const double reach = points[count - 1].offset;
  for (int i = 0; i < kCurvatures; ++i) {
    const double curvature = 0.05 * std::pow(1.35, i) / reach;
    double misfit = 0.0;
    const NearBranch branch = nearBranchOf(points, count, curvature, misfit);
    if (misfit < least) {
      least = misfit;
      best = branch;
    }
  }
  return best;
}

/// The near branch of one curvature by weighted squares, and what it leaves of them.
NearBranch squaresBranch(const std::vector<Point>& points, const std::vector<double>& weights,
                         double curvature, double& misfit) {
  double above = 0.0, below = 0.0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double shape = shapeAt(points[i].offset, curvature);
    above += weights[i] * shape * points[i].time;
    below += weights[i] * shape * shape;
  }
  const NearBranch branch{above / below, curvature};
  misfit = 0.0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    misfit += weights[i] * std::pow(points[i].time - branch.at(points[i].offset), 2);
  }
  return branch;
}

/// The curved branch near a first one by least squares, which tell the curvature better than
/// absolute residuals, gross errors weighted down.
NearBranch sharpened(const std::vector<Point>& points, const NearBranch& first) {
  NearBranch best = first;
  for (int round = 0; round < kSharpenings; ++round) {
    std::vector<double> residuals;
    for (const Point& p : points) residuals.push_back(p.weight * (p.time - best.at(p.offset)));
    const double scale = robustScale(residuals);
    std::vector<double> weights;
    for (std::size_t i = 0; i < points.size(); ++i) {
      weights.push_back(cauchyWeight(residuals[i], scale) * points[i].weight * points[i].weight);
    }
    const double around = best.curvature;
    double least = std::numeric_limits<double>::infinity();
    for (int i = -kFineSteps; i <= kFineSteps; ++i) {
      double misfit = 0.0;
      const NearBranch branch =
          squaresBranch(points, weights, around * std::pow(kFineStep, i), misfit);
      if (misfit < least) {
        least = misfit;
        best = branch;
      }
    }
  }
  return best;
}

/// The line through points that leaves the least sum of absolute residuals, nearly.
TimeBranch lineThrough(const std::vector<Point>& points, std::size_t first, std::size_t last) {
  TimeBranch line;
  for (int round = 0; round < kLineRounds; ++round) {
    double w = 0.0, x = 0.0, t = 0.0;
    const auto weight = [&](const Point& p) {
      if (round == 0) return p.weight;
      return p.weight / std::max(std::fabs(p.time - line.at(p.offset)), 1e-3 * p.time);
    };
    std::vector<double> weights;
    for (std::size_t i = first; i < last; ++i) {
      weights.push_back(weight(points[i]));
      w += weights.back();
      x += weights.back() * points[i].offset;
      t += weights.back() * points[i].time;
    }
    x /= w;
    t /= w;
    double xx = 0.0, xt = 0.0;
    for (std::size_t i = first; i < last; ++i) {
      const double dx = points[i].offset - x;
      xx += weights[i - first] * dx * dx;
      xt += weights[i - first] * dx * (points[i].time - t);
    }
    if (!(xx > 0.0)) return {};
    line.slowness = xt / xx;
    line.intercept = t - line.slowness * x;
  }
  return line;
}

double misfitOf(const TimeBranches& branches, const std::vector<Point>& points) {
  double sum = 0.0, weights = 0.0;
  for (const Point& p : points) {
    sum += p.weight * std::fabs(p.time - branches.at(p.offset));
    weights += p.weight;
  }
  return sum / weights;
}

/// Whether a line comes later than another near the shot and overtakes it.
bool overtakes(const TimeBranch& below, double interceptAbove, double slownessAbove) {
  return below.slowness > 0.0 && slownessAbove > kSlower * below.slowness &&
         below.intercept > interceptAbove;
}

}  // namespace

double NearBranch::at(double offset) const {
  return slowness * shapeAt(offset, curvature);
}

double TimeBranches::at(double offset) const {
  double time = near.at(offset);
  for (const TimeBranch& branch : far) time = std::min(time, branch.at(offset));
  return time;
}

NearBranch fitNearBranch(const std::vector<LinePick>& picks, NearShape shape) {
  std::vector<Point> points;
  for (const LinePick& pick : picks) points.push_back({pick.distance, pick.time, 1.0 / pick.sigma});
  if (points.empty()) return {};
  const NearBranch first = nearBranch(points, points.size(), shape);
  return first.curvature > 0.0 ? sharpened(points, first) : first;
}

TimeBranches findBranches(const LinePicks& line, std::size_t refractors, NearShape shape) {
  const std::vector<Point> points = groupsOf(line);
  TimeBranches best;
  best.misfit = std::numeric_limits<double>::infinity();
  const auto consider = [&](TimeBranches branches) {
    const double reach = points.back().offset;
    if (branches.far.back().at(reach) >= branches.near.at(reach)) return;  // it is never first
    branches.misfit = misfitOf(branches, points);
    if (branches.misfit < best.misfit) best = std::move(branches);
  };
  const std::size_t n = points.size();
  for (std::size_t last = kLeastNear; last + kLeastFar <= n; ++last) {
    const NearBranch near = nearBranch(points, last, shape);
    if (refractors == 1) {
      const TimeBranch far = lineThrough(points, last, n);
      if (overtakes(far, 0.0, near.slowness)) consider({near, {far}, 0.0});
      continue;
    }
    for (std::size_t second = last + kLeastFar; second + kLeastFar <= n; ++second) {
      const TimeBranch middle = lineThrough(points, last, second);
      if (!overtakes(middle, 0.0, near.slowness)) continue;
      const TimeBranch far = lineThrough(points, second, n);
      if (overtakes(far, middle.intercept, middle.slowness)) consider({near, {middle, far}, 0.0});
    }
  }
  return best;
}

}  // namespace talvesk
