#include "io/standard/SegyLayout.h"

#include "io/standard/TraceTally.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMicrosecondsPerSecond = 1e6;

bool isInterval(double microseconds) {
  return microseconds >= 1.0 && microseconds <= 32767.0;
}

/// Whose number of samples is taken.
enum class Length { kOfTrace, kOfFile, kOfFirstTrace };

/// Goes from trace to trace. Files of hundreds of thousands of traces are gone through several
/// times, so only that is looked at which leads to the next one.
class Walker {
 public:
  Walker(std::string_view bytes, const SegyLayout& layout)
      : mBytes(bytes), mLayout(layout), mFirstSamples(placeAt(layout.first).samples) {}

  struct Place {
    std::uint64_t at;      ///< of the header
    std::uint64_t dataAt;  ///< of the first sample
    std::uint64_t samples;
  };

  SegyTraceHeader header(const Place& place) const {
    SegyTraceHeader header = segyTraceHeader(mBytes, place.at, mLayout.order);
    if (mLayout.extensions > 0) {
      extendSegyTraceHeader(mBytes, place.at + kSegyTraceHeaderBytes, mLayout.order, header);
    }
    return header;
  }

  /// Calls `take(place)` for every trace whose header is in the file.
  /// \return where the last of them ends, which may be past the file
  template <typename Take>
  std::uint64_t walk(Length length, Take take) const {
    std::uint64_t at = mLayout.first;
    while (at + kSegyTraceHeaderBytes <= mLayout.end) {
      Place place = placeAt(at);
      place.samples = taken(place.samples, length);
      take(place);
      at = place.dataAt + place.samples * mLayout.width;
    }
    return at;
  }

  SegyFit fit(Length length) const {
    SegyFit fit;
    const std::uint64_t end = walk(length, [&](const Place& place) {
      ++fit.traces;
      if (isLikeFirst(place.at)) ++fit.alike;
    });
    fit.whole = fit.traces > 0 && end == mLayout.end && taken(mFirstSamples, length) > 0;
    return fit;
  }

  /// The lengths in the order in which they are believed when nothing else decides.
  std::vector<Length> lengths() const {
    if (mLayout.samples == 0) return {Length::kOfTrace, Length::kOfFirstTrace};
    if (mLayout.fixed) return {Length::kOfFile, Length::kOfTrace, Length::kOfFirstTrace};
    return {Length::kOfTrace, Length::kOfFile, Length::kOfFirstTrace};
  }

  std::pair<Length, SegyFit> best() const {
    std::pair<Length, SegyFit> best = {lengths().front(), {}};
    for (const Length length : lengths()) {
      const SegyFit fits = fit(length);
      if (fits.whole) return {length, fits};
      if (fits.alike > best.second.alike) best = {length, fits};
    }
    return best;
  }

 private:
  /// With the samples that its header tells.
  Place placeAt(std::uint64_t at) const {
    ByteReader reader(mBytes);
    const std::uint64_t extension = at + kSegyTraceHeaderBytes;
    Place place = {at, extension, reader.u16(at + 114, mLayout.order)};
    if (mLayout.extensions == 0) return place;
    if (const auto more = reader.u32(extension + 136, mLayout.order); more > 0)
      place.samples = more;
    // Bytes 157 and 158 of the first extension say how many there are of this trace.
    const std::uint32_t own = reader.u16(extension + 156, mLayout.order);
    const bool told = own > 0 && own <= mLayout.extensions;
    place.dataAt += (told ? own : mLayout.extensions) * kSegyTraceHeaderBytes;
    return place;
  }

  std::uint64_t taken(std::uint64_t told, Length length) const {
    if (length == Length::kOfTrace && told > 0) return told;
    if (length != Length::kOfFirstTrace && mLayout.samples > 0) return mLayout.samples;
    return mFirstSamples;
  }

  /// By kind (29), delay (109) and sample interval (117).
  bool isLikeFirst(std::uint64_t at) const {
    ByteReader reader(mBytes);
    return std::all_of(std::begin(kAlike), std::end(kAlike), [&](std::uint64_t field) {
      return reader.slice(at + field, 2) == reader.slice(mLayout.first + field, 2);
    });
  }
  static constexpr std::uint64_t kAlike[] = {28, 108, 116};

  std::string_view mBytes;
  SegyLayout mLayout;
  std::uint64_t mFirstSamples;
};

/// What headers say otherwise than what was taken.
class Disagreement {
 public:
  void look(double said, double taken, std::size_t trace) {
    if (said == 0.0 || said == taken) return;
    if (!mTally.any()) {
      mSaid = said;
      mTaken = taken;
    }
    mTally.count(trace);
  }
  bool any() const { return mTally.any(); }
  Message which(std::size_t of) const { return mTally.which(of); }
  double said() const { return mSaid; }    ///< by the first of them
  double taken() const { return mTaken; }  ///< for the first of them

