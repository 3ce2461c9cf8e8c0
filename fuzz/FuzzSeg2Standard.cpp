// Throws any bytes at the reader of SEG-2 files by their standard.
#include "StandardFuzzing.h"
#include "io/ByteReader.h"

#include <cstdint>

namespace {

using namespace talvesk;

/// Files whose headers promise megabytes take the fuzzer's time and show nothing that small ones do
/// not; what they cost is tested elsewhere.
bool isSmall(std::string_view file) {
  ByteReader reader(file);
  const ByteOrder order = reader.u8(0) == 0x55 ? ByteOrder::kLittle : ByteOrder::kBig;
  const std::uint64_t traces = reader.u16(6, order);
  std::uint64_t samples = 0;
  for (std::uint64_t i = 0; i < traces; ++i) {
    samples += reader.u32(reader.u32(32 + 4 * i, order) + 8ull, order);
  }
  return traces <= 0x1000 && samples <= 10000;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(bytes), size);
  return isSmall(file) ? fuzzing::fuzzByStandard(file, "a.seg2") : 0;
}
