#pragma once

#include "base/Message.h"

#include <cstddef>
#include <cstdint>

namespace talvesk {

/// What reading one shot file may cost. The counts in a header are promises that a broken or
/// hostile file need not keep, so they are added up here before anything is allocated.
class ReadBudget {
 public:
  /// 64 MiB and 16 times the file, of which the file itself in memory is one.
  explicit ReadBudget(std::size_t fileBytes)
      : mLeft((std::uint64_t{64} << 20) + 15 * static_cast<std::uint64_t>(fileBytes)) {}

  /// False, for good, once more is promised than may be used.
  /// \param headerBytes read for one trace; counted so that a thousand traces cannot share one
  /// header and have it read a thousand times
  bool takeTrace(std::uint64_t samples, std::uint64_t headerBytes) {
    // The record and the trace of the document made of it, with its two times and its geophone.
    constexpr std::uint64_t kTraceBytes = 512;
    const std::uint64_t bytes = samples * sizeof(double) + headerBytes + kTraceBytes;
    mWithin = mWithin && bytes <= mLeft;
    if (mWithin) mLeft -= bytes;
    return mWithin;
  }

  static Message refusal(std::uint64_t traces, std::size_t fileBytes) {
    return Message::tr(
               "its headers promise %1 traces of more data than can come from %2 bytes; the file "
               "is damaged or no shot file")
        .arg(traces)
        .arg(fileBytes);
  }

 private:
  std::uint64_t mLeft;
  bool mWithin = true;
};

}  // namespace talvesk
