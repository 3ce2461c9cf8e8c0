#include "processing/joint/JointGather.h"

#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "processing/joint/ArrivalPeriod.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kEarlySlack = 2e-3;    // seconds that an arrival may be earlier than the fastest
constexpr double kLateSlack = 20e-3;    // seconds that it may be later than the slowest
constexpr double kFirstCutOff = 300.0;  // Hz, of the first look

// Of how much later an arrival is than expected, milliseconds: more than usual may be the wrong
// one.
constexpr double kUsuallyLater = 2.0;
constexpr double kLaterShare = 0.5;

/// Seconds from the first sample to the shot: records may begin before it.
double zeroOf(const Trace& trace) {
  const double dropped = static_cast<double>(trace.droppedSamples) * trace.sampleInterval;
  return std::max(0.0, -trace.delay - dropped);
}

bool hasPlace(const Trace& trace, const Point2D& receiver, const Point2D& source) {
  return trace.sampleInterval > 0.0 && std::isfinite(trace.sampleInterval) &&
         std::isfinite(trace.delay) && std::isfinite(receiver.x) && std::isfinite(source.x);
}

}  // namespace

JointGather::JointGather(const TomoDocument& document, std::int32_t shot,
                         const JointPickOptions& options)
    : mShot(shot), mOptions(options) {
  const auto index = static_cast<std::size_t>(shot);
  if (shot < 0 || index >= document.ttArray.size()) return;
  const TravelTime& record = document.ttArray[index];
  const TraceSet* traces = document.tracesOf(record);
  if (traces == nullptr) return;
  mSource = record.shotPos2d;
  mReceivers = document.receiversOf(record);
  const std::size_t count = std::min(traces->size(), mReceivers.size());
  mChannels.resize(count);
  mOnsets.resize(count);
  for (std::size_t t = 0; t < count; ++t) {
    const Trace& trace = (*traces)[t];
    const bool part = takesPart(document, shot, t);
    if (!part) ++mMended;
    const bool taken = part && hasPlace(trace, mReceivers[t], mSource);
    mTraces.push_back(taken ? &trace : nullptr);
    ArrivalChannel& channel = mChannels[t];
    if (!taken) continue;
    channel.offset = mReceivers[t].x - mSource.x;
    channel.zero = zeroOf(trace);
    const bool fixed = options.keepConfirmed && t < record.ttMisurati.size() &&
                       hasPick(record.ttMisurati[t]) && !record.waits(t);
    if (fixed) channel.fixed = record.ttMisurati[t];
  }
}

