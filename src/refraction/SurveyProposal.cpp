#include "refraction/SurveyProposal.h"

#include "model/TravelTime.h"
#include "numerics/Medians.h"
#include "refraction/GradientFit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <tuple>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kSharpness = 1e-4;  // seconds; no fit is taken for better than that
/// Of the criterion, for a layer more, or for none:
///   Raftery, A. E. (1995): Bayesian model selection in social research. Sociological Methodology
///   25, 111-163.
constexpr double kVeryStrong = 10.0;
constexpr double kCloser = 0.95;        // of a misfit
constexpr double kHardlyLess = 1.1;     // of a misfit
constexpr double kStandsOut = 3.5;      // robust deviations, beyond which a pick counts no more
constexpr double kSuspectErrors = 5.0;  // and errors, to be a pick that stands out
constexpr double kLongestLine = 1e6;    // metres
constexpr double kPicksPerUnknown = 5.0;
constexpr std::size_t kGradient = kLastLayer;  ///< index in SurveyProposal::grounds
constexpr std::array<WaveDetail, 6> kDetails = {WaveDetail{2, 1, 1}, {2, 1, 3}, {3, 1, 3},
                                                {5, 2, 5},           {8, 3, 8}, {13, 4, 13}};
/// Growth of the velocity in the first layer over the median offset.
constexpr std::array<double, 7> kGrowths = {0.0, 0.7, 1.4, 2.8, 5.6, 11.0, 22.0};

/// One ground with its times.
struct Candidate {
  GroundFit fit;
  std::optional<FittedWaves> waves;
  std::vector<double> scaled;  ///< residuals over the errors of the picks
};

void addResiduals(const std::vector<WeighedPick>& picks, const std::vector<double>& times,
                  Candidate& candidate) {
  for (std::size_t i = 0; i < picks.size(); ++i) {
    candidate.scaled.push_back((picks[i].time - times[i]) / picks[i].sigma);
  }
}

using PieceCounts = std::map<std::tuple<std::size_t, Side, std::size_t>, std::size_t>;

PieceCounts countPieces(const std::vector<WeighedPick>& picks,
                        const std::vector<std::size_t>& waves) {
  PieceCounts counts;
  for (std::size_t i = 0; i < picks.size(); ++i) {
    const Side side = picks[i].to > picks[i].from ? Side::kRight : Side::kLeft;
    ++counts[{picks[i].shot, side, waves[i]}];
  }
  return counts;
}

/// A layer that is more than a bend of one curve: two pieces show it, or the only curve there is.
bool everyLayerShows(const std::vector<WeighedPick>& picks, const FittedWaves& fit) {
  const PieceCounts counts = countPieces(picks, fit.wave);
  std::map<std::pair<std::size_t, Side>, std::size_t> branches;
  for (const auto& [key, count] : counts) branches[{std::get<0>(key), std::get<1>(key)}] += count;
  const std::size_t wanted = branches.size() < 2 ? 1 : 2;
  for (std::size_t wave = 0; wave < fit.model.waves.size(); ++wave) {
    std::size_t shown = 0;
    // The direct wave has its start at the shot besides.
    const std::size_t least = wave == 0 ? 1 : kLeastPicksOfPiece;
    for (const auto& [key, count] : counts) {
      if (std::get<2>(key) == wave && count >= least) ++shown;
    }
    if (shown < wanted) return false;
  }
  return true;
}

void addLayers(const std::vector<WeighedPick>& picks, std::uint32_t layers, FittedWaves found,
               std::vector<Candidate>& all) {
  Candidate candidate;
  candidate.fit.layers = layers;
  candidate.fit.fitted = true;
  candidate.fit.unknowns = found.unknowns;
  for (std::size_t k = 0; k < layers; ++k) {
    candidate.fit.velocities.push_back(found.model.velocity(k));
  }
  candidate.fit.gradient = found.model.growth * found.model.velocity(0);
  addResiduals(picks, found.times, candidate);
  candidate.waves = std::move(found);
  all.push_back(std::move(candidate));
}

double medianOffset(const std::vector<WeighedPick>& picks) {
  std::vector<double> offsets;
  for (const WeighedPick& pick : picks) offsets.push_back(pick.offset());
  return medianOf(std::move(offsets), 1.0);
}

