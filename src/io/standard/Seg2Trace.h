#pragma once

#include "io/ShotRecord.h"
#include "io/standard/Seg2Header.h"

#include <cstddef>

namespace talvesk {

/// A trace of a SEG-2 file on its way from its blocks to a shot.
struct Seg2Trace {
  std::size_t index = 0;   ///< among the trace pointers of its file, from 0
  Seg2TraceHeader header;  ///< its texts are those of the file
  ShotRecord record;
};

}  // namespace talvesk
