#include "numerics/RobustFit.h"

#include "numerics/Medians.h"

#include <cmath>

#include <Eigen/SparseCholesky>
#include <Eigen/SparseCore>

namespace talvesk {
namespace {

constexpr int kRounds = 12;
constexpr double kCauchy = 2.385;  // 95 % as good as least squares on clean data
constexpr double kMedianOfNormal = 0.6745;

Eigen::VectorXd asVector(const std::vector<double>& values) {
  return Eigen::Map<const Eigen::VectorXd>(values.data(), static_cast<Eigen::Index>(values.size()));
}

}  // namespace

double cauchyWeight(double residual, double scale) {
  const double u = residual / (kCauchy * scale);
  return 1.0 / (1.0 + u * u);
}

double robustScale(const std::vector<double>& residuals) {
  std::vector<double> sizes;
  sizes.reserve(residuals.size());
  for (const double r : residuals) sizes.push_back(std::fabs(r));
  return std::max(1.0, medianOf(std::move(sizes), 0.0) / kMedianOfNormal);
}

void RobustFit::Rows::add(const std::vector<Term>& terms, double value, double sigma) {
  for (const Term& term : terms)
    entries.push_back({values.size(), term.unknown, term.factor / sigma});
  values.push_back(value / sigma);
}

void RobustFit::measure(const std::vector<Term>& terms, double value, double sigma,
                        double residual) {
  mMeasured.add(terms, value, sigma);
  mResiduals.push_back(residual / sigma);
}

void RobustFit::expect(const std::vector<Term>& terms, double value, double sigma) {
  mExpected.add(terms, value, sigma);
}

RobustFit::Solution RobustFit::solve() const {
  using Matrix = Eigen::SparseMatrix<double>;
  const auto matrix = [this](const Rows& rows) {
    std::vector<Eigen::Triplet<double>> triplets;
    triplets.reserve(rows.entries.size());
    for (const Entry& e : rows.entries) {
      triplets.emplace_back(static_cast<int>(e.row), static_cast<int>(e.unknown), e.factor);
    }
    Matrix m(static_cast<Eigen::Index>(rows.values.size()), static_cast<Eigen::Index>(mUnknowns));
    m.setFromTriplets(triplets.begin(), triplets.end());
    return m;
  };
  const Matrix a = matrix(mMeasured);
  const Matrix d = matrix(mExpected);
  const Eigen::VectorXd b = asVector(mMeasured.values);
  const Matrix expected = d.transpose() * d;
  const Eigen::VectorXd expectedRight = d.transpose() * asVector(mExpected.values);

  std::vector<double> residuals = mResiduals;
  Eigen::VectorXd x;
  double decided = 0.0;
  for (int round = 0; round < kRounds; ++round) {
    const double scale = robustScale(residuals);
    Eigen::VectorXd w(b.size());
    for (Eigen::Index i = 0; i < b.size(); ++i) {
      w[i] = cauchyWeight(residuals[static_cast<std::size_t>(i)], scale);
    }
    const Matrix weighted = w.asDiagonal() * a;
    const Matrix measured = a.transpose() * weighted;
    const Matrix normal = measured + expected;
    const Eigen::SimplicialLDLT<Matrix> factor(normal);
    if (factor.info() != Eigen::Success) return {};
    x = factor.solve(Eigen::VectorXd(weighted.transpose() * b + expectedRight));
    if (!x.allFinite()) return {};
    const Eigen::VectorXd r = b - a * x;
    residuals.assign(r.data(), r.data() + r.size());
    if (round + 1 == kRounds) {
      decided = Eigen::MatrixXd(factor.solve(Eigen::MatrixXd(measured))).trace();
    }
  }
  return {{x.data(), x.data() + x.size()}, decided};
}

}  // namespace talvesk
