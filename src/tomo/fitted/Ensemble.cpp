#include "tomo/fitted/Ensemble.h"

#include "tomo/fitted/MemberNoise.h"
#include "tomo/fitted/ReferenceModels.h"
#include "tomo/fitted/ShotRays.h"
#include "tomo/fitted/ShotShifts.h"
#include "tomo/fitted/SurveyFit.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace talvesk {
namespace {

constexpr int kMemberIterations = 4;  // most need two: they start where an earlier fit has ended

std::vector<bool> touchedCells(const RayMatrix& rays, std::size_t cells) {
  std::vector<bool> touched(cells, false);
  for (const std::uint32_t cell : rays.cells) touched[cell] = true;
  return touched;
}

}  // namespace

/// A model, and where the fit to the picks as measured has ended with it.
struct Ensemble::Start {
  bool layered = false;
  std::vector<double> reference;  ///< s/m
  std::vector<double> section;    ///< s/m; empty: not fitted yet
  double lambda = 0.0;
};

struct Ensemble::Run {
  int members;
  unsigned threads;
  const std::function<void(const EnsembleProgress&)>& progress;
  const std::function<bool()>& goOn;
};

Ensemble::Ensemble(std::shared_ptr<const GridGeometry> geometry, FitData data,
                   EnsembleOptions options)
    : mGeometry(std::move(geometry)),
      mData(std::move(data)),
      mOptions(std::move(options)),
      mCounts(*mGeometry, mOptions.isovalues) {}

Ensemble::~Ensemble() = default;

int Ensemble::done() const {
  return static_cast<int>(
      mMembers.size() -
      static_cast<std::size_t>(std::count(mMembers.begin(), mMembers.end(), EnsembleState::kOpen)));
}

int Ensemble::leftOut() const {
  return static_cast<int>(std::count(mMembers.begin(), mMembers.end(), EnsembleState::kLeftOut));
}

EnsembleState Ensemble::state() const {
  EnsembleState state;
  state.start = mOptions.fit.start;
  state.members = mMembers;
  mCounts.save(state);
  return state;
}

bool Ensemble::restore(const EnsembleState& state) {
  const auto& members = state.members;
  const bool known = std::all_of(members.begin(), members.end(),
                                 [](std::uint8_t m) { return m <= EnsembleState::kLeftOut; });
  const auto counting = std::count(members.begin(), members.end(), EnsembleState::kCounts);
  if (!known || state.start != mOptions.fit.start ||
      !mCounts.restore(state, static_cast<int>(counting))) {
    return false;
  }
  mMembers = members;
  return true;
}

/// How many of its members each model has, of those that were done by an earlier run, too.
void Ensemble::countMembers() {
  for (EnsembleModel& model : mModels) model.members = 0;
  for (std::size_t k = 0; k < mMembers.size(); ++k) {
    if (mMembers[k] == EnsembleState::kCounts) ++mModels[modelOf(k)].members;
  }
}

void Ensemble::addModel(Message name, bool layered, std::vector<double> slownesses) {
  for (const Start& other : mStarts) {
    if (other.reference == slownesses) return;
  }
  mModels.push_back({std::move(name)});
  mStarts.push_back({layered, std::move(slownesses), {}, 0.0});
}

void Ensemble::findModels() {
  const VelocityBounds bounds{mOptions.fit.minVelocity, mOptions.fit.maxVelocity};
  ReferenceModels read =
      referenceModels(picksOnTime(mData, mOptions.fit.triggerError), *mGeometry, bounds);
  mRefused = std::move(read.refused);
  for (ReferenceModel& model : read.models) {
    const bool layered = !model.refractors.empty();
    addModel(std::move(model.name), layered, std::move(model.slownesses));
  }
  std::vector<double> usual = defaultSlownesses(*mGeometry);
  for (double& slowness : usual) {
    slowness = std::clamp(slowness, 1.0 / bounds.greatest, 1.0 / bounds.least);
  }
  addModel(Message::tr("Default model"), false, std::move(usual));
  addModel(Message::tr("Present section"), false, mOptions.fit.start);
}

FittedOptions Ensemble::optionsFrom(std::vector<double> start,
                                    const std::vector<double>& reference) const {
  FittedOptions options = mOptions.fit;
  options.start = std::move(start);
  options.reference = reference;
  return options;
}

Status Ensemble::fitModel(std::size_t number, RayTracer& tracer, const Run& run) {
  Start& start = mStarts[number];
  FittedInversion inversion(mGeometry->size(), mData, tracer,
                            optionsFrom(start.reference, start.reference));
  FittedResult fit = inversion.run({}, run.goOn);
  if (!fit.status.ok() || fit.end == FitEnd::kStopped) return fit.status;
  const std::lock_guard<std::mutex> lock(mMutex);
  start.section = std::move(fit.slownesses);
  if (fit.loosened) start.reference = std::move(fit.reference);
  start.lambda = fit.lambda;
  mModels[number].chi2 = fit.fit.chi2;
  mModels[number].plausible = fit.fit.chi2 <= kPlausible;
  tell(run);
  return {};
}

