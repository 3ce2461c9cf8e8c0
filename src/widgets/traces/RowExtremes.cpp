#include "widgets/traces/RowExtremes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace talvesk {
namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

void take(RowExtremes& row, double value) {
  if (!std::isfinite(value)) return;
  if (!row.known()) {
    row.low = row.high = value;
    return;
  }
  if (value < row.low) row.low = value;
  if (value > row.high) row.high = value;
}

}  // namespace

double sampleBetween(Span<double> samples, double place) {
  if (samples.empty() || !(place >= 0.0) || place > static_cast<double>(samples.size() - 1)) {
    return kUnknown;
  }
  const auto below = static_cast<std::size_t>(place);
  const double part = place - static_cast<double>(below);
  const double a = samples[below];
  if (part == 0.0) return std::isfinite(a) ? a : kUnknown;
  const double value = a + part * (samples[below + 1] - a);
  return std::isfinite(value) ? value : kUnknown;
}

void rowExtremes(Span<double> samples, double firstSample, double samplesPerRow, int rows,
                 std::vector<RowExtremes>& out) {
  out.assign(static_cast<std::size_t>(std::max(rows, 0)), RowExtremes());
  const double last = static_cast<double>(samples.size()) - 1.0;
  double border = sampleBetween(samples, firstSample);
  for (int r = 0; r < rows; ++r) {
    RowExtremes& row = out[static_cast<std::size_t>(r)];
    const double from = firstSample + samplesPerRow * r;
    const double to = firstSample + samplesPerRow * (r + 1);
    const double next = sampleBetween(samples, to);
    take(row, border);
    take(row, next);
    border = next;
    if (from > last || to < 0.0) continue;
    const auto begin = static_cast<std::size_t>(std::ceil(std::max(from, 0.0)));
    const auto end = static_cast<std::size_t>(std::floor(std::min(to, last))) + 1;
    for (std::size_t k = begin; k < end; ++k) take(row, samples[k]);
  }
}

}  // namespace talvesk
