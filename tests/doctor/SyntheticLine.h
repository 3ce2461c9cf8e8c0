#pragma once

#include "batch/DemoNoise.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace talvesk::doctor::testing {

/// What a crew does right. Times are those of a layer of changing thickness on faster ground, so
/// that every way back takes as long as the way there.
struct LinePlan {
  std::size_t geophones = 24;
  double first = 0.0;    ///< metres
  double spacing = 2.0;  ///< metres
  std::vector<double> shots = {-5.0, 3.0, 11.0, 19.0, 27.0, 35.0, 43.0, 51.0};
  double noise = 0.01;  ///< of the first swing 10 m from the shot, root mean square
  double lead = 0.02;   ///< seconds of record before the shot
  std::size_t samples = 1200;
  bool level = false;  ///< no elevations
};

inline constexpr double kInterval = 0.00025;  // seconds

inline double elevationAt(double x) {
  return 100.0 + 0.5 * std::sin(x / 15.0);
}

/// Half the delay that the slow layer costs below x, seconds.
inline double delayAt(double x) {
  return 0.004 + 0.001 * std::sin(x / 9.0);
}

/// First arrival from one place to another, seconds.
inline double arrival(double from, double to) {
  const double offset = std::fabs(to - from);
  return std::min(offset / 500.0, offset / 2000.0 + delayAt(from) + delayAt(to));
}

/// A trace: noise, from the arrival on a decaying swing of 80 Hz, later a slower and stronger one.
inline std::vector<double> traceOf(const LinePlan& plan, double offset, double time,
                                   std::uint64_t seed) {
  DemoNoise noise(seed << 32);
  const double size = 10.0 / std::max(1.0, std::fabs(offset));
  const auto swing = [](double t, double hertz, double decay) {
    return t <= 0.0 ? 0.0 : std::sin(2.0 * 3.14159265358979 * hertz * t) * std::exp(-t / decay);
  };
  std::vector<double> samples;
  double before = noise.next();
  for (std::size_t i = 0; i < plan.samples; ++i) {
    const double t = static_cast<double>(i) * kInterval - plan.lead;
    const double now = noise.next();
    samples.push_back(1000.0 * (size * swing(t - time, 80.0, 0.02) +
                                size * swing(t - time - std::fabs(offset) / 250.0, 35.0, 0.03) +
                                plan.noise * (now + before) / 1.414));
    before = now;
  }
  return samples;
}

/// The survey as it was recorded, nothing wrong with it.
inline TomoDocument soundLine(const LinePlan& plan = {}) {
  TomoDocument document;
  std::vector<Point2D> geophones;
  for (std::size_t g = 0; g < plan.geophones; ++g) {
    const double x = plan.first + plan.spacing * static_cast<double>(g);
    geophones.push_back({x, plan.level ? 0.0 : elevationAt(x)});
  }
  document.line.edit().goephonesStringSet = {geophones};
  std::uint64_t seed = 0;
  for (const double x : plan.shots) {
    TravelTime record;
    record.shotPos2d = {x, plan.level ? 0.0 : elevationAt(x)};
    record.traceSetID = static_cast<std::int32_t>(document.ttArray.size());
    record.ttMisurati = std::vector<double>(plan.geophones, kUnpicked);
    record.ttCalcolati = std::vector<double>(plan.geophones, kNoTime);
    TraceSet traces(plan.geophones);
    for (std::size_t g = 0; g < plan.geophones; ++g) {
      Trace& trace = traces[g];
      trace.waveKind = Trace::kFromFile;
      trace.samples = traceOf(plan, geophones[g].x - x, arrival(x, geophones[g].x), ++seed);
      trace.sampleInterval = kInterval;
      trace.delay = -plan.lead;
      trace.sourcePosition = record.shotPos2d;
      trace.receiverPosition = geophones[g];
    }
    Recordings& recordings = document.recordings.edit();
    recordings.filenames.push_back("/line/rec" + std::to_string(100 + recordings.traceSets.size()) +
                                   ".dat");
    recordings.traceSets.push_back(std::move(traces));
    document.line.edit().shotPositions.push_back(x);
    document.ttArray.edit().push_back(std::move(record));
  }
  return document;
}

// --- What goes wrong in the field.

inline TraceSet& tracesOf(TomoDocument& document, std::size_t shot) {
  return document.recordings.edit().traceSets[shot];
}

/// The record begins earlier by some samples than it says, so that all comes late; or, if negative,
/// later.
inline void delayRecord(TomoDocument& document, std::size_t shot, int samples) {
  for (Trace& trace : tracesOf(document, shot)) {
    std::vector<double>& values = trace.samples.edit();
    std::vector<double> quiet;
    for (int i = 0; i < std::abs(samples); ++i) quiet.push_back(values[i % 60]);
    if (samples > 0) {
      values.insert(values.begin(), quiet.begin(), quiet.end());
      values.resize(values.size() - quiet.size());
    } else {
      values.erase(values.begin(), values.begin() - samples);
      values.insert(values.end(), quiet.begin(), quiet.end());
    }
  }
}

inline void scaleTrace(TomoDocument& document, std::size_t shot, std::size_t trace, double factor) {
  for (double& value : tracesOf(document, shot)[trace].samples.edit()) value *= factor;
}

inline void reverseRecord(TomoDocument& document, std::size_t shot) {
  TraceSet& traces = tracesOf(document, shot);
  for (std::size_t a = 0, b = traces.size() - 1; a < b; ++a, --b) {
    std::swap(traces[a].samples, traces[b].samples);
  }
}

inline void placeGeophones(TomoDocument& document, double first, double spacing) {
  std::vector<Point2D>& string = document.line.edit().goephonesStringSet[0];
  for (std::size_t g = 0; g < string.size(); ++g) {
    string[g].x = first + spacing * static_cast<double>(g);
  }
}

inline void placeShot(TomoDocument& document, std::size_t shot, double x) {
  document.ttArray.edit()[shot].shotPos2d.x = x;
  document.line.edit().shotPositions[shot] = x;
}

}  // namespace talvesk::doctor::testing
