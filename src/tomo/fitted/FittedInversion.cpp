#include "tomo/fitted/FittedInversion.h"

#include "tomo/fitted/FitProblem.h"
#include "tomo/fitted/FitStepper.h"
#include "tomo/fitted/LambdaSearch.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

constexpr double kGain = 0.03;  // of chi-square, that an iteration should bring
constexpr int kPoorGains = 3;
constexpr double kStandstill = 0.01;
constexpr double kFarOff = 10.0;         // chi-square of a start with its steps in wrong places
constexpr double kFirstSmoothing = 0.1;  // of a start that is too good: less than to the next cell
constexpr double kSmoothedTo = 0.97;     // chi-square: no smoother than it must be
constexpr double kSettled = 0.01;        // mean change of ln slowness, of a step that hardly counts

}  // namespace

class FittedInversion::Fit {
 public:
  Fit(const GridSize& size, const FitData& data, RayTracer& tracer, FittedOptions options)
      : mProblem(size, data, tracer, std::move(options)), mStepper(mProblem) {}

  Message invalid() const { return mProblem.invalid(); }
  FittedResult run(const std::function<void(const FitProgress&)>& progress,
                   const std::function<bool()>& goOn);
  FittedResult settle(double lambda, const std::function<bool()>& goOn);

 private:
  bool tooGood(const FitSection& start) const;
  bool loosen(FitSection& start, const std::function<bool()>& goOn);
  bool next(const FitSection& start, double weight, FitSection& section,
            const std::function<bool()>& goOn);
  std::optional<FitEnd> ended();
  FittedResult resultOf(FitSection best) const;

  FitProblem mProblem;
  FitStepper mStepper;
  std::vector<double> mHistory;  ///< chi-square of the start and after every iteration
  int mPoorGains = 0;            ///< one after the other
  int mStandstills = 0;          ///< the same
  bool mLoosened = false;        ///< see FittedResult
};

FittedResult FittedInversion::Fit::settle(double lambda, const std::function<bool()>& goOn) {
  FitSection section = mProblem.start();
  section.lambda = lambda > 0.0 ? lambda : mProblem.firstLambda();
  if (!mProblem.evaluate(section, goOn)) return {};
  mHistory = {section.fit.chi2};
  for (int iteration = 1; iteration <= mProblem.options().mostIterations; ++iteration) {
    FitSection next;
    if (!mStepper.improve(section, next, goOn)) return {};
    const Eigen::VectorXd change = (next.unknowns - section.unknowns).head(mProblem.cells());
    section = std::move(next);
    section.iteration = iteration;
    mHistory.push_back(section.fit.chi2);
    if (change.squaredNorm() < kSettled * kSettled * static_cast<double>(mProblem.cells())) break;
  }
  FittedResult result = resultOf(std::move(section));
  result.end = FitEnd::kIterations;
  return result;
}

FittedResult FittedInversion::Fit::resultOf(FitSection best) const {
  FittedResult result;
  result.slownesses = std::move(best.slownesses);
  result.traced = std::move(best.traced);
  result.reference = mProblem.reference();
  result.loosened = mLoosened;
  result.scaled = std::move(best.scaled);
  result.fit = std::move(best.fit);
  result.lambda = best.lambda;
  result.kept = best.iteration;
  result.iterations = static_cast<int>(mHistory.size()) - 1;
  result.chi2History = mHistory;
  for (Eigen::Index s = 0; s < mProblem.shifts(); ++s) {
    result.statics.push_back(best.unknowns[mProblem.cells() + s]);
  }
  return result;
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
  if (mHistory.size() > static_cast<std::size_t>(mProblem.options().mostIterations)) {
    return FitEnd::kIterations;
  }
  return std::nullopt;
}

/// Whether the model that the fit is held to shows more than the picks can tell. Steps would only
/// take it closer to them.
bool FittedInversion::Fit::tooGood(const FitSection& start) const {
  return mProblem.heldToStart() && start.fit.chi2 < 1.0 && !nearTarget(start.fit.chi2);
}

/// Sharp steps of a model that is far from the picks are not where they should be, and rays that
/// keep to them do not let go of them. \return false when it was stopped
bool FittedInversion::Fit::loosen(FitSection& start, const std::function<bool()>& goOn) {
  mLoosened = start.fit.chi2 > kFarOff && mProblem.heldToStart() && mProblem.hasSteps(start);
  if (!mLoosened) return true;
  start = mProblem.loosened(start);
  return mProblem.evaluate(start, goOn);
}

/// One iteration. \param weight of the roughness. \return false when it was stopped
bool FittedInversion::Fit::next(const FitSection& start, double weight, FitSection& section,
                                const std::function<bool()>& goOn) {
  if (tooGood(start)) {
    section = mProblem.smoothed(start, weight);
    return mProblem.evaluate(section, goOn);
  }
  section.lambda = weight;
  return mStepper.advance(section, goOn);
}

FittedResult FittedInversion::Fit::run(const std::function<void(const FitProgress&)>& progress,
                                       const std::function<bool()>& goOn) {
  FitSection section = mProblem.start();
  if (!mProblem.evaluate(section, goOn)) return {};
  const FitSection start = section;
  FitSection best = section;
  mHistory = {section.fit.chi2};
  LambdaSearch weight(tooGood(start) ? kFirstSmoothing : mProblem.firstLambda());
  const auto tell = [&] {
    if (!progress) return;
    progress({section.iteration, mProblem.options().mostIterations, section.fit, section.lambda,
              section.traced.times});
  };
  tell();
  std::optional<FitEnd> end;
  if (!loosen(section, goOn)) end = FitEnd::kStopped;
  while (!end) {
    if (!next(start, weight.lambda(), section, goOn)) {
      end = FitEnd::kStopped;
      break;
    }
    mHistory.push_back(section.fit.chi2);
    section.iteration = static_cast<int>(mHistory.size()) - 1;
    // A start knows nothing of the ground that a section is held to.
    const bool first = section.iteration == 1 && mProblem.known().any();
    if (first || section.distance() < best.distance()) best = section;
    tell();
    const double damping = mStepper.damping();
    if (damping > 0.0 && section.fit.chi2 < 1.0) weight.restart(section.lambda * (1.0 + damping));
    mStepper.adaptDamping();
    end = ended();
    weight.tell(std::max(section.fit.chi2, kLeastChi2) / (tooGood(start) ? kSmoothedTo : 1.0));
  }
  FittedResult result = resultOf(std::move(best));
  result.end = *end;
  return result;
}

namespace {

Message outcomeOf(const FittedResult& result) {
  const double chi2 = result.fit.chi2;
  const double first = result.chi2History.empty() ? chi2 : result.chi2History.front();
  switch (result.end) {
    case FitEnd::kTarget:
      if (result.kept > 0 && result.lambda == 0.0) {
        return Message::tr(
                   "The section fits the picks to their errors: chi-square %1. The model that it "
                   "started from fits them better than that, chi-square %2, and was smoothed as "
                   "far as the errors allow. State errors %3 times as large to keep it sharp.")
            .arg(chi2)
            .arg(first)
            .arg(std::sqrt(first));
      }
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

}  // namespace

Message describe(const FittedResult& result) {
  Message outcome = outcomeOf(result);
  if (!result.loosened) return outcome;
  return Message::tr(
             "%1 The model that it started from was too far from the picks, chi-square %2, to hold "
             "the section to its sharp steps: they were smoothed first.")
      .arg(outcome)
      .arg(result.chi2History.front());
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
