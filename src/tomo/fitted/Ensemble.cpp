#include "tomo/fitted/Ensemble.h"

#include "tomo/fitted/ReferenceModels.h"
#include "tomo/fitted/ShotRays.h"
#include "tomo/fitted/ShotShifts.h"
#include "tomo/fitted/SurveyFit.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace talvesk {

struct Ensemble::Run {
  MemberRange range;
  unsigned threads;
  const Progress& progress;
  const GoOn& goOn;
};

Ensemble::Ensemble(std::shared_ptr<const GridGeometry> geometry, FitData data,
                   EnsembleOptions options)
    : mGeometry(std::move(geometry)),
      mData(std::move(data)),
      mOptions(std::move(options)),
      mCounts(*mGeometry, mOptions.isovalues) {}

Ensemble::~Ensemble() = default;

std::vector<std::size_t> Ensemble::openOf(MemberRange range) const {
  std::vector<std::size_t> open;
  for (auto k = static_cast<std::size_t>(range.first); k < static_cast<std::size_t>(range.end);
       ++k) {
    if (k >= mMembers.size() || mMembers[k] == EnsembleState::kOpen) open.push_back(k);
  }
  return open;
}

int Ensemble::doneOf(MemberRange range) const {
  return range.end - range.first - static_cast<int>(openOf(range).size());
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

bool Ensemble::add(const EnsembleState& state) {
  const auto& members = state.members;
  const bool known = members.size() <= kMostMembers &&
                     std::all_of(members.begin(), members.end(),
                                 [](std::uint8_t m) { return m <= EnsembleState::kLeftOut; });
  if (!known || state.start != mOptions.fit.start) return false;
  std::vector<std::uint8_t> all = mMembers;
  all.resize(std::max(all.size(), members.size()), EnsembleState::kOpen);
  for (std::size_t k = 0; k < members.size(); ++k) {
    if (members[k] == EnsembleState::kOpen) continue;
    if (all[k] != EnsembleState::kOpen) return false;
    all[k] = members[k];
  }
  const auto counting = std::count(members.begin(), members.end(), EnsembleState::kCounts);
  EnsembleCounts counts(*mGeometry, mOptions.isovalues);
  if (!counts.restore(state, static_cast<int>(counting))) return false;
  mCounts.add(counts);
  mMembers = std::move(all);
  countMembers();
  return true;
}

/// How many of its members each model has, of those that were done by an earlier run, too.
void Ensemble::countMembers() {
  if (mFits == nullptr) return;
  for (EnsembleModel& model : mModels) model.members = 0;
  for (std::size_t k = 0; k < mMembers.size(); ++k) {
    if (mMembers[k] == EnsembleState::kCounts) ++mModels[mFits->startOf(k).model].members;
  }
}

void Ensemble::addModel(const Message& name, bool layered, const std::vector<double>& slownesses) {
  for (const MemberStart& other : mStarts) {
    if (other.reference == slownesses) return;
  }
  mModels.push_back({name});
  mStarts.push_back({mStarts.size(), layered, {}, slownesses, {}, 0.0});
}

void Ensemble::findModels() {
  const VelocityBounds bounds{mOptions.fit.minVelocity, mOptions.fit.maxVelocity};
  ReferenceModels read =
      referenceModels(picksOnTime(mData, mOptions.fit.triggerError), *mGeometry, bounds);
  mRefused = std::move(read.refused);
  for (const ReferenceModel& model : read.models) {
    addModel(model.name, !model.refractors.empty(), model.slownesses);
  }
  std::vector<double> usual = defaultSlownesses(*mGeometry);
  for (double& slowness : usual) {
    slowness = std::clamp(slowness, 1.0 / bounds.greatest, 1.0 / bounds.least);
  }
  addModel(Message::tr("Default model"), false, usual);
  addModel(Message::tr("Present section"), false, mOptions.fit.start);

  // The same models once more for every manner of fitting.
  const std::vector<EnsembleModel> models = std::move(mModels);
  const std::vector<MemberStart> starts = std::move(mStarts);
  mModels.clear();
  mStarts.clear();
  for (const FitManner& manner : mannersOf(mOptions.vary, mOptions.fit)) {
    for (std::size_t i = 0; i < models.size(); ++i) {
      mStarts.push_back(starts[i]);
      mStarts.back().model = mModels.size();
      mStarts.back().manner = manner;
      mModels.push_back({namedWith(models[i].name, manner, mOptions.vary)});
    }
  }
}

Status Ensemble::fitModel(std::size_t number, RayTracer& tracer, const Run& run) {
  MemberStart& start = mStarts[number];
  FittedOptions options = mOptions.fit;
  options.start = start.reference;
  options.reference = start.reference;
  options.robust = start.manner.robust;
  options.blocky = start.manner.blocky;
  options.statics = start.manner.statics;
  FittedInversion inversion(mGeometry->size(), mData, tracer, std::move(options));
  FittedResult fit = inversion.run({}, run.goOn);
  if (!fit.status.ok() || fit.end == FitEnd::kStopped) return fit.status;
  const std::lock_guard<std::mutex> lock(mMutex);
  start.section = std::move(fit.slownesses);
  if (fit.loosened) start.reference = std::move(fit.reference);
  start.lambda = fit.lambda;
  mModels[number].chi2 = fit.fit.chi2;
  mModels[number].plausible = fit.fit.chi2 <= MemberFits::kPlausible;
  tell(run);
  return {};
}

void Ensemble::take(const EnsembleMember& member) {
  if (mMembers.size() <= member.number) mMembers.resize(member.number + 1, EnsembleState::kOpen);
  if (mMembers[member.number] != EnsembleState::kOpen) return;
  mMembers[member.number] = member.counts ? EnsembleState::kCounts : EnsembleState::kLeftOut;
  if (!member.counts) return;
  mCounts.add(member.slownesses, member.touched);
  ++mModels[mFits->startOf(member.number).model].members;
}

Status Ensemble::fitMember(std::size_t number, RayTracer& tracer, const Run& run) {
  std::optional<EnsembleMember> member;
  Status status = mFits->fit(number, tracer, run.goOn, member);
  if (!member) return status;
  const std::lock_guard<std::mutex> lock(mMutex);
  take(*member);
  tell(run);
  return status;
}

void Ensemble::tell(const Run& run) const {
  if (!run.progress) return;
  EnsembleProgress state;
  state.ofModels = static_cast<int>(mStarts.size());
  state.models =
      static_cast<int>(std::count_if(mStarts.begin(), mStarts.end(), [](const MemberStart& each) {
        return !each.section.empty();
      }));
  state.members = doneOf(run.range);
  state.ofMembers = run.range.end - run.range.first;
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

/// Members are made of the models that explain the picks.
Status Ensemble::takePlausible() {
  std::vector<MemberStart> plausible;
  for (const MemberStart& start : mStarts) {
    if (mModels[start.model].plausible) plausible.push_back(start);
  }
  if (plausible.empty()) {
    return Status::failure(
        Message::tr("No model explains the picks to within their errors (chi-square up to %1), so "
                    "that nothing can be said of how sure the section is. Their errors may be "
                    "stated too small, or shots may be shifted in time.")
            .arg(MemberFits::kPlausible));
  }
  mFits = std::make_shared<const MemberFits>(mGeometry, mData, mOptions, std::move(plausible));
  countMembers();
  return {};
}

Status Ensemble::prepare(MemberRange range, unsigned threads, const Progress& progress,
                         const GoOn& goOn) {
  if (mFits != nullptr) return {};
  const Run run{range, threads, progress, goOn};
  if (mModels.empty()) findModels();
  std::vector<std::size_t> open;
  for (std::size_t i = 0; i < mStarts.size(); ++i) {
    if (mStarts[i].section.empty()) open.push_back(i);
  }
  if (Status status = forEach(open, run, &Ensemble::fitModel); !status.ok()) return status;
  for (const MemberStart& start : mStarts) {
    if (start.section.empty()) return {};  // stopped
  }
  return takePlausible();
}

Status Ensemble::run(MemberRange range, unsigned threads, const Progress& progress,
                     const GoOn& goOn) {
  Status status = prepare(range, threads, progress, goOn);
  if (!status.ok() || mFits == nullptr) return status;
  if (mMembers.size() < static_cast<std::size_t>(range.end)) {
    mMembers.resize(static_cast<std::size_t>(range.end), EnsembleState::kOpen);
  }
  return forEach(openOf(range), Run{range, threads, progress, goOn}, &Ensemble::fitMember);
}

}  // namespace talvesk
