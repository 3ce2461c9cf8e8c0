#include "doctor/Waveforms.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace talvesk::doctor {

std::vector<double> waveAt(const Trace& trace, double seconds, double duration) {
  const double first = std::round(seconds / trace.sampleInterval);
  const double count = std::round(duration / trace.sampleInterval);
  const Span<double> samples = trace.samples;
  if (!(first >= 0.0) || !(count >= 1.0) || first + count > static_cast<double>(samples.size())) {
    return {};
  }
  const auto begin = samples.begin() + static_cast<std::ptrdiff_t>(first);
  const auto before =
      begin - std::min<std::ptrdiff_t>(begin - samples.begin(), static_cast<std::ptrdiff_t>(count));
  double mean = 0.0;
  for (auto sample = before; sample != begin; ++sample) {
    mean += *sample / static_cast<double>(begin - before);
  }
  std::vector<double> wave(begin, begin + static_cast<std::ptrdiff_t>(count));
  for (double& sample : wave) sample -= mean;
  return wave;
}

double correlationOf(const std::vector<double>& a, const std::vector<double>& b) {
  if (a.size() != b.size() || a.empty()) return 0.0;
  double ab = 0.0;
  double aa = 0.0;
  double bb = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    ab += a[i] * b[i];
    aa += a[i] * a[i];
    bb += b[i] * b[i];
  }
  const double size = std::sqrt(aa) * std::sqrt(bb);
  return size > 0.0 ? ab / size : 0.0;
}

}  // namespace talvesk::doctor
