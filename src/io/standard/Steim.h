#pragma once

#include "io/ByteReader.h"

#include <cstddef>
#include <string_view>

namespace talvesk {

/// The two compressions of SEED for integers, by differences in frames of 64 bytes.
enum class Steim { kOne, kTwo };

/// The most samples that so many bytes can hold.
std::size_t mostSteimSamples(Steim kind, std::size_t bytes);

/// What came of decompressing a record.
struct SteimOutcome {
  std::size_t samples = 0;     ///< decompressed
  bool endsAsItShould = true;  ///< the last of them is the one that the record tells besides
};

/// Decompresses up to `count` samples into `values`.
SteimOutcome decodeSteim(Steim kind, std::string_view frames, ByteOrder order, std::size_t count,
                         double* values);

}  // namespace talvesk
