#include "batch/SmallShots.h"

#include "batch/DemoNoise.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace talvesk::batchtest {
namespace {

constexpr std::size_t kSamples = 500;

double firstBreak(double offset) {
  constexpr double kThickness = 4.0;
  const double slant = std::sqrt(1.0 / (600.0 * 600.0) - 1.0 / (1800.0 * 1800.0));
  return std::min(offset / 600.0, offset / 1800.0 + 2.0 * kThickness * slant);
}

std::vector<float> smallTrace(double breakTime, std::uint64_t seed) {
  DemoNoise noise(seed);
  std::vector<float> samples;
  const double start = breakTime / kSmallInterval + static_cast<double>(kSmallLead);
  double swing = 1000.0;
  for (std::size_t i = 0; i < kSamples; ++i) {
    double value = noise.next();
    if (static_cast<double>(i) >= start) {
      const auto sinceBreak = static_cast<std::size_t>(static_cast<double>(i) - start);
      value += sinceBreak / 8 % 2 == 0 ? swing : -swing;
      swing *= 0.97;
    }
    samples.push_back(static_cast<float>(value));
  }
  return samples;
}

void put(std::string& bytes, std::size_t offset, std::uint32_t value, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    bytes[offset + i] = static_cast<char>((value >> (8 * (count - 1 - i))) & 0xffU);
  }
}

std::string bigEndianTrace(const std::vector<float>& samples) {
  constexpr std::size_t kHeader = 240;
  std::string bytes(kHeader + 4 * samples.size(), '\0');
  put(bytes, 114, static_cast<std::uint32_t>(samples.size()), 2);
  put(bytes, 116, 1000, 2);  // microseconds
  for (std::size_t i = 0; i < samples.size(); ++i) {
    std::uint32_t bits = 0;
    std::memcpy(&bits, &samples[i], sizeof bits);
    put(bytes, kHeader + 4 * i, bits, 4);
  }
  return bytes;
}

}  // namespace

WrittenShot smallShot(double x) {
  WrittenShot record;
  record.source = {x, 10.0 + 0.05 * x};
  record.sampleInterval = kSmallInterval;
  record.delay = -static_cast<double>(kSmallLead) * kSmallInterval;
  for (std::uint64_t i = 0; i < 13; ++i) {
    const double geophone = 2.0 * static_cast<double>(i);
    record.receivers.push_back({geophone, 10.0 + 0.05 * geophone});
    record.traces.push_back(smallTrace(firstBreak(std::fabs(geophone - x)), i));
  }
  return record;
}

std::vector<std::string> writeSmallShots(const Folder& folder) {
  return {folder.write("1.sg2", formatSeg2(smallShot(0.5))),
          folder.write("2.DAT", formatSeg2(smallShot(12.5))),
          folder.write("3.seg2", formatSeg2(smallShot(23.5)))};
}

std::string bigEndianSegy(const std::vector<float>& samples) {
  constexpr std::size_t kTextHeader = 3200;
  constexpr std::size_t kHeaders = 3600;
  std::string bytes(kHeaders, '\0');
  put(bytes, kTextHeader + 12, 1, 2);           // traces
  put(bytes, kTextHeader + 16, 1000, 2);        // microseconds
  put(bytes, kTextHeader + 24, 5, 2);           // IEEE floats
  put(bytes, kTextHeader + 96, 0x01020304, 4);  // byte order
  return bytes + bigEndianTrace(samples);
}

std::string bigEndianSu(const std::vector<float>& samples) {
  return bigEndianTrace(samples);
}

}  // namespace talvesk::batchtest
