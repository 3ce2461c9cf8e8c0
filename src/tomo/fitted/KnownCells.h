#pragma once

#include "base/Message.h"
#include "grid/GridGeometry.h"
#include "model/KnownGround.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// What known ground asks of the cells of a grid: see docs/fitted-inversion.md.
struct KnownCells {
  enum class Side { kEither, kNotFaster, kNotSlower };

  /// A cell that is drawn to a slowness, from both sides or from one.
  struct Pull {
    std::uint32_t cell = 0;
    double logSlowness = 0.0;  ///< ln of s/m
    double sigma = 0.0;        ///< of it, positive
    Side side = Side::kEither;
    std::size_t condition = 0;
    double reach = 0.0;  ///< metres along the line, for which it is a guess; 0: its cell alone
  };
  struct Fixed {
    std::uint32_t cell = 0;
    double slowness = 0.0;  ///< s/m, and no other
  };
  /// Something stated, which a section goes with or does not.
  struct Condition {
    Message name;
    /// Of a depth: the velocity that is to be reached there, m/s. 0: a condition of its pulls.
    double isovalue = 0.0;
    double depth = 0.0;  ///< metres
    double error = 0.0;  ///< metres, no less than half a cell
    std::uint32_t column = 0;
  };
  // Which neighbours of a cell may be different from it at no cost.
  static constexpr std::uint8_t kRight = 1;
  static constexpr std::uint8_t kBelow = 2;

  std::vector<Pull> pulls;
  std::vector<Fixed> fixed;
  std::vector<std::uint8_t> loose;  ///< per cell: the above, added up; empty: none
  std::vector<Condition> conditions;
  /// What of the ground the grid cannot hold, each a sentence.
  std::vector<Message> unused;

  bool empty() const { return pulls.empty() && fixed.empty() && loose.empty(); }
};

/// \param xOffset added to the known ground's x to get grid x, metres
KnownCells knownCells(const KnownGround& known, const GridGeometry& geometry, double xOffset);

/// How a section goes with what is known of its ground.
struct KnownFit {
  struct Departure {
    Message name;
    double inErrors = 0.0;  ///< too fast or too deep is positive
  };
  std::vector<Departure> all;  ///< of everything that can be compared, in the order of the ground
  std::size_t fixedCells = 0;
  std::vector<Message> unused;  ///< as of KnownCells

  static constexpr double kHonoured = 2.0;  ///< errors
  double rms() const;                       ///< in errors; 0 for none
  std::vector<Departure> missed() const;    ///< beyond kHonoured, in either direction
};

/// \param slownesses s/m per cell of the grid that the cells are of
KnownFit fitOf(const KnownCells& known, const GridSize& size,
               const std::vector<double>& slownesses);

/// Where a column first reaches a velocity, metres below the surface; 0 where it begins with it,
/// the bottom of the grid where it never does.
double depthOfVelocity(double velocity, std::uint32_t column, const GridSize& size,
                       const std::vector<double>& slownesses);

}  // namespace talvesk
