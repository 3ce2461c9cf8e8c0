#pragma once

#include "base/Message.h"
#include "model/Trace.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

enum class WaveType : std::int32_t { P = 0, S = 1 };

/// What is known of the recording of a trace set beside its samples.
struct RecordingNote {
  std::string format;             ///< of its file: "seg2", "segy", "su"; empty: not known
  std::vector<Message> warnings;  ///< that the reader had about its file
};

/// What the geophones of a survey recorded, and the files that it came from.
struct Recordings {
  std::vector<std::string> filenames;     ///< shot files, in loading order
  std::vector<std::string> filenames_DX;  ///< S-wave files, one source polarity
  std::vector<std::string> filenames_SX;  ///< S-wave files, the other polarity
  WaveType waveType = WaveType::P;
  std::vector<TraceSet> traceSets;
  std::vector<RecordingNote> notes;  ///< per trace set; shorter where nothing is known of the rest

  RecordingNote& noteOf(std::size_t set) {
    if (notes.size() <= set) notes.resize(set + 1);
    return notes[set];
  }
};

}  // namespace talvesk
