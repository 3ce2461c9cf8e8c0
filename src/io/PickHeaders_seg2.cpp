#include "io/ByteReader.h"
#include "io/PickHeaders.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <numeric>
#include <string_view>

namespace talvesk {
namespace {

constexpr std::size_t kDescriptorBytes = 32;  ///< in front of the strings
constexpr std::size_t kMostBlockBytes = 65532;
constexpr std::uint16_t kTraceBlock = 0x4422;

Status notFollowed(std::size_t trace) {
  return Status::failure(Message::tr("the header of trace %1 cannot be followed").arg(trace + 1));
}

void put(std::string& bytes, std::size_t at, std::uint32_t value, std::size_t count,
         ByteOrder order) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t shift = order == ByteOrder::kLittle ? i : count - 1 - i;
    bytes[at + i] = static_cast<char>((value >> (8 * shift)) & 0xffU);
  }
}

/// Whether a string of a header is a pick; its keyword is a whole word.
bool isFirstBreak(std::string_view text) {
  const std::string_view keyword = kFirstBreakKeyword;
  return text.size() > keyword.size() && text.substr(0, keyword.size()) == keyword &&
         text[keyword.size()] == ' ';
}

std::string seconds(double value) {
  std::array<char, 64> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 6);
  return {text.data(), end.ptr};
}

/// A file whose headers are looked at, block by block.
class Seg2Blocks {
 public:
  explicit Seg2Blocks(std::string_view bytes) : mBytes(bytes), mReader(bytes) {
    if (bytes.size() > kDescriptorBytes && bytes[0] == '\x3A' && bytes[1] == '\x55') {
      mOrder = ByteOrder::kBig;
    }
  }

  Status read(std::size_t traces) {
    const bool seg2 = mBytes.size() > kDescriptorBytes && mReader.u16(0, mOrder) == 0x3a55;
    if (!seg2) return Status::failure(Message::tr("it is no SEG-2 file"));
    const std::size_t count = mReader.u16(6, mOrder);
    if (count != traces) {
      return Status::failure(
          Message::tr("it has %1 traces, the survey %2 of them").arg(count).arg(traces));
    }
    for (std::size_t i = 0; i < count; ++i) {
      mPlaces.push_back(mReader.u32(kDescriptorBytes + 4 * i, mOrder));
    }
    mInFile.resize(count);
    std::iota(mInFile.begin(), mInFile.end(), std::size_t{0});
    std::sort(mInFile.begin(), mInFile.end(),
              [this](std::size_t a, std::size_t b) { return mPlaces[a] < mPlaces[b]; });
    std::uint64_t free = kDescriptorBytes + 4 * count;
    for (const std::size_t trace : mInFile) {
      const std::uint64_t at = mPlaces[trace];
      const std::uint64_t size = blockSize(trace);
      const bool block = at >= free && size >= kDescriptorBytes && at + size <= mBytes.size() &&
                         mReader.u16(at, mOrder) == kTraceBlock;
      if (!block) return notFollowed(trace);
      free = at + size;
    }
    return {};
  }

  /// The file with other picks.
  Status rewrite(const HeaderPicks& picks, std::string& out) {
    std::size_t copied = 0;
    for (const std::size_t trace : mInFile) {
      const std::size_t at = mPlaces[trace];
      std::string block;
      if (Status status = rewriteBlock(trace, picks[trace], block); !status.ok()) return status;
      out.append(mBytes.substr(copied, at - copied));
      mPlaces[trace] = static_cast<std::uint32_t>(out.size());
      out += block;
      copied = at + blockSizeAt(at);
    }
    out.append(mBytes.substr(copied));
    if (out.size() > UINT32_MAX) return Status::failure(Message::tr("it would grow too large"));
    for (std::size_t i = 0; i < mPlaces.size(); ++i) {
      put(out, kDescriptorBytes + 4 * i, mPlaces[i], 4, mOrder);
    }
    return {};
  }

 private:
  std::size_t blockSizeAt(std::size_t at) { return mReader.u16(at + 2, mOrder); }
  std::size_t blockSize(std::size_t trace) { return blockSizeAt(mPlaces[trace]); }

  void appendString(std::string& block, std::string_view text) const {
    const std::size_t at = block.size();
    block.resize(at + 2);
    put(block, at, static_cast<std::uint32_t>(text.size() + 2), 2, mOrder);
    block.append(text);
  }

  /// Strings follow each other by their lengths, of two bytes that count themselves, up to a zero.
  Status rewriteBlock(std::size_t trace, const std::optional<double>& pick, std::string& block) {
    const std::size_t begin = mPlaces[trace];
    const std::size_t end = begin + blockSize(trace);
    block = mBytes.substr(begin, kDescriptorBytes);
    std::size_t at = begin + kDescriptorBytes;
    while (at + 2 <= end) {
      const std::size_t length = mReader.u16(at, mOrder);
      if (length == 0) break;
      if (length < 2 || at + length > end) return notFollowed(trace);
      const std::string_view text = mBytes.substr(at + 2, length - 2);
      if (!isFirstBreak(text)) appendString(block, text);
      at += length;
    }
    if (pick) {
      std::string text = std::string(kFirstBreakKeyword) + ' ' + seconds(*pick);
      text += '\0';
      appendString(block, text);
    }
    // The length of zero that ends the strings, and whatever stands behind it.
    const std::string_view rest = mBytes.substr(at, end - at);
    block.append(rest);
    if (rest.size() < 2) block.append(2, '\0');
    block.resize((block.size() + 3) / 4 * 4);
    if (block.size() > kMostBlockBytes) {
      return Status::failure(
          Message::tr("the header of trace %1 has no room for a pick").arg(trace + 1));
    }
    put(block, 2, static_cast<std::uint32_t>(block.size()), 2, mOrder);
    return {};
  }

  std::string_view mBytes;
  ByteReader mReader;
  ByteOrder mOrder = ByteOrder::kLittle;
  std::vector<std::uint32_t> mPlaces;  ///< of the blocks, by trace
  std::vector<std::size_t> mInFile;    ///< traces as their blocks lie in the file
};

}  // namespace

Status putPicksIntoSeg2(std::string& bytes, const HeaderPicks& picks) {
  Seg2Blocks blocks(bytes);
  if (Status status = blocks.read(picks.size()); !status.ok()) return status;
  std::string written;
  written.reserve(bytes.size() + 32 * picks.size());
  if (Status status = blocks.rewrite(picks, written); !status.ok()) return status;
  bytes = std::move(written);
  return {};
}

}  // namespace talvesk
