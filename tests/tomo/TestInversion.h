#pragma once

#include "support/TestSurveys.h"
#include "tomo/TomographyRun.h"

#include <cctype>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace talvesk::testing {

/// A line over two layers, its starting grid, and picks that fit neither.
inline TomoDocument twoLayers(double relief = 0.0) {
  TomoDocument line = testLine(24, 2.0, {-2.0, 9.0, 23.0, 37.0, 48.0}, relief);
  pickTwoLayers(line, 450.0, 1800.0, 3.0);
  putGrid(line, 12.0, 1.0);
  return line;
}

inline TomographyParameters fewIterations(int external = 2, int solver = 3) {
  TomographyParameters p;
  p.externalIterations = external;
  p.solverIterations = solver;
  p.smoothing = 2;
  return p;
}

/// The lines that the console was told. Those that went through the log are marked, their stamp
/// removed; a date in the C library's form becomes DATE, and the seconds that something took N.
inline std::vector<std::string> linesOf(const std::string& text) {
  const std::string end = "finished iteration at ";
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    const bool stamped = line.size() > 5 && line[0] == '[' && std::isdigit(line[1]) != 0;
    if (stamped) line = "log: " + line.substr(line.find("] ") + 2);
    const bool dated = line.compare(0, end.size(), end) == 0 && line.size() == end.size() + 24;
    if (dated) line = end + "DATE";
    static const std::regex kElapsed("(.*[Ee]lapsed time: )[0-9]+(s| seconds\\.)");
    lines.push_back(std::regex_replace(line, kElapsed, "$1N$2"));
  }
  return lines;
}

}  // namespace talvesk::testing
