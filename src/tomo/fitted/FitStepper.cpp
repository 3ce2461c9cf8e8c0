#include "tomo/fitted/FitStepper.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace talvesk {
namespace {

using Vector = Eigen::VectorXd;

constexpr double kLargestChange = 1.5;  // of ln slowness in one step
constexpr int kTries = 4;               // of a step along its direction
constexpr double kNearTarget = 0.05;    // of chi-square from 1
constexpr double kShortStep = 0.6;      // of a step, as a share of the whole one
constexpr double kDampingFactor = 3.0;
constexpr double kNearEnough = 2.0;  // chi-square from which a step may end where it crosses 1
constexpr double kLeastChange = 1e-12;

}  // namespace

bool nearTarget(double chi2) {
  return std::fabs(chi2 - 1.0) < kNearTarget;
}

/// Along a step until the objective falls, by fresh rays. `best` is the least one met.
bool FitStepper::search(const FitSection& from, const Vector& step, double slope, FitSection& best,
                        const std::function<bool()>& goOn) {
  const double before = mProblem.objective(from);
  const double largest = step.head(mProblem.cells()).cwiseAbs().maxCoeff();
  double length = std::min(1.0, kLargestChange / std::max(largest, kLeastChange));
  double least = std::numeric_limits<double>::infinity();
  for (int tries = 0; tries < kTries; ++tries) {
    FitSection there;
    there.unknowns = from.unknowns + length * step;
    mProblem.limit(there.unknowns);
    if (!mProblem.evaluate(there, goOn)) return false;
    const double value = mProblem.objective(there);
    const double bend = value - before - slope * length;
    if (value < least) {
      least = value;
      best = std::move(there);
    }
    if (value < before) {
      mLength = length;
      return true;
    }
    const double bottom = bend > 0.0 ? -0.5 * slope * length * length / bend : 0.5 * length;
    length = std::clamp(bottom, 0.1 * length, 0.5 * length);
  }
  mLength = 0.0;
  // Rays jump where others overtake them; a section that no try improves stays as it is.
  best = from;
  return true;
}

/// Where a step from one section to the next goes past a chi-square of 1, it ends there: between
/// the two the times change steadily. Not so with steps from far away, whose ends alone are what
/// picks and roughness ask for.
bool FitStepper::cross(const FitSection& from, FitSection& to, const std::function<bool()>& goOn) {
  // Half-way there is half of what is known.
  if (from.iteration == 0 && mProblem.known().any()) return true;
  const double farthest = std::log(kNearEnough);
  FitSection low = from;
  if (from.distance() > farthest || (from.fit.chi2 > 1.0) == (to.fit.chi2 > 1.0)) return true;
  for (int tries = 0; tries < kTries && !nearTarget(to.fit.chi2); ++tries) {
    const double a = std::log(std::max(low.fit.chi2, kLeastChi2));
    const double b = std::log(std::max(to.fit.chi2, kLeastChi2));
    FitSection there;
    there.unknowns = low.unknowns + (a / (a - b)) * (to.unknowns - low.unknowns);
    if (!mProblem.evaluate(there, goOn)) return false;
    if ((there.fit.chi2 > 1.0) == (low.fit.chi2 > 1.0) && !nearTarget(there.fit.chi2)) {
      low = std::move(there);
    } else {
      to = std::move(there);
    }
  }
  return true;
}

bool FitStepper::improve(const FitSection& from, FitSection& next,
                         const std::function<bool()>& goOn) {
  mProblem.weigh(from);
  const LinearStep problem = mProblem.linearize(from, mDamping);
  Vector step;
  if (!mSolver.solve(problem, step)) {
    throw std::runtime_error("no ray constrains the section");
  }
  if (!search(from, step, -2.0 * problem.gradient.dot(step), next, goOn)) return false;
  next.lambda = from.lambda;
  return true;
}

bool FitStepper::advance(FitSection& section, const std::function<bool()>& goOn) {
  FitSection next;
  if (!improve(section, next, goOn) || !cross(section, next, goOn)) return false;
  next.lambda = section.lambda;
  section = std::move(next);
  return true;
}

bool FitStepper::cut() const {
  return mLength < kShortStep || mDamping > 0.0;
}

/// Steps that had to be cut short were too rough for rays that bend with the section. A damping of
/// their roughness keeps their length where a mere cut would take it from all of the step alike.
void FitStepper::adaptDamping() {
  if (mLength < kShortStep) {
    mDamping = std::max(1.0, mDamping * kDampingFactor);
  } else {
    mDamping = mDamping > 0.5 ? mDamping / kDampingFactor : 0.0;
  }
}

}  // namespace talvesk
