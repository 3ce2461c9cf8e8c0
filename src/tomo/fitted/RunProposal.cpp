#include "tomo/fitted/RunProposal.h"

#include "model/GroundModel.h"
#include "model/Parameters.h"
#include "model/TomoDocument.h"
#include "tomo/fitted/GradientProfile.h"
#include "tomo/fitted/SurveyFit.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kBelowSlowest = 0.7;
constexpr double kAboveFastest = 1.4;
constexpr double kBelowDeepest = 1.25;
constexpr double kMostDepth = 1.0 / 2.0;   // of the longest offset
constexpr double kUsualDepth = 1.0 / 3.0;  // of it, where nothing better is known
constexpr double kTens = 10.0;             // m/s

/// Velocities of the straight ways from shots to receivers, ascending.
std::vector<double> straightVelocities(const LinePicks& line) {
  std::vector<double> velocities;
  for (const LinePick& pick : line.picks) velocities.push_back(pick.distance / pick.time);
  std::sort(velocities.begin(), velocities.end());
  return velocities;
}

double within(double velocity, const Parameter<double>& parameter) {
  return std::clamp(velocity, parameter.limits.least, parameter.limits.most);
}

}  // namespace

std::optional<RunProposal> proposeRun(const LinePicks& line, double cellSize) {
  if (line.picks.empty()) return std::nullopt;
  const std::vector<double> straight = straightVelocities(line);
  const double slowest = straight[straight.size() / 20];
  double fastest = straight[straight.size() - 1 - straight.size() / 20];
  const double reach = line.picks.back().offset;
  double depth = kUsualDepth * reach;
  const GradientProfile profile = gradientProfile(line, {});
  if (!profile.depths.empty()) {
    fastest =
        std::max(fastest, interpolated(profile.depths, profile.velocities, profile.deepestTurn));
    depth = std::min(kBelowDeepest * profile.deepestTurn, kMostDepth * reach);
  }
  RunProposal proposal;
  proposal.minVelocity =
      within(std::floor(kBelowSlowest * slowest / kTens) * kTens, parameters::kMinVelocity);
  proposal.maxVelocity =
      within(std::ceil(kAboveFastest * fastest / kTens) * kTens, parameters::kMaxVelocity);
  proposal.depth = depth;
  constexpr double kMostCells = 1000.0;
  proposal.smoothing =
      static_cast<int>(std::lround(std::clamp(line.gap / cellSize, 1.0, kMostCells)));
  return proposal;
}

std::optional<RunProposal> proposeRun(const TomoDocument& document) {
  const Grid* grid = document.model->grid.get();
  if (grid == nullptr || grid->cellCount() == 0) return std::nullopt;
  const FitData data = picksToFit(document, {});
  return proposeRun(linePicksOf(data, grid->geometry()), grid->aLato());
}

}  // namespace talvesk
