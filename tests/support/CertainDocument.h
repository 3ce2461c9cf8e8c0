#pragma once

#include "model/PickFingerprint.h"
#include "model/TomographyOutcome.h"
#include "support/SectionDocument.h"

#include <vector>

namespace talvesk::testing {

/// A section of 400 m/s at its top that grows by 100 m/s per row, with a certainty around it: half
/// of the range is 5 % of the velocity in the left half of the line and 30 % in the right one. The
/// last two columns no member has a ray in.
inline TomoDocument certainDocument(std::uint32_t rows = 8, std::uint32_t columns = 40) {
  TomoDocument document = sectionDocument(
      rows, columns, 0.0, [](std::uint32_t row, std::uint32_t) { return 400.0 + 100.0 * row; });
  Certainty sure;
  sure.members = 24;
  sure.velocities.median = document.model->grid->velocities();
  for (std::uint32_t cell = 0; cell < rows * columns; ++cell) {
    const std::uint32_t column = cell % columns;
    const double half = (column < columns / 2 ? 0.05 : 0.3) * sure.velocities.median[cell];
    sure.velocities.low.push_back(sure.velocities.median[cell] - half);
    sure.velocities.high.push_back(sure.velocities.median[cell] + half);
    sure.deviations.push_back(column < columns / 2 ? 0.05 : 0.3);
    sure.touched.push_back(column + 2 < columns ? 24 : 0);
  }
  sure.picks = fingerprintOfPicks(document.ttArray);
  document.result.edit().certainty = sure;
  return document;
}

}  // namespace talvesk::testing
