#pragma once

#include "batch/OutputFiles.h"

#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace talvesk {

struct DrawingExports;
struct LoadedProject;

/// The files that are asked for.
std::vector<OutputFile> filesOf(const DrawingExports& exports);

/// The options of DrawingExports, which must outlive the parsing. \return those of them that need
/// the place of the line on the map
std::vector<CLI::Option*> addDrawingExports(CLI::App& command, DrawingExports& exports);

/// Writes what is asked for. \param place why the line cannot be on the map; ok: it can
void writeDrawings(const DrawingExports& exports, const LoadedProject& project, const Status& place,
                   OutputAttempts& attempt);

}  // namespace talvesk
