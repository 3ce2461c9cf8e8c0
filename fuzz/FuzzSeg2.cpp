// Throws any bytes at the reader of SEG-2 files.
#include "ShotFuzzing.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  if (!talvesk::fuzzing::isSmall(file, 6, 0x1000)) return 0;
  return talvesk::fuzzing::fuzzShotFile(file, "a.seg2", {});
}