 private:
  TraceTally mTally;
  double mSaid = 0.0;
  double mTaken = 0.0;
};

class Finder {
 public:
  Finder(std::string_view bytes, const SegyLayout& layout)
      : mBytes(bytes), mWalker(bytes, layout), mLayout(layout) {}

  std::vector<SegyTrace> find(std::vector<Message>& warnings) {
    const auto [length, fit] = mWalker.best();
    std::vector<SegyTrace> traces;
    traces.reserve(static_cast<std::size_t>(fit.traces));
    std::uint64_t end = mWalker.walk(length, [&](const Walker::Place& place) {
      const SegyTraceHeader header = mWalker.header(place);
      traces.push_back({header, place.dataAt, place.samples, intervalOf(header)});
      compare(traces.back(), traces.size() - 1);
    });
    mCount = traces.size();
    warn(length, warnings);
    if (end != mLayout.end) end = dropFilling(end, traces);
    if (end < mLayout.end) {
      warnings.push_back(Message::tr("%1 bytes after its traces, zeros or too few for another one, "
                                     "were not read")
                             .arg(mLayout.end - end));
    }
    return traces;
  }

 private:
  /// Drops what would be traces of zeros at the end of the file: blocks of a tape or disk are
  /// filled up with them. \return where the traces end
  std::uint64_t dropFilling(std::uint64_t end, std::vector<SegyTrace>& traces) const {
    const std::uint64_t zerosFrom = mBytes.find_last_not_of('\0') + 1;  // npos is -1
    while (traces.size() > 1 && traces.back().dataAt - kSegyTraceHeaderBytes >= zerosFrom) {
      end = traces.back().dataAt - kSegyTraceHeaderBytes;
      traces.pop_back();
    }
    return end;
  }

  /// Seconds. Nothing can tell who is right, but that an interval makes sense.
  double intervalOf(const SegyTraceHeader& header) const {
    const bool file = isInterval(mLayout.interval) ? mLayout.fixed || !isInterval(header.interval)
                                                   : !(header.interval > 0.0);
    return std::max(file ? mLayout.interval : header.interval, 0.0) / kMicrosecondsPerSecond;
  }

  void compare(const SegyTrace& trace, std::size_t number) {
    const auto samples = static_cast<double>(trace.samples);
    // Two bytes hold the rest of a number that is written in full elsewhere.
    if (trace.header.samples != (trace.samples & 0xFFFF)) {
      mTraceSamples.look(trace.header.samples, samples, number);
    }
    mFileSamples.look(static_cast<double>(mLayout.samples), samples, number);
    const double interval = trace.interval * kMicrosecondsPerSecond;
    mTraceInterval.look(trace.header.interval, interval, number);
    mFileInterval.look(mLayout.interval, interval, number);
  }

  void warn(Length length, std::vector<Message>& warnings) const {
    const auto tell = [&](const Disagreement& other, Message text) {
      if (!other.any()) return;
      warnings.push_back(
          std::move(text).arg(other.which(mCount)).arg(other.said()).arg(other.taken()));
    };
    if (length == Length::kOfTrace) {
      tell(mFileSamples, Message::tr("the number of samples in %1 is not the %2 of the header of "
                                     "the file; the trace headers were believed"));
    } else {
      tell(mTraceSamples,
           Message::tr("the header of %1 tells %2 samples, with which the traces do not fit the "
                       "size of the file; %3 were taken"));
      tell(mFileSamples, Message::tr("the traces, %1 among them, do not fit the size of the file "
                                     "with the %2 samples that its header tells; %3 were taken"));
    }
    tell(mTraceInterval, Message::tr("the header of %1 tells a sample interval of %2 microseconds; "
                                     "the %3 of the header of the file were taken"));
    tell(mFileInterval,
         Message::tr("the sample interval of %1 is not the %2 microseconds of the header of the "
                     "file; the trace headers were believed"));
  }

  std::string_view mBytes;
  Walker mWalker;
  SegyLayout mLayout;
  Disagreement mTraceSamples;
  Disagreement mFileSamples;
  Disagreement mTraceInterval;
  Disagreement mFileInterval;
  std::size_t mCount = 0;  ///< of traces
};

}  // namespace

SegyFit fitOf(std::string_view bytes, const SegyLayout& layout) {
  return Walker(bytes, layout).best().second;
}

std::vector<SegyTrace> findSegyTraces(std::string_view bytes, const SegyLayout& layout,
                                      std::vector<Message>& warnings) {
  return Finder(bytes, layout).find(warnings);
}

}  // namespace talvesk
