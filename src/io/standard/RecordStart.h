#pragma once

#include "io/ReadBudget.h"
#include "io/ShotRecord.h"
#include "io/standard/TraceTally.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// Brings records to the time of the shot. One that began before it keeps its delay. One that began
/// after it gets zeros in front, up to as many as it has samples: beyond that, or beyond what the
/// file may cost, the header is more likely wrong than the record that late.
class RecordStart {
 public:
  /// \param budget what the file may still cost; must outlive this
  explicit RecordStart(ReadBudget& budget) : mBudget(budget) {}

  /// \param start finite, seconds from the shot to the first sample; \param trace from 0
  void set(double start, std::size_t trace, ShotRecord& record);

  /// What was done about records that begin after the shot, as lines for the user.
  /// \param traces how many the file has
  void warn(std::size_t traces, std::vector<Message>& warnings) const;

 private:
  ReadBudget& mBudget;
  TraceTally mPadded;
  TraceTally mTooLate;
  double mLongest = 0.0;  ///< seconds of zeros
  double mLatest = 0.0;   ///< seconds, of those that are too late
};

}  // namespace talvesk
