#pragma once

#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace talvesk::testing {

inline constexpr double kInterval = 0.0005;  // seconds
inline constexpr double kVelocity = 1000.0;  // m/s
inline constexpr double kSpacing = 2.0;      // metres

/// When the wave reaches a trace of a test shot, seconds.
inline double arrival(int trace, double shotX) {
  return std::fabs(trace * kSpacing - shotX) / kVelocity + 0.010;
}

/// Silence, and a decaying wave from the arrival on.
inline Trace testTrace(int trace, double shotX, int samples) {
  Trace result;
  result.waveKind = Trace::kFromFile;
  result.sampleInterval = kInterval;
  result.receiverPosition = {trace * kSpacing, 0.0};
  result.sourcePosition = {shotX, 0.0};
  for (int k = 0; k < samples; ++k) {
    const double t = k * kInterval - arrival(trace, shotX);
    result.samples.edit().push_back(
        t < 0.0 ? 0.0 : std::exp(-40.0 * t) * std::sin(2.0 * 3.14159265 * 60.0 * t));
  }
  return result;
}

/// Shots into one string of geophones, nothing picked.
inline TomoDocument testShots(int traces, int samples, const std::vector<double>& shots = {-1.0}) {
  TomoDocument document;
  document.line.edit().goephonesStringSet.emplace_back();
  for (int i = 0; i < traces; ++i)
    document.line.edit().goephonesStringSet[0].push_back({i * kSpacing, 0.0});
  for (const double x : shots) {
    TraceSet set;
    for (int i = 0; i < traces; ++i) set.push_back(testTrace(i, x, samples));
    document.recordings.edit().traceSets.push_back(std::move(set));
    TravelTime record;
    record.shotPos2d = {x, 0.0};
    record.ttMisurati.edit().assign(static_cast<std::size_t>(traces), kUnpicked);
    record.traceSetID = static_cast<std::int32_t>(document.ttArray.size());
    document.ttArray.edit().push_back(std::move(record));
  }
  return document;
}

}  // namespace talvesk::testing
