#pragma once

#include "base/Message.h"
#include "batch/OutputFiles.h"
#include "batch/Progress.h"
#include "io/TravelTimeFile.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;
struct TravelTimeData;

/// Where a command's texts go.
struct Channels {
  std::ostream* summary = nullptr;  ///< what the user came to know; swallowed by --quiet
  ProgressStyle progress = ProgressStyle::kLines;
};

/// Directs the texts of a command, so it comes before everything else. What the engine says of
/// itself, thousands of lines, is heard only with `verbose`, as are its error lines: the status of
/// what failed says the same in one line.
/// \param outputs where one of them is the standard output, that belongs to it alone: texts go to
/// standard error
/// \param verbose the engine talks where it would tear a progress bar apart, which then are lines
Channels openChannels(const std::vector<OutputFile>& outputs, bool quiet, bool verbose = false);

/// For texts: two digits, and all those before the point ("0.43", "4.5", "118").
std::string shortNumber(double value);

/// Warns on standard error of what the program's rules lose of a shot file, and names the option
/// that helps.
void warnOfLosses(const std::string& path, const std::vector<Message>& losses);

/// Says how many samples are on the disk where some are, and warns on standard error where they
/// were meant to be and are not.
void tellSamplesOnDisk(std::ostream& summary);

/// Reads picks, and warns on standard error of what the reader repaired or left out.
Status readPicks(const std::string& path, const TravelTimeReading& reading, TravelTimeData& data);

/// Writes picks, and warns on standard error where the format cannot hold the survey, which its
/// writer tells the console only.
Status writePicks(const std::string& path, const TomoDocument& document);
/// The same in the format that the name tells; .sgt takes their errors along.
Status writePicksWithErrors(const std::string& path, const TomoDocument& document);

}  // namespace talvesk
