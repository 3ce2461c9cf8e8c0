#include "tomo/Coverage.h"

#include "grid/Grid.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <utility>

namespace talvesk {

void setCoverage(TomoDocument& document, Grid& grid) {
  std::vector<Point2D> limit;
  for (std::uint32_t column = 0; column < grid.col(); ++column) {
    bool covered = false;
    for (std::uint32_t row = grid.righe() - 1; row >= 1; --row) {
      const std::uint32_t cell = grid.cellIndex(row, column);
      if (!covered && document.result->hitCounts[cell] > 0) {
        covered = true;
        limit.push_back(grid.cellCentre(cell));
      }
      grid.setDraw(cell, covered);
    }
  }
  document.result.edit().setCoverageLimit(std::move(limit));
}

}  // namespace talvesk
