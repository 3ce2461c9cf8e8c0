#include "processing/NoiseReduction.h"

#include "base/Console.h"
#include "model/Parameters.h"
#include "model/TomoDocument.h"
#include "processing/Spectrum.h"

#include <ostream>

namespace talvesk {
namespace {

const BandFilter kHushel{FilterCorner{parameters::kHushelLow.value, 1},
                         FilterCorner{parameters::kHushelHigh.value, 1}};

Status reduceNoiseOf(Trace& trace) {
  if (trace.samples.empty()) {
    trace.filtered = {};
    return {};
  }
  // Only the last bin of the spectrum matters, and no transform is needed to know it.
  console::out() << "fft\n";
  const double highest = highestBinFrequency(trace.samples.size(), trace.sampleInterval);
  return refilter(trace, [&](std::vector<double>& out) {
    return bandFilterTrace(trace.samples, kHushel, highest, out);
  });
}

}  // namespace

FilterOutcome reduceNoise(TomoDocument& document, const std::vector<std::int32_t>& shots) {
  FilterOutcome outcome = filterEachTrace(document, shots, reduceNoiseOf);
  if (outcome.filtered > 0) noteFilter(document, shots, {FilterKind::kHushel, {}}, false);
  return outcome;
}

}  // namespace talvesk
