#pragma once

#include "batch/Options.h"

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace talvesk {

inline constexpr const char* kExitCodes = "Exit code: 0 done, 1 failed, 2 wrong usage.";

/// The options that belong to shot files, to ask what was given once the line is parsed.
struct ShotOptionGroup {
  std::vector<CLI::Option*> options;

  bool anyGiven() const;
  /// Throws CLI::ValidationError when options contradict each other.
  void check(const ShotOptions& shots) const;
};

/// The options with which shot files become picks. `shots` must outlive the parsing.
ShotOptionGroup addShotOptions(CLI::App& command, ShotOptions& shots);

/// A repeatable --image with names that a picture can have.
CLI::Option* addImages(CLI::App& command, std::vector<std::string>& images,
                       const std::string& help);

/// The command `invert`.
void addInvert(CLI::App& app, InvertOptions& options);

}  // namespace talvesk