/// Fits of so many layers in every detail that the picks can carry: with one velocity in the first
/// layer, and with the growth that fits best.
void addLayers(const std::vector<WeighedPick>& picks, std::uint32_t layers, const Course& relief,
               std::vector<Candidate>& all) {
  const auto coarse = searchWaves(picks, layers, relief);
  if (!coarse) return;
  std::vector<std::size_t> start;
  for (const WeighedPick& pick : picks) {
    start.push_back(coarse->model.earliest(pick.from, pick.to));
  }
  const double reach = medianOffset(picks);
  for (WaveDetail detail : kDetails) {
    std::optional<FittedWaves> bent;
    std::optional<FittedWaves> straight;
    for (const double growth : kGrowths) {
      if (growth > 0.0 && layers == 1) break;  // that is the gradient
      detail.growth = growth / reach;
      auto found = WaveFitter(picks, detail, relief).fit(start, layers);
      if (!found || found->unknowns * kPicksPerUnknown > static_cast<double>(picks.size()))
        continue;
      if (!everyLayerShows(picks, *found)) continue;
      std::optional<FittedWaves>& best = growth > 0.0 ? bent : straight;
      if (!best || found->cost < best->cost) best = std::move(found);
    }
    if (!straight && !bent) continue;
    start = !bent || (straight && straight->cost < bent->cost) ? straight->wave : bent->wave;
    for (auto* found : {&straight, &bent}) {
      if (*found) addLayers(picks, layers, std::move(**found), all);
    }
  }
}

void addGradients(const std::vector<WeighedPick>& picks, std::vector<Candidate>& all) {
  for (const std::size_t knots : {1U, 2U, 3U, 5U}) {
    const auto found = fitGradient(picks, knots);
    if (!found) return;
    Candidate candidate;
    candidate.fit.fitted = true;
    candidate.fit.unknowns = static_cast<double>(found->unknowns);
    candidate.fit.velocities = {found->surfaceVelocity()};
    candidate.fit.gradient = found->gradient();
    addResiduals(picks, found->times, candidate);
    all.push_back(std::move(candidate));
  }
}

/// Mean square of scaled residuals, none of which counts for more than one at the limit.
double boundedSquare(const std::vector<double>& scaled, double limit) {
  double sum = 0.0;
  for (const double u : scaled) sum += std::min(u * u, limit * limit);
  return sum / static_cast<double>(scaled.size());
}

/// The Bayesian information criterion of all candidates. No pick counts for more than one that just
/// does not stand out from the best of them.
void judge(const std::vector<WeighedPick>& picks, std::vector<Candidate>& all) {
  const auto n = static_cast<double>(picks.size());
  std::vector<double> sigmas;
  for (const WeighedPick& pick : picks) sigmas.push_back(pick.sigma);
  const double floor = kSharpness / medianOf(std::move(sigmas), 1.0);
  const auto criterion = [&](const Candidate& c, double limit) {
    return n * std::log(boundedSquare(c.scaled, limit) + floor * floor) +
           c.fit.unknowns * std::log(n + 1.0);
  };
  const auto ownLimit = [&](const Candidate& c) {
    return kStandsOut * std::max(floor, robustDeviation(c.scaled));
  };
  double limit = 0.0;
  double least = std::numeric_limits<double>::infinity();
  for (const Candidate& c : all) {
    const double own = criterion(c, ownLimit(c));
    if (own < least) {
      least = own;
      limit = ownLimit(c);
    }
  }
  for (Candidate& c : all) c.fit.criterion = criterion(c, limit);
}

bool standsOut(double scaled, double scale) {
  return std::fabs(scaled) > std::max(kSuspectErrors, kStandsOut * scale);
}

void measure(const std::vector<WeighedPick>& picks, Candidate& candidate) {
  const double scale = robustDeviation(candidate.scaled);
  double squares = 0.0;
  double scaledSquares = 0.0;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < picks.size(); ++i) {
    const double u = candidate.scaled[i];
    if (standsOut(u, scale)) continue;
    squares += u * u * picks[i].sigma * picks[i].sigma;
    scaledSquares += u * u;
    ++kept;
  }
  // The median itself never stands out, so something is always kept.
  candidate.fit.misfit = std::sqrt(squares / static_cast<double>(kept));
  candidate.fit.chi2 = scaledSquares / static_cast<double>(kept);
}

std::vector<layerStruct> noMarks(const std::vector<ShotArrivals>& shots,
                                 const std::vector<layerStruct>& before) {
  std::vector<layerStruct> marks;
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    layerStruct own;
    own.shotID = static_cast<std::uint32_t>(shot);
    const layerStruct* kept = marksOf(before, shot);
    if (kept != nullptr) own.enabled = kept->enabled;
    const std::size_t traces =
        std::max(shots[shot].times.size(), kept != nullptr ? kept->layer.size() : 0);
    own.layer.assign(traces, kNoLayer);
    own.trasla.assign(traces, 0.0);
    marks.push_back(std::move(own));
  }
  return marks;
}

