// Throws any bytes at the reader of SEG-Y files by their standard.
#include "StandardFuzzing.h"
#include "io/ByteReader.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace talvesk;
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  // Headers that promise megabytes take the fuzzer's time and show nothing that small ones do not;
  // what they cost is tested elsewhere.
  ByteReader reader(file);
  for (const ByteOrder order : {ByteOrder::kLittle, ByteOrder::kBig}) {
    const std::uint32_t samples = reader.u32(3268, order);
    if (samples > 0xFFFF && (samples & 0xFFFF) != 0) return 0;
  }
  return fuzzing::fuzzByStandard(file, "a.segy");
}
