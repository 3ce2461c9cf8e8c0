#include "tomo/fitted/FitProblem.h"

#include "tomo/fitted/KnownReference.h"
#include "tomo/fitted/ShotShifts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

using Vector = Eigen::VectorXd;

constexpr double kFirstLambda = 1e-3;  // of the sum of squares of the times over their errors
constexpr double kLoosening = 100.0;   // of steps: over some ten cells along, five across
constexpr double kStep = 0.3;          // of ln slowness, from a cell to the one below
constexpr double kBlockyFrom = 3.0;    // chi-square below which steps of the section mean something

Eigen::Index index(std::size_t i) {
  return static_cast<Eigen::Index>(i);
}

}  // namespace

double FitSection::distance() const {
  return std::fabs(std::log(std::max(fit.chi2, kLeastChi2)));
}

FitProblem::FitProblem(const GridSize& size, const FitData& data, RayTracer& tracer,
                       FittedOptions options)
    : mData(data),
      mTracer(tracer),
      mOptions(std::move(options)),
      mSize(size),
      mCells(index(static_cast<std::size_t>(size.cellCount()))),
      mShifts(mOptions.statics ? index(data.shots.size()) : 0),
      mKnown(mOptions.known),
      mRoughness(size.righe, size.col) {
  if (!mKnown.loose().empty()) mRoughness.loosen(mKnown.loose());
}

Message FitProblem::invalid() const {
  const FittedOptions& o = mOptions;
  const auto cells = static_cast<std::size_t>(mCells);
  const auto positive = [](double v) { return v > 0.0 && std::isfinite(v); };
  const auto model = [&](const std::vector<double>& slownesses) {
    return slownesses.size() == cells &&
           std::all_of(slownesses.begin(), slownesses.end(), positive);
  };
  if (cells == 0) return Message::tr("There is no grid with cells; build the grid first.");
  if (!model(o.start) || (!o.reference.empty() && !model(o.reference))) {
    return Message::tr("The model to start from has not one valid velocity per cell of the grid.");
  }
  if (!positive(o.minVelocity) || !positive(o.maxVelocity) || o.minVelocity >= o.maxVelocity ||
      !std::isfinite(1.0 / o.minVelocity)) {
    return Message::tr(
               "The velocity limits must be positive numbers, the least below the "
               "greatest; %1 and %2 are not.")
        .arg(Message::velocity(o.minVelocity))
        .arg(Message::velocity(o.maxVelocity));
  }
  if (o.mostIterations < 1 || (o.statics && !positive(o.triggerError))) {
    return Message::tr("The fit needs one iteration at least and a positive trigger error.");
  }
  if (mData.picks.empty())
    return Message::tr("There is no pick that a section could be fitted to.");
  for (const FitPick& pick : mData.picks) {
    if (positive(pick.time) && positive(pick.sigma)) continue;
    return Message::tr("The pick of shot %1, receiver %2 has no positive time and error.")
        .arg(pick.record + 1)
        .arg(pick.receiver + 1);
  }
  return {};
}

FitSection FitProblem::start() {
  const auto logarithms = [&](const std::vector<double>& slownesses) {
    Vector values = Vector::Zero(mCells + mShifts);
    for (std::size_t c = 0; c < slownesses.size(); ++c) values[index(c)] = std::log(slownesses[c]);
    return values;
  };
  const auto bent = [&](const std::vector<double>& slownesses) {
    return bentToKnown(mKnown.cells(), mSize, slownesses);
  };
  mReference = logarithms(bent(heldToStart() ? mOptions.start : mOptions.reference));
  mKnown.fix(mReference);
  FitSection section;
  section.unknowns = heldToStart() ? mReference : logarithms(mOptions.start);
  limit(section.unknowns);
  return section;
}

double FitProblem::firstLambda() const {
  double sum = 0.0;
  for (const FitPick& pick : mData.picks) sum += pick.time * pick.time / (pick.sigma * pick.sigma);
  return kFirstLambda * sum;
}

