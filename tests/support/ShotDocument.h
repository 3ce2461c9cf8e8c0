#pragma once

#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace talvesk::testing {

/// First break of the trace with that number, seconds: a whole number of samples of 0.25 ms.
inline double firstBreak(std::size_t trace) {
  return 0.010 + 0.002 * static_cast<double>(trace);
}

/// Nothing before its first break, a ringing that dies out after it.
inline Trace ringingTrace(double breakSeconds, std::size_t samples, double interval = 0.00025) {
  Trace trace;
  trace.waveKind = Trace::kFromFile;
  trace.sampleInterval = interval;
  trace.samples.edit().resize(samples);
  for (std::size_t i = 0; i < samples; ++i) {
    const double t = static_cast<double>(i) * interval - breakSeconds;
    if (t > 0.0) trace.samples.edit()[i] = 1e3 * std::sin(300.0 * t) * std::exp(-40.0 * t);
  }
  return trace;
}

/// Shots into one string of geophones, 2 m apart from 10 m on, with every first break picked.
inline TomoDocument shotDocument(std::size_t shots, std::size_t traces, std::size_t samples) {
  TomoDocument document;
  document.line.edit().goephonesStringSet.emplace_back();
  for (std::size_t i = 0; i < traces; ++i) {
    document.line.edit().goephonesStringSet[0].push_back(
        {10.0 + 2.0 * static_cast<double>(i), 0.0});
  }
  for (std::size_t shot = 0; shot < shots; ++shot) {
    TravelTime record;
    record.traceSetID = static_cast<std::int32_t>(shot);
    record.shotPos2d = {9.0 + 4.0 * static_cast<double>(shot), 0.0};
    TraceSet set;
    for (std::size_t i = 0; i < traces; ++i) {
      record.ttMisurati.edit().push_back(firstBreak(i));
      set.push_back(ringingTrace(firstBreak(i), samples));
      set.back().receiverPosition = document.line->goephonesStringSet[0][i];
    }
    document.recordings.edit().traceSets.push_back(set);
    document.ttArray.edit().push_back(record);
    document.recordings.edit().filenames.push_back("field/day 1/" + std::to_string(shot + 1) +
                                                   ".dat");
  }
  return document;
}

}  // namespace talvesk::testing
