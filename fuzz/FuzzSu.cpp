// Throws any bytes at the reader of SU files. The first byte is the state that a SEG-Y file left:
// its lowest bit a big-endian order, the others the format code.
#include "ShotFuzzing.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  talvesk::SegyState state;
  state.nativeOrder = bytes[0] % 2 == 0;
  state.formatCode = static_cast<std::int16_t>(bytes[0] / 2);
  const std::string_view file(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  return talvesk::fuzzing::fuzzShotFile(file, "a.su", state);
}
