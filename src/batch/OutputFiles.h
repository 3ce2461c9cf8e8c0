#pragma once

#include "base/Status.h"

#include <string>
#include <vector>

namespace talvesk {

/// A file that a command will write.
struct OutputFile {
  std::string option;  ///< how the command line calls it, for messages
  std::string path;
};

/// Looks at the places of the files before hours of work are spent: two outputs in one place or an
/// output on top of an input are wrong usage, a missing or read-only folder is a failure (codes as
/// in ExitCode).
Status checkOutputFiles(const std::vector<OutputFile>& outputs,
                        const std::vector<std::string>& inputs);

/// Writes to a file, whole or not at all, or to standard output for "-".
Status writeOutput(const std::string& path, const std::string& text);

}  // namespace talvesk
