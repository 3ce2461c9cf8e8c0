#pragma once

#include "base/Log.h"
#include "base/Point2D.h"
#include "base/Status.h"
#include "grid/Grid.h"
#include "grid/SurveyProfile.h"
#include "grid/VelocityLayers.h"
#include "model/GeographicsCoord.h"
#include "model/InversionRecord.h"
#include "model/Trace.h"
#include "model/TravelTime.h"
#include "numerics/Splines.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

enum class WaveType : std::int32_t { P = 0, S = 1 };

/// A shot or receiver that lies beyond the top line of the grid and takes no part in an inversion.
struct ExcludedPosition {
  std::int32_t shot = 0;       ///< record, from 0
  std::int32_t receiver = -1;  ///< geophone of the record's string, from 0; -1 is the whole shot
  double x = 0.0;              ///< survey abscissa, metres
};

/// The survey: the one document of the application. Holds data and answers simple questions; the
/// algorithms of the rooms above fill it. Not for use by two threads at once, except that ray
/// tracing workers write the computed times of their own shot.
class TomoDocument {
 public:
  TomoDocument();
  ~TomoDocument();
  TomoDocument(TomoDocument&&) noexcept;
  TomoDocument& operator=(TomoDocument&&) noexcept;

  // --- What was recorded.
  std::string title;
  std::vector<std::string> filenames;     ///< shot files, in loading order
  std::vector<std::string> filenames_DX;  ///< S-wave files, one source polarity
  std::vector<std::string> filenames_SX;  ///< S-wave files, the other polarity
  WaveType waveType = WaveType::P;
  std::vector<double> shotPositions;  ///< source abscissa per file, metres
  std::vector<TraceSet> traceSets;
  /// One record per trace set, record i belonging to set i. A document of picks only has records
  /// without any trace set.
  std::vector<TravelTime> ttArray;
  std::vector<std::vector<Point2D>> goephonesStringSet;  ///< geophones in channel order, per string
  geographicsCoord geoCoord;
  bool geoCoord_isSet = false;

  // --- The model of the ground.
  std::unique_ptr<Grid> grid;
  double xOffset = 0.0;                   ///< added to survey x to get grid x, metres
  Splines::LinearSpline surface;          ///< elevation over grid x, of the current grid
  std::vector<double> proposedCellSizes;  ///< metres; only grows
  std::vector<VelocityLayer> layers;      ///< starting model; empty until the user made one
  double minVelocity = 250.0;             ///< m/s, limits of the solver
  double maxVelocity = 3500.0;            ///< m/s

  // --- Results of the last inversion.
  bool has_tomographic_info = false;
  bool smoothedResult = false;    ///< the grid was smoothed since
  double RMSE_tomography = -1.0;  ///< relative RMS misfit of the last pass, percent; <0: none
  /// The computed times were traced through the grid as it is, along rays of their own. Not so
  /// while an inversion runs, and in projects of earlier versions until their rays are traced anew.
  bool timesOfSection = false;
  /// Misfit through every section that the run has traced its rays in, the starting model first.
  std::vector<SectionMisfit> sectionHistory;
  std::vector<double> info_density;              ///< per cell; -1.0 before any inversion
  std::vector<double> coorcount;                 ///< metres of ray per cell, last update
  std::vector<std::uint32_t> hitCounts;          ///< per cell, of the last external iteration
  std::vector<std::vector<std::uint32_t>> rays;  ///< node lists, shot by shot, receivers in order
  std::vector<ExcludedPosition> excluded;
  std::vector<Point2D> coverageLimit;  ///< centres of the deepest covered cells, grid coordinates
  std::optional<Splines::BesselSpline> coverageSpline;  ///< through them; none for fewer than two
  std::optional<InversionRecord> lastInversion;         ///< none when nothing is known of it
  bool stopRequested = false;

  bool modified = false;  ///< something changed since the last save

  /// Takes the centres of the deepest covered cells, column by column, and lays the curve through
  /// them.
  void setCoverageLimit(std::vector<Point2D> centres);
  /// Forgets what the last inversion left, computed times included, but the information density,
  /// which every grid has.
  void clearInversion();
  /// Forgets grid, results and what else was computed for a geometry that is no longer there. The
  /// starting model stays.
  void clearModelAndResults();

  // --- Questions.
  /// True when more than half (integer halving) of all measured times are not 0. NaN and removed
  /// picks count; a document without records is incomplete. Lenient on purpose.
  bool picksComplete() const;

  /// 0 and the trace, or -1 with a line on the console's error stream.
  int findTrace(std::int32_t set, std::int32_t trace, const Trace*& out) const;

  /// The traces that the times of a record belong to; null when there are none.
  const TraceSet* tracesOf(const TravelTime& record) const;
  TraceSet* tracesOf(const TravelTime& record);
  /// Where the receivers of a record stand: the geophones of its string or, without any, what the
  /// headers of its traces say.
  std::vector<Point2D> receiversOf(const TravelTime& record) const;

  std::vector<Point2D> shotPoints() const;  ///< of the records, in order
  SurveyProfile surveyProfile() const;      ///< of strings and records

  /// The known points between the line's first and last position, ascending x, one per distance;
  /// every new distance is told on the console. Elevations only where geophones or shots are known.
  std::vector<Point2D> elevationProfile() const;
  double elevationAt(double x) const;        ///< linear between known points, metres
  double smoothElevationAt(double x) const;  ///< Bessel spline through known points, metres

  // --- Defined with the tomography.
  /// One external iteration: rays, inner iterations, smoothing, new grid, coverage and draw flags.
  /// \param slownesses out, s/m per cell; \param smoothingType 0 uniform, 1 linear, 2 Gaussian,
  /// 3 ray based. On failure the grid is as before.
  Status runTomography(std::vector<double>& slownesses, int solverIterations, int smoothing,
                       bool multiThread, bool symmetric, int smoothingType, Log& log);
  /// The rays, inner iterations and smoothing of one external iteration. Needs a grid with cells
  /// whose slownesses are all valid, and may throw; runTomography() sees to both.
  Status runTomography_fast(std::vector<double>& slownesses, unsigned threads, int solverIterations,
                            int smoothing, bool symmetric, int smoothingType, Log& log);
};

}  // namespace talvesk
