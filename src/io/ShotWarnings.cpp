#include "io/ShotWarnings.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

std::size_t zeroNonFinite(std::vector<double>& samples) {
  std::size_t count = 0;
  // Counting first lets the usual case, in which there is none, run through memory without writing.
  for (const double sample : samples) count += std::isfinite(sample) ? 0 : 1;
  if (count > 0) {
    std::replace_if(
        samples.begin(), samples.end(), [](double sample) { return !std::isfinite(sample); }, 0.0);
  }
  return count;
}

void warnOfBytes(std::uint64_t missingBytes, std::uint64_t nonFinite,
                 std::vector<Message>& warnings) {
  if (missingBytes > 0) {
    warnings.push_back(Message::tr("the file is cut short: %1 bytes that its headers promise "
                                   "are missing and were taken as zeros")
                           .arg(missingBytes));
  }
  if (nonFinite > 0) {
    warnings.push_back(
        Message::tr("%1 samples that are no finite numbers were set to 0").arg(nonFinite));
  }
}

void warnOfTraces(ShotFileData& data, std::uint64_t missingBytes, std::uint64_t nonFinite) {
  const auto& traces = data.traces;
  if (traces.empty()) {
    data.warnings.push_back(Message::tr("the file holds no trace"));
  }
  warnOfBytes(missingBytes, nonFinite, data.warnings);
  const auto differs = [&traces](auto value) {
    return std::any_of(traces.begin(), traces.end(), [&](const ShotRecord& trace) {
      return value(trace) != value(traces.front());
    });
  };
  if (differs([](const ShotRecord& trace) { return trace.samples.size(); })) {
    data.warnings.push_back(Message::tr("its traces have different numbers of samples"));
  }
  if (differs([](const ShotRecord& trace) { return trace.sampleInterval; })) {
    data.warnings.push_back(Message::tr("its traces have different sample intervals"));
  }
  if (std::any_of(traces.begin(), traces.end(),
                  [](const ShotRecord& trace) { return !(trace.sampleInterval > 0.0); })) {
    data.warnings.push_back(
        Message::tr("a sample interval is not positive, so that times mean nothing"));
  }
}

}  // namespace talvesk