/// Members are fitted to picks that are moved once more, so their own chi-square says little.
double Ensemble::chi2AsMeasured(const FittedResult& fit) const {
  std::vector<double> scaled(mData.picks.size());
  for (std::size_t s = 0; s < mData.shots.size(); ++s) {
    const FitShot& shot = mData.shots[s];
    const double shift = fit.statics.empty() ? 0.0 : fit.statics[s];
    for (std::size_t i = shot.firstPick; i < shot.firstPick + shot.receivers.size(); ++i) {
      const FitPick& pick = mData.picks[i];
      scaled[i] = (fit.traced.times[i] + shift - pick.time) / pick.sigma;
    }
  }
  return chiSquareOf(scaled).chi2;
}

/// Half of the members are held to sharp ground and half to smooth ground, for the picks do not
/// tell which it is.
std::size_t Ensemble::modelOf(std::size_t member) const {
  std::vector<std::size_t> kinds[2];
  for (std::size_t i = 0; i < mModels.size(); ++i) {
    if (mModels[i].plausible) kinds[mStarts[i].layered ? 1 : 0].push_back(i);
  }
  for (const int kind : {0, 1}) {
    const auto& other = kinds[1 - kind];
    if (kinds[kind].empty()) return other[member % other.size()];
  }
  const auto& kind = kinds[member % 2];
  return kind[member / 2 % kind.size()];
}

Status Ensemble::fitMember(std::size_t number, RayTracer& tracer, const Run& run) {
  const std::size_t model = modelOf(number);
  const Start& start = mStarts[model];
  const FitData picks = perturbedPicks(mData, mOptions.seed, number);
  FittedOptions options = optionsFrom(start.section, start.reference);
  options.mostIterations = kMemberIterations;
  FittedInversion inversion(mGeometry->size(), picks, tracer, std::move(options));
  const FittedResult fit = inversion.settle(start.lambda, run.goOn);
  if (!fit.status.ok() || fit.end == FitEnd::kStopped) return fit.status;
  const bool counts = chi2AsMeasured(fit) <= kPlausible;
  const std::vector<bool> touched = touchedCells(fit.traced.rays, fit.slownesses.size());
  const std::lock_guard<std::mutex> lock(mMutex);
  mMembers[number] = counts ? EnsembleState::kCounts : EnsembleState::kLeftOut;
  if (counts) {
    mCounts.add(fit.slownesses, touched);
    ++mModels[model].members;
  }
  tell(run);
  return {};
}

void Ensemble::tell(const Run& run) const {
  if (!run.progress) return;
  EnsembleProgress state;
  state.ofModels = static_cast<int>(mStarts.size());
  state.models = static_cast<int>(std::count_if(
      mStarts.begin(), mStarts.end(), [](const Start& each) { return !each.section.empty(); }));
  state.members = done();
  state.ofMembers = run.members;
  state.leftOut = leftOut();
  run.progress(state);
}

/// Carries out parts on as many threads as asked for, each with a tracer of its own.
Status Ensemble::forEach(const std::vector<std::size_t>& numbers, const Run& run, Part part) {
  std::vector<std::unique_ptr<RayTracer>> tracers(std::max(run.threads, 1U));
  std::atomic<bool> ended{false};
  Status failure;
  forEachShot(numbers.size(), run.threads, {}, [&](std::size_t worker, std::size_t i) {
    if (ended || (run.goOn && !run.goOn())) return;
    std::unique_ptr<RayTracer>& tracer = tracers[worker];
    if (tracer == nullptr) tracer = fitTracer(mGeometry, mData, 1);
    const Status status = (this->*part)(numbers[i], *tracer, run);
    if (status.ok()) return;
    ended = true;
    const std::lock_guard<std::mutex> lock(mMutex);
    failure = status;
  });
  return failure;
}

Status Ensemble::run(int members, unsigned threads,
                     const std::function<void(const EnsembleProgress&)>& progress,
                     const std::function<bool()>& goOn) {
  const Run run{members, threads, progress, goOn};
  std::vector<std::size_t> open;
  if (mModels.empty()) findModels();
  for (std::size_t i = 0; i < mStarts.size(); ++i) {
    if (mStarts[i].section.empty()) open.push_back(i);
  }
  if (Status status = forEach(open, run, &Ensemble::fitModel); !status.ok()) return status;
  bool explained = false;
  for (std::size_t i = 0; i < mModels.size(); ++i) {
    if (mStarts[i].section.empty()) return {};  // stopped
    explained = explained || mModels[i].plausible;
  }
  if (!explained) {
    return Status::failure(
        Message::tr("No model explains the picks to within their errors (chi-square up to %1), so "
                    "that nothing can be said of how sure the section is. Their errors may be "
                    "stated too small, or shots may be shifted in time.")
            .arg(kPlausible));
  }
  countMembers();
  if (mMembers.size() < static_cast<std::size_t>(members)) {
    mMembers.resize(static_cast<std::size_t>(members), EnsembleState::kOpen);
  }
  open.clear();
  for (std::size_t k = 0; k < static_cast<std::size_t>(members); ++k) {
    if (mMembers[k] == EnsembleState::kOpen) open.push_back(k);
  }
  return forEach(open, run, &Ensemble::fitMember);
}

}  // namespace talvesk
