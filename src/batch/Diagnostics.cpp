#include "batch/Diagnostics.h"

#include "base/Console.h"
#include "batch/Failure.h"

#include <iostream>

#include <unistd.h>

namespace talvesk {

Channels openChannels(bool quiet) {
  console::setOut(console::nowhere());
  console::setError(console::nowhere());
  Channels channels;
  channels.summary = quiet ? &console::nowhere() : &std::cout;
  channels.progress = ProgressStyle::kSilent;
  return channels;
}

Channels openChannels(bool jsonOnOutput, bool quiet, bool verbose) {
  Channels channels = openChannels(quiet);
  if (quiet) return channels;
  channels.progress = ProgressStyle::kLines;
  if (jsonOnOutput) channels.summary = &std::cerr;
  if (verbose) console::setError(std::cerr);
  const bool talkOnTerminal = isatty(jsonOnOutput ? STDERR_FILENO : STDOUT_FILENO) != 0;
  const bool barPossible = isatty(STDERR_FILENO) != 0;
  if (barPossible && !(verbose && talkOnTerminal)) channels.progress = ProgressStyle::kBar;
  if (channels.progress == ProgressStyle::kLines || !talkOnTerminal) {
    console::setOut(*channels.summary);
  }
  return channels;
}

SilentConsole::SilentConsole(bool silent) : mBefore(console::out()) {
  if (silent) console::setOut(console::nowhere());
}

SilentConsole::~SilentConsole() {
  console::setOut(mBefore);
}

Status readPicks(const std::string& path, TravelTimeData& data, bool quiet) {
  Status status = readTravelTimes(path, data);
  if (!quiet) {
    for (const std::string& warning : data.warnings) warn(path + ": " + warning);
  }
  return status;
}

}  // namespace talvesk
