// Throws any bytes at the reader of SEG-2 files.
#include "ShotFuzzing.h"

#include <cstdint>

namespace {

using namespace talvesk;

std::uint64_t promisedSamples(std::string_view file) {
  ByteReader reader(file);
  const std::uint64_t traces = reader.u16(6, ByteOrder::kLittle);
  std::uint64_t samples = 0;
  for (std::uint64_t i = 0; i < traces; ++i) {
    samples += reader.u16(reader.u32(32 + 4 * i, ByteOrder::kLittle) + 8ull, ByteOrder::kLittle);
  }
  return samples;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  if (!fuzzing::isSmall(file, 6, 0x1000) || promisedSamples(file) > 10000) return 0;
  return fuzzing::fuzzShotFile(file, "a.seg2", {});
}
