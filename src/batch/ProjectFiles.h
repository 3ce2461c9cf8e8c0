#pragma once

#include "base/Status.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace talvesk {

struct LoadedProject;
struct TravelTime;

/// Whether a name ends in ".tvsk", whatever its case.
bool isProjectFile(const std::string& path);

/// Loads a project. What had to be put right in it, and which of its shot files are missing, is
/// told.
Status readProject(const std::string& path, LoadedProject& project);

/// Saves a project. What the user should know about its shot files is warned of.
Status writeProject(const std::string& path, const LoadedProject& project);

/// The lines of a description that tell how many times are picks, and how sure these are.
std::string picksText(const std::vector<TravelTime>& records);

/// A few lines on what a project holds.
void describe(const std::string& path, const LoadedProject& project, std::ostream& out);

}  // namespace talvesk
