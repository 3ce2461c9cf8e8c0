#pragma once

#include "base/Point2D.h"
#include "base/Shared.h"
#include "base/Status.h"
#include "grid/SurveyProfile.h"
#include "model/GeographicsCoord.h"
#include "model/TravelTime.h"

#include <cstdint>
#include <string>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

class Log;
struct Annotations;
struct GroundModel;
struct KeptRun;
struct KnownGround;
struct Recordings;
struct SurveyLine;
struct TomographyOutcome;
struct Trace;
using TraceSet = std::vector<Trace>;

/// The survey: the one document of the application. Holds data and answers simple questions; the
/// algorithms of the rooms above fill it. A copy costs some pointers: what it consists of is shared
/// until one of the copies edits it. Not for use by two threads at once, except that ray tracing
/// workers write the computed times of their own shot; copies may be.
///
/// A part is read by `->` and written through edit(). Include the header of a part to use it.
class TomoDocument {
 public:
  TomoDocument();
  ~TomoDocument();
  TomoDocument(const TomoDocument&);
  TomoDocument& operator=(const TomoDocument&);
  TomoDocument(TomoDocument&&) noexcept;
  TomoDocument& operator=(TomoDocument&&) noexcept;

  std::string title;
  Shared<Recordings> recordings;  ///< model/Recordings.h
  /// One record per trace set, record i belonging to set i. A document of picks only has records
  /// without any trace set.
  SharedVector<TravelTime> ttArray;
  Shared<SurveyLine> line;           ///< model/SurveyLine.h
  Shared<GroundModel> model;         ///< model/GroundModel.h
  Shared<TomographyOutcome> result;  ///< of the last inversion, model/TomographyOutcome.h
  Shared<MapPosition> map;           ///< model/GeographicsCoord.h
  SharedVector<KeptRun> runs;        ///< inversions so far, oldest first; model/KeptRun.h
  Shared<KnownGround> known;         ///< from elsewhere than the picks, model/KnownGround.h
  Shared<Annotations> annotations;   ///< drawn on the section, model/Annotations.h
  /// Metres, one more for every look at the survey. What was proposed is remembered, be the edits
  /// since undone or not, so it is no part of the model.
  SharedVector<double> proposedCellSizes;
  bool stopRequested = false;  ///< the inversion under way is to end after its iteration

  /// Forgets what the last inversion left, computed times included, but the information density,
  /// which every grid has.
  void clearInversion();
  /// Forgets grid, results and what else was computed for a geometry that is no longer there. The
  /// starting model stays.
  void clearModelAndResults();

  // --- Questions.
  /// True when more than half (integer halving) of all measured times are not 0. NaN and removed
  /// picks count, disabled shots do not; a document without records is incomplete. Lenient on
  /// purpose.
  bool picksComplete() const;

  /// 0 and the trace, or -1 with a line on the console's error stream.
  int findTrace(std::int32_t set, std::int32_t trace, const Trace*& out) const;

  /// The traces that the times of a record belong to; null when there are none.
  const TraceSet* tracesOf(const TravelTime& record) const;
  TraceSet* editTracesOf(const TravelTime& record);  ///< the same, to be written
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
