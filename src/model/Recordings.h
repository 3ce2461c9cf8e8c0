#pragma once

#include "model/Trace.h"

#include <cstdint>
#include <string>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

enum class WaveType : std::int32_t { P = 0, S = 1 };

/// What the geophones of a survey recorded, and the files that it came from.
struct Recordings {
  std::vector<std::string> filenames;     ///< shot files, in loading order
  std::vector<std::string> filenames_DX;  ///< S-wave files, one source polarity
  std::vector<std::string> filenames_SX;  ///< S-wave files, the other polarity
  WaveType waveType = WaveType::P;
  std::vector<TraceSet> traceSets;
};

}  // namespace talvesk
