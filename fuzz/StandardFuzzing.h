#pragma once

#include "Demand.h"
#include "base/Console.h"
#include "io/standard/StandardReader.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace talvesk::fuzzing {

inline void demandSane(const ShotRecord& trace) {
  demand(isFinite(trace.source) && isFinite(trace.receiver), "finite positions");
  demand(std::isfinite(trace.sampleInterval), "a finite interval");
  demand(std::isfinite(trace.delay) && trace.delay <= 0.0, "a delay that is never positive");
  demand(std::all_of(trace.samples.begin(), trace.samples.end(),
                     [](double sample) { return std::isfinite(sample); }),
         "finite samples");
}

inline void demandSane(const StandardReading& reading, std::size_t fileBytes) {
  std::size_t memory = fileBytes;
  demand(!reading.shots.empty(), "a shot");
  demand(reading.warnings.size() < 50, "bounded warnings");
  for (const StandardReading::Shot& shot : reading.shots) {
    demand(shot.data.warnings.size() < 50, "bounded warnings of a shot");
    demand(shot.data.format == reading.format, "the format of the file");
    for (const ShotRecord& trace : shot.data.traces) {
      memory += sizeof trace + trace.samples.capacity() * sizeof(double);
      demandSane(trace);
    }
  }
  demand(memory <= (std::size_t{64} << 20) + 16 * fileBytes, "bounded memory");
}

/// Reads a file by the standard of its format.
/// \param path its suffix decides between formats that its content leaves open
inline int fuzzByStandard(std::string_view bytes, const char* path) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  StandardReading reading;
  const Status status = parseByStandard(bytes, path, reading);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  demand(status.ok() || reading.shots.empty(), "nothing from a file that fails");
  if (status.ok()) demandSane(reading, bytes.size());
  return 0;
}

}  // namespace talvesk::fuzzing
