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

constexpr double kGain = 0.03;  // of the robust misfit, that an iteration should bring
constexpr int kPoorGains = 3;
constexpr double kStandstill = 0.01;   // change of chi-square, below 1
constexpr double kMostSuspects = 0.1;  // of the picks; a section that leaves more of them fits none
constexpr double kFewSuspects = 0.02;  // as many as any line has
constexpr double kSuspectSquare = 25.0;  // of a pick off by five errors
constexpr double kGrossErrors = 5.0;     // up to which residuals are told by their squares
constexpr double kFarOff = 10.0;         // chi-square of a start with its steps in wrong places
constexpr double kFirstSmoothing = 0.1;  // of a start that is too good: less than to the next cell
constexpr double kSmoothedTo = 0.97;     // chi-square: no smoother than it must be
constexpr double kSettled = 0.01;        // mean change of ln slowness, of a step that hardly counts

double shareOfSuspects(const ChiSquare& fit) {
  return static_cast<double>(fit.suspects.size()) /
         static_cast<double>(std::max<std::size_t>(fit.count, 1));
}

bool onTarget(const ChiSquare& fit) {
  return nearTarget(fit.chi2) && shareOfSuspects(fit) <= kMostSuspects;
}

/// Mean square of residuals over their errors, gross ones by their size. Unlike chi-square it does
/// not jump when picks become suspect or are so no more.
double robustMisfit(const std::vector<double>& scaled) {
  double sum = 0.0;
  for (const double u : scaled) {
    const double size = std::fabs(u);
    sum += size <= kGrossErrors ? u * u : kGrossErrors * (2.0 * size - kGrossErrors);
  }
  return sum / static_cast<double>(std::max<std::size_t>(scaled.size(), 1));
}

}  // namespace

double distanceOf(const ChiSquare& fit) {
  return std::fabs(std::log(std::max(fit.chi2, kLeastChi2))) +
         std::log1p(kSuspectSquare * shareOfSuspects(fit));
}

bool fewSuspects(const ChiSquare& fit) {
  return shareOfSuspects(fit) <= kFewSuspects;
}

class FittedInversion::Fit {
 public:
  Fit(const GridSize& size, const FitData& data, RayTracer& tracer, FittedOptions options)
      : mProblem(size, data, tracer, std::move(options)), mStepper(mProblem) {}

  Message invalid() const { return mProblem.invalid(); }
  FittedResult run(const std::function<void(const FitProgress&)>& progress,
                   const std::function<bool()>& goOn);
  FittedResult settle(double lambda, const std::function<bool()>& goOn, double factor);

 private:
  bool tooGood(const FitSection& start) const;
  bool loosen(FitSection& start, const std::function<bool()>& goOn);
  bool next(const FitSection& start, double weight, FitSection& section,
            const std::function<bool()>& goOn);
  std::optional<FitEnd> ended(const FitSection& section, bool cut);
  FittedResult resultOf(FitSection best) const;

  FitProblem mProblem;
  FitStepper mStepper;
  std::vector<double> mHistory;        ///< chi-square of the start and after every iteration
  std::vector<std::size_t> mSuspects;  ///< of the last section
  double mMisfit = 0.0;                ///< of the same, see robustMisfit()
  int mPoorGains = 0;                  ///< one after the other
  int mStandstills = 0;                ///< the same
  bool mLoosened = false;              ///< see FittedResult
};

