#include "tomo/fitted/StepSolver.h"

#include <cmath>

namespace talvesk {
namespace {

constexpr int kMostIterations = 300;
/// Of the first residual. The step is one of many: more digits would not be seen in the next.
constexpr double kTolerance = 1e-3;

/// Onto the steps that are allowed: nothing for cells that are held, no shift of all shots at once,
/// which slownesses at the shots could take back.
void project(const LinearStep& problem, Eigen::VectorXd& v) {
  const Eigen::Index cells = v.size() - problem.shifts;
  for (Eigen::Index i = 0; i < cells; ++i) {
    if (problem.held[static_cast<std::size_t>(i)]) v[i] = 0.0;
  }
  if (problem.shifts > 0) v.tail(problem.shifts).array() -= v.tail(problem.shifts).mean();
}

Eigen::SparseMatrix<double> preconditioner(const LinearStep& problem) {
  Eigen::SparseMatrix<double> matrix = problem.prior;
  const auto& jacobian = problem.jacobian;
  Eigen::VectorXd diagonal = Eigen::VectorXd::Zero(jacobian.cols());
  for (Eigen::Index row = 0; row < jacobian.outerSize(); ++row) {
    for (Eigen::SparseMatrix<double, Eigen::RowMajor>::InnerIterator it(jacobian, row); it; ++it) {
      diagonal[it.col()] += it.value() * it.value();
    }
  }
  for (Eigen::Index i = 0; i < diagonal.size(); ++i) matrix.coeffRef(i, i) += diagonal[i];
  return matrix;
}

}  // namespace

bool StepSolver::solve(const LinearStep& problem, Eigen::VectorXd& step) {
  mIterations = 0;
  const Eigen::SparseMatrix<double> matrix = preconditioner(problem);
  if (mAnalysed != matrix.rows()) {
    mFactor.analyzePattern(matrix);
    mAnalysed = matrix.rows();
  }
  mFactor.factorize(matrix);
  if (mFactor.info() != Eigen::Success) return false;

  step = Eigen::VectorXd::Zero(matrix.rows());
  Eigen::VectorXd residual = problem.gradient;
  project(problem, residual);
  Eigen::VectorXd direction;
  Eigen::VectorXd image;
  double square = 0.0;  // of the residual, as the preconditioner measures it
  double first = 0.0;
  while (true) {
    image = mFactor.solve(residual);
    project(problem, image);
    const double next = residual.dot(image);
    if (mIterations == 0) first = next;
    if (!std::isfinite(next) || next < 0.0) return false;
    if (next <= kTolerance * kTolerance * first || mIterations == kMostIterations) return true;
    if (mIterations == 0) {
      direction = image;
    } else {
      direction = image + (next / square) * direction;
    }
    square = next;
    image = problem.prior * direction;
    image += problem.jacobian.transpose() * (problem.jacobian * direction);
    project(problem, image);
    const double along = square / direction.dot(image);
    if (!std::isfinite(along)) return false;
    step += along * direction;
    residual -= along * image;
    ++mIterations;
  }
}

}  // namespace talvesk
