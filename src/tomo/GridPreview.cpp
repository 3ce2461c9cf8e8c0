#include "tomo/GridPreview.h"

#include "grid/GridBuilder.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kStepsPerMetre = 1000.0;  // nobody types finer cells
constexpr int kMostSteps = 1000000;        // a kilometre of cell sizes

/// As the look-up of the top node has it, rounding and all.
bool reaches(const GridSize& size, double gridX) {
  const double step = size.aLato / (size.nV - 1);
  return gridX >= 0.0 && gridX / step < size.col * (size.nV - 1.0) + 1.0;
}

/// \param step by how many millimetres to go on
std::optional<double> reachingSize(const SurveyProfile& profile, const GridSettings& settings,
                                   int step) {
  const double from = settings.cellSize * kStepsPerMetre;
  double steps = step > 0 ? std::floor(from) : std::ceil(from);
  for (int tried = 0; tried < kMostSteps; ++tried) {
    steps += step;
    const double size = steps / kStepsPerMetre;
    if (size < parameters::kCellSize.limits.least || size > profile.arrayLength) break;
    const GridSize grid = gridSizeFor(profile.arrayLength, settings.maxDepth, size, settings.nodes);
    if (reaches(grid, profile.maxX + profile.xOffset)) return size;
  }
  return std::nullopt;
}

}  // namespace

GridPreview previewGrid(const TomoDocument& survey, const SurveyProfile& profile,
                        const GridSettings& settings, unsigned searches) {
  GridPreview preview;
  if (!(settings.cellSize > 0.0) || !(settings.maxDepth >= 0.0) || settings.nodes < 2) {
    preview.status =
        Status::failure(Message::tr("Choose a positive cell size and no negative depth."));
    return preview;
  }
  preview.size =
      gridSizeFor(profile.arrayLength, settings.maxDepth, settings.cellSize, settings.nodes);
  preview.cells = static_cast<double>(preview.size.righe) * preview.size.col;
  preview.nodes = preview.size.nodesAsNumber();
  preview.bytes = estimatedGridBytes(preview.size, searches);
  preview.status = checkGridSize(preview.size, searches);
  const auto outside = [&](double x) { return !reaches(preview.size, x + profile.xOffset); };
  preview.outside = static_cast<int>(std::count_if(profile.x.begin(), profile.x.end(), outside));
  preview.left = leftOut(survey, findExcluded(survey, outside));
  return preview;
}

NearestSizes reachingCellSizes(const SurveyProfile& profile, const GridSettings& settings) {
  return {reachingSize(profile, settings, -1), reachingSize(profile, settings, 1)};
}

}  // namespace talvesk
