#include "io/SegyFile.h"

#include "base/Console.h"
#include "io/ByteReader.h"
#include "io/ReadBudget.h"
#include "io/ShotWarnings.h"

#include <ostream>
#include <string>
#include <utility>

namespace talvesk {
namespace {

constexpr ByteOrder kNative = ByteOrder::kLittle;  ///< what "native" means, on any machine

// From the start of a SEG-Y file.
constexpr std::uint64_t kTraceCountAt = 3212;
constexpr std::uint64_t kIntervalAt = 3216;
constexpr std::uint64_t kFormatAt = 3224;
constexpr std::uint64_t kOrderConstantAt = 3296;
constexpr std::uint64_t kFileHeaderBytes = 3600;
// From the start of a trace.
constexpr std::uint64_t kScalarAt = 70;
constexpr std::uint64_t kSourceAt = 72;
constexpr std::uint64_t kReceiverAt = 80;
constexpr std::uint64_t kSampleCountAt = 114;
constexpr std::uint64_t kTraceIntervalAt = 116;
constexpr std::uint64_t kTraceHeaderBytes = 240;

enum FormatCode : std::int16_t { kIbmFloat = 1, kInt32 = 2, kInt16 = 3, kIeeeFloat = 5 };

constexpr double kMicrosecondsPerMillisecond = 1000.0;
constexpr double kMillisecondsPerSecond = 1000.0;

/// The factor of a coordinate. Positions of old surveys were taken with this integer division.
float coordinateFactor(std::int16_t scalar) {
  if (scalar == 0) return 1.0F;
  return static_cast<float>(scalar > 0 ? scalar : -1 / scalar);
}

class SegyReader {
 public:
  SegyReader(std::string_view bytes, const SegyState& state) : mReader(bytes), mState(state) {}

  Status readSegy(SegyState& state, ShotFileData& data) {
    detectOrder();
    takeInterval(mReader.u16(kIntervalAt, order()));
    mState.formatCode = mReader.i16(kFormatAt, order());
    const std::uint16_t traces = mReader.u16(kTraceCountAt, order());
    mState.samplesPerTrace = mReader.u16(kFileHeaderBytes + kSampleCountAt, order());
    return readTraces(kFileHeaderBytes, traces, state, data);
  }

  Status readSu(SegyState& state, ShotFileData& data) {
    takeInterval(mReader.u16(kTraceIntervalAt, order()));
    mState.samplesPerTrace = mReader.u16(kSampleCountAt, order());
    const std::uint64_t traces = mReader.size() / (samples() * sizeof(float) + kTraceHeaderBytes);
    warnOfOtherOrder();
    // The spacing of the traces is settled by the format of the file before; only then are the
    // samples taken as floats.
    mSpacing = spacing();
    if (mSpacing != kTraceHeaderBytes + samples() * sizeof(float)) {
      warn(Message::tr(
          "its traces are taken to lie as close as the 16-bit data of the SEG-Y file before it"));
    }
    mState.formatCode = kIeeeFloat;
    return readTraces(0, traces, state, data);
  }

 private:
  ByteOrder order() const { return mState.nativeOrder ? kNative : ByteOrder::kBig; }
  std::uint64_t samples() const { return static_cast<std::uint64_t>(mState.samplesPerTrace); }
  std::uint64_t spacing() const {
    return kTraceHeaderBytes + samples() * (mState.formatCode == kInt16 ? 2 : 4);
  }
  void warn(const Message& text) { mData.warnings.push_back(text); }

  void takeInterval(std::uint16_t microseconds) {
    mState.sampleInterval = microseconds / kMicrosecondsPerMillisecond;
  }

  void detectOrder() {
    const std::uint32_t constant = mReader.u32(kOrderConstantAt, kNative);
    switch (constant) {
      case 0x01020304:
        console::out() << "same endianess\n";
        if (!mState.nativeOrder) {
          warn(
              Message::tr("it says that its numbers are little-endian, but is read big-endian as a "
                          "file before it; load the little-endian files first"));
        }
        break;
      case 0x04030201:
        console::out() << "inverted byte Order" << constant << '\n';
        mState.nativeOrder = false;
        break;
      case 0x02010403:
        console::out() << "byte swabed\n";
        mState.nativeOrder = false;
        break;
      case 0:
        // A shot has few traces: of the two readings of their number the smaller one is right.
        if (mReader.u16(kTraceCountAt, kNative) > mReader.u16(kTraceCountAt, ByteOrder::kBig)) {
          mState.nativeOrder = false;
        }
        break;
      default:
        break;
    }
  }

  /// Whether the file is a whole number of traces when its lengths are read in this order.
  bool fits(ByteOrder guess) {
    const std::uint64_t length = mReader.u16(kSampleCountAt, guess) * std::uint64_t{4};
    return mReader.size() % (length + kTraceHeaderBytes) == 0;
  }

