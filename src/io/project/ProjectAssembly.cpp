#include "io/project/ProjectAssembly.h"

#include "base/TextNumber.h"
#include "grid/GridBuilder.h"
#include "io/project/ProjectRepair.h"
#include "io/project/ProjectResult.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <iterator>
#include <utility>

namespace talvesk {
namespace {

bool plausible(const Point2D& point) {
  return std::fabs(point.x) <= kLargestCoordinate && std::fabs(point.z) <= kLargestCoordinate;
}

bool finite(const std::vector<double>& values) {
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

bool positive(double value) {
  return std::isfinite(value) && value > 0.0;
}

Status checkCells(const GridMember& grid) {
  const auto cells = static_cast<std::uint64_t>(grid.righe) * grid.col;
  if (cells != grid.velocities.size() || cells != grid.toBeDraw.size()) {
    return Status::failure(
        Message::tr("%1 rows of %2 columns do not go with %3 velocities and %4 draw flags")
            .arg(grid.righe)
            .arg(grid.col)
            .arg(grid.velocities.size())
            .arg(grid.toBeDraw.size()));
  }
  constexpr std::uint32_t kMostNodes = 1000;  // per side; more has no use and no memory
  if (grid.nV < 2 || grid.nV > kMostNodes || !positive(grid.aLato) ||
      grid.aLato > kLargestCoordinate) {
    return Status::failure(Message::tr("cells with %1 nodes per side, %2 long, cannot be")
                               .arg(grid.nV)
                               .arg(Message::length(grid.aLato)));
  }
  if (!std::all_of(grid.velocities.begin(), grid.velocities.end(), positive)) {
    return Status::failure(Message::tr("a velocity is not a positive number"));
  }
  return {};
}

Status buildGrid(const GridMember& grid, TomoDocument& document) {
  const SurveyProfile profile = document.surveyProfile();
  if (!profile.hasGeometry()) {
    return Status::failure(Message::tr("there is a grid, but no two geophones"));
  }
  if (!profile.isOnGlobe()) {
    return Status::failure(
        Message::tr("there is a grid, but a position lies more than 100 000 km away"));
  }
  GridSize size;
  size.righe = grid.righe;
  size.col = grid.col;
  size.nV = grid.nV;
  size.aLato = grid.aLato;
  if (Status status = checkGridSize(size, 1); !status.ok()) return status;
  std::vector<double> slownesses;
  slownesses.reserve(grid.velocities.size());
  for (const double velocity : grid.velocities) slownesses.push_back(1.0 / velocity);
  Splines::LinearSpline surface = profile.surface();
  std::unique_ptr<Grid> built = buildGridFromValues(size, std::move(slownesses), surface);
  if (built == nullptr) return Status::failure(Message::tr("the grid cannot be built"));
  for (std::uint32_t c = 0; c < built->cellCount(); ++c) built->setDraw(c, grid.toBeDraw[c]);
  document.model.edit().grid = std::move(built);
  document.model.edit().surface = std::move(surface);
  document.model.edit().xOffset = profile.xOffset;
  return {};
}

/// The centres of the deepest cells that were drawn since an inversion, column by column.
std::vector<Point2D> drawnLimit(const Grid& grid) {
  std::vector<Point2D> limit;
  for (std::uint32_t column = 0; column < grid.col(); ++column) {
    for (std::uint32_t row = grid.righe(); row-- > 1;) {
      const std::uint32_t cell = grid.cellIndex(row, column);
      if (!grid.draw(cell)) continue;
      limit.push_back(grid.cellCentre(cell));
      break;
    }
  }
  return limit;
}

void restoreCoverage(SurveyMember& survey, std::vector<Message>& repairs) {
  TomoDocument& document = survey.document;
  std::vector<Point2D> limit = std::move(document.result.edit().coverageLimit);
  const bool possible = std::all_of(limit.begin(), limit.end(), plausible);
  const bool usable = survey.hasCoverageLimit && possible;
  if (!possible) {
    repairs.push_back(Message::tr("the limit of its rays lies off the line; it is left out"));
  }
  if (!usable) limit.clear();
  if (!usable && document.result->has_tomographic_info) limit = drawnLimit(*document.model->grid);
  document.result.edit().setCoverageLimit(std::move(limit));
}

void restoreDensity(SurveyMember& survey, std::vector<Message>& repairs) {
  std::vector<double>& density = survey.document.result.edit().info_density;
  const std::size_t cells = survey.document.model->grid->cellCount();
  if (!survey.hasInformationDensity) {
    density.assign(cells, 1.0);
  } else if (density.size() == 1 && cells != 1) {
    density.assign(cells, density.front());
  } else if (density.size() != cells || !finite(density)) {
    repairs.push_back(Message::tr("its information density does not fit the grid; it is left out"));
    density.assign(cells, -1.0);
  }
}

/// Times of a section that is no more: an earlier version kept them when a new grid came.
void forgetTimes(TomoDocument& document) {
  for (TravelTime& record : document.ttArray.edit()) {
    record.ttCalcolati = std::vector<double>(record.ttCalcolati.size(), kNoTime);
  }
}

void restoreRun(SurveyMember& survey, std::vector<Message>& repairs) {
  if (!survey.document.result->has_tomographic_info || survey.runs.empty()) return;
  if (survey.runs.size() == 1 && canHaveBeen(survey.runs.front())) {
    survey.document.result.edit().lastInversion = survey.runs.front();
  } else {
    repairs.push_back(Message::tr("what it tells of its last inversion cannot be; it is left out"));
  }
}

}  // namespace

Status checkSurvey(SurveyMember& member, std::vector<Message>& repairs) {
  TomoDocument& document = member.document;
  for (const auto& string : document.line->goephonesStringSet) {
    if (!std::all_of(string.begin(), string.end(), isFinite)) {
      return Status::failure(Message::tr("a geophone has no place"));
    }
  }
  std::int32_t own = 0;
  for (TravelTime& record : document.ttArray.edit()) {
    // -1 is a shot that no string recorded.
    const auto strings = static_cast<std::int64_t>(document.line->goephonesStringSet.size());
    if (record.indexStesa < -1 || record.indexStesa >= strings) {
      return Status::failure(Message::tr("a shot was recorded by geophone string %1 of %2")
                                 .arg(record.indexStesa)
                                 .arg(strings));
    }
    if (!isFinite(record.shotPos2d)) return Status::failure(Message::tr("a shot has no place"));
    // Picks that came without traces may have none; their place says as much.
    if (record.traceSetID < 0) record.traceSetID = own;
    ++own;
    record.ttCalcolati.edit().resize(record.ttMisurati.size(), kNoTime);
  }
  repairSurvey(member, repairs);
  return {};
}

Status installGrid(GridMember grid, SurveyMember& survey, std::vector<Message>& repairs) {
  TomoDocument& document = survey.document;
  if (grid.col == 0 && grid.righe == 0 && grid.velocities.empty()) {
    document.result.edit().has_tomographic_info = false;
    forgetTimes(document);
    document.result.edit().info_density.clear();
    document.result.edit().coverageLimit.clear();
    return {};
  }
  try {
    Status status = checkCells(grid);
    if (!status.ok()) return status;
    repairVelocities(grid.velocities, repairs);
    status = buildGrid(grid, document);
    if (!status.ok()) return status;
    if (!document.result->has_tomographic_info) forgetTimes(document);
    restoreDensity(survey, repairs);
    restoreCoverage(survey, repairs);
    restoreRun(survey, repairs);
    return status;
  } catch (const std::exception& error) {
    return Status::failure(Message::tr("the grid cannot be built: %1").arg(error.what()));
  }
}

}  // namespace talvesk
