#include "processing/joint/JointPicker.h"

#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "processing/joint/ArrivalPath.h"
#include "processing/joint/OnsetTrace.h"
#include "processing/joint/PickError.h"
#include "processing/joint/Reciprocity.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <limits>
#include <new>
#include <system_error>
#include <thread>
#include <utility>

namespace talvesk {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kEarlySlack = 2e-3;   // seconds that an arrival may be earlier than the fastest
constexpr double kLateSlack = 20e-3;   // seconds that it may be later than the slowest
constexpr double kMedianWeight = 0.5;  // of the single-trace picks, beside the path
constexpr double kMostPolish = 1e-3;   // seconds that they may move a pick

/// A shot to be picked, and what became of it.
struct Gather {
  std::int32_t shot = 0;
  std::size_t place = 0;  ///< in the list of shots
  std::vector<const Trace*> traces;
  std::vector<Point2D> receivers;
  Point2D source;
  std::vector<OnsetTrace> onsets;
  std::vector<ArrivalChannel> channels;
  std::vector<double> times;   ///< seconds from the first sample; not a number without a pick
  std::vector<double> errors;  ///< seconds
};

const std::vector<double>& samplesOf(const Trace& trace, const JointPickOptions& options) {
  const bool filtered = options.useFiltered && !trace.filtered.empty();
  return filtered ? *trace.filtered : *trace.samples;
}

/// Seconds from the first sample to the shot: records may begin before it.
double zeroOf(const Trace& trace) {
  const double dropped = static_cast<double>(trace.droppedSamples) * trace.sampleInterval;
  return std::max(0.0, -trace.delay - dropped);
}

bool usable(const Trace& trace, const Point2D& receiver, const Point2D& source) {
  return trace.sampleInterval > 0.0 && std::isfinite(trace.sampleInterval) &&
         std::isfinite(trace.delay) && std::isfinite(receiver.x) && std::isfinite(source.x);
}

Gather gatherOf(const TomoDocument& document, std::int32_t shot, const JointPickOptions& options,
                JointPickOutcome& outcome) {
  Gather gather;
  gather.shot = shot;
  const auto index = static_cast<std::size_t>(shot);
  if (shot < 0 || index >= document.ttArray.size()) return gather;
  const TravelTime& record = document.ttArray[index];
  const TraceSet* traces = document.tracesOf(record);
  if (traces == nullptr) return gather;
  gather.source = record.shotPos2d;
  gather.receivers = document.receiversOf(record);
  const std::size_t count = std::min(traces->size(), gather.receivers.size());
  gather.channels.resize(count);
  for (std::size_t t = 0; t < count; ++t) {
    const Trace& trace = (*traces)[t];
    const bool part = takesPart(document, shot, t);
    ++outcome.traces;
    if (!part) ++outcome.mended;
    const bool taken = part && usable(trace, gather.receivers[t], gather.source);
    gather.traces.push_back(taken ? &trace : nullptr);
    if (!taken) continue;
    ArrivalChannel& channel = gather.channels[t];
    channel.offset = gather.receivers[t].x - gather.source.x;
    channel.zero = zeroOf(trace);
    const bool fixed = options.keepConfirmed && t < record.ttMisurati.size() &&
                       hasPick(record.ttMisurati[t]) && !record.waits(t);
    if (fixed) channel.fixed = record.ttMisurati[t];
  }
  return gather;
}

void prepare(Gather& gather, const JointPickOptions& options) {
  gather.onsets.resize(gather.channels.size());
  for (std::size_t t = 0; t < gather.channels.size(); ++t) {
    ArrivalChannel& channel = gather.channels[t];
    channel.onset = &gather.onsets[t];
    if (gather.traces[t] == nullptr) continue;
    const double distance = std::fabs(channel.offset);
    gather.onsets[t] =
        prepareOnset(samplesOf(*gather.traces[t], options), gather.traces[t]->sampleInterval,
                     channel.zero + distance / options.fastest - kEarlySlack,
                     channel.zero + distance / options.slowest + kLateSlack);
  }
}

/// The path goes through onsets as the energy tells them, which is early where a break stands far
/// out of the noise. Six other opinions put that right by half of what they differ.
double polished(const OnsetTrace& onset, const std::vector<double>& samples, double time) {
  std::array<double, 6> single = singlePicks(onset, samples, time);
  std::sort(single.begin(), single.end());
  const double median = 0.5e-3 * (single[2] + single[3]);
  return time + std::clamp(kMedianWeight * (median - time), -kMostPolish, kMostPolish);
}

void follow(Gather& gather, const JointPickOptions& options) {
  gather.times = followArrivals(gather.channels);
  gather.errors.assign(gather.times.size(), kNone);
  for (std::size_t t = 0; t < gather.times.size(); ++t) {
    double& time = gather.times[t];
    if (std::isnan(time) || !std::isnan(gather.channels[t].fixed)) continue;
    const std::vector<double>& samples = samplesOf(*gather.traces[t], options);
    gather.errors[t] = pickError(gather.onsets[t], samples, time);
    if (gather.errors[t] > 1e-3 * options.worst) {
      time = kNone;
    } else {
      time = polished(gather.onsets[t], samples, time);
    }
  }
}

/// Runs a step over all gathers on several threads, each gather on one. False when it was stopped
/// or the machine has no memory.
class Crew {
 public:
  Crew(unsigned threads, const std::function<bool()>& goOn) : mThreads(threads), mGoOn(goOn) {
    if (mThreads == 0) mThreads = std::max(std::thread::hardware_concurrency(), 1U);
  }

