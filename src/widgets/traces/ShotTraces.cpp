#include "widgets/traces/ShotTraces.h"

#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
constexpr double kDefaultInterval = 0.001;  // seconds
constexpr double kLeastEnd = 0.02;          // seconds, of a time axis without samples
constexpr double kLongestEnd = 1e6;         // seconds; headers may hold any interval

double meanOf(Span<double> samples) {
  double sum = 0.0;
  std::size_t count = 0;
  for (const double v : samples) {
    if (!std::isfinite(v)) continue;
    sum += v;
    ++count;
  }
  const double mean = count == 0 ? 0.0 : sum / static_cast<double>(count);
  return std::isfinite(mean) ? mean : 0.0;
}

/// As peakOf(), of samples that are drawn with a gain.
double gainedPeakOf(Span<double> samples, double mean, double interval,
                    const GatherMapping& mapping) {
  double peak = 0.0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double gain = mapping.gain(static_cast<double>(i) * interval);
    const double deflection = std::fabs(samples[i] - mean) * gain;
    if (deflection > peak && std::isfinite(deflection)) peak = deflection;
  }
  return peak;
}

double peakOf(Span<double> samples, double mean) {
  double peak = 0.0;
  for (const double v : samples) {
    const double deflection = std::fabs(v - mean);
    if (deflection > peak && std::isfinite(deflection)) peak = deflection;
  }
  return peak;
}

double timeAmong(const std::vector<double>& times, int trace) {
  const auto i = static_cast<std::size_t>(trace);
  return trace >= 0 && i < times.size() ? times[i] : kNoTime;
}

}  // namespace

ShotTraces::ShotTraces(const TomoDocument* document, int record, bool showFiltered,
                       const GatherManner& manner)
    : mDocument(document), mRecord(record), mShowFiltered(showFiltered) {
  if (times() == nullptr) {
    mRecord = -1;
    return;
  }
  measure(manner);
}

const TravelTime* ShotTraces::times() const {
  if (mDocument == nullptr || mRecord < 0) return nullptr;
  const auto i = static_cast<std::size_t>(mRecord);
  return i < mDocument->ttArray.size() ? &mDocument->ttArray[i] : nullptr;
}

const TraceSet* ShotTraces::traceSet() const {
  const TravelTime* record = times();
  return record != nullptr ? mDocument->tracesOf(*record) : nullptr;
}

const Trace* ShotTraces::find(int trace) const {
  const TraceSet* set = traceSet();
  return set != nullptr && trace >= 0 && index(trace) < set->size() ? &(*set)[index(trace)]
                                                                    : nullptr;
}

bool ShotTraces::hasSamples() const {
  for (int i = 0; i < count(); ++i) {
    if (!samples(i).empty()) return true;
  }
  return false;
}

Span<double> ShotTraces::samples(int trace) const {
  const Trace* found = find(trace);
  if (found == nullptr) return {};
  return mShowFiltered && !found->filtered.empty() ? found->filtered : found->samples;
}

double ShotTraces::interval(int trace) const {
  const Trace* found = find(trace);
  if (found == nullptr) return kDefaultInterval;
  const double interval = found->sampleInterval;
  return interval > 0.0 && interval < kLongestEnd ? interval : kDefaultInterval;
}

double ShotTraces::recordEnd(int trace) const {
  const std::size_t n = samples(trace).size();
  return n == 0 ? 0.0 : std::min(static_cast<double>(n - 1) * interval(trace), kLongestEnd);
}

void ShotTraces::measure(const GatherManner& manner) {
  const TraceSet* set = traceSet();
  const std::size_t n = set != nullptr ? set->size() : times()->ttMisurati.size();
  mMean.assign(n, 0.0);
  mPeak.assign(n, 0.0);
  mGain.assign(n, 1.0);
  std::vector<double> offsets;
  for (int i = 0; i < count(); ++i) offsets.push_back(offset(i));
  mMapping = GatherMapping(manner, std::move(offsets));
  const ShotMends& mends = mendsOfRecord(*mDocument, mRecord);
  double end = 0.0;
  double latest = 0.0;
  for (int i = 0; i < count(); ++i) {
    mMean[index(i)] = meanOf(samples(i));
    mPeak[index(i)] = mMapping.amplifies()
                          ? gainedPeakOf(samples(i), mMean[index(i)], interval(i), mMapping)
                          : peakOf(samples(i), mMean[index(i)]);
    mGain[index(i)] = mendOf(mends, index(i)).gain;
    mShotPeak = std::max(mShotPeak, mPeak[index(i)]);
    end = std::max(end, recordEnd(i));
    for (const double t : {measured(i), computed(i)}) {
      if (t > latest && t < kLongestEnd) latest = t;
    }
  }
  mTimeEnd = end > 0.0 ? end : std::max(1.2 * latest, kLeastEnd);
}

double ShotTraces::drawnBegin() const {
  return mMapping.isReduced() ? -mMapping.longestShift() : 0.0;
}

double ShotTraces::drawnEnd() const {
  if (!mMapping.isReduced()) return mTimeEnd;
  double end = drawnBegin();
  for (int i = 0; i < count(); ++i) {
    end = std::max(end, drawnTime(i, recordEnd(i) > 0.0 ? recordEnd(i) : mTimeEnd));
  }
  return end;
}

double ShotTraces::receiverX(int trace) const {
  const TravelTime* record = times();
  if (record == nullptr || trace < 0) return kUnknown;
  const auto& strings = mDocument->line->goephonesStringSet;
  const auto string = static_cast<std::size_t>(record->indexStesa);
  if (record->indexStesa >= 0 && string < strings.size() && index(trace) < strings[string].size()) {
    return strings[string][index(trace)].x;
  }
  const Trace* found = find(trace);
  return found != nullptr ? found->receiverPosition.x : kUnknown;
}

double ShotTraces::shotX() const {
  const TravelTime* record = times();
  return record != nullptr ? record->shotPos2d.x : kUnknown;
}

bool ShotTraces::canPick(int trace) const {
  const TravelTime* record = times();
  return record != nullptr && trace >= 0 && index(trace) < record->ttMisurati.size();
}

double ShotTraces::measured(int trace) const {
  const TravelTime* record = times();
  return record != nullptr ? timeAmong(record->ttMisurati, trace) : kNoTime;
}

double ShotTraces::error(int trace) const {
  const TravelTime* record = times();
  return record == nullptr || trace < 0 ? 0.0 : record->errorOf(index(trace));
}

double ShotTraces::computed(int trace) const {
  const TravelTime* record = times();
  return record != nullptr ? timeAmong(record->ttCalcolati, trace) : kNoTime;
}

}  // namespace talvesk
