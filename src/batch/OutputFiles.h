#pragma once

#include "base/Status.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace talvesk {

/// Whether nobody wants what would be written there, in whatever format.
inline bool isDiscarded(const std::string& path) {
  return path == "/dev/null";
}

/// A file that a command will write.
struct OutputFile {
  std::string option;  ///< how the command line calls it, for messages
  std::string path;
};

/// Whether one of the outputs goes to the standard output, which is "-" or its name in the system.
bool writesToOutput(const std::vector<OutputFile>& outputs);

/// Looks at the places of the files before hours of work are spent: two outputs in one place or an
/// output on top of an input are wrong usage, a missing or read-only folder is a failure (codes as
/// in ExitCode). Pipes and devices will do; a named pipe is opened here and held, which waits for
/// its reader as a redirection of the shell does.
Status checkOutputFiles(const std::vector<OutputFile>& outputs,
                        const std::vector<std::string>& inputs);

/// Writes to a file, whole or not at all, or to standard output for "-".
Status writeOutput(const std::string& path, const std::string& text);

/// Tries one output after the other: a picture that cannot be drawn must not cost the numbers.
class OutputAttempts {
 public:
  using Write = std::function<Status(const std::string& path)>;

  /// \param summary is told of every file that was written; null: nobody is
  explicit OutputAttempts(std::ostream* summary = nullptr) : mSummary(summary) {}

  /// Nothing for a path that was not given, or where nobody wants it. A failure is told.
  void operator()(const std::string& path, const Write& write);
  int exitCode() const { return mExitCode; }  ///< of a command that has tried them all

 private:
  std::ostream* mSummary;
  int mExitCode = 0;
};

}  // namespace talvesk
