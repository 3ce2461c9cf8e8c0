#pragma once

#include <iosfwd>

namespace talvesk {

class OutputAttempts;
struct ExportOptions;
struct LoadedProject;

/// Writes what the options ask for of a refractor by the layers and by the section, and sums it up.
/// The rays of the section are there.
void writeRefractor(const ExportOptions& options, const LoadedProject& project,
                    OutputAttempts& attempt, std::ostream& summary);

}  // namespace talvesk
