// Throws any bytes at the reader of SEG-Y files.
#include "ShotFuzzing.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  const bool fewTraces = talvesk::fuzzing::isSmall(file, 3212, 0x0800);
  if (!fewTraces || !talvesk::fuzzing::isSmall(file, 3714, 0x0800)) return 0;
  return talvesk::fuzzing::fuzzShotFile(file, "a.segy", {});
}
