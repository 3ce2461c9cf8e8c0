// Throws any bytes at the reader of miniSEED files.
#include "StandardFuzzing.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  return talvesk::fuzzing::fuzzByStandard(file, "a.mseed");
}
