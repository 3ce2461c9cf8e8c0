#pragma once

#include "batch/Progress.h"
#include "io/TravelTimeFile.h"

#include <iosfwd>
#include <string>

namespace talvesk {

/// Where a command's texts go.
struct Channels {
  std::ostream* summary = nullptr;  ///< what the user came to know; swallowed by --quiet
  ProgressStyle progress = ProgressStyle::kLines;
};

/// For commands without an engine worth hearing: the console says nothing.
Channels openChannels(bool quiet);

/// For long work. Directs the engine's console, so it comes before everything else. The engine's
/// error lines are heard only with `verbose`: the status of what failed says the same in one line.
/// \param jsonOnOutput standard output belongs to JSON: diagnostics go to standard error
/// \param verbose the engine keeps talking where it would tear a progress bar apart
Channels openChannels(bool jsonOnOutput, bool quiet, bool verbose);

/// Keeps the console's information away while it lives: a line or three per trace is for those who
/// look for something.
class SilentConsole {
 public:
  explicit SilentConsole(bool silent);
  ~SilentConsole();
  SilentConsole(const SilentConsole&) = delete;
  SilentConsole& operator=(const SilentConsole&) = delete;

 private:
  std::ostream& mBefore;
};

/// Reads picks, and warns on standard error of what the reader repaired unless `quiet`.
Status readPicks(const std::string& path, TravelTimeData& data, bool quiet);

}  // namespace talvesk
