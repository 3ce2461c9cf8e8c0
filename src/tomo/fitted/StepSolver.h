#pragma once

#include <vector>

#include <Eigen/SparseCholesky>
#include <Eigen/SparseCore>

namespace talvesk {

/// One linear step of a fit: the least squares of weighted residuals and of what is asked of the
/// unknowns, which are the cells and, behind them, time shifts of shots that add up to zero.
struct LinearStep {
  /// Rays by unknowns: what a change of an unknown does to a time, times the root of the weight.
  Eigen::SparseMatrix<double, Eigen::RowMajor> jacobian;
  Eigen::SparseMatrix<double> prior;  ///< symmetric, with every diagonal entry
  Eigen::VectorXd gradient;           ///< minus half the slope of the objective: the right side
  std::vector<bool> held;             ///< cells that stay as they are, at a limit
  Eigen::Index shifts = 0;            ///< how many of the unknowns are time shifts
};

/// Solves (J'J + prior) x = gradient by conjugate gradients. J'J is never formed: rays make it
/// dense. What stands in for it in the preconditioner is its diagonal, with which the prior has a
/// sparse factor.
class StepSolver {
 public:
  /// \return false when there is no solution, as without any ray; `step` is then undefined
  bool solve(const LinearStep& problem, Eigen::VectorXd& step);
  int iterations() const { return mIterations; }  ///< of the last solution

 private:
  Eigen::SimplicialLDLT<Eigen::SparseMatrix<double>> mFactor;
  Eigen::Index mAnalysed = 0;  ///< unknowns of the pattern that the factor knows
  int mIterations = 0;
};

}  // namespace talvesk
