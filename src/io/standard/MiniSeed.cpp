#include "io/standard/MiniSeed.h"

#include "io/ReadBudget.h"
#include "io/ShotWarnings.h"
#include "io/standard/SeedRecord.h"
#include "io/standard/TraceTally.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

/// Records lie at multiples of this.
constexpr std::size_t kStep = 128;
constexpr double kMicrosecond = 1e-6;
/// Headers tell times in tenths of milliseconds: so much is no gap, whatever the sample interval.
constexpr double kTimeError = 1.1e-4;

/// A record with samples, and where they go.
struct Piece {
  SeedRecord record;
  std::size_t at = 0;       ///< in the file
  std::size_t place = 0;    ///< of its first sample in its trace
  std::size_t samples = 0;  ///< that it can hold
};

struct Channel {
  double rate = 0.0;  ///< samples per second
  std::vector<Piece> pieces;
  std::size_t recorded = 0;  ///< samples
  std::size_t length = 0;    ///< samples of its trace, with gaps
};

bool isVersion3(std::string_view head) {
  return head.size() >= 3 && head[0] == 'M' && head[1] == 'S' && head[2] == '\3';
}

class MiniSeedReader {
 public:
  explicit MiniSeedReader(std::string_view bytes) : mBytes(bytes), mBudget(bytes.size()) {}

  Status read(StandardReading& reading) {
    if (isVersion3(mBytes)) {
      return Status::failure(Message::tr("it is miniSEED of version 3; version 2 is read"));
    }
    if (!looksLikeSeedRecord(mBytes)) {
      return Status::failure(Message::tr("it is no miniSEED file"));
    }
    findPieces();
    if (mChannels.empty()) return noSamples();
    layOut();
    if (!affordable()) {
      return Status::failure(ReadBudget::refusal(mChannels.size(), mBytes.size()));
    }
    StandardReading result;
    result.format = "mseed";
    result.shots.emplace_back();
    ShotFileData& data = result.shots.front().data;
    data.format = "mseed";
    for (const Channel& channel : mChannels) data.traces.push_back(traceOf(channel));
    warnOfTraces(data, 0, 0);
    result.warnings = warnings();
    reading = std::move(result);
    return {};
  }

 private:
  Status noSamples() const {
    if (mNoLength > 0) {
      return Status::failure(
          Message::tr("its records have no blockette 1000, which tells their encoding"));
    }
    if (mOtherEncodings > 0) {
      return Status::failure(
          Message::tr("its samples have the encoding %1; 1, 3, 4, 5, 10 and 11 are read")
              .arg(mOtherEncoding));
    }
    return Status::failure(Message::tr("none of its records has samples of a series"));
  }

  std::string_view bytesAt(std::size_t at, std::size_t length) const {
    return mBytes.substr(std::min(at, mBytes.size()), length);
  }

  void findPieces() {
    for (std::size_t at = 0; at < mBytes.size();) {
      const auto record = seedRecord(mBytes.substr(at));
      if (!record || record->length == 0) {
        if (record) ++mNoLength;
        if (!record) mStrayBytes += std::min(kStep, mBytes.size() - at);
        at += kStep;
        continue;
      }
      take(*record, at);
      at += record->length;
    }
  }

  void take(const SeedRecord& record, std::size_t at) {
    if (record.samples == 0 || !(record.rate > 0.0)) {
      ++mNoSeries;
      return;
    }
    if (!isSeedEncoding(record.encoding)) {
      ++mOtherEncodings;
      mOtherEncoding = record.encoding;
      return;
    }
    Piece piece = {record, at, 0, 0};
    piece.samples = std::min(record.samples, mostSeedSamples(record, dataOf(piece).size()));
    mMissingSamples += record.samples - piece.samples;
    if (piece.samples == 0) return;
    Channel& channel = channelOf(record);
    if (channel.rate != record.rate) {
      ++mOtherRates;
      return;
    }
    channel.recorded += piece.samples;
    channel.pieces.push_back(std::move(piece));
  }

  std::string_view dataOf(const Piece& piece) const {
    const SeedRecord& record = piece.record;
    if (record.dataAt == 0 || record.dataAt >= record.length) return {};
    return bytesAt(piece.at + record.dataAt, record.length - record.dataAt);
  }

  Channel& channelOf(const SeedRecord& record) {
    const auto [known, isNew] = mIndex.emplace(record.channel, mChannels.size());
    if (isNew) mChannels.push_back({record.rate, {}, 0, 0});
    return mChannels[known->second];
  }

  void layOut() {
    std::int64_t earliest = std::numeric_limits<std::int64_t>::max();
    for (Channel& channel : mChannels) {
      std::stable_sort(
          channel.pieces.begin(), channel.pieces.end(),
          [](const Piece& a, const Piece& b) { return a.record.start < b.record.start; });
      earliest = std::min(earliest, channel.pieces.front().record.start);
    }
    for (std::size_t i = 0; i < mChannels.size(); ++i) layOut(i, earliest);
  }

