#pragma once

#include "model/ChiSquare.h"
#include "refraction/ShotArrivals.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// Standard deviations of the picks of every shot, seconds, as long as the shot's times; 0 where
/// there is no pick. \param shots shotArrivals() of the document
std::vector<std::vector<double>> pickErrors(const TomoDocument& document,
                                            const std::vector<ShotArrivals>& shots,
                                            const PickErrorRule& rule = {});

/// A pick that a model of the whole survey is fitted to.
struct WeighedPick {
  std::size_t shot = 0;
  std::size_t trace = 0;
  double from = 0.0;   ///< x of the shot, metres
  double to = 0.0;     ///< x of the receiver, metres; another than the shot's
  double time = 0.0;   ///< seconds
  double sigma = 0.0;  ///< seconds, positive

  double offset() const { return to > from ? to - from : from - to; }
};

/// The picks of all shots that take part, shot by shot. Receivers at their shot are left out.
/// \param errors of pickErrors(); where they state none the usual rule counts
/// \param marks whose `enabled` is asked; a shot without marks takes part
std::vector<WeighedPick> weighedPicks(
    const std::vector<ShotArrivals>& shots, const std::vector<std::vector<double>>& errors,
    const std::vector<refractionDataStructure::layerStruct>& marks);

}  // namespace talvesk
