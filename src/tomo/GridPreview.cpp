#include "tomo/GridPreview.h"

#include "grid/GridBuilder.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

GridPreview previewGrid(const SurveyProfile& profile, const GridSettings& settings,
                        unsigned searches) {
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
  // As the look-up of the top node has it, rounding and all.
  const double step = settings.cellSize / (settings.nodes - 1);
  const double lineNodes = preview.size.col * (settings.nodes - 1.0) + 1.0;
  preview.outside =
      static_cast<int>(std::count_if(profile.x.begin(), profile.x.end(), [&](double x) {
        return !((x + profile.xOffset) / step < lineNodes);
      }));
  return preview;
}

}  // namespace talvesk
