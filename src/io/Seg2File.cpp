#include "io/Seg2File.h"

#include "base/Console.h"
#include "io/ByteReader.h"
#include "io/ReadBudget.h"
#include "io/Seg2Strings.h"
#include "io/ShotWarnings.h"

#include <cstdint>
#include <ostream>
#include <set>
#include <string>
#include <utility>

namespace talvesk {
namespace {

constexpr ByteOrder kOrder = ByteOrder::kLittle;
constexpr std::uint16_t kFileBlock = 0x3A55;
constexpr std::uint64_t kTraceCountAt = 6;
constexpr std::uint64_t kPointersAt = 32;
constexpr std::uint64_t kPointerBytes = 4;
// From the start of a trace descriptor block.
constexpr std::uint64_t kBlockSizeAt = 2;
constexpr std::uint64_t kSampleCountAt = 8;
constexpr std::uint64_t kFormatAt = 12;
constexpr std::uint64_t kStringsAt = 32;
constexpr std::size_t kSampleBytes = 4;

enum Format : std::uint8_t { kInt16 = 1, kInt32 = 2, kFloat32 = 4, kOtherInt16 = 10 };

/// The traces whose headers give something that cannot be used.
class BadHeaders {
 public:
  void count(bool bad, std::uint64_t trace) {
    if (bad && mCount++ == 0) mFirst = trace;
  }
  void warn(const Message& what, ShotFileData& data) const {
    if (mCount == 0) return;
    const Message which =
        mCount == 1
            ? Message::tr("trace %1").arg(mFirst + 1)
            : Message::tr("%1 traces, the first of them trace %2,").arg(mCount).arg(mFirst + 1);
    data.warnings.push_back(Message::tr("the %1 in the header of %2 is no finite number; what "
                                        "cannot be used of it was taken as 0")
                                .arg(what)
                                .arg(which));
  }

 private:
  std::uint64_t mCount = 0;
  std::uint64_t mFirst = 0;
};

class Seg2Reader {
 public:
  explicit Seg2Reader(std::string_view bytes) : mBytes(bytes), mReader(bytes) {}

  Status read(ShotFileData& data) {
    if (mReader.u16(0, kOrder) != kFileBlock) {
      return Status::failure(Message::tr("it is no SEG-2 file of little-endian numbers"));
    }
    const std::uint16_t traces = mReader.u16(kTraceCountAt, kOrder);
    console::out() << "Numero tracce:" << traces << '\n';
    if (!affordable(traces)) return Status::failure(ReadBudget::refusal(traces, mBytes.size()));

    mData.traces.resize(traces);
    for (std::uint64_t i = 0; i < traces; ++i) readTrace(pointer(mReader, i), i);
    if (!mHasInterval) {
      return Status::failure(Message::tr("its last trace has no usable sample interval"), 2);
    }
    warnOfFormats();
    mSources.warn(Message::tr("source position"), mData);
    mReceivers.warn(Message::tr("receiver position"), mData);
    mDelays.warn(Message::tr("delay"), mData);
    warnOfTraces(mData, mReader.missing(), mNonFinite);
    data = std::move(mData);
    return {};
  }

 private:
  static std::uint64_t pointer(ByteReader& reader, std::uint64_t trace) {
    return reader.u32(kPointersAt + trace * kPointerBytes, kOrder);
  }

  bool affordable(std::uint64_t traces) const {
    ReadBudget budget(mBytes.size());
    ByteReader reader(mBytes);
    for (std::uint64_t i = 0; i < traces; ++i) {
      const std::uint64_t block = pointer(reader, i);
      const std::uint16_t samples = reader.u16(block + kSampleCountAt, kOrder);
      if (!budget.takeTrace(samples, reader.u16(block + kBlockSizeAt, kOrder))) return false;
    }
    return true;
  }

  void readTrace(std::uint64_t block, std::uint64_t index) {
    ShotRecord& trace = mData.traces[index];
    const std::uint16_t blockSize = mReader.u16(block + kBlockSizeAt, kOrder);
    const std::uint16_t samples = mReader.u16(block + kSampleCountAt, kOrder);
    console::out() << "Sizedata " << samples << '\n';
    const std::uint8_t format = mReader.u8(block + kFormatAt);
    console::out() << "reading Metadata " << blockSize << '\n';
    const std::uint64_t stringBytes = blockSize > kStringsAt ? blockSize - kStringsAt : 0;
    const Seg2Strings strings = parseSeg2Strings(mReader.slice(block + kStringsAt, stringBytes));
    mHasInterval = strings.hasInterval;
    mSources.count(strings.badSource, index);
    mReceivers.count(strings.badReceiver, index);
    mDelays.count(strings.badDelay, index);
    trace.source = strings.source;
    trace.receiver = strings.receiver;
    trace.delay = strings.delay;
    trace.sampleInterval = strings.sampleInterval;
    std::vector<double> values(samples, 0.0);
    if (samples > 1) readSamples(block + blockSize, format, values);
    trace.samples = std::move(values);
  }

  void readSamples(std::uint64_t at, std::uint8_t format, std::vector<double>& samples) {
    const std::size_t count = samples.size() - 1;
    double* const values = samples.data();
    switch (format) {
      case kFloat32:
        mReader.decode<kSampleBytes>(at, count, values, [](const char* bytes) -> double {
          return floatOf(assembled<kOrder, std::uint32_t>(bytes));
        });
        mNonFinite += zeroNonFinite(samples);
        break;
      case kInt32:
        mReader.decode<kSampleBytes>(at, count, values, [](const char* bytes) -> double {
          return static_cast<std::int32_t>(assembled<kOrder, std::uint32_t>(bytes));
        });
        break;
      case kInt16:
      case kOtherInt16:
        mReader.decode<kSampleBytes>(at, count, values, [](const char* bytes) -> double {
          return static_cast<std::int16_t>(assembled<kOrder, std::uint16_t>(bytes));
        });
        mFormats.insert(format);
        break;
      default:
        mFormats.insert(format);
        break;
    }
  }

  void warnOfFormats() {
    for (const std::uint8_t format : mFormats) {
      const bool int16 = format == kInt16 || format == kOtherInt16;
      Message text =
          int16 ? Message::tr("data format code %1: one 16-bit sample is taken of every four bytes")
                : Message::tr("data format code %1 is not read; its samples are 0");
      mData.warnings.push_back(std::move(text).arg(format));
    }
  }

  std::string_view mBytes;
  ByteReader mReader;
  ShotFileData mData;
  /// Of the last trace read, which decides alone. A file without traces lacks nothing.
  bool mHasInterval = true;
  std::uint64_t mNonFinite = 0;
  std::set<std::uint8_t> mFormats;  ///< worth a warning
  BadHeaders mSources;
  BadHeaders mReceivers;
  BadHeaders mDelays;
};

}  // namespace

Status readSeg2(std::string_view bytes, ShotFileData& data) {
  return Seg2Reader(bytes).read(data);
}

}  // namespace talvesk
