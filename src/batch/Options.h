#pragma once

#include "grid/VelocityLayers.h"
#include "tomo/TomographyRun.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace talvesk {

/// What talvesk-batch tells whoever called it.
enum ExitCode : int { kDone = 0, kFailed = 1, kWrongUsage = 2 };

/// The place that stands for standard output where a path is expected.
inline constexpr const char* kStandardOutput = "-";

// Paths that were not given are empty.

struct InfoOptions {
  std::vector<std::string> files;  ///< at least one
  std::string json;
};

struct InvertOptions {
  std::string input;
  std::optional<double> cellSize;     ///< metres; none: as proposed
  std::optional<double> depth;        ///< metres; none: half the array length
  int nodes = 6;                      ///< per cell side
  std::vector<VelocityLayer> layers;  ///< none: the grid's default model
  TomographyParameters parameters;
  std::string gridded;
  double lineY = 0.0;               ///< metres
  double zOffset = 0.0;             ///< metres
  std::vector<std::string> images;  ///< one picture per path
  bool rays = false;
  int contours = 0;  ///< number of contour lines
  std::string otte;
  std::string json;
  bool quiet = false;
  bool verbose = false;
};

struct ConvertOptions {
  std::string input;
  std::string output;
  bool quiet = false;
};

struct DemoOptions {
  std::string folder;
  bool quiet = false;
};

using CommandOptions = std::variant<InfoOptions, InvertOptions, ConvertOptions, DemoOptions>;

/// A command to run, or none and the exit code to leave with: help was printed on standard output,
/// or what is wrong on standard error.
struct CommandLine {
  std::optional<CommandOptions> command;
  int exitCode = kDone;
};

/// Understands the command line. Numbers are decimal with a point in every locale, and must be
/// nothing but a number in the range that the help text names.
CommandLine parseCommandLine(int argc, const char* const* argv);

}  // namespace talvesk
