#pragma once

#include "base/Status.h"

#include <iosfwd>
#include <string>

namespace talvesk {

struct LoadedProject;

/// Whether a name ends in ".tvsk", whatever its case.
bool isProjectFile(const std::string& path);

/// Loads a project. What had to be put right in it, and which of its shot files are missing, is
/// told.
Status readProject(const std::string& path, LoadedProject& project);

/// Saves a project. What the user should know about its shot files is warned of.
Status writeProject(const std::string& path, const LoadedProject& project);

/// A few lines on what a project holds.
void describe(const std::string& path, const LoadedProject& project, std::ostream& out);

}  // namespace talvesk
