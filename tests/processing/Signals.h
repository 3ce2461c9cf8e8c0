#pragma once

#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

#include <gmock/gmock.h>

namespace talvesk::testing {

constexpr double kInterval = 0.5e-3;  // seconds

/// \param hertz at the sample rate of kInterval
inline std::vector<double> sine(std::size_t n, double hertz, double amplitude = 1.0) {
  std::vector<double> samples;
  for (std::size_t i = 0; i < n; ++i) {
    samples.push_back(amplitude *
                      std::sin(2.0 * M_PI * hertz * kInterval * static_cast<double>(i)));
  }
  return samples;
}

/// Noise with an oscillation of 40 times its strength from one sample on.
inline std::vector<double> arrival(std::size_t n, std::size_t at, unsigned seed = 1) {
  std::mt19937 random(seed);
  std::vector<double> samples;
  for (std::size_t i = 0; i < n; ++i) {
    const double noise = static_cast<double>(random() % 2001) / 1000.0 - 1.0;
    const double phase = (static_cast<double>(i) - static_cast<double>(at)) * 0.15 + 1.0;
    samples.push_back(noise + (i < at ? 0.0 : 40.0 * std::sin(phase)));
  }
  return samples;
}

/// The detector names a sample up to half a window before a sharp arrival: its "before" holds the
/// sample itself, so the ratio is largest just ahead of the first strong one.
inline ::testing::Matcher<std::int32_t> justBefore(int at) {
  return ::testing::AllOf(::testing::Ge(at - 12), ::testing::Le(at));
}

inline Trace traceOf(std::vector<double> samples) {
  Trace trace;
  trace.waveKind = Trace::kFromFile;
  trace.samples.edit() = std::move(samples);
  trace.sampleInterval = kInterval;
  return trace;
}

/// One shot at x = 0 with geophones at the given places, one trace each, and no picks yet.
inline void addShot(TomoDocument& document, const std::vector<double>& geophones, TraceSet traces) {
  TravelTime record;
  record.indexStesa = static_cast<std::int32_t>(document.line->goephonesStringSet.size());
  record.traceSetID = static_cast<std::int32_t>(document.recordings->traceSets.size());
  record.ttMisurati.edit().assign(traces.size(), kUnpicked);
  document.line.edit().goephonesStringSet.emplace_back();
  for (const double x : geophones)
    document.line.edit().goephonesStringSet.back().push_back({x, 0.0});
  document.recordings.edit().traceSets.push_back(std::move(traces));
  document.ttArray.edit().push_back(record);
}

}  // namespace talvesk::testing
