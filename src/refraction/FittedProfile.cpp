#include "refraction/FittedProfile.h"

#include "model/TravelTime.h"
#include "numerics/Medians.h"
#include "refraction/PicksFingerprint.h"
#include "refraction/PlausibleResults.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr int kMostRounds = 12;
constexpr double kHardlyBetter = 1e-3;  // of the cost
constexpr double kLeastStep = 0.1;

/// The picks that are marked, and the wave of each.
struct MarkedPicks {
  std::vector<WeighedPick> picks;
  std::vector<std::size_t> waves;
};

MarkedPicks markedPicks(const std::vector<ShotArrivals>& shots,
                        const std::vector<std::vector<double>>& errors,
                        const std::vector<layerStruct>& marks) {
  MarkedPicks marked;
  for (const WeighedPick& pick : weighedPicks(shots, errors, marks)) {
    const layerStruct* own = marksOf(marks, pick.shot);
    const std::uint32_t layer = own == nullptr ? kNoLayer : layerOf(*own, pick.trace);
    if (layer == kNoLayer) continue;
    marked.picks.push_back(pick);
    marked.waves.push_back(layer - 1);
  }
  return marked;
}

/// Where a refractor is told of: receivers, and shots beyond them.
std::vector<double> placesOf(const MarkedPicks& marked, const Course& surface,
                             const std::vector<ShotArrivals>& shots, std::size_t wave) {
  double first = std::numeric_limits<double>::infinity();
  double last = -first;
  for (std::size_t i = 0; i < marked.picks.size(); ++i) {
    if (marked.waves[i] != wave) continue;
    first = std::min({first, marked.picks[i].from, marked.picks[i].to});
    last = std::max({last, marked.picks[i].from, marked.picks[i].to});
  }
  double firstReceiver = std::numeric_limits<double>::infinity();
  double lastReceiver = -firstReceiver;
  std::vector<double> receivers;
  for (const ShotArrivals& shot : shots) {
    for (const Point2D& at : shot.receivers) {
      if (!isFinite(at)) continue;
      receivers.push_back(at.x);
      firstReceiver = std::min(firstReceiver, at.x);
      lastReceiver = std::max(lastReceiver, at.x);
    }
  }
  std::sort(receivers.begin(), receivers.end());
  std::vector<double> places;
  for (const double x : surface.x) {
    if (x < first || x > last) continue;
    const bool beyond = x < firstReceiver || x > lastReceiver;
    if (beyond || std::binary_search(receivers.begin(), receivers.end(), x)) places.push_back(x);
  }
  return places;
}

computedData refractorOf(const WaveModel& model, std::size_t wave,
                         const std::vector<double>& places, const Course& surface) {
  computedData refractor;
  refractor.x = places;
  for (const double x : places) {
    refractor.elevation.push_back(surface.at(x));
    refractor.velocity.push_back(1.0 / model.slownessAt(wave, x));
    const bool costsTime = model.delayAt(wave, x) > 0.0;
    refractor.depth.push_back(costsTime ? model.depthAt(wave, x).value_or(kUnknown) : kUnknown);
  }
  return refractor;
}

/// The velocity that gives the delays of the first refractor at its depths: that of the first layer
/// for those who know only one.
double meanFirstVelocity(const WaveModel& model, const computedData& refractor) {
  std::vector<double> velocities;
  for (std::size_t j = 0; j < refractor.x.size(); ++j) {
    if (!(refractor.depth[j] > 0.0)) continue;
    const double steep = model.delayAt(1, refractor.x[j]) / refractor.depth[j];
    velocities.push_back(1.0 / std::hypot(steep, 1.0 / refractor.velocity[j]));
  }
  return medianOf(std::move(velocities), kUnknown);
}

processingData resultsOf(const std::vector<ShotArrivals>& shots, const MarkedPicks& marked,
                         const WaveModel& model) {
  const Course surface = surfaceOf(shots);
  const double length = lineLength(shots);
  processingData results;
  for (std::size_t wave = 1; wave < model.waves.size(); ++wave) {
    computedData refractor =
        refractorOf(model, wave, placesOf(marked, surface, shots, wave), surface);
    leaveOutVelocities(refractor.velocity);
    leaveOutDepths(refractor.depth, length);
    results.cData.push_back(std::move(refractor));
  }
  for (std::size_t k = 0; k < model.top.knots(); ++k) {
    results.first.x.push_back(model.top.knotAt(k));
    results.first.velocity.push_back(1.0 / model.waves[0].slowness[k]);
  }
  results.first.growth = model.growth;
  results.first.growsTo = model.growsTo;
  results.v1 = meanFirstVelocity(model, results.cData[0]);
  results.v2 = results.cData[0].velocity;
  if (results.cData.size() > 1) results.v3 = results.cData[1].velocity;
  results.picks = fingerprintOf(shots);
  return results;
}

