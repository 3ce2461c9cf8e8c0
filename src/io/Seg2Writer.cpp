#include "io/Seg2Writer.h"

#include "base/TextNumber.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>

namespace talvesk {
namespace {

constexpr std::size_t kDescriptorSize = 32;
constexpr char kFloat32 = 4;  // data format code

void put(std::string& bytes, std::size_t offset, std::uint32_t value, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    bytes[offset + i] = static_cast<char>((value >> (8 * i)) & 0xffU);
  }
}

void append(std::string& bytes, std::uint32_t value, std::size_t count) {
  bytes.resize(bytes.size() + count);
  put(bytes, bytes.size() - count, value, count);
}

/// A length of two bytes that counts itself and the zero byte behind the text.
void appendText(std::string& bytes, const std::string& text) {
  append(bytes, static_cast<std::uint32_t>(text.size() + 3), 2);
  bytes += text;
  bytes += '\0';
}

/// A length of zero, and zero bytes up to the next multiple of four.
void endTexts(std::string& bytes) {
  append(bytes, 0, 2);
  bytes.resize((bytes.size() + 3) / 4 * 4);
}

/// The text of a value, or a longer one where that is not the value any more.
std::string broughtBack(std::string text, double value) {
  double read = 0.0;
  const bool same = parseWholeDouble(text, read) == NumberError::kNone && read == value;
  return same ? text : exactDouble(value);
}

/// Decimals only: not every reader knows an exponent.
std::string seconds(double value) {
  constexpr int kDecimals = 7;
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::fixed, kDecimals);
  return broughtBack({text.data(), end.ptr}, value);
}

std::string metres(double value) {
  return broughtBack(formatDouble(value, 8), value);
}

std::string location(const Point2D& point) {
  return metres(point.x) + " 0 " + metres(point.z);
}

std::string traceBlock(const WrittenShot& shot, std::size_t trace) {
  const std::vector<float>& samples = shot.traces[trace];
  std::string bytes(kDescriptorSize, '\0');
  appendText(bytes, "CHANNEL_NUMBER " + std::to_string(trace + 1));
  appendText(bytes, "DELAY " + seconds(shot.delay));
  appendText(bytes, "RECEIVER_LOCATION " + location(shot.receivers[trace]));
  appendText(bytes, "SAMPLE_INTERVAL " + seconds(shot.sampleInterval));
  appendText(bytes, "SOURCE_LOCATION " + location(shot.source));
  endTexts(bytes);
  put(bytes, 0, 0x4422, 2);
  put(bytes, 2, static_cast<std::uint32_t>(bytes.size()), 2);
  put(bytes, 4, static_cast<std::uint32_t>(samples.size() * 4), 4);
  put(bytes, 8, static_cast<std::uint32_t>(samples.size()), 4);
  bytes[12] = kFloat32;
  for (const float sample : samples) {
    std::uint32_t bits = 0;
    std::memcpy(&bits, &sample, sizeof bits);
    append(bytes, bits, 4);
  }
  return bytes;
}

}  // namespace

std::string formatSeg2(const WrittenShot& shot) {
  const std::size_t count = shot.traces.size();
  std::string head(kDescriptorSize + 4 * count, '\0');
  appendText(head, "TRACE_SORT AS_ACQUIRED");
  appendText(head, "UNITS METERS");
  endTexts(head);
  put(head, 0, 0x3a55, 2);
  put(head, 2, 1, 2);  // revision
  put(head, 4, static_cast<std::uint32_t>(4 * count), 2);
  put(head, 6, static_cast<std::uint32_t>(count), 2);
  head[8] = 1;   // texts end with one character, the zero byte
  head[11] = 1;  // lines end with one character,
  head[12] = '\n';

  std::string body;
  for (std::size_t trace = 0; trace < count; ++trace) {
    put(head, kDescriptorSize + 4 * trace, static_cast<std::uint32_t>(head.size() + body.size()),
        4);
    body += traceBlock(shot, trace);
  }
  return head + body;
}

}  // namespace talvesk
