#include "io/XmlWriter.h"

#include <array>
#include <charconv>
#include <ostream>

namespace talvesk {
namespace {

constexpr std::size_t kBufferBytes = std::size_t{1} << 16;
constexpr int kAllDigits = 17;

void appendEscaped(std::string& out, std::string_view text) {
  for (const char c : text) {
    switch (c) {
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '\'':
        out += "&apos;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '&':
        out += "&amp;";
        break;
      default: {
        const auto byte = static_cast<unsigned char>(c);
        const bool allowed = byte >= 0x20 || c == '\t' || c == '\n' || c == '\r';
        out += allowed ? c : ' ';
      }
    }
  }
}

}  // namespace

XmlWriter::XmlWriter(std::ostream& stream) : mStream(stream) {
  mBuffer.reserve(2 * kBufferBytes);
  write("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<cereal");
  mLevels.push_back({"cereal", 0, true});
}

XmlWriter::~XmlWriter() {
  finish();
}

void XmlWriter::write(std::string_view text) {
  mBuffer += text;
  if (mBuffer.size() >= kBufferBytes) flush();
}

void XmlWriter::flush() {
  mStream.write(mBuffer.data(), static_cast<std::streamsize>(mBuffer.size()));
  mBuffer.clear();
}

void XmlWriter::indent() {
  mBuffer.append(mLevels.size(), '\t');
}

/// The start tag without its end, so that attributes can follow; the name stays in mName.
void XmlWriter::openTag(const char* name) {
  Level& parent = mLevels.back();
  if (parent.empty) write(">\n");
  parent.empty = false;
  if (name != nullptr) {
    mName = name;
  } else {
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), parent.counter++);
    mName.assign("value").append(digits.data(), end.ptr);
  }
  indent();
  write("<");
  write(mName);
}

void XmlWriter::begin(const char* name) {
  openTag(name);
  mLevels.push_back({mName, 0, true});
}

void XmlWriter::beginSequence(const char* name) {
  openTag(name);
  write(" size=\"dynamic\"");
  mLevels.push_back({mName, 0, true});
}

void XmlWriter::end() {
  const Level level = std::move(mLevels.back());
  mLevels.pop_back();
  if (level.empty) {
    write("/>\n");
    return;
  }
  indent();
  write("</");
  write(level.name);
  write(">\n");
}

void XmlWriter::putLeaf(const char* name, const char* attributes, std::string_view text) {
  openTag(name);
  write(attributes);
  write(">");
  write(text);
  write("</");
  write(mName);
  write(">\n");
}

void XmlWriter::put(const char* name, double value) {
  std::array<char, 40> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                 std::chars_format::general, kAllDigits);
  putLeaf(name, "", {digits.data(), static_cast<std::size_t>(end.ptr - digits.data())});
}

void XmlWriter::put(const char* name, bool value) {
  putLeaf(name, "", value ? "true" : "false");
}

void XmlWriter::put(const char* name, const std::string& value) {
  std::string escaped;
  appendEscaped(escaped, value);
  putLeaf(name, " xml:space=\"preserve\"", escaped);
}

template <typename Integer>
void XmlWriter::putInteger(const char* name, Integer value) {
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  putLeaf(name, "", {digits.data(), static_cast<std::size_t>(end.ptr - digits.data())});
}
template void XmlWriter::putInteger(const char*, std::int32_t);
template void XmlWriter::putInteger(const char*, std::uint32_t);
template void XmlWriter::putInteger(const char*, std::uint64_t);
template void XmlWriter::putInteger(const char*, std::int64_t);

bool XmlWriter::finish() {
  if (!mLevels.empty()) {
    while (!mLevels.empty()) end();
    write("\n");
    flush();
    mStream.flush();
  }
  return mStream.good();
}

}  // namespace talvesk