  template <typename Step>
  bool run(std::vector<Gather>& gathers, Step step) {
    std::atomic<std::size_t> next{0};
    const auto work = [&](bool asks) noexcept {
      try {
        for (std::size_t g = next++; g < gathers.size() && !mStopped; g = next++) {
          if (asks && mGoOn && !mGoOn()) mStopped = true;
          if (!mStopped) step(gathers[g]);
        }
      } catch (const std::exception&) {
        mFailed = true;
        mStopped = true;
      }
    };
    std::vector<std::thread> pool;
    try {
      for (unsigned t = 1; t < mThreads; ++t) pool.emplace_back(work, false);
    } catch (const std::system_error&) {
      // The system gives no more threads: those that run do all the work.
    }
    work(true);
    for (std::thread& thread : pool) thread.join();
    return !mStopped;
  }

  bool failed() const { return mFailed; }

 private:
  unsigned mThreads;
  const std::function<bool()>& mGoOn;
  std::atomic<bool> mStopped{false};
  std::atomic<bool> mFailed{false};
};

/// What the other gathers say of the ways of each.
void takeReciprocals(std::vector<Gather>& gathers) {
  std::vector<ArrivalCurve> curves;
  for (const Gather& gather : gathers) {
    ArrivalCurve& curve = curves.emplace_back();
    curve.source = gather.source.x;
    for (std::size_t t = 0; t < gather.times.size(); ++t) {
      if (std::isnan(gather.times[t])) continue;
      curve.points.push_back({gather.receivers[t].x, gather.times[t] - gather.channels[t].zero});
    }
  }
  const Reciprocity reciprocity(curves);
  for (Gather& gather : gathers) {
    for (std::size_t t = 0; t < gather.channels.size(); ++t) {
      if (gather.traces[t] == nullptr) continue;
      gather.channels[t].reciprocal = reciprocity.timeBack(gather.source.x, gather.receivers[t].x);
    }
  }
}

void store(const Gather& gather, TomoDocument& document, JointPickOutcome& outcome,
           std::vector<double>& errors) {
  errors.assign(gather.times.size(), kNone);
  TravelTime& record = document.ttArray.edit()[static_cast<std::size_t>(gather.shot)];
  std::vector<double>& times = record.ttMisurati.edit();
  if (times.size() < gather.times.size()) times.resize(gather.times.size(), kUnpicked);
  for (std::size_t t = 0; t < gather.times.size(); ++t) {
    if (gather.traces[t] == nullptr) continue;
    if (!std::isnan(gather.channels[t].fixed)) {
      ++outcome.kept;
      continue;
    }
    const bool picked = gather.times[t] > 0.0;
    times[t] = picked ? gather.times[t] : kNoTime;
    record.setWaiting(t, picked);
    if (!picked) continue;
    errors[t] = gather.errors[t];
    record.setError(t, errors[t]);
    ++(errors[t] <= 1e-3 * parameters::kGoodPick.value ? outcome.good : outcome.doubtful);
  }
}

}  // namespace

Status pickJointly(TomoDocument& document, const std::vector<std::int32_t>& shots,
                   const JointPickOptions& options, JointPickOutcome& outcome,
                   const std::function<bool()>& goOn) {
  outcome = {};
  std::vector<Gather> gathers;
  for (std::size_t place = 0; place < shots.size(); ++place) {
    Gather gather = gatherOf(document, shots[place], options, outcome);
    gather.place = place;
    const auto known = [](const Trace* trace) { return trace != nullptr; };
    if (std::any_of(gather.traces.begin(), gather.traces.end(), known)) {
      gathers.push_back(std::move(gather));
    }
  }
  if (gathers.empty()) {
    return Status::failure(
        Message::tr("no trace has a place and a sample interval; give the line its geometry"));
  }
  Crew crew(options.threads, goOn);
  const bool done = crew.run(gathers, [&](Gather& gather) {
    prepare(gather, options);
    follow(gather, options);
  }) && (takeReciprocals(gathers), crew.run(gathers, [&](Gather& gather) {
                      follow(gather, options);
                    }));
  if (crew.failed()) {
    return Status::failure(Message::tr("the machine has no memory left to pick first breaks"));
  }
  outcome.stopped = !done;
  if (!done) return {};
  outcome.errors.resize(shots.size());
  for (const Gather& gather : gathers) {
    store(gather, document, outcome, outcome.errors[gather.place]);
  }
  return {};
}

}  // namespace talvesk
