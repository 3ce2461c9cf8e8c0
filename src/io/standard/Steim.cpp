#include "io/standard/Steim.h"

#include <algorithm>
#include <cstdint>

namespace talvesk {
namespace {

constexpr std::size_t kFrameBytes = 64;
constexpr std::size_t kFrameWords = 16;
constexpr std::size_t kWordBytes = 4;

/// How a word is divided: into so many differences of so many bits.
struct Division {
  unsigned count = 0;
  unsigned bits = 0;
};

/// \param code of the word, in the first word of its frame
Division divisionOf(Steim kind, unsigned code, std::uint32_t word) {
  if (code == 0) return {};
  if (code == 1) return {4, 8};
  if (kind == Steim::kOne) return code == 2 ? Division{2, 16} : Division{1, 32};
  // The highest two bits of the word tell more.
  static constexpr Division kOfCode2[] = {{}, {1, 30}, {2, 15}, {3, 10}};
  static constexpr Division kOfCode3[] = {{5, 6}, {6, 5}, {7, 4}, {}};
  return code == 2 ? kOfCode2[word >> 30] : kOfCode3[word >> 30];
}

std::int32_t signedOf(std::uint32_t value, unsigned bits) {
  const unsigned above = 32 - bits;
  return static_cast<std::int32_t>(value << above) >> above;
}

/// Adds the differences up. The first of a record leads from the record before and is not used: the
/// record tells its first sample.
class Sum {
 public:
  Sum(std::uint32_t first, std::size_t count, double* values)
      : mValue(first), mCount(count), mValues(values) {}

  bool full() const { return mDone == mCount; }
  std::size_t done() const { return mDone; }
  std::uint32_t last() const { return mValue; }

  void add(std::int32_t difference) {
    if (full()) return;
    // Unsigned: damaged differences may run over, and then do so in silence.
    if (mDone > 0) mValue += static_cast<std::uint32_t>(difference);
    mValues[mDone++] = static_cast<std::int32_t>(mValue);
  }

 private:
  std::uint32_t mValue;
  std::size_t mCount;
  std::size_t mDone = 0;
  double* mValues;
};

/// Differences of one and of two bytes stand in the order of the file, others in that of the word.
void addWord(Steim kind, unsigned code, std::uint32_t word, ByteOrder order, Sum& sum) {
  const Division division = divisionOf(kind, code, word);
  const bool upwards = order == ByteOrder::kLittle && division.bits % 8 == 0;
  for (unsigned i = 0; i < division.count; ++i) {
    const unsigned place = upwards ? i : division.count - 1 - i;
    sum.add(signedOf(word >> (place * division.bits), division.bits));
  }
}

}  // namespace

std::size_t mostSteimSamples(Steim kind, std::size_t bytes) {
  return bytes / kFrameBytes * (kFrameWords - 1) * (kind == Steim::kOne ? 4 : 7);
}

SteimOutcome decodeSteim(Steim kind, std::string_view frames, ByteOrder order, std::size_t count,
                         double* values) {
  ByteReader reader(frames);
  const std::uint32_t last = reader.u32(2 * kWordBytes, order);
  Sum sum(reader.u32(kWordBytes, order), count, values);
  for (std::size_t frame = 0; frame + kFrameBytes <= frames.size() && !sum.full();
       frame += kFrameBytes) {
    const std::uint32_t codes = reader.u32(frame, order);
    // The first frame has the first and the last sample in its words 1 and 2.
    for (std::size_t word = frame == 0 ? 3 : 1; word < kFrameWords; ++word) {
      const unsigned code = codes >> (2 * (kFrameWords - 1 - word)) & 3U;
      addWord(kind, code, reader.u32(frame + word * kWordBytes, order), order, sum);
    }
  }
  return {sum.done(), sum.done() < count || count == 0 || sum.last() == last};
}

}  // namespace talvesk
