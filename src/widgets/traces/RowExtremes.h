#pragma once

#include "base/Span.h"

#include <vector>

namespace talvesk {

/// How far a trace swings within one row of pixels.
struct RowExtremes {
  double low = 1.0;
  double high = 0.0;  ///< below `low`: nothing is known in this row

  bool known() const { return low <= high; }
};

/// Extremes of the straight lines between samples within rows of equal height; neighbouring rows
/// share the value at their border, so a trace drawn row by row has no gaps. Every sample counts,
/// however many fall into a row. Samples that are not finite make a gap.
/// \param firstSample place of the upper side of the first row, in samples (may lie outside)
/// \param samplesPerRow above 0 \param out resized to `rows`
void rowExtremes(Span<double> samples, double firstSample, double samplesPerRow, int rows,
                 std::vector<RowExtremes>& out);

/// The trace between its samples; NaN outside of it and beside samples that are not finite.
double sampleBetween(Span<double> samples, double place);

}  // namespace talvesk
