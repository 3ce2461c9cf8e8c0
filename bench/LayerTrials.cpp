// How well layers are proposed: a table of synthetic trials, each with the geometry and the ground
// that its number draws. An argument is the number of trials of each kind, 100 without.
#include "support/LayerTrials.h"

#include "support/ConsoleCapture.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace talvesk;
using testing::TrialGround;

struct Kind {
  const char* name;
  TrialGround ground;
  double gross;  ///< share of the picks
};

struct Summary {
  std::array<int, 4> claimed{};
  int built = 0;
  std::vector<double> waveDepth;
  std::vector<double> waveVelocity;
  std::vector<double> profileDepth;
  std::vector<double> profileVelocity;
  int fitted = 0;
  std::vector<double> fittedDepth;
  std::vector<double> fittedVelocity;
  std::vector<double> misfits;  ///< of the fitted profile over that of the waves
};

Summary summarize(const Kind& kind, std::uint32_t trials) {
  Summary all;
  for (std::uint32_t i = 0; i < trials; ++i) {
    const testing::LayerTrial trial(kind.ground, i, 5e-4, kind.gross);
    const testing::TrialOutcome outcome = [&trial] {
      const testing::ConsoleCapture silence;
      return trial.propose();
    }();
    ++all.claimed[outcome.layers];
    if (outcome.layers != trial.layers() || trial.layers() == 0) continue;
    all.waveDepth.push_back(outcome.waveDepth);
    all.waveVelocity.push_back(outcome.waveVelocity);
    if (outcome.fitted) {
      ++all.fitted;
      all.fittedDepth.push_back(outcome.fittedDepth);
      all.fittedVelocity.push_back(outcome.fittedVelocity);
      all.misfits.push_back(outcome.fittedMisfit / outcome.waveMisfit);
    }
    if (!outcome.built) continue;
    ++all.built;
    all.profileDepth.push_back(outcome.profileDepth);
    all.profileVelocity.push_back(outcome.profileVelocity);
  }
  return all;
}

double percent(const std::vector<double>& sizes) {
  return 100.0 * medianOf(sizes, 0.0);
}

}  // namespace

int main(int argc, char** argv) {
  const auto trials = static_cast<std::uint32_t>(argc > 1 ? std::atoi(argv[1]) : 100);
  const std::array<Kind, 7> kinds = {
      Kind{"two layers, level", TrialGround::kTwoLevel, 0.0},
      {"two layers, dipping", TrialGround::kTwoDipping, 0.0},
      {"three layers, level", TrialGround::kThreeLevel, 0.0},
      {"three layers, dipping", TrialGround::kThreeDipping, 0.0},
      {"steady gradient", TrialGround::kGradient, 0.0},
      {"two, dipping, 3 % gross", TrialGround::kTwoDipping, 0.03},
      {"three, dipping, 3 % gross", TrialGround::kThreeDipping, 0.03}};
  std::printf(
      "| Ground | gradient | 1 layer | 2 | 3 | waves: depth | velocity | reciprocal: built | "
      "depth | velocity | fitted | depth | velocity | misfit over that of the waves, largest |\n"
      "|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n");
  for (const Kind& kind : kinds) {
    const Summary all = summarize(kind, trials);
    const double worst =
        all.misfits.empty() ? 0.0 : *std::max_element(all.misfits.begin(), all.misfits.end());
    std::printf(
        "| %s | %d | %d | %d | %d | %.1f %% | %.1f %% | %d | %.1f %% | %.1f %% | %d | "
        "%.1f %% | %.1f %% | %.2f |\n",
        kind.name, all.claimed[0], all.claimed[1], all.claimed[2], all.claimed[3],
        percent(all.waveDepth), percent(all.waveVelocity), all.built, percent(all.profileDepth),
        percent(all.profileVelocity), all.fitted, percent(all.fittedDepth),
        percent(all.fittedVelocity), worst);
    std::fflush(stdout);
  }
  return 0;
}
