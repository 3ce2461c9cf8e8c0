#pragma once

#include "base/Message.h"
#include "grid/GridGeometry.h"
#include "model/ChiSquare.h"
#include "tomo/fitted/FitOptions.h"
#include "tomo/fitted/KnownPrior.h"
#include "tomo/fitted/RayTracer.h"
#include "tomo/fitted/Roughness.h"
#include "tomo/fitted/StepSolver.h"

#include <functional>
#include <vector>

namespace talvesk {

/// Stands for a perfect fit, which has no logarithm.
constexpr double kLeastChi2 = 1e-12;

/// A section with the rays and times through it.
struct FitSection {
  Eigen::VectorXd unknowns;  ///< ln slowness of the cells, then time shifts of the shots
  std::vector<double> slownesses;
  TracedRays traced;
  std::vector<double> scaled;  ///< computed minus measured over the error, per pick
  ChiSquare fit;
  double lambda = 0.0;  ///< with which it was found
  int iteration = 0;    ///< that found it; 0 is the start

  /// From a fit as close as the errors are.
  double distance() const;
};

/// What a fit minimises: residuals over their errors, by Huber's measure, and what is asked of the
/// section whatever the picks say. Everything that takes part in the objective takes part here, in
/// objective() and in linearize() alike.
class FitProblem {
 public:
  FitProblem(const GridSize& size, const FitData& data, RayTracer& tracer, FittedOptions options);

  /// What is wrong with the input; empty when nothing is. Nothing else may be asked for then.
  Message invalid() const;

  const FittedOptions& options() const { return mOptions; }
  Eigen::Index cells() const { return mCells; }
  Eigen::Index shifts() const { return mShifts; }  ///< shots with a time shift of their own
  const KnownPrior& known() const { return mKnown; }
  double firstLambda() const;

  /// The section to start from, not evaluated, which also sets the reference.
  FitSection start();
  void limit(Eigen::VectorXd& unknowns) const;
  /// Completes a section of which the cells are known, time shifts included. \return false when it
  /// was stopped
  bool evaluate(FitSection& section, const std::function<bool()>& goOn);

  /// The section nearest to another for what it is smoother, not evaluated.
  /// \param amount weight of the roughness beside the squared departures, positive
  FitSection smoothed(const FitSection& section, double amount) const;
  /// Whether the section is held to what it starts from.
  bool heldToStart() const;
  bool hasSteps(const FitSection& section) const;  ///< sharp ones, from one row to the next
  /// Holds the section to a smooth version of the start from now on, which is returned, not
  /// evaluated.
  FitSection loosened(const FitSection& start);
  std::vector<double> reference() const;  ///< s/m, one per cell, as of now

  /// For the steps from a section with its weight of the roughness: must come before the following.
  void weigh(const FitSection& section);
  double objective(const FitSection& section) const;
  LinearStep linearize(const FitSection& section, double damping) const;

 private:
  void makePrior(const FitSection& section);
  double huberLimit(const FitSection& section) const;

  const FitData& mData;
  RayTracer& mTracer;
  const FittedOptions mOptions;
  const GridSize mSize;
  const Eigen::Index mCells;
  const Eigen::Index mShifts;
  const KnownPrior mKnown;
  Roughness mRoughness;
  Eigen::VectorXd mReference;
  double mHuber = 0.0;                 ///< up to how many errors a residual counts by its square
  Eigen::SparseMatrix<double> mPrior;  ///< with the weight of the roughness, of all unknowns
};

}  // namespace talvesk
