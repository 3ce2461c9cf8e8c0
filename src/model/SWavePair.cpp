#include "model/SWavePair.h"

#include <algorithm>
#include <utility>

namespace talvesk {

void subtractRecordings(Trace& trace) {
  if (trace.waveKind != Trace::kSWavePair) return;
  std::vector<double> samples(trace.samplesDX.begin(), trace.samplesDX.end());
  const Span<double> sx = trace.samplesSX;
  const std::size_t both = std::min(samples.size(), sx.size());
  for (std::size_t k = 0; k < both; ++k) samples[k] -= sx[k];
  trace.samples = {std::move(samples), trace.samplesDX};
}

void joinRecordings(TraceSet& dx, TraceSet& sx) {
  for (std::size_t i = 0; i < std::min(dx.size(), sx.size()); ++i) {
    dx[i].waveKind = Trace::kSWavePair;
    dx[i].samplesDX = std::move(dx[i].samples);
    dx[i].samplesSX = std::move(sx[i].samples);
    subtractRecordings(dx[i]);
  }
}

}  // namespace talvesk
