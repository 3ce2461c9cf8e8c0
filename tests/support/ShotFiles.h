#pragma once

#include "io/ByteReader.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace talvesk::testing {

/// Puts the lowest `size` bytes of a value at an offset, which must lie in the bytes.
inline void putInteger(std::string& bytes, std::size_t at, std::int64_t value, std::size_t size,
                       ByteOrder order) {
  for (std::size_t i = 0; i < size; ++i) {
    const std::size_t shift = order == ByteOrder::kLittle ? i : size - 1 - i;
    bytes.at(at + i) = static_cast<char>((static_cast<std::uint64_t>(value) >> (8 * shift)) & 0xFF);
  }
}

inline std::uint32_t bitsOf(float value) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

/// One trace of a SEG-2 file.
struct Seg2Channel {
  int format = 4;
  std::vector<float> samples;
  std::string area;  ///< the strings of the trace header, as they stand in the file
};

/// Header strings as instruments write them: length, text, zero byte; a length of 0 ends them.
inline std::string seg2Area(const std::vector<std::string>& strings) {
  std::string area;
  for (const std::string& string : strings) {
    area += {0, 0};
    putInteger(area, area.size() - 2, static_cast<std::int64_t>(string.size()) + 3, 2,
               ByteOrder::kLittle);
    area += string + '\0';
  }
  return area + std::string(2, '\0');
}

/// The four bytes of a sample. 16-bit samples have two bytes behind them that are not zero.
inline std::string seg2Sample(int format, float value) {
  std::string bytes(4, '\x7E');
  if (format == 1 || format == 10) {
    putInteger(bytes, 0, static_cast<std::int64_t>(value), 2, ByteOrder::kLittle);
  } else {
    const auto integer =
        format == 4 ? std::int64_t{bitsOf(value)} : static_cast<std::int64_t>(value);
    putInteger(bytes, 0, integer, 4, ByteOrder::kLittle);
  }
  return bytes;
}

inline std::string seg2Bytes(const std::vector<Seg2Channel>& channels) {
  constexpr ByteOrder kOrder = ByteOrder::kLittle;
  std::string bytes(32 + 4 * channels.size(), '\0');
  putInteger(bytes, 0, 0x3A55, 2, kOrder);
  putInteger(bytes, 6, static_cast<std::int64_t>(channels.size()), 2, kOrder);
  for (std::size_t i = 0; i < channels.size(); ++i) {
    const Seg2Channel& channel = channels[i];
    putInteger(bytes, 32 + 4 * i, static_cast<std::int64_t>(bytes.size()), 4, kOrder);
    std::string block(32, '\0');
    putInteger(block, 0, 0x4422, 2, kOrder);
    putInteger(block, 2, static_cast<std::int64_t>(32 + channel.area.size()), 2, kOrder);
    putInteger(block, 8, static_cast<std::int64_t>(channel.samples.size()), 4, kOrder);
    putInteger(block, 12, channel.format, 1, kOrder);
    bytes += block + channel.area;
    for (const float sample : channel.samples) bytes += seg2Sample(channel.format, sample);
  }
  return bytes;
}

/// One trace of a SEG-Y or SU file.
struct SegyChannel {
  std::vector<float> samples;
  std::int32_t source = 0;
  std::int32_t receiver = 0;
  std::int16_t scalar = 0;
};

/// A SEG-Y or SU file of traces of equal length.
struct SegyFixture {
  std::vector<SegyChannel> channels;
  ByteOrder order = ByteOrder::kBig;
  std::int16_t format = 5;
  std::uint16_t interval = 250;         ///< microseconds
  std::string constant = {0, 0, 0, 0};  ///< the four bytes that tell the byte order
};

inline std::string segyTrace(const SegyFixture& file, const SegyChannel& channel) {
  std::string trace(240, '\0');
  putInteger(trace, 70, channel.scalar, 2, file.order);
  putInteger(trace, 72, channel.source, 4, file.order);
  putInteger(trace, 80, channel.receiver, 4, file.order);
  putInteger(trace, 114, static_cast<std::int64_t>(channel.samples.size()), 2, file.order);
  putInteger(trace, 116, file.interval, 2, file.order);
  const std::size_t width = file.format == 3 ? 2 : 4;
  for (const float sample : channel.samples) {
    const bool integer = file.format == 2 || file.format == 3;
    trace += std::string(width, '\0');
    putInteger(trace, trace.size() - width,
               integer ? static_cast<std::int64_t>(sample) : std::int64_t{bitsOf(sample)}, width,
               file.order);
  }
  return trace;
}

inline std::string suBytes(const SegyFixture& file) {
  std::string bytes;
  for (const SegyChannel& channel : file.channels) bytes += segyTrace(file, channel);
  return bytes;
}

inline std::string segyBytes(const SegyFixture& file) {
  std::string bytes(3600, '\0');
  putInteger(bytes, 3212, static_cast<std::int64_t>(file.channels.size()), 2, file.order);
  putInteger(bytes, 3216, file.interval, 2, file.order);
  putInteger(bytes, 3224, file.format, 2, file.order);
  bytes.replace(3296, 4, file.constant);
  return bytes + suBytes(file);
}

}  // namespace talvesk::testing
