#pragma once

#include "support/ShotFiles.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace talvesk::testing {

/// A number of a header at a byte that is counted from 1, as the standard does.
struct SegyField {
  std::size_t byte;
  std::size_t size;
  std::int64_t value;
};

struct StandardTrace {
  std::vector<double> samples;
  std::vector<SegyField> fields;  ///< besides samples and interval, or in their place
  std::string extension;          ///< between its header and its samples
};

/// A SEG-Y or SU file as the standard has it, in any of its codes.
struct StandardSegy {
  std::vector<StandardTrace> traces;
  ByteOrder order = ByteOrder::kBig;
  std::int16_t code = 5;
  int revision = 0;
  std::vector<SegyField> fields;  ///< of the binary header
  std::string text = std::string(3200, ' ');
  std::string extendedText;
  std::string trailer;
};

inline void put(std::string& bytes, std::size_t base, const SegyField& field, ByteOrder order) {
  putInteger(bytes, base + field.byte - 1, field.value, field.size, order);
}

/// The bits of the IBM float nearest to a value that has one.
inline std::uint32_t ibmBits(double value) {
  if (value == 0.0) return 0;
  int exponent = 64;
  double fraction = std::abs(value);
  for (; fraction >= 1.0; ++exponent) fraction /= 16.0;
  for (; fraction < 1.0 / 16.0; --exponent) fraction *= 16.0;
  return (value < 0.0 ? 0x80000000U : 0U) | static_cast<std::uint32_t>(exponent) << 24 |
         static_cast<std::uint32_t>(std::lround(fraction * 0x1000000));
}

inline std::int64_t doubleBits(double value) {
  std::int64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

inline std::string standardSample(double value, std::int16_t code, ByteOrder order) {
  const struct {
    std::int16_t code;
    std::size_t width;
  } kWidths[] = {{3, 2}, {6, 8}, {7, 3}, {8, 1}, {9, 8}, {11, 2}, {12, 8}, {15, 3}, {16, 1}};
  std::size_t width = 4;
  for (const auto& known : kWidths) {
    if (known.code == code) width = known.width;
  }
  auto bits = static_cast<std::int64_t>(value);
  if (code == 1) bits = ibmBits(value);
  if (code == 5) bits = bitsOf(static_cast<float>(value));
  if (code == 6) bits = doubleBits(value);
  std::string bytes(width, '\0');
  putInteger(bytes, 0, bits, width, order);
  return bytes;
}

inline std::string standardSuBytes(const StandardSegy& file) {
  std::string bytes;
  for (const StandardTrace& trace : file.traces) {
    std::string header(240, '\0');
    put(header, 0, {29, 2, 1}, file.order);
    put(header, 0, {115, 2, static_cast<std::int64_t>(trace.samples.size())}, file.order);
    put(header, 0, {117, 2, 250}, file.order);
    for (const SegyField& field : trace.fields) put(header, 0, field, file.order);
    bytes += header + trace.extension;
    for (const double sample : trace.samples) {
      bytes += standardSample(sample, file.code, file.order);
    }
  }
  return bytes;
}

inline std::string standardSegyBytes(const StandardSegy& file) {
  std::string bytes = file.text + std::string(400, '\0');
  const std::size_t samples = file.traces.empty() ? 0 : file.traces.front().samples.size();
  put(bytes, 0, {3217, 2, 250}, file.order);
  put(bytes, 0, {3221, 2, static_cast<std::int64_t>(samples)}, file.order);
  put(bytes, 0, {3225, 2, file.code}, file.order);
  put(bytes, 0, {3501, 1, file.revision}, file.order);
  if (file.revision >= 2) put(bytes, 0, {3297, 4, 16909060}, file.order);
  for (const SegyField& field : file.fields) put(bytes, 0, field, file.order);
  return bytes + file.extendedText + standardSuBytes(file) + file.trailer;
}

}  // namespace talvesk::testing
