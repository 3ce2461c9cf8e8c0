#include "io/standard/SegyShots.h"

#include "io/ReadBudget.h"
#include "io/ShotWarnings.h"
#include "io/standard/RecordStart.h"
#include "io/standard/SegyPositions.h"
#include "io/standard/ShotSplit.h"
#include "io/standard/TraceTally.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMillisecondsPerSecond = 1000.0;

/// What was recorded beside the ground: time breaks, upholes, sweeps, signatures of guns,
/// vibrators.
bool isAuxiliary(std::int16_t kind, bool hasLaterKinds) {
  if (kind >= 4 && kind <= 8) return true;
  return hasLaterKinds && (kind == 9 || kind == 10 || (kind >= 18 && kind <= 22));
}

bool isDead(std::int16_t kind) {
  return kind == kSegyDead || kind == kSegyDummy;
}

class ShotsReader {
 public:
  ShotsReader(std::string_view bytes, SegyTraces found)
      : mReader(bytes), mBudget(bytes.size()), mStart(mBudget), mFound(std::move(found)) {}

  Status read(StandardReading& reading) {
    for (const SegyTrace& trace : mFound.traces) {
      if (!mBudget.takeTrace(trace.samples, kSegyTraceHeaderBytes)) {
        return Status::failure(ReadBudget::refusal(mFound.traces.size(), mReader.size()));
      }
    }
    sortOutKinds();
    mPositions = segyPositions(mFound);
    StandardReading made;
    made.format = mFound.format;
    split(made);
    mStart.warn(mFound.traces.size(), mFound.warnings);
    if (mTimeScalars.any()) {
      warn(Message::tr("the time scalar of %1 is none that the standard knows; the delay was taken "
                       "as it stands")
               .arg(mTimeScalars.which(mFound.traces.size())));
    }
    made.warnings = std::move(mFound.warnings);
    reading = std::move(made);
    return {};
  }

 private:
  void warn(Message text) { mFound.warnings.push_back(std::move(text)); }

  /// Leaves auxiliary traces out and counts dead ones, unless there is nothing else in the file.
  void sortOutKinds() {
    TraceTally auxiliary;
    TraceTally dead;
    for (std::size_t i = 0; i < mFound.traces.size(); ++i) {
      const std::int16_t kind = mFound.traces[i].header.kind;
      if (isAuxiliary(kind, mFound.hasLaterKinds)) auxiliary.count(i);
      if (isDead(kind)) dead.count(i);
    }
    mKindsBelieved = auxiliary.traces() + dead.traces() < mFound.traces.size();
    if (!mKindsBelieved) {
      warn(
          Message::tr("all of its traces are marked as dead or auxiliary (bytes 29 and 30); the "
                      "marks were not believed"));
      return;
    }
    if (dead.any()) {
      warn(Message::tr(
               "zeros stand for the samples of %1, marked as dead or as dummies (bytes 29 and 30)")
               .arg(dead.which(mFound.traces.size())));
    }
    if (!auxiliary.any()) return;
    warn(Message::tr("the samples of %1 were left out, marked as auxiliary (bytes 29 and 30: time "
                     "breaks, upholes, sweeps and the like)")
             .arg(auxiliary.which()));
    auto& traces = mFound.traces;
    const auto isOut = [&](const SegyTrace& trace) {
      return isAuxiliary(trace.header.kind, mFound.hasLaterKinds);
    };
    traces.erase(std::remove_if(traces.begin(), traces.end(), isOut), traces.end());
  }

  void split(StandardReading& made) {
    std::vector<SplitKey> keys;
    keys.reserve(mFound.traces.size());
    for (const SegyTrace& trace : mFound.traces) {
      const SegyTraceHeader& header = trace.header;
      keys.push_back({header.fieldRecord, header.sourcePoint, header.traceInRecord, header.sourceX,
                      header.sourceY});
    }
    ShotSplit split = splitShots(keys, mFound.sortedOtherwise);
    if (split.doubtful) {
      warn(
          Message::tr("its traces are not in the order of shots, or the headers do not tell which "
                      "belong together; they were taken as one shot"));
    }
    for (ShotSplit::Part& part : split.parts) {
      StandardReading::Shot& shot = made.shots.emplace_back();
      shot.name = std::move(part.name);
      readShot(part, shot.data);
    }
    made.split = std::move(split.by);
  }

  void readShot(const ShotSplit::Part& part, ShotFileData& data) {
    data.format = mFound.format;
    data.traces.resize(part.count);
    const std::uint64_t missing = mReader.missing();
    std::uint64_t nonFinite = 0;
    for (std::size_t i = 0; i < part.count; ++i) {
      nonFinite += readTrace(part.first + i, data.traces[i]);
    }
    warnOfTraces(data, mReader.missing() - missing, nonFinite);
  }

  /// \return samples that are no finite numbers
  std::uint64_t readTrace(std::size_t number, ShotRecord& record) {
    const SegyTrace& trace = mFound.traces[number];
    record.source = mPositions[number].source;
    record.receiver = mPositions[number].receiver;
    record.sampleInterval = trace.interval;
    std::vector<double> values(static_cast<std::size_t>(trace.samples), 0.0);
    std::uint64_t nonFinite = 0;
    if (!mKindsBelieved || !isDead(trace.header.kind)) {
      const auto decode = mFound.code->decode(mFound.order);
      decode(mReader, trace.dataAt, values.size(), values.data());
      if (mFound.code->floats) nonFinite = zeroNonFinite(values);
    }
    record.samples = std::move(values);
    mStart.set(delayOf(trace.header, number), number, record);
    return nonFinite;
  }

  /// Seconds from the shot to the first sample.
  double delayOf(const SegyTraceHeader& header, std::size_t number) {
    const std::int16_t scalar = mFound.hasTimeScalars ? header.timeScalar : std::int16_t{0};
    if (header.delay != 0.0 && !isSegyScalar(scalar)) mTimeScalars.count(number);
    return segyScaled(header.delay, scalar) / kMillisecondsPerSecond;
  }

  ByteReader mReader;
  ReadBudget mBudget;
  RecordStart mStart;
  SegyTraces mFound;
  std::vector<SegyPosition> mPositions;
  TraceTally mTimeScalars;
  bool mKindsBelieved = true;
};

}  // namespace

Status readSegyShots(std::string_view bytes, SegyTraces found, StandardReading& reading) {
  return ShotsReader(bytes, std::move(found)).read(reading);
}

}  // namespace talvesk
