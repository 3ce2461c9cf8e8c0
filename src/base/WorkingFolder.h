#pragma once

#include <string>

namespace talvesk {

/// The per-user folder of the program: the home directory + "/Talvesk_TMP/".
struct WorkingFolder {
  std::string path;      ///< ends in "/"
  std::string log;       ///< "Talvesk_log.log" in it
  std::string settings;  ///< "Talvesk_settings.xml" in it
  std::string history;   ///< "Talvesk_history.txt" in it

  /// The folder below the given home directory (UTF-8, no trailing slash).
  static WorkingFolder below(const std::string& home);
  /// The folder of the user who runs the program.
  static WorkingFolder ofUser();

  /// Creates the folder (one level) unless it exists. False when that is impossible.
  bool create() const;
};

}  // namespace talvesk
