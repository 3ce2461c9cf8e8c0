#include "model/Trace.h"

#include <algorithm>

namespace talvesk {

void dropFirstSamples(Trace& trace, std::size_t count) {
  for (auto* samples : {&trace.samples, &trace.samplesDX, &trace.samplesSX}) {
    const auto dropped = static_cast<std::ptrdiff_t>(std::min(count, samples->size()));
    if (dropped > 0) *samples = {{samples->begin() + dropped, samples->end()}, *samples};
  }
}

}  // namespace talvesk