/// A round of the fit: waves, the profile of them, and how it does.
struct Attempt {
  WaveModel model;
  std::vector<double> corrections;  ///< seconds, per pick: what was taken off before the waves
  processingData results;
  LayeredFit fit;
  double cost = std::numeric_limits<double>::infinity();
};

class ProfileFitter {
 public:
  ProfileFitter(const std::vector<ShotArrivals>& shots,
                const std::vector<std::vector<double>>& errors,
                const std::vector<layerStruct>& marks)
      : mShots(shots), mErrors(errors), mMarks(marks), mMarked(markedPicks(shots, errors, marks)) {}

  /// The best profile on the way from these waves on; without a finite cost there is none.
  Attempt fitFrom(const WaveModel& model) const {
    Attempt best = attempt(model, std::vector<double>(mMarked.picks.size(), 0.0));
    double step = 1.0;
    for (int round = 0; round < kMostRounds && step >= kLeastStep; ++round) {
      if (!std::isfinite(best.cost)) break;
      auto now = next(best, step);
      if (!now) break;
      const bool settled = std::fabs(now->cost - best.cost) < kHardlyBetter * best.cost;
      if (now->cost < best.cost) {
        best = std::move(*now);
      } else {
        step *= 0.5;
      }
      if (settled) break;
    }
    return best;
  }

 private:
  Attempt attempt(const WaveModel& model, std::vector<double> corrections) const {
    Attempt attempt;
    attempt.model = model;
    attempt.corrections = std::move(corrections);
    attempt.results = resultsOf(mShots, mMarked, model);
    Interpretation work;
    work.ttLayer = mMarks;
    work.refractData = attempt.results;
    attempt.fit = fitOfProfile(mShots, mErrors, work);
    if (attempt.fit.total.picks == 0) return attempt;
    attempt.cost = 0.0;
    for (const WeighedPick& pick : mMarked.picks) {
      const double time = attempt.fit.times[pick.shot][pick.trace];
      if (std::isfinite(time)) attempt.cost += robustCost((pick.time - time) / pick.sigma);
    }
    return attempt;
  }

  /// The waves again, from the picks less what the times through the profile are off from those of
  /// its waves. \param step share of the way from what was taken off last
  std::optional<Attempt> next(const Attempt& last, double step) const {
    const WaveModel& model = last.model;
    std::vector<double> corrections = last.corrections;
    std::vector<WeighedPick> picks = mMarked.picks;
    for (std::size_t i = 0; i < picks.size(); ++i) {
      const double through = last.fit.times[picks[i].shot][picks[i].trace];
      if (std::isfinite(through)) {
        const double off = through - model.time(mMarked.waves[i], picks[i].from, picks[i].to);
        corrections[i] += step * (off - corrections[i]);
      }
      picks[i].time -= corrections[i];
    }
    const WaveDetail detail{model.delays.knots(), model.slownesses.knots(), model.top.knots(),
                            model.growth};
    const auto waves = WaveFitter(picks, detail, model.relief).fitAssigned(mMarked.waves, model);
    if (!waves) return std::nullopt;
    return attempt(*waves, std::move(corrections));
  }

  const std::vector<ShotArrivals>& mShots;
  const std::vector<std::vector<double>>& mErrors;
  const std::vector<layerStruct>& mMarks;
  MarkedPicks mMarked;
};

}  // namespace

SurveyProposal proposalOfMarks(const std::vector<ShotArrivals>& shots,
                               const std::vector<std::vector<double>>& errors,
                               const std::vector<layerStruct>& marks) {
  std::uint32_t layers = kLastLayer;
  while (layers > 1 && !isAssigned(marks, layers)) --layers;
  SurveyProposal proposal = proposeFromSurvey(shots, errors, marks, layers);
  proposal.marks = marks;
  clearShifts(proposal.marks);
  return proposal;
}

