#include "model/SWavePair.h"

#include <algorithm>

namespace talvesk {

void subtractRecordings(Trace& trace) {
  if (trace.waveKind != Trace::kSWavePair) return;
  trace.samples = trace.samplesDX;
  const std::size_t both = std::min(trace.samplesDX.size(), trace.samplesSX.size());
  for (std::size_t k = 0; k < both; ++k) trace.samples[k] -= trace.samplesSX[k];
}

}  // namespace talvesk
