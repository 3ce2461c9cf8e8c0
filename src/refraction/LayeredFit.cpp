#include "refraction/LayeredFit.h"

#include "base/TextNumber.h"
#include "model/TravelTime.h"
#include "refraction/LayeredTimes.h"

#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

/// Sums of residuals, for several misfits at once.
class Tally {
 public:
  void add(double residual, double sigma) {
    ++mPicks;
    mSum += residual;
    mSquares += residual * residual;
    mScaled += residual * residual / (sigma * sigma);
  }
  bool empty() const { return mPicks == 0; }
  LayerMisfit misfit(std::size_t shot, std::uint32_t layer) const {
    const auto n = static_cast<double>(mPicks);
    return {static_cast<std::uint32_t>(shot), layer,    mPicks,
            std::sqrt(mSquares / n),          mSum / n, mScaled / n};
  }

 private:
  std::size_t mPicks = 0;
  double mSum = 0.0;
  double mSquares = 0.0;
  double mScaled = 0.0;
};

void measure(const std::vector<ShotArrivals>& shots, const std::vector<std::vector<double>>& errors,
             const std::vector<layerStruct>& marks, std::uint32_t layers, LayeredFit& fit) {
  std::vector<Tally> perLayer(layers);
  Tally total;
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    const layerStruct* own = marksOf(marks, shot);
    if (own == nullptr || !own->enabled) continue;
    std::vector<Tally> here(layers);
    for (std::size_t i = 0; i < shots[shot].times.size(); ++i) {
      if (!hasPick(shots[shot].times[i]) || !std::isfinite(fit.times[shot][i])) continue;
      const double residual = shots[shot].times[i] - fit.times[shot][i];
      const std::uint32_t layer = layerOf(*own, i);
      for (Tally* tally : {&here[layer - 1], &perLayer[layer - 1], &total}) {
        tally->add(residual, errors[shot][i]);
      }
    }
    for (std::uint32_t layer = 1; layer <= layers; ++layer) {
      if (!here[layer - 1].empty()) fit.perShot.push_back(here[layer - 1].misfit(shot, layer));
    }
  }
  for (std::uint32_t layer = 1; layer <= layers; ++layer) {
    if (!perLayer[layer - 1].empty()) fit.perLayer.push_back(perLayer[layer - 1].misfit(0, layer));
  }
  if (!total.empty()) fit.total = total.misfit(0, 0);
}

std::string lineOf(const std::string& shot, const std::string& layer, const LayerMisfit& misfit) {
  return shot + ' ' + layer + ' ' + std::to_string(misfit.picks) + ' ' +
         formatDouble(misfit.rms * 1000.0, 4) + ' ' + formatDouble(misfit.mean * 1000.0, 4) + ' ' +
         formatDouble(misfit.chi2, 4) + '\n';
}

}  // namespace

LayeredFit fitOfProfile(const std::vector<ShotArrivals>& shots,
                        const std::vector<std::vector<double>>& errors,
                        const Interpretation& interpretation) {
  LayeredFit fit;
  auto ground = layeredGround(shots, interpretation.refractData);
  if (!ground) return fit;
  LayeredTimes through(std::move(*ground));
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    const ShotArrivals& arrivals = shots[shot];
    std::vector<std::vector<double>> waves;
    for (std::uint32_t layer = 1; layer <= through.layers(); ++layer) {
      waves.push_back(through.times(layer, arrivals.shot, arrivals.receivers));
    }
    std::vector<double> own(arrivals.times.size(), kUnknown);
    const layerStruct* marks = marksOf(interpretation.ttLayer, shot);
    for (std::size_t i = 0; marks != nullptr && i < own.size(); ++i) {
      const std::uint32_t layer = layerOf(*marks, i);
      if (layer >= 1 && layer <= waves.size()) own[i] = waves[layer - 1][i];
    }
    fit.waves.push_back(std::move(waves));
    fit.times.push_back(std::move(own));
  }
  measure(shots, errors, interpretation.ttLayer, through.layers(), fit);
  return fit;
}

std::string misfitTable(const LayeredFit& fit) {
  std::string table = "shot layer picks rms_ms mean_ms chi2\n";
  for (const LayerMisfit& one : fit.perShot) {
    table += lineOf(std::to_string(one.shot + 1), std::to_string(one.layer), one);
  }
  for (const LayerMisfit& one : fit.perLayer) {
    table += lineOf("all", std::to_string(one.layer), one);
  }
  if (fit.total.picks > 0) table += lineOf("all", "all", fit.total);
  return table;
}

}  // namespace talvesk