LayeredFit fitProfile(const std::vector<ShotArrivals>& shots,
                      const std::vector<std::vector<double>>& errors,
                      const SurveyProposal& proposal, Interpretation& interpretation) {
  if (!proposal.waves || proposal.waves->waves.size() < 2) return {};
  const auto below = static_cast<std::uint32_t>(proposal.waves->waves.size()) + 1;
  if (below <= kLastLayer && isAssigned(proposal.marks, below)) return {};
  Attempt best = ProfileFitter(shots, errors, proposal.marks).fitFrom(*proposal.waves);
  if (!std::isfinite(best.cost)) return {};
  interpretation = {};
  interpretation.ttLayer = proposal.marks;
  interpretation.refractData = std::move(best.results);
  return std::move(best.fit);
}

namespace {

constexpr double kMuchLess = 1.5;  // of a misfit
constexpr double kApart = 0.01;    // of a reciprocal time

Message milliseconds(double seconds) {
  return Message::number(1e3 * seconds, 2);
}

/// The RMS of every shot over all its layers.
std::map<std::size_t, double> rmsOfShots(const LayeredFit& fit) {
  std::map<std::size_t, double> squares;
  std::map<std::size_t, double> picks;
  for (const LayerMisfit& one : fit.perShot) {
    const auto n = static_cast<double>(one.picks);
    squares[one.shot] += one.rms * one.rms * n;
    picks[one.shot] += n;
  }
  for (auto& [shot, sum] : squares) sum = std::sqrt(sum / picks[shot]);
  return squares;
}

/// The shot from which on along the line no shot fits within the limit; else the worst.
std::pair<std::size_t, bool> firstBadShot(const std::vector<ShotArrivals>& shots,
                                          const std::map<std::size_t, double>& rms, double limit) {
  std::vector<std::size_t> order;
  std::size_t worst = rms.begin()->first;
  for (const auto& [shot, own] : rms) {
    order.push_back(shot);
    if (own > rms.at(worst)) worst = shot;
  }
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return shots[a].shot.x < shots[b].shot.x; });
  std::size_t from = order.size();
  while (from > 0 && rms.at(order[from - 1]) > limit) --from;
  const bool goesOn = from + 1 < order.size();
  return {goesOn ? order[from] : worst, goesOn};
}

/// What two curves that are drawn along lines say of the time from end to end, where they differ.
Message endsApart(const Interpretation& interpretation) {
  const auto& forward = interpretation.phnt_A;
  const auto& reverse = interpretation.phnt_R;
  for (std::size_t i = 0; i < std::min(forward.size(), reverse.size()); ++i) {
    const double a = forward[i].reciprocalTime;
    const double b = reverse[i].reciprocalTime;
    if (!(std::fabs(a - b) > kApart * std::max(a, b))) continue;
    return Message::tr(
               "the curves of layer %1 follow the lines of shots %2 and %3, which give "
               "%4 and %5 ms for the way between these shots")
        .arg(forward[i].layer)
        .arg(forward[i].shotID + 1)
        .arg(reverse[i].shotID + 1)
        .arg(Message::number(1e3 * a, 4))
        .arg(Message::number(1e3 * b, 4));
  }
  return {};
}

}  // namespace

Message whyProfileFitsLess(const std::vector<ShotArrivals>& shots, const LayeredFit& fit,
                           const SurveyProposal& proposal, const Interpretation& interpretation) {
  if (fit.perShot.empty() || !proposal.hasLayers()) return {};
  const double waves = proposal.grounds[*proposal.chosen].misfit;
  const double limit = kMuchLess * waves;
  if (!(fit.total.rms > limit)) return {};
  const auto [shot, goesOn] = firstBadShot(shots, rmsOfShots(fit), limit);
  Message text = goesOn ? Message::tr(
                              "the profile fits its picks to %1 ms only, the waves of the "
                              "proposal to %2 ms: it is off from shot %3 at %4 on")
                        : Message::tr(
                              "the profile fits its picks to %1 ms only, the waves of the "
                              "proposal to %2 ms: it is off most at shot %3 at %4");
  text = std::move(text)
             .arg(milliseconds(fit.total.rms))
             .arg(milliseconds(waves))
             .arg(shot + 1)
             .arg(Message::length(shots[shot].shot.x));
  Message why = interpretation.refractData.isFitted()
                    ? Message::tr(
                          "the delays of the waves change so fast along the line that no "
                          "boundary has them all")
                    : endsApart(interpretation);
  return why.empty() ? text : Message::tr("%1; %2").arg(std::move(text)).arg(std::move(why));
}

}  // namespace talvesk
