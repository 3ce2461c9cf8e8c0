#include "io/standard/Seg2Standard.h"

#include "io/ReadBudget.h"
#include "io/ShotWarnings.h"
#include "io/standard/RecordStart.h"
#include "io/standard/Seg2Positions.h"
#include "io/standard/Seg2Samples.h"
#include "io/standard/Seg2Shots.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace talvesk {
namespace {

constexpr std::uint16_t kFileBlock = 0x3A55;
constexpr std::uint16_t kTraceBlock = 0x4422;
constexpr std::uint64_t kPointerTableBytesAt = 4;
constexpr std::uint64_t kTraceCountAt = 6;
constexpr std::uint64_t kStringEndAt = 8;  // how many bytes, then two bytes
constexpr std::uint64_t kLineEndAt = 11;
constexpr std::uint64_t kPointersAt = 32;
constexpr std::uint64_t kPointerBytes = 4;
// From the start of a trace descriptor block.
constexpr std::uint64_t kBlockBytesAt = 2;
constexpr std::uint64_t kSampleCountAt = 8;
constexpr std::uint64_t kCodeAt = 12;
constexpr std::uint64_t kStringsAt = 32;

/// What a trace descriptor block says of its place and its samples.
struct Block {
  std::size_t index = 0;
  std::uint64_t at = 0;
  std::uint64_t bytes = 0;
  std::uint32_t samples = 0;
  std::uint8_t code = 0;
};

bool isBlockOf(std::string_view head, ByteOrder order) {
  return ByteReader(head).u16(0, order) == kFileBlock;
}

/// An end that could stand within a number or a word is none.
bool canEnd(std::string_view end) {
  return !end.empty() && std::none_of(end.begin(), end.end(), [](char c) {
    return std::string_view(" _,.+-:").find(c) != std::string_view::npos ||
           (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  });
}

class Seg2StandardReader {
 public:
  explicit Seg2StandardReader(std::string_view bytes)
      : mBytes(bytes), mReader(bytes), mBudget(bytes.size()), mStart(mBudget) {}

  Status read(StandardReading& reading) {
    if (Status found = findBlocks(); !found.ok()) return found;
    readHeaders();
    if (Status known = findIntervals(); !known.ok()) return known;
    for (std::size_t i = 0; i < mTraces.size(); ++i) readTrace(mBlocks[i], mTraces[i]);
    StandardReading result;
    result.format = "seg2";
    result.warnings = warnings();
    placeTraces(units(), mTraces, result.warnings);
    dealToShots(std::move(mTraces), result);
    reading = std::move(result);
    return {};
  }

 private:
  std::string end(std::uint64_t at) {
    const std::size_t size = mReader.u8(at);
    if (size > 2) return {};
    const std::string_view end = mReader.slice(at + 1, size);
    return canEnd(end) ? std::string(end) : std::string();
  }

  Status findBlocks() {
    mLayout.order = isBlockOf(mBytes, ByteOrder::kLittle) ? ByteOrder::kLittle : ByteOrder::kBig;
    if (!isBlockOf(mBytes, mLayout.order))
      return Status::failure(Message::tr("it is no SEG-2 file"));
    mLayout.stringEnd = end(kStringEndAt);
    mLayout.lineEnd = end(kLineEndAt);
    mPointers = mReader.u16(kTraceCountAt, mLayout.order);
    for (std::size_t i = 0; i < mPointers; ++i) {
      if (Status taken = takeBlock(i); !taken.ok()) return taken;
    }
    if (mBlocks.empty()) return Status::failure(Message::tr("it holds no trace"));
    return {};
  }

  Status takeBlock(std::size_t index) {
    const ByteOrder order = mLayout.order;
    Block block;
    block.index = index;
    block.at = mReader.u32(kPointersAt + index * kPointerBytes, order);
    // By a reader of its own: bytes past the end are not missing where no trace is.
    if (ByteReader(mBytes).u16(block.at, order) != kTraceBlock) {
      mAstray.count(index);
      return {};
    }
    block.bytes = std::max<std::uint64_t>(mReader.u16(block.at + kBlockBytesAt, order), kStringsAt);
    block.samples = mReader.u32(block.at + kSampleCountAt, order);
    block.code = mReader.u8(block.at + kCodeAt);
    if (!isSeg2Code(block.code)) {
      return Status::failure(
          Message::tr("the samples of its trace %1 have the data format code %2; "
                      "the codes of SEG-2 are 1 to 5")
              .arg(index + 1)
              .arg(block.code));
    }
    if (!mBudget.takeTrace(block.samples, block.bytes)) {
      return Status::failure(ReadBudget::refusal(mPointers, mBytes.size()));
    }
    mBlocks.push_back(block);
    return {};
  }

  void readHeaders() {
    mTraces.resize(mBlocks.size());
    for (std::size_t i = 0; i < mBlocks.size(); ++i) {
      const Block& block = mBlocks[i];
      mTraces[i].index = block.index;
      mTraces[i].header =
          seg2TraceHeader(mReader.slice(block.at + kStringsAt, block.bytes - kStringsAt), mLayout);
    }
  }

  /// A trace without a usable interval has that of the first which has one.
  Status findIntervals() {
    const auto isUsable = [](const Seg2Trace& trace) {
      return trace.header.sampleInterval.value.value_or(0.0) > 0.0;
    };
    const auto first = std::find_if(mTraces.begin(), mTraces.end(), isUsable);
    if (first == mTraces.end()) {
      return Status::failure(Message::tr("none of its traces has a usable SAMPLE_INTERVAL"));
    }
    mInterval = *first->header.sampleInterval.value;
    for (Seg2Trace& trace : mTraces) {
      if (!isUsable(trace)) mNoInterval.count(trace.index);
      trace.record.sampleInterval =
          isUsable(trace) ? *trace.header.sampleInterval.value : mInterval;
    }
    return {};
  }

  void readTrace(const Block& block, Seg2Trace& trace) {
    ShotRecord& record = trace.record;
    std::vector<double> values(block.samples, 0.0);
    decodeSeg2(mReader, block.at + block.bytes, block.code, mLayout.order, factorOf(trace),
               block.samples, values.data());
    mNonFinite += zeroNonFinite(values);
    record.samples = std::move(values);
    const Seg2Number& delay = trace.header.delay;
    if (delay.bad()) mBadDelay.count(trace.index);
    mStart.set(delay.value.value_or(0.0) + wholeSkew(trace), trace.index, record);
  }

  double factorOf(const Seg2Trace& trace) {
    const Seg2Number& descaling = trace.header.descaling;
    const Seg2Number& stack = trace.header.stack;
    const bool hasFactor = descaling.value.value_or(0.0) != 0.0;
    const bool hasStack = stack.value.value_or(0.0) >= 1.0;
    if (descaling.told && !hasFactor) mBadDescaling.count(trace.index);
    if (!descaling.told) mNoDescaling.count(trace.index);
    if (stack.told && !hasStack) mBadStack.count(trace.index);
    return (hasFactor ? *descaling.value : 1.0) / (hasStack ? *stack.value : 1.0);
  }

  /// Seconds of the skew that are whole samples, but for how headers round.
  double wholeSkew(const Seg2Trace& trace) {
    constexpr double kRounding = 1e-6;  // of a sample
    const double interval = trace.record.sampleInterval;
    const double skew = trace.header.skew.value.value_or(0.0);
    const double samples = skew / interval;
    const double whole = std::trunc(samples + std::copysign(kRounding, samples));
    const double applied = std::isfinite(whole) ? whole * interval : 0.0;
    if (!(std::abs(skew - applied) <= kRounding * interval)) {
      mSkewed.count(trace.index);
      mMostSkew = std::max(mMostSkew, std::abs(skew - applied));
    }
    return applied;
  }

  std::string units() {
    const std::uint64_t table = std::max<std::uint64_t>(
        mReader.u16(kPointerTableBytesAt, mLayout.order), mPointers * kPointerBytes);
    const std::uint64_t at = kPointersAt + table;
    std::uint64_t end = mBytes.size();
    for (const Block& block : mBlocks) {
      if (block.at >= at) end = std::min(end, block.at);
    }
    return at < end ? seg2Units(mReader.slice(at, end - at), mLayout) : std::string();
  }

  std::vector<Message> warnings() const {
    std::vector<Message> lines;
    const auto tell = [this, &lines](const TraceTally& traces, Message text) {
      if (traces.any()) lines.push_back(std::move(text).arg(traces.which(mPointers)));
    };
    tell(mAstray,
         Message::tr("nothing is read of %1 since no trace block is where the pointer leads"));
    tell(mNoInterval,
         Message::tr("the header of %1 has no usable SAMPLE_INTERVAL; that of another was taken"));
    tell(mBadDescaling, Message::tr("the DESCALING_FACTOR of %1 is no usable number; those samples "
                                    "are as stored"));
    if (mNoDescaling.traces() < mTraces.size()) {
      tell(mNoDescaling, Message::tr("the header of %1 has no DESCALING_FACTOR, as others have; "
                                     "those samples are as stored"));
    }
    tell(mBadStack, Message::tr("the STACK of %1 is no usable number and was taken as 1"));
    tell(mBadDelay, Message::tr("the DELAY of %1 is no finite number and was taken as 0"));
    if (mSkewed.any()) {
      lines.push_back(
          Message::tr("the SKEW of %1 is up to %2 ms beyond whole samples; that part is "
                      "not applied")
              .arg(mSkewed.which(mPointers))
              .arg(1000.0 * mMostSkew));
    }
    mStart.warn(mPointers, lines);
    warnOfBytes(mReader.missing(), mNonFinite, lines);
    return lines;
  }

  std::string_view mBytes;
  ByteReader mReader;
  ReadBudget mBudget;
  RecordStart mStart;
  Seg2Layout mLayout;
  std::size_t mPointers = 0;
  std::vector<Block> mBlocks;      ///< of the traces that are there
  std::vector<Seg2Trace> mTraces;  ///< likewise
  double mInterval = 0.0;          ///< seconds
  std::uint64_t mNonFinite = 0;
  double mMostSkew = 0.0;  ///< seconds
  TraceTally mAstray;
  TraceTally mNoInterval;
  TraceTally mBadDescaling;
  TraceTally mNoDescaling;
  TraceTally mBadStack;
  TraceTally mBadDelay;
  TraceTally mSkewed;
};

}  // namespace

Likelihood likelihoodOfSeg2(std::string_view head, std::size_t) {
  const bool is = isBlockOf(head, ByteOrder::kLittle) || isBlockOf(head, ByteOrder::kBig);
  return is ? Likelihood::kYes : Likelihood::kNo;
}

Status readSeg2ByStandard(std::string_view bytes, StandardReading& reading) {
  return Seg2StandardReader(bytes).read(reading);
}

}  // namespace talvesk
