#include "io/standard/RecordStart.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

void RecordStart::set(double start, std::size_t trace, ShotRecord& record) {
  record.delay = std::min(start, 0.0);
  if (!(start > 0.0)) return;
  const double zeros = std::round(start / record.sampleInterval);
  if (zeros == 0.0) return;
  // Compared as doubles: absurd headers give numbers beyond every integer, or none at all.
  const bool sane = zeros > 0.0 && zeros <= static_cast<double>(record.samples.size());
  if (!sane || !mBudget.takeTrace(static_cast<std::uint64_t>(zeros), 0)) {
    mTooLate.count(trace);
    mLatest = std::max(mLatest, start);
    return;
  }
  // Made anew, not inserted into: that would keep room for twice as many.
  const auto lead = static_cast<std::ptrdiff_t>(zeros);
  std::vector<double> samples(record.samples.size() + static_cast<std::size_t>(lead), 0.0);
  std::copy(record.samples.begin(), record.samples.end(), samples.begin() + lead);
  record.samples = std::move(samples);
  mPadded.count(trace);
  mLongest = std::max(mLongest, start);
}

void RecordStart::warn(std::size_t traces, std::vector<Message>& warnings) const {
  if (mPadded.any()) {
    warnings.push_back(Message::tr("the record of %1 begins after the shot, by up to %2 ms; zeros "
                                   "stand in front, in whole samples")
                           .arg(mPadded.which(traces))
                           .arg(1000.0 * mLongest));
  }
  if (mTooLate.any()) {
    warnings.push_back(Message::tr("the header of %1 says that the record begins up to %2 ms after "
                                   "the shot, longer than it lasts; that delay is not applied")
                           .arg(mTooLate.which(traces))
                           .arg(1000.0 * mLatest));
  }
}

}  // namespace talvesk
