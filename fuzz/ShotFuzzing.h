#pragma once

#include "Demand.h"
#include "base/Console.h"
#include "io/ByteReader.h"
#include "io/ShotFile.h"
#include "io/ShotLoader.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace talvesk::fuzzing {

inline void demandSane(const ShotFileData& data, std::size_t fileBytes) {
  std::size_t memory = fileBytes;
  for (const ShotRecord& trace : data.traces) {
    memory += sizeof trace + trace.samples.capacity() * sizeof(double);
    demand(isFinite(trace.source) && isFinite(trace.receiver), "finite positions");
    demand(std::isfinite(trace.sampleInterval), "a finite interval");
    demand(std::isfinite(trace.delay) && trace.delay <= 0.0, "a delay that is never positive");
    demand(trace.samples.empty() || trace.samples.back() == 0.0, "a last sample of 0");
    demand(std::all_of(trace.samples.begin(), trace.samples.end(),
                       [](double sample) { return std::isfinite(sample); }),
           "finite samples");
  }
  demand(memory <= (std::size_t{64} << 20) + 16 * fileBytes, "bounded memory");
  demand(data.warnings.size() < 300, "bounded warnings");
}

inline void demandFit(const TomoDocument& document) {
  const TravelTime& record = document.ttArray.back();
  const auto& string =
      document.line->goephonesStringSet.at(static_cast<std::size_t>(record.indexStesa));
  demand(document.recordings->traceSets.size() == document.ttArray.size(),
         "a record per trace set");
  demand(string.size() == document.recordings->traceSets.back().size(), "a geophone per trace");
  demand(record.ttMisurati.size() == string.size(), "a time per trace");
}

/// Files whose headers promise megabytes take the fuzzer's time and show nothing that small ones do
/// not; what they cost is tested elsewhere.
inline bool isSmall(std::string_view bytes, std::size_t countAt, std::uint16_t limit) {
  ByteReader reader(bytes);
  return reader.u16(countAt, ByteOrder::kLittle) <= limit &&
         reader.u16(countAt, ByteOrder::kBig) <= limit;
}

/// Reads a file of the format that the path tells, and loads it, twice: the second time with the
/// state that the first time left.
inline int fuzzShotFile(std::string_view bytes, const char* path, SegyState state) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  TomoDocument document;
  for (int round = 0; round < 2; ++round) {
    ShotFileData data;
    const Status status = parseShotFile(bytes, path, state, data);
    demand(status.ok() == status.message().empty(), "a message with every failure");
    demand(status.ok() || data.traces.empty(), "nothing from a file that fails");
    if (!status.ok()) return 0;
    demandSane(data, bytes.size());
    appendShot(path, std::move(data), document);
    demandFit(document);
  }
  return 0;
}

}  // namespace talvesk::fuzzing
