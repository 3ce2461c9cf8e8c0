#pragma once

#include "base/Status.h"
#include "io/standard/StandardReading.h"
#include "model/Recordings.h"

#include <string>
#include <vector>

namespace talvesk {

struct SegyState;

/// What became of one shot file.
struct ShotFileOutcome {
  std::string path;
  Status status;                  ///< as of readShotFile or readByStandard
  std::string format;             ///< "seg2", "segy", "su", "mseed"; empty after a failure
  std::vector<Message> warnings;  ///< without the path; how the file was split is the first
};

/// A shot file that was read, and that is in no document yet.
struct ReadShotFile {
  ShotFileOutcome outcome;
  ShotReader reader = ShotReader::kRules;
  std::vector<StandardReading::Shot> shots;  ///< by the rules one; none after a failure
  std::vector<Message> common;               ///< of the warnings those that concern all shots

  std::size_t traceCount() const;  ///< of all shots
};

/// "SEG-2" for "seg2", of the formats of either reader; empty for what is no id.
std::string shotFormatName(const std::string& id);

/// Reads a shot file by one reader or the other; a failure is in the outcome. Warnings and failures
/// also go to the console.
/// \param state of the program's rules; the standard needs none
ReadShotFile readShotFileBy(ShotReader reader, const std::string& path, SegyState& state);

}  // namespace talvesk
