#pragma once

#include "base/SampleStore.h"
#include "batch/Options.h"

#include <optional>
#include <string>

namespace talvesk {

/// A command to run, or none and the exit code to leave with: help was printed on standard output,
/// or what is wrong on standard error.
struct CommandLine {
  std::optional<CommandOptions> command;
  int exitCode = kDone;
  SamplesOnDisk samplesOnDisk = SamplesOnDisk::kWhenLarge;
};

/// Understands the command line. Numbers are decimal with a point in every locale, and must be
/// nothing but a number in the range that the help text names.
CommandLine parseCommandLine(int argc, const char* const* argv);

enum class ManualKind { kManualPage, kBashCompletion };

/// The manual page (troff) or the completion of the shell for all commands and options, made from
/// the same table that parses them.
std::string manualOfCommands(ManualKind kind);

}  // namespace talvesk
