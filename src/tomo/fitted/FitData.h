#pragma once

#include "base/Point2D.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// A measured time that a section is fitted to.
struct FitPick {
  std::uint32_t record = 0;    ///< of the document, from 0
  std::uint32_t receiver = 0;  ///< trace of the record, from 0
  double time = 0.0;           ///< seconds, positive
  double sigma = 0.0;          ///< one standard deviation, seconds, positive
};

/// A source with the receivers that picked its wave. Abscissas are those of the grid, metres; shots
/// and receivers lie on the surface of the grid, wherever they are between its nodes.
struct FitShot {
  std::uint32_t record = 0;       ///< of the document, from 0
  double source = 0.0;            ///< grid abscissa, metres
  std::vector<double> receivers;  ///< grid abscissas of picks firstPick .. firstPick + size - 1
  std::size_t firstPick = 0;      ///< in FitData::picks
};

/// All that an inversion by the picks' errors knows of a survey.
struct FitData {
  std::vector<FitPick> picks;  ///< shot by shot, receivers in the order of the records
  std::vector<FitShot> shots;  ///< those with at least one pick
};

/// Rays as a sparse matrix: metres of ray i in a cell. Times are its product with the slownesses.
struct RayMatrix {
  std::vector<std::size_t> first;    ///< row i: entries first[i] .. first[i + 1] - 1; size rays + 1
  std::vector<std::uint32_t> cells;  ///< ascending within a ray, each cell once
  std::vector<double> lengths;       ///< metres, positive

  std::size_t rays() const { return first.empty() ? 0 : first.size() - 1; }
};

}  // namespace talvesk
