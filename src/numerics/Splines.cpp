#include "numerics/Splines.h"

#include <algorithm>
#include <limits>
#include <locale>
#include <new>
#include <sstream>
#include <stdexcept>

namespace Splines {
namespace {

constexpr const char* kSourceFile = "Splines.cpp";
// Interval numbers are signed, so this is what the node storage can ever hold.
constexpr std::uint32_t kMostNodes = std::numeric_limits<std::int32_t>::max();

template <typename... Parts>
std::string text(const Parts&... parts) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  (stream << ... << parts);
  return stream.str();
}

double chordSlope(const std::vector<double>& x, const std::vector<double>& y, std::size_t k) {
  return (y[k + 1] - y[k]) / (x[k + 1] - x[k]);
}

/// Bessel's slopes for the nodes [first, last) of one run.
void besselSlopes(const std::vector<double>& x, const std::vector<double>& y, std::size_t first,
                  std::size_t last, std::vector<double>& slopes) {
  const std::size_t count = last - first;
  if (count < 2) return;  // a node alone has no direction: its slope stays 0
  if (count == 2) {
    slopes[first] = slopes[first + 1] = chordSlope(x, y, first);
    return;
  }
  for (std::size_t k = first + 1; k + 1 < last; ++k) {
    const double before = x[k] - x[k - 1];
    const double after = x[k + 1] - x[k];
    slopes[k] = (after * chordSlope(x, y, k - 1) + before * chordSlope(x, y, k)) / (before + after);
  }
  // The ends leave the spacing out on purpose: what is computed from the curves depends on it.
  slopes[first] = 1.5 * chordSlope(x, y, first) - 0.5 * chordSlope(x, y, first + 1);
  slopes[last - 1] = 1.5 * chordSlope(x, y, last - 2) - 0.5 * chordSlope(x, y, last - 3);
}

/// Second derivatives at the nodes of the C2 spline: the tridiagonal system of the interior nodes,
/// eliminated downward and substituted upward. It is diagonally dominant, so no pivot is needed.
std::vector<double> secondDerivatives(const std::vector<double>& x, const std::vector<double>& y,
                                      double begin, double end) {
  const std::size_t n = x.size();
  std::vector<double> second(n, 0.0);
  std::vector<double> ratio(n, 0.0);
  second.front() = begin;
  for (std::size_t k = 1; k + 1 < n; ++k) {
    const double before = x[k] - x[k - 1];
    const double after = x[k + 1] - x[k];
    const double right = 6.0 * (chordSlope(x, y, k) - chordSlope(x, y, k - 1));
    const double pivot = 2.0 * (before + after) - before * ratio[k - 1];
    ratio[k] = after / pivot;
    second[k] = (right - before * second[k - 1]) / pivot;
  }
  second.back() = end;
  for (std::size_t k = n - 2; k >= 1; --k) second[k] -= ratio[k] * second[k + 1];
  return second;
}

}  // namespace

void Spline::fail(int line, const std::string& what) const {
  throw std::runtime_error(
      text("In spline: ", mName, " line: ", line, " file: ", kSourceFile, "\n", what));
}

void Spline::setNodes(const double* x, const double* y, std::uint32_t n) {
  mX.clear();
  mY.clear();
  mLastInterval = 0;
  mSorted = true;
  const auto exhausted = [&] {
    mX.clear();
    fail(__LINE__, text("build(", n, ") -- SplineMalloc EXAUSTED\n"));
  };
  if (n > kMostNodes) exhausted();
  try {
    mX.assign(x, x + n);
    mY.assign(y, y + n);
  } catch (const std::bad_alloc&) {
    exhausted();
  }
  for (std::uint32_t k = 1; k < n && mSorted; ++k) mSorted = mX[k] >= mX[k - 1];
}

void Spline::build(const std::vector<double>& x, const std::vector<double>& y) {
  const std::size_t n = std::min(x.size(), y.size());
  const std::size_t most = std::numeric_limits<std::uint32_t>::max();
  build(x.data(), y.data(), static_cast<std::uint32_t>(std::min(n, most)));
}

void Spline::requireInRange(double x) const {
  if (!mCheckRange || mX.empty() || (x >= mX.front() && x <= mX.back())) return;
  fail(__LINE__,
       text("method search( ", x, " ) out of range: [", mX.front(), ", ", mX.back(), "]"));
}

