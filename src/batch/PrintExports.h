#pragma once

#include "batch/OutputFiles.h"

#include <vector>

namespace CLI {
class App;
}

namespace talvesk {

struct LoadedProject;
struct PrintExports;
struct SectionFigureOptions;

/// The files that are asked for.
std::vector<OutputFile> filesOf(const PrintExports& prints);

/// The options of PrintExports, which must outlive the parsing. \param group of the help
void addPrintExports(CLI::App& command, PrintExports& prints, const char* group);

/// Writes what is asked for. \param section how the project shows its section
void writePrints(const PrintExports& prints, const LoadedProject& project,
                 const SectionFigureOptions& section, OutputAttempts& attempt);

}  // namespace talvesk