void FitProblem::limit(Vector& unknowns) const {
  const double least = -std::log(mOptions.maxVelocity);
  const double most = -std::log(mOptions.minVelocity);
  unknowns.head(mCells) = unknowns.head(mCells).cwiseMax(least).cwiseMin(most);
  mKnown.fix(unknowns);
}

bool FitProblem::evaluate(FitSection& section, const std::function<bool()>& goOn) {
  section.slownesses.resize(static_cast<std::size_t>(mCells));
  for (std::size_t c = 0; c < section.slownesses.size(); ++c) {
    // Rounding must not take a velocity over its limit.
    section.slownesses[c] = std::clamp(std::exp(section.unknowns[index(c)]),
                                       1.0 / mOptions.maxVelocity, 1.0 / mOptions.minVelocity);
  }
  mKnown.fix(section.slownesses);
  if (!mTracer.trace(section.slownesses, section.traced, goOn)) return false;
  // Shifts are found anew for every section. Picks of a shot that is late would be suspect, and be
  // heeded no more, before steps from section to section had come to its shift.
  if (mShifts > 0) {
    const std::vector<double> shifts =
        shotShifts(mData, section.traced.times, mOptions.triggerError, mOptions.robust);
    for (std::size_t s = 0; s < shifts.size(); ++s) section.unknowns[mCells + index(s)] = shifts[s];
  }
  section.scaled.resize(mData.picks.size());
  for (std::size_t s = 0; s < mData.shots.size(); ++s) {
    const FitShot& shot = mData.shots[s];
    const double shift = mShifts > 0 ? section.unknowns[mCells + index(s)] : 0.0;
    for (std::size_t i = shot.firstPick; i < shot.firstPick + shot.receivers.size(); ++i) {
      section.scaled[i] =
          (section.traced.times[i] + shift - mData.picks[i].time) / mData.picks[i].sigma;
    }
  }
  section.fit = chiSquareOf(section.scaled);
  return true;
}

bool FitProblem::heldToStart() const {
  return mOptions.reference.empty() || mOptions.reference == mOptions.start;
}

bool FitProblem::hasSteps(const FitSection& section) const {
  const Eigen::Index columns = mSize.col;
  for (Eigen::Index c = columns; c < mCells; ++c) {
    if (std::fabs(section.unknowns[c] - section.unknowns[c - columns]) > kStep) return true;
  }
  return false;
}

FitSection FitProblem::loosened(const FitSection& start) {
  FitSection loose = smoothed(start, kLoosening);
  mReference.head(mCells) = loose.unknowns.head(mCells);
  return loose;
}

std::vector<double> FitProblem::reference() const {
  std::vector<double> slownesses(static_cast<std::size_t>(mCells));
  for (std::size_t c = 0; c < slownesses.size(); ++c)
    slownesses[c] = std::exp(mReference[index(c)]);
  return slownesses;
}

FitSection FitProblem::smoothed(const FitSection& section, double amount) const {
  Eigen::SparseMatrix<double> matrix = amount * mRoughness.matrix();
  for (Eigen::Index c = 0; c < mCells; ++c) matrix.coeffRef(c, c) += 1.0;
  const Eigen::SimplicialLDLT<Eigen::SparseMatrix<double>> factor(matrix);
  FitSection smooth;
  smooth.unknowns = section.unknowns;
  smooth.unknowns.head(mCells) = factor.solve(Vector(section.unknowns.head(mCells)));
  mKnown.fix(smooth.unknowns);
  return smooth;
}

void FitProblem::weigh(const FitSection& section) {
  if (mOptions.blocky && section.fit.chi2 < kBlockyFrom) {
    mRoughness.sharpen((section.unknowns - mReference).head(mCells));
  }
  makePrior(section);
  mHuber = huberLimit(section);
}