  /// Gives every piece its place after `origin`, up to a gap that is longer than all the rest.
  void layOut(std::size_t index, std::int64_t origin) {
    Channel& channel = mChannels[index];
    const double tolerance = std::max(0.5, kTimeError * channel.rate);
    std::size_t zeros = 0;
    for (auto piece = channel.pieces.begin(); piece != channel.pieces.end(); ++piece) {
      const auto since = static_cast<double>(piece->record.start - origin) * kMicrosecond;
      const double offset = since * channel.rate - static_cast<double>(channel.length);
      const bool isFirst = piece == channel.pieces.begin();
      piece->place = channel.length;
      const bool isLong = offset > static_cast<double>(channel.recorded - zeros);
      if (offset > tolerance && isLong && isFirst) {
        mNotAligned.count(index);
        origin = piece->record.start;
      } else if (offset > tolerance && isLong) {
        mFarRecords += static_cast<std::size_t>(channel.pieces.end() - piece);
        channel.pieces.erase(piece, channel.pieces.end());
        return;
      } else if (offset > tolerance) {
        const auto gap = static_cast<std::size_t>(std::round(offset));
        (isFirst ? mLate : mGaps).count(index);
        zeros += gap;
        piece->place += gap;
      } else if (offset < -tolerance) {
        mOverlaps.count(index);
        piece->place -= std::min(piece->place, static_cast<std::size_t>(std::round(-offset)));
      }
      channel.length = std::max(channel.length, piece->place + piece->samples);
    }
  }

  bool affordable() {
    return std::all_of(mChannels.begin(), mChannels.end(), [this](const Channel& channel) {
      return mBudget.takeTrace(channel.length, channel.pieces.size() * sizeof(Piece));
    });
  }

  ShotRecord traceOf(const Channel& channel) {
    ShotRecord trace;
    trace.sampleInterval = 1.0 / channel.rate;
    std::vector<double> values(channel.length, 0.0);
    for (const Piece& piece : channel.pieces) {
      if (!decodeSeed(piece.record, dataOf(piece), piece.samples, &values[piece.place])) {
        ++mDamaged;
      }
    }
    mNonFinite += zeroNonFinite(values);
    trace.samples = std::move(values);
    return trace;
  }

  std::vector<Message> warnings() const;

  std::string_view mBytes;
  ReadBudget mBudget;
  std::vector<Channel> mChannels;
  std::map<std::string, std::size_t> mIndex;  ///< of channels by their names
  std::uint64_t mNonFinite = 0;
  std::uint64_t mStrayBytes = 0;
  std::uint64_t mMissingSamples = 0;
  // Records that are left out, and why.
  std::size_t mNoLength = 0;
  std::size_t mNoSeries = 0;
  std::size_t mOtherEncodings = 0;
  std::size_t mOtherRates = 0;
  std::size_t mFarRecords = 0;
  unsigned mOtherEncoding = 0;
  std::size_t mDamaged = 0;
  TraceTally mGaps;
  TraceTally mOverlaps;
  TraceTally mLate;
  TraceTally mNotAligned;
};

std::vector<Message> MiniSeedReader::warnings() const {
  std::vector<Message> lines = {
      Message::tr("miniSEED tells neither positions nor the time of the shot: all positions are 0 "
                  "and times count from the first sample; give the survey its geometry")};
  const auto tell = [&lines](std::uint64_t count, Message text) {
    if (count > 0) lines.push_back(std::move(text).arg(count));
  };
  const auto tellTraces = [this, &lines](const TraceTally& traces, Message text) {
    if (traces.any()) lines.push_back(std::move(text).arg(traces.which(mChannels.size())));
  };
  tellTraces(mLate, Message::tr("the record of %1 begins later than others; zeros stand in front"));
  tellTraces(mNotAligned,
             Message::tr("the record of %1 begins later than others, by longer than it "
                         "lasts; that is not applied and its times do not compare"));
  tellTraces(mGaps, Message::tr("zeros stand for gaps in the record of %1"));
  tellTraces(mOverlaps, Message::tr("records of %1 overlap; the later ones count"));
  tell(mFarRecords, Message::tr("records left out after a gap that is longer than what was "
                                "recorded: %1"));
  tell(mOtherRates, Message::tr("records left out whose sample rate is not that of the first of "
                                "their channel: %1"));
  if (mOtherEncodings > 0) {
    lines.push_back(Message::tr("records left out whose encoding, such as %1, is not read: %2")
                        .arg(mOtherEncoding)
                        .arg(mOtherEncodings));
  }
  tell(mNoSeries, Message::tr("records left out that have no samples of a series: %1"));
  tell(mNoLength, Message::tr("records left out that have no blockette 1000: %1"));
  tell(mStrayBytes, Message::tr("bytes left out that are of no record: %1"));
  tell(mMissingSamples, Message::tr("samples that headers promise and records do not hold: %1"));
  tell(mDamaged, Message::tr("damaged records, which do not end at the sample that they tell: %1"));
  warnOfBytes(0, mNonFinite, lines);
  return lines;
}

}  // namespace

Likelihood likelihoodOfMiniSeed(std::string_view head, std::size_t) {
  if (isVersion3(head)) return Likelihood::kYes;
  const auto record = seedRecord(head);
  if (!record) return Likelihood::kNo;
  return record->length > 0 ? Likelihood::kYes : Likelihood::kPerhaps;
}

Status readMiniSeedByStandard(std::string_view bytes, StandardReading& reading) {
  return MiniSeedReader(bytes).read(reading);
}

}  // namespace talvesk