std::int32_t Spline::search(double x) const {
  if (mX.size() < 2) fail(__LINE__, text("\nsearch(", x, ") empty spline"));
  requireInRange(x);
  const auto last = static_cast<std::int32_t>(mX.size()) - 2;
  const auto holds = [&](std::int32_t i) {
    return i >= 0 && i <= last && mX[i] <= x && x < mX[i + 1];
  };
  // Among unsorted nodes several intervals may hold x: the answer must not depend on the call
  // before, so the cache is left out.
  if (mSorted) {
    for (const std::int32_t near : {mLastInterval, mLastInterval + 1, mLastInterval - 1}) {
      if (holds(near)) return mLastInterval = near;
    }
  }
  std::size_t low = 0;
  std::size_t high = mX.size();
  while (low < high) {  // written out: the library's search may not be asked about unsorted nodes
    const std::size_t middle = low + (high - low) / 2;
    if (mX[middle] > x) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  std::int32_t i = std::clamp(static_cast<std::int32_t>(low) - 1, 0, last);
  while (i > 0 && !(x < mX[i + 1]) && mX[i] == mX[i + 1]) --i;
  while (i < last && x < mX[i] && mX[i] == mX[i + 1]) ++i;
  return mLastInterval = i;
}

void LinearSpline::build(const double* x, const double* y, std::uint32_t n) {
  setNodes(x, y, n);
}

double LinearSpline::operator()(double x) const {
  if (mX.empty()) fail(__LINE__, "in LinearSpline::operator(), npts == 0!");
  requireInRange(x);
  if (x < mX.front()) return mY.front();
  if (x > mX.back()) return mY.back();
  const auto i = static_cast<std::size_t>(search(x));
  const double h = mX[i + 1] - mX[i];
  const double w = h != 0.0 ? (x - mX[i]) / h : 0.0;
  return (1.0 - w) * mY[i] + w * mY[i + 1];
}

double LinearSpline::D(double x) const {
  if (mX.empty()) fail(__LINE__, "in LinearSpline::D(), npts == 0!");
  requireInRange(x);
  if (x < mX.front() || x > mX.back()) return 0.0;
  const auto i = static_cast<std::size_t>(search(x));
  return mX[i + 1] != mX[i] ? chordSlope(mX, mY, i) : 0.0;
}

double LinearSpline::DD(double x) const {
  requireInRange(x);
  return 0.0;
}

double LinearSpline::DDD(double x) const {
  requireInRange(x);
  return 0.0;
}

CubicSplineBase::Place CubicSplineBase::locate(double x) const {
  const auto i = static_cast<std::size_t>(search(x));
  const double h = mX[i + 1] - mX[i];
  return {i, h, h != 0.0 ? (x - mX[i]) / h : 0.0};
}

double CubicSplineBase::operator()(double x) const {
  const auto [i, h, s] = locate(x);
  const double s2 = s * s;
  const double s3 = s2 * s;
  const double h0 = 1.0 - 3.0 * s2 + 2.0 * s3;
  const double h1 = 3.0 * s2 - 2.0 * s3;
  const double h2 = h * (s - 2.0 * s2 + s3);
  const double h3 = h * (s3 - s2);
  return mY[i] * h0 + mY[i + 1] * h1 + mYp[i] * h2 + mYp[i + 1] * h3;
}

double CubicSplineBase::D(double x) const {
  const auto [i, h, s] = locate(x);
  if (h == 0.0) return mYp[i];
  const double s2 = s * s;
  const double h1 = (6.0 * s - 6.0 * s2) / h;
  const double h2 = 1.0 - 4.0 * s + 3.0 * s2;
  const double h3 = 3.0 * s2 - 2.0 * s;
  return (mY[i + 1] - mY[i]) * h1 + mYp[i] * h2 + mYp[i + 1] * h3;
}

double CubicSplineBase::DD(double x) const {
  const auto [i, h, s] = locate(x);
  if (h == 0.0) return 0.0;
  const double h1 = (6.0 - 12.0 * s) / (h * h);
  const double h2 = (6.0 * s - 4.0) / h;
  const double h3 = (6.0 * s - 2.0) / h;
  return (mY[i + 1] - mY[i]) * h1 + mYp[i] * h2 + mYp[i + 1] * h3;
}

double CubicSplineBase::DDD(double x) const {
  const auto [i, h, s] = locate(x);
  if (h == 0.0) return 0.0;
  const double twist = mYp[i] + mYp[i + 1] - 2.0 * chordSlope(mX, mY, i);
  return 6.0 * twist / (h * h);
}

void BesselSpline::build(const double* x, const double* y, std::uint32_t n) {
  if (n < 2) fail(__LINE__, text("BesselSpline::build(): npts = ", n, " not enought points"));
  setNodes(x, y, n);
  mYp.assign(n, 0.0);
  std::size_t first = 0;
  for (std::size_t k = 1; k <= n; ++k) {
    if (k < n && mX[k] > mX[k - 1]) continue;
    besselSlopes(mX, mY, first, k, mYp);
    first = k;
  }
}

void CubicSpline::build(const double* x, const double* y, std::uint32_t n) {
  if (n < 2) fail(__LINE__, text("CubicSpline::build(): npts = ", n, " not enought points"));
  setNodes(x, y, n);
  for (std::size_t k = 1; k < n; ++k) {
    if (mX[k] > mX[k - 1]) continue;
    const std::string what = text("CubicSpline::build(): X[", k, "] = ", mX[k],
                                  " is not greater than the node before it, ", mX[k - 1]);
    mX.clear();
    fail(__LINE__, what);
  }
  const std::vector<double> second = secondDerivatives(mX, mY, mDdyBegin, mDdyEnd);
  mYp.assign(n, 0.0);
  for (std::size_t k = 0; k + 1 < n; ++k) {
    mYp[k] = chordSlope(mX, mY, k) - (mX[k + 1] - mX[k]) * (2.0 * second[k] + second[k + 1]) / 6.0;
  }
  mYp[n - 1] = chordSlope(mX, mY, n - 2) +
               (mX[n - 1] - mX[n - 2]) * (2.0 * second[n - 1] + second[n - 2]) / 6.0;
}

}  // namespace Splines