/// Marks all shots, those that were not fitted, too.
void mark(const std::vector<WeighedPick>& picks, const Candidate& chosen,
          SurveyProposal& proposal) {
  const WaveModel& model = chosen.waves->model;
  proposal.waves = model;
  proposal.standOut.clear();
  proposal.shortPieces.clear();
  const double scale = robustDeviation(chosen.scaled);
  std::vector<WeighedPick> marked;
  std::vector<std::size_t> waves;
  for (const WeighedPick& pick : picks) {
    const std::size_t wave = model.earliest(pick.from, pick.to);
    const double scaled = (pick.time - model.time(wave, pick.from, pick.to)) / pick.sigma;
    if (standsOut(scaled, scale)) {
      proposal.standOut.push_back(
          {static_cast<std::uint32_t>(pick.shot), static_cast<std::uint32_t>(pick.trace)});
      continue;
    }
    proposal.marks[pick.shot].layer[pick.trace] = static_cast<std::uint32_t>(wave) + 1;
    marked.push_back(pick);
    waves.push_back(wave);
  }
  for (const auto& [key, count] : countPieces(marked, waves)) {
    const auto& [shot, side, wave] = key;
    if (count >= kLeastPicksOfPiece) continue;
    proposal.shortPieces.push_back(
        {static_cast<std::uint32_t>(shot), side, static_cast<std::uint32_t>(wave) + 1, count});
  }
}

/// Elevation of the surface above its mean. One that cannot be reckoned with is level.
Course reliefOf(const std::vector<ShotArrivals>& shots) {
  Course relief = surfaceOf(shots);
  double sum = 0.0;
  for (const double z : relief.y) sum += z;
  const double mean = sum / static_cast<double>(std::max<std::size_t>(1, relief.y.size()));
  for (double& z : relief.y) z = std::fabs(z - mean) < kLongestLine ? z - mean : 0.0;
  return relief;
}

/// Positions and times that can be reckoned with; others belong to no layer.
void leaveOutExtremes(std::vector<WeighedPick>& picks) {
  picks.erase(std::remove_if(picks.begin(), picks.end(),
                             [](const WeighedPick& pick) {
                               return !(std::fabs(pick.from) < kLongestLine &&
                                        std::fabs(pick.to) < kLongestLine &&
                                        pick.time < kLongestLine);
                             }),
              picks.end());
}

/// The best of each kind of ground, then which of them.
std::vector<const Candidate*> bestOfEach(const std::vector<Candidate>& all) {
  std::vector<const Candidate*> best(kGradient + 1, nullptr);
  for (const Candidate& c : all) {
    const Candidate*& own = best[c.fit.layers == 0 ? kGradient : c.fit.layers - 1];
    if (own == nullptr || c.fit.criterion < own->fit.criterion) own = &c;
  }
  return best;
}

/// Whether a ground that comes later is to be believed: by the criterion and by the misfit, which
/// users see. A layer more has to fit closer, no layers hardly less close.
bool isBetter(const GroundFit& later, const GroundFit& chosen) {
  const double most = later.layers > 0 ? kCloser : kHardlyLess;
  return later.criterion + kVeryStrong < chosen.criterion && later.misfit <= most * chosen.misfit;
}

}  // namespace

SurveyProposal proposeFromSurvey(const std::vector<ShotArrivals>& shots,
                                 const std::vector<std::vector<double>>& errors,
                                 const std::vector<layerStruct>& before, std::uint32_t layers) {
  SurveyProposal proposal;
  proposal.marks = noMarks(shots, before);
  proposal.grounds.resize(kGradient + 1);
  for (std::uint32_t i = 0; i < kLastLayer; ++i) proposal.grounds[i].layers = i + 1;
  std::vector<WeighedPick> picks = weighedPicks(shots, errors, before);
  leaveOutExtremes(picks);
  const Course relief = reliefOf(shots);
  std::vector<Candidate> all;
  for (std::uint32_t k = 1; k <= kLastLayer; ++k) addLayers(picks, k, relief, all);
  addGradients(picks, all);
  judge(picks, all);
  for (Candidate& c : all) measure(picks, c);

  const std::vector<const Candidate*> best = bestOfEach(all);
  for (std::size_t i = 0; i < best.size(); ++i) {
    if (best[i] == nullptr) continue;
    proposal.grounds[i] = best[i]->fit;
    const bool wanted = layers == 0 || best[i]->fit.layers == layers;
    if (!wanted) continue;
    if (!proposal.chosen || isBetter(best[i]->fit, proposal.grounds[*proposal.chosen])) {
      proposal.chosen = i;
    }
  }
  if (!proposal.hasLayers()) return proposal;
  std::vector<WeighedPick> everything = weighedPicks(shots, errors, {});
  leaveOutExtremes(everything);
  mark(everything, *best[*proposal.chosen], proposal);
  const bool stuck = layers == 0 && proposal.grounds[*proposal.chosen].layers == kLastLayer &&
                     best[1] != nullptr && !findShotPair(shots, proposal.marks, 2).complete();
  if (stuck) {
    SurveyProposal two = proposal;
    two.chosen = 1;
    two.marks = noMarks(shots, before);
    two.thirdNotBuildable = true;
    mark(everything, *best[1], two);
    if (findShotPair(shots, two.marks, 2).complete()) return two;
  }
  return proposal;
}

std::optional<double> SurveyProposal::depthAt(std::uint32_t layer, double x) const {
  if (!waves || layer < 2) return std::nullopt;
  return waves->depthAt(layer - 1, x);
}

}  // namespace talvesk
