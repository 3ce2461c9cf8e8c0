#include "refraction/AlongLine.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

AlongLine::AlongLine(double first, double last, std::size_t knots)
    : mFirst(first), mLast(last), mKnots(last > first ? knots : 1) {
  mSpacing = mKnots > 1 ? (last - first) / static_cast<double>(mKnots - 1) : 0.0;
}

double AlongLine::knotAt(std::size_t knot) const {
  return mKnots == 1 ? 0.5 * (mFirst + mLast) : mFirst + static_cast<double>(knot) * mSpacing;
}

std::vector<double> AlongLine::sharesAt(double x) const {
  std::vector<double> shares(mKnots, 0.0);
  if (mKnots == 1) {
    shares[0] = 1.0;
    return shares;
  }
  const double place = std::clamp((x - mFirst) / mSpacing, 0.0, static_cast<double>(mKnots - 1));
  const std::size_t left = std::min(static_cast<std::size_t>(place), mKnots - 2);
  const double w = place - static_cast<double>(left);
  shares[left] = 1.0 - w;
  shares[left + 1] = w;
  return shares;
}

std::vector<double> AlongLine::sharesOver(double a, double b) const {
  const double from = std::min(a, b);
  const double to = std::max(a, b);
  std::vector<double> shares(mKnots, 0.0);
  // From knot to knot everything is straight: the middle of each part stands for it.
  double begin = from;
  while (begin < to) {
    double end = to;
    for (std::size_t k = 0; k < mKnots; ++k) {
      if (knotAt(k) > begin) {
        end = std::min(end, knotAt(k));
        break;
      }
    }
    const std::vector<double> middle = sharesAt(0.5 * (begin + end));
    for (std::size_t k = 0; k < mKnots; ++k) shares[k] += middle[k] * (end - begin);
    begin = end;
  }
  return shares;
}

}  // namespace talvesk
