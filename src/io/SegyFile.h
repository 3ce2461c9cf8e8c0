#pragma once

#include "base/Status.h"
#include "io/ShotRecord.h"

#include <cstdint>
#include <string_view>

namespace talvesk {

/// What the readers of SEG-Y and SU remember from one file to the next. SU files do not tell their
/// byte order: they are read in the order of the SEG-Y file before them.
struct SegyState {
  bool nativeOrder = true;      ///< little-endian numbers; otherwise big-endian
  std::int16_t formatCode = 0;  ///< of the samples
  std::int32_t samplesPerTrace = 0;
  double sampleInterval = 0.0;  ///< milliseconds
};

/// Reads a SEG-Y file. Elevations and delays are 0. The byte order follows the constant in the
/// binary header or, without one, the number of traces; nothing sets the order back to native.
///
/// Status 1: the file promises more data than it can hold; `state` and `data` are as before.
///
/// Kept on purpose: a negative coordinate scalar other than -1 makes the coordinates 0 (-1 divided
/// by the scalar, in integers), the last sample of a trace is never read and stays 0, and of the
/// format codes only 2 (32-bit), 3 (16-bit) and 5 (IEEE float) give samples. IBM floats (1) do not.
Status readSegy(std::string_view bytes, SegyState& state, ShotFileData& data);

/// The same for SU, which is SEG-Y's traces without its headers; as many as the file has room for.
/// Samples are IEEE floats, but traces are spaced by the format code of the file read before.
Status readSu(std::string_view bytes, SegyState& state, ShotFileData& data);

}  // namespace talvesk
