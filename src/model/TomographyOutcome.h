#pragma once

#include "base/Point2D.h"
#include "base/Shared.h"
#include "model/Certainty.h"
#include "model/InversionRecord.h"
#include "numerics/Splines.h"

#include <cstdint>
#include <optional>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

/// A shot or receiver that lies beyond the top line of the grid and takes no part in an inversion.
struct ExcludedPosition {
  std::int32_t shot = 0;       ///< record, from 0
  std::int32_t receiver = -1;  ///< geophone of the record's string, from 0; -1 is the whole shot
  double x = 0.0;              ///< survey abscissa, metres
};

/// What the last inversion left beside the velocities of the grid and the computed times of the
/// records.
struct TomographyOutcome {
  bool has_tomographic_info = false;
  bool smoothedResult = false;    ///< the grid was smoothed since
  double RMSE_tomography = -1.0;  ///< relative RMS misfit of the last pass, percent; <0: none
  /// The computed times were traced through the grid as it is, along rays of their own. Not so
  /// while an inversion runs, and in projects of earlier versions until their rays are traced anew.
  bool timesOfSection = false;
  /// Misfit through every section that the run has traced its rays in, the starting model first.
  std::vector<SectionMisfit> sectionHistory;
  std::vector<double> info_density;               ///< per cell; -1.0 before any inversion
  std::vector<double> coorcount;                  ///< metres of ray per cell, last update
  std::vector<std::uint32_t> hitCounts;           ///< per cell, of the last external iteration
  SharedVector<std::vector<std::uint32_t>> rays;  ///< node lists, shot by shot, receivers in order
  std::vector<ExcludedPosition> excluded;
  std::vector<Point2D> coverageLimit;  ///< centres of the deepest covered cells, grid coordinates
  std::optional<Splines::BesselSpline> coverageSpline;  ///< through them; none for fewer than two
  std::optional<InversionRecord> lastInversion;         ///< none when nothing is known of it
  std::optional<Certainty> certainty;                   ///< of the section that is shown

  /// Takes the centres of the deepest covered cells, column by column, and lays the curve through
  /// them.
  void setCoverageLimit(std::vector<Point2D> centres);
  /// Forgets all but the information density, which every grid has.
  void clear();
};

}  // namespace talvesk
