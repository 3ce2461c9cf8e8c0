#include "io/standard/Seg2Samples.h"

#include <algorithm>
#include <array>

namespace talvesk {
namespace {

enum Code : std::uint8_t { kInt16 = 1, kInt32 = 2, kFloat20 = 3, kFloat32 = 4, kFloat64 = 5 };

// The 20-bit floats: a word of four exponents, that of the first sample in the lowest four bits,
// and the words of four mantissas.
constexpr std::size_t kGroupSamples = 4;
constexpr std::size_t kWordBytes = 2;
constexpr std::size_t kGroupBytes = kWordBytes * (1 + kGroupSamples);

/// Negative mantissas are the complement of all bits, so that 0xFFFF is a zero, too.
double float20(std::uint16_t exponents, std::size_t place, std::uint16_t mantissa) {
  const int exponent = (exponents >> (4 * place)) & 0xF;
  const int value = mantissa < 0x8000 ? mantissa : mantissa - 0xFFFF;
  return static_cast<double>(value) * static_cast<double>(1 << exponent);
}

template <ByteOrder kOrder>
void decodeGroups(ByteReader& reader, std::uint64_t at, double factor, std::size_t count,
                  double* values) {
  const std::string_view bytes = reader.slice(at, seg2DataBytes(kFloat20, count));
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t group = i / kGroupSamples * kGroupBytes;
    const std::size_t place = i % kGroupSamples;
    const std::size_t mantissa = group + kWordBytes * (1 + place);
    if (mantissa + kWordBytes > bytes.size()) return;
    values[i] = factor * float20(assembled<kOrder, std::uint16_t>(&bytes[group]), place,
                                 assembled<kOrder, std::uint16_t>(&bytes[mantissa]));
  }
}

template <ByteOrder kOrder>
void decode(ByteReader& reader, std::uint64_t at, std::uint8_t code, double factor,
            std::size_t count, double* values) {
  switch (code) {
    case kInt16:
      reader.decode<2>(at, count, values, [factor](const char* bytes) {
        return factor * static_cast<std::int16_t>(assembled<kOrder, std::uint16_t>(bytes));
      });
      break;
    case kInt32:
      reader.decode<4>(at, count, values, [factor](const char* bytes) {
        return factor * static_cast<std::int32_t>(assembled<kOrder, std::uint32_t>(bytes));
      });
      break;
    case kFloat20:
      decodeGroups<kOrder>(reader, at, factor, count, values);
      break;
    case kFloat32:
      reader.decode<4>(at, count, values, [factor](const char* bytes) {
        return factor * double{floatOf(assembled<kOrder, std::uint32_t>(bytes))};
      });
      break;
    case kFloat64:
      reader.decode<8>(at, count, values, [factor](const char* bytes) {
        return factor * doubleOf(assembled<kOrder, std::uint64_t>(bytes));
      });
      break;
    default:
      break;
  }
}

}  // namespace

bool isSeg2Code(std::uint8_t code) {
  return code >= kInt16 && code <= kFloat64;
}

std::uint64_t seg2DataBytes(std::uint8_t code, std::uint64_t samples) {
  if (code == kFloat20) return (samples + kGroupSamples - 1) / kGroupSamples * kGroupBytes;
  constexpr std::array<std::uint64_t, 6> kBytes = {0, 2, 4, 0, 4, 8};
  return samples * kBytes.at(code);
}

void decodeSeg2(ByteReader& reader, std::uint64_t at, std::uint8_t code, ByteOrder order,
                double factor, std::size_t count, double* values) {
  const auto read =
      order == ByteOrder::kLittle ? decode<ByteOrder::kLittle> : decode<ByteOrder::kBig>;
  read(reader, at, code, factor, count, values);
}

}  // namespace talvesk
