#pragma once

#include "model/TomoDocument.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace talvesk::test {

/// A line over a slow layer on faster ground, with records of every shot whose first breaks are
/// known: a direct and a refracted wave of sharp beginning, a slow wave several times as strong
/// behind them, and noise.
struct Ground {
  double interval = 0.25e-3;  ///< seconds
  double spacing = 5.0;       ///< metres
  double frequency = 40.0;    ///< Hz, of the first arrival
  double noise = 0.1;         ///< RMS, as a share of the largest amplitude of the first arrival
  double lead = 20e-3;        ///< seconds recorded before the shot
  std::size_t channels = 24;
  double slow = 600.0;     ///< m/s
  double fast = 1800.0;    ///< m/s
  double depth = 8.0;      ///< metres
  double dip = 0.0;        ///< metres that the layer's depth changes along the line
  double surface = 3.0;    ///< amplitude of the slow wave, of the first arrival's
  double colour = 0.0;     ///< 0 white noise; towards 1 more and more of low frequency
  double refracted = 1.0;  ///< amplitude of the refracted wave, of the direct one's
  unsigned seed = 11;

  double length() const { return spacing * static_cast<double>(channels - 1); }
  /// Of the first arrival, seconds after the shot.
  double time(double shot, double geophone) const;
};

/// \param shots places along the line, metres; the first geophone stands at 0
TomoDocument lineOver(const Ground& ground, const std::vector<double>& shots);

std::vector<std::int32_t> allShots(const TomoDocument& document);

}  // namespace talvesk::test