FittedResult FittedInversion::Fit::settle(double lambda, const std::function<bool()>& goOn,
                                          double factor) {
  FitSection section = mProblem.start();
  section.lambda = factor * (lambda > 0.0 ? lambda : mProblem.firstLambda());
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

/// Why a fit ends after its last iteration; none: it goes on. While suspects come and go, a
/// chi-square of 1 says little of the picks that it counts.
/// \param cut the step was shortened or damped, so that a small gain does not mean that there is
/// none
std::optional<FitEnd> FittedInversion::Fit::ended(const FitSection& section, bool cut) {
  const ChiSquare& fit = section.fit;
  const double before = mHistory[mHistory.size() - 2];
  const double misfit = robustMisfit(section.scaled);
  const bool gained = misfit < mMisfit * (1.0 - kGain);
  const bool settled = fit.suspects.empty() || fit.suspects == mSuspects;
  mMisfit = misfit;
  mSuspects = fit.suspects;
  if (onTarget(fit) && settled) return FitEnd::kTarget;
  const auto unless = [&](FitEnd end) { return onTarget(fit) ? FitEnd::kTarget : end; };
  const bool below = fit.chi2 < 1.0 && shareOfSuspects(fit) <= kMostSuspects;
  if (below || gained) {
    mPoorGains = 0;
  } else if (!cut) {
    ++mPoorGains;
  }
  if (mPoorGains == kPoorGains) return unless(FitEnd::kNoGain);
  if (!below || std::fabs(fit.chi2 - before) >= kStandstill * before) {
    mStandstills = 0;
  } else if (!cut) {
    ++mStandstills;
  }
  if (mStandstills == kPoorGains) return unless(FitEnd::kFitsBetter);
  if (mHistory.size() > static_cast<std::size_t>(mProblem.options().mostIterations)) {
    return unless(FitEnd::kIterations);
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
  mSuspects = section.fit.suspects;
  mMisfit = robustMisfit(section.scaled);
  LambdaSearch weight(tooGood(start) ? kFirstSmoothing : mProblem.firstLambda());
  const auto tell = [&] {
    if (!progress) return;
    progress({section.iteration, mProblem.options().mostIterations, section.fit, section.lambda,
              section.traced.times});
  };
  tell();
  std::optional<FitEnd> end;
  if (onTarget(section.fit) && fewSuspects(section.fit)) {
    end = FitEnd::kTarget;
  } else if (!loosen(section, goOn)) {
    end = FitEnd::kStopped;
  }
  while (!end) {
    if (!next(start, weight.lambda(), section, goOn)) {
      end = FitEnd::kStopped;
      break;
    }
    mHistory.push_back(section.fit.chi2);
    section.iteration = static_cast<int>(mHistory.size()) - 1;
    // A start knows nothing of the ground that a section is held to.
    const bool first = section.iteration == 1 && mProblem.known().any();
    if (first || distanceOf(section.fit) < distanceOf(best.fit)) best = section;
    tell();
    const double damping = mStepper.damping();
    const bool cut = mStepper.cut();
    if (damping > 0.0 && section.fit.chi2 < 1.0) weight.restart(section.lambda * (1.0 + damping));
    mStepper.adaptDamping();
    end = ended(section, cut);
    if (end == FitEnd::kTarget) best = section;
    weight.tell(std::max(section.fit.chi2, kLeastChi2) / (tooGood(start) ? kSmoothedTo : 1.0));
  }
  // What the fit comes to is that of the section that is kept. Where but few picks are suspect, it
  // hardly matters that they came and went; those that the last section has as well did not.
  const bool borneOut = fewSuspects(best.fit) || best.fit.suspects == section.fit.suspects;
  if (end != FitEnd::kStopped && onTarget(best.fit) && borneOut) end = FitEnd::kTarget;
  FittedResult result = resultOf(std::move(best));
  result.end = *end;
  return result;
}

namespace {

/// Of a fit that has reached its target with the steps that lead there.
Message fitted(const ChiSquare& fit) {
  if (fit.suspects.empty()) {
    return Message::tr("The section fits the picks to their errors: chi-square %1.").arg(fit.chi2);
  }
  if (fit.suspects.size() == 1) {
    return Message::tr(
               "The section fits all but one of the %1 picks to their errors: chi-square %2.")
        .arg(fit.count)
        .arg(fit.chi2);
  }
  return Message::tr("The section fits all but %1 of the %2 picks to their errors: chi-square %3.")
      .arg(fit.suspects.size())
      .arg(fit.count)
      .arg(fit.chi2);
}

Message outcomeOf(const FittedResult& result) {
  const double chi2 = result.fit.chi2;
  const bool missed = result.end == FitEnd::kNoGain || result.end == FitEnd::kIterations;
  if (missed && (chi2 < 1.0 || nearTarget(chi2)) && shareOfSuspects(result.fit) > kMostSuspects) {
    return Message::tr(
               "target not reached: %1 of the %2 picks are off by more than five of their errors, "
               "even if the others leave a chi-square of %3. Look at them first: shots may be "
               "shifted in time, or picks lie on another wave.")
        .arg(result.fit.suspects.size())
        .arg(result.fit.count)
        .arg(chi2);
  }
  const double first = result.chi2History.empty() ? chi2 : result.chi2History.front();
  switch (result.end) {
    case FitEnd::kTarget:
      if (result.kept > 0 && result.lambda == 0.0) {
        return Message::tr(
                   "%1 The model that it started from fits them better than that, chi-square %2, "
                   "and was smoothed as far as the errors allow. State errors %3 times as large to "
                   "keep it sharp.")
            .arg(fitted(result.fit))
            .arg(first)
            .arg(std::sqrt(first));
      }
      return fitted(result.fit);
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

FittedResult FittedInversion::settle(double lambda, const std::function<bool()>& goOn,
                                     double factor) {
  return attempt([&] { return mFit->settle(lambda, goOn, factor); });
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
