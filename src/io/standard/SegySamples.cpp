#include "io/standard/SegySamples.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace talvesk {
namespace {

/// The powers of 16 that the exponents of IBM floats stand for, with the place of their fraction.
std::array<double, 128> ibmPowers() {
  std::array<double, 128> powers{};
  for (int i = 0; i < 128; ++i) {
    powers[static_cast<std::size_t>(i)] = std::ldexp(1.0, 4 * (i - 64) - 24);
  }
  return powers;
}

/// Sign, exponent of 16 in seven bits, fraction of 24 bits; every one is a double exactly.
template <ByteOrder kOrder>
struct IbmFloat {
  static constexpr std::size_t kWidth = 4;
  static double of(const char* bytes) {
    static const std::array<double, 128> kPowers = ibmPowers();
    const auto bits = assembled<kOrder, std::uint32_t>(bytes);
    const double size = static_cast<std::int32_t>(bits & 0xFFFFFF) * kPowers[(bits >> 24) & 0x7F];
    return (bits >> 31) != 0 ? 0.0 - size : size;
  }
};

template <ByteOrder kOrder>
struct IeeeFloat {
  static constexpr std::size_t kWidth = 4;
  static double of(const char* bytes) { return floatOf(assembled<kOrder, std::uint32_t>(bytes)); }
};

template <ByteOrder kOrder>
struct IeeeDouble {
  static constexpr std::size_t kWidth = 8;
  static double of(const char* bytes) { return doubleOf(assembled<kOrder, std::uint64_t>(bytes)); }
};

template <typename Bits, typename Number>
struct Whole {
  template <ByteOrder kOrder>
  struct In {
    static constexpr std::size_t kWidth = sizeof(Bits);
    static double of(const char* bytes) {
      return static_cast<double>(static_cast<Number>(assembled<kOrder, Bits>(bytes)));
    }
  };
};

template <ByteOrder kOrder>
struct Unsigned24 {
  static constexpr std::size_t kWidth = 3;
  static std::int32_t bits(const char* bytes) {
    const auto byte = [bytes](std::size_t i) {
      return static_cast<std::int32_t>(static_cast<unsigned char>(bytes[i]));
    };
    constexpr std::size_t kLow = kOrder == ByteOrder::kLittle ? 0 : 2;
    return byte(kLow) | byte(1) << 8 | byte(2 - kLow) << 16;
  }
  static double of(const char* bytes) { return bits(bytes); }
};

template <ByteOrder kOrder>
struct Signed24 {
  static constexpr std::size_t kWidth = 3;
  static double of(const char* bytes) {
    const std::int32_t bits = Unsigned24<kOrder>::bits(bytes);
    return bits >= 0x800000 ? bits - 0x1000000 : bits;
  }
};

template <typename Kind>
void decodeAs(ByteReader& reader, std::uint64_t at, std::size_t count, double* values) {
  reader.decode<Kind::kWidth>(at, count, values, [](const char* bytes) { return Kind::of(bytes); });
}

template <template <ByteOrder> typename Kind>
constexpr SegySampleCode row(std::int16_t code, bool floats = false) {
  using Little = Kind<ByteOrder::kLittle>;
  return {code, Little::kWidth, floats, decodeAs<Little>, decodeAs<Kind<ByteOrder::kBig>>};
}

constexpr SegySampleCode kCodes[] = {
    row<IbmFloat>(1),
    row<Whole<std::uint32_t, std::int32_t>::In>(2),
    row<Whole<std::uint16_t, std::int16_t>::In>(3),
    row<IeeeFloat>(kSegyIeeeFloat, true),
    row<IeeeDouble>(6, true),
    row<Signed24>(7),
    row<Whole<std::uint8_t, std::int8_t>::In>(8),
    row<Whole<std::uint64_t, std::int64_t>::In>(9),
    row<Whole<std::uint32_t, std::uint32_t>::In>(10),
    row<Whole<std::uint16_t, std::uint16_t>::In>(11),
    row<Whole<std::uint64_t, std::uint64_t>::In>(12),
    row<Unsigned24>(15),
    row<Whole<std::uint8_t, std::uint8_t>::In>(16),
};

}  // namespace

const SegySampleCode* segySampleCode(std::int16_t code) {
  const auto* const found =
      std::find_if(std::begin(kCodes), std::end(kCodes),
                   [code](const SegySampleCode& known) { return known.code == code; });
  return found == std::end(kCodes) ? nullptr : found;
}

bool isSegySampleCode(std::int16_t code) {
  return code == kSegyFixedPointWithGain || segySampleCode(code) != nullptr;
}

}  // namespace talvesk