  void warnOfOtherOrder() {
    const ByteOrder other = mState.nativeOrder ? ByteOrder::kBig : kNative;
    if (fits(order()) || !fits(other)) return;
    warn(Message::tr(
        "its numbers seem to be in the other byte order; load a SEG-Y file of that order first"));
  }

  /// A wrong byte order is the likeliest cause of a promise that cannot be kept.
  Status refusal(std::uint64_t traces) const {
    Message message = ReadBudget::refusal(traces, mReader.size());
    for (const Message& warning : mData.warnings) {
      message = Message::tr("%1; %2").arg(std::move(message)).arg(warning);
    }
    return Status::failure(std::move(message));
  }

  Status readTraces(std::uint64_t first, std::uint64_t count, SegyState& state,
                    ShotFileData& data) {
    ReadBudget budget(mReader.size());
    for (std::uint64_t i = 0; i < count; ++i) {
      if (!budget.takeTrace(samples(), kTraceHeaderBytes)) {
        return refusal(count);
      }
    }
    if (mSpacing == 0) mSpacing = spacing();
    mData.traces.resize(static_cast<std::size_t>(count));
    for (std::uint64_t i = 0; i < count; ++i) {
      readTrace(first + i * mSpacing, mData.traces[static_cast<std::size_t>(i)]);
    }
    warnOfRest(first + count * mSpacing);
    warnOfFormat();
    warnOfTraces(mData, mReader.missing(), mNonFinite);
    state = mState;
    data = std::move(mData);
    return {};
  }

  void readTrace(std::uint64_t at, ShotRecord& trace) {
    trace.sampleInterval = mState.sampleInterval / kMillisecondsPerSecond;
    const float factor = coordinateFactor(mReader.i16(at + kScalarAt, order()));
    trace.source.x = coordinate(at + kSourceAt, factor);
    trace.receiver.x = coordinate(at + kReceiverAt, factor);
    std::vector<double> values(static_cast<std::size_t>(samples()), 0.0);
    if (values.size() > 1 && mState.nativeOrder) {
      readSamples<kNative>(at + kTraceHeaderBytes, values);
    } else if (values.size() > 1) {
      readSamples<ByteOrder::kBig>(at + kTraceHeaderBytes, values);
    }
    trace.samples = std::move(values);
  }

  double coordinate(std::uint64_t at, float factor) {
    const float scaled = factor * static_cast<float>(mReader.i32(at, order()));
    return static_cast<double>(scaled) + 0.0;  // minus zero becomes zero
  }

  template <ByteOrder kOrder>
  void readSamples(std::uint64_t at, std::vector<double>& samples) {
    const std::size_t count = samples.size() - 1;
    double* const values = samples.data();
    if (mState.formatCode == kIeeeFloat) {
      mReader.decode<4>(at, count, values, [](const char* bytes) -> double {
        return floatOf(assembled<kOrder, std::uint32_t>(bytes));
      });
      mNonFinite += zeroNonFinite(samples);
    } else if (mState.formatCode == kInt32) {
      mReader.decode<4>(at, count, values, [](const char* bytes) -> double {
        return static_cast<std::int32_t>(assembled<kOrder, std::uint32_t>(bytes));
      });
    } else if (mState.formatCode == kInt16) {
      mReader.decode<2>(at, count, values, [](const char* bytes) -> double {
        return static_cast<std::int16_t>(assembled<kOrder, std::uint16_t>(bytes));
      });
    }
  }

  void warnOfRest(std::uint64_t end) {
    if (end >= mReader.size()) return;
    warn(Message::tr("%1 bytes after the traces that its headers name were not read")
             .arg(mReader.size() - end));
  }

  void warnOfFormat() {
    const std::int16_t code = mState.formatCode;
    if (mData.traces.empty() || code == kInt32 || code == kInt16 || code == kIeeeFloat) return;
    Message text =
        code == kIbmFloat
            ? Message::tr("data format code %1 (IBM floats) is not read; its samples are 0")
            : Message::tr("data format code %1 is not read; its samples are 0");
    warn(std::move(text).arg(code));
  }

  ByteReader mReader;
  SegyState mState;
  ShotFileData mData;
  std::uint64_t mSpacing = 0;  ///< from trace to trace, bytes; 0 until settled
  std::uint64_t mNonFinite = 0;
};

}  // namespace

Status readSegy(std::string_view bytes, SegyState& state, ShotFileData& data) {
  return SegyReader(bytes, state).readSegy(state, data);
}

Status readSu(std::string_view bytes, SegyState& state, ShotFileData& data) {
  return SegyReader(bytes, state).readSu(state, data);
}

}  // namespace talvesk
