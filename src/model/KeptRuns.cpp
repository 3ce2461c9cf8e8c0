#include "model/KeptRuns.h"

#include "base/Fingerprint.h"
#include "model/GroundModel.h"
#include "model/PickFingerprint.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <cmath>

namespace talvesk {
namespace {

void take(const Point2D& point, Fingerprint& positions) {
  positions.take(point.x);
  positions.take(point.z);
}

/// Metres: what interpolating between two points may lose, as where a shot has come between two
/// geophones.
constexpr double kSameElevation = 1e-9;

/// Whether a surface has the other's elevations wherever the other bends.
bool follows(Splines::LinearSpline surface, const Splines::LinearSpline& other) {
  for (std::uint32_t i = 0; i < other.npts(); ++i) {
    if (!(std::fabs(surface(other.X()[i]) - other.Y()[i]) <= kSameElevation)) return false;
  }
  return true;
}

bool sameSurface(const Splines::LinearSpline& a, const Splines::LinearSpline& b) {
  return a.npts() > 1 && b.npts() > 1 && a.X().front() == b.X().front() &&
         a.X().back() == b.X().back() && follows(a, b) && follows(b, a);
}

}  // namespace

std::optional<std::size_t> shownRun(const TomoDocument& document) {
  const Grid* grid = document.model->grid.get();
  if (grid == nullptr || !document.result->has_tomographic_info) return std::nullopt;
  for (std::size_t i = document.runs.size(); i-- > 0;) {
    const KeptRun& run = document.runs[i];
    if (sameCells(run.size, grid->geometry().size()) && run.xOffset == document.model->xOffset &&
        *run.slowness == grid->slownesses()) {
      return i;
    }
  }
  return std::nullopt;
}

std::uint64_t fingerprintOfPositions(const TomoDocument& document) {
  Fingerprint positions;
  for (const auto& string : document.line->goephonesStringSet) {
    positions.take(std::uint64_t{string.size()});
    for (const Point2D& geophone : string) take(geophone, positions);
  }
  for (const TravelTime& record : document.ttArray) {
    positions.take(static_cast<std::uint64_t>(record.indexStesa));
    take(record.shotPos2d, positions);
  }
  return positions.value();
}

RunChanges changesSince(const KeptRun& run, const TomoDocument& document) {
  RunChanges changes;
  changes.picks = run.record.picks != fingerprintOfPicks(document.ttArray);
  changes.positions = run.positions != fingerprintOfPositions(document);
  const SurveyProfile profile = document.surveyProfile();
  changes.ground = !profile.hasGeometry() || run.xOffset != profile.xOffset ||
                   !sameSurface(run.surface, profile.surface());
  return changes;
}

}  // namespace talvesk
