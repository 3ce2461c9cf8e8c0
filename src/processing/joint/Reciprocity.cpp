#include "processing/joint/Reciprocity.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

namespace talvesk {

/// A curve in the order of its receivers.
class Reciprocity::Line {
 public:
  explicit Line(const ArrivalCurve& curve) : mSource(curve.source), mPoints(curve.points) {
    std::stable_sort(mPoints.begin(), mPoints.end(),
                     [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
    std::vector<double> steps;
    for (std::size_t i = 1; i < mPoints.size(); ++i) {
      const double step = mPoints[i].x - mPoints[i - 1].x;
      if (step > 0.0) steps.push_back(step);
    }
    if (steps.empty()) return;
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    mSpacing = *middle;
  }

  double source() const { return mSource; }
  double reach() const { return 0.5 * mSpacing; }

  /// Between two receivers that are no more than two spacings apart, or within half a spacing of
  /// one.
  std::optional<double> timeAt(double x) const {
    const auto right = std::lower_bound(mPoints.begin(), mPoints.end(), x,
                                        [](const Point2D& p, double value) { return p.x < value; });
    if (right != mPoints.end() && right->x == x) return right->z;
    const bool between = right != mPoints.begin() && right != mPoints.end();
    if (between && right->x - (right - 1)->x <= 2.0 * mSpacing) {
      const Point2D& left = *(right - 1);
      return left.z + (right->z - left.z) * (x - left.x) / (right->x - left.x);
    }
    if (right != mPoints.end() && right->x - x <= reach()) return right->z;
    if (right != mPoints.begin() && x - (right - 1)->x <= reach()) return (right - 1)->z;
    return std::nullopt;
  }

 private:
  double mSource;
  std::vector<Point2D> mPoints;
  double mSpacing = 0.0;
};

Reciprocity::Reciprocity(const std::vector<ArrivalCurve>& curves)
    : mLines(curves.begin(), curves.end()) {}

Reciprocity::~Reciprocity() = default;

double Reciprocity::timeBack(double source, double receiver) const {
  double nearest = std::numeric_limits<double>::infinity();
  double time = std::numeric_limits<double>::quiet_NaN();
  for (const Line& line : mLines) {
    const double away = std::fabs(line.source() - receiver);
    if (!(away < nearest) || away > line.reach()) continue;
    const std::optional<double> found = line.timeAt(source);
    if (!found) continue;
    nearest = away;
    time = *found;
  }
  return time;
}

std::vector<ReciprocalPair> Reciprocity::pairs() const {
  std::vector<ReciprocalPair> pairs;
  for (std::size_t a = 0; a < mLines.size(); ++a) {
    for (std::size_t b = a + 1; b < mLines.size(); ++b) {
      const std::optional<double> there = mLines[a].timeAt(mLines[b].source());
      const std::optional<double> back = mLines[b].timeAt(mLines[a].source());
      if (there && back) pairs.push_back({a, b, *there, *back});
    }
  }
  return pairs;
}

}  // namespace talvesk
