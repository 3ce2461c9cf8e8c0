#pragma once

#include "io/ByteReader.h"

#include <cstddef>
#include <cstdint>

namespace talvesk {

/// How the samples of a SEG-Y file are coded: a row of the standard's table of data format codes.
struct SegySampleCode {
  using Decode = void (*)(ByteReader& reader, std::uint64_t at, std::size_t count, double* values);

  std::int16_t code;
  std::size_t width;  ///< bytes of a sample
  bool floats;        ///< samples may be no finite numbers
  Decode little;      ///< leaves values as they are whose bytes are not wholly in the file
  Decode big;

  Decode decode(ByteOrder order) const { return order == ByteOrder::kLittle ? little : big; }
};

/// Null for codes that are not read: 4, fixed point with gain, which the standard gave up, and
/// those that it does not name.
const SegySampleCode* segySampleCode(std::int16_t code);

/// Whether the standard names the code, read or not.
bool isSegySampleCode(std::int16_t code);

inline constexpr std::int16_t kSegyFixedPointWithGain = 4;
inline constexpr std::int16_t kSegyIeeeFloat = 5;

}  // namespace talvesk
