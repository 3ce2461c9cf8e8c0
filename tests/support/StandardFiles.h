#pragma once

#include "support/ShotFiles.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace talvesk::testing {

inline std::uint64_t bitsOf(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

inline std::string integerBytes(std::int64_t value, std::size_t size, ByteOrder order) {
  std::string bytes(size, '\0');
  putInteger(bytes, 0, value, size, order);
  return bytes;
}

/// A trace of a SEG-2 file as the standard has it.
struct Seg2Fixture {
  struct Channel {
    int code = 4;
    std::vector<double> samples;
    std::vector<std::string> strings = {"SAMPLE_INTERVAL 0.001"};
    std::string area;  ///< in place of the strings, as it stands in the file
  };

  std::vector<Channel> channels;
  ByteOrder order = ByteOrder::kLittle;
  std::vector<std::string> fileStrings;
  std::string stringEnd = std::string(1, '\0');
  std::string lineEnd = "\n";
};

inline std::string stringArea(const std::vector<std::string>& strings, const Seg2Fixture& file) {
  std::string area;
  for (const std::string& string : strings) {
    const std::string text = string + file.stringEnd;
    area += integerBytes(static_cast<std::int64_t>(text.size()) + 2, 2, file.order) + text;
  }
  return area + std::string(2, '\0');
}

/// Four samples as floats of 20 bits: the exponents, then the mantissas, negative ones
/// complemented.
inline std::string float20Group(const std::vector<double>& samples, std::size_t first,
                                ByteOrder order) {
  std::int64_t exponents = 0;
  std::string mantissas;
  for (std::size_t i = 0; i < 4; ++i) {
    double value = first + i < samples.size() ? samples[first + i] : 0.0;
    int exponent = 0;
    for (; std::abs(value) > 32767.0; ++exponent) value /= 2.0;
    exponents |= std::int64_t{exponent} << (4 * i);
    const auto mantissa = static_cast<std::int64_t>(value);
    mantissas += integerBytes(mantissa < 0 ? ~-mantissa : mantissa, 2, order);
  }
  return integerBytes(exponents, 2, order) + mantissas;
}

inline std::string seg2Data(const Seg2Fixture::Channel& channel, ByteOrder order) {
  std::string data;
  for (std::size_t i = 0; i < channel.samples.size(); ++i) {
    const double value = channel.samples[i];
    switch (channel.code) {
      case 1:
        data += integerBytes(static_cast<std::int64_t>(value), 2, order);
        break;
      case 3:
        if (i % 4 == 0) data += float20Group(channel.samples, i, order);
        break;
      case 4:
        data += integerBytes(bitsOf(static_cast<float>(value)), 4, order);
        break;
      case 5:
        data += integerBytes(static_cast<std::int64_t>(bitsOf(value)), 8, order);
        break;
      default:
        data += integerBytes(static_cast<std::int64_t>(value), 4, order);
    }
  }
  return data;
}

inline std::string seg2Bytes(const Seg2Fixture& file) {
  const ByteOrder order = file.order;
  const std::size_t count = file.channels.size();
  std::string bytes(32 + 4 * count, '\0');
  putInteger(bytes, 0, 0x3A55, 2, order);
  putInteger(bytes, 2, 1, 2, order);
  putInteger(bytes, 4, static_cast<std::int64_t>(4 * count), 2, order);
  putInteger(bytes, 6, static_cast<std::int64_t>(count), 2, order);
  bytes[8] = static_cast<char>(file.stringEnd.size());
  bytes.replace(9, file.stringEnd.size(), file.stringEnd);
  bytes[11] = static_cast<char>(file.lineEnd.size());
  bytes.replace(12, file.lineEnd.size(), file.lineEnd);
  bytes += stringArea(file.fileStrings, file);
  for (std::size_t i = 0; i < count; ++i) {
    const Seg2Fixture::Channel& channel = file.channels[i];
    const std::string area =
        channel.area.empty() ? stringArea(channel.strings, file) : channel.area;
    const std::string data = seg2Data(channel, order);
    putInteger(bytes, 32 + 4 * i, static_cast<std::int64_t>(bytes.size()), 4, order);
    std::string block(32, '\0');
    putInteger(block, 0, 0x4422, 2, order);
    putInteger(block, 2, static_cast<std::int64_t>(32 + area.size()), 2, order);
    putInteger(block, 4, static_cast<std::int64_t>(data.size()), 4, order);
    putInteger(block, 8, static_cast<std::int64_t>(channel.samples.size()), 4, order);
    putInteger(block, 12, channel.code, 1, order);
    bytes += block + area + data;
  }
  return bytes;
}

/// A record of miniSEED 2.
struct SeedFixture {
  std::string channel =
      "XXSTA  00HHZ";  ///< network, station, location, channel in 2, 5, 2, 3 letters
  int second = 0;      ///< of 12:00 on day 7 of 2013
  int tenthsOfMilliseconds = 0;
  int rate = 1000;  ///< samples per second
  int encoding = 3;
  ByteOrder order = ByteOrder::kBig;
  std::vector<double> samples;
  std::string data;   ///< in place of the samples
  int promised = -1;  ///< number of samples in the header; -1: as many as there are
};

inline std::string seedData(const SeedFixture& record) {
  std::string data;
  for (const double value : record.samples) {
    const auto integer = static_cast<std::int64_t>(value);
    if (record.encoding == 1) data += integerBytes(integer, 2, record.order);
    if (record.encoding == 3) data += integerBytes(integer, 4, record.order);
    if (record.encoding == 4) {
      data += integerBytes(bitsOf(static_cast<float>(value)), 4, record.order);
    }
    if (record.encoding == 5) {
      data += integerBytes(static_cast<std::int64_t>(bitsOf(value)), 8, record.order);
    }
  }
  return data;
}

/// 256 bytes, of which the last 192 are the data.
inline std::string seedBytes(const SeedFixture& record) {
  const ByteOrder order = record.order;
  const std::string& id = record.channel;
  std::string bytes = "000001D " + id.substr(2, 5) + id.substr(7, 2) + id.substr(9, 3) +
                      id.substr(0, 2) + std::string(236, '\0');
  putInteger(bytes, 20, 2013, 2, order);
  putInteger(bytes, 22, 7, 2, order);
  bytes[24] = 12;
  bytes[26] = static_cast<char>(record.second);
  putInteger(bytes, 28, record.tenthsOfMilliseconds, 2, order);
  const auto samples = static_cast<std::int64_t>(record.samples.size());
  putInteger(bytes, 30, record.promised < 0 ? samples : record.promised, 2, order);
  putInteger(bytes, 32, record.rate, 2, order);
  putInteger(bytes, 34, 1, 2, order);
  bytes[39] = 1;
  putInteger(bytes, 44, 64, 2, order);
  putInteger(bytes, 46, 48, 2, order);
  putInteger(bytes, 48, 1000, 2, order);
  bytes[52] = static_cast<char>(record.encoding);
  bytes[53] = order == ByteOrder::kBig ? 1 : 0;
  bytes[54] = 8;
  const std::string data = record.data.empty() ? seedData(record) : record.data;
  bytes.replace(64, data.size(), data);
  return bytes;
}

}  // namespace talvesk::testing
