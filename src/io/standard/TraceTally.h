#pragma once

#include "base/Message.h"

#include <cstddef>

namespace talvesk {

/// The traces of a file that share an oddity, so that one line tells of all of them.
class TraceTally {
 public:
  /// \param trace from 0
  void count(std::size_t trace) {
    if (mCount++ == 0) mFirst = trace;
  }
  bool any() const { return mCount > 0; }
  std::size_t traces() const { return mCount; }

  /// "trace 3", "all 24 traces", or "4 traces, the first of them trace 3,": traces are counted from
  /// 1 for users. \param of how many traces there are; 0 where that is not known
  Message which(std::size_t of = 0) const {
    if (mCount > 1 && mCount == of) return Message::tr("all %1 traces").arg(mCount);
    if (mCount == 1) return Message::tr("trace %1").arg(mFirst + 1);
    return Message::tr("%1 traces, the first of them trace %2,").arg(mCount).arg(mFirst + 1);
  }

 private:
  std::size_t mCount = 0;
  std::size_t mFirst = 0;
};

}  // namespace talvesk
