#include "tomo/fitted/FittedInversion.h"

#include "tomo/fitted/KnownPrior.h"
#include "tomo/fitted/KnownReference.h"
#include "tomo/fitted/LambdaSearch.h"
#include "tomo/fitted/Roughness.h"
#include "tomo/fitted/StepSolver.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>

namespace talvesk {
namespace {

using Vector = Eigen::VectorXd;

constexpr double kFirstLambda = 1e-3;   // of the sum of squares of the times over their errors
constexpr double kHuber = 1.345;        // 95 % efficient on normal errors
constexpr double kLargestChange = 1.5;  // of ln slowness in one step
constexpr int kTries = 4;               // of a step along its direction
constexpr double kNearTarget = 0.05;    // of chi-square from 1
constexpr double kGain = 0.03;          // of chi-square, that an iteration should bring
constexpr int kPoorGains = 3;
constexpr double kStandstill = 0.01;
constexpr double kShortStep = 0.6;  // of a step, as a share of the whole one
constexpr double kDampingFactor = 3.0;
constexpr double kNearEnough = 2.0;  // chi-square from which a step may end where it crosses 1
constexpr double kSettled = 0.01;    // mean change of ln slowness, of a step that hardly counts
constexpr double kLeastChange = 1e-12;
constexpr double kBlockyFrom = 3.0;  // chi-square below which steps of the section mean something

constexpr double kLeastChi2 = 1e-12;  // stands for a perfect fit, which has no logarithm

Eigen::Index index(std::size_t i) {
  return static_cast<Eigen::Index>(i);
}

bool nearTarget(double chi2) {
  return std::fabs(chi2 - 1.0) < kNearTarget;
}

/// A section with the rays and times through it.
struct Section {
  Vector unknowns;  ///< ln slowness of the cells, then time shifts of the shots
  std::vector<double> slownesses;
  TracedRays traced;
  std::vector<double> scaled;  ///< computed minus measured over the error, per pick
  ChiSquare fit;
  double lambda = 0.0;  ///< with which it was found
  int iteration = 0;    ///< that found it; 0 is the start

  /// From a fit as close as the errors are.
  double distance() const { return std::fabs(std::log(std::max(fit.chi2, kLeastChi2))); }
};

}  // namespace

class FittedInversion::Fit {
 public:
  Fit(const GridSize& size, const FitData& data, RayTracer& tracer, FittedOptions options)
      : mSize(size),
        mData(data),
        mTracer(tracer),
        mOptions(std::move(options)),
        mCells(index(static_cast<std::size_t>(size.cellCount()))),
        mShifts(mOptions.statics ? index(data.shots.size()) : 0),
        mKnown(mOptions.known),
        mRoughness(size.righe, size.col) {
    if (!mKnown.loose().empty()) mRoughness.loosen(mKnown.loose());
  }

  Message invalid() const;
  FittedResult run(const std::function<void(const FitProgress&)>& progress,
                   const std::function<bool()>& goOn);
  FittedResult settle(double lambda, const std::function<bool()>& goOn);

 private:
  Section start();
  double firstLambda() const;
  bool evaluate(Section& section, const std::function<bool()>& goOn);
  void limit(Vector& unknowns) const;
  void makePrior(double lambda);
  double huberLimit(const Section& section) const;
  double objective(const Section& section, double huber) const;
  LinearStep linearize(const Section& section, double huber) const;
  bool improve(const Section& from, Section& next, const std::function<bool()>& goOn);
  bool advance(Section& section, const std::function<bool()>& goOn);
  bool search(const Section& from, const Vector& step, double slope, double huber, Section& best,
              const std::function<bool()>& goOn);
  double nextDamping() const;
  std::optional<FitEnd> ended();
  bool cross(const Section& from, Section& to, const std::function<bool()>& goOn);
  FittedResult resultOf(Section best) const;

