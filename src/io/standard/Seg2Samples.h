#pragma once

#include "io/ByteReader.h"

#include <cstddef>
#include <cstdint>

namespace talvesk {

/// Whether SEG-2 knows a data format code: 1 and 2 are integers of 16 and 32 bits, 3 is the
/// floating point of 20 bits, 4 and 5 are IEEE floating point of 32 and 64 bits.
bool isSeg2Code(std::uint8_t code);

/// Bytes that so many samples of a known code take in the file.
std::uint64_t seg2DataBytes(std::uint8_t code, std::uint64_t samples);

/// Decodes samples of a known code, each times `factor`. Those that the file ends before stay as
/// they are.
void decodeSeg2(ByteReader& reader, std::uint64_t at, std::uint8_t code, ByteOrder order,
                double factor, std::size_t count, double* values);

}  // namespace talvesk