void FitProblem::makePrior(const FitSection& section) {
  const Eigen::SparseMatrix<double>& roughness = mRoughness.matrix();
  std::vector<Eigen::Triplet<double>> entries;
  entries.reserve(static_cast<std::size_t>(roughness.nonZeros() + mCells + mShifts));
  for (Eigen::Index column = 0; column < roughness.outerSize(); ++column) {
    for (Eigen::SparseMatrix<double>::InnerIterator it(roughness, column); it; ++it) {
      entries.emplace_back(it.row(), it.col(), section.lambda * it.value());
    }
  }
  const double damping = 1.0 / (mOptions.triggerError * mOptions.triggerError);
  for (Eigen::Index i = 0; i < mCells; ++i) entries.emplace_back(i, i, 0.0);
  for (Eigen::Index i = mCells; i < mCells + mShifts; ++i) {
    entries.emplace_back(i, i, damping * shiftWeight(section.unknowns[i], mOptions.triggerError));
  }
  mPrior.resize(mCells + mShifts, mCells + mShifts);
  mPrior.setFromTriplets(entries.begin(), entries.end());
}

/// While nothing fits yet, all residuals are large. Their mean square without suspects says how
/// large: by their median, picks that the section has yet to come to would be heeded as little as
/// gross errors, and stay away from it.
double FitProblem::huberLimit(const FitSection& section) const {
  if (!mOptions.robust) return std::numeric_limits<double>::infinity();
  return kHuber * std::max(1.0, std::sqrt(section.fit.chi2));
}

double FitProblem::objective(const FitSection& section) const {
  double sum = 0.0;
  for (const double u : section.scaled) {
    const double size = std::fabs(u);
    sum += size <= mHuber ? u * u : 2.0 * mHuber * size - mHuber * mHuber;
  }
  const Vector departure = section.unknowns - mReference;
  return sum + departure.dot(mPrior * departure) + mKnown.cost(section.unknowns);
}

LinearStep FitProblem::linearize(const FitSection& section, double damping) const {
  LinearStep problem;
  const RayMatrix& rays = section.traced.rays;
  std::vector<Eigen::Triplet<double>> entries;
  entries.reserve(rays.cells.size() + mData.picks.size());
  Vector residuals(index(mData.picks.size()));
  for (std::size_t s = 0; s < mData.shots.size(); ++s) {
    const FitShot& shot = mData.shots[s];
    for (std::size_t i = shot.firstPick; i < shot.firstPick + shot.receivers.size(); ++i) {
      const double size = std::fabs(section.scaled[i]);
      const double root = size <= mHuber ? 1.0 : std::sqrt(mHuber / size);
      residuals[index(i)] = root * section.scaled[i];
      const double weight = root / mData.picks[i].sigma;
      for (std::size_t k = rays.first[i]; k < rays.first[i + 1]; ++k) {
        const std::uint32_t cell = rays.cells[k];
        entries.emplace_back(index(i), index(cell),
                             weight * rays.lengths[k] * section.slownesses[cell]);
      }
      if (mShifts > 0) entries.emplace_back(index(i), mCells + index(s), weight);
    }
  }
  problem.jacobian.resize(residuals.size(), mCells + mShifts);
  problem.jacobian.setFromTriplets(entries.begin(), entries.end());
  problem.prior = mPrior;
  problem.gradient = -(problem.jacobian.transpose() * residuals);
  problem.gradient -= mPrior * (section.unknowns - mReference);
  problem.shifts = mShifts;
  problem.prior *= 1.0 + damping;
  const double least = -std::log(mOptions.maxVelocity);
  const double most = -std::log(mOptions.minVelocity);
  problem.held.resize(static_cast<std::size_t>(mCells));
  mKnown.addTo(section.unknowns, problem);
  for (Eigen::Index c = 0; c < mCells; ++c) {
    const double value = section.unknowns[c];
    const double pull = problem.gradient[c];
    if ((value <= least && pull < 0.0) || (value >= most && pull > 0.0)) {
      problem.held[static_cast<std::size_t>(c)] = true;
    }
  }
  return problem;
}

}  // namespace talvesk
