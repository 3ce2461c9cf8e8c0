#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace talvesk {

/// How the arrivals through a profile fit picks.
struct LayerMisfit {
  std::uint32_t shot = 0;   ///< from 0; of a layer as a whole without meaning
  std::uint32_t layer = 0;  ///< 1 to 3; 0 is all layers
  std::size_t picks = 0;
  double rms = 0.0;   ///< of the residuals, seconds
  double mean = 0.0;  ///< pick less computed time, seconds
  double chi2 = 0.0;  ///< mean square of the residuals over the errors of the picks
};

/// Computed times of a layered profile beside the picks that it was built of.
struct LayeredFit {
  /// Per shot and trace: the wave of the layer that the trace is assigned to, seconds; not a number
  /// where it is assigned to none, or to one that the profile does not have.
  std::vector<std::vector<double>> times;
  /// Per shot and per layer of the profile, in this order: that wave at every receiver.
  std::vector<std::vector<std::vector<double>>> waves;
  std::vector<LayerMisfit> perShot;   ///< of shots that take part; where there are picks
  std::vector<LayerMisfit> perLayer;  ///< the same over all shots
  LayerMisfit total;                  ///< picks 0: nothing here is valid
};

/// Times through the profile as it was built, by LayeredTimes. Empty where no profile has a depth.
/// \param errors pickErrors()
LayeredFit fitOfProfile(const std::vector<ShotArrivals>& shots,
                        const std::vector<std::vector<double>>& errors,
                        const refractionDataStructure::Interpretation& interpretation);

/// The misfits as text: a line of heads, then a line per shot and layer, per layer and of all, with
/// shot (from 1, "all"), layer, picks, RMS and mean in milliseconds, and chi2.
std::string misfitTable(const LayeredFit& fit);

}  // namespace talvesk
