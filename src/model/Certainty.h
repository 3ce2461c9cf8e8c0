#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace talvesk {

struct EnsembleState;

/// Median, and what 16 and 84 % of the members of an ensemble stay below: one robust deviation to
/// either side.
struct Quantiles {
  std::vector<double> median, low, high;
};

/// The depth at which the members of an ensemble reach a velocity, along the line.
struct IsovalueBand {
  double velocity = 0.0;  ///< m/s
  Quantiles depths;       ///< metres below the surface per column; not a number: not reached
};

/// A model that members of an ensemble were held to.
struct CertaintyModel {
  std::string name;   ///< English, as users choose it
  double chi2 = 0.0;  ///< that a fit with it comes to
  int members = 0;    ///< that count; none for a model that does not explain the picks
};

/// How sure a section is: in what the many sections agree that explain its picks as well. Belongs
/// to the section and the picks that it was found with. See docs/certainty.md.
struct Certainty {
  /// percentBeyond() up to which a section counts as one of those that the certainty tells of: a
  /// twentieth is what chance leaves out, and as much again the choice of the members.
  static constexpr double kMostBeyond = 10.0;

  int members = 0;  ///< that count
  int leftOut = 0;  ///< that do not explain the picks
  std::uint64_t seed = 0;
  Quantiles velocities;                ///< m/s per cell
  std::vector<double> deviations;      ///< standard ones of ln velocity, per cell
  std::vector<std::uint32_t> touched;  ///< members with a ray in the cell, per cell
  std::vector<IsovalueBand> bands;
  std::vector<CertaintyModel> models;
  std::uint64_t picks = 0;  ///< fingerprintOfPicks() of those that it was found with
  std::shared_ptr<const EnsembleState> state;  ///< with which its ensemble goes on; or none

  /// Half of what lies between 16 and 84 %, in percent of the median.
  double spread(std::size_t cell) const {
    return 50.0 * (velocities.high[cell] - velocities.low[cell]) / velocities.median[cell];
  }
  /// In what share of the cells with rays, percent, a section lies more than two deviations from
  /// the median: much where it does not explain the picks. \param section m/s per cell
  double percentBeyond(const std::vector<double>& section) const {
    std::size_t cells = 0;
    std::size_t beyond = 0;
    for (std::size_t cell = 0; cell < touched.size(); ++cell) {
      if (touched[cell] == 0) continue;
      ++cells;
      const double off = std::fabs(std::log(section[cell] / velocities.median[cell]));
      if (off > 2.0 * deviations[cell]) ++beyond;
    }
    return cells == 0 ? 0.0 : 100.0 * static_cast<double>(beyond) / static_cast<double>(cells);
  }
};

}  // namespace talvesk