  const GridSize mSize;
  const FitData& mData;
  RayTracer& mTracer;
  const FittedOptions mOptions;
  const Eigen::Index mCells;
  const Eigen::Index mShifts;  ///< shots with a time shift of their own
  const KnownPrior mKnown;
  Roughness mRoughness;
  StepSolver mSolver;
  Vector mReference;
  std::vector<double> mHistory;  ///< chi-square of the start and after every iteration
  int mPoorGains = 0;            ///< one after the other
  int mStandstills = 0;          ///< the same
  double mLength = 1.0;          ///< of the last step, as a share of the whole one
  double mDamping = 0.0;         ///< of the next step, as a share of the weight of the roughness
  Eigen::SparseMatrix<double> mPrior;  ///< with the weight of the roughness, of all unknowns
};

Section FittedInversion::Fit::start() {
  const auto logarithms = [&](const std::vector<double>& slownesses) {
    Vector values = Vector::Zero(mCells + mShifts);
    for (std::size_t c = 0; c < slownesses.size(); ++c) values[index(c)] = std::log(slownesses[c]);
    return values;
  };
  const auto bent = [&](const std::vector<double>& slownesses) {
    return bentToKnown(mKnown.cells(), mSize, slownesses);
  };
  const bool ownReference = !mOptions.reference.empty() && mOptions.reference != mOptions.start;
  mReference = logarithms(bent(ownReference ? mOptions.reference : mOptions.start));
  mKnown.fix(mReference);
  Section section;
  section.unknowns = ownReference ? logarithms(mOptions.start) : mReference;
  limit(section.unknowns);
  return section;
}

double FittedInversion::Fit::firstLambda() const {
  double sum = 0.0;
  for (const FitPick& pick : mData.picks) sum += pick.time * pick.time / (pick.sigma * pick.sigma);
  return kFirstLambda * sum;
}

void FittedInversion::Fit::limit(Vector& unknowns) const {
  const double least = -std::log(mOptions.maxVelocity);
  const double most = -std::log(mOptions.minVelocity);
  unknowns.head(mCells) = unknowns.head(mCells).cwiseMax(least).cwiseMin(most);
  mKnown.fix(unknowns);
}

/// \return false when it was stopped
bool FittedInversion::Fit::evaluate(Section& section, const std::function<bool()>& goOn) {
  section.slownesses.resize(static_cast<std::size_t>(mCells));
  for (std::size_t c = 0; c < section.slownesses.size(); ++c) {
    // Rounding must not take a velocity over its limit.
    section.slownesses[c] = std::clamp(std::exp(section.unknowns[index(c)]),
                                       1.0 / mOptions.maxVelocity, 1.0 / mOptions.minVelocity);
  }
  mKnown.fix(section.slownesses);
  if (!mTracer.trace(section.slownesses, section.traced, goOn)) return false;
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

void FittedInversion::Fit::makePrior(double lambda) {
  const Eigen::SparseMatrix<double>& roughness = mRoughness.matrix();
  std::vector<Eigen::Triplet<double>> entries;
  entries.reserve(static_cast<std::size_t>(roughness.nonZeros() + mCells + mShifts));
  for (Eigen::Index column = 0; column < roughness.outerSize(); ++column) {
    for (Eigen::SparseMatrix<double>::InnerIterator it(roughness, column); it; ++it) {
      entries.emplace_back(it.row(), it.col(), lambda * it.value());
    }
  }
  const double damping = 1.0 / (mOptions.triggerError * mOptions.triggerError);
  for (Eigen::Index i = 0; i < mCells + mShifts; ++i) {
    entries.emplace_back(i, i, i < mCells ? 0.0 : damping);
  }
  mPrior.resize(mCells + mShifts, mCells + mShifts);
  mPrior.setFromTriplets(entries.begin(), entries.end());
}

/// Up to how many errors a residual counts by its square. While nothing fits yet, all are large.
double FittedInversion::Fit::huberLimit(const Section& section) const {
  if (!mOptions.robust) return std::numeric_limits<double>::infinity();
  return kHuber * std::max(1.0, std::sqrt(section.fit.robust));
}

double FittedInversion::Fit::objective(const Section& section, double huber) const {
  double sum = 0.0;
  for (const double u : section.scaled) {
    const double size = std::fabs(u);
    sum += size <= huber ? u * u : 2.0 * huber * size - huber * huber;
  }
  const Vector departure = section.unknowns - mReference;
  return sum + departure.dot(mPrior * departure) + mKnown.cost(section.unknowns);
}

LinearStep FittedInversion::Fit::linearize(const Section& section, double huber) const {
  LinearStep problem;
  const RayMatrix& rays = section.traced.rays;
  std::vector<Eigen::Triplet<double>> entries;
  entries.reserve(rays.cells.size() + mData.picks.size());
  Vector residuals(index(mData.picks.size()));
  for (std::size_t s = 0; s < mData.shots.size(); ++s) {
    const FitShot& shot = mData.shots[s];
    for (std::size_t i = shot.firstPick; i < shot.firstPick + shot.receivers.size(); ++i) {
      const double size = std::fabs(section.scaled[i]);
      const double root = size <= huber ? 1.0 : std::sqrt(huber / size);
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
  problem.prior *= 1.0 + mDamping;
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

/// Along a step until the objective falls, by fresh rays. `best` is the least one met.
bool FittedInversion::Fit::search(const Section& from, const Vector& step, double slope,
                                  double huber, Section& best, const std::function<bool()>& goOn) {
  const double before = objective(from, huber);
  const double largest = step.head(mCells).cwiseAbs().maxCoeff();
  double length = std::min(1.0, kLargestChange / std::max(largest, kLeastChange));
  double least = std::numeric_limits<double>::infinity();
  for (int tries = 0; tries < kTries; ++tries) {
    Section there;
    there.unknowns = from.unknowns + length * step;
    limit(there.unknowns);
    if (!evaluate(there, goOn)) return false;
    const double value = objective(there, huber);
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
/// picks and roughness ask for. \return false when it was stopped
bool FittedInversion::Fit::cross(const Section& from, Section& to,
                                 const std::function<bool()>& goOn) {
  if (from.iteration == 0 && mKnown.any()) return true;  // half-way there is half of what is known
  const double farthest = std::log(kNearEnough);
  Section low = from;
  if (from.distance() > farthest || (from.fit.chi2 > 1.0) == (to.fit.chi2 > 1.0)) return true;
  for (int tries = 0; tries < kTries && !nearTarget(to.fit.chi2); ++tries) {
    const double a = std::log(std::max(low.fit.chi2, kLeastChi2));
    const double b = std::log(std::max(to.fit.chi2, kLeastChi2));
    Section there;
    there.unknowns = low.unknowns + (a / (a - b)) * (to.unknowns - low.unknowns);
    if (!evaluate(there, goOn)) return false;
    if ((there.fit.chi2 > 1.0) == (low.fit.chi2 > 1.0) && !nearTarget(there.fit.chi2)) {
      low = std::move(there);
    } else {
      to = std::move(there);
    }
  }
  return true;
}

/// A step with fresh rays. Throws when no ray constrains the section.
/// \return false when it was stopped
bool FittedInversion::Fit::improve(const Section& from, Section& next,
                                   const std::function<bool()>& goOn) {
  if (mOptions.blocky && from.fit.chi2 < kBlockyFrom) {
    mRoughness.sharpen((from.unknowns - mReference).head(mCells));
  }
  makePrior(from.lambda);
  const double huber = huberLimit(from);
  const LinearStep problem = linearize(from, huber);
  Vector step;
  if (!mSolver.solve(problem, step)) {
    throw std::runtime_error("no ray constrains the section");
  }
  if (!search(from, step, -2.0 * problem.gradient.dot(step), huber, next, goOn)) return false;
  next.lambda = from.lambda;
  return true;
}

/// One iteration of a fit. \return false when it was stopped
bool FittedInversion::Fit::advance(Section& section, const std::function<bool()>& goOn) {
  Section next;
  if (!improve(section, next, goOn) || !cross(section, next, goOn)) return false;
  next.lambda = section.lambda;
  section = std::move(next);
  return true;
}

FittedResult FittedInversion::Fit::settle(double lambda, const std::function<bool()>& goOn) {
  Section section = start();
  section.lambda = lambda > 0.0 ? lambda : firstLambda();
  if (!evaluate(section, goOn)) return {};
  mHistory = {section.fit.chi2};
  for (int iteration = 1; iteration <= mOptions.mostIterations; ++iteration) {
    Section next;
    if (!improve(section, next, goOn)) return {};
    const Vector change = (next.unknowns - section.unknowns).head(mCells);
    section = std::move(next);
    section.iteration = iteration;
    mHistory.push_back(section.fit.chi2);
    if (change.squaredNorm() < kSettled * kSettled * static_cast<double>(mCells)) break;
  }
  FittedResult result = resultOf(std::move(section));
  result.end = FitEnd::kIterations;
  return result;
}

FittedResult FittedInversion::Fit::resultOf(Section best) const {
  FittedResult result;
  result.slownesses = std::move(best.slownesses);
  result.traced = std::move(best.traced);
  result.scaled = std::move(best.scaled);
  result.fit = std::move(best.fit);
  result.lambda = best.lambda;
  result.kept = best.iteration;
  result.iterations = static_cast<int>(mHistory.size()) - 1;
  result.chi2History = mHistory;
  for (Eigen::Index s = 0; s < mShifts; ++s) result.statics.push_back(best.unknowns[mCells + s]);
  return result;
}

/// What is wrong with the input; empty when nothing is.
Message FittedInversion::Fit::invalid() const {
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
               "greatest; %1 and %2 m/s are not.")
        .arg(o.minVelocity)
        .arg(o.maxVelocity);
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

/// Steps that had to be cut short were too rough for rays that bend with the section. A damping of
/// their roughness keeps their length where a mere cut would take it from all of the step alike.
double FittedInversion::Fit::nextDamping() const {
  if (mLength < kShortStep) return std::max(1.0, mDamping * kDampingFactor);
  return mDamping > 0.5 ? mDamping / kDampingFactor : 0.0;
}

/// Why a fit ends after its last iteration; none: it goes on.
std::optional<FitEnd> FittedInversion::Fit::ended() {
  const double chi2 = mHistory.back();
  const double before = mHistory[mHistory.size() - 2];
  mPoorGains = chi2 > 1.0 && chi2 > before * (1.0 - kGain) ? mPoorGains + 1 : 0;
  if (nearTarget(chi2)) return FitEnd::kTarget;
  if (mPoorGains == kPoorGains) return FitEnd::kNoGain;
  mStandstills =
      chi2 < 1.0 && std::fabs(chi2 - before) < kStandstill * before ? mStandstills + 1 : 0;
  if (mStandstills == kPoorGains) return FitEnd::kFitsBetter;
  if (mHistory.size() > static_cast<std::size_t>(mOptions.mostIterations)) {
    return FitEnd::kIterations;
  }
  return std::nullopt;
}

FittedResult FittedInversion::Fit::run(const std::function<void(const FitProgress&)>& progress,
                                       const std::function<bool()>& goOn) {
  FittedResult stopped;
  Section section = start();
  if (!evaluate(section, goOn)) return stopped;
  Section best = section;
  mHistory = {section.fit.chi2};
  LambdaSearch lambda(firstLambda());
  const auto tell = [&] {
    if (!progress) return;
    progress({section.iteration, mOptions.mostIterations, section.fit, section.lambda,
              section.traced.times});
  };
  tell();
  std::optional<FitEnd> end;
  while (!end) {
    section.lambda = lambda.lambda();
    if (!advance(section, goOn)) {
      end = FitEnd::kStopped;
      break;
    }
    mHistory.push_back(section.fit.chi2);
    section.iteration = static_cast<int>(mHistory.size()) - 1;
    // A start knows nothing of the ground that a section is held to.
    const bool first = section.iteration == 1 && mKnown.any();
    if (first || section.distance() < best.distance()) best = section;
    tell();
    if (mDamping > 0.0 && section.fit.chi2 < 1.0) lambda.restart(section.lambda * (1.0 + mDamping));
    mDamping = nextDamping();
    end = ended();
    lambda.tell(std::max(section.fit.chi2, kLeastChi2));
  }
  FittedResult result = resultOf(std::move(best));
  result.end = *end;
  return result;
}

Message describe(const FittedResult& result) {
  const double chi2 = result.fit.chi2;
  switch (result.end) {
    case FitEnd::kTarget:
      return Message::tr("The section fits the picks to their errors: chi-square %1.").arg(chi2);
    case FitEnd::kNoGain:
      return Message::tr(
                 "target not reached: chi-square stays at %1. The errors of the picks may be "
                 "stated too small, shots may be shifted in time, or cells too large.")
          .arg(chi2);
    case FitEnd::kFitsBetter:
      return Message::tr(
                 "The section fits the picks better than their errors demand: chi-square %1, "
                 "however smooth it is. The errors may be stated too large.")
          .arg(chi2);
    case FitEnd::kIterations:
      return Message::tr("target not reached: chi-square is %1 after %2 iterations.")
          .arg(chi2)
          .arg(result.iterations);
    case FitEnd::kStopped:
      break;
  }
  return Message::tr("Stopped by the user after %1 iterations: chi-square %2.")
      .arg(result.iterations)
      .arg(chi2);
}

FittedInversion::FittedInversion(const GridSize& size, const FitData& data, RayTracer& tracer,
                                 FittedOptions options)
    : mFit(std::make_unique<Fit>(size, data, tracer, std::move(options))) {}

FittedInversion::~FittedInversion() = default;

FittedResult FittedInversion::run(const std::function<void(const FitProgress&)>& progress,
                                  const std::function<bool()>& goOn) {
  return attempt([&] { return mFit->run(progress, goOn); });
}

FittedResult FittedInversion::settle(double lambda, const std::function<bool()>& goOn) {
  return attempt([&] { return mFit->settle(lambda, goOn); });
}

FittedResult FittedInversion::attempt(const std::function<FittedResult()>& fit) {
  FittedResult result;
  if (Message wrong = mFit->invalid(); !wrong.empty()) {
    result.status = Status::failure(std::move(wrong));
    return result;
  }
  try {
    return fit();
  } catch (const std::exception& error) {
    result.status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
    return result;
  }
}

}  // namespace talvesk
