#include "tomo/fitted/ConcaveFit.h"

#include "numerics/RobustFit.h"

#include <algorithm>
#include <cmath>

#include <Eigen/Cholesky>
#include <Eigen/Core>

namespace talvesk {
namespace {

constexpr std::size_t kKnots = 32;
constexpr int kRounds = 12;
constexpr double kRidge = 1e-8;  // relative; settles knots that no pick tells apart

/// Offsets with about as many picks between them; the last is the farthest.
std::vector<double> knotsOf(const LinePicks& line) {
  const std::size_t count = line.picks.size();
  const std::size_t knots = std::min(count, kKnots);
  std::vector<double> offsets;
  for (std::size_t i = 1; i <= knots; ++i) {
    const double offset = line.picks[i * count / knots - 1].offset;
    if (offsets.empty() || offset > offsets.back() * (1.0 + 1e-6)) offsets.push_back(offset);
  }
  return offsets;
}

/// Least squares with non-negative values (Lawson and Hanson, Solving Least Squares Problems,
/// chapter 23): the x with the least x'Gx - 2 b'x.
class NonNegative {
 public:
  NonNegative(const Eigen::MatrixXd& g, const Eigen::VectorXd& b)
      : mG(g), mB(b), mX(Eigen::VectorXd::Zero(b.size())) {}

  Eigen::VectorXd solve() {
    for (Eigen::Index step = 0; step < 3 * mX.size(); ++step) {
      const Eigen::Index next = mostWanted();
      if (next < 0) break;
      mFree.push_back(next);
      while (!moveToLeast()) dropZeros();
    }
    return mX;
  }

 private:
  const Eigen::MatrixXd& mG;
  const Eigen::VectorXd& mB;
  Eigen::VectorXd mX;
  std::vector<Eigen::Index> mFree;  ///< values that may differ from 0

  /// The value at 0 that gains most by growing; -1 when none does.
  Eigen::Index mostWanted() const {
    const Eigen::VectorXd gain = mB - mG * mX;
    const double least = 1e-12 * mB.cwiseAbs().maxCoeff();
    Eigen::Index best = -1;
    for (Eigen::Index i = 0; i < mX.size(); ++i) {
      if (std::find(mFree.begin(), mFree.end(), i) != mFree.end() || !(gain[i] > least)) continue;
      if (best < 0 || gain[i] > gain[best]) best = i;
    }
    return best;
  }

  Eigen::VectorXd leastOfFree() const {
    const auto m = static_cast<Eigen::Index>(mFree.size());
    Eigen::MatrixXd part(m, m);
    Eigen::VectorXd right(m);
    for (Eigen::Index i = 0; i < m; ++i) {
      right[i] = mB[mFree[static_cast<std::size_t>(i)]];
      for (Eigen::Index j = 0; j < m; ++j) {
        part(i, j) = mG(mFree[static_cast<std::size_t>(i)], mFree[static_cast<std::size_t>(j)]);
      }
    }
    return part.ldlt().solve(right);
  }

  /// Goes to the least of the free values, or as far as none gets negative: then false.
  bool moveToLeast() {
    if (mFree.empty()) return true;
    const Eigen::VectorXd least = leastOfFree();
    double reach = 1.0;
    std::size_t first = mFree.size();
    for (std::size_t i = 0; i < mFree.size(); ++i) {
      const double to = least[static_cast<Eigen::Index>(i)];
      const double from = mX[mFree[i]];
      const double part = from > 0.0 ? from / (from - to) : 0.0;
      if (to > 0.0 || part >= reach) continue;
      reach = part;
      first = i;
    }
    for (std::size_t i = 0; i < mFree.size(); ++i) {
      const double to = least[static_cast<Eigen::Index>(i)];
      mX[mFree[i]] += reach * (to - mX[mFree[i]]);
    }
    if (first == mFree.size()) return true;
    mX[mFree[first]] = 0.0;  // in spite of rounding
    return false;
  }

  void dropZeros() {
    const auto isZero = [this](Eigen::Index i) { return !(mX[i] > 0.0); };
    for (const Eigen::Index i : mFree) {
      if (isZero(i)) mX[i] = 0.0;
    }
    mFree.erase(std::remove_if(mFree.begin(), mFree.end(), isZero), mFree.end());
  }
};

}  // namespace

double ConcaveCurve::at(double offset) const {
  double time = 0.0;
  double from = 0.0;
  for (std::size_t i = 0; i < knots.size(); ++i) {
    const bool last = i + 1 == knots.size();
    const double to = last ? offset : std::min(offset, knots[i]);
    if (to > from) time += slopes[i] * (to - from);
    from = std::max(from, to);
  }
  return time;
}

ConcaveCurve fitConcave(const LinePicks& line) {
  ConcaveCurve curve;
  curve.knots = knotsOf(line);
  if (curve.knots.empty()) return curve;
  const auto n = static_cast<Eigen::Index>(curve.knots.size());
  const double reach = curve.knots.back();
  // Unknown i is how much the slope falls at knot i, of the last the slope that remains: every
  // curve from the origin that is concave is such a sum of min(offset, knot).
  const auto basis = [&](double offset, Eigen::VectorXd& row) {
    for (Eigen::Index i = 0; i < n; ++i) {
      const double knot = curve.knots[static_cast<std::size_t>(i)];
      row[i] = (i + 1 == n ? offset : std::min(offset, knot)) / reach;
    }
  };
  std::vector<double> residuals(line.picks.size(), 0.0);
  Eigen::VectorXd row(n), drops = Eigen::VectorXd::Zero(n);
  for (int round = 0; round < kRounds; ++round) {
    const double scale = robustScale(residuals);
    Eigen::MatrixXd g = Eigen::MatrixXd::Zero(n, n);
    Eigen::VectorXd b = Eigen::VectorXd::Zero(n);
    for (std::size_t k = 0; k < line.picks.size(); ++k) {
      const LinePick& pick = line.picks[k];
      basis(pick.offset, row);
      const double w = cauchyWeight(residuals[k], scale) / (pick.sigma * pick.sigma);
      g.noalias() += w * row * row.transpose();
      b += w * pick.time * row;
    }
    g.diagonal() *= 1.0 + kRidge;
    drops = NonNegative(g, b).solve();
    for (std::size_t k = 0; k < line.picks.size(); ++k) {
      basis(line.picks[k].offset, row);
      residuals[k] = (line.picks[k].time - row.dot(drops)) / line.picks[k].sigma;
    }
  }
  curve.slopes.assign(curve.knots.size(), 0.0);
  double slope = 0.0;
  for (Eigen::Index i = n; i-- > 0;) {
    slope += drops[i] / reach;
    curve.slopes[static_cast<std::size_t>(i)] = slope;
  }
  return curve;
}

}  // namespace talvesk
