#include "tomo/fitted/MemberFits.h"

#include "tomo/fitted/MemberNoise.h"
#include "tomo/fitted/SurveyFit.h"

#include <utility>

namespace talvesk {
namespace {

constexpr int kMemberIterations = 4;  // most need two: they start where an earlier fit has ended

/// What is drawn for a member beside the errors of its picks.
enum class Draw : std::uint64_t { kManner, kSmoothing };

std::vector<bool> touchedCells(const RayMatrix& rays, std::size_t cells) {
  std::vector<bool> touched(cells, false);
  for (const std::uint32_t cell : rays.cells) touched[cell] = true;
  return touched;
}

bool sameManner(const FitManner& a, const FitManner& b) {
  return a.robust == b.robust && a.blocky == b.blocky && a.statics == b.statics;
}

std::size_t drawnOf(std::size_t count, const EnsembleOptions& options, std::size_t member,
                    Draw draw) {
  if (count < 2) return 0;
  return memberDraw(options.seed, member, static_cast<std::uint64_t>(draw)) % count;
}

}  // namespace

MemberFits::MemberFits(std::shared_ptr<const GridGeometry> geometry, FitData data,
                       EnsembleOptions options, std::vector<MemberStart> starts)
    : mGeometry(std::move(geometry)),
      mData(std::move(data)),
      mOptions(std::move(options)),
      mStarts(std::move(starts)) {
  for (std::size_t i = 0; i < mStarts.size(); ++i) {
    if (i == 0 || !sameManner(mStarts[i].manner, mStarts[i - 1].manner)) {
      mKinds.resize(mKinds.size() + 2);
    }
    mKinds[mKinds.size() - (mStarts[i].layered ? 1 : 2)].push_back(i);
  }
}

/// Half of the members are held to sharp ground and half to smooth ground, for the picks do not
/// tell which it is.
const MemberStart& MemberFits::startOf(std::size_t member) const {
  const std::size_t manner = drawnOf(mKinds.size() / 2, mOptions, member, Draw::kManner);
  const std::vector<std::size_t>* kinds = &mKinds[2 * manner];
  for (const int kind : {0, 1}) {
    const auto& other = kinds[1 - kind];
    if (kinds[kind].empty()) return mStarts[other[member % other.size()]];
  }
  const auto& kind = kinds[member % 2];
  return mStarts[kind[member / 2 % kind.size()]];
}

/// Of the weight of the roughness.
double MemberFits::factorOf(std::size_t member) const {
  const std::vector<double>& factors = mOptions.vary.smoothing;
  if (factors.empty()) return 1.0;
  return factors[drawnOf(factors.size(), mOptions, member, Draw::kSmoothing)];
}

/// Members are fitted to picks that are moved once more, so their own chi-square says little.
double MemberFits::chi2AsMeasured(const FittedResult& fit) const {
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

Status MemberFits::fit(std::size_t number, RayTracer& tracer, const std::function<bool()>& goOn,
                       std::optional<EnsembleMember>& member) const {
  const MemberStart& start = startOf(number);
  const FitData picks = perturbedPicks(mData, mOptions.seed, number);
  FittedOptions options = mOptions.fit;
  options.start = start.section;
  options.reference = start.reference;
  options.robust = start.manner.robust;
  options.blocky = start.manner.blocky;
  options.statics = start.manner.statics;
  options.mostIterations = kMemberIterations;
  FittedInversion inversion(mGeometry->size(), picks, tracer, std::move(options));
  FittedResult fit = inversion.settle(start.lambda, goOn, factorOf(number));
  if (!fit.status.ok() || fit.end == FitEnd::kStopped) return fit.status;
  const bool counts = chi2AsMeasured(fit) <= kPlausible;
  std::vector<bool> touched = touchedCells(fit.traced.rays, fit.slownesses.size());
  member = {number, counts, std::move(fit.slownesses), std::move(touched)};
  return {};
}

std::unique_ptr<RayTracer> MemberFits::newTracer() const {
  return fitTracer(mGeometry, mData, 1);
}

}  // namespace talvesk
