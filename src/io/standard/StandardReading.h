#pragma once

#include "base/Message.h"
#include "io/ShotRecord.h"

#include <string>
#include <vector>

namespace talvesk {

/// How surely bytes are of a format, by their content alone.
enum class Likelihood { kNo, kPerhaps, kYes };

/// What a file holds when it is read by the published standard of its format. Unlike the records of
/// the program's own rules these have their last sample, the data codes of the standard, scaled
/// coordinates in metres, and time counted so that a record that began after the shot has zeros in
/// front.
struct StandardReading {
  struct Shot {
    ShotFileData data;  ///< with the warnings that concern this shot alone
    std::string name;   ///< of the record in its file, "FFID 12"; empty where the file holds one
  };

  std::string format;       ///< "seg2", "segy", "su" or "mseed"
  std::vector<Shot> shots;  ///< in the order of the file; at least one after a success
  /// By what many records were told apart, "SOURCE_LOCATION"; from readByStandard() and
  /// parseByStandard() a sentence of it. Empty for one shot.
  Message split;
  std::vector<Message> warnings;  ///< about the file as a whole, without its path
};

}  // namespace talvesk
