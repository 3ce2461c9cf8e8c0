#include "io/ProjectAssembly.h"

#include "base/TextNumber.h"
#include "grid/GridBuilder.h"

#include <algorithm>
#include <cmath>
#include <exception>
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

bool fits(const VelocityLayer& layer) {
  return std::isfinite(layer.initialDepth) && std::isfinite(layer.finalDepth) &&
         positive(layer.initialVelocity) && positive(layer.finalVelocity);
}

bool canHaveBeen(const InversionRecord& run) {
  const auto known = [](const Misfit& m) {
    return m.count >= 0 && finite({m.rmse, m.relativeRms, m.maxError, m.maxRelativeError});
  };
  return run.externalIterations > 0 && run.solverIterations > 0 && run.smoothing > 0 &&
         run.smoothingType >= 0 && positive(run.minVelocity) && positive(run.maxVelocity) &&
         finite({run.elapsedSeconds}) &&
         run.history.size() <= static_cast<std::size_t>(run.externalIterations) &&
         std::all_of(run.history.begin(), run.history.end(), known);
}

void repairRun(TomoDocument& document) {
  const TomoDocument fresh;
  if (!std::isfinite(document.RMSE_tomography)) document.RMSE_tomography = fresh.RMSE_tomography;
  if (!positive(document.minVelocity)) document.minVelocity = fresh.minVelocity;
  if (!positive(document.maxVelocity)) document.maxVelocity = fresh.maxVelocity;
  if (!std::all_of(document.layers.begin(), document.layers.end(), fits)) document.layers.clear();
  auto& sizes = document.proposedCellSizes;
  if (!std::all_of(sizes.begin(), sizes.end(), positive)) sizes.clear();
  const geographicsCoord& place = document.geoCoord;
  if (!finite(std::vector<double>{place.mEastFstGeoph, place.mEastLstGeoph, place.mNorthFstGeoph,
                                  place.mNorthLstGeoph})) {
    document.geoCoord = {};
    document.geoCoord_isSet = false;
  }
}

void repairSection(SectionViewSettings& section) {
  const SectionViewSettings fresh;
  if (section.quantity < SectionQuantity::kVelocity ||
      section.quantity > SectionQuantity::kInformationDensity) {
    section.quantity = fresh.quantity;
  }
  if (section.geophones < GeophoneMarkers::kNone || section.geophones > GeophoneMarkers::kLarge) {
    section.geophones = fresh.geophones;
  }
  constexpr double kMostExaggerated = 1000.0;
  if (!positive(section.verticalExaggeration) || section.verticalExaggeration > kMostExaggerated) {
    section.verticalExaggeration = fresh.verticalExaggeration;
  }
  ContourSettings& contours = section.contours;
  constexpr int kMost = static_cast<int>(SectionSceneOptions::kMaxContours);
  constexpr int kLargestLabel = 200;  // points
  contours.numberOfValues = std::clamp(contours.numberOfValues, 1, kMost);
  contours.labelEvery = std::clamp(contours.labelEvery, 0, kMost);
  contours.labelSize = std::clamp(contours.labelSize, 1, kLargestLabel);
  if (!finite(contours.customValues) ||
      contours.customValues.size() > SectionSceneOptions::kMaxContours) {
    contours.customValues.clear();
  }
  std::sort(contours.customValues.begin(), contours.customValues.end());
  if (contours.customValues.empty()) contours.customized = false;
  for (double* part : {&contours.color.r, &contours.color.g, &contours.color.b}) {
    *part = std::isfinite(*part) ? std::clamp(*part, 0.0, 1.0) : 0.0;
  }
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
    return Status::failure(Message::tr("cells with %1 nodes per side, %2 m long, cannot be")
                               .arg(grid.nV)
                               .arg(grid.aLato));
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
  document.grid = std::move(built);
  document.surface = std::move(surface);
  document.xOffset = profile.xOffset;
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

void restoreCoverage(SurveyMember& survey) {
  TomoDocument& document = survey.document;
  std::vector<Point2D> limit = std::move(document.coverageLimit);
  const bool usable = survey.hasCoverageLimit && std::all_of(limit.begin(), limit.end(), plausible);
  if (!usable) limit.clear();
  if (!usable && document.has_tomographic_info) limit = drawnLimit(*document.grid);
  document.setCoverageLimit(std::move(limit));
}

void restoreDensity(SurveyMember& survey) {
  std::vector<double>& density = survey.document.info_density;
  const std::size_t cells = survey.document.grid->cellCount();
  if (!survey.hasInformationDensity) {
    density.assign(cells, 1.0);
  } else if (density.size() == 1 && cells != 1) {
    density.assign(cells, density.front());
  } else if (density.size() != cells) {
    density.assign(cells, -1.0);
  }
}

}  // namespace

Status checkSurvey(SurveyMember& member) {
  TomoDocument& document = member.document;
  for (const auto& string : document.goephonesStringSet) {
    if (!std::all_of(string.begin(), string.end(), plausible)) {
      return Status::failure(Message::tr("a geophone has no place"));
    }
  }
  std::int32_t own = 0;
  for (TravelTime& record : document.ttArray) {
    // -1 is a shot that no string recorded.
    const auto strings = static_cast<std::int64_t>(document.goephonesStringSet.size());
    if (record.indexStesa < -1 || record.indexStesa >= strings) {
      return Status::failure(Message::tr("a shot was recorded by geophone string %1 of %2")
                                 .arg(record.indexStesa)
                                 .arg(strings));
    }
    if (!plausible(record.shotPos2d)) return Status::failure(Message::tr("a shot has no place"));
    // Picks that came without traces may have none; their place says as much.
    if (record.traceSetID < 0) record.traceSetID = own;
    ++own;
    record.ttCalcolati.resize(record.ttMisurati.size(), kNoTime);
  }
  repairRun(document);
  repairSection(member.section);
  return {};
}

Status installGrid(const GridMember& grid, SurveyMember& survey) {
  TomoDocument& document = survey.document;
  if (grid.col == 0 && grid.righe == 0 && grid.velocities.empty()) {
    document.has_tomographic_info = false;
    document.info_density.clear();
    document.coverageLimit.clear();
    return {};
  }
  try {
    Status status = checkCells(grid);
    if (status.ok()) status = buildGrid(grid, document);
    if (!status.ok()) return status;
    restoreDensity(survey);
    restoreCoverage(survey);
    const std::vector<InversionRecord>& runs = survey.runs;
    if (document.has_tomographic_info && runs.size() == 1 && canHaveBeen(runs.front())) {
      document.lastInversion = runs.front();
    }
    return status;
  } catch (const std::exception& error) {
    return Status::failure(Message::tr("the grid cannot be built: %1").arg(error.what()));
  }
}

}  // namespace talvesk
