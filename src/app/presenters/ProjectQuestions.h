#pragma once

#include <QString>

namespace talvesk {

struct Desk;
class ProjectFile;

/// Whether the user wants to use a file that somebody else works on; true where nobody does.
bool mayUse(Desk& desk, const ProjectFile& file, const QString& question);

/// Whether the user wants to save over what lies there.
bool mayReplace(Desk& desk, const ProjectFile& file);

}  // namespace talvesk
