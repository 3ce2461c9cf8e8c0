#pragma once

#include "base/Message.h"
#include "model/FilterSteps.h"
#include "model/Mends.h"
#include "model/Trace.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

enum class WaveType : std::int32_t { P = 0, S = 1 };

/// By what a shot file was read.
enum class ShotReader : std::int32_t {
  kRules = 0,    ///< the program's own rules, io/ShotFile.h
  kStandard = 1  ///< the published standard of its format, io/standard/StandardReader.h
};

/// What is known of the recording of a trace set beside its samples.
struct RecordingNote {
  std::string format;             ///< of its file: "seg2", "segy", "su", "mseed"; empty: not known
  std::vector<Message> warnings;  ///< that the reader had about its file
  ShotReader reader = ShotReader::kRules;
  std::size_t recordInFile = 0;  ///< which of the shots of its file, from 0
  std::string nameInFile = {};   ///< of that shot; empty where the file holds one
  /// What made its filtered copies; see filtersOf(). Empty where that is not known.
  std::vector<FilterStep> filters = {};
};

/// What the geophones of a survey recorded, and the files that it came from.
struct Recordings {
  std::vector<std::string> filenames;     ///< shot files, in loading order
  std::vector<std::string> filenames_DX;  ///< S-wave files, one source polarity
  std::vector<std::string> filenames_SX;  ///< S-wave files, the other polarity
  WaveType waveType = WaveType::P;
  std::vector<TraceSet> traceSets;   ///< mended, as they are shown, picked and saved
  std::vector<RecordingNote> notes;  ///< per trace set; shorter where nothing is known of the rest
  std::vector<ShotMends> mends;      ///< per trace set; shorter where the rest has none
  /// Per trace set as it was recorded, where it has mends; empty where it has none.
  std::vector<TraceSet> originals;

  RecordingNote& noteOf(std::size_t set) {
    if (notes.size() <= set) notes.resize(set + 1);
    return notes[set];
  }
};

}  // namespace talvesk
