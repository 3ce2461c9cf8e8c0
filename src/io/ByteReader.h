#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

namespace talvesk {

enum class ByteOrder { kLittle, kBig };

/// An unsigned integer from `sizeof(Integer)` bytes, on machines of either byte order.
template <ByteOrder kOrder, typename Integer>
Integer assembled(const char* bytes) {
  static_assert(std::is_unsigned_v<Integer>);
  Integer value = 0;
  for (std::size_t i = 0; i < sizeof(Integer); ++i) {
    const std::size_t shift = kOrder == ByteOrder::kLittle ? i : sizeof(Integer) - 1 - i;
    const auto byte = static_cast<Integer>(static_cast<unsigned char>(bytes[i]));
    value = static_cast<Integer>(value | static_cast<Integer>(byte << (8 * shift)));
  }
  return value;
}

/// The float that has these bits.
inline float floatOf(std::uint32_t bits) {
  static_assert(sizeof(float) == sizeof bits);
  float value = 0.0F;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

/// The double that has these bits.
inline double doubleOf(std::uint64_t bits) {
  static_assert(sizeof(double) == sizeof bits);
  double value = 0.0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

/// Reads numbers anywhere in the bytes of a file. What lies past the end reads as zero, a number of
/// which only a part is there included, and is counted. The bytes must outlive the reader.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : mBytes(bytes) {}

  std::size_t size() const { return mBytes.size(); }
  /// How many bytes were asked for past the end.
  std::uint64_t missing() const { return mMissing; }

  std::uint8_t u8(std::uint64_t at) { return integer<std::uint8_t>(at, ByteOrder::kLittle); }
  std::uint16_t u16(std::uint64_t at, ByteOrder order) { return integer<std::uint16_t>(at, order); }
  std::uint32_t u32(std::uint64_t at, ByteOrder order) { return integer<std::uint32_t>(at, order); }
  std::int16_t i16(std::uint64_t at, ByteOrder order) {
    return static_cast<std::int16_t>(u16(at, order));
  }
  std::int32_t i32(std::uint64_t at, ByteOrder order) {
    return static_cast<std::int32_t>(u32(at, order));
  }
  std::uint64_t u64(std::uint64_t at, ByteOrder order) { return integer<std::uint64_t>(at, order); }
  double f64(std::uint64_t at, ByteOrder order) { return doubleOf(u64(at, order)); }

  /// The bytes from `at` on that are there, at most `length` of them.
  std::string_view slice(std::uint64_t at, std::uint64_t length) {
    const std::uint64_t there = std::min(length, remaining(at));
    mMissing += length - there;
    if (there == 0) return {};
    return mBytes.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(there));
  }

  /// Decodes `count` groups of `kWidth` bytes into `values`; `decode` takes a pointer to a group.
  /// Values whose group is not wholly in the file are left as they are.
  template <std::size_t kWidth, typename Decode>
  void decode(std::uint64_t at, std::size_t count, double* values, Decode decode) {
    const std::string_view groups = slice(at, std::uint64_t{count} * kWidth);
    const std::size_t whole = groups.size() / kWidth;
    const char* group = groups.data();
    for (std::size_t i = 0; i < whole; ++i) values[i] = decode(group + i * kWidth);
  }

 private:
  std::uint64_t remaining(std::uint64_t at) const {
    return at < mBytes.size() ? mBytes.size() - at : 0;
  }

  template <typename Integer>
  Integer integer(std::uint64_t at, ByteOrder order) {
    const std::string_view bytes = slice(at, sizeof(Integer));
    if (bytes.size() < sizeof(Integer)) return 0;
    return order == ByteOrder::kLittle ? assembled<ByteOrder::kLittle, Integer>(bytes.data())
                                       : assembled<ByteOrder::kBig, Integer>(bytes.data());
  }

  std::string_view mBytes;
  std::uint64_t mMissing = 0;
};

}  // namespace talvesk