void JointGather::heed(const GuideLine& guide) {
  std::vector<Point2D> points = guide.points;
  std::stable_sort(points.begin(), points.end(),
                   [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  for (std::size_t t = 0; t < mChannels.size(); ++t) {
    const double x = mReceivers[t].x;
    const auto right = std::lower_bound(points.begin(), points.end(), x,
                                        [](const Point2D& p, double value) { return p.x < value; });
    if (mTraces[t] == nullptr || right == points.end()) continue;
    if (right == points.begin() && right->x > x) continue;
    double time = right->z;
    if (right->x > x) {
      const Point2D& left = *(right - 1);
      time = left.z + (right->z - left.z) * (x - left.x) / (right->x - left.x);
    }
    mChannels[t].guide = time - mChannels[t].zero;
    mChannels[t].reach = guide.reach;
  }
}

bool JointGather::usable() const {
  return std::any_of(mTraces.begin(), mTraces.end(),
                     [](const Trace* trace) { return trace != nullptr; });
}

Span<double> JointGather::samplesOf(std::size_t trace) const {
  const Trace& one = *mTraces[trace];
  const bool filtered = mOptions.useFiltered && !one.filtered.empty();
  return filtered ? one.filtered : one.samples;
}

void JointGather::ready(const OnsetView& view) {
  for (std::size_t t = 0; t < mChannels.size(); ++t) {
    ArrivalChannel& channel = mChannels[t];
    channel.onset = &mOnsets[t];  // of this gather, and not of one that it was copied from
    if (mTraces[t] == nullptr) continue;
    const double distance = std::fabs(channel.offset);
    mOnsets[t] = prepareOnset(samplesOf(t), mTraces[t]->sampleInterval,
                              channel.zero + distance / mOptions.fastest - kEarlySlack,
                              channel.zero + distance / mOptions.slowest + kLateSlack, view);
  }
}

std::optional<double> JointGather::look(double stretch) {
  ready({stretch, kFirstCutOff});
  return arrivalFrequency(mOnsets, followArrivals(mChannels, stretch), stretch);
}

void JointGather::prepare(double stretch) {
  mStretch = stretch;
  OnsetView view;
  view.stretch = stretch;
  ready(view);
}

std::size_t JointGather::preparedBytes() const {
  constexpr std::size_t kPerSample = sizeof(double) + 3 * sizeof(float);
  std::size_t samples = 0;
  for (const Trace* trace : mTraces) samples += trace != nullptr ? trace->samples.size() : 0;
  return samples * kPerSample;
}

void JointGather::forgetPrepared() {
  for (OnsetTrace& onset : mOnsets) onset = {};
}

void JointGather::follow() {
  mTimes = followArrivals(mChannels, mStretch);
}

void JointGather::refine() {
  mErrors.assign(mTimes.size(), kNone);
  mRefined.assign(mTimes.size(), {});
  for (std::size_t t = 0; t < mTimes.size(); ++t) {
    if (std::isnan(mTimes[t]) || !std::isnan(mChannels[t].fixed)) continue;
    mRefined[t] = refinePick(samplesOf(t), mOnsets[t], mTimes[t], mStretch);
    mErrors[t] = mRefined[t].scatter;
  }
  smooth(false);
  smooth(true);
}

void JointGather::smooth(bool right) {
  const auto distance = [this](std::size_t t) { return std::fabs(mChannels[t].offset); };
  std::vector<std::size_t> side;
  for (std::size_t t = 0; t < mTimes.size(); ++t) {
    if (!std::isnan(mErrors[t]) && (mChannels[t].offset > 0.0) == right) side.push_back(t);
  }
  std::stable_sort(side.begin(), side.end(),
                   [&](std::size_t a, std::size_t b) { return distance(a) < distance(b); });
  const double ms = 1e-3 * mStretch;
  std::vector<SmoothArrival> arrivals;
  for (const std::size_t t : side) {
    const double time = mRefined[t].time - mChannels[t].zero;
    arrivals.push_back({distance(t), time / ms, mRefined[t].scatter / ms});
  }
  smoothArrivals(arrivals);
  for (std::size_t i = 0; i < side.size(); ++i) {
    mTimes[side[i]] = arrivals[i].time * ms + mChannels[side[i]].zero;
    mErrors[side[i]] = errorOf(side[i], arrivals[i]);
  }
}

double JointGather::errorOf(std::size_t trace, const SmoothArrival& arrival) const {
  const double ms = 1e-3 * mStretch;
  const double error = std::hypot(ms * arrival.error, mRefined[trace].beginning);
  // Which arrival it is, a person said who drew a guide.
  if (!std::isnan(mChannels[trace].guide)) return error;
  const double later = kLaterShare * std::max(arrival.later - kUsuallyLater, 0.0);
  return std::hypot(error, ms * later, mRefined[trace].arrival);
}

void JointGather::leaveOutDoubtful() {
  for (std::size_t t = 0; t < mTimes.size(); ++t) {
    const ArrivalChannel& channel = mChannels[t];
    if (std::isnan(mErrors[t])) continue;
    if (!(mErrors[t] <= 1e-3 * mOptions.worst)) {
      mTimes[t] = kNone;
    } else if (!std::isnan(channel.guide)) {
      const double guide = channel.guide + channel.zero;
      mTimes[t] = std::clamp(mTimes[t], guide - channel.reach, guide + channel.reach);
    }
  }
}

ArrivalCurve JointGather::curve() const {
  ArrivalCurve curve;
  curve.source = mSource.x;
  for (std::size_t t = 0; t < mTimes.size(); ++t) {
    if (std::isnan(mTimes[t])) continue;
    curve.points.push_back({mReceivers[t].x, mTimes[t] - mChannels[t].zero});
  }
  return curve;
}

void JointGather::heed(const Reciprocity& reciprocity) {
  for (std::size_t t = 0; t < mChannels.size(); ++t) {
    if (mTraces[t] == nullptr) continue;
    mChannels[t].reciprocal = reciprocity.timeBack(mSource.x, mReceivers[t].x);
  }
}

std::vector<double> JointGather::store(TomoDocument& document, JointPickOutcome& outcome) const {
  std::vector<double> errors(mTimes.size(), kNone);
  TravelTime& record = document.ttArray.edit()[static_cast<std::size_t>(mShot)];
  std::vector<double>& times = record.ttMisurati.edit();
  if (times.size() < mTimes.size()) times.resize(mTimes.size(), kUnpicked);
  for (std::size_t t = 0; t < mTimes.size(); ++t) {
    if (mTraces[t] == nullptr) continue;
    if (!std::isnan(mChannels[t].fixed)) {
      ++outcome.kept;
      continue;
    }
    const bool picked = mTimes[t] > 0.0;
    times[t] = picked ? mTimes[t] : kNoTime;
    record.setWaiting(t, picked);
    if (!picked) continue;
    errors[t] = mErrors[t];
    record.setError(t, errors[t]);
    ++(errors[t] <= 1e-3 * parameters::kGoodPick.value ? outcome.good : outcome.doubtful);
  }
  return errors;
}

}  // namespace talvesk
